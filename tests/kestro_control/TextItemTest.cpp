// The text of a TextItem, and the lines and rectangle that it shows.
#include "Ink.h"

#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QTextDocument>
#include <QTextFrame>

#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <utility>

namespace {

constexpr int kPixelSize = 16;

struct TestItem : TextItem {
    TestItem()
    {
        QFont testFont(QStringLiteral("DejaVu Sans"));
        testFont.setPixelSize(kPixelSize);
        setFont(testFont);
    }

    explicit TestItem(const QString& text)
        : TestItem()
    {
        InsertRichText(text, true);
    }

    qreal lineHeight() const { return QFontMetricsF(font()).height(); }
};

const QString kThreeWords = QStringLiteral("alpha beta gamma");

// The width of the widest word, in which every word is a line.
qreal oneWordWidth(const TextItem& item)
{
    return std::ceil(QFontMetricsF(item.font()).horizontalAdvance(QStringLiteral("gamma"))) + 1;
}

TEST(TextItemLines, AreNoneWithoutText)
{
    const TestItem item;
    EXPECT_EQ(item.ShownLineCount(), 0);
    EXPECT_EQ(item.boundingRect(), QRectF(0, 0, 0, 0));
    EXPECT_FALSE(item.IsElided());
    EXPECT_EQ(item.FirstLineAscent(), QFontMetricsF(item.font()).ascent());
}

TEST(TextItemLines, BeginAtTheseCharacters)
{
    TestItem item(kThreeWords + QStringLiteral("\ndelta"));
    item.SetFixedItemWidth(oneWordWidth(item));
    EXPECT_EQ(item.ShownLineStarts(), (QVector<int> {0, 6, 11, 17}));
    item.SetMaxLineCount(2);
    EXPECT_EQ(item.ShownLineStarts(), (QVector<int> {0, 6}));
    EXPECT_EQ(TestItem().ShownLineStarts(), QVector<int>());
}

TEST(TextItemBoundingRect, KeepsTheFixedWidthWithoutText)
{
    TestItem item;
    item.SetFixedItemWidth(120);
    EXPECT_EQ(item.boundingRect(), QRectF(0, 0, 120, 0));
}

TEST(TextItemBoundingRect, HasTheNaturalWidthOfOneLine)
{
    const TestItem item(kThreeWords);
    EXPECT_EQ(item.ShownLineCount(), 1);
    EXPECT_EQ(item.boundingRect().topLeft(), QPointF(0, 0));
    EXPECT_NEAR(item.boundingRect().width(),
                QFontMetricsF(item.font()).horizontalAdvance(kThreeWords), 1);
    EXPECT_NEAR(item.boundingRect().height(), item.lineHeight(), 1);
}

TEST(TextItemBoundingRect, IsAsWideAsTheWidestShownLine)
{
    TestItem item(QStringLiteral("ab\nabcd\nabcdefghijkl"));
    const qreal all = item.boundingRect().width();
    item.SetMaxLineCount(2);
    EXPECT_LT(item.boundingRect().width(), all);
    EXPECT_EQ(item.boundingRect().width(), TestItem(QStringLiteral("abcd")).boundingRect().width());
}

TEST(TextItemLines, WrapAtTheFixedWidth)
{
    TestItem item(kThreeWords);
    const qreal lineHeight = item.boundingRect().height();
    item.SetFixedItemWidth(oneWordWidth(item));
    EXPECT_EQ(item.ShownLineCount(), 3);
    EXPECT_EQ(item.boundingRect().width(), oneWordWidth(item));
    EXPECT_NEAR(item.boundingRect().height(), 3 * lineHeight, 3);
}

TEST(TextItemLines, IncludeEmptyParagraphs)
{
    EXPECT_EQ(TestItem(QStringLiteral("\n")).ShownLineCount(), 2);
    EXPECT_EQ(TestItem(QStringLiteral("a\n\nb")).ShownLineCount(), 3);
    EXPECT_GT(TestItem(QStringLiteral("a\n\nb")).boundingRect().height(),
              TestItem(QStringLiteral("a\nb")).boundingRect().height());
}

TEST(TextItemLineLimit, ReducesTheBoundingRect)
{
    TestItem item(QStringLiteral("a\nb\nc"));
    const QRectF all = item.boundingRect();
    item.SetMaxLineCount(1);
    EXPECT_EQ(item.ShownLineCount(), 1);
    EXPECT_NEAR(item.boundingRect().height(), all.height() / 3, 1);
    EXPECT_FALSE(item.IsElided());
    EXPECT_EQ(item.toPlainText(), QStringLiteral("a\nb\nc"));
}

TEST(TextItemLineLimit, IsOffWhenZeroOrNegative)
{
    TestItem item(QStringLiteral("a\nb\nc"));
    for (int limit : {0, -1, std::numeric_limits<int>::min()}) {
        item.SetMaxLineCount(1);
        item.SetMaxLineCount(limit);
        EXPECT_EQ(item.ShownLineCount(), 3) << limit;
    }
}

TEST(TextItemLineLimit, HasNoEffectWhenTheTextIsShorter)
{
    TestItem item(QStringLiteral("a\nb"));
    const QRectF all = item.boundingRect();
    item.SetMaxLineCount(std::numeric_limits<int>::max());
    EXPECT_EQ(item.boundingRect(), all);
}

class TextItemInvalidWidth : public testing::TestWithParam<qreal> { };

TEST_P(TextItemInvalidWidth, RestoresTheNaturalWidth)
{
    TestItem item(kThreeWords);
    const QRectF natural = item.boundingRect();
    item.SetFixedItemWidth(oneWordWidth(item));
    item.SetFixedItemWidth(GetParam());
    EXPECT_EQ(item.boundingRect(), natural);
    EXPECT_EQ(item.textWidth(), -1);
}

INSTANTIATE_TEST_SUITE_P(Values, TextItemInvalidWidth,
                         testing::Values(-1.0, -1e300, std::numeric_limits<qreal>::quiet_NaN(),
                                         std::numeric_limits<qreal>::infinity(),
                                         -std::numeric_limits<qreal>::infinity()));

TEST(TextItemZeroWidth, KeepsTheHeightAndShowsNothing)
{
    TestItem item(kThreeWords);
    const QRectF natural = item.boundingRect();
    item.SetFixedItemWidth(0);
    EXPECT_EQ(item.boundingRect(), QRectF(0, natural.top(), 0, natural.height()));
    EXPECT_EQ(item.textWidth(), 0);
    EXPECT_TRUE(Ink(item).rect().isEmpty());
    EXPECT_EQ(item.toPlainText(), kThreeWords);
}

TEST(TextItemZeroWidth, EndsWithAnyOtherWidth)
{
    TestItem item(kThreeWords);
    const QRectF natural = item.boundingRect();
    for (const qreal width : {-1.0, 500.0}) {
        item.SetFixedItemWidth(0);
        item.SetFixedItemWidth(width);
        EXPECT_EQ(item.boundingRect().width(), width > 0 ? width : natural.width());
        EXPECT_FALSE(Ink(item).rect().isEmpty());
    }
    item.SetFixedItemWidth(0);
    item.adjustSize();
    EXPECT_FALSE(Ink(item).rect().isEmpty());
}

TEST(TextItemEdges, ClipLinesThatAreTooWide)
{
    TestItem item(QStringLiteral("WWWWWWWW"));
    item.SetWrapMode(QTextOption::NoWrap);
    item.SetFixedItemWidth(50);
    const QRectF ink = Ink(item).rect();
    EXPECT_GE(ink.left(), 0);
    EXPECT_LE(ink.right(), 50);
    EXPECT_GT(ink.right(), 45);
}

TEST(TextItemWidth, HasAMaximum)
{
    TestItem item(kThreeWords);
    item.SetFixedItemWidth(1e300);
    EXPECT_EQ(item.ShownLineCount(), 1);
    EXPECT_LT(item.boundingRect().width(), 1e7);
    EXPECT_GT(item.boundingRect().width(), 1e5);
}

TEST(TextItemWidth, MayBeSmallerThanAPixel)
{
    TestItem item(kThreeWords);
    item.SetFixedItemWidth(0.001);
    EXPECT_GT(item.ShownLineCount(), 3);
    EXPECT_EQ(item.boundingRect().width(), 0.001);
}

struct NamedText {
    const char* name;
    const char* text;

