// docs/cards.md is what its template, the format's table and the cards beside it make.
#include "tools/ToolRun.h"

#include "guide/CardGuide.h"

#include "model/format/PlixFormat.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <set>

namespace plix::test {
namespace {

const QString kDocuments = QStringLiteral(PLIX_DOCS);

const tool::CardGuide& guide()
{
    static const tool::CardGuide guide(kDocuments, QStringLiteral(PLIX_IMAGES));
    return guide;
}

QByteArray fileText(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// The files of docs/cards with this ending, as the guide names them.
std::set<std::string> filesWith(const QString& ending)
{
    const QString folder = kDocuments + QStringLiteral("/cards/");
    std::set<std::string> names;
    for (QDirIterator files(folder, {QLatin1Char('*') + ending}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        const QString path = files.next();
        names.insert(path.mid(folder.size()).chopped(ending.size()).toStdString());
    }
    return names;
}

// Keys that mean the same for several components are one key.
using KeyNames = std::set<std::pair<std::string_view, std::string_view>>;

void collectKeys(const QJsonObject& object, const PlixFormatComponent& format, KeyNames& keys);

void collectParts(const QJsonValue& value, PlixFormatPart part, KeyNames& keys)
{
    for (const QJsonValue& element : value.toArray())
        collectParts(element, part, keys);
    const QJsonObject object = value.toObject();
    const std::string type = object.value(QStringLiteral("type")).toString().toStdString();
    const PlixFormatComponent* const component = FindComponentFormat(type);
    if (part == PlixFormatPart::Component && component)
        collectKeys(object, *component, keys);
    else
        collectKeys(object, PartFormat(part), keys);
}

void collectKeys(const QJsonObject& object, const PlixFormatComponent& format, KeyNames& keys)
{
    for (const QString& name : object.keys()) {
        if (const PlixFormatKey* const key = FindKeyFormat(format, name.toStdString())) {
            keys.emplace(key->name, key->description);
            collectParts(object.value(name), key->part, keys);
        }
    }
}

KeyNames shownKeys()
{
    KeyNames keys;
    for (const QString& card : guide().cards()) {
        const QJsonDocument json = QJsonDocument::fromJson(fileText(guide().cardPath(card)));
        collectKeys(json.object(), BubbleFormat(), keys);
    }
    return keys;
}

TEST(CardGuide, IsTheKeptDocument)
{
    EXPECT_TRUE(guide().text().toUtf8() == fileText(guide().textPath()))
        << "cmake --build build/release --target card_guide";
}

TEST(CardGuide, ShowsEachCardOfItsFolder)
{
    std::set<std::string> cards;
    for (const QString& card : guide().cards())
        EXPECT_TRUE(cards.insert(card.toStdString()).second) << card.toStdString();
    EXPECT_EQ(cards, filesWith(QStringLiteral(".json")));
    EXPECT_EQ(cards, filesWith(QStringLiteral(".png")));
}

TEST(CardGuide, HasThePicturesOfItsCards)
{
#if defined(Q_OS_WIN)
    GTEST_SKIP() << "letters are drawn in another way";
#endif
    for (const QString& card : guide().cards()) {
        const QImage picture = guide().picture(card);
        const QImage kept(guide().picturePath(card));
        EXPECT_TRUE(kept.convertToFormat(picture.format()) == picture)
            << card.toStdString() << ": cmake --build build/release --target card_guide";
    }
}

TEST(CardGuide, ShowsEachKey)
{
    const KeyNames shown = shownKeys();
    const auto expectKeys = [&shown](const PlixFormatComponent& format) {
        for (const PlixFormatKey& key : format.keys) {
            EXPECT_TRUE(shown.count({key.name, key.description}))
                << "no card shows " << key.name << " of " << format.description;
        }
    };
    expectKeys(BubbleFormat());
    for (const PlixFormatComponent& component : ComponentFormats())
        expectKeys(component);
    for (const PlixFormatPart part :
         {PlixFormatPart::Span, PlixFormatPart::Styles, PlixFormatPart::ZoneStyle})
        expectKeys(PartFormat(part));
}

TEST(CardGuide, ExplainsEachKey)
{
    const auto expectTable = [](const PlixFormatComponent& format) {
        for (const PlixFormatKey& key : format.keys) {
            const QString row =
                QStringLiteral("| `%1` |").arg(QString::fromStdString(std::string(key.name)));
            EXPECT_TRUE(guide().text().contains(row)) << key.name;
            EXPECT_FALSE(key.description.empty()) << key.name;
        }
    };
    expectTable(BubbleFormat());
    for (const PlixFormatComponent& component : ComponentFormats())
        expectTable(component);
    for (const PlixFormatPart part : {PlixFormatPart::Span, PlixFormatPart::Action,
                                      PlixFormatPart::Styles, PlixFormatPart::ZoneStyle})
        expectTable(PartFormat(part));
}

TEST(CardGuide, CardsCheckClean)
{
    const ToolResult result =
        runTool({"check", PLIX_DOCS "/cards/components", PLIX_DOCS "/cards/recipes",
                 PLIX_DOCS "/cards/examples", "--images", PLIX_IMAGES, "--lang", "en", "--lang",
                 "ko", "--strict"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
}

} // namespace
} // namespace plix::test
