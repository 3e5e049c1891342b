// The cards that a new card can begin with.
#include "view/Templates.h"

#include "CardFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <map>
#include <set>
#include <string>

namespace plix::test {
namespace {

using namespace tool;

std::map<std::string, std::string> templateTexts()
{
    std::map<std::string, std::string> texts;
    for (const TemplateGroup& group : templateGroups()) {
        for (const CardTemplate& card : group.cards)
            texts[(group.title + QLatin1Char('/') + card.title).toStdString()] =
                templateText(card).toStdString();
    }
    return texts;
}

std::string fileText(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll().toStdString();
}

QStringList filesOfTheGuide()
{
    const QString folder = QStringLiteral(PLIX_DOCS "/cards/");
    const QRegularExpression line(QStringLiteral("^\\{\\{card (.*)\\}\\}$"),
                                  QRegularExpression::MultilineOption);
    const std::string guide = fileText(folder + QStringLiteral("cards.in.md"));
    QStringList files;
    for (auto matches = line.globalMatch(QString::fromStdString(guide)); matches.hasNext();)
        files.append(folder + matches.next().captured(1) + QStringLiteral(".json"));
    return files;
}

QStringList filesOfTheGallery()
{
    const QDir folder(QStringLiteral(PLIX_CARDS));
    QStringList files;
    for (const QString& file : folder.entryList({QStringLiteral("*.json")}))
        files.append(folder.filePath(file));
    return files;
}

TEST(Templates, AreCards)
{
    for (const auto& [name, text] : templateTexts())
        EXPECT_NO_THROW(CardFile(QString::fromStdString(name), QByteArray::fromStdString(text)))
            << name;
}

TEST(Templates, AreTheCardsOfTheGuideAndOfTheGallery)
{
    std::set<std::string> expected;
    for (const QString& file : filesOfTheGuide() + filesOfTheGallery())
        expected.insert(fileText(file));
    EXPECT_GT(expected.size(), 70U);
    std::set<std::string> texts;
    for (const auto& [name, text] : templateTexts())
        texts.insert(text);
    EXPECT_TRUE(texts == expected) << texts.size() << " templates, " << expected.size() << " cards";
}

TEST(Templates, AreNamedByTheirFilesInGroupsOfTheirFolders)
{
    const auto texts = templateTexts();
    for (const char* const name : {"Recipes/Price at end", "Examples/Build result",
                                   "Components/Flex", "Gallery/Coffee shop"})
        EXPECT_EQ(texts.count(name), 1U) << name;
}

} // namespace
} // namespace plix::test
