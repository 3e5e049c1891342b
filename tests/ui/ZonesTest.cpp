// The zones of a card: their backgrounds, the separators between them, their insets.
#include "support/LayoutNode.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixBubbleUI.h"
#include "ui/PlixSeparatorUI.h"
#include "ui/text/PlixTextUI.h"

#include <ostream>

namespace plix::test {
namespace {

const QColor kBackground(0xF1, 0xF3, 0xF7);
const QColor kLine(0xCC, 0xCC, 0xCC);

// A zone of one box, 40 pixels high.
std::string zone(const std::string& name, const std::string& more = {})
{
    return "\"" + name + "\": " + box("vertical", "", R"("height": "40px",)" + more);
}

std::string style(const std::string& name, const std::string& members)
{
    return "\"" + name + "\": {" + members + "}";
}

std::string bubble(const std::vector<std::string>& zones, const std::vector<std::string>& styles)
{
    std::string json = R"({"type": "bubble", "styles": {)";
    for (std::size_t i = 0; i < styles.size(); ++i)
        json += (i ? "," : "") + styles[i];
    json += "}";
    for (const std::string& part : zones)
        json += "," + part;
    return json + "}";
}

// The bubble's children from top to bottom: "-" for a separator, else "#".
std::string orderOf(const TestCard& card)
{
    std::string order;
    const auto* root = card.ui<PlixBubbleUI>({});
    for (int i = 0; i < root->childCount(); ++i)
        order += dynamic_cast<PlixSeparatorUI*>(root->childAt(i)) ? '-' : '#';
    return order;
}

constexpr char kLineOn[] = R"("separator": true)";

struct LinesRow {
    const char* name;
    std::vector<std::string> zones;
    std::vector<std::string> styles;
    const char* order;

