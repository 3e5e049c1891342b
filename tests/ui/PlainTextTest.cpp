// The whole card as text, as a host reads it for notifications and searches.
#include "CardTree.h"
#include "ExampleCards.h"

#include "support/PlixTest.h"
#include "ui/PlixButtonUI.h"
#include "ui/text/PlixTextUI.h"

#include <QGraphicsObject>

#include <algorithm>

namespace plix::test {
namespace {

std::string plainTextOf(const TestCard& card)
{
    return card.root()->toGraphicsObject()->property("plainText").toString().toStdString();
}

std::string plainTextOf(const std::string& json)
{
    return plainTextOf(TestCard(json));
}

using PlainText = PlixTest;

TEST_F(PlainText, HasALineForEachRow)
{
    const std::string row = box("horizontal", text("Tea") + ',' + text("2.50"));
    const std::string card =
        bubbleWithBody(box("vertical", text("Order") + ',' + row + ',' + text("Thanks")));
    EXPECT_EQ(plainTextOf(card), "Order\nTea 2.50\nThanks");
}

TEST_F(PlainText, KeepsARowOfColumnsAndParagraphsOnOneLine)
{
    const std::string column = box("vertical", text("Two") + ',' + text("teas"));
    const std::string card =
        bubbleWithBody(box("baseline", column + ',' + text(R"(5.00\nin cash)")));
    EXPECT_EQ(plainTextOf(card), "Two teas 5.00 in cash");
}

TEST_F(PlainText, HasLabelsOfButtonsAndNothingOfItemsWithoutText)
{
    const std::string button =
        component("button", R"("action": {"type": "message", "label": "Pay", "text": "p"},)");
    const std::string icon = component("icon", R"("url": "a.png",)");
    const std::string card = bubbleWithBody(
        box("vertical",
            box("baseline", icon + ',' + text("now")) + ',' + component("separator") + ','
                + component("spacer") + ',' + box("vertical", "") + ',' + button));
    EXPECT_EQ(plainTextOf(card), "now\nPay");
}

TEST_F(PlainText, HasElidedTextsInFull)
{
    const std::string sentence = "A sentence that is much too long for a card as narrow as this";
    EXPECT_EQ(plainTextOf(bubbleWithBody(box("vertical", text(sentence)), R"("size": "nano",)")),
              sentence);
}

TEST_F(PlainText, HasAllZonesInTheirOrder)
{
    EXPECT_EQ(plainTextOf(R"({"type": "bubble", "footer": )" + box("vertical", text("end"))
                          + R"(, "body": )" + box("vertical", text("middle")) + R"(, "header": )"
                          + box("vertical", text("start")) + "}"),
              "start\nmiddle\nend");
}

TEST_F(PlainText, IsEmptyForACardWithoutData)
{
    EXPECT_EQ(plainTextOf("{}"), "");
}

TEST_F(PlainText, IsNotThatOfADeletedItem)
{
    const TestCard card(bubbleWithBody(box("vertical", text("stays") + ',' + text("goes"))));
    delete card.item({0, 1});
    EXPECT_EQ(plainTextOf(card), "stays");
}

std::string textOrLabelOf(const QGraphicsItem& item)
{
    if (const auto* const shown = dynamic_cast<const PlixTextUI*>(&item))
        return shown->toPlainText().toStdString();
    const auto* const button = dynamic_cast<const PlixButtonUI*>(&item);
    return button ? button->label().toStdString() : std::string();
}

std::string onOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

TEST_F(PlainText, HasEveryTextAndLabelOfTheExampleCards)
{
    for (const std::string& name : exampleNames()) {
        SCOPED_TRACE(name);
        const TestCard card(exampleCard(name), &showExamplePictures);
        const std::string all = onOneLine(plainTextOf(card));
        forEachItem(*card.root(), [&](QGraphicsItem& item) {
            const std::string words = onOneLine(textOrLabelOf(item));
            EXPECT_NE(all.find(words), std::string::npos) << words;
        });
    }
}

} // namespace
} // namespace plix::test
