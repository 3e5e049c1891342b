// What mouse and keys select in a text, and what is copied of it.
#include "RandomTexts.h"
#include "SelectionView.h"
#include "TextWork.h"

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QTextBoundaryFinder>

#include <map>
#include <set>

namespace {

const QString kSentence = QStringLiteral("one two, three");
const QString kLines = QStringLiteral("first line\nsecond one\nthird");

TEST(SelectionByMouse, IsBetweenPressAndRelease)
{
    SelectionView view(kSentence);
    view.drag(view.place(2), view.place(6));
    EXPECT_EQ(view.selected(), "e tw");
    EXPECT_EQ(view.copied(), "e tw");
    view.drag(view.place(6), view.place(2));
    EXPECT_EQ(view.selected(), "e tw");
}

TEST(SelectionByMouse, FollowsTheMouse)
{
    SelectionView view(kSentence);
    view.press(view.place(4));
    for (const int to : {5, 14, 0, 7}) {
        view.moveTo(view.place(to));
        EXPECT_EQ(view.selected(), kSentence.mid(std::min(to, 4), std::abs(to - 4)).toStdString());
    }
    view.release(view.place(7));
    view.moveTo(view.place(12));
    EXPECT_EQ(view.selected(), "two");
}

TEST(SelectionByMouse, ReachesOverParagraphs)
{
    SelectionView view(kLines);
    view.drag(view.place(6), view.place(3, 2));
    EXPECT_EQ(view.selected(), "line\nsecond one\nthi");
}

TEST(SelectionByMouse, ReachesTheEndsFromOutside)
{
    SelectionView view(kLines);
    view.drag(view.place(3, 1), view.above());
    EXPECT_EQ(view.selected(), "first line\nsec");
    view.drag(view.place(3, 1), view.below());
    EXPECT_EQ(view.selected(), "ond one\nthird");
    view.drag(view.place(3, 1), view.place(0, 1) - QPointF(30, 0));
    EXPECT_EQ(view.selected(), "sec");
    view.drag(view.place(3, 1), view.place(10, 1) + QPointF(30, 0));
    EXPECT_EQ(view.selected(), "ond one");
}

TEST(SelectionByMouse, IsNoneAfterAClickOrATremble)
{
    SelectionView view(QStringLiteral("iiii"));
    view.click(view.place(2));
    EXPECT_EQ(view.selected(), "");
    const QPointF edge = view.on(2);
    view.drag(edge - QPointF(1, 0), edge + QPointF(1, 0));
    EXPECT_EQ(view.selected(), "");
    view.drag(edge - QPointF(3, 0), edge + QPointF(1, 0));
    EXPECT_EQ(view.selected(), "i");
}

TEST(SelectionByMouse, NeedsTheLeftButton)
{
    SelectionView view(kSentence);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        view.press(view.place(2), button);
        view.release(view.place(6), button);
        EXPECT_EQ(view.selected(), "");
    }
    view.press(view.place(2));
    view.click(view.place(4), Qt::RightButton);
    view.release(view.place(6));
    EXPECT_EQ(view.selected(), "e tw");
}

TEST(SelectionByMouse, NeedsTheFlag)
{
    SelectionView view(kSentence);
    view.item->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextEditable);
    EXPECT_EQ(view.item->textInteractionFlags(), Qt::TextSelectableByKeyboard);
    view.drag(view.place(2), view.place(6));
    view.doubleClick(view.on(1));
    view.item->SelectAll();
    EXPECT_EQ(view.selected(), "");
    EXPECT_FALSE(view.item->HasSelection());
}

TEST(SelectionByMouse, EndsWithTheFlagAndWithEditing)
{
    SelectionView view(kSentence);
    view.drag(view.place(2), view.place(6));
    view.item->setProperty("textInteractionFlags", 0);
    EXPECT_FALSE(view.item->HasSelection());
    EXPECT_EQ(view.item->textInteractionFlags(), Qt::NoTextInteraction);
    EXPECT_EQ(view.scene().focusItem(), nullptr);
    view.item->setTextInteractionFlags(Qt::TextSelectableByMouse);
    view.drag(view.place(2), view.place(6));
    view.item->SetReadOnly(false);
    EXPECT_EQ(view.selected(), "");
    view.item->SetReadOnly(true);
    EXPECT_EQ(view.selected(), "");
}

TEST(SelectionByMouse, WorksWhereTheItemIsScaledAndTurned)
{
    SelectionView view(kSentence);
    view.item->setScale(0.8);
    view.item->setRotation(30);
    view.drag(view.place(2), view.place(6));
    EXPECT_EQ(view.selected(), "e tw");
}

