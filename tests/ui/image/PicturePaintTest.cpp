// The pixels of images and icons.
#include "support/Picture.h"
#include "support/RowName.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"
#include "ui/image/PlixPicturePainter.h"
#include "ui/image/PlixPictureUI.h"

#include <QCoreApplication>
#include <QPainter>

#include <ostream>

namespace plix::test {
namespace {

const QColor kBackground(0xF1, 0xF3, 0xF7);

// Red on the left and at the top, green in the middle, blue on the right and below.
QImage threeParts(const QSize& size)
{
    QImage image = filled(size, Qt::green);
    const bool isWide = size.width() > size.height();
    QPainter painter(&image);
    const QSize part =
        isWide ? QSize(size.width() / 4, size.height()) : QSize(size.width(), size.height() / 4);
    painter.fillRect(QRect(QPoint(), part), Qt::red);
    painter.fillRect(
        QRect(QPoint(size.width() - part.width(), size.height() - part.height()), part), Qt::blue);
    return image;
}

// ----- Fit and cover

struct FitRow {
    const char* name;
    QSize picture;
    const char* ratio; // of the item, which is 200 wide
    const char* direction;
    const char* properties;
    QRect shown; // of the picture

    friend std::ostream& operator<<(std::ostream& out, const FitRow& row)
    {
        return out << row.name;
    }
};

class ImageFit : public PlixTest, public testing::WithParamInterface<FitRow> { };

TEST_P(ImageFit, ShowsTheWholePictureInItsPosition)
{
    const PictureFolder folder;
    const std::string path =
        folder.write("a.png", pictureBytes(filled(GetParam().picture, Qt::red)));
    const PictureCard card(image(path,
                                 std::string(R"("size": "4xl", "aspectRatio": ")")
                                     + GetParam().ratio + "\"," + GetParam().properties),
                           std::string(R"("direction": ")") + GetParam().direction + "\",");
    const QImage painted = card.paint();
    const QRect shown = GetParam().shown.translated(card.item().pos().toPoint());
    EXPECT_EQ(areaOf(painted, Qt::red), shown);
}

INSTANTIATE_TEST_SUITE_P(
    Places, ImageFit,
    testing::Values(
        FitRow {"Exact", {200, 100}, "2:1", "ltr", "", {0, 0, 200, 100}},
        FitRow {"Smaller", {20, 10}, "2:1", "ltr", "", {0, 0, 200, 100}},
        FitRow {"Larger", {400, 200}, "2:1", "ltr", "", {0, 0, 200, 100}},
        FitRow {"NarrowCentre", {50, 50}, "2:1", "ltr", "", {50, 0, 100, 100}},
        FitRow {"NarrowStart", {50, 50}, "2:1", "ltr", R"("align": "start",)", {0, 0, 100, 100}},
        FitRow {"NarrowEnd", {50, 50}, "2:1", "ltr", R"("align": "end",)", {100, 0, 100, 100}},
        FitRow {"NarrowMiddle", {50, 50}, "2:1", "ltr", R"("align": "center",)", {50, 0, 100, 100}},
        FitRow {"NarrowOther", {50, 50}, "2:1", "ltr", R"("align": "left",)", {50, 0, 100, 100}},
        FitRow {"GravityWhenNarrow",
                {50, 50},
                "2:1",
                "ltr",
                R"("gravity": "bottom",)",
                {50, 0, 100, 100}},
        FitRow {"FlatCentre", {40, 20}, "1:1", "ltr", "", {0, 50, 200, 100}},
        FitRow {"FlatTop", {40, 20}, "1:1", "ltr", R"("gravity": "top",)", {0, 0, 200, 100}},
        FitRow {
            "FlatBottom", {40, 20}, "1:1", "ltr", R"("gravity": "bottom",)", {0, 100, 200, 100}},
        FitRow {"FlatMiddle", {40, 20}, "1:1", "ltr", R"("gravity": "center",)", {0, 50, 200, 100}},
        FitRow {"FlatOther", {40, 20}, "1:1", "ltr", R"("gravity": "up",)", {0, 50, 200, 100}},
        FitRow {"Both",
                {40, 20},
                "1:1",
                "ltr",
                R"("align": "end", "gravity": "top",)",
                {0, 0, 200, 100}},
        FitRow {
            "MirroredStart", {50, 50}, "2:1", "rtl", R"("align": "start",)", {100, 0, 100, 100}},
        FitRow {"MirroredEnd", {50, 50}, "2:1", "rtl", R"("align": "end",)", {0, 0, 100, 100}},
        FitRow {"MirroredCentre", {50, 50}, "2:1", "rtl", "", {50, 0, 100, 100}},
        FitRow {"SaysFit", {50, 50}, "2:1", "ltr", R"("aspectMode": "fit",)", {50, 0, 100, 100}},
        FitRow {"UnknownModeIsFit",
                {50, 50},
                "2:1",
                "ltr",
                R"("aspectMode": "Cover",)",
                {50, 0, 100, 100}}),
    RowName());

using PicturePaint = PlixTest;

TEST_F(PicturePaint, CoversTheItemWithTheMiddleOfAWidePicture)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(threeParts({400, 100})));
    const PictureCard card(image(path, R"("aspectMode": "cover",)"));
    const QImage painted = card.paint();
    // The middle 100 of the 400 pixels are shown, so no red or blue.
    EXPECT_EQ(areaOf(painted, Qt::green), QRect(0, 0, 100, 100));
    EXPECT_TRUE(areaOf(painted, Qt::red).isEmpty());
    EXPECT_TRUE(areaOf(painted, Qt::blue).isEmpty());
}

