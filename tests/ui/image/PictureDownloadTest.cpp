// How the files of images get from the host to the items.
#include "support/LiveView.h"
#include "support/RowName.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"
#include "ui/image/PlixPictureUI.h"
#include "ui/image/PlixWebImage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <ostream>
#include <stdexcept>

namespace plix::test {
namespace {

QObject* objectOf(QGraphicsItem& item)
{
    return item.toGraphicsObject();
}

void fileArrives(QGraphicsItem& item, const std::string& path)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(objectOf(item), "OnFileArrived",
                                          Q_ARG(QString, QString::fromStdString(path))));
}

QByteArray redPicture()
{
    return pictureBytes(filled({10, 10}, Qt::red));
}

QByteArray bluePicture()
{
    return pictureBytes(filled({10, 10}, Qt::blue));
}

using Urls = std::vector<std::string>;

using PictureDownload = PlixTest;

TEST_F(PictureDownload, IsRequestedOncePerItem)
{
    const PictureCard card(image("a") + "," + image("b") + ","
                           + box("horizontal", icon("c") + "," + icon("a")));
    EXPECT_EQ(card.downloads(), (Urls {"a", "b", "c", "a"}));
    card.paint();
    card.paint();
    EXPECT_EQ(card.downloads().size(), 4U);
}

TEST_F(PictureDownload, IsShownInAnOpenViewWhenItArrivesLate)
{
    const PictureFolder folder;
    const std::string red = folder.write("a.png", redPicture());
    const std::string blue = folder.write("b.png", bluePicture());
    const TestCard card(bubbleWithBody(box("vertical", image("a"))));
    QGraphicsItem& item = *card.item({0, 0});
    LiveView view(*card.root());
    const QPoint middle = view.pixelsOf(item.sceneBoundingRect()).center().toPoint();
    const auto shownAfter = [&](const std::string& path) {
        fileArrives(item, path);
        view.paintWhatChanged();
        return view.shown().pixelColor(middle);
    };
    const QColor background = view.shown().pixelColor(middle);
    EXPECT_EQ(shownAfter(red), QColor(Qt::red));
    EXPECT_EQ(shownAfter(blue), QColor(Qt::blue));
    EXPECT_EQ(shownAfter({}), background);
}

TEST_F(PictureDownload, IsThePropertyPictureFile)
{
    const PictureCard card(image("/there/a.png"));
    EXPECT_EQ(objectOf(card.item())->property("pictureFile").toString(),
              QStringLiteral("/there/a.png"));
    const TestCard unasked(bubbleWithBody(box("vertical", image("a"))));
    EXPECT_EQ(objectOf(*unasked.item({0, 0}))->property("pictureFile").toString(), QString());
}

struct LanguageRow {
    const char* name;
    const char* language;
    const char* urls;
    const char* downloaded;

    friend std::ostream& operator<<(std::ostream& out, const LanguageRow& row)
    {
        return out << row.name;
    }
};

class PictureLanguage : public PlixTest, public testing::WithParamInterface<LanguageRow> { };

TEST_P(PictureLanguage, ChoosesTheUrl)
{
    Plix_SetCurrentLanguage(GetParam().language);
    const std::string urls = std::string("\"i18nUrls\": {") + GetParam().urls + "},";
    const PictureCard card(image("plain", urls) + "," + box("horizontal", icon("plain", urls)));
    EXPECT_EQ(card.downloads(), (Urls {GetParam().downloaded, GetParam().downloaded}));
}

INSTANTIATE_TEST_SUITE_P(
    Languages, PictureLanguage,
    testing::Values(LanguageRow {"Current", "ko", R"("ko": "k", "default": "d")", "k"},
                    LanguageRow {"AnyName", "tlh", R"("tlh": "t", "default": "d")", "t"},
                    LanguageRow {"Default", "ja", R"("ko": "k", "default": "d")", "d"},
                    LanguageRow {"PlainWithoutDefault", "ja", R"("ko": "k")", "plain"},
                    LanguageRow {"PlainWithNothing", "ja", "", "plain"}),
    RowName());

TEST_F(PictureDownload, IsShownByTheNextPaintWhenTheFileIsWrittenLater)
{
    const PictureFolder folder;
    const PictureCard card(image(folder.path("a.png"), R"("backgroundColor": "#FFFF00",)"));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::yellow));
    folder.write("a.png", redPicture());
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red));
}

