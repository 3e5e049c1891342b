// The work for a card grows with its size and not faster. Counted, because times say
// nothing on a busy machine.
#include "CardTree.h"
#include "Hazards.h"
#include "LayoutCosts.h"
#include "kestro_control/TextWork.h"
#include "layout/PlixLimits.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <QGraphicsScene>
#include <QImage>
#include <QPainter>

#include <array>

namespace plix::test {
namespace {

struct Count {
    const char* name;
    long value;
    // How much more may be added once.
    long allowance;
};

using Counts = std::array<Count, 7>;

void paint(QGraphicsItem& root)
{
    QGraphicsScene scene;
    scene.addItem(&root);
    QImage image(400, 400, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    scene.render(&painter);
    scene.removeItem(&root);
}

long itemsOf(QGraphicsItem& root)
{
    long count = 0;
    forEachItem(root, [&count](QGraphicsItem&) { ++count; });
    return count;
}

long costOfTexts(QGraphicsItem& root)
{
    long cost = 0;
    forEachItem(root, [&cost](QGraphicsItem& item) {
        if (const auto* const text = dynamic_cast<const TextItem*>(&item))
            cost += text->Cost();
    });
    return cost;
}

Counts workOf(const Hazard& hazard, int n)
{
    const kestro::TextWork before = kestro::WorkSoFar();
    const LayoutCosts costs;
    const TestCard card(hazard.json(n), [&](PlixDataController* controller) {
        PlixDisplayParam param;
        param.markupEnabled = hazard.hasMarkup;
        Plix_SetDisplayParam(controller, param);
    });
    paint(*card.root());
    Plix_RefreshLayout(card.controller());
    ignoreLog();
    const kestro::TextWork work = kestro::WorkSoFar() - before;
    // A text that is cut has a line with an ellipsis, which is tried in a few lengths.
    constexpr long kEllipsis = 17'000;
    return {{{"items", itemsOf(*card.root()), 10},
             {"visits", costs.visits(), 50},
             {"cost of texts", costOfTexts(*card.root()), 0},
             {"measured texts", costs.measureCalls(), 10},
             {"shaped characters", work.shapedCharacters, kEllipsis},
             {"broken paragraphs", work.lineBreakings, 10},
             {"searched characters", work.searchedCharacters, 0}}};
}

class HazardWork : public PlixTest, public testing::WithParamInterface<Hazard> { };

// For a card of twice the size. A tenth more, because small cards save a little.
long maximumFor(const Count& half)
{
    return 2 * half.value + half.value / 5 + half.allowance;
}

TEST_P(HazardWork, GrowsWithTheSizeOnly)
{
    Counts half = workOf(GetParam(), GetParam().n);
    for (const int factor : {2, 4}) {
        const Counts whole = workOf(GetParam(), factor * GetParam().n);
        for (std::size_t i = 0; i < whole.size(); ++i)
            EXPECT_LE(whole[i].value, maximumFor(half[i])) << whole[i].name << " x" << factor;
        half = whole;
    }
}

TEST_P(HazardWork, IsBoundedInTheLargestCard)
{
    const Hazard& hazard = GetParam();
    int n = hazard.n;
    while (hazard.json(2 * n).size() < 500'000)
        n *= 2;
    const Counts counts = workOf(hazard, n);
    EXPECT_LE(counts[0].value, 2 * kMaximumItems + kMaximumMentionStops + 2);
    EXPECT_LE(counts[1].value, 48L * 3 * (kMaximumItems + 2));
    // The start of a text costs, too, if nothing of it is shown.
    EXPECT_LE(counts[2].value, kMaximumTextCost + 8L * kMaximumItems);
}

INSTANTIATE_TEST_SUITE_P(Cards, HazardWork, testing::ValuesIn(hazards()), RowName());

} // namespace
} // namespace plix::test
