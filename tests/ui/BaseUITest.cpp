// What all items have in common: their action, and their position in their box.
#include "ui/PlixBaseUI.h"

#include "api/PlixDataMgr.h"
#include "model/PlixDataText.h"
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixWidgetUI.h"
#include "ui/text/PlixTextUI.h"

#include <ostream>

namespace plix::test {
namespace {

constexpr char kOrdinaryAction[] = R"("action": {"type": "uri", "uri": "https://a.example"},)";
constexpr char kAppOnlyAction[] = R"("action": {"type": "uri", "appUri": "app://a"},)";
constexpr char kZeroTypeAction[] = R"("action": {"type": "dance", "uri": "https://a.example"},)";

void withoutMobileCheck(PlixDataController* controller)
{
    PlixDisplayParam param;
    param.mobileOnlyCheck = false;
    Plix_SetDisplayParam(controller, param);
}

void ignoreClick(ST_ACTION&) { }

// An item that adds nothing to the base.
class BareItem : public PlixWidgetUI {
public:
    BareItem()
        : PlixWidgetUI(nullptr, nullptr)
    {
    }

    void makeClickable() { clickable_ = true; }
    void suppressAction() { actionSuppressed_ = true; }
    void keepClickFunc() { clickFunc_ = &ignoreClick; }
};

std::shared_ptr<PlixDataText> dataWithAction()
{
    const auto data = std::make_shared<PlixDataText>();
    data->SetAction(std::make_shared<ST_ACTION>());
    return data;
}

class ItemAction : public PlixTest {
protected:
    ItemAction() { item_.setData(kDataItemRole, qlonglong(registry().Add(dataWithAction()))); }

    static PlixItemRegistry& registry() { return PlixItemRegistry::GetInstance(); }

    BareItem item_;
};

TEST_F(ItemAction, ExistsForAClickableItemWithAClickFunctionAndAnAction)
{
    item_.makeClickable();
    item_.keepClickFunc();
    EXPECT_TRUE(item_.HasAction());
    EXPECT_TRUE(Plix_HasAction(&item_));
}

TEST_F(ItemAction, DoesNotExistByDefault)
{
    item_.SetClickFunc(&ignoreClick);
    EXPECT_FALSE(item_.HasAction());
}

TEST_F(ItemAction, DoesNotExistForAnItemThatIsNotClickable)
{
    item_.keepClickFunc();
    EXPECT_FALSE(item_.HasAction());
}

TEST_F(ItemAction, DoesNotExistWithoutAClickFunction)
{
    item_.makeClickable();
    item_.SetClickFunc(&ignoreClick); // the base does not keep it
    EXPECT_FALSE(item_.HasAction());
}

TEST_F(ItemAction, DoesNotExistWhenItIsSuppressed)
{
    item_.makeClickable();
    item_.keepClickFunc();
    item_.suppressAction();
    EXPECT_FALSE(item_.HasAction());
}

TEST_F(ItemAction, DoesNotExistForAKeyThatIsNotRegistered)
{
    item_.makeClickable();
    item_.keepClickFunc();
    item_.setData(kDataItemRole, qlonglong(7));
    EXPECT_FALSE(item_.HasAction());
    item_.setData(kDataItemRole, QVariant());
    EXPECT_FALSE(item_.HasAction());
}

TEST_F(ItemAction, DoesNotExistForDataWithoutAnAction)
{
    item_.makeClickable();
    item_.keepClickFunc();
    item_.setData(kDataItemRole, qlonglong(registry().Add(std::make_shared<PlixDataText>())));
    EXPECT_FALSE(item_.HasAction());
}

TEST_F(ItemAction, DoesNotExistForItemsThatAreNoGraphicsItems)
{
    class NoItem : public PlixBaseUI {
    public:
        NoItem()
        {
            clickable_ = true;
            clickFunc_ = &ignoreClick;
        }
        QGraphicsItem* GetGraphicsItem() override { return nullptr; }
        QGraphicsLayoutItem* GetLayoutItem() override { return nullptr; }
        YogaLayoutItem* GetYogaItem() override { return nullptr; }
    };
    NoItem item;
    EXPECT_FALSE(item.HasAction());
}

TEST_F(ItemAction, DoesNotExistForItemsOfTheHost)
{
    QGraphicsWidget widget;
    EXPECT_FALSE(Plix_HasAction(&widget));
    EXPECT_FALSE(Plix_HasAction(nullptr));
}

struct ActionRow {
    const char* name;
    std::string content; // the first component in the box of the body
    bool mobileOnlyCheck;
    bool hasAction;