    friend std::ostream& operator<<(std::ostream& out, const NamedText& row)
    {
        return out << row.name;
    }
};

// A text must not wrap at its own natural width.
class TextItemNaturalWidth : public testing::TestWithParam<NamedText> { };

TEST_P(TextItemNaturalWidth, FitsTheTextOnOneLine)
{
    for (bool italic : {false, true}) {
        TestItem item(QString::fromUtf8(GetParam().text));
        QFont font = item.font();
        font.setItalic(italic);
        item.setFont(font);
        item.SetElide(true);
        const QRectF natural = item.boundingRect();
        item.SetFixedItemWidth(natural.width());
        EXPECT_EQ(item.ShownLineCount(), 1);
        EXPECT_FALSE(item.IsElided());
        EXPECT_EQ(item.boundingRect(), natural);
    }
}

INSTANTIATE_TEST_SUITE_P(Scripts, TextItemNaturalWidth,
                         testing::Values(NamedText {"Latin", "Waffles for Taffy, off"},
                                         NamedText {"LatinWithTrailingSpaces", "off   "},
                                         NamedText {"Chinese", "晚上一起吃饭吗"},
                                         NamedText {"Arabic", "مرحبا بكم جميعا"},
                                         NamedText {"Hebrew", "שלום לכולם"},
                                         NamedText {"Emoji", "👨‍👩‍👧👍🏽🇩🇪"}),
                         plix::test::RowName());

TEST(TextItemText, IsInsertedAtTheEndOrAtTheStart)
{
    TestItem item;
    item.InsertRichText(QStringLiteral("b"), true);
    item.InsertRichText(QStringLiteral("c"), true);
    item.InsertRichText(QStringLiteral("a"), false);
    EXPECT_EQ(item.toPlainText(), QStringLiteral("abc"));
}

TEST(TextItemText, IsNeverReadAsHtml)
{
    const QString html = QStringLiteral("<b>&amp;</b><br/><img src=\"x\">");
    const TestItem item(html);
    EXPECT_EQ(item.toPlainText(), html);
    EXPECT_EQ(item.ShownLineCount(), 1);
}

TEST(TextItemText, IsReplacedBySetPlainText)
{
    TestItem item(QStringLiteral("a\nb\nc"));
    item.setPlainText(QStringLiteral("x\ny"));
    EXPECT_EQ(item.toPlainText(), QStringLiteral("x\ny"));
    EXPECT_EQ(item.ShownLineCount(), 2);
}

TEST(TextItemClearText, KeepsFontWidthAndFrameFormat)
{
    TestItem item(kThreeWords);
    const QFont font = item.font();
    item.SetFixedItemWidth(90);
    QTextFrameFormat format = item.document()->rootFrame()->frameFormat();
    format.setTopMargin(30);
    item.document()->rootFrame()->setFrameFormat(format);

    item.ClearText();
    EXPECT_EQ(item.toPlainText(), QString());
    EXPECT_EQ(item.boundingRect().size(), QSizeF(90, 0));

    item.InsertRichText(kThreeWords, true);
    EXPECT_EQ(item.font(), font);
    EXPECT_EQ(item.boundingRect().top(), 30);
}

TEST(TextItemClearText, RemovesTheFormatsOfTheText)
{
    QTextCharFormat big;
    big.setFontPointSize(60);
    QTextBlockFormat spaced;
    spaced.setTopMargin(40);
    TestItem item;
    item.InsertRichText(QStringLiteral("a\nb"), true, &big);
    QTextCursor cursor = item.textCursor();
    cursor.select(QTextCursor::Document);
    cursor.setBlockCharFormat(big);
    cursor.setBlockFormat(spaced);
    item.ClearText();
    item.InsertRichText(QStringLiteral("\na"), true);
    EXPECT_EQ(item.boundingRect(), TestItem(QStringLiteral("\na")).boundingRect());
}

TEST(TextItemText, MayContainUnusualCharacters)
{
    const QChar nul(0);
    const QChar highSurrogate(0xD83D);
    const QChar lowSurrogate(0xDE00);
    const QChar noncharacter(0xFFFF);
    const QChar inlineObject(QChar::ObjectReplacementCharacter);
    for (QChar unusual : {nul, QChar(1), QChar(0x1B), QChar(0x7F), highSurrogate, lowSurrogate,
                          noncharacter, inlineObject}) {
        TestItem item(QStringLiteral("a") + unusual + QStringLiteral("b "));
        item.InsertRichText(QString(40, unusual), true);
        EXPECT_EQ(item.toPlainText(),
                  QStringLiteral("a") + unusual + QStringLiteral("b ") + QString(40, unusual));
        EXPECT_EQ(item.ShownLineCount(), 1);
        item.SetElide(true);
        item.SetMaxLineCount(1);
        item.SetFixedItemWidth(12);
        EXPECT_EQ(item.ShownLineCount(), 1);
    }
}

TEST(TextItemFormats, OverrideTheFontOfTheItem)
{
    QTextCharFormat big;
    QFont bigFont = TestItem().font();
    bigFont.setPixelSize(3 * kPixelSize);
    big.setFont(bigFont);
    TestItem item(QStringLiteral("small "));
    const QRectF small = item.boundingRect();
    item.InsertRichText(QStringLiteral("big"), true, &big);
    EXPECT_NEAR(item.boundingRect().height(), 3 * small.height(), 3);
}

TEST(TextItemFont, AppliesToTextWithoutAFormat)
{
    TestItem item(kThreeWords);
    const QRectF before = item.boundingRect();
    QFont font = item.font();
    font.setPixelSize(2 * kPixelSize);
    item.setFont(font);
    EXPECT_NEAR(item.boundingRect().width(), 2 * before.width(), 2);
}

TEST(TextItemWrapMode, DecidesWhetherLinesWrap)
{
    TestItem item(kThreeWords);
    item.SetFixedItemWidth(oneWordWidth(item));
    item.SetWrapMode(QTextOption::NoWrap);
    EXPECT_EQ(item.ShownLineCount(), 1);
    item.SetWrapMode(QTextOption::WordWrap);
    EXPECT_EQ(item.ShownLineCount(), 3);
}

TEST(TextItemWrapMode, IgnoresUnknownValues)
{
    TestItem item(kThreeWords);
    item.SetFixedItemWidth(oneWordWidth(item));
    item.SetWrapMode(static_cast<QTextOption::WrapMode>(7));
    EXPECT_EQ(item.ShownLineCount(), 3);
    EXPECT_EQ(item.document()->defaultTextOption().wrapMode(),
              QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST(TextItemDocument, MovesTheTextDownByItsFrameMargin)
{
    TestItem item(kThreeWords);
    const QRectF before = item.boundingRect();
    const qreal ascent = item.FirstLineAscent();

    QTextFrameFormat format = item.document()->rootFrame()->frameFormat();
    format.setBorder(0);
    format.setHeight(200);
    format.setTopMargin(70);
    item.document()->rootFrame()->setFrameFormat(format);
    EXPECT_EQ(item.boundingRect(), before.translated(0, 70));
    EXPECT_EQ(item.FirstLineAscent(), ascent);
}

TEST(TextItemDocument, IsLaidOutOncePerWidth)
{
    TestItem item(kThreeWords);
    item.SetFixedItemWidth(70);
    item.boundingRect();

    int layouts = 0;
    QObject::connect(item.document()->documentLayout(), &QAbstractTextDocumentLayout::update,
                     [&layouts] { ++layouts; });
    item.SetFixedItemWidth(70);
    item.SetMaxLineCount(1);
    item.SetElide(true);
    item.setFont(item.font());
    item.SetWrapMode(item.document()->defaultTextOption().wrapMode());
    item.boundingRect();
    item.sizeHint(Qt::PreferredSize);
    EXPECT_EQ(layouts, 0);

    item.SetFixedItemWidth(80);
    item.boundingRect();
    EXPECT_EQ(layouts, 1);
}

TEST(TextItemDocument, IsLaidOutOnceWhenSpansAreInsertedFirst)
{
    TestItem item;
    for (int i = 0; i < 10; ++i)
        item.InsertRichText(kThreeWords, true);
    int layouts = 0;
    // documentLayout() creates the layout and lays out the text for the first time.
    QObject::connect(item.document()->documentLayout(), &QAbstractTextDocumentLayout::update,
                     [&layouts] { ++layouts; });
    item.boundingRect();
    EXPECT_EQ(layouts, 0);
    for (qreal width : {100.0, 100.0, 60.0, 60.0, -1.0, -1.0}) {
        item.SetFixedItemWidth(width);
        item.boundingRect();
        item.ShownLineCount();
        item.sizeHint(Qt::PreferredSize);
    }
    EXPECT_EQ(layouts, 3);
}

TEST(TextItemProperties, ReturnWhatIsShown)
{
    TestItem item(QStringLiteral("one\ntwo\nthree"));
    item.SetMaxLineCount(2);
    item.SetElide(true);
    EXPECT_EQ(item.property("plainText").toString(), QStringLiteral("one\ntwo\nthree"));
    EXPECT_EQ(item.property("shownLineCount").toInt(), 2);
    EXPECT_TRUE(item.property("elided").toBool());
    EXPECT_EQ(item.property("font").value<QFont>(), item.font());
}

TEST(TextItemLayoutItem, HintsItsHeightOnly)
{
    TestItem item(kThreeWords);
    const QSizeF hint(-1, item.boundingRect().height());
    EXPECT_EQ(item.sizeHint(Qt::MinimumSize), hint);
    EXPECT_EQ(item.sizeHint(Qt::PreferredSize), hint);
    EXPECT_EQ(item.sizeHint(Qt::MaximumSize), hint);
    EXPECT_EQ(item.sizeHint(Qt::MinimumDescent), QSizeF(-1, -1));
}

TEST(TextItemLayoutItem, UpdatesItsHintWhenTheTextChanges)
{
    TestItem item(QStringLiteral("a"));
    const qreal oneLine = item.effectiveSizeHint(Qt::PreferredSize).height();
    item.InsertRichText(QStringLiteral("\nb"), true);
    EXPECT_GT(item.effectiveSizeHint(Qt::PreferredSize).height(), oneLine);
}

TEST(TextItemLayoutItem, MovesToItsGeometry)
{
    TestItem item(kThreeWords);
    const QRectF shown = item.boundingRect();
    item.setGeometry(QRectF(30, 40, 500, 60));
    EXPECT_EQ(item.pos(), QPointF(30, 40));
    EXPECT_EQ(item.geometry().topLeft(), QPointF(30, 40));
    EXPECT_EQ(item.boundingRect(), shown);
}

TEST(TextItemLayoutItem, IsTheGraphicsItemOfItself)
{
    TestItem item;
    EXPECT_EQ(item.graphicsItem(), &item);
    EXPECT_EQ(qobject_cast<QGraphicsLayoutItem*>(&item), static_cast<QGraphicsLayoutItem*>(&item));
}

TEST(TextItemScene, FindsTheItemWhereItsTextIs)
{
    QGraphicsScene scene(-1000, -1000, 2000, 2000);
    auto* const item = new TestItem(QStringLiteral("a"));
    scene.addItem(item);
    // Enough items to make the scene use its index.
    for (int i = 0; i < 400; ++i)
        scene.addRect(QRectF(-900 + 4 * i, -500, 3, 3));
    const QPointF laterLine(2, 30 * item->boundingRect().height());
    QApplication::processEvents();
    ASSERT_FALSE(scene.items(laterLine).contains(item));
    item->InsertRichText(QStringLiteral("\nb").repeated(40), true);
    QApplication::processEvents();
    EXPECT_TRUE(scene.items(laterLine).contains(item));
    EXPECT_TRUE(item->shape().contains(laterLine));
    EXPECT_TRUE(item->contains(laterLine));
    item->SetMaxLineCount(1);
    QApplication::processEvents();
    EXPECT_FALSE(scene.items(laterLine).contains(item));
    EXPECT_FALSE(item->shape().contains(laterLine));
    EXPECT_FALSE(item->contains(laterLine));
}

class PaintCounter : public TestItem {
public:
    using TestItem::TestItem;

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override
    {
        ++paints_;
        TestItem::paint(painter, option, widget);
    }

    // Whether anything was painted since the last call.
    bool isPainted()
    {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
        return std::exchange(paints_, 0) > 0;
    }

private:
    int paints_ = 0;
};

TEST(TextItemScene, RepaintsTheItemOnlyWhenItLooksDifferent)
{
    QGraphicsScene scene(0, 0, 300, 300);
    PaintCounter item(QStringLiteral("aa"));
    scene.addItem(&item);
    QGraphicsView view(&scene);
    view.show();
    ASSERT_TRUE(item.isPainted());
    EXPECT_FALSE(item.isPainted());

    item.setPlainText(QStringLiteral("bb"));
    EXPECT_TRUE(item.isPainted());
    item.setDefaultTextColor(Qt::red);
    EXPECT_TRUE(item.isPainted());
    item.SetFixedItemWidth(100);
    EXPECT_TRUE(item.isPainted());
    QTextOption option = item.document()->defaultTextOption();
    option.setAlignment(Qt::AlignRight);
    item.document()->setDefaultTextOption(option);
    EXPECT_TRUE(item.isPainted());

    item.setDefaultTextColor(Qt::red);
    item.SetFixedItemWidth(100);
    item.SetElide(false);
    item.SetMaxLineCount(0);
    item.SetWrapMode(option.wrapMode());
    item.setFont(item.font());
    item.SetReadOnly(true);
    EXPECT_FALSE(item.isPainted());
}

TEST(TextItemScene, RepaintsACachedItemWhenItsTextChanges)
{
    QGraphicsScene scene(0, 0, 300, 300);
    PaintCounter item(QStringLiteral("ab"));
    item.setCacheMode(QGraphicsItem::DeviceCoordinateCache);
    scene.addItem(&item);
    QGraphicsView view(&scene);
    view.show();
    ASSERT_TRUE(item.isPainted());

    item.setPlainText(QStringLiteral("ba"));
    EXPECT_TRUE(item.isPainted());
}

} // namespace
