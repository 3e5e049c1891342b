// The cards of docs/check.md: the first one of a section has the finding, the second one
// has none.
#include "tools/ToolRun.h"

#include "check/Rule.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <map>
#include <set>

namespace plix::test {
namespace {

QString guideText()
{
    QFile file(QStringLiteral(PLIX_CHECK_GUIDE));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

struct Section {
    QString code;
    QStringList cards;
};

std::vector<Section> sections()
{
    std::vector<Section> sections;
    const QRegularExpression heading(QStringLiteral("^## ([a-z0-9-]+)$"),
                                     QRegularExpression::MultilineOption);
    const QRegularExpression card(QStringLiteral("```json\n(.*?)```"),
                                  QRegularExpression::DotMatchesEverythingOption);
    const QString text = guideText();
    auto match = heading.match(text);
    while (match.hasMatch()) {
        const auto next = heading.match(text, match.capturedEnd());
        const int end = next.hasMatch() ? next.capturedStart() : text.size();
        const QString body = text.mid(match.capturedEnd(), end - match.capturedEnd());
        Section section {match.captured(1), {}};
        for (auto cards = card.globalMatch(body); cards.hasNext();)
            section.cards.append(cards.next().captured(1));
        sections.push_back(section);
        match = next;
    }
    return sections;
}

// Writes out what stands in the document for something that it cannot contain.
QByteArray toBytes(QString card)
{
    static const QRegularExpression repeated(QStringLiteral("⟨(\\d+) times (.*?)⟩"));
    const auto match = repeated.match(card);
    if (match.hasMatch())
        card.replace(match.captured(0), match.captured(2).repeated(match.captured(1).toInt()));
    return card.toUtf8().replace("⟨E9⟩", "\xE9");
}

std::set<QString> codesOf(const QJsonValue& file)
{
    std::set<QString> codes;
    for (const QJsonValue& finding : file.toObject().value(QStringLiteral("findings")).toArray())
        codes.insert(finding.toObject().value(QStringLiteral("code")).toString());
    return codes;
}

// The codes of all findings in each file of a folder.
std::map<QString, std::set<QString>> checkFolder(const ToolFolder& folder)
{
    std::map<QString, std::set<QString>> codes;
    const ToolResult result = folder.run({"check", ".", "--format", "json"});
    const QJsonObject root =
        QJsonDocument::fromJson(QByteArray::fromStdString(result.output)).object();
    for (const QJsonValue& file : root.value(QStringLiteral("files")).toArray())
        codes[file.toObject().value(QStringLiteral("file")).toString()] = codesOf(file);
    return codes;
}

TEST(CheckGuide, HasASectionForEachCode)
{
    std::vector<std::string> codes;
    for (const Section& section : sections())
        codes.push_back(section.code.toStdString());
    std::vector<std::string> expected;
    for (const tool::RuleDescription& rule : tool::rules())
        expected.emplace_back(rule.code);
    EXPECT_EQ(codes, expected);
}

TEST(CheckGuide, ShowsAWrongAndARightCardForEachCode)
{
    const ToolFolder folder;
    for (const Section& section : sections()) {
        ASSERT_EQ(section.cards.size(), 2) << section.code.toStdString();
        folder.write(section.code.toStdString() + "-wrong.json", toBytes(section.cards.at(0)));
        folder.write(section.code.toStdString() + "-right.json", toBytes(section.cards.at(1)));
    }
    auto codes = checkFolder(folder);
    for (const Section& section : sections()) {
        SCOPED_TRACE(section.code.toStdString());
        EXPECT_EQ(codes[QStringLiteral("./%1-wrong.json").arg(section.code)],
                  (std::set<QString> {section.code}));
        EXPECT_EQ(codes[QStringLiteral("./%1-right.json").arg(section.code)],
                  (std::set<QString> {}));
    }
}

} // namespace
} // namespace plix::test
