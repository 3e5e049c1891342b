// What is selected in a text, as a client of QAccessible finds and changes it.
#include "SelectionView.h"

#include "support/AccessibilityClient.h"
#include "support/AccessibleTree.h"

#include <kestro_control/GraphicsViewAccessibility.h>

#include <gtest/gtest.h>

#include <QApplication>

namespace plix::test {
namespace {

using Updates = std::vector<std::string>;

const QString kSentence = QStringLiteral("one two, three");

class AccessibleSelection : public testing::Test {
protected:
    AccessibleSelection()
        : view_(kSentence)
    {
        kestro::InstallGraphicsViewAccessibility();
    }

    QAccessibleInterface& found() { return accessible(view_.item.get()); }
    QAccessibleTextInterface& text() { return *found().textInterface(); }

    // The selection with this number, as "start-end".
    std::string selection(int index = 0)
    {
        int start = -1;
        int end = -1;
        text().selection(index, &start, &end);
        return std::to_string(start) + '-' + std::to_string(end);
    }

    void setText(const char* characters)
    {
        view_.item->setPlainText(QString::fromUtf8(characters));
    }

    SelectionView view_;
};

TEST_F(AccessibleSelection, IsWhatTheMouseSelects)
{
    EXPECT_TRUE(found().state().selectableText);
    EXPECT_EQ(text().selectionCount(), 0);
    EXPECT_EQ(selection(), "0-0");
    view_.drag(view_.place(4), view_.place(7));
    EXPECT_EQ(text().selectionCount(), 1);
    EXPECT_EQ(selection(), "4-7");
    EXPECT_EQ(selection(1), "0-0");
    EXPECT_EQ(text().cursorPosition(), 7);
    view_.drag(view_.place(7), view_.place(4));
    EXPECT_EQ(selection(), "4-7");
    EXPECT_EQ(text().cursorPosition(), 4);
    view_.extend(Qt::Key_Left);
    EXPECT_EQ(selection(), "3-7");
    EXPECT_EQ(text().cursorPosition(), 3);
    view_.click(view_.nowhere());
    EXPECT_EQ(text().selectionCount(), 0);
    EXPECT_EQ(text().cursorPosition(), 0);
}

TEST_F(AccessibleSelection, IsWhatAClientSelects)
{
    text().setSelection(0, 4, 7);
    EXPECT_EQ(view_.selected(), "two");
    EXPECT_EQ(text().cursorPosition(), 7);
    EXPECT_FALSE(view_.hasFocus());
    text().addSelection(0, 3);
    EXPECT_EQ(text().selectionCount(), 1) << "another one replaces it";
    EXPECT_EQ(view_.selected(), "one");
    text().setSelection(0, 14, 9);
    EXPECT_EQ(view_.selected(), "three");
    text().setSelection(1, 0, 3);
    text().removeSelection(1);
    EXPECT_EQ(view_.selected(), "three") << "there is only number 0";
    text().removeSelection(0);
    EXPECT_EQ(text().selectionCount(), 0);
    text().setSelection(0, -5, 1000);
    EXPECT_EQ(selection(), "0-14");
    for (const int place : {-1, 0, 5, 14, 1000}) {
        text().setSelection(0, 0, 3);
        text().setSelection(0, place, place);
        EXPECT_EQ(text().selectionCount(), 0) << place;
    }
}

TEST_F(AccessibleSelection, IsExtendedByKeysFromWhatAClientSelected)
{
    view_.drag(view_.place(0), view_.place(2));
    text().setSelection(0, 4, 7);
    view_.extend(Qt::Key_Right);
    EXPECT_EQ(selection(), "4-8");
    EXPECT_EQ(view_.copied(), "two,");
}

TEST_F(AccessibleSelection, IsNotForTextsThatTheUserCannotSelect)
{
    view_.item->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    text().setSelection(0, 4, 7);
    text().addSelection(4, 7);
    EXPECT_EQ(text().selectionCount(), 0);
    EXPECT_FALSE(found().state().selectableText);
}

TEST_F(AccessibleSelection, IsOfWholeCharacters)
{
    setText("ae\u0301\U0001F600\nb");
    const struct {
        int start;
        int end;
        const char* selection;
    } rows[] = {{1, 2, "1-3"}, {2, 3, "1-3"}, {3, 4, "3-5"}, {4, 5, "3-5"},
                {2, 4, "1-5"}, {5, 6, "5-6"}, {5, 7, "5-7"}, {0, 1, "0-1"}};
    for (const auto& row : rows) {
        text().setSelection(0, row.start, row.end);
        EXPECT_EQ(selection(), row.selection) << row.start << '-' << row.end;
    }
}

TEST_F(AccessibleSelection, IsAllOfAnElidedTextWithItsEllipsis)
{
    view_.item->SetElide(true);
    view_.item->SetMaxLineCount(1);
    view_.item->SetFixedItemWidth(80);
    view_.selectAll();
    EXPECT_EQ(selection(), "0-14");
    view_.item->setPlainText(QStringLiteral("word ").repeated(10'000));
    view_.selectAll();
    EXPECT_EQ(selection(), "0-50000") << "with what is beyond the display limit";
    text().setSelection(0, 40'000, 40'001);
    EXPECT_EQ(text().selectionCount(), 0) << "nobody sees it";
}

// ----- The focus

TEST_F(AccessibleSelection, HasNoOtherFocusThanItsText)
{
    QAccessibleInterface& root = accessible(&view_.view());
    const std::string tree = treeOf(root);
    EXPECT_FALSE(found().state().focusable);
    view_.drag(view_.place(4), view_.place(7));
    ASSERT_TRUE(view_.hasFocus());
    EXPECT_EQ(treeOf(root), tree);
    EXPECT_EQ(root.focusChild(), &found());
    EXPECT_EQ(found().focusChild(), &found());
    EXPECT_TRUE(found().state().focusable);
    EXPECT_TRUE(found().state().focused);
    view_.scene().clearFocus();
    EXPECT_FALSE(found().state().focused);
    QAccessibleActionInterface& actions = *found().actionInterface();
    actions.doAction(actions.setFocusAction());
    EXPECT_TRUE(view_.hasFocus());
    view_.click(view_.nowhere());
    EXPECT_FALSE(found().state().focusable);
    EXPECT_NE(root.focusChild(), &found());
}

// ----- Updates

TEST_F(AccessibleSelection, TellsClientsThatItChanges)
{
    const std::string name = "TextSelectionChanged: one two, three ";
    const AccessibilityClient client;
    view_.press(view_.place(4));
    view_.moveTo(view_.place(7));
    EXPECT_EQ(client.takeUpdates().back(), name + "4-7");
    view_.release(view_.place(7));
    EXPECT_EQ(client.takeUpdates(), Updates {}) << "it is the same";
    view_.extend(Qt::Key_Right);
    EXPECT_EQ(client.takeUpdates(), Updates {name + "4-8"});
    text().setSelection(0, 0, 3);
    EXPECT_EQ(client.takeUpdates(), Updates {name + "0-3"});
    text().setSelection(0, 0, 3);
    EXPECT_EQ(client.takeUpdates(), Updates {});
    view_.click(view_.nowhere());
    EXPECT_EQ(client.takeUpdates(), Updates {name + "none"});
    view_.click(view_.place(4));
    EXPECT_EQ(client.takeUpdates(), Updates {});
}

TEST_F(AccessibleSelection, TellsClientsThatItEndsWithItsText)
{
    view_.drag(view_.place(4), view_.place(7));
    const AccessibilityClient client;
    setText("other");
    EXPECT_EQ(client.takeUpdates(),
              (Updates {"TextSelectionChanged: one two, three none", "TextUpdated: other",
                        "NameChanged: other"}));
}

TEST_F(AccessibleSelection, TellsClientsThatItsTextHasTheFocus)
{
    const AccessibilityClient client;
    accessible(&view_.view());
    view_.drag(view_.place(4), view_.place(7));
    client.takeUpdates();
    QApplication::processEvents();
    EXPECT_EQ(client.takeUpdates(), Updates {"Focus: one two, three"});
}

TEST_F(AccessibleSelection, TellsNothingWhereNobodyListens)
{
    view_.drag(view_.place(4), view_.place(7));
    view_.click(view_.nowhere());
    EXPECT_EQ(AccessibilityClient::takeUpdates(), Updates {});
    const AccessibilityClient client;
    TextItem outside;
    outside.setTextInteractionFlags(Qt::TextSelectableByMouse);
    outside.setPlainText(kSentence);
    outside.SelectAll();
    EXPECT_EQ(client.takeUpdates(), Updates {}) << "in no scene";
}

} // namespace
} // namespace plix::test
