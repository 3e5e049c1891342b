#include "check/Report.h"

#include <QJsonArray>

namespace plix::tool {
namespace {

QString severityName(Severity severity)
{
    return severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
}

QJsonObject toJson(const Finding& finding)
{
    const RuleDescription& rule = description(finding.rule);
    QJsonObject object {
        {QStringLiteral("code"), QLatin1String(rule.code)},
        {QStringLiteral("severity"), severityName(rule.severity)},
        {QStringLiteral("line"), finding.place.line},
        {QStringLiteral("column"), finding.place.column},
        {QStringLiteral("endLine"), finding.end.line},
        {QStringLiteral("endColumn"), finding.end.column},
        {QStringLiteral("path"), finding.path},
        {QStringLiteral("message"), finding.message},
    };
    if (!finding.mend.isEmpty())
        object.insert(QStringLiteral("suggestion"), finding.mend);
    return object;
}

Finding findingFromJson(const QJsonObject& object)
{
    const auto number = [&](const char* key) { return object.value(QLatin1String(key)).toInt(); };
    const auto text = [&](const char* key) { return object.value(QLatin1String(key)).toString(); };
    Finding finding;
    if (const RuleDescription* const rule = findRule(text("code")))
        finding.rule = rule->rule;
    finding.place = {number("line"), number("column")};
    finding.end = {number("endLine"), number("endColumn")};
    finding.path = text("path");
    finding.message = text("message");
    finding.mend = text("suggestion");
    return finding;
}

} // namespace

QJsonObject toJson(const Report& report)
{
    QJsonArray findings;
    for (const Finding& finding : report.findings)
        findings.append(toJson(finding));
    QJsonObject object {{QStringLiteral("file"), report.file},
                        {QStringLiteral("findings"), findings}};
    if (!report.failure.isEmpty())
        object.insert(QStringLiteral("failure"), report.failure);
    return object;
}

Report reportFromJson(const QJsonObject& object)
{
    Report report;
    report.file = object.value(QStringLiteral("file")).toString();
    report.failure = object.value(QStringLiteral("failure")).toString();
    for (const auto& finding : object.value(QStringLiteral("findings")).toArray())
        report.findings.push_back(findingFromJson(finding.toObject()));
    return report;
}

} // namespace plix::tool