    friend std::ostream& operator<<(std::ostream& out, const ActionRow& row)
    {
        return out << row.name;
    }
};

class ActionInCard : public PlixTest, public testing::WithParamInterface<ActionRow> { };

TEST_P(ActionInCard, IsReportedByHasAction)
{
    const std::string json = bubbleWithBody(box("vertical", GetParam().content));
    const TestCard card =
        GetParam().mobileOnlyCheck ? TestCard(json) : TestCard(json, &withoutMobileCheck);
    EXPECT_EQ(Plix_HasAction(card.item({0, 0})), GetParam().hasAction);
}

INSTANTIATE_TEST_SUITE_P(
    Items, ActionInCard,
    testing::Values(ActionRow {"BoxWithAction", box("vertical", "", kOrdinaryAction), true, true},
                    ActionRow {"BoxWithout", box("vertical", ""), true, false},
                    ActionRow {"BoxForAppsOnly", box("vertical", "", kAppOnlyAction), true, false},
                    ActionRow {"BoxForAppsOnlyUnchecked", box("vertical", "", kAppOnlyAction),
                               false, true},
                    ActionRow {"TextWithAction", text("a", kOrdinaryAction), true, true},
                    ActionRow {"TextWithout", text("a"), true, false},
                    ActionRow {"TextForAppsOnly", text("a", kAppOnlyAction), true, false},
                    ActionRow {"TextForAppsOnlyUnchecked", text("a", kAppOnlyAction), false, true},
                    ActionRow {"TextWithUnknownAction", text("a", kZeroTypeAction), true, false},
                    ActionRow {"Separator", component("separator", kOrdinaryAction), true, false},
                    ActionRow {"Filler", component("filler", kOrdinaryAction), true, false},
                    ActionRow {"Spacer", component("spacer", kOrdinaryAction), true, false}),
    RowName());

// ----- Placement

struct PlacementRow {
    const char* name;
    const char* layout;
    const char* properties; // of the second child
    float top;
    float left;
    bool hasMargin;

