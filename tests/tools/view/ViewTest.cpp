// The window of "plix view": the card, its text and its file.
#include "tools/view/ViewFixture.h"

#include "view/Templates.h"

#include "CardFile.h"
#include "CardHost.h"
#include "CardPainter.h"
#include "ToolError.h"

#include <QtTest>
#include <QtWidgets>

namespace plix::test {
namespace {

using namespace tool;

// In milliseconds. Some programs need a while between two steps; a test that waits less
// would find less, but not fail.
constexpr int kLongReplacement = 60;

// ----- The card

TEST_F(View, ShowsTheCardOfAFile)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch is ready"))));
    EXPECT_EQ(shownText(), QStringLiteral("Lunch is ready"));
    EXPECT_EQ(window().windowTitle(), QStringLiteral("card.json[*] – Plix"));
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_EQ(problems().topLevelItemCount(), 0);
}

TEST_F(View, BeginsWithACardOfItsOwn)
{
    show({});
    EXPECT_EQ(shownText(), QStringLiteral("Hello"));
    EXPECT_EQ(window().windowTitle(), QStringLiteral("New card[*] – Plix"));
}

TEST_F(View, ShowsTheCardAsItIsWritten)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    QTextCursor cursor = editor().document()->find(QStringLiteral("Lunch"));
    cursor.movePosition(QTextCursor::Right);
    editor().setTextCursor(cursor);
    QTest::keyClicks(&editor(), QStringLiteral(" is ready"));
    EXPECT_TRUE(waitForText(QStringLiteral("Lunch is ready")));
    EXPECT_TRUE(window().isWindowModified());
}

TEST_F(View, BuildsOnceForSeveralLetters)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    int builds = 0;
    QObject::connect(&view(), &CardView::scaled, [&builds] { ++builds; });
    editor().moveCursor(QTextCursor::End);
    QTest::keyClicks(&editor(), QStringLiteral("   "));
    QCoreApplication::processEvents();
    EXPECT_EQ(builds, 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(builds, 1) << "nothing happens while nothing changes";
}

TEST_F(View, KeepsTheLastGoodCardWhileTheTextIsBroken)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    replaceAll(QStringLiteral(R"({"type": "bubble", "body": )"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !barText().isEmpty(); }));
    EXPECT_TRUE(barText().startsWith(QStringLiteral("This is the last good card: ")));
    EXPECT_EQ(shownText(), QStringLiteral("Lunch"));
    EXPECT_EQ(problems().topLevelItem(0)->text(4), QStringLiteral("syntax"));
    replaceAll(cardWith(textItem(QStringLiteral("Dinner"))));
    EXPECT_TRUE(waitForText(QStringLiteral("Dinner")));
    EXPECT_EQ(barText(), QString());
}

TEST_F(View, SaysThatThereIsNoCard)
{
    showCard(QStringLiteral("[1, 2]"));
    EXPECT_EQ(barText(), QStringLiteral("There is no card: a card must be a JSON object"));
    EXPECT_EQ(view().card(), nullptr);
    choose(QStringLiteral("Copy picture"));
    choose(QStringLiteral("Copy text of the card"));
    settings().toggleDark();
    EXPECT_EQ(tree().topLevelItemCount(), 0);
}

// ----- Problems

TEST_F(View, ListsProblemsAndJumpsToThem)
{
    showCard(cardWith(
        QStringLiteral("{\"type\": \"text\",\n \"text\": \"Lunch\", \"size\": \"large\"}")));
    ASSERT_EQ(problems().topLevelItemCount(), 1);
    QTreeWidgetItem& row = *problems().topLevelItem(0);
    EXPECT_EQ(row.text(0), QStringLiteral("3:27"));
    EXPECT_EQ(row.text(4), QStringLiteral("unknown-word"));
    clickRow(problems(), row);
    EXPECT_EQ(editor().textCursor().selectedText(), QStringLiteral("\"large\""));
    EXPECT_TRUE(editor().hasFocus());
}