TEST_F(PictureDownload, IsShownByTheNextPaintWhenTheFileIsRepairedLater)
{
    const PictureFolder folder;
    const PictureCard card(image(folder.write("a.png", "<html>not there yet</html>"),
                                 R"("backgroundColor": "#FFFF00",)"));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::yellow));
    folder.write("a.png", redPicture());
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red));
}

TEST_F(PictureDownload, IsReplacedWhenTheHostReportsAFile)
{
    const PictureFolder folder;
    const TestCard card(R"({"type": "bubble", "hero": )" + image("a") + "}");
    fileArrives(*card.item({0}), folder.write("a.png", redPicture()));
    EXPECT_EQ(objectOf(*card.item({0}))->property("pictureFile").toString(),
              QString::fromStdString(folder.path("a.png")));
    fileArrives(*card.item({0}), {});
    EXPECT_EQ(objectOf(*card.item({0}))->property("pictureFile").toString(), QString());
}

TEST_F(PictureDownload, ReplacesTheImageOfOneItem)
{
    const PictureFolder folder;
    const PictureCard card(image(folder.write("a.png", redPicture())) + ","
                           + image(folder.path("a.png")));
    card.paint();
    fileArrives(card.item(), folder.write("b.png", bluePicture()));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::blue));
    EXPECT_EQ(card.at(50, 150), QColor(Qt::red)) << "the other item keeps its file";
}

TEST_F(PictureDownload, IsReadAgainWhenTheSameFileArrivesAgain)
{
    const PictureFolder folder;
    const PictureCard card(image(folder.write("a.png", redPicture())) + ","
                           + image(folder.path("a.png")));
    card.paint();
    folder.write("a.png", pictureBytes(filled({11, 11}, Qt::blue)));
    ASSERT_EQ(card.at(50, 50), QColor(Qt::red)) << "no new file was reported";
    fileArrives(card.item(), folder.path("a.png"));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::blue));
    EXPECT_EQ(card.at(50, 150), QColor(Qt::blue)) << "all items of the file";
}

TEST_F(PictureDownload, RemovesTheImageWhenTheNewFileIsMissing)
{
    const PictureFolder folder;
    const PictureCard card(
        image(folder.write("a.png", redPicture()), R"("backgroundColor": "#FFFF00",)"));
    card.paint();
    fileArrives(card.item(), folder.path("b.png"));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::yellow));
}

TEST_F(PictureDownload, LosesOneImageWhenTheHostThrows)
{
    const auto fail = [](PlixDataController*, const std::string&, void*) -> std::string {
        throw std::runtime_error("no network");
    };
    const TestCard card(bubbleWithBody(box("vertical", image("a") + "," + text("b"))),
                        [&](PlixDataController* controller) {
                            Plix_SetDownloadCallBack(controller, fail, nullptr);
                        });
    EXPECT_NE(card.item({0, 1}), nullptr);
    EXPECT_NE(takeLogLine().find("no network"), std::string::npos);
}

TEST_F(PictureDownload, MayHaveAFileNameOutsideOfAscii)
{
    const PictureFolder folder;
    const PictureCard card(image(folder.write("Bühne 写真.png", redPicture())));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red));
}

// ----- The rule for file names

struct NameRow {
    const char* name;
    const char* url;
    const char* fileName;

    friend std::ostream& operator<<(std::ostream& out, const NameRow& row)
    {
        return out << row.name;
    }
};

class WebImageName : public PlixTest, public testing::WithParamInterface<NameRow> { };

TEST_P(WebImageName, IsTheLastSegment)
{
    const PlixWebImage image;
    EXPECT_EQ(image.TempFileName(QString::fromLatin1(GetParam().url)),
              QCoreApplication::applicationDirPath() + QStringLiteral("/bot_plix_temp/")
                  + QString::fromLatin1(GetParam().fileName));
    EXPECT_FALSE(
        QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/bot_plix_temp")).exists());
    EXPECT_EQ(image.parent(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Urls, WebImageName,
    testing::Values(NameRow {"File", "https://example.com/a/pic.png", "pic.png"},
                    NameRow {"Query", "https://example.com/pic.png?x=1#f", "pic.png?x=1#f"},
                    NameRow {"SlashInTheQuery", "https://example.com/pic?u=a/b", "b"},
                    NameRow {"Folder", "https://example.com/a/", ""},
                    NameRow {"NoSlash", "pic.png", "pic.png"}, NameRow {"Empty", "", ""},
                    NameRow {"Dots", "https://example.com/..", ".."}),
    RowName());

} // namespace
} // namespace plix::test
