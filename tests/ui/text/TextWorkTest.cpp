// How often the texts of a card are shaped and broken into lines. Counts, because times
// say nothing on a busy machine.
#include "kestro_control/TextWork.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "ui/CardTree.h"
#include "ui/ExampleCards.h"

#include <kestro_control/TextItem.h>

#include <functional>
#include <memory>
#include <string>

namespace plix::test {
namespace {

kestro::TextWork workIn(const std::function<void()>& steps)
{
    const kestro::TextWork before = kestro::WorkSoFar();
    steps();
    return kestro::WorkSoFar() - before;
}

int paragraphsOf(QGraphicsItem& root)
{
    int count = 0;
    forEachItem(root, [&count](QGraphicsItem& item) {
        if (const auto* text = dynamic_cast<TextItem*>(&item))
            count += text->ParagraphDirections().size();
    });
    return count;
}

class TextWork : public PlixTest, public testing::WithParamInterface<std::string> { };

TEST_P(TextWork, IsOneShapingForEachParagraphAndNoDocument)
{
    std::unique_ptr<TestCard> card;
    const auto building = workIn([&card] {
        card = std::make_unique<TestCard>(exampleCard(GetParam()), showExamplePictures);
    });
    const int paragraphs = paragraphsOf(*card->root());
    EXPECT_EQ(building.documents, 0);
    EXPECT_EQ(building.shapings, paragraphs);
    EXPECT_LE(building.lineBreakings, 2 * paragraphs);

    const auto showing = workIn([&card] {
        const Picture before(*card->root());
        Plix_RefreshLayout(card->controller());
        const Picture after(*card->root());
    });
    EXPECT_EQ(showing.documents, 0);
    EXPECT_EQ(showing.shapings, 0);
    EXPECT_EQ(showing.lineBreakings, 0);
}

INSTANTIATE_TEST_SUITE_P(Cards, TextWork, testing::ValuesIn(exampleNames()),
                         [](const auto& card) { return card.param; });

} // namespace
} // namespace plix::test
