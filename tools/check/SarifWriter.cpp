#include "check/SarifWriter.h"

#include "OutputFile.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QUrl>

namespace plix::tool {
namespace {

QString level(Severity severity)
{
    return severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
}

QJsonObject textObject(const QString& text)
{
    return {{QStringLiteral("text"), text}};
}

QJsonArray ruleObjects()
{
    QJsonArray objects;
    for (const RuleDescription& rule : rules()) {
        objects.append(QJsonObject {
            {QStringLiteral("id"), QLatin1String(rule.code)},
            {QStringLiteral("shortDescription"), textObject(QLatin1String(rule.title))},
            {QStringLiteral("defaultConfiguration"),
             QJsonObject {{QStringLiteral("level"), level(rule.severity)}}},
        });
    }
    return objects;
}

QJsonObject region(const Finding& finding)
{
    return {{QStringLiteral("startLine"), finding.place.line},
            {QStringLiteral("startColumn"), finding.place.column},
            {QStringLiteral("endLine"), finding.end.line},
            {QStringLiteral("endColumn"), finding.end.column}};
}

QJsonObject location(const QString& file, const Finding& finding)
{
    const QString uri = QString::fromLatin1(QUrl::toPercentEncoding(file, "/"));
    QJsonObject location {{QStringLiteral("physicalLocation"),
                           QJsonObject {{QStringLiteral("artifactLocation"),
                                         QJsonObject {{QStringLiteral("uri"), uri}}},
                                        {QStringLiteral("region"), region(finding)}}}};
    if (!finding.path.isEmpty()) {
        location.insert(
            QStringLiteral("logicalLocations"),
            QJsonArray {QJsonObject {{QStringLiteral("fullyQualifiedName"), finding.path}}});
    }
    return location;
}

QJsonObject result(const QString& file, const Finding& finding)
{
    const RuleDescription& rule = description(finding.rule);
    const QString mend =
        finding.mend.isEmpty() ? QString() : QStringLiteral("; try ") + finding.mend;
    return {{QStringLiteral("ruleId"), QLatin1String(rule.code)},
            {QStringLiteral("ruleIndex"), static_cast<int>(finding.rule)},
            {QStringLiteral("level"), level(rule.severity)},
            {QStringLiteral("message"), textObject(finding.message + mend)},
            {QStringLiteral("locations"), QJsonArray {location(file, finding)}}};
}

} // namespace

void SarifWriter::write(const Report& report)
{
    for (const Finding& finding : report.findings)
        results_.append(result(report.file, finding));
}

void SarifWriter::end()
{
    const QJsonObject driver {
        {QStringLiteral("name"), QStringLiteral("plix")},
        {QStringLiteral("version"), QCoreApplication::applicationVersion()},
        {QStringLiteral("rules"), ruleObjects()},
    };
    const QJsonObject run {
        {QStringLiteral("tool"), QJsonObject {{QStringLiteral("driver"), driver}}},
        {QStringLiteral("columnKind"), QStringLiteral("unicodeCodePoints")},
        {QStringLiteral("results"), results_},
    };
    const QJsonObject log {
        {QStringLiteral("$schema"),
         QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
        {QStringLiteral("version"), QStringLiteral("2.1.0")},
        {QStringLiteral("runs"), QJsonArray {run}},
    };
    writeStandardOutput(QJsonDocument(log).toJson());
}

} // namespace plix::tool