TEST_F(PicturePaint, CoversTheItemWithTheMiddleOfAHighPicture)
{
    const PictureFolder folder;
    // 100 x 200 in 100 x 160: each end of fifty pixels loses twenty.
    const std::string path = folder.write("a.png", pictureBytes(threeParts({100, 200})));
    const PictureCard card(
        image(path, R"("aspectMode": "cover", "aspectRatio": "100:160", "align": "end",)"));
    const QPoint item = card.item().pos().toPoint();
    const QImage painted = card.paint();
    EXPECT_EQ(areaOf(painted, Qt::red).translated(-item), QRect(0, 0, 100, 30));
    EXPECT_EQ(areaOf(painted, Qt::green).translated(-item), QRect(0, 30, 100, 100));
    EXPECT_EQ(areaOf(painted, Qt::blue).translated(-item), QRect(0, 130, 100, 30));
}

TEST_F(PicturePaint, FitsAnIconAsAnImage)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({40, 20}, Qt::red)));
    const PictureCard card(box("horizontal", icon(path, R"("size": "4xl", "flex": 0,)")));
    EXPECT_EQ(areaOf(card.paint(), Qt::red), QRect(0, 12, 48, 24));
}

TEST_F(PicturePaint, CentresAFixedWidthInAWiderItem)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({40, 40}, Qt::red)));
    // The row makes the item 200 wide, but the image is drawn 80 wide.
    const PictureCard card(box("horizontal",
                               image(path, R"("size": "sm", "flex": 1, "aspectMode": "cover",)"),
                               R"("width": "200px", "height": "80px",)"));
    const QGraphicsItem& item = *card.item().childItems().value(0);
    ASSERT_EQ(item.boundingRect().width(), 200);
    const QRect red = areaOf(card.paint(), Qt::red);
    EXPECT_EQ(red.left(), 60);
    EXPECT_EQ(red.width(), 80);
}

