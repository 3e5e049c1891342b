// What a new font family of the host changes in cards that are shown.
#include "CardTree.h"
#include "CardWriter.h"
#include "support/FontFamilyHost.h"
#include "support/PlixTest.h"
#include "ui/PlixButtonUI.h"
#include "ui/text/PlixTextUI.h"

#include <QTextBlock>
#include <QTextDocument>

namespace plix::test {
namespace {

class FontChange : public PlixTest {
protected:
    FontFamilyHost host_;
};

constexpr unsigned kCards = 150;

// A card of all items that have a font: texts with spans, buttons, and texts of every kind
// of width.
std::string cardWithFonts()
{
    const std::string label = R"("action": {"type": "uri", "uri": "a", "label": "Press here"},)";
    const std::string spans = R"("wrap": true, "contents": [)"
        + component("span", R"("text": "a span that is long enough to wrap",)") + ","
        + component("span", R"("text": " and another one", "size": "xl", "weight": "bold",)")
        + "],";
    return bubbleWithBody(
        box("vertical",
            component("text", spans) + ","
                + text("one two three four five six seven eight nine ten", R"("wrap": true,)") + ","
                + text("only one line, however long that line is, and cut", "") + ","
                + box("horizontal",
                      component("button", label + R"("flex": 0,)") + ","
                          + text("beside", R"("flex": 0,)") + "," + text("the rest"))
                + "," + component("button", label)));
}

std::string generatedCard(unsigned seed)
{
    return seed == 0 ? cardWithFonts() : CardWriter(seed, CardWriter::Room::Any).card();
}

void expectFamily(const PlixTextUI& item, const QString& family)
{
    EXPECT_EQ(item.font().family(), family);
    for (QTextBlock block = item.document()->begin(); block.isValid(); block = block.next()) {
        for (auto run = block.begin(); !run.atEnd(); ++run) {
            const QFont font = run.fragment().charFormat().font().resolve(item.font());
            EXPECT_EQ(font.family(), family) << run.fragment().text().toStdString();
        }
    }
}

TEST_F(FontChange, ReachesEveryTextSpanAndLabelAtOnce)
{
    for (unsigned seed = 0; seed < kCards; ++seed) {
        SCOPED_TRACE(seed);
        host_.resetFamily();
        const TestCard card(generatedCard(seed));
        host_.changeFamily();
        forEachItem(*card.root(), [this](QGraphicsItem& item) {
            if (const auto* shown = dynamic_cast<PlixTextUI*>(&item))
                expectFamily(*shown, host_.family);
            if (const auto* button = dynamic_cast<PlixButtonUI*>(&item)) {
                EXPECT_EQ(button->labelFont().family(), host_.family);
            }
        });
        if (HasFailure())
            return;
    }
}

TEST_F(FontChange, KeepsTheWidthOfTexts)
{
    for (unsigned seed = 0; seed < kCards; ++seed) {
        SCOPED_TRACE(seed);
        host_.resetFamily();
        const TestCard card(generatedCard(seed));
        std::vector<double> before;
        forEachItem(*card.root(), [&](QGraphicsItem& item) {
            before.push_back(item.boundingRect().translated(item.pos()).right());
        });
        host_.changeFamily();
        auto width = before.begin();
        forEachItem(*card.root(), [&](QGraphicsItem& item) {
            EXPECT_EQ(item.boundingRect().translated(item.pos()).right(), *width++);
        });
        if (HasFailure())
            return;
    }
}

TEST_F(FontChange, KeepsTheHeightOfTextsOfSeveralLines)
{
    bool isAnyShorter = false;
    for (unsigned seed = 0; seed < kCards; ++seed) {
        SCOPED_TRACE(seed);
        host_.resetFamily();
        const TestCard card(generatedCard(seed));
        host_.changeFamily();
        forEachItem(*card.root(), [&](QGraphicsItem& item) {
            const auto* shown = dynamic_cast<PlixTextUI*>(&item);
            if (!shown || shown->ShownLineCount() < 2)
                return;
            EXPECT_LE(shown->boundingRect().height(), shown->layoutHeight() + 4);
            isAnyShorter = isAnyShorter || shown->IsElided();
        });
        if (HasFailure())
            return;
    }
    EXPECT_TRUE(isAnyShorter);
}

TEST_F(FontChange, MakesTheCardEqualToANewOneInTheNextLayout)
{
    for (unsigned seed = 0; seed < kCards; ++seed) {
        SCOPED_TRACE(generatedCard(seed));
        host_.resetFamily();
        const TestCard refreshed(generatedCard(seed));
        const TestCard modified(generatedCard(seed));
        if (hasEmptiedText(*refreshed.root()))
            continue;
        host_.changeFamily();
        Plix_RefreshLayout(refreshed.controller());
        Plix_ModifyHeight(modified.controller(), 0);
        const TestCard fresh(generatedCard(seed));
        EXPECT_EQ(geometryOf(*refreshed.root()), geometryOf(*fresh.root()));
        EXPECT_EQ(geometryOf(*modified.root()), geometryOf(*fresh.root()));
        if (HasFailure())
            return;
    }
}

TEST_F(FontChange, SetsTheNaturalWidthOfTheNewFamily)
{
    const TestCard card(
        bubbleWithBody(box("horizontal", text("natural", R"("flex": 0,)") + "," + text("rest"))));
    auto* item = card.ui<PlixTextUI>({0, 0});
    YGUnit unit = YGUnitUndefined;
    const float before = item->styleWidth(unit);
    host_.changeFamily();
    EXPECT_NE(item->styleWidth(unit), before);
    Plix_RefreshLayout(card.controller());
    EXPECT_EQ(item->layoutWidth(), item->styleWidth(unit));
}

} // namespace
} // namespace plix::test
