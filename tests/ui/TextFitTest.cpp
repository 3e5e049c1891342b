// In any card, texts get the height that their width needs.
#include "CardTree.h"
#include "CardWriter.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDataText.h"
#include "support/PlixTest.h"
#include "ui/PlixBoxUI.h"
#include "ui/text/PlixTextUI.h"

#include <QTextBlock>
#include <QTextDocument>

#include <cmath>

namespace plix::test {
namespace {

std::shared_ptr<PlixDataItem> dataOf(const QGraphicsItem& item)
{
    return PlixItemRegistry::GetInstance().Find(item.data(kDataItemRole).toLongLong());
}

// The height of the shown lines of `item` in another width, measured with a new TextItem.
double neededHeight(const PlixTextUI& item, double width)
{
    const auto data = std::dynamic_pointer_cast<PlixDataText>(dataOf(item));
    TextItem fresh;
    fresh.setFont(item.font());
    fresh.SetElide(true);
    fresh.SetWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    fresh.document()->setDefaultTextOption(item.document()->defaultTextOption());
    for (QTextBlock block = item.document()->begin(); block.isValid(); block = block.next()) {
        for (auto run = block.begin(); !run.atEnd(); ++run) {
            const QTextCharFormat format = run.fragment().charFormat();
            fresh.InsertRichText(run.fragment().text(), true, &format);
        }
    }
    if (!data->GetWrap())
        fresh.SetMaxLineCount(1);
    else if (data->GetSpans().empty())
        fresh.SetMaxLineCount(data->GetMaxLines());
    fresh.SetFixedItemWidth(width);
    return std::trunc(fresh.boundingRect().height());
}

// The height that the content of an item needs at the widths that its texts have.
double neededHeight(YogaLayoutItem& item)
{
    if (const auto* shown = dynamic_cast<PlixTextUI*>(&item))
        return neededHeight(*shown, shown->boundingRect().width());
    auto& parent = dynamic_cast<PlixBoxUI&>(item);
    const auto data = std::dynamic_pointer_cast<PlixDataBox>(dataOf(parent));
    double sum = 0;
    double ascent = 0;
    double descent = 0;
    for (int i = 0; i < parent.childCount(); ++i) {
        YogaLayoutItem& child = *parent.childAt(i);
        const double height = neededHeight(child);
        const double above = data->IsBaseline() ? child.baseline(0, 0) : height;
        ascent = std::max(ascent, above);
        descent = std::max(descent, height - above);
        sum += height + child.marginTop();
    }
    return parent.paddingTop() + parent.paddingBottom()
        + (data->IsVertical() ? sum : ascent + descent);
}

void expectTextFits(const PlixTextUI& item)
{
    const QRectF given = item.YogaLayoutItem::geometry();
    // Rectangles are rounded outwards to whole pixels.
    const double width = item.boundingRect().width();
    EXPECT_GT(width, given.width() - 2);
    EXPECT_LE(width, given.width());
    const double needed = neededHeight(item, width);
    const auto* parent = dynamic_cast<PlixBoxUI*>(item.YogaLayoutItem::parentItem());
    ASSERT_NE(parent, nullptr);
    if (parent->orientation() == Qt::Vertical)
        EXPECT_EQ(given.height(), needed);
    else
        EXPECT_GE(given.height(), needed);
    EXPECT_EQ(std::trunc(item.boundingRect().height()), needed) << "shown as it was measured";
    const QRectF inside = QRectF(QPointF(), parent->size())
                              .adjusted(parent->paddingLeft(), parent->paddingTop(),
                                        -parent->paddingRight(), -parent->paddingBottom());
    EXPECT_TRUE(inside.adjusted(-1, 0, 1, 0).contains(item.mapRectToParent(item.boundingRect())));
}

// The rectangle of an item. Texts have a width that is not rounded.
QRectF rectOf(YogaLayoutItem& item)
{
    const auto& shown = dynamic_cast<QGraphicsItem&>(item);
    return {shown.pos(), QSizeF(shown.boundingRect().width(), item.layoutHeight())};
}

void expectNoOverlap(const YogaLayoutItem& parent, bool rightToLeft)
{
    for (int i = 1; i < parent.childCount(); ++i) {
        const QRectF before = rectOf(*parent.childAt(i - 1));
        const QRectF after = rectOf(*parent.childAt(i));
        if (parent.orientation() == Qt::Vertical)
            EXPECT_GE(after.top(), before.bottom());
        else if (rightToLeft)
            EXPECT_LE(after.right(), before.left() + 1);
        else
            EXPECT_GE(after.left(), before.right() - 1);
    }
}

void expectOneBaseline(const PlixBoxUI& row)
{
    for (int i = 1; i < row.childCount(); ++i) {
        const auto lineOf = [&](int index) {
            const auto* item = dynamic_cast<PlixTextUI*>(row.childAt(index));
            return item->pos().y() + std::trunc(item->FirstLineAscent());
        };
        EXPECT_NEAR(lineOf(i), lineOf(0), 1);
    }
}

void expectAllFits(const TestCard& card)
{
    const bool rightToLeft = card.bubbleData()->IsRightToLeft();
    forEachItem(*card.root(), [&](QGraphicsItem& item) {
        if (const auto* shown = dynamic_cast<PlixTextUI*>(&item))
            expectTextFits(*shown);
        const auto* parent = dynamic_cast<PlixBoxUI*>(&item);
        if (!parent)
            return;
        expectNoOverlap(*parent, rightToLeft);
        if (std::dynamic_pointer_cast<PlixDataBox>(dataOf(item))->IsBaseline())
            expectOneBaseline(*parent);
    });
}

// An edge between two pixels may be rounded either way.
void expectSame(const std::vector<QRectF>& after, const std::vector<QRectF>& before)
{
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_NEAR(after[i].left(), before[i].left(), 1);
        EXPECT_NEAR(after[i].width(), before[i].width(), 1);
        EXPECT_EQ(after[i].top(), before[i].top());
        EXPECT_EQ(after[i].height(), before[i].height());
    }
}

// The next layout measures every text again. Without a change it would do nothing.
void makeTextsDirty(QGraphicsItem& root)
{
    forEachItem(root, [](QGraphicsItem& item) {
        if (auto* shown = dynamic_cast<PlixTextUI*>(&item))
            shown->markDirty();
    });
}

// Its content needs 502 pixels. The first layouts place it in these, a refresh in 500.
constexpr unsigned kSeedOfACardThatGetsLower = 3036;

class GeneratedCard : public PlixTest, public testing::WithParamInterface<unsigned> { };

TEST_P(GeneratedCard, GivesItsTextsTheHeightTheyNeed)
{
    for (unsigned i = 0; i < 20; ++i) {
        const std::string json = CardWriter(GetParam() * 1000 + i).card();
        SCOPED_TRACE(json);
        const TestCard card(json);
        expectAllFits(card);
        YogaLayoutItem& body = *card.ui<PlixBoxUI>({0});
        EXPECT_EQ(body.layoutHeight(), neededHeight(body)) << "no more and no less";
        if (HasFailure())
            return;
    }
}

TEST_P(GeneratedCard, DoesNotChangeWhenItIsLaidOutAgain)
{
    for (unsigned i = 0; i < 20; ++i) {
        const std::string json = CardWriter(GetParam() * 1000 + i).card();
        SCOPED_TRACE(json);
        const TestCard card(json);
        const std::vector<QRectF> before = geometryOf(*card.root());
        makeTextsDirty(*card.root());
        Plix_RefreshLayout(card.controller());
        expectSame(geometryOf(*card.root()), before);
        expectAllFits(card);
        makeTextsDirty(*card.root());
        EXPECT_EQ(Plix_ModifyHeight(card.controller(), 0), 0);
        expectSame(geometryOf(*card.root()), before);
        if (HasFailure())
            return;
    }
}

TEST_P(GeneratedCard, DoesNotChangeWhenItIsLaidOutAgainWithLittleRoom)
{
    for (unsigned i = 0; i < 40; ++i) {
        const unsigned seed = GetParam() * 1000 + i;
        const std::string json = CardWriter(seed, CardWriter::Room::Any).card();
        SCOPED_TRACE(json);
        const TestCard card(json);
        if (hasEmptiedText(*card.root()) || seed == kSeedOfACardThatGetsLower)
            continue;
        const std::vector<QRectF> before = geometryOf(*card.root());
        makeTextsDirty(*card.root());
        Plix_RefreshLayout(card.controller());
        EXPECT_EQ(geometryOf(*card.root()), before) << "refreshed";
        makeTextsDirty(*card.root());
        EXPECT_EQ(Plix_ModifyHeight(card.controller(), 0), 0);
        EXPECT_EQ(geometryOf(*card.root()), before) << "modified";
        if (HasFailure())
            return;
    }
}

TEST_P(GeneratedCard, GivesItsTextsTheHeightTheyNeedWhenTheCardGrows)
{
    for (unsigned i = 0; i < 10; ++i) {
        const std::string json = CardWriter(GetParam() * 1000 + i).card();
        SCOPED_TRACE(json);
        const TestCard card(json);
        const int height = static_cast<int>(card.root()->boundingRect().height()) + 100;
        EXPECT_EQ(Plix_ModifyHeight(card.controller(), height), 0);
        EXPECT_EQ(card.root()->boundingRect().height(), height);
        expectAllFits(card);
        const std::vector<QRectF> before = geometryOf(*card.root());
        makeTextsDirty(*card.root());
        Plix_RefreshLayout(card.controller());
        expectSame(geometryOf(*card.root()), before);
        if (HasFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GeneratedCard, testing::Range(1U, 21U));

using TextFit = PlixTest;

constexpr char kLong[] = "one two three four five six seven eight nine ten eleven twelve";
constexpr char kWrap[] = R"("wrap": true,)";

TEST_F(TextFit, AppliesToAbsoluteBoxes)
{
    for (const char* width : {"90px", "50%", "133px", "33%"}) {
        const TestCard card(bubbleWithBody(
            box("vertical",
                box("vertical", text(kLong, kWrap) + "," + text("short"),
                    std::string(R"("position": "absolute", "offsetTop": "10px", "width": ")")
                        + width + "\","),
                R"("height": "300px",)")));
        auto* item = card.ui<PlixTextUI>({0, 0, 0});
        EXPECT_EQ(item->layoutHeight(), neededHeight(*item, item->layoutWidth()));
        EXPECT_GT(item->ShownLineCount(), 1);
        EXPECT_GE(card.item({0, 0, 1})->pos().y(), item->YogaLayoutItem::geometry().bottom());
    }
}

TEST_F(TextFit, GivesTextsOfSeveralSizesOneBaseline)
{
    const TestCard card(bubbleWithBody(
        box("baseline",
            text("Total", R"("size": "xxs",)") + "," + text("总计", R"("size": "xs",)") + ","
                + text("42", R"("size": "xxl",)") + "," + text("円です", R"("size": "md",)") + ","
                + text("yen", R"("size": "sm",)"),
            R"("spacing": "sm",)"),
        R"("size": "giga",)"));
    expectOneBaseline(*card.ui<PlixBoxUI>({0}));
    EXPECT_GT(card.item({0, 0})->pos().y(), card.item({0, 2})->pos().y() + 5);
}

TEST_F(TextFit, GivesATextTheHeightThatEveryWidthNeeds)
{
    for (int width = 40; width < 200; ++width) {
        const TestCard card(
            bubbleWithBody(box("vertical",
                               box("vertical", text(kLong, kWrap),
                                   R"("width": ")" + std::to_string(width) + "px\","))));
        const auto* item = card.ui<PlixTextUI>({0, 0, 0});
        ASSERT_EQ(item->layoutWidth(), width);
        ASSERT_EQ(item->layoutHeight(), neededHeight(*item, width));
    }
}

} // namespace
} // namespace plix::test