// ----- Words and paragraphs

TEST(SelectionByDoubleClick, IsAWord)
{
    SelectionView view(kSentence);
    for (const int at : {4, 6}) {
        view.doubleClick(view.on(at));
        EXPECT_EQ(view.selected(), "two");
    }
    view.doubleClick(view.on(7));
    EXPECT_EQ(view.selected(), ",");
    view.doubleClick(view.place(14) + QPointF(-1, 0));
    EXPECT_EQ(view.selected(), "three");
}

class SelectionByClicks : public testing::Test {
protected:
    // A slow machine must not turn a triple click into two others.
    SelectionByClicks() { QApplication::setDoubleClickInterval(1'000'000); }
    ~SelectionByClicks() override { QApplication::setDoubleClickInterval(interval_); }

    const int interval_ = QApplication::doubleClickInterval();
};

TEST_F(SelectionByClicks, IsAParagraphAfterThree)
{
    SelectionView view(kLines);
    view.doubleClick(view.on(1, 1));
    EXPECT_EQ(view.selected(), "second");
    view.click(view.on(1, 1));
    EXPECT_EQ(view.selected(), "second one");
    view.click(view.on(1, 1));
    EXPECT_EQ(view.selected(), "");
}

TEST_F(SelectionByClicks, IsNoParagraphAfterAClickElsewhere)
{
    SelectionView view(kLines);
    view.doubleClick(view.on(1, 1));
    view.click(view.on(8, 1));
    EXPECT_EQ(view.selected(), "");
}

TEST_F(SelectionByClicks, GrowsByTheUnitOfTheClicks)
{
    SelectionView view(kLines);
    view.click(view.on(7, 0));
    view.pressAgain(view.on(7, 0));
    view.moveTo(view.on(1, 1));
    EXPECT_EQ(view.selected(), "line\nsecond");
    view.moveTo(view.on(1, 0));
    EXPECT_EQ(view.selected(), "first line");
    view.release(view.on(7, 0));
    EXPECT_EQ(view.selected(), "line");
    view.press(view.on(7, 0));
    view.moveTo(view.on(1, 1));
    EXPECT_EQ(view.selected(), "first line\nsecond one");
    view.release(view.on(7, 0));
    EXPECT_EQ(view.selected(), "first line");
}

// ----- Shift

TEST(SelectionWithShift, ExtendsToAClick)
{
    SelectionView view(kSentence);
    view.drag(view.place(4), view.place(7));
    view.hold(Qt::ShiftModifier);
    view.click(view.place(10));
    EXPECT_EQ(view.selected(), "two, t");
    view.click(view.place(2));
    EXPECT_EQ(view.selected(), "e ");
    view.press(view.place(2));
    view.moveTo(view.place(6));
    EXPECT_EQ(view.selected(), "tw");
    view.release(view.place(6));
    view.hold(Qt::NoModifier);
    view.click(view.place(10));
    EXPECT_EQ(view.selected(), "");
}

TEST(SelectionWithShift, BeginsLikeAnyOther)
{
    SelectionView view(kSentence);
    view.hold(Qt::ShiftModifier);
    view.click(view.place(10));
    EXPECT_EQ(view.selected(), "");
    view.drag(view.place(4), view.place(7));
    EXPECT_EQ(view.selected(), "two");
}

TEST(SelectionByKeys, ExtendsByCharactersAndWords)
{
    SelectionView view(kSentence);
    view.drag(view.place(4), view.place(7));
    view.extend(Qt::Key_Right);
    EXPECT_EQ(view.selected(), "two,");
    view.extend(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "two, ");
    view.extend(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "two, three");
    view.extend(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "two, three");
    view.extend(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "two, ");
    for (int i = 0; i < 6; ++i)
        view.extend(Qt::Key_Left);
    EXPECT_EQ(view.selected(), " ");
    view.extend(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "one ");
    view.extend(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "one ");
}

TEST(SelectionByKeys, ExtendsByLinesAndToTheirEnds)
{
    SelectionView view(kLines);
    view.drag(view.place(3, 1), view.place(4, 1));
    view.extend(Qt::Key_End);
    EXPECT_EQ(view.selected(), "ond one");
    view.extend(Qt::Key_Home);
    EXPECT_EQ(view.selected(), "sec");
    view.extend(Qt::Key_Down);
    EXPECT_EQ(view.selected(), "ond one\n");
    view.extend(Qt::Key_Down);
    EXPECT_EQ(view.selected(), "ond one\nthird");
    view.extend(Qt::Key_Up);
    view.extend(Qt::Key_Up);
    view.extend(Qt::Key_Up);
    EXPECT_EQ(view.selected(), "first line\nsec");
    view.extend(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "ond one\nthird");
    view.extend(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), "first line\nsec");
}

