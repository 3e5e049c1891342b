// The sizes and positions of images and icons.
#include "layout/PlixStyleValues.h"
#include "support/RowName.h"
#include "ui/image/PictureCard.h"

#include <QGraphicsWidget>

#include <ostream>

namespace plix::test {
namespace {

QRectF geometry(const QGraphicsItem& item)
{
    return {item.pos(), item.boundingRect().size()};
}

std::string sized(const char* kind, const std::string& size)
{
    return component(kind, R"("flex": 0, "size": ")" + size + "\",");
}

// ----- Sizes

struct SizeRow {
    const char* name;
    const char* word;
    double image;
    double icon;

    friend std::ostream& operator<<(std::ostream& out, const SizeRow& row)
    {
        return out << row.name;
    }
};

class PictureSize : public PlixTest, public testing::WithParamInterface<SizeRow> { };

TEST_P(PictureSize, FollowsItsWord)
{
    const PictureCard card(sized("image", GetParam().word) + ","
                           + box("horizontal", sized("icon", GetParam().word)));
    EXPECT_EQ(geometry(card.item()).size(), QSizeF(GetParam().image, GetParam().image));
    EXPECT_EQ(geometry(*card.item(1).childItems().value(0)).size(),
              QSizeF(GetParam().icon, GetParam().icon));
}

INSTANTIATE_TEST_SUITE_P(
    Words, PictureSize,
    testing::Values(SizeRow {"xxs", "xxs", 40, 11}, SizeRow {"xs", "xs", 60, 13},
                    SizeRow {"sm", "sm", 80, 14}, SizeRow {"md", "md", 100, 16},
                    SizeRow {"lg", "lg", 120, 19}, SizeRow {"xl", "xl", 140, 22},
                    SizeRow {"xxl", "xxl", 160, 29}, SizeRow {"xxxl", "3xl", 180, 35},
                    SizeRow {"xxxxl", "4xl", 200, 48}, SizeRow {"xxxxxl", "5xl", 220, 74},
                    SizeRow {"None", "", 100, 16}, SizeRow {"Unknown", "huge", 100, 16},
                    SizeRow {"OtherCase", "MD", 100, 16}, SizeRow {"Pixels", "50px", 100, 16}),
    RowName());

using PictureLayout = PlixTest;

TEST_F(PictureLayout, FillsAColumnInFull)
{
    const PictureCard card(
        box("vertical", sized("image", "full"),
            R"("width": "120px", "paddingStart": "10px", "paddingEnd": "10px",)"));
    EXPECT_EQ(geometry(*card.item().childItems().value(0)), QRectF(10, 0, 100, 100));
}

TEST_F(PictureLayout, FillsTheBubbleInFullAsTheTopItemOfAZone)
{
    const TestCard card(R"({"type": "bubble", "hero": )" + sized("image", "full") + "}");
    EXPECT_EQ(geometry(*card.item({0})), QRectF(0, 0, 300, 300));
}

TEST_F(PictureLayout, FillsTheRestOfARowInFull)
{
    const PictureCard card(box("horizontal",
                               box("vertical", "", R"("width": "60px", "flex": 0,)") + ","
                                   + component("image", R"("size": "full", "flex": 1,)"),
                               R"("width": "200px",)"));
    const QRectF image = geometry(*card.item().childItems().value(1));
    EXPECT_EQ(image, QRectF(60, 0, 140, 140));
}

TEST_F(PictureLayout, SharesARowBetweenFullImages)
{
    const PictureCard card(box("horizontal",
                               component("image", R"("size": "full",)") + ","
                                   + component("image", R"("size": "full",)"),
                               R"("width": "200px",)"));
    for (const int i : {0, 1})
        EXPECT_EQ(geometry(*card.item().childItems().value(i)).width(), 100) << i;
}

TEST_F(PictureLayout, FillsARowInFullWithoutGrowing)
{
    const std::string full = sized("image", "full");
    const PictureCard alone(box("horizontal", full, R"("width": "200px",)"));
    EXPECT_EQ(geometry(*alone.item().childItems().value(0)), QRectF(0, 0, 200, 200));
    const PictureCard beside(box("horizontal",
                                 full + "," + box("vertical", "", R"("width": "60px", "flex": 0,)"),
                                 R"("width": "200px",)"));
    EXPECT_EQ(geometry(*beside.item().childItems().value(0)), QRectF(0, 0, 140, 140));
}

TEST_F(PictureLayout, FillsARowInFullWhenItIsAbsolute)
{
    const PictureCard card(box("horizontal",
                               component("image", R"("size": "full", "position": "absolute",)"),
                               R"("width": "200px", "height": "50px",)"));
    EXPECT_EQ(geometry(*card.item().childItems().value(0)), QRectF(0, 0, 200, 200));
}

// ----- Proportions

struct RatioRow {
    const char* name;
    const char* text;
    double ratio;

