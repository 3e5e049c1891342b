// How texts are measured and placed.
#include "ui/text/PlixTextUI.h"

#include "api/PlixDataMgr.h"
#include "model/PlixDataText.h"
#include "support/LayoutNode.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"

#include <QFontMetrics>
#include <QTextDocument>
#include <QTextFrame>

#include <cmath>
#include <functional>
#include <limits>
#include <ostream>

namespace plix::test {
namespace {

constexpr char kWrap[] = R"("wrap": true,)";
constexpr char kWords[] = "some words that do not fit into one line of so narrow an item";

// A text without a box around it.
class TextWithoutBox {
public:
    explicit TextWithoutBox(const std::function<void(PlixDataText&)>& set)
        : item(nullptr, nullptr, {})
    {
        const auto data = std::make_shared<PlixDataText>();
        set(*data);
        item.setData(kDataItemRole, qlonglong(PlixItemRegistry::GetInstance().Add(data)));
        EXPECT_TRUE(item.Init());
    }

    QSizeF measure(double width)
    {
        return item.measure(width, YGMeasureModeAtMost, 1000, YGMeasureModeUndefined);
    }

    PlixTextUI item;
};

void setWords(PlixDataText& data)
{
    data.SetText(kWords);
}

void setWrappedWords(PlixDataText& data)
{
    setWords(data);
    data.SetWrap(true);
}

int lineHeight(const PlixTextUI& item)
{
    return QFontMetrics(item.font()).height();
}

double topMargin(const PlixTextUI& item)
{
    return item.document()->rootFrame()->frameFormat().topMargin();
}

using TextMeasure = PlixTest;

TEST_F(TextMeasure, UsesTheGivenWidthAndTheHeightThatItNeeds)
{
    TextWithoutBox text(&setWrappedWords);
    for (const double width : {80.0, 120.5, 300.0}) {
        const QSizeF size = text.measure(width);
        EXPECT_EQ(size.width(), width);
        EXPECT_EQ(size.height(), std::trunc(text.item.boundingRect().height()));
        EXPECT_EQ(text.item.boundingRect().width(), width);
    }
    EXPECT_GT(text.measure(80).height(), text.measure(300).height());
}

TEST_F(TextMeasure, EmptiesAWrappedTextAtWidthZeroForGood)
{
    TextWithoutBox text(&setWrappedWords);
    text.measure(0);
    EXPECT_EQ(text.item.toPlainText(), QString());
    text.measure(100);
    EXPECT_EQ(text.item.toPlainText(), QString());
}

TEST_F(TextMeasure, KeepsATextThatIsNotWrappedAtWidthZero)
{
    TextWithoutBox text(&setWords);
    text.measure(0);
    EXPECT_EQ(text.item.toPlainText(), QString::fromLatin1(kWords));
}

TEST_F(TextMeasure, UsesItsNaturalWidthWithoutAGivenWidth)
{
    TextWithoutBox text(&setWords);
    text.item.SetFixedItemWidth(-1);
    const double natural = text.item.boundingRect().width();
    const QSizeF size = text.measure(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(size.width(), natural);
    EXPECT_EQ(size.height(), std::trunc(text.item.boundingRect().height()));
}

// A text in a box that is 120 wide with paddings of 10 and 20, laid out.
class TextInBox : public TestCard {
public:
    explicit TextInBox(const std::string& properties)
        : TestCard(bubbleWithBody(
            box("vertical",
                box("vertical", text(kWords, properties),
                    R"("width": "120px", "paddingStart": "10px", "paddingEnd": "20px",)"))))
    {
    }

    PlixTextUI& item() const { return *ui<PlixTextUI>({0, 0, 0}); }
};

TEST_F(TextMeasure, LimitsTheWidthToTheInsideOfTheParent)
{
    for (const char* properties : {kWrap, ""}) {
        const TextInBox card(properties);
        EXPECT_EQ(
            card.item().measure(500, YGMeasureModeExactly, 100, YGMeasureModeUndefined).width(),
            90);
        EXPECT_EQ(
            card.item().measure(50, YGMeasureModeExactly, 100, YGMeasureModeUndefined).width(), 50);
    }
}

// A text of a fixed width in a box of 120, laid out as the second layout of a card.
class WideTextInBox {
public:
    explicit WideTextInBox(const std::function<void(PlixDataText&)>& set)
        : text(set)
    {
        box_.setWidth(120);
        text.item.setMaxWidthPercent(YGUndefined);
        text.item.setWidth(300);
        root_.addChild(&box_);
        box_.addChild(&text.item);
        for (int i = 0; i < 2; ++i) {
            text.item.markDirty();
            root_.calculateLayout(500, 500);
            root_.applyLayoutRecursive();
        }
    }

    void startNextLayout() { root_.calculateLayout(500, 500); }

    TextWithoutBox text;

private:
    LayoutNode root_;
    LayoutNode box_;
};

TEST_F(TextMeasure, SetsASmallerWidthOfTheNodeUntilTheNextLayout)
{
    YGUnit unit = YGUnitUndefined;
    WideTextInBox wrapped(&setWrappedWords);
    EXPECT_EQ(wrapped.text.item.styleWidth(unit), 120);
    EXPECT_EQ(unit, YGUnitPoint);
    EXPECT_EQ(wrapped.text.item.layoutWidth(), 120);

    wrapped.startNextLayout();
    EXPECT_EQ(wrapped.text.item.styleWidth(unit), 300);
}

TEST_F(TextMeasure, KeepsTheWidthOfTheNodeUnlessWrapped)
{
    YGUnit unit = YGUnitUndefined;
    WideTextInBox plain(&setWords);
    EXPECT_EQ(plain.text.item.styleWidth(unit), 300);
    EXPECT_EQ(plain.text.item.boundingRect().width(), 120);
}

TEST_F(TextMeasure, IgnoresAParentWithoutAWidthYet)
{
    TextWithoutBox text(&setWrappedWords);
    LayoutNode root;
    LayoutNode parent;
    root.addChild(&parent);
    parent.addChild(&text.item);
    ASSERT_TRUE(std::isnan(parent.layoutWidth()));
    EXPECT_EQ(text.measure(200).width(), 200);
}

TEST_F(TextMeasure, IgnoresAParentWithoutRoomInsideItsPaddings)
{
    TextWithoutBox text(&setWrappedWords);
    LayoutNode root;
    LayoutNode parent;
    parent.setPadding(100);
    root.addChild(&parent);
    parent.addChild(&text.item);
    root.calculateLayout(50, 50);
    EXPECT_EQ(text.measure(200).width(), 200);
}

using TextSizeHint = PlixTest;

TEST_F(TextSizeHint, IsTheHeightOfTheText)
{
    TextWithoutBox text(&setWrappedWords);
    text.item.SetFixedItemWidth(100);
    const double height = text.item.boundingRect().height();
    for (const Qt::SizeHint hint : {Qt::MinimumSize, Qt::PreferredSize, Qt::MaximumSize})
        EXPECT_EQ(text.item.sizeHint(hint), QSizeF(-1, height));
    EXPECT_EQ(text.item.sizeHint(Qt::MinimumDescent), QSizeF(-1, -1));
}

// ----- The width of the node

struct WidthRow {
    const char* name;
    std::string body;
    std::vector<int> path; // of the text
    bool sharesRow;

    friend std::ostream& operator<<(std::ostream& out, const WidthRow& row)
    {
        return out << row.name;
    }
};

class TextNodeWidth : public PlixTest, public testing::WithParamInterface<WidthRow> { };

TEST_P(TextNodeWidth, IsNaturalUnlessItSharesARow)
{
    const TestCard card(bubbleWithBody(GetParam().body));
    const auto* item = card.ui<PlixTextUI>(GetParam().path);
    TextItem natural;
    natural.setFont(item->font());
    natural.InsertRichText(item->toPlainText(), true);
    YGUnit unit = YGUnitUndefined;
    EXPECT_EQ(item->styleWidth(unit),
              GetParam().sharesRow ? 0 : std::ceil(natural.boundingRect().width()));
    EXPECT_EQ(unit, YGUnitPoint);
}

constexpr char kGrow[] = R"("flex": 1,)";
constexpr char kAbsolute[] = R"("position": "absolute",)";

INSTANTIATE_TEST_SUITE_P(
    Texts, TextNodeWidth,
    testing::Values(
        WidthRow {"InAColumn", box("vertical", text("one")), {0, 0}, false},
        WidthRow {"GrowingInAColumn", box("vertical", text("one", kGrow)), {0, 0}, false},
        WidthRow {"InARow", box("horizontal", text("one")), {0, 0}, true},
        WidthRow {"GrowingInARow", box("horizontal", text("one", kGrow)), {0, 0}, true},
        WidthRow {"InABaselineRow", box("baseline", text("one")), {0, 0}, true},
        WidthRow {
            "NotGrowingInARow", box("horizontal", text("one", R"("flex": 0,)")), {0, 0}, false},
        WidthRow {"AbsoluteInARow", box("horizontal", text("one", kAbsolute)), {0, 0}, false},
        WidthRow {"InAnAbsoluteRow",
                  box("vertical", box("horizontal", text("one"), kAbsolute)),
                  {0, 0, 0},
                  false},
        WidthRow {"BelowAnAbsoluteBox",
                  box("vertical", box("vertical", box("horizontal", text("one")), kAbsolute)),
                  {0, 0, 0, 0},
                  false},
        WidthRow {"InARowAsWideAsItsContent",
                  box("horizontal", box("horizontal", text("one"), R"("flex": 0,)")),
                  {0, 0, 0},
                  false},
        WidthRow {
            "InARowOfAFixedWidth",
            box("horizontal", box("horizontal", text("one"), R"("flex": 0, "width": "90px",)")),
            {0, 0, 0},
            true}),
    RowName());

using TextWidth = PlixTest;

TEST_F(TextWidth, IsNeverMoreThanThatOfItsParent)
{
    const std::string words(300, 'm');
    for (const char* layout : {"vertical", "horizontal", "baseline"}) {
        for (const char* properties : {"", kWrap, R"("flex": 0,)"}) {
            const TestCard card(bubbleWithBody(
                box("vertical", box(layout, text(words, properties), R"("width": "90px",)"))));
            auto* item = card.ui<PlixTextUI>({0, 0, 0});
            EXPECT_LE(item->YogaLayoutItem::geometry().width(), 90);
            EXPECT_LE(item->boundingRect().width(), 90);
        }
    }
}

TEST_F(TextWidth, IsNotLostToTheRoundingOfShares)
{
    // Shares of a row that a float cannot represent exactly.
    const std::string column = box("horizontal", "", R"("width": "40%",)");
    const std::string shares = box("baseline", text("one", R"("wrap": true, "flex": 3,)"),
                                   R"("borderWidth": "light", "borderColor": "#FF0000",)");
    const TestCard card(bubbleWithBody(
        box("vertical",
            box("horizontal", column + "," + shares, R"("paddingStart": "8px", "spacing": "sm",)")),
        R"("size": "autogiga",)"));
    const auto* item = card.ui<PlixTextUI>({0, 0, 1, 0});
    EXPECT_EQ(item->toPlainText(), QStringLiteral("one"));
    EXPECT_GT(item->boundingRect().width(), 90);
}

TEST_F(TextWidth, FillsAZone)
{
    const TestCard card(R"({"type": "bubble", "hero": )" + text("one") + "}");
    EXPECT_EQ(card.ui<PlixTextUI>({0})->YogaLayoutItem::geometry().width(), 300);
    EXPECT_TRUE(card.ui<PlixTextUI>({0})->widthIsPercent());
}

// ----- Baseline

using TextBaseline = PlixTest;

TEST_F(TextBaseline, IsTheAscentOfTheFont)
{
    TextWithoutBox text(&setWords);
    EXPECT_EQ(text.item.baseline(0, 0), QFontMetrics(text.item.font()).ascent());
    EXPECT_EQ(text.item.baseline(500, 500), text.item.baseline(0, 0));
}

TEST_F(TextBaseline, CountsFromTheTopOfTheRectangle)
{
    TextWithoutBox text(&setWords);
    const int height = lineHeight(text.item);
    text.item.setGeometry({0, 0, 300, height - 10.0});
    EXPECT_EQ(text.item.baseline(0, 0), QFontMetrics(text.item.font()).ascent() - 5);
}

// ----- Placement

using TextPlacement = PlixTest;

TEST_F(TextPlacement, MovesToTheTopLeftCorner)
{
    TextWithoutBox text(&setWords);
    text.item.setGeometry({12, 34, 600, 40});
    EXPECT_EQ(text.item.pos(), QPointF(12, 34));
    EXPECT_EQ(static_cast<QGraphicsLayoutItem&>(text.item).geometry().topLeft(), QPointF(12, 34));
}

TEST_F(TextPlacement, CutsATextThatIsWiderThanItsRectangle)
{
    TextWithoutBox text(&setWords);
    text.item.setGeometry({0, 0, 70, 40});
    EXPECT_EQ(text.item.boundingRect().width(), 70);
    EXPECT_TRUE(text.item.IsElided());
    YGUnit unit = YGUnitUndefined;
    EXPECT_EQ(text.item.styleWidth(unit), 70);
}

TEST_F(TextPlacement, ShowsALineInARectangleThatIsTooLow)
{
    const TestCard card(bubbleWithBody(box("vertical",
                                           box("vertical", "", R"("height": "30px",)") + ","
                                               + text("HHHH", R"("size": "xl",)") + ","
                                               + box("vertical", "", R"("height": "30px",)"))));
    auto* item = card.ui<PlixTextUI>({0, 1});
    const double height = lineHeight(*item);
    for (const double given : {2.0, 10.0, height - 1}) {
        item->setGeometry({20, 50, 260, given});
        EXPECT_EQ(item->ShownLineCount(), 1);
        EXPECT_EQ(item->boundingRect().height(), height);
        EXPECT_EQ(item->sceneBoundingRect().center().y(), 50 + given / 2) << "centred on it";
        const QRectF ink = Picture(*card.root()).inkIn({0, 20, 300, 70}, {150, 2});
        EXPECT_GT(ink.height(), 14) << "all of the letters";
    }
}

struct GravityRow {
    const char* name;
    const char* gravity;
    bool absolute;
    double share; // of the free height, above the text

    friend std::ostream& operator<<(std::ostream& out, const GravityRow& row)
    {
        return out << row.name;
    }
};

class TextGravity : public PlixTest, public testing::WithParamInterface<GravityRow> { };

TEST_P(TextGravity, DistributesTheFreeHeight)
{
    TextWithoutBox text([](PlixDataText& data) {
        setWords(data);
        data.SetGravity(GetParam().gravity);
        if (GetParam().absolute)
            data.SetPosition("absolute");
    });
    const double height = text.item.boundingRect().height();
    text.item.setGeometry({0, 0, 600, height + 40});
    EXPECT_EQ(topMargin(text.item), 40 * GetParam().share);
    text.item.setGeometry({0, 0, 600, height + 20});
    EXPECT_EQ(topMargin(text.item), 20 * GetParam().share) << "not added to the last margin";
    text.item.setGeometry({0, 0, 600, height});
    EXPECT_EQ(topMargin(text.item), 0);
}

INSTANTIATE_TEST_SUITE_P(Words, TextGravity,
                         testing::Values(GravityRow {"Center", "center", false, 0.5},
                                         GravityRow {"Bottom", "bottom", false, 1},
                                         GravityRow {"Top", "top", false, 0},
                                         GravityRow {"None", "", false, 0},
                                         GravityRow {"Unknown", "middle", false, 0},
                                         GravityRow {"AbsoluteCenter", "center", true, 0},
                                         GravityRow {"AbsoluteBottom", "bottom", true, 0}),
                         RowName());

TEST_F(TextPlacement, MovesTheLettersByTheGravity)
{
    // Next to a box of 100, so that the row is higher than the text.
    const auto inkOf = [](const char* gravity) {
        const TestCard card(bubbleWithBody(
            box("horizontal",
                text("HHH", std::string(R"("gravity": ")") + gravity + "\",") + ","
                    + box("vertical", "", R"("flex": 0, "width": "9px", "height": "100px",)"))));
        return Picture(*card.root()).inkIn({20, 20, 100, 100}, {150, 2});
    };
    const QRectF top = inkOf("top");
    const QRectF center = inkOf("center");
    const QRectF bottom = inkOf("bottom");
    ASSERT_FALSE(top.isEmpty());
    EXPECT_LT(top.bottom(), 45);
    EXPECT_NEAR(center.center().y(), 70, 3);
    EXPECT_GT(bottom.top(), 95);
    EXPECT_NEAR(top.top() - 20, 120 - bottom.bottom(), 3);
    EXPECT_EQ(top.height(), bottom.height());
}

TEST_F(TextPlacement, LeavesTextsOfABaselineRowOnTheirLine)
{
    const TestCard card(
        bubbleWithBody(box("baseline", text("a", R"("gravity": "center",)") + "," + text("b"))));
    auto* item = card.ui<PlixTextUI>({0, 0});
    item->setGeometry({0, 0, 100, 90});
    EXPECT_EQ(topMargin(*item), 0);
}

TEST_F(TextPlacement, LaysOutAParentThatNeedsARelayout)
{
    const TestCard card(bubbleWithBody(box("vertical", text("one") + "," + text("two"))));
    auto* parent = card.ui<PlixBoxUI>({0});
    auto* first = card.ui<PlixTextUI>({0, 0});
    auto* second = card.ui<PlixTextUI>({0, 1});
    first->setHeight(50);
    parent->setRelayoutPending();
    first->setGeometry(first->YogaLayoutItem::geometry());
    EXPECT_FALSE(parent->isRelayoutPending());
    EXPECT_EQ(first->layoutHeight(), 50);
    EXPECT_EQ(second->YogaLayoutItem::geometry().top(), 70);
}

} // namespace
} // namespace plix::test