TEST(SelectionByKeys, KeepsItsPlaceInLinesOfDifferentLengths)
{
    SelectionView view(QStringLiteral("mmmmmmmm\nmm\nmmmmmmmm"));
    view.drag(view.place(0), view.place(6));
    view.extend(Qt::Key_Down);
    EXPECT_EQ(view.selected(), "mmmmmmmm\nmm");
    view.extend(Qt::Key_Down);
    EXPECT_EQ(view.selected(), "mmmmmmmm\nmm\nmmmmmm");
}

// The lines of a text that is broken.
TEST(SelectionByKeys, GoesThroughBrokenLines)
{
    SelectionView view(QStringLiteral("mmmm mmmm mmmm"));
    view.item->SetFixedItemWidth(
        QFontMetricsF(view.item->font()).horizontalAdvance(QStringLiteral("mmmmm")));
    ASSERT_EQ(view.item->ShownLineCount(), 3);
    view.press(view.place(2));
    view.release(view.place(3));
    view.extend(Qt::Key_End);
    EXPECT_EQ(view.selected(), "mm");
    view.extend(Qt::Key_Down);
    EXPECT_EQ(view.selected(), "mm mmmm");
    view.extend(Qt::Key_Up);
    EXPECT_EQ(view.selected(), "mm");
    view.extend(Qt::Key_Down);
    view.extend(Qt::Key_Home);
    EXPECT_EQ(view.selected(), "mm ");
    view.extend(Qt::Key_Up);
    EXPECT_EQ(view.selected(), "mm");
}

TEST(SelectionByKeys, GoesToTheSideOfTheArrow)
{
    SelectionView view(QStringLiteral("שלום"));
    view.selectAll();
    view.extend(Qt::Key_Right);
    EXPECT_EQ(view.selected(), "שלו");
    view.extend(Qt::Key_Left);
    EXPECT_EQ(view.selected(), "שלום");
}

TEST(SelectionByKeys, CoversTheWholeTextWithCtrlA)
{
    SelectionView view(kLines);
    view.drag(view.place(2), view.place(4));
    view.pressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), kLines.toStdString());
    EXPECT_EQ(view.copied(), kLines.toStdString());
}

TEST(SelectionByKeys, NeedsASelectionByTheMouse)
{
    SelectionView view(kLines);
    view.click(view.place(2));
    view.pressKey(Qt::Key_A, Qt::ControlModifier);
    view.extend(Qt::Key_Right);
    EXPECT_EQ(view.selected(), "");
    EXPECT_EQ(view.copied(), "nothing");
}

TEST(SelectionByKeys, MayBecomeEmptyAndGoOn)
{
    SelectionView view(kSentence);
    view.drag(view.place(2), view.place(3));
    view.extend(Qt::Key_Left);
    EXPECT_EQ(view.copied(), "nothing");
    view.extend(Qt::Key_Left);
    EXPECT_EQ(view.selected(), "n");
}

// ----- Characters

TEST(SelectedCharacters, AreWholeGraphemes)
{
    for (const char* text : {"e\u0301e\u0301e\u0301", "\U0001F600\U0001F600\U0001F600",
                             "\U0001F469\u200D\U0001F4BB\U0001F469\u200D\U0001F4BB",
                             "\U0001F44D\U0001F3FD\U0001F44D\U0001F3FD",
                             "\U0001F1F0\U0001F1F7\U0001F1EF\U0001F1F5", "क्षत्रिय", "ffiffi"}) {
        const QString whole = QString::fromUtf8(text);
        SelectionView view(whole);
        const QRectF rect = view.item->sceneBoundingRect();
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, whole);
        std::set<int> lengths;
        for (double x = rect.left(); x < rect.right(); ++x) {
            view.drag({x, rect.center().y()}, view.above());
            const int length = view.item->SelectedText().size();
            finder.setPosition(length);
            EXPECT_TRUE(finder.isAtBoundary()) << text << ": " << length;
            lengths.insert(length);
        }
        EXPECT_GT(lengths.size(), 2U) << text;
        EXPECT_EQ(*lengths.rbegin(), whole.size());
        view.doubleClick(rect.center());
        finder.setPosition(whole.indexOf(view.item->SelectedText()));
        EXPECT_TRUE(finder.isAtBoundary()) << text;
        finder.setPosition(finder.position() + view.item->SelectedText().size());
        EXPECT_TRUE(finder.isAtBoundary()) << text << " " << view.selected();
    }
}

