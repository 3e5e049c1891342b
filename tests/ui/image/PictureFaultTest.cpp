// Files that a host writes, cuts off, replaces or deletes while a card shows them.
#include "support/RowName.h"
#include "ui/image/AnimationFrames.h"
#include "ui/image/ChatView.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"

#include <QFile>
#include <QImageReader>

#include <ostream>

namespace plix::test {
namespace {

const std::string kYellow = R"("backgroundColor": "#FFFF00",)";

void arriveAgain(const PictureCard& card, const std::string& path)
{
    QMetaObject::invokeMethod(card.item().toGraphicsObject(), "OnFileArrived",
                              Q_ARG(QString, QString::fromStdString(path)));
}

// A blue square. Qt can read WebP with a plugin only, and not write it.
QByteArray webP()
{
    return QByteArray::fromHex("5249464618000000574542505650384c"
                               "0c0000002f07c00100284001fadfff00");
}

struct FormatRow {
    const char* name;
    QByteArray bytes;

    friend std::ostream& operator<<(std::ostream& out, const FormatRow& row)
    {
        return out << row.name;
    }
};

bool isReadable(const char* format)
{
    return QImageReader::supportedImageFormats().contains(QByteArray(format).toLower());
}

class CutPicture : public PlixTest, public testing::WithParamInterface<FormatRow> { };

TEST_P(CutPicture, OfAnyLengthKeepsItsPlaceUntilItIsComplete)
{
    const QtMessagesIgnored messages;
    const PictureFolder folder;
    const QByteArray& bytes = GetParam().bytes;
    const std::string complete = image(folder.write("complete", bytes), kYellow);
    const PictureCard expected(complete);
    const QImage picture = expected.paint();
    ASSERT_EQ(picture.pixelColor(50, 50) != QColor(Qt::yellow), isReadable(GetParam().name));
    const std::string path = folder.path("cut");
    for (int length = 0; length < bytes.size(); ++length) {
        folder.write("cut", bytes.left(length));
        const PictureCard card(image(path, kYellow));
        ASSERT_EQ(card.paint().size(), picture.size());
        ASSERT_EQ(card.item().sceneBoundingRect(), expected.item().sceneBoundingRect());
        folder.write("cut", bytes);
        arriveAgain(card, path);
        ASSERT_EQ(card.paint(), picture) << "after it was cut to " << length << " bytes";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Formats, CutPicture,
    testing::Values(FormatRow {"Png", pictureBytes(noise({8, 8}))},
                    FormatRow {"Jpeg", pictureBytes(filled({8, 8}, Qt::blue), "JPG")},
                    FormatRow {"Gif", gifAnimation({8, 8}, {1, 2})}, FormatRow {"WebP", webP()},
                    FormatRow {"Bmp", pictureBytes(filled({8, 8}, Qt::blue), "BMP")}),
    RowName());

class PictureFault : public PlixTest { };

TEST_F(PictureFault, OfAFileThatGrowsWhileItPlaysEndsWhenItArrives)
{
    const QtMessagesIgnored messages;
    const PictureFolder folder;
    const QByteArray bytes = gifAnimation({8, 8}, {1, 2, 3});
    const std::string path = folder.write("a.gif", {});
    const PictureCard card(image(path, kYellow));
    ChatView view(*card.card().root());
    AnimationFrames frames(path);
    for (int length = 0; length <= bytes.size(); ++length) {
        folder.write("a.gif", bytes.left(length));
        if (length % 2 == 0)
            arriveAgain(card, path);
        card.item().update();
        frames.end(1);
    }
    arriveAgain(card, path);
    EXPECT_EQ(view.at(50, 50), QColor(Qt::red));
    frames.end(1);
    EXPECT_EQ(view.at(50, 50), QColor(Qt::green));
    frames.end(1);
    EXPECT_EQ(view.at(50, 50), QColor(Qt::blue));
}

TEST_F(PictureFault, OfAFileThatIsDeletedShowsInTheNextSizeOnly)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({9, 9}, Qt::red)));
    const PictureCard card(image(path, kYellow));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red));
    ASSERT_TRUE(QFile::remove(QString::fromStdString(path)));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red));
    Plix_SetDpi(card.card().controller(), 2);
    EXPECT_EQ(card.paint(2).pixelColor(100, 100), QColor(Qt::yellow));
}

TEST_F(PictureFault, OfAFileThatBecomesAnotherFormatIsOver)
{
    const PictureFolder folder;
    const std::string path = folder.write("a", gifAnimation({8, 8}, {1, 2}));
    const PictureCard card(image(path, kYellow));
    ChatView view(*card.card().root());
    AnimationFrames frames(path);
    for (const QByteArray& bytes : {pictureBytes(filled({9, 9}, Qt::blue)), QByteArray("text"),
                                    gifAnimation({8, 8}, {1, 2})}) {
        folder.write("a", bytes);
        arriveAgain(card, path);
        frames.end(1);
    }
    EXPECT_EQ(view.at(50, 50), QColor(Qt::green)) << "the last file plays";
}

} // namespace
} // namespace plix::test
