// The images of the example cards are those in the folder examples/images.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>

#include <set>

namespace plix::test {
namespace {

std::set<std::string> files()
{
    std::set<std::string> names;
    for (const QString& name : QDir(QStringLiteral(PLIX_IMAGES)).entryList(QDir::Files))
        names.insert(name.toStdString());
    return names;
}

// The last segments of all image URLs in the example cards.
std::set<std::string> namesInCards()
{
    static const QRegularExpression picture(
        QStringLiteral(R"re("https?://[^"]*/([^"/]+\.(?:png|jpg|gif))")re"));
    std::set<std::string> names;
    const QDir folder(QStringLiteral(PLIX_CARDS));
    for (const QString& name : folder.entryList({QStringLiteral("*.json")})) {
        QFile card(folder.filePath(name));
        EXPECT_TRUE(card.open(QIODevice::ReadOnly));
        auto matches = picture.globalMatch(QString::fromUtf8(card.readAll()));
        while (matches.hasNext())
            names.insert(matches.next().captured(1).toStdString());
    }
    return names;
}

TEST(ExampleImages, AreThoseThatTheCardsName)
{
    EXPECT_EQ(files(), namesInCards());
}

TEST(ExampleImages, CanBeRead)
{
    for (const std::string& name : files()) {
        const QString path = QStringLiteral(PLIX_IMAGES "/%1").arg(QString::fromStdString(name));
        EXPECT_FALSE(QImageReader(path).read().isNull()) << name;
    }
}

} // namespace
} // namespace plix::test