TEST_F(View, UnderlinesProblemsWhereTheyAre)
{
    // Characters of several bytes before the problem.
    showCard(
        cardWith(QStringLiteral(R"({"type": "text", "text": "🍲 é か", "colour": "#112233"})")));
    ASSERT_EQ(editor().extraSelections().size(), 1);
    const QTextEdit::ExtraSelection underlined = editor().extraSelections().front();
    EXPECT_EQ(underlined.cursor.selectedText(), QStringLiteral("\"colour\""));
    EXPECT_EQ(underlined.format.underlineStyle(), QTextCharFormat::WaveUnderline);
}

TEST_F(View, WalksThroughTheProblemsByKeyboard)
{
    showCard(cardWith(QStringLiteral(
        R"({"type": "text", "text": "a", "size": "large"}, {"type": "text", "text": "b", "weight": "Bold"})")));
    ASSERT_EQ(problems().topLevelItemCount(), 2);
    const auto selected = [this] { return editor().textCursor().selectedText().toStdString(); };
    press(Qt::Key_F8);
    EXPECT_EQ(selected(), "\"large\"");
    press(Qt::Key_F8);
    EXPECT_EQ(selected(), "\"Bold\"");
    EXPECT_EQ(problems().currentItem(), problems().topLevelItem(1));
    press(Qt::Key_F8);
    EXPECT_EQ(selected(), "\"large\"") << "after the last one comes the first";
    press(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "\"Bold\"");
}

TEST_F(View, FindsWhatLooksWrong)
{
    showCard(cardWith(QStringLiteral(
        R"({"type": "text", "text": "a text that is much too long for one line of this card"})")));
    ASSERT_TRUE(QTest::qWaitFor([this] { return problems().topLevelItemCount() > 0; }));
    EXPECT_EQ(problems().topLevelItem(0)->text(4), QStringLiteral("text-cut"));
    EXPECT_TRUE(shownText().startsWith(QStringLiteral("a text"))) << "the card is still there";
}

// ----- Items

TEST_F(View, OutlinesTheItemOfARow)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch")) + QLatin1Char(',')
                      + textItem(QStringLiteral("Dinner"))));
    const QImage before = shown();
    QTreeWidgetItem* const row = rowOf(tree(), QStringLiteral("Dinner"));
    ASSERT_NE(row, nullptr);
    QTest::mouseMove(tree().viewport(), tree().visualItemRect(row).center());
    const QRect outlined =
        view().mapFromScene(itemOf(QStringLiteral("Dinner"))->sceneBoundingRect()).boundingRect();
    const QRect other = view()
                            .mapFromScene(itemOf(QStringLiteral("Lunch"))->sceneBoundingRect())
                            .boundingRect()
                            .adjusted(0, 0, 0, -3);
    EXPECT_NE(shown().copy(outlined), before.copy(outlined));
    EXPECT_EQ(shown().copy(other), before.copy(other));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&tree(), &leave);
    EXPECT_EQ(shown(), before);
}

TEST_F(View, MarksTheRowOfTheItemUnderTheMouse)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch")) + QLatin1Char(',')
                      + textItem(QStringLiteral("Dinner"))));
    const auto isMarked = [this](const QString& text) {
        return rowOf(tree(), text)->background(0).style() != Qt::NoBrush;
    };
    QTest::mouseMove(view().viewport(), pixelOf(*itemOf(QStringLiteral("Dinner"))));
    EXPECT_TRUE(isMarked(QStringLiteral("Dinner")));
    EXPECT_FALSE(isMarked(QStringLiteral("Lunch")));
    QTest::mouseMove(view().viewport(), pixelOf(*itemOf(QStringLiteral("Lunch"))));
    EXPECT_FALSE(isMarked(QStringLiteral("Dinner")));
    EXPECT_TRUE(isMarked(QStringLiteral("Lunch")));
}

TEST_F(View, JumpsFromARowToTheText)
{
    const QString dinner = textItem(QStringLiteral("Dinner"));
    showCard(cardWith(textItem(QStringLiteral("🍲")) + QLatin1Char(',') + dinner));
    clickRow(tree(), *rowOf(tree(), QStringLiteral("Dinner")));
    EXPECT_EQ(editor().textCursor().selectedText(), dinner);
    QTest::keyClick(&tree(), Qt::Key_Up);
    EXPECT_EQ(editor().textCursor().selectedText(), textItem(QStringLiteral("🍲")));
}

TEST_F(View, JumpsFromTheCardToTheText)
{
    const QString dinner = textItem(QStringLiteral("Dinner"));
    showCard(cardWith(textItem(QStringLiteral("Lunch")) + QLatin1Char(',') + dinner));
    clickItem(QStringLiteral("Dinner"), Qt::ControlModifier);
    EXPECT_EQ(editor().textCursor().selectedText(), dinner);
    EXPECT_EQ(tree().currentItem(), rowOf(tree(), QStringLiteral("Dinner")));
}

TEST_F(View, SelectsTheItemAtTheTextCursor)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch")) + QLatin1Char(',')
                      + textItem(QStringLiteral("Dinner"))));
    editor().setTextCursor(editor().document()->find(QStringLiteral("Dinner")));
    EXPECT_EQ(tree().currentItem(), rowOf(tree(), QStringLiteral("Dinner")));
    EXPECT_EQ(editor().textCursor().selectedText(), QStringLiteral("Dinner")) << "the cursor stays";
}

