// The pixels of boxes and separators.
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionGraphicsItem>

#include <ostream>

namespace plix::test {
namespace {

const QColor kBackground(0xF1, 0xF3, 0xF7);
const QColor kRed(Qt::red);
const QColor kBlue(Qt::blue);

// A card of one box of 100 x 60 at (0, 0), in a zone without insets.
class PaintedBox {
public:
    explicit PaintedBox(const std::string& properties, double height = 60)
        : card_(R"({"type": "bubble", "hero": )"
                + box("vertical",
                      box("vertical", "",
                          R"("width": "100px", "height": ")" + std::to_string(int(height)) + "px\","
                              + properties)
                          + "," + box("vertical", "", R"("height": "100px",)"),
                      R"("paddingAll": "20px",)")
                + "}")
        , picture_(*card_.root())
    {
    }

    // In the box's coordinates.
    QColor at(double x, double y) const { return picture_.at({x + 20, y + 20}); }

private:
    TestCard card_;
    Picture picture_;
};

using BoxPaint = PlixTest;

TEST_F(BoxPaint, ShowsNothingWithoutABackgroundAndABorder)
{
    const PaintedBox box("");
    for (const double x : {0.0, 50.0, 99.0})
        EXPECT_EQ(box.at(x, 30), kBackground);
}

TEST_F(BoxPaint, FillsTheBox)
{
    const PaintedBox box(R"("backgroundColor": "#FF0000",)");
    for (const QPointF inside :
         {QPointF(0, 0), QPointF(99, 0), QPointF(0, 59), QPointF(99, 59), QPointF(50, 30)})
        EXPECT_EQ(box.at(inside.x(), inside.y()), kRed);
    for (const QPointF outside :
         {QPointF(-1, 30), QPointF(100, 30), QPointF(50, -1), QPointF(50, 60)})
        EXPECT_EQ(box.at(outside.x(), outside.y()), kBackground);
}

TEST_F(BoxPaint, ReadsTheAlphaOfABackgroundLast)
{
    const PaintedBox box(R"("backgroundColor": "#FF000080",)");
    const QColor mixed = box.at(50, 30);
    EXPECT_NEAR(mixed.red(), (0xFF + 0xF1) / 2, 2);
    EXPECT_NEAR(mixed.green(), 0xF3 / 2, 2);
    EXPECT_NEAR(mixed.blue(), 0xF7 / 2, 2);
}

struct MixRow {
    const char* name;
    std::string item;
    QPoint at;
    QColor color;

    friend std::ostream& operator<<(std::ostream& out, const MixRow& row)
    {
        return out << row.name;
    }
};

class MixedColor : public PlixTest, public testing::WithParamInterface<MixRow> { };

int mixedWithWhite(int part, int alpha)
{
    return (part * alpha + 255 * (255 - alpha)) / 255;
}

// In the colours of boxes and texts alpha is last, in all others first.
TEST_P(MixedColor, LetsWhiteShowThrough)
{
    const TestCard card(R"({"type": "bubble", "hero": )"
                        + box("vertical", GetParam().item, R"("backgroundColor": "#FFFFFF",)")
                        + "}");
    const QColor shown = Picture(*card.root()).at(GetParam().at);
    const QColor& color = GetParam().color;
    EXPECT_NEAR(shown.red(), mixedWithWhite(color.red(), color.alpha()), 1);
    EXPECT_NEAR(shown.green(), mixedWithWhite(color.green(), color.alpha()), 1);
    EXPECT_NEAR(shown.blue(), mixedWithWhite(color.blue(), color.alpha()), 1);
}

const std::string kBlock = R"("width": "100px", "height": "60px",)";

INSTANTIATE_TEST_SUITE_P(
    Items, MixedColor,
    testing::Values(
        MixRow {"Background",
                box("vertical", "", kBlock + R"("backgroundColor": "#11223344",)"),
                {50, 30},
                QColor(0x11, 0x22, 0x33, 0x44)},
        MixRow {"RoundBackground",
                box("vertical", "",
                    kBlock + R"("backgroundColor": "#11223344", "cornerRadius": "9px",)"),
                {50, 30},
                QColor(0x11, 0x22, 0x33, 0x44)},
        MixRow {
            "Border",
            box("vertical", "", kBlock + R"("borderColor": "#99223344", "borderWidth": "9px",)"),
            {2, 30},
            QColor(0x99, 0x22, 0x33, 0x44)},
        MixRow {
            "RoundBorder",
            box("vertical", "",
                kBlock
                    + R"("borderColor": "#99223344", "borderWidth": "9px", "cornerRadius": "9px",)"),
            {2, 30},
            QColor(0x99, 0x22, 0x33, 0x44)},
        MixRow {"Separator",
                component("separator", R"("color": "#80C02222",)"),
                {50, 0},
                QColor(0xC0, 0x22, 0x22, 0x80)},
        MixRow {
            "DefaultSeparator", component("separator"), {50, 0}, QColor(0x22, 0x22, 0x22, 0x1A)},
        MixRow {"SeparatorOfTheDefaultColor",
                component("separator", R"("color": "#1A222222",)"),
                {50, 0},
                QColor(0x22, 0x22, 0x22, 0x1A)},
        MixRow {"Picture",
                component("image", R"("backgroundColor": "#44112233",)"),
                {50, 50},
                QColor(0x11, 0x22, 0x33, 0x44)}),
    RowName());

TEST_F(BoxPaint, FillsAnInvalidBackgroundWithBlack)
{
    EXPECT_EQ(PaintedBox(R"("backgroundColor": "dark",)").at(50, 30), QColor(Qt::black));
}

struct CornerRow {
    const char* name;
    const char* radius;
    double height;
    int painted;

    friend std::ostream& operator<<(std::ostream& out, const CornerRow& row)
    {
        return out << row.name;
    }
};

class BoxCorner : public PlixTest, public testing::WithParamInterface<CornerRow> { };

TEST_P(BoxCorner, IsRoundedByTheRadiusButByNoMoreThanHalfTheHeight)
{
    const PaintedBox painted(std::string(R"("backgroundColor": "#FF0000", "cornerRadius": ")")
                                 + GetParam().radius + "\",",
                             GetParam().height);
    // The same drawn by Qt, on the same background.
    QImage expected(100, static_cast<int>(GetParam().height), QImage::Format_ARGB32_Premultiplied);
    expected.fill(kBackground);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addRoundedRect(QRectF(expected.rect()), GetParam().painted, GetParam().painted);
    painter.fillPath(path, kRed);
    painter.end();
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < 30; ++x)
            ASSERT_EQ(painted.at(x, y), expected.pixelColor(x, y)) << x << ", " << y;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, BoxCorner,
    testing::Values(CornerRow {"Pixels", "20px", 60, 20},
                    CornerRow {"HigherThanTheBoxAllows", "20px", 30, 15},
                    CornerRow {"OddHeight", "20px", 31, 15}, CornerRow {"JustFits", "15px", 30, 15},
                    CornerRow {"Word", "xxl", 60, 6}, CornerRow {"Zero", "0", 60, 0},
                    CornerRow {"Negative", "-9px", 60, 0}, CornerRow {"NotGiven", "", 60, 0}),
    RowName());

TEST_F(BoxPaint, PassesTheCornersOfABoxOnToTheBoxesInIt)
{
    const TestCard card(
        R"({"type": "bubble", "hero": )"
        + box("vertical",
              box("vertical",
                  box("vertical", "", R"("height": "60px", "backgroundColor": "#FF0000",)"),
                  R"("cornerRadius": "20px",)"),
              R"("paddingAll": "20px",)")
        + "}");
    const Picture picture(*card.root());
    EXPECT_EQ(picture.at({22, 22}), kBackground);
    EXPECT_EQ(picture.at({50, 50}), kRed);
}

struct BorderRow {
    const char* name;
    const char* width;
    int visible; // the inner half of the pen, which is one pixel wider

    friend std::ostream& operator<<(std::ostream& out, const BorderRow& row)
    {
        return out << row.name;
    }
};

class BoxBorder : public PlixTest, public testing::WithParamInterface<BorderRow> { };

TEST_P(BoxBorder, IsHalfAPenInside)
{
    const PaintedBox box(std::string(R"("borderColor": "#FF0000", "borderWidth": ")")
                         + GetParam().width + "\",");
    EXPECT_EQ(box.at(-1, 30), kBackground) << "the outer half is clipped";
    for (int i = 0; i < GetParam().visible; ++i) {
        EXPECT_EQ(box.at(i, 30), kRed) << i;
        EXPECT_EQ(box.at(99 - i, 30), kRed) << i;
        EXPECT_EQ(box.at(50, i), kRed) << i;
        EXPECT_EQ(box.at(50, 59 - i), kRed) << i;
    }
    EXPECT_EQ(box.at(GetParam().visible + 1, 30), kBackground);
    EXPECT_EQ(box.at(50, 30), kBackground) << "nothing is filled";
}

INSTANTIATE_TEST_SUITE_P(Widths, BoxBorder,
                         testing::Values(BorderRow {"Light", "light", 1},
                                         BorderRow {"Medium", "medium", 2},
                                         BorderRow {"Bold", "bold", 3},
                                         BorderRow {"Pixels", "9px", 5}),
                         RowName());

TEST_F(BoxPaint, DrawsNoBorderWithoutAColorOrAWidth)
{
    for (const char* properties : {R"("borderWidth": "bold",)", R"("borderColor": "#FF0000",)",
                                   R"("borderColor": "#FF0000", "borderWidth": "none",)",
                                   R"("borderColor": "#FF0000", "borderWidth": "-3px",)"})
        EXPECT_EQ(PaintedBox(properties).at(0, 30), kBackground) << properties;
}

TEST_F(BoxPaint, DrawsTheBorderOverTheBackground)
{
    const PaintedBox box(
        R"("borderColor": "#FF0000", "borderWidth": "medium", "backgroundColor": "#0000FF",)");
    EXPECT_EQ(box.at(0, 30), kRed);
    EXPECT_EQ(box.at(1, 30), kRed);
    EXPECT_EQ(box.at(2, 30), kBlue);
    EXPECT_EQ(box.at(50, 30), kBlue);
}

TEST_F(BoxPaint, RestoresThePainter)
{
    const TestCard card(bubbleWithBody(
        box("vertical", "",
            R"("height": "40px", "backgroundColor": "#FF0000", "borderColor": "#0000FF",
               "borderWidth": "light", "cornerRadius": "md",)")));
    QImage image(300, 40, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QPen pen(Qt::green, 7);
    painter.setPen(pen);
    QStyleOptionGraphicsItem option;
    option.exposedRect = QRectF(0, 0, 300, 40);
    for (QGraphicsItem* item : {card.root(), card.item({0})}) {
        item->paint(&painter, &option, nullptr);
        EXPECT_EQ(painter.pen(), pen);
        EXPECT_EQ(painter.brush(), QBrush());
        EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
        EXPECT_FALSE(painter.hasClipping());
    }
}

TEST_F(BoxPaint, AcceptsTheMouseInItsWholeRectangle)
{
    const TestCard card(bubbleWithBody(
        box("vertical", box("vertical", "", R"("height": "40px", "cornerRadius": "8px",)"))));
    QGraphicsScene scene;
    scene.addItem(card.root());
    const QGraphicsItem* inner = card.item({0, 0});
    const QRectF rect = inner->sceneBoundingRect();
    for (const double x : {0.5, rect.width() / 2, rect.width() - 0.5}) {
        for (const double y : {0.5, rect.height() / 2, rect.height() - 0.5})
            EXPECT_TRUE(scene.items(rect.topLeft() + QPointF(x, y)).contains(card.item({0, 0})));
    }
    scene.removeItem(card.root());
}

} // namespace
} // namespace plix::test