TEST_F(PicturePaint, FillsTheItemBehindThePicture)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({10, 20}, Qt::red)));
    const PictureCard card(image(path, R"("backgroundColor": "#0000FF",)"));
    const QImage painted = card.paint();
    EXPECT_EQ(areaOf(painted, Qt::red), QRect(25, 0, 50, 100));
    EXPECT_EQ(areaOf(painted, Qt::blue), QRect(0, 0, 100, 100));
    EXPECT_EQ(painted.pixelColor(100, 50), kBackground);
}

TEST_F(PicturePaint, ReadsTheAlphaOfABackgroundFirst)
{
    const PictureCard card(component("image", R"("backgroundColor": "#00FF0000",)"));
    EXPECT_EQ(card.at(50, 50), kBackground);
}

TEST_F(PicturePaint, ShowsTheBackgroundThroughATransparentPicture)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({10, 10}, Qt::transparent)));
    EXPECT_EQ(PictureCard(image(path)).at(50, 50), kBackground);
    EXPECT_EQ(PictureCard(image(path, R"("backgroundColor": "#0000FF",)")).at(50, 50),
              QColor(Qt::blue));
}

TEST_F(PicturePaint, ShowsOnlyTheBackgroundWithoutAPicture)
{
    const PictureCard card(component("image", R"("backgroundColor": "#0000FF",)"));
    EXPECT_EQ(areaOf(card.paint(), Qt::blue), QRect(0, 0, 100, 100));
}

TEST_F(PicturePaint, HasTheCornersOfTheBoxAroundIt)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({10, 10}, Qt::red)));
    for (const std::string& properties :
         {image(path), component("image", R"("backgroundColor": "#FF0000",)")}) {
        const PictureCard card(box(
            "vertical", box("vertical", properties, R"("width": "100px", "cornerRadius": "20px",)"),
            R"("paddingAll": "20px",)"));
        const QImage painted = card.paint().copy(20, 20, 100, 100);
        for (const QPoint corner : {QPoint(2, 2), QPoint(97, 2), QPoint(2, 97), QPoint(97, 97)})
            EXPECT_EQ(painted.pixelColor(corner), kBackground);
        for (const QPoint inside : {QPoint(20, 0), QPoint(0, 50), QPoint(99, 50), QPoint(50, 99)})
            EXPECT_EQ(painted.pixelColor(inside), QColor(Qt::red));
    }
}

TEST_F(PicturePaint, RoundsTheItemAndNotTheFittingPicture)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({10, 20}, Qt::red)));
    const PictureCard card(
        box("vertical", image(path), R"("width": "100px", "cornerRadius": "20px",)"));
    const QImage painted = card.paint();
    EXPECT_EQ(areaOf(painted, Qt::red), QRect(25, 0, 50, 100));
}

TEST_F(PicturePaint, RestoresThePainter)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({10, 10}, Qt::red)));
    const PictureCard card(box("vertical", image(path, R"("backgroundColor": "#0000FF",)"),
                               R"("cornerRadius": "20px",)"));
    QImage canvas(300, 300, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&canvas);
    const QPen pen(Qt::green, 7);
    painter.setPen(pen);
    card.item().childItems().value(0)->paint(&painter, nullptr, nullptr);
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), QBrush());
    EXPECT_EQ(painter.renderHints(), QPainter::RenderHints(QPainter::TextAntialiasing));
    EXPECT_FALSE(painter.hasClipping());
}

// ----- Device pixels

struct DeviceRow {
    const char* name;
    float dpi;

    friend std::ostream& operator<<(std::ostream& out, const DeviceRow& row)
    {
        return out << row.name;
    }
};

class PictureOnDevice : public PlixTest, public testing::WithParamInterface<DeviceRow> { };

// A picture of as many pixels as the item has on the device is not changed, wherever the
// item is.
TEST_P(PictureOnDevice, IsShownPixelForPixel)
{
    const double dpi = GetParam().dpi;
    const PictureFolder folder;
    const QImage picture = noise((QSizeF(100, 100) * dpi).toSize());
    const std::string path = folder.write("a.png", pictureBytes(picture));
    for (const int margin : {20, 21, 23, 33}) {
        const PictureCard card(box("vertical", image(path),
                                   std::string(R"("paddingTop": ")") + std::to_string(margin)
                                       + R"(px", "paddingStart": ")" + std::to_string(margin)
                                       + "px\","),
                               {}, GetParam().dpi);
        const QPoint corner(qRound(margin * dpi), qRound(margin * dpi));
        const QImage shown = card.paint(dpi).copy(QRect(corner, picture.size()));
        EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32), picture) << margin;
    }
}

