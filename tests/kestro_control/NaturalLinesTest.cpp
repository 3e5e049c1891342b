// The size of a text without a fixed width and a line limit.
#include "RandomTexts.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

namespace {

void expectSizeOfItself(TextItem& item)
{
    const TextItem::NaturalSize size = item.NaturalLines();
    EXPECT_EQ(size.width, item.boundingRect().width());
    EXPECT_EQ(size.lineCount, item.ShownLineCount());
}

class NaturalLines : public testing::TestWithParam<unsigned> { };

TEST_P(NaturalLines, AreThoseOfTheItemWithoutAWidthAndALimit)
{
    RandomTexts random(GetParam());
    for (int i = 0; i < 40 && !HasFailure(); ++i) {
        TextItem item;
        item.SetElide(random.oneIn(2));
        item.setFont(random.font());
        item.SetWrapMode(random.wrapMode());
        const QTextCharFormat format = random.format();
        item.InsertRichText(random.text(), true, &format);
        item.InsertRichText(random.text(), true);
        if (random.oneIn(4))
            item.document();
        expectSizeOfItself(item);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, NaturalLines, testing::Range(1U, 5U));

TEST(NaturalLinesOfAnItem, DoNotDependOnItsWidthAndItsLimit)
{
    TextItem item;
    item.InsertRichText(QStringLiteral("one two three four\nfive"), true);
    const TextItem::NaturalSize size = item.NaturalLines();
    EXPECT_EQ(size.lineCount, 2);
    item.SetFixedItemWidth(40);
    item.SetMaxLineCount(1);
    const QRectF before = item.boundingRect();
    EXPECT_EQ(item.NaturalLines().width, size.width);
    EXPECT_EQ(item.NaturalLines().lineCount, 2);
    EXPECT_EQ(item.boundingRect(), before);
    EXPECT_EQ(item.textWidth(), 40);
    EXPECT_EQ(item.ShownLineCount(), 1);
}

TEST(NaturalLinesOfAnItem, AreNoneWithoutText)
{
    const TextItem item;
    EXPECT_EQ(item.NaturalLines().width, 0);
    EXPECT_EQ(item.NaturalLines().lineCount, 0);
}

TEST(NaturalLinesOfAnItem, IncludeTheEllipsisOfATextBeyondTheDisplayLimit)
{
    TextItem item;
    item.SetElide(true);
    item.InsertRichText(QString(3000, QLatin1Char('a')), true);
    expectSizeOfItself(item);
    EXPECT_TRUE(item.IsElided());
}

} // namespace
