// The example cards have no findings, except for those that they show on purpose.
#include "tools/ToolRun.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <set>

namespace plix::test {
namespace {

// "CARD CODE".
const std::set<std::string> kOnPurpose {
    // What is shown instead of links for phones.
    "app_only.json mobile-only-action",
    "app_only.json text-cut",
    // An unknown style, and a label that does not fit.
    "button_styles.json unknown-word",
    "button_styles.json text-cut",
    // Mentions have the library's colours.
    "mentions.json low-contrast",
    // A word that is half transparent.
    "text_styles.json low-contrast",
    // Texts of one line.
    "mentions.json text-cut",
    "text_styles.json text-cut",
    // An unknown size.
    "picture_sizes.json unknown-word",
};

TEST(ExampleCards, CheckClean)
{
    const ToolResult result =
        runTool({"check", ".", "--images", PLIX_IMAGES, "--markup", "--format", "json", "--lang",
                 "en", "--lang", "ko", "--lang", "de"},
                QStringLiteral(PLIX_CARDS));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const QJsonObject root =
        QJsonDocument::fromJson(QByteArray::fromStdString(result.output)).object();
    const QJsonArray files = root.value(QStringLiteral("files")).toArray();
    EXPECT_GE(files.size(), 33);
    std::set<std::string> found;
    for (const QJsonValue& file : files) {
        const QString name = file.toObject().value(QStringLiteral("file")).toString().mid(2);
        for (const QJsonValue& finding :
             file.toObject().value(QStringLiteral("findings")).toArray())
            found.insert((name + QLatin1Char(' ')
                          + finding.toObject().value(QStringLiteral("code")).toString())
                             .toStdString());
    }
    EXPECT_EQ(found, kOnPurpose);
}

} // namespace
} // namespace plix::test