TEST_P(PictureOnDevice, IsShownPixelForPixelInRoundedBoxes)
{
    const double dpi = GetParam().dpi;
    const PictureFolder folder;
    const QImage picture = noise((QSizeF(100, 100) * dpi).toSize());
    const std::string path = folder.write("a.png", pictureBytes(picture));
    const PictureCard card(
        box("vertical", image(path),
            R"("cornerRadius": "10px", "paddingTop": "23px", "paddingStart": "33px",)"),
        {}, GetParam().dpi);
    const QRect inside = QRect(QPoint(), picture.size()).adjusted(20, 20, -20, -20);
    const QPoint corner(qRound(33 * dpi), qRound(23 * dpi));
    const QImage shown = card.paint(dpi).copy(inside.translated(corner));
    EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32), picture.copy(inside));
}

INSTANTIATE_TEST_SUITE_P(Factors, PictureOnDevice,
                         testing::Values(DeviceRow {"One", 1}, DeviceRow {"OneAndAQuarter", 1.25F},
                                         DeviceRow {"OneAndAHalf", 1.5F}, DeviceRow {"Two", 2}),
                         RowName());

TEST_F(PicturePaint, FillsTheItemInAViewThatIsScaledOtherwise)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard card(image(path));
    for (const double scale : {0.5, 1.25, 2.0, 3.0}) {
        const QRect red = areaOf(card.paint(scale), Qt::red);
        EXPECT_NEAR(red.width(), 100 * scale, 2) << scale;
        EXPECT_NEAR(red.height(), 100 * scale, 2) << scale;
    }
}

TEST_F(PicturePaint, UsesAFactorOfOneForInvalidFactors)
{
    const PictureFolder folder;
    const QImage picture = noise({100, 100});
    const std::string path = folder.write("a.png", pictureBytes(picture));
    for (const float dpi : {0.0F, -2.0F, std::numeric_limits<float>::quiet_NaN(),
                            std::numeric_limits<float>::infinity()}) {
        const PictureCard card(box("vertical", image(path), R"("paddingAll": "20px",)"), {}, dpi);
        const QImage shown = card.paint().copy(20, 20, 100, 100);
        EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32), picture) << dpi;
    }
}

TEST_F(PicturePaint, BoundsTheSizeOfAScaledImage)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    for (const float dpi : {1000.0F, 1e6F}) {
        const PictureCard card(image(path), {}, dpi);
        EXPECT_EQ(areaOf(card.paint(), Qt::red), QRect(0, 0, 100, 100)) << dpi;
    }
}

TEST_F(PicturePaint, SurvivesAnyFactor)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    for (const float dpi : {1e-30F, 1e30F, std::numeric_limits<float>::max()}) {
        const PictureCard card(image(path, R"("backgroundColor": "#0000FF",)"), {}, dpi);
        EXPECT_NE(card.at(50, 50), kBackground) << dpi;
    }
}

struct TargetRow {
    const char* name;
    QSizeF area;
    double dpi;
    QSize pixels;

    friend std::ostream& operator<<(std::ostream& out, const TargetRow& row)
    {
        return out << row.name;
    }
};

class PictureTarget : public testing::TestWithParam<TargetRow> { };

TEST_P(PictureTarget, HasTheWholePixelsThatFitIntoTheArea)
{
    const PlixPictureTarget target({QPointF(3, 4), GetParam().area}, GetParam().dpi);
    EXPECT_EQ(target.Size(), GetParam().pixels);
    EXPECT_EQ(target.Area(), QRectF(QPointF(3, 4), QSizeF(GetParam().pixels) / GetParam().dpi));
}

INSTANTIATE_TEST_SUITE_P(Areas, PictureTarget,
                         testing::Values(TargetRow {"Whole", {40, 30}, 1, {40, 30}},
                                         TargetRow {"AlmostOneMore", {40.9, 30.75}, 1, {40, 30}},
                                         TargetRow {"Halves", {33, 21}, 1.5, {49, 31}},
                                         TargetRow {"Quarters", {33, 23}, 1.25, {41, 28}},
                                         TargetRow {"LessThanAPixel", {0.9, 30}, 1, {0, 30}}),
                         RowName());

// ----- The cache

TEST_F(PicturePaint, ReadsTheFileOnceForEachSize)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard card(image(path));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red));
    folder.write("a.png", pictureBytes(filled({60, 60}, Qt::blue)));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red)) << "the scaled image is painted again";
    Plix_SetDpi(card.card().controller(), 2);
    EXPECT_EQ(card.at(50, 50), QColor(Qt::blue)) << "another size is read again";
}

