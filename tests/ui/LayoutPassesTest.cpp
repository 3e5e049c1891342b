// When a card is laid out, and in how many passes.
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixBubbleUI.h"
#include "ui/text/PlixTextUI.h"

#include <QApplication>
#include <QGraphicsSceneResizeEvent>

#include <vector>

namespace plix::test {
namespace {

// Records the heights that layouts give to boxes.
class BoxHeights : public QObject {
public:
    BoxHeights() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::GraphicsSceneResize && dynamic_cast<PlixBoxUI*>(watched))
            heights.push_back(static_cast<QGraphicsSceneResizeEvent*>(event)->newSize().height());
        return false;
    }

    std::vector<double> heights;
};

using LayoutPasses = PlixTest;

TEST_F(LayoutPasses, StartWithAHeightOf500AndThenFollowTheContent)
{
    // A percentage of a height counts only where there is a height.
    const std::string json =
        bubbleWithBody(box("vertical", "", R"("height": "50%", "paddingAll": "7px",)"));
    BoxHeights seen;
    const TestCard card(json);
    ASSERT_EQ(seen.heights.size(), 2u);
    EXPECT_EQ(seen.heights[0], 250);
    EXPECT_EQ(seen.heights[1], 14);
}

// Records the constraints that it is measured under.
class Measured : public LayoutNode {
public:
    Measured() { setHasMeasureFunc(true); }

    QSizeF measure(double width, YGMeasureMode widthMode, double, YGMeasureMode) override
    {
        widths.push_back(width);
        widthModes.push_back(widthMode);
        return {10, 10};
    }

    std::vector<double> widths;
    std::vector<YGMeasureMode> widthModes;
};

TEST_F(LayoutPasses, MeasureWithTheWidthOfTheCard)
{
    const TestCard card(bubbleWithBody(box("vertical", "")));
    Measured item;
    card.ui<PlixBoxUI>({0})->addChild(&item);
    Plix_RefreshLayout(card.controller());
    ASSERT_FALSE(item.widths.empty());
    EXPECT_EQ(item.widths.back(), 260);
    EXPECT_EQ(item.widthModes.back(), YGMeasureModeExactly);
}

TEST_F(LayoutPasses, PlaceTheItemsInTheirRectangles)
{
    const TestCard card(bubbleWithBody(
        box("vertical", text("a") + "," + box("horizontal", text("b") + "," + text("c")))));
    for (const std::vector<int>& path : std::vector<std::vector<int>> {{}, {0}, {0, 1}}) {
        auto* widget = card.ui<PlixWidgetUI>(path);
        EXPECT_EQ(widget->pos(), widget->YogaLayoutItem::geometry().topLeft());
        EXPECT_EQ(widget->size(), widget->YogaLayoutItem::geometry().size());
    }
    for (const std::vector<int>& path : std::vector<std::vector<int>> {{0, 0}, {0, 1, 1}}) {
        auto* item = card.ui<PlixTextUI>(path);
        EXPECT_EQ(item->pos(), item->YogaLayoutItem::geometry().topLeft());
    }
}

TEST_F(LayoutPasses, KeepTheSizeOfTheCardWhenItIsRefreshed)
{
    const TestCard card(bubbleWithBody(box("vertical", text("a") + "," + text("b"))));
    const QSizeF size = card.ui<PlixBubbleUI>({})->size();
    Plix_RefreshLayout(card.controller());
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->size(), size);
}

TEST_F(LayoutPasses, UseTheHeightOfTheCardWhenItIsRefreshed)
{
    const TestCard card(bubbleWithBody(box("vertical", "", R"("height": "50%",)")));
    card.ui<PlixBubbleUI>({})->resize(300, 400);
    Plix_RefreshLayout(card.controller());
    EXPECT_EQ(card.ui<PlixBoxUI>({0})->size().height(), 200);
}

TEST_F(LayoutPasses, ApplyAChangeWhenTheCardIsRefreshed)
{
    const TestCard card(bubbleWithBody(
        box("vertical", box("vertical", "", R"("height": "20px",)") + "," + text("b"))));
    const double before = card.item({0, 1})->pos().y();
    card.ui<PlixBoxUI>({0, 0})->setHeight(33);
    Plix_RefreshLayout(card.controller());
    EXPECT_EQ(card.item({0, 1})->pos().y(), before + 13);
    EXPECT_EQ(card.ui<PlixBoxUI>({0, 0})->size().height(), 33);
}

TEST_F(LayoutPasses, LetTheHeightFollowTheContentWhenItIsModified)
{
    const TestCard card(bubbleWithBody(
        box("vertical", box("vertical", "", R"("height": "20px",)") + "," + text("b"))));
    const double before = card.ui<PlixBubbleUI>({})->size().height();
    card.ui<PlixBoxUI>({0, 0})->setHeight(33);
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 0), 0);
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->size().height(), before + 13);
}

TEST_F(LayoutPasses, MeasureNothingWhenNothingHasChanged)
{
    const TestCard card(bubbleWithBody(box("vertical", "")));
    Measured item;
    card.ui<PlixBoxUI>({0})->addChild(&item);
    Plix_RefreshLayout(card.controller());
    ASSERT_FALSE(item.widths.empty());
    item.widths.clear();
    Plix_RefreshLayout(card.controller());
    Plix_ModifyHeight(card.controller(), 0);
    EXPECT_TRUE(item.widths.empty());
}

TEST_F(LayoutPasses, LetTheCardFollowItsContentWhenItIsRefreshed)
{
    const TestCard card(bubbleWithBody(
        box("vertical", box("vertical", "", R"("height": "20px",)") + "," + text("b"))));
    const double before = card.ui<PlixBubbleUI>({})->size().height();
    card.ui<PlixBoxUI>({0, 0})->setHeight(33);
    Plix_RefreshLayout(card.controller());
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->size().height(), before + 13);
}

} // namespace
} // namespace plix::test