    friend std::ostream& operator<<(std::ostream& out, const LinesRow& row)
    {
        return out << row.name;
    }
};

class ZoneSeparators : public PlixTest, public testing::WithParamInterface<LinesRow> { };

TEST_P(ZoneSeparators, AreBeforeTheZonesWhoseStyleHasThem)
{
    const TestCard card(bubble(GetParam().zones, GetParam().styles));
    EXPECT_EQ(orderOf(card), GetParam().order);
}

INSTANTIATE_TEST_SUITE_P(
    Cards, ZoneSeparators,
    testing::Values(
        LinesRow {"BodyAndFooter",
                  {zone("header"), zone("body"), zone("footer")},
                  {style("body", kLineOn), style("footer", kLineOn)},
                  "#-#-#"},
        LinesRow {"EveryZone",
                  {zone("header"), zone("hero"), zone("body"), zone("footer")},
                  {style("header", kLineOn), style("hero", kLineOn), style("body", kLineOn),
                   style("footer", kLineOn)},
                  "#-#-#-#"},
        LinesRow {"NoneBeforeTheHeader", {zone("header")}, {style("header", kLineOn)}, "#"},
        LinesRow {"NoneBeforeABodyAtTheTop", {zone("body")}, {style("body", kLineOn)}, "#"},
        LinesRow {"NoneBeforeAHeroAtTheTop",
                  {zone("hero"), zone("body")},
                  {style("hero", kLineOn)},
                  "##"},
        LinesRow {"NoneBeforeAFooterAtTheTop", {zone("footer")}, {style("footer", kLineOn)}, "#"},
        LinesRow {"BeforeAFooterBelowAHero",
                  {zone("hero"), zone("footer")},
                  {style("footer", kLineOn)},
                  "#-#"},
        LinesRow {"NoneWithoutTheStyle", {zone("header"), zone("body")}, {}, "##"},
        LinesRow {"NoneWhenTheStyleSaysNo",
                  {zone("header"), zone("body")},
                  {style("body", R"("separator": false)")},
                  "##"},
        LinesRow {"NoneForAZoneThatIsMissing",
                  {zone("header"), zone("footer")},
                  {style("body", kLineOn)},
                  "##"},
        LinesRow {"ZonesInAnyOrderOfTheMessage",
                  {zone("footer"), zone("body"), zone("header")},
                  {style("footer", kLineOn)},
                  "##-#"}),
    RowName());

using Zones = PlixTest;

TEST_F(Zones, AreSeparatedByALineOfOnePixelAndFullWidth)
{
    const TestCard card(
        bubble({zone("header"), zone("body"), zone("footer")},
               {style("body", kLineOn),
                style("footer", R"("separator": true, "separatorColor": "#FF0000")")}));
    const auto* root = card.ui<PlixBubbleUI>({});
    EXPECT_EQ(root->childAt(1)->geometry(), QRectF(0, 40, 300, 1));
    EXPECT_EQ(root->childAt(3)->geometry(), QRectF(0, 81, 300, 1));
    EXPECT_EQ(root->size().height(), 122);
    const Picture picture(*card.root());
    for (const double x : {0.0, 150.0, 299.0}) {
        EXPECT_EQ(picture.at({x, 39}), kBackground);
        EXPECT_EQ(picture.at({x, 40}), kLine);
        EXPECT_EQ(picture.at({x, 41}), kBackground);
        EXPECT_EQ(picture.at({x, 81}), QColor(Qt::red));
    }
}

TEST_F(Zones, HaveTheBackbackgroundOfTheirStyle)
{
    const TestCard card(
        bubble({zone("header"), zone("hero"), zone("body"), zone("footer")},
               {style("header", R"("backgroundColor": "#FF0000")"),
                style("hero", R"("backgroundColor": "#00FF00")"),
                style("body", R"("backgroundColor": "#0000FF", "separator": true)"),
                style("footer", R"("backgroundColor": "#FFFF00", "separator": true)")}));
    const Picture picture(*card.root());
    EXPECT_EQ(picture.at({150, 20}), QColor(Qt::red));
    EXPECT_EQ(picture.at({150, 60}), QColor(Qt::green));
    EXPECT_EQ(picture.at({150, 80}), kLine);
    EXPECT_EQ(picture.at({150, 101}), QColor(Qt::blue));
    EXPECT_EQ(picture.at({150, 121}), kLine);
    EXPECT_EQ(picture.at({150, 140}), QColor(Qt::yellow));
}

TEST_F(Zones, KeepABackbackgroundOfTheirOwn)
{
    const TestCard card(bubble({zone("body", R"("backgroundColor": "#00FF00",)")},
                               {style("body", R"("backgroundColor": "#FF0000")")}));
    EXPECT_EQ(Picture(*card.root()).at({150, 20}), QColor(Qt::green));
}

TEST_F(Zones, AreTransparentWithoutABackground)
{
    const TestCard card(bubble({zone("body")}, {style("body", R"("backgroundColor": "")")}));
    EXPECT_FALSE(card.ui<PlixBoxUI>({0})->HasBackground());
    EXPECT_EQ(Picture(*card.root()).at({150, 20}), kBackground);
}

TEST_F(Zones, HaveNoBackgroundWhenTheyAreNoBoxes)
{
    const TestCard card(
        bubble({R"("body": )" + text("a")}, {style("body", R"("backgroundColor": "#FF0000")")}));
    EXPECT_EQ(Picture(*card.root()).at({290, 30}), kBackground);
}

// A hero that must not change which styles the zones after it have.
struct HeroRow {
    const char* name;
    std::string hero;

    friend std::ostream& operator<<(std::ostream& out, const HeroRow& row)
    {
        return out << row.name;
    }
};

class ZoneAfterAnyHero : public PlixTest, public testing::WithParamInterface<HeroRow> { };

TEST_P(ZoneAfterAnyHero, HasItsOwnStyle)
{
    const TestCard card(bubble({zone("header"), GetParam().hero, zone("body"), zone("footer")},
                               {style("header", R"("backgroundColor": "#FF0000")"),
                                style("hero", R"("backgroundColor": "#00FF00")"),
                                style("body", R"("backgroundColor": "#0000FF", "separator": true)"),
                                style("footer", R"("backgroundColor": "#FFFF00")")}));
    const auto* root = card.ui<PlixBubbleUI>({});
    const int last = root->childCount() - 1;
    ASSERT_GE(last, 3);
    const Picture picture(*card.root());
    const auto backgroundOf = [&](int index) {
        return picture.at(root->childAt(index)->geometry().center());
    };
    EXPECT_EQ(backgroundOf(0), QColor(Qt::red));
    EXPECT_TRUE(orderOf(card).ends_with("-##")) << orderOf(card);
    EXPECT_EQ(backgroundOf(last - 1), QColor(Qt::blue));
    EXPECT_EQ(backgroundOf(last), QColor(Qt::yellow));
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 700), 0);
    EXPECT_EQ(root->childAt(last)->geometry().height(), 40);
    EXPECT_GT(root->childAt(last - 1)->geometry().height(), 300) << "the body has grown";
}

INSTANTIATE_TEST_SUITE_P(
    Heroes, ZoneAfterAnyHero,
    testing::Values(HeroRow {"Missing", R"("more": 1)"}, HeroRow {"WithoutType", R"("hero": {})"},
                    HeroRow {"OfAnUnknownType", R"("hero": {"type": "film"})"},
                    HeroRow {"Image", R"("hero": {"type": "image", "url": "a.png"})"},
                    HeroRow {"Button", R"("hero": {"type": "button"})"},
                    HeroRow {"Separator", R"("hero": {"type": "separator"})"},
                    HeroRow {"Text", R"("hero": {"type": "text", "text": "a"})"}),
    RowName());

// ----- Insets

struct InsetRow {
    const char* name;
    const char* size;
    std::string zones;
    float side;
    float bottom; // of the first zone

    friend std::ostream& operator<<(std::ostream& out, const InsetRow& row)
    {
        return out << row.name;
    }
};

class ZoneInsets : public PlixTest, public testing::WithParamInterface<InsetRow> { };

TEST_P(ZoneInsets, AreBetweenTheContentAndTheEdges)
{
    const TestCard card(std::string(R"({"type": "bubble", "size": ")") + GetParam().size + "\","
                        + GetParam().zones + "}");
    const auto* item = card.ui<YogaLayoutItem>({0});
    EXPECT_EQ(item->paddingLeft(), GetParam().side);
    EXPECT_EQ(item->paddingTop(), GetParam().side);
    EXPECT_EQ(item->paddingRight(), GetParam().side);
    EXPECT_EQ(item->paddingBottom(), GetParam().bottom);
}

std::string plainZone(const std::string& name)
{
    return "\"" + name + "\": " + box("vertical", "");
}

INSTANTIATE_TEST_SUITE_P(
    Zones, ZoneInsets,
    testing::Values(InsetRow {"Header", "mega", plainZone("header"), 20, 20},
                    InsetRow {"Hero", "mega", plainZone("hero"), 0, 0},
                    InsetRow {"Body", "mega", plainZone("body"), 20, 20},
                    InsetRow {"BodyAboveAFooter", "mega",
                              plainZone("body") + "," + plainZone("footer"), 20, 10},
                    InsetRow {"Footer", "mega", plainZone("footer"), 10, 10},
                    InsetRow {"KiloBody", "kilo", plainZone("body"), 13, 13},
                    InsetRow {"KiloBodyAboveAFooter", "kilo",
                              plainZone("body") + "," + plainZone("footer"), 13, 3},
                    InsetRow {"NanoBodyAboveAFooter", "nano",
                              plainZone("body") + "," + plainZone("footer"), 10, 0},
                    InsetRow {"Text", "mega", R"("body": {"type": "text", "text": "a"})", 20, 20},
                    InsetRow {"PaddingAllOfTheBox", "mega",
                              R"("body": {"type": "box", "paddingAll": "3px"})", 3, 3}),
    RowName());

TEST_F(Zones, GiveABoxTheFullWidth)
{
    for (const char* layout : {"horizontal", "baseline", "vertical"}) {
        const TestCard card(bubbleWithBody(box(layout, text("a") + "," + text("b"))));
        EXPECT_EQ(card.ui<PlixBoxUI>({0})->size().width(), 300);
        EXPECT_EQ(card.ui<PlixBoxUI>({0})->pos(), QPointF(0, 0));
    }
}

TEST_F(Zones, DrawTextsInsideTheirInsets)
{
    const TestCard card(bubbleWithBody(
        text("words that do not fit into a single line of so narrow a card", R"("wrap": true,)"),
        R"("size": "micro",)"));
    const auto* item = card.ui<PlixTextUI>({0});
    const QRectF shown = item->mapRectToParent(item->boundingRect());
    EXPECT_EQ(shown.left(), 10);
    EXPECT_EQ(shown.top(), 10);
    EXPECT_LE(shown.right(), 150);
    EXPECT_GT(item->ShownLineCount(), 2);
    EXPECT_NEAR(card.ui<PlixBubbleUI>({})->size().height(), shown.bottom() + 10, 1);
    const QRectF ink = Picture(*card.root()).inkIn({0, 13, 160, shown.height() - 6}, {80, 2});
    EXPECT_GE(ink.left(), 9);
    EXPECT_LE(ink.right(), 151);
}

} // namespace
} // namespace plix::test