// An application with a picture for every emoji.
class EmojiSupport : public KestroControlSupport {
public:
    EmojiSupport() { KestroControlManager::GetInstance()->SetKestroControlSupport(this); }
    ~EmojiSupport() override
    {
        KestroControlManager::GetInstance()->SetKestroControlSupport(nullptr);
    }

    QString GetFontFamily() const override { return {}; }
    QImage GetEmojiImage(const QString&) const override
    {
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        return picture;
    }
};

TEST(SelectedCharacters, ArePicturesAsAWhole)
{
    const EmojiSupport support;
    SelectionView view;
    view.item->SetMarkupEnabled(true);
    view.item->InsertRichText(QStringLiteral("a<e code=\"1F600\"/><e code=\"1F469-200D-1F4BB\"/>b"),
                              true);
    const QRectF rect = view.item->sceneBoundingRect();
    std::map<QString, QPointF> parts;
    for (double x = rect.left(); x < rect.right(); ++x) {
        const QPointF place(x, rect.center().y());
        view.drag(place, view.above());
        parts[view.item->SelectedText()] = place;
    }
    const QString smile = QStringLiteral("a\U0001F600");
    const QString woman = smile + QStringLiteral("\U0001F469\u200D\U0001F4BB");
    EXPECT_EQ(parts.size(), 5U) << "nothing, a, smile, woman, all";
    EXPECT_TRUE(parts.count(QStringLiteral("a")) && parts.count(woman));
    ASSERT_TRUE(parts.count(smile));
    view.drag(rect.topLeft() + QPointF(1, 5), parts[smile]);
    ASSERT_EQ(view.item->SelectedText(), smile);
    view.extend(Qt::Key_Right);
    EXPECT_EQ(view.item->SelectedText(), woman);
    view.extend(Qt::Key_Left);
    view.extend(Qt::Key_Left);
    EXPECT_EQ(view.item->SelectedText(), QStringLiteral("a"));
    for (int i = 3; i < 8; ++i) {
        view.item->Select(i, i + 1);
        EXPECT_EQ(view.item->SelectedRange(), (QPair<int, int>(3, 8))) << i;
    }
    view.item->Select(2, 4);
    EXPECT_EQ(QLatin1Char('a') + view.item->SelectedText(), woman);
}

// ----- What is not shown

TEST(SelectionOfElidedText, IsTheWholeTextWithItsEllipsis)
{
    SelectionView view(kSentence + QLatin1Char('\n') + kLines);
    view.item->SetElide(true);
    view.item->SetMaxLineCount(1);
    view.item->SetFixedItemWidth(90);
    ASSERT_TRUE(view.item->IsElided());
    const QRectF rect = view.item->sceneBoundingRect();
    const std::string whole = view.item->toPlainText().toStdString();
    for (const QPointF& to : {view.below(), QPointF(rect.right() + 30, rect.center().y())}) {
        view.drag(view.place(0), to);
        EXPECT_EQ(view.selected(), whole);
    }
    view.drag(view.place(0), view.place(4));
    EXPECT_EQ(view.selected(), "one ");
    view.extend(Qt::Key_End);
    EXPECT_EQ(view.selected(), whole);
    view.extend(Qt::Key_Left);
    const std::string shown = view.selected();
    EXPECT_LT(shown.size(), 9U) << "an arrow goes over the whole ellipsis";
    view.extend(Qt::Key_Right);
    EXPECT_EQ(view.selected(), whole);
    view.pressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), whole);
}

TEST(SelectionOfElidedText, IsAWordThatIsCutOff)
{
    SelectionView view(QStringLiteral("one thousandfold more"));
    view.item->SetElide(true);
    view.item->SetMaxLineCount(1);
    view.item->SetFixedItemWidth(100);
    view.doubleClick(view.on(5));
    EXPECT_EQ(view.selected(), "thousandfold");
}

TEST(SelectionOfElidedText, EndsBeforeTheNextLine)
{
    SelectionView view(QStringLiteral("incomprehensibilities\nend"));
    view.item->SetElide(true);
    view.item->SetWrapMode(QTextOption::WordWrap);
    view.item->SetFixedItemWidth(90);
    ASSERT_EQ(view.item->ShownLineCount(), 2);
    ASSERT_TRUE(view.item->IsElided());
    view.drag(view.place(0), QPointF(view.item->sceneBoundingRect().right() + 9, view.on(0).y()));
    EXPECT_EQ(view.selected(), "incomprehensibilities");
    view.extend(Qt::Key_Right);
    view.extend(Qt::Key_Right);
    EXPECT_EQ(view.selected(), "incomprehensibilities\ne");
}

