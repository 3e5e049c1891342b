// Texts that have less room than they need, or just enough.
#include "../CardTree.h"
#include "../CardWriter.h"
#include "support/Pixels.h"
#include "support/PlixTest.h"
#include "ui/PlixBoxUI.h"
#include "ui/text/PlixTextUI.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace plix::test {
namespace {

constexpr int kMargin = 200;

// The smallest rectangle around all that `item` paints, in its own coordinates; empty when it
// paints nothing. It is painted alone, without the clips of its boxes.
QRect inkOf(PlixTextUI& item)
{
    const QRect area = item.boundingRect().toAlignedRect();
    QImage image(area.width() + 2 * kMargin, area.height() + 2 * kMargin, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(QPoint(kMargin, kMargin) - area.topLeft());
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.boundingRect();
    item.paint(&painter, &option, nullptr);
    painter.end();

    return boundsOfPixels(image, image.rect(),
                          [](QRgb pixel) { return pixel != qRgb(255, 255, 255); })
        .translated(area.topLeft() - QPoint(kMargin, kMargin));
}

void expectInkInside(PlixTextUI& item)
{
    const int width = static_cast<int>(item.layoutWidth());
    const QRect ink = inkOf(item);
    if (ink.isEmpty())
        return;
    EXPECT_GE(ink.left(), 0) << item.toPlainText().toStdString();
    EXPECT_LT(ink.right(), width) << item.toPlainText().toStdString();
}

using TextRoom = PlixTest;

TEST_F(TextRoom, OfZeroDrawsNothing)
{
    const TestCard card(bubbleWithBody(box(
        "horizontal",
        text("Address") + "," + text("12 Long Street Name, Some Far Away Town", R"("flex": 0,)"))));
    auto* item = card.ui<PlixTextUI>({0, 0});
    ASSERT_EQ(item->layoutWidth(), 0);
    EXPECT_EQ(item->boundingRect().width(), 0);
    EXPECT_EQ(item->boundingRect().height(), item->layoutHeight());
    EXPECT_TRUE(inkOf(*item).isEmpty());
    EXPECT_EQ(item->toPlainText(), QStringLiteral("Address"));
}

TEST_F(TextRoom, IsNeverExceededSideways)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        const std::string json = CardWriter(seed, CardWriter::Room::Any).card();
        SCOPED_TRACE(json);
        const TestCard card(json);
        forEachItem(*card.root(), [](QGraphicsItem& item) {
            if (auto* shown = dynamic_cast<PlixTextUI*>(&item))
                expectInkInside(*shown);
        });
        if (HasFailure())
            return;
    }
}

TEST_F(TextRoom, OfItalicTextEndsAtItsRectangle)
{
    for (const char* size : {"md", "5xl"}) {
        const std::string italic =
            std::string(R"("style": "italic", "align": "end", "flex": 0, "size": ")") + size
            + R"(", )";
        const TestCard card(
            bubbleWithBody(box("horizontal", text("Half", italic)), R"("size": "giga",)"));
        auto* item = card.ui<PlixTextUI>({0, 0});
        ASSERT_FALSE(inkOf(*item).isEmpty());
        expectInkInside(*item);
    }
}

std::string shownText(const std::string& words)
{
    const TestCard card(bubbleWithBody(box("vertical", text(words)), R"("size": "giga",)"));
    auto* item = card.ui<PlixTextUI>({0, 0});
    EXPECT_EQ(item->ShownLineCount(), 1);
    return std::to_string(item->boundingRect().width());
}

TEST_F(TextRoom, OfOneLineIncludesItsEllipsis)
{
    // The ellipsis stands for the lines that are not shown. It replaces no letter.
    EXPECT_EQ(shownText("Hello\\nWorld"), shownText("Hello…"));
    EXPECT_EQ(shownText("Hello\\nA longer second line"), shownText("A longer second line"));
    EXPECT_EQ(shownText("Hello\\n"), shownText("Hello"));
}

double leftOf(const std::string& words, const std::string& more)
{
    const TestCard card(bubbleWithBody(box("vertical", text(words, more))));
    auto* item = card.ui<PlixTextUI>({0, 0});
    return item->pos().x() + inkOf(*item).left();
}

double rightOf(const std::string& words, const std::string& more)
{
    const TestCard card(bubbleWithBody(box("vertical", text(words, more))));
    auto* item = card.ui<PlixTextUI>({0, 0});
    return item->pos().x() + inkOf(*item).right();
}

TEST_F(TextRoom, IsFilledFromTheRightByRightToLeftText)
{
    const std::string words = "שלום עולם";
    const std::string many = words + " " + words + " " + words + " " + words + " " + words;
    for (const char* more : {"", R"("wrap": true,)", R"("align": "start",)"}) {
        EXPECT_NEAR(rightOf(words, more), 280, 3) << "short, " << more;
        EXPECT_GT(leftOf(words, more), 150) << "short, " << more;
    }
    EXPECT_NEAR(rightOf(many, R"("wrap": true,)"), 280, 3) << "in lines";
    EXPECT_LT(leftOf("short", ""), 25) << "left-to-right texts from the left";
}

TEST_F(TextRoom, IsUsedAsAlignSaysInAnyScript)
{
    const std::string words = "שלום";
    EXPECT_NEAR(rightOf(words, R"("align": "end",)"), 280, 3);
    const std::string center = R"("align": "center",)";
    EXPECT_NEAR(leftOf(words, center) + rightOf(words, center), 300, 4);
}

} // namespace
} // namespace plix::test