    friend std::ostream& operator<<(std::ostream& out, const RatioRow& row)
    {
        return out << row.name;
    }
};

class PictureRatio : public PlixTest, public testing::WithParamInterface<RatioRow> { };

TEST_P(PictureRatio, IsTheWidthDividedByTheHeight)
{
    const std::string ratio = std::string(R"("aspectRatio": ")") + GetParam().text + "\",";
    EXPECT_NEAR(ToAspectRatio(GetParam().text), GetParam().ratio, 1e-4);
    const PictureCard card(
        component("image", ratio) + ","
        + box("horizontal", component("icon", ratio + R"("size": "4xl", "flex": 0,)")));
    const QSizeF image = geometry(card.item()).size();
    EXPECT_EQ(image.width(), 100);
    EXPECT_NEAR(image.height(), 100 / GetParam().ratio, 0.51);
    const QSizeF icon = geometry(*card.item(1).childItems().value(0)).size();
    EXPECT_EQ(icon.height(), 48);
    EXPECT_NEAR(icon.width(), 48 * GetParam().ratio, 0.51);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PictureRatio,
    testing::Values(RatioRow {"Square", "1:1", 1}, RatioRow {"Wide", "2:1", 2},
                    RatioRow {"High", "1:2", 0.5}, RatioRow {"Fractions", "1.91:1", 1.91},
                    RatioRow {"Large", "1600:900", 16.0 / 9}, RatioRow {"Empty", "", 1},
                    RatioRow {"OneNumber", "2", 1}, RatioRow {"ThreeNumbers", "2:1:1", 1},
                    RatioRow {"OnlyAColon", ":", 1}, RatioRow {"NoHeight", "2:", 1},
                    RatioRow {"NoWidth", ":2", 1}, RatioRow {"Words", "wide:high", 1},
                    RatioRow {"ZeroWidth", "0:1", 1}, RatioRow {"ZeroHeight", "1:0", 1},
                    RatioRow {"NegativeWidth", "-2:1", 1}, RatioRow {"NegativeHeight", "2:-1", 1},
                    RatioRow {"BothNegative", "-2:-1", 1}, RatioRow {"Infinite", "inf:1", 1},
                    RatioRow {"BothInfinite", "inf:inf", 1}, RatioRow {"NotANumber", "nan:1", 1},
                    RatioRow {"TooLargeForANumber", "1e39:1", 1},
                    RatioRow {"QuotientTooLarge", "1e30:1e-30", 1},
                    RatioRow {"QuotientTooSmall", "1e-30:1e30", 1}),
    RowName());

TEST_F(PictureLayout, IsASquareWithoutARatio)
{
    const PictureCard card(component("image") + ","
                           + box("horizontal", component("icon", R"("flex": 0,)")));
    EXPECT_EQ(geometry(card.item()).size(), QSizeF(100, 100));
    EXPECT_EQ(geometry(*card.item(1).childItems().value(0)).size(), QSizeF(16, 16));
}

TEST_F(PictureLayout, HasTheSizeOfTheCardAndNotOfTheFile)
{
    const PictureFolder folder;
    const PictureCard card(image(folder.write("a.png", "anything"), R"("size": "xs",)"));
    EXPECT_EQ(geometry(card.item()).size(), QSizeF(60, 60));
}

TEST_F(PictureLayout, LetsAnIconGrowWithoutMakingItsRowHigher)
{
    const PictureCard card(box("horizontal", component("icon", R"("flex": 1,)")));
    EXPECT_EQ(geometry(card.item()).height(), 16);
}

TEST_F(PictureLayout, LetsAnImageGrowWithoutMakingItsRowHigher)
{
    const std::string small = component("image", R"("size": "xxs",)");
    for (const char* layout : {"horizontal", "baseline"}) {
        const PictureCard card(box(layout, small + "," + text("beside")));
        const QRectF grown = geometry(*card.item().childItems().value(0));
        EXPECT_GT(grown.width(), 40) << "it shares the row";
        EXPECT_EQ(grown.height(), 40);
        EXPECT_LT(geometry(card.item()).height(), 50);
    }
}

TEST_F(PictureLayout, KeepsTheHeightOfItsRatioWhileItGrows)
{
    const PictureCard card(
        box("horizontal", component("image", R"("size": "xs", "aspectRatio": "2:1", "flex": 3,)")));
    EXPECT_EQ(geometry(*card.item().childItems().value(0)), QRectF(0, 0, 300, 30));
}

TEST_F(PictureLayout, PlacesImagesByMarginsAndOffsets)
{
    const PictureCard card(
        component("image") + "," + component("image", R"("margin": "xl",)") + ","
        + component("image",
                    R"("position": "absolute", "offsetTop": "7px", "offsetStart": "50%",)"));
    EXPECT_EQ(card.item(1).pos().y(), 116);
    EXPECT_EQ(card.item(2).pos(), QPointF(150, 7));
}

struct PlaceRow {
    const char* name;
    const char* layout;
    const char* direction;
    const char* properties;
    QPointF place; // in a box of 200 x 200

    friend std::ostream& operator<<(std::ostream& out, const PlaceRow& row)
    {
        return out << row.name;
    }
};

class ImagePlace : public PlixTest, public testing::WithParamInterface<PlaceRow> { };

TEST_P(ImagePlace, FollowsAlignAndGravity)
{
    const PictureCard card(
        box(GetParam().layout,
            component("image", std::string(R"("size": "xxs",)") + GetParam().properties),
            R"("width": "200px", "height": "200px",)"),
        std::string(R"("direction": ")") + GetParam().direction + "\",");
    EXPECT_EQ(card.item().childItems().value(0)->pos(), GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(
    Words, ImagePlace,
    testing::Values(PlaceRow {"ColumnStart", "vertical", "ltr", R"("align": "start",)", {0, 0}},
                    PlaceRow {"ColumnCenter", "vertical", "ltr", R"("align": "center",)", {80, 0}},
                    PlaceRow {"ColumnEnd", "vertical", "ltr", R"("align": "end",)", {160, 0}},
                    PlaceRow {"ColumnUnknown", "vertical", "ltr", R"("align": "left",)", {0, 0}},
                    PlaceRow {"MirroredStart", "vertical", "rtl", R"("align": "start",)", {160, 0}},
                    PlaceRow {"MirroredEnd", "vertical", "rtl", R"("align": "end",)", {0, 0}}),
    RowName());

} // namespace
} // namespace plix::test