    friend std::ostream& operator<<(std::ostream& out, const PlacementRow& row)
    {
        return out << row.name;
    }
};

class MarginInBox : public PlixTest, public testing::WithParamInterface<PlacementRow> { };

TEST_P(MarginInBox, IsOnTheLeadingEdge)
{
    const PlacementRow& row = GetParam();
    for (const std::string& second :
         {text("b", row.properties), box("vertical", "", row.properties)}) {
        const TestCard card(bubbleWithBody(box(row.layout, text("a") + "," + second)));
        const auto* item = card.ui<YogaLayoutItem>({0, 1});
        EXPECT_EQ(item->marginTop(), row.top);
        EXPECT_EQ(item->marginLeft(), row.left);
        EXPECT_EQ(item->marginBottom(), 0);
        EXPECT_EQ(item->hasMargin(), row.hasMargin);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, MarginInBox,
    testing::Values(PlacementRow {"Vertical", "vertical", R"("margin": "xl",)", 16, 0, true},
                    PlacementRow {"Horizontal", "horizontal", R"("margin": "xl",)", 0, 16, true},
                    PlacementRow {"Baseline", "baseline", R"("margin": "7px",)", 0, 7, true},
                    PlacementRow {"UnknownLayout", "diagonal", R"("margin": "md",)", 0, 8, true},
                    PlacementRow {"None", "vertical", "", 0, 0, false},
                    PlacementRow {"NoneInWords", "vertical", R"("margin": "none",)", 0, 0, true},
                    PlacementRow {"Empty", "vertical", R"("margin": "",)", 0, 0, false}),
    RowName());

using Placement = PlixTest;

TEST_F(Placement, GivesTheFirstItemNoMargin)
{
    const std::string margin = R"("margin": "xl",)";
    for (const char* layout : {"vertical", "horizontal"}) {
        for (const std::string& first : {text("a", margin), box("vertical", "", margin)}) {
            const TestCard card(bubbleWithBody(box(layout, first)));
            const auto* item = card.ui<YogaLayoutItem>({0, 0});
            EXPECT_EQ(item->marginTop(), 0);
            EXPECT_EQ(item->marginLeft(), 0);
            EXPECT_FALSE(item->hasMargin());
        }
    }
}

TEST_F(Placement, CountsComponentsThatAreNotDrawnAsSiblings)
{
    // The unknown component is not drawn, but the text is still the second child.
    const TestCard card(bubbleWithBody(
        box("vertical", component("unknown") + "," + text("b", R"("margin": "xl",)"))));
    EXPECT_EQ(card.ui<PlixTextUI>({0, 0})->marginTop(), 16);
}

TEST_F(Placement, IsAbsoluteOnlyForTheExactWord)
{
    const TestCard card(bubbleWithBody(
        box("vertical",
            text("a", R"("position": "absolute",)") + "," + text("b", R"("position": "relative",)")
                + "," + text("c", R"("position": "Absolute",)") + "," + text("d"))));
    EXPECT_TRUE(card.ui<PlixTextUI>({0, 0})->isAbsolute());
    EXPECT_FALSE(card.ui<PlixTextUI>({0, 1})->isAbsolute());
    EXPECT_FALSE(card.ui<PlixTextUI>({0, 2})->isAbsolute());
    EXPECT_FALSE(card.ui<PlixTextUI>({0, 3})->isAbsolute());
}

struct OffsetRow {
    const char* name;
    const char* key;
    YGEdge pixelEdge;
    YGEdge percentEdge;

    friend std::ostream& operator<<(std::ostream& out, const OffsetRow& row)
    {
        return out << row.name;
    }
};

class Offset : public PlixTest, public testing::WithParamInterface<OffsetRow> {
protected:
    // The position style of `edge` when the offset is `value`, for a text and for a box.
    static std::vector<YGValue> positions(const std::string& value, YGEdge edge)
    {
        const std::string offset = std::string("\"") + GetParam().key + "\": \"" + value + "\",";
        std::vector<YGValue> found;
        for (const std::string& item : {text("a", offset), box("vertical", "", offset)}) {
            const TestCard card(bubbleWithBody(box("vertical", item)));
            found.push_back(YGNodeStyleGetPosition(nodeOf(*card.ui<YogaLayoutItem>({0, 0})), edge));
        }
        return found;
    }
};

TEST_P(Offset, IsSetInPixels)
{
    for (const YGValue& value : positions("12px", GetParam().pixelEdge)) {
        EXPECT_EQ(value.unit, YGUnitPoint);
        EXPECT_EQ(value.value, 12);
    }
    for (const YGValue& value : positions("lg", GetParam().pixelEdge))
        EXPECT_EQ(value.value, 12);
}

TEST_P(Offset, IsSetInPercent)
{
    for (const YGValue& value : positions("25%", GetParam().percentEdge)) {
        EXPECT_EQ(value.unit, YGUnitPercent);
        EXPECT_EQ(value.value, 25);
    }
}

TEST_P(Offset, IsNotSetUnlessItIsPositive)
{
    for (const char* offset : {"", "0", "-4px", "none", "-10%", "2.5px"}) {
        for (const YGEdge edge : {GetParam().pixelEdge, GetParam().percentEdge}) {
            for (const YGValue& value : positions(offset, edge))
                EXPECT_EQ(value.unit, YGUnitUndefined) << offset;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Edges, Offset,
    testing::Values(OffsetRow {"Top", "offsetTop", YGEdgeTop, YGEdgeTop},
                    OffsetRow {"Bottom", "offsetBottom", YGEdgeBottom, YGEdgeBottom},
                    OffsetRow {"Start", "offsetStart", YGEdgeStart, YGEdgeLeft},
                    OffsetRow {"End", "offsetEnd", YGEdgeEnd, YGEdgeEnd}),
    RowName());

TEST_F(Placement, ResolvesPercentagesAgainstTheParent)
{
    const TestCard card(bubbleWithBody(
        box("vertical",
            box("vertical",
                box("vertical", "",
                    R"("position": "absolute", "offsetStart": "25%", "offsetTop": "50%",
                   "width": "10px", "height": "10px",)"),
                R"("width": "200px", "height": "100px",)"))));
    EXPECT_EQ(card.ui<PlixBoxUI>({0, 0, 0})->YogaLayoutItem::geometry(), QRectF(50, 50, 10, 10));
}

TEST_F(Placement, MovesARelativeItemByItsOffsets)
{
    const TestCard card(bubbleWithBody(
        box("vertical",
            box("vertical", "", R"("offsetStart": "5px", "offsetTop": "6px", "height": "10px",)")
                + "," + box("vertical", "", R"("height": "10px",)"))));
    const QPointF moved = card.ui<PlixBoxUI>({0, 0})->pos();
    const QPointF next = card.ui<PlixBoxUI>({0, 1})->pos();
    EXPECT_EQ(moved, next + QPointF(5, -4));
}

} // namespace
} // namespace plix::test