TEST_F(View, ShowsTheRectanglesAndTheStyleOfItems)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    clickRow(tree(), *rowOf(tree(), QStringLiteral("Lunch")));
    const QRectF rect = itemOf(QStringLiteral("Lunch"))
                            ->mapRectToParent(itemOf(QStringLiteral("Lunch"))->boundingRect());
    EXPECT_EQ(tree().currentItem()->text(3), QString::number(rect.width()));
    auto& details = find<QTreeWidget>(QStringLiteral("Details of the item"));
    const auto valueOf = [&](const char* name) {
        QTreeWidgetItem* const row = rowOf(details, QLatin1String(name));
        return row ? row->text(1).toStdString() : std::string("none");
    };
    EXPECT_EQ(valueOf("Path"), "body.contents[0]");
    EXPECT_EQ(valueOf("Lines"), "1");
    EXPECT_EQ(valueOf("Font"), "DejaVu Sans, 16 pixels");
    EXPECT_EQ(valueOf("wrap"), "true");
    EXPECT_EQ(valueOf("size"), "\"md\"") << "a default";
}

// ----- Completion

TEST_F(View, CompletesNamesAndWords)
{
    showCard(cardWith(QStringLiteral(R"({"type": "text", "text": "Lunch", "wrap": true })")));
    QTextCursor cursor = editor().document()->find(QStringLiteral("true"));
    cursor.clearSelection();
    editor().setTextCursor(cursor);
    QTest::keyClicks(&editor(), QStringLiteral(", \"si"));
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    press(Qt::Key_Return);
    QTest::keyClicks(&editor(), QStringLiteral("x"));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(editor().toPlainText().contains(QStringLiteral(R"("wrap": true, "size": "xs" })")))
        << editor().toPlainText().toStdString();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(View, OffersAllNamesOnRequestAndEndsByEscape)
{
    showCard(QStringLiteral(R"({"type": "bubble",  })"));
    QTextCursor cursor = editor().document()->find(QStringLiteral(", "));
    cursor.clearSelection();
    editor().setTextCursor(cursor);
    press(Qt::Key_Space, Qt::ControlModifier);
    auto* const list = qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    ASSERT_NE(list, nullptr);
    EXPECT_GT(list->model()->rowCount(), 5);
    EXPECT_NE(window().statusBar()->currentMessage(), QString()) << "what the name means";
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    QTest::keyClicks(&editor(), QStringLiteral(" "));
    press(Qt::Key_Return);
    EXPECT_EQ(editor().document()->blockCount(), 2) << "Enter begins a line again";
}

// ----- Files

TEST_F(View, FollowsTheFile)
{
    showCard(cardWith(textItem(QStringLiteral("one"))));
    write(QStringLiteral("card.json"), cardWith(textItem(QStringLiteral("two"))).toUtf8());
    EXPECT_TRUE(waitForText(QStringLiteral("two")));
    // As editors do, twice: by another file that gets the name.
    for (const char* const text : {"three", "four"}) {
        write(QStringLiteral("other.json"), cardWith(textItem(QLatin1String(text))).toUtf8());
        ASSERT_TRUE(QFile::remove(path(QStringLiteral("card.json"))));
        QTest::qWait(kLongReplacement);
        ASSERT_TRUE(
            QFile::rename(path(QStringLiteral("other.json")), path(QStringLiteral("card.json"))));
        EXPECT_TRUE(waitForText(QLatin1String(text)));
    }
    EXPECT_FALSE(window().isWindowModified());
    choose(QStringLiteral("Undo"));
    EXPECT_TRUE(waitForText(QStringLiteral("three"))) << "also this can be undone";
}

TEST_F(View, AsksBeforeTheFileReplacesChanges)
{
    showCard(cardWith(textItem(QStringLiteral("one"))));
    replaceAll(cardWith(textItem(QStringLiteral("mine"))));
    write(QStringLiteral("card.json"), cardWith(textItem(QStringLiteral("theirs"))).toUtf8());
    const auto isAsked = [this] {
        return barText() == QStringLiteral("Another program has changed the file.");
    };
    ASSERT_TRUE(QTest::qWaitFor(isAsked));
    EXPECT_TRUE(editor().toPlainText().contains(QStringLiteral("mine")));
    for (QPushButton* button : window().findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("&Use the file"))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    EXPECT_TRUE(waitForText(QStringLiteral("theirs")));
    EXPECT_EQ(barText(), QString());
    EXPECT_FALSE(window().isWindowModified());
}

TEST_F(View, SavesWhatIsWritten)
{
    showCard(cardWith(textItem(QStringLiteral("one"))));
    const QString changed = cardWith(textItem(QStringLiteral("two")));
    replaceAll(changed);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(read(QStringLiteral("card.json")), changed.toUtf8());
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_EQ(barText(), QString()) << "its own change is none of another program";
}

TEST_F(View, KeepsEveryCharacterOfAFile)
{
    // No-break space, line separator, carriage returns, a character of four bytes.
    const QByteArray text = cardWith(textItem(QStringLiteral("a\u00A0b\u2028c🍲")))
                                .replace(QLatin1Char('\n'), QStringLiteral("\r\n"))
                                .toUtf8();
    write(QStringLiteral("card.json"), text);
    show(path(QStringLiteral("card.json")));
    ASSERT_TRUE(window().files().save());
    EXPECT_EQ(read(QStringLiteral("card.json")), text);
}

TEST_F(View, AsksWhatToDoWithChangesWhenItCloses)
{
    showCard(cardWith(textItem(QStringLiteral("one"))));
    const QByteArray before = read(QStringLiteral("card.json"));
    replaceAll(QStringLiteral("{}"));
    answerNextQuestion(QMessageBox::Cancel);
    EXPECT_FALSE(window().close());
    answerNextQuestion(QMessageBox::Discard);
    EXPECT_TRUE(window().close());
    EXPECT_EQ(read(QStringLiteral("card.json")), before);
    window().show();
    answerNextQuestion(QMessageBox::Save);
    EXPECT_TRUE(window().close());
    EXPECT_EQ(read(QStringLiteral("card.json")), "{}");
}

TEST_F(View, TellsThatAFileCannotBeReadAndStays)
{
    showCard(cardWith(textItem(QStringLiteral("one"))));
    answerNextQuestion(QMessageBox::Ok);
    EXPECT_FALSE(window().files().openFile(path(QStringLiteral("none.json"))));
    EXPECT_EQ(shownText(), QStringLiteral("one"));
    EXPECT_EQ(window().windowTitle(), QStringLiteral("card.json[*] – Plix"));
    EXPECT_THROW(show(path(QStringLiteral("none.json"))), ToolError);
}

TEST_F(View, SwitchesAmongTheCardsOfAFolder)
{
    for (const char* const name : {"a", "b", "c"})
        write(QLatin1String(name) + QStringLiteral(".json"),
              cardWith(textItem(QLatin1String(name) + QStringLiteral(" card"))).toUtf8());
    show(path({}));
    EXPECT_EQ(folder().count(), 3);
    EXPECT_EQ(shownText(), QStringLiteral("a card"));
    folder().setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(shownText(), QStringLiteral("b card"));
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(shownText(), QStringLiteral("c card"));
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(shownText(), QStringLiteral("c card")) << "there is no other one";
    replaceAll(QStringLiteral("{}"));
    answerNextQuestion(QMessageBox::Cancel);
    folder().setCurrentRow(0);
    EXPECT_EQ(folder().currentRow(), 2) << "the user stays";
    write(QStringLiteral("d.json"), "{}");
    EXPECT_TRUE(QTest::qWaitFor([this] { return folder().count() == 4; }));
    EXPECT_EQ(folder().currentRow(), 2);
}

TEST_F(View, BeginsWithATemplate)
{
    show({});
    choose(QStringLiteral("Coffee shop"));
    EXPECT_TRUE(shownText().contains(QStringLiteral("Bluebell Coffee")));
    EXPECT_EQ(window().windowTitle(), QStringLiteral("New card[*] – Plix"));
    choose(QStringLiteral("New"));
    EXPECT_EQ(shownText(), QStringLiteral("Hello"));
}

TEST_F(View, BeginsWithARecipe)
{
    show({});
    choose(QStringLiteral("Price at end"));
    EXPECT_TRUE(shownText().contains(QStringLiteral("Oat flat white")));
}

// ----- Pictures

TEST_F(View, ExportsThePictureInItsOwnSize)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    choose(QStringLiteral("Zoom in"));
    ASSERT_TRUE(window().cardExport().savePicture(path(QStringLiteral("out.png"))));
    CardHost host(CardFile(path(QStringLiteral("card.json"))), CardOptions());
    const QImage expected = paintCard(host.scene(), host.card(), 2).image;
    const QImage exported(path(QStringLiteral("out.png")));
    EXPECT_EQ(exported.convertToFormat(expected.format()), expected);
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->image().size(), expected.size());
    press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Lunch"));
}

} // namespace
} // namespace plix::test
