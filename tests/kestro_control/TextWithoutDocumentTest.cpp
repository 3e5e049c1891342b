// Items that have never been asked for their document, against items that have one.
#include "RandomTexts.h"

#include "TextWork.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

#include <functional>
#include <string>

using kestro::WorkSoFar;

namespace {

const QString kDinnerSentence =
    QStringLiteral("Dinner is ready at seven, please bring some juice.");

QFont sans()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(16);
    return font;
}

class Item : public TextItem {
public:
    bool showsHandAt(const QPointF& point)
    {
        QGraphicsSceneHoverEvent event(QEvent::GraphicsSceneHoverMove);
        event.setPos(point);
        hoverMoveEvent(&event);
        return cursor().shape() == Qt::PointingHandCursor;
    }
};

constexpr QRectF kPictureArea(-20, -20, 460, 560);

QImage pictureOf(TextItem& item, const QRectF& exposed)
{
    QImage picture(kPictureArea.size().toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(-kPictureArea.topLeft());
    QStyleOptionGraphicsItem option;
    option.exposedRect = exposed;
    item.paint(&painter, &option, nullptr);
    return picture;
}

void expectSameMentions(Item& item, Item& expected)
{
    for (int y = 4; y < 120; y += 9) {
        for (int x = 2; x < 400; x += 13)
            ASSERT_EQ(item.showsHandAt(QPointF(x, y)), expected.showsHandAt(QPointF(x, y)));
    }
}

void expectSame(Item& item, Item& expected)
{
    EXPECT_EQ(item.toPlainText(), expected.toPlainText());
    EXPECT_EQ(item.SelectedText(), expected.SelectedText());
    EXPECT_EQ(item.textWidth(), expected.textWidth());
    EXPECT_EQ(item.font(), expected.font());
    EXPECT_EQ(item.TextAlignment(), expected.TextAlignment());
    EXPECT_EQ(item.ParagraphDirections(), expected.ParagraphDirections());
    EXPECT_EQ(item.ShownLineCount(), expected.ShownLineCount());
    EXPECT_EQ(item.IsElided(), expected.IsElided());
    EXPECT_EQ(item.FirstLineAscent(), expected.FirstLineAscent());
    EXPECT_EQ(item.boundingRect(), expected.boundingRect());
    EXPECT_EQ(item.sizeHint(Qt::PreferredSize), expected.sizeHint(Qt::PreferredSize));
    // Qt can draw a glyph of a document differently when it draws it first.
    pictureOf(expected, kPictureArea);
    EXPECT_EQ(pictureOf(item, kPictureArea), pictureOf(expected, kPictureArea));
    const QRectF part(30, 25, 60, 20);
    EXPECT_EQ(pictureOf(item, part), pictureOf(expected, part));
}

// Two items to which the same is done.
struct ItemTwins {
    ItemTwins()
    {
        expected.document();
        scene.addItem(&item);
        sceneOfExpected.addItem(&expected);
        forBoth([](TextItem& both) {
            both.setFont(sans());
            both.SetMarkupEnabled(true);
            both.setTextInteractionFlags(Qt::TextSelectableByMouse);
        });
    }

    void forBoth(const std::function<void(TextItem&)>& change)
    {
        change(item);
        change(expected);
    }

    // The items leave their scenes before these end. In one scene, only one can be selected.
    QGraphicsScene scene;
    QGraphicsScene sceneOfExpected;
    Item item;
    Item expected;
};

// The text of a bubble: a sentence, a mention, letters from another script.
QString markup(RandomTexts& random)
{
    const QString text = random.text();
    return random.oneIn(2) ? text
                           : text + QStringLiteral("<m user=\"7\">Ann Lee</m> ") + random.text();
}

void appendFormatted(ItemTwins& twins, RandomTexts& random)
{
    const QString text = markup(random);
    const QTextCharFormat format = random.format();
    const bool append = !random.oneIn(6);
    twins.forBoth([&](TextItem& item) { item.InsertRichText(text, append, &format); });
}

void append(ItemTwins& twins, RandomTexts& random)
{
    const QString text = markup(random);
    twins.forBoth([&](TextItem& item) { item.InsertRichText(text, true); });
}

void setWidth(ItemTwins& twins, RandomTexts& random)
{
    const qreal width = random.width();
    twins.forBoth([=](TextItem& item) { item.SetFixedItemWidth(width); });
}

void setFont(ItemTwins& twins, RandomTexts& random)
{
    const QFont font = random.font();
    twins.forBoth([&](TextItem& item) { item.setFont(font); });
}

void setLook(ItemTwins& twins, RandomTexts& random)
{
    const QColor color = QColor::fromHsv(random.number(360), 255, 150);
    const auto wrapMode = random.wrapMode();
    const auto alignment = random.alignment();
    const auto direction = random.direction();
    twins.forBoth([&](TextItem& item) {
        item.setDefaultTextColor(color);
        item.SetWrapMode(wrapMode);
        item.SetTextAlignment(alignment);
        item.SetTextDirection(direction);
    });
}

void limitLines(ItemTwins& twins, RandomTexts& random)
{
    const int count = random.number(5);
    const bool elide = random.oneIn(2);
    twins.forBoth([=](TextItem& item) {
        item.SetMaxLineCount(count);
        item.SetElide(elide);
    });
}

void highlight(ItemTwins& twins, RandomTexts& random)
{
    const QStringList words = random.oneIn(3)
        ? QStringList()
        : QStringList {QStringLiteral("e"), QStringLiteral("is re"), QStringLiteral("日"),
                       QStringLiteral("ל")};
    const QColor color = random.oneIn(2) ? Qt::yellow : Qt::darkBlue;
    twins.forBoth([&](TextItem& item) { item.HighlightText(words, color); });
}

void setFrame(ItemTwins& twins, RandomTexts& random)
{
    const qreal top = random.number(200) / 7.0;
    twins.forBoth([=](TextItem& item) { item.SetFrame(top > 0 ? top + 100 : 0, top); });
}

void select(ItemTwins& twins, RandomTexts& random)
{
    const bool isSelected = random.oneIn(2);
    twins.forBoth([=](TextItem& item) { isSelected ? item.SelectAll() : item.ClearSelection(); });
}

void replaceText(ItemTwins& twins, RandomTexts& random)
{
    const QString text = random.oneIn(3) ? QString() : random.text();
    twins.forBoth([&](TextItem& item) { item.setPlainText(text); });
}

void askForDocument(ItemTwins& twins, RandomTexts& random)
{
    if (random.oneIn(2)) {
        twins.item.document();
    } else if (random.oneIn(2)) {
        twins.forBoth([](TextItem& item) { item.adjustSize(); });
    } else {
        twins.forBoth([](TextItem& item) {
            item.SetReadOnly(false);
            item.SetReadOnly(true);
        });
    }
}

using Change = void (*)(ItemTwins&, RandomTexts&);
constexpr Change kChanges[] = {appendFormatted, append,      setWidth,       setWidth,   setWidth,
                               setFont,         setLook,     limitLines,     limitLines, highlight,
                               setFrame,        replaceText, askForDocument, select};

class TextWithoutDocument : public testing::TestWithParam<int> { };

TEST_P(TextWithoutDocument, IsShownLikeInADocumentAfterAnyChanges)
{
    RandomTexts random(static_cast<unsigned>(GetParam()));
    for (int text = 0; text < 10 && !HasFailure(); ++text) {
        ItemTwins twins;
        append(twins, random);
        for (int step = 0; step < 12 && !HasFailure(); ++step) {
            SCOPED_TRACE("text " + std::to_string(text) + ", step " + std::to_string(step) + ": "
                         + twins.expected.toPlainText().toStdString());
            if (!random.oneIn(4))
                expectSame(twins.item, twins.expected);
            kChanges[random.number(static_cast<int>(std::size(kChanges)))](twins, random);
        }
        expectSameMentions(twins.item, twins.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TextWithoutDocument, testing::Range(1, 13));

// How often something was done in `steps`.
kestro::TextWork workIn(const std::function<void()>& steps)
{
    const kestro::TextWork before = WorkSoFar();
    steps();
    return WorkSoFar() - before;
}

TEST(TextItemDocument, IsNotMadeForATextThatIsOnlyShown)
{
    const auto work = workIn([] {
        Item item;
        item.setFont(sans());
        item.SetMarkupEnabled(true);
        item.SetElide(true);
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        item.InsertRichText(QStringLiteral("Hello <m user=\"1\">Ann</m>\n"), true);
        item.InsertRichText(kDinnerSentence, true, &bold);
        item.SetTextAlignment(Qt::AlignRight);
        item.SetTextDirection(Qt::RightToLeft);
        item.SetFrame(200, 20);
        item.SetFixedItemWidth(100);
        item.SetMaxLineCount(3);
        item.HighlightText({QStringLiteral("ready")}, Qt::yellow);
        pictureOf(item, kPictureArea);
        item.showsHandAt(QPointF(60, 30));
        EXPECT_FALSE(item.toPlainText().isEmpty());
        item.setPlainText(kDinnerSentence);
        item.ClearText();
    });
    EXPECT_EQ(work.documents, 0);
}

TEST(TextItemDocument, IsMadeOnceWhenAskedForAndStaysTheSame)
{
    Item item;
    item.InsertRichText(kDinnerSentence, true);
    const auto work = workIn([&] {
        QTextDocument* const document = item.document();
        EXPECT_EQ(document->toPlainText(), kDinnerSentence);
        item.InsertRichText(kDinnerSentence, true);
        item.setPlainText(kDinnerSentence);
        EXPECT_EQ(item.document(), document);
        item.SetReadOnly(false);
        item.SetReadOnly(true);
        EXPECT_EQ(item.document(), document);
    });
    EXPECT_EQ(work.documents, 1);
}

TEST(TextItemDocument, HasWhatWasSetBeforeItWasMade)
{
    Item item;
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    item.InsertRichText(QStringLiteral("a\nb"), true);
    item.InsertRichText(QStringLiteral("c"), true, &bold);
    item.setFont(sans());
    item.SetWrapMode(QTextOption::WrapAnywhere);
    item.SetTextAlignment(Qt::AlignHCenter);
    item.SetTextDirection(Qt::RightToLeft);
    item.SetFixedItemWidth(70.5);
    item.SetFrame(90, 12.5);

    const QTextDocument& document = *item.document();
    EXPECT_EQ(document.blockCount(), 2);
    EXPECT_EQ(document.lastBlock().textFormats().last().format, bold);
    EXPECT_EQ(document.defaultFont(), sans());
    EXPECT_EQ(document.defaultTextOption().wrapMode(), QTextOption::WrapAnywhere);
    EXPECT_EQ(document.defaultTextOption().alignment(), Qt::AlignHCenter);
    EXPECT_EQ(document.defaultTextOption().textDirection(), Qt::RightToLeft);
    EXPECT_EQ(document.textWidth(), 70.5);
    EXPECT_EQ(document.documentMargin(), 0);
    EXPECT_EQ(document.rootFrame()->frameFormat().topMargin(), 12.5);
    EXPECT_EQ(document.rootFrame()->frameFormat().height().rawValue(), 90);
}

TEST(TextItemDocument, AnnouncesChangesThatItShowsAfterItWasMade)
{
    QGraphicsScene scene;
    auto* const item = new Item;
    scene.addItem(item);
    item->InsertRichText(QStringLiteral("a"), true);
    ASSERT_TRUE(scene.items(QPointF(2, 60)).isEmpty());
    QTextDocument* const document = item->document();
    QTextCursor(document).insertText(QStringLiteral("a\nb\nc\nd\ne\nf\ng\nh\n"));
    EXPECT_FALSE(scene.items(QPointF(2, 60)).isEmpty());
}

TEST(TextItemShaping, HappensOnceForAllWidthsLimitsAndLooks)
{
    Item item;
    item.setFont(sans());
    item.InsertRichText(kDinnerSentence, true);
    const auto work = workIn([&] {
        for (const qreal width : {-1.0, 180.0, 90.0, -1.0, 0.0, 300.0}) {
            item.SetFixedItemWidth(width);
            EXPECT_GT(item.boundingRect().height(), 0);
        }
        item.setDefaultTextColor(Qt::red);
        item.SetMaxLineCount(1);
        item.HighlightText({QStringLiteral("ready")}, Qt::yellow);
        item.SetFrame(200, 20);
        pictureOf(item, kPictureArea);
        pictureOf(item, kPictureArea);
    });
    EXPECT_EQ(work.shapings, 1);
}

TEST(TextItemLineBreaking, IsNotRepeatedForTheSameWidthNorForColoursHighlightsAndMargins)
{
    Item item;
    item.InsertRichText(kDinnerSentence, true);
    item.SetFixedItemWidth(180);
    EXPECT_GT(item.ShownLineCount(), 0);
    const auto work = workIn([&] {
        item.SetFixedItemWidth(180);
        item.setDefaultTextColor(Qt::red);
        item.HighlightText({QStringLiteral("ready")}, Qt::yellow);
        item.SetMaxLineCount(1);
        item.SetFrame(200, 20);
        pictureOf(item, kPictureArea);
    });
    EXPECT_EQ(work.lineBreakings, 0);
}

TEST(TextItemShaping, HappensAgainForAnotherFont)
{
    Item item;
    item.setFont(sans());
    item.InsertRichText(kDinnerSentence, true);
    EXPECT_EQ(item.ShownLineCount(), 1);
    const qreal height = item.boundingRect().height();
    QFont large = sans();
    large.setPixelSize(40);
    item.setFont(large);
    EXPECT_GT(item.boundingRect().height(), 2 * height);
}

} // namespace
