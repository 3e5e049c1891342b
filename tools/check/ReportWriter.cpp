#include "check/ReportWriter.h"

#include "check/SarifWriter.h"

#include "OutputFile.h"

#include <QJsonDocument>

namespace plix::tool {
namespace {

// One line per finding, as compilers write them.
class TextWriter : public ReportWriter {
public:
    void write(const Report& report) override
    {
        QByteArray lines;
        for (const Finding& finding : report.findings)
            lines += line(report.file, finding).toUtf8() + '\n';
        writeStandardOutput(lines);
    }

private:
    static QString line(const QString& file, const Finding& finding)
    {
        const RuleDescription& rule = description(finding.rule);
        const QString severity =
            rule.severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
        const QString path =
            finding.path.isEmpty() ? QString() : finding.path + QStringLiteral(": ");
        const QString mend =
            finding.mend.isEmpty() ? QString() : QStringLiteral("; try ") + finding.mend;
        return QStringLiteral("%1:%2:%3: %4: ")
                   .arg(file, QString::number(finding.place.line),
                        QString::number(finding.place.column), severity)
            + path + finding.message + mend + QStringLiteral(" [%1]").arg(QLatin1String(rule.code));
    }
};

// One object per file.
class JsonWriter : public ReportWriter {
public:
    void begin() override { writeStandardOutput("{\"version\": 1, \"files\": ["); }

    void write(const Report& report) override
    {
        const QByteArray object = QJsonDocument(toJson(report)).toJson(QJsonDocument::Compact);
        writeStandardOutput((isFirst_ ? "\n" : ",\n") + object);
        isFirst_ = false;
    }

    void end() override { writeStandardOutput("\n]}\n"); }

private:
    bool isFirst_ = true;
};

} // namespace

std::unique_ptr<ReportWriter> makeReportWriter(CheckFormat format)
{
    switch (format) {
    case CheckFormat::Text:
        break;
    case CheckFormat::Json:
        return std::make_unique<JsonWriter>();
    case CheckFormat::Sarif:
        return std::make_unique<SarifWriter>();
    }
    return std::make_unique<TextWriter>();
}

} // namespace plix::tool