TEST(SelectionOfHiddenLines, IsMadeBelowTheLastOne)
{
    SelectionView view(kLines);
    view.item->SetMaxLineCount(2);
    view.drag(view.place(6), view.below());
    EXPECT_EQ(view.selected(), "line\nsecond one\nthird");
}

TEST(SelectionBeyondTheDisplayLimit, IsPartOfTheEnd)
{
    const QString longText = QStringLiteral("some words ").repeated(3000);
    SelectionView view(longText);
    view.item->SetFixedItemWidth(300);
    view.item->SetMaxLineCount(2);
    view.item->SetElide(true);
    view.drag(view.place(5), view.below());
    EXPECT_EQ(view.selected(), longText.mid(5).toStdString());
    view.pressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selected(), longText.toStdString());
}

// ----- Any text

void appendAny(TextItem& item, RandomTexts& random)
{
    const QTextCharFormat format = random.format();
    item.setFont(random.font());
    item.InsertRichText(random.text(), true);
    item.InsertRichText(random.text(), true, &format);
    item.SetWrapMode(random.wrapMode());
    item.SetTextAlignment(random.alignment());
    item.SetTextDirection(random.direction());
    item.SetFixedItemWidth(40 + random.number(300));
    item.SetMaxLineCount(random.number(4));
    item.SetElide(random.oneIn(2));
}

class SelectionOfAnyText : public testing::TestWithParam<int> { };

TEST_P(SelectionOfAnyText, IsSplitByEveryPlace)
{
    RandomTexts random(static_cast<unsigned>(GetParam()));
    for (int text = 0; text < 12; ++text) {
        SelectionView view;
        appendAny(*view.item, random);
        const QString whole = view.item->toPlainText();
        SCOPED_TRACE(whole.toStdString());
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, whole);
        const QRectF rect = view.item->sceneBoundingRect();
        for (int i = 0; i < 20; ++i) {
            const QPointF place(rect.left() + random.number(100) * rect.width() / 100,
                                rect.top() + random.number(100) * rect.height() / 100);
            view.drag(place, view.above());
            const QString before = view.item->SelectedText();
            view.drag(place, view.below());
            ASSERT_EQ(before + view.item->SelectedText(), whole);
            finder.setPosition(before.size());
            ASSERT_TRUE(finder.isAtBoundary()) << before.size();
        }
    }
}

constexpr Qt::Key kArrows[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                               Qt::Key_Down, Qt::Key_Home,  Qt::Key_End};

// Wherever the keys have gone, arrows lead to both ends.
TEST_P(SelectionOfAnyText, IsChangedByKeysFromEndToEnd)
{
    RandomTexts random(static_cast<unsigned>(GetParam()));
    for (int text = 0; text < 6; ++text) {
        SelectionView view;
        appendAny(*view.item, random);
        const QString whole = view.item->toPlainText();
        SCOPED_TRACE(whole.toStdString());
        const QRectF rect = view.item->sceneBoundingRect();
        view.drag(rect.center(), view.above());
        view.drag(rect.center(), view.below());
        if (!view.item->HasSelection())
            continue;
        for (int i = 0; i < 20; ++i) {
            const bool isWord = random.oneIn(3);
            view.extend(kArrows[random.number(6)], isWord ? Qt::ControlModifier : Qt::NoModifier);
            ASSERT_TRUE(whole.contains(view.item->SelectedText()));
        }
        view.extend(Qt::Key_Home, Qt::ControlModifier);
        const QString before = view.item->SelectedText();
        view.extend(Qt::Key_End, Qt::ControlModifier);
        const QString after = view.item->SelectedText();
        EXPECT_EQ(before + after, whole);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Up}) {
            for (int i = 0; i < 60; ++i)
                view.extend(key);
            EXPECT_EQ(view.item->SelectedText(), key == Qt::Key_Up ? before : after);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SelectionOfAnyText, testing::Range(1, 9));

TEST(SelectionWork, MakesNoDocumentAndShapesNothingAgain)
{
    SelectionView view(kLines);
    view.view().grab();
    const kestro::TextWork before = kestro::WorkSoFar();
    view.drag(view.place(2), view.place(4, 1));
    view.doubleClick(view.on(3));
    view.extend(Qt::Key_Down);
    view.view().grab();
    EXPECT_EQ(view.copied(), "first line\nsec");
    EXPECT_EQ(kestro::WorkSoFar().documents, before.documents);
    EXPECT_EQ(kestro::WorkSoFar().shapings, before.shapings);
    EXPECT_EQ(kestro::WorkSoFar().lineBreakings, before.lineBreakings);
}

} // namespace