TEST_F(PicturePaint, ReadsNothingBeforeItIsPainted)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard card(image(path));
    folder.write("a.png", pictureBytes(filled({50, 50}, Qt::blue)));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::blue));
}

TEST_F(PicturePaint, PlacesAReplacedPictureByItsOwnProportions)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard card(image(path));
    card.paint();
    folder.write("a.png", pictureBytes(filled({50, 100}, Qt::blue)));
    Plix_SetDpi(card.card().controller(), 2);
    EXPECT_EQ(areaOf(card.paint(), Qt::blue), QRect(25, 0, 50, 100));
}

TEST_F(PicturePaint, SharesAFileBetweenItems)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard first(image(path));
    first.paint();
    const PictureCard second(image(path) + "," + image(path, R"("size": "xs",)"));
    QFile::remove(QString::fromStdString(path));
    EXPECT_EQ(second.at(50, 50), QColor(Qt::red)) << "this size is cached";
    EXPECT_NE(second.at(30, 130), QColor(Qt::red)) << "this size is not";
}

// Paints one item of a card only.
QColor middleOf(QGraphicsItem& item)
{
    QImage image(300, 300, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    item.paint(&painter, nullptr, nullptr);
    painter.end();
    return image.pixelColor(item.boundingRect().center().toPoint());
}

TEST_F(PicturePaint, DecodesAFileOnceForAllSizes)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard card(image(path) + "," + image(path, R"("size": "xs",)"));
    EXPECT_EQ(middleOf(card.item(0)), QColor(Qt::red));
    QFile::remove(QString::fromStdString(path));
    EXPECT_EQ(middleOf(card.item(1)), QColor(Qt::red));
}

TEST_F(PicturePaint, KeepsNoDecodedFileOnceControlReturnsToQt)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard card(image(path) + "," + image(path, R"("size": "xs",)"));
    EXPECT_EQ(middleOf(card.item(0)), QColor(Qt::red));
    QCoreApplication::sendPostedEvents();
    QFile::remove(QString::fromStdString(path));
    EXPECT_EQ(middleOf(card.item(0)), QColor(Qt::red)) << "this size is cached";
    EXPECT_NE(middleOf(card.item(1)), QColor(Qt::red)) << "this size is not";
}

TEST_F(PicturePaint, KeepsNoDecodedFileThatArrivesAgain)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    const PictureCard card(image(path) + "," + image(path, R"("size": "xs",)"));
    EXPECT_EQ(middleOf(card.item(0)), QColor(Qt::red));
    folder.write("a.png", pictureBytes(filled({60, 60}, Qt::blue)));
    auto& other = dynamic_cast<PlixPictureUI&>(card.item(1));
    other.FileArrived(path);
    EXPECT_EQ(middleOf(other), QColor(Qt::blue));
}

TEST_F(PicturePaint, ForgetsAFileWithoutItems)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({50, 50}, Qt::red)));
    {
        const PictureCard card(image(path));
        card.paint();
    }
    const PictureCard card(image(path));
    QFile::remove(QString::fromStdString(path));
    EXPECT_EQ(card.at(50, 50), kBackground);
}

} // namespace
} // namespace plix::test
