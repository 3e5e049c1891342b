// A TextItem, as a client of QAccessible reads it.
#include "support/AccessibilityClient.h"
#include "support/AccessibleTree.h"

#include <kestro_control/GraphicsViewAccessibility.h>
#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>
#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QScrollBar>

namespace plix::test {
namespace {

using Updates = std::vector<std::string>;

class EmojiPictures : public KestroControlSupport {
public:
    EmojiPictures() { KestroControlManager::GetInstance()->SetKestroControlSupport(this); }

    QString GetFontFamily() const override { return {}; }

    QImage GetEmojiImage(const QString&) const override
    {
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        return picture;
    }
};

class AccessibleText : public testing::Test {
protected:
    AccessibleText()
        : view_(&scene_)
    {
        kestro::InstallGraphicsViewAccessibility();
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(16);
        item_->setFont(font);
        scene_.addItem(item_);
        scene_.setSceneRect(0, 0, 400, 300);
        view_.resize(400, 300);
        view_.show();
    }

    void setText(const char* text) { item_->setPlainText(QString::fromUtf8(text)); }

    QAccessibleTextInterface& text() { return *accessible(item_).textInterface(); }

    std::string charactersAt(int offset, QAccessible::TextBoundaryType boundary)
    {
        int start = 0;
        int end = 0;
        return text().textAtOffset(offset, boundary, &start, &end).toStdString();
    }

    void expectToFind(int index)
    {
        const QRect rect = text().characterRect(index);
        EXPECT_FALSE(rect.isEmpty()) << index;
        EXPECT_EQ(text().offsetAtPoint(rect.center()), index);
        EXPECT_TRUE(accessible(item_).rect().contains(rect.center())) << index;
    }

    // What a client finds at the middle of each character that is shown.
    void expectToFindEachCharacter()
    {
        int shown = 0;
        for (int i = 0; i < text().characterCount(); ++i) {
            if (text().characterRect(i).isEmpty())
                continue;
            ++shown;
            expectToFind(i);
        }
        EXPECT_GT(shown, 3);
    }

    QGraphicsScene scene_;
    QGraphicsView view_;
    TextItem* const item_ = new TextItem;
};

TEST_F(AccessibleText, IsWhatTheItemShows)
{
    setText("Tea and\ncake");
    EXPECT_EQ(treeOf(accessible(item_)), "StaticText Tea and\ncake\n");
    EXPECT_EQ(text().characterCount(), 12);
    EXPECT_EQ(text().text(4, 7), QStringLiteral("and"));
    EXPECT_EQ(text().text(7, 4), QString());
    EXPECT_EQ(charactersAt(5, QAccessible::WordBoundary), "and");
    EXPECT_EQ(charactersAt(9, QAccessible::CharBoundary), "a");
    EXPECT_TRUE(accessible(item_).state().readOnly);
}

TEST_F(AccessibleText, IsAllOfTheTextWhereItIsElided)
{
    setText("A sentence that is too long for its line");
    item_->SetElide(true);
    item_->SetMaxLineCount(1);
    item_->SetFixedItemWidth(120);
    ASSERT_TRUE(item_->IsElided());
    EXPECT_EQ(text().characterCount(), 40);
    EXPECT_TRUE(text().characterRect(39).isEmpty());
    expectToFindEachCharacter();
    int last = 39;
    while (text().characterRect(last).isEmpty())
        --last;
    const QRect rect = text().characterRect(last);
    EXPECT_EQ(text().offsetAtPoint({rect.right() + 5, rect.center().y()}), last)
        << "the ellipsis counts as the character before it";
}

TEST_F(AccessibleText, KnowsThePlaceOfEachCharacter)
{
    for (const char* characters :
         {"Tea and cake", "One\n\nThree", "Words that need more lines than one",
          "\u0634\u0627\u064a \u0648\u0643\u0639\u0643", "mixed \u0634\u0627\u064a in it"}) {
        SCOPED_TRACE(characters);
        setText(characters);
        item_->SetFixedItemWidth(120);
        expectToFindEachCharacter();
    }
    EXPECT_EQ(text().offsetAtPoint(view_.mapToGlobal(QPoint(390, 290))), -1);
    EXPECT_TRUE(text().characterRect(-1).isEmpty());
    EXPECT_TRUE(text().characterRect(1000).isEmpty());
}

TEST_F(AccessibleText, KnowsThePlacesOfAScaledText)
{
    setText("Cake");
    const QRect before = text().characterRect(2);
    view_.scale(2, 2);
    item_->setScale(1.5);
    EXPECT_NEAR(text().characterRect(2).width(), before.width() * 3, 3);
    expectToFindEachCharacter();
}

TEST_F(AccessibleText, CountsTheCharactersThatAPictureStandsFor)
{
    const EmojiPictures pictures;
    item_->SetMarkupEnabled(true);
    item_->InsertRichText(QStringLiteral("ab <e code=\"1F469-200D-1F4BB\"/> cd"), true);
    EXPECT_EQ(text().characterCount(), 3 + 5 + 3);
    EXPECT_EQ(text().text(9, 11), QStringLiteral("cd"));
    for (const int i : {0, 1, 2, 3, 8, 9, 10})
        expectToFind(i);
    const QRect picture = text().characterRect(3);
    EXPECT_FALSE(picture.isEmpty());
    EXPECT_GE(picture.left(), text().characterRect(2).right());
    EXPECT_LE(picture.right(), text().characterRect(8).left());
    for (int i = 4; i < 8; ++i)
        EXPECT_EQ(text().characterRect(i), picture) << i;
}

TEST_F(AccessibleText, HasOnePlaceForAPictureInEachLineAndDirection)
{
    const EmojiPictures pictures;
    item_->SetMarkupEnabled(true);
    const QString woman = QStringLiteral("<e code=\"1F469-200D-1F4BB\"/>");
    item_->InsertRichText(QStringLiteral("ab\u2028") + woman + QStringLiteral("\n\u05d0") + woman,
                          true);
    for (const int i : {3, 9, 10})
        expectToFind(i);
    EXPECT_GT(text().characterRect(3).top(), text().characterRect(0).center().y());
    EXPECT_TRUE(accessible(item_).rect().contains(text().characterRect(3)));
    item_->SetElide(true);
    item_->SetMaxLineCount(2);
    item_->SetFixedItemWidth(40);
    ASSERT_TRUE(item_->IsElided());
    expectToFind(3);
}

TEST_F(AccessibleText, HasOnePlaceForWhatIsSeenAsOneCharacter)
{
    for (const char* one : {"e\u0301", "\U0001F600", "\U0001F44D\U0001F3FD"}) {
        SCOPED_TRACE(one);
        const QString character = QString::fromUtf8(one);
        setText((std::string("a") + one + "b").c_str());
        expectToFind(1);
        expectToFind(1 + character.size());
        for (int i = 2; i <= character.size(); ++i)
            EXPECT_EQ(text().characterRect(i), text().characterRect(1)) << i;
    }
}

TEST_F(AccessibleText, ScrollsToACharacter)
{
    setText("Tea");
    item_->setPos(0, 280);
    view_.resize(200, 100);
    view_.verticalScrollBar()->setValue(0);
    EXPECT_TRUE(accessible(item_).state().offscreen);
    text().scrollToSubstring(0, 1);
    EXPECT_FALSE(accessible(item_).state().offscreen);
}

TEST_F(AccessibleText, HasTheHighlightAsAnAttribute)
{
    setText("Tea and\ntea and tea");
    item_->HighlightText({QStringLiteral("tea")}, QColor(0x11, 0x8D, 0xFF));
    int start = 0;
    int end = 0;
    EXPECT_EQ(text().attributes(9, &start, &end),
              QStringLiteral("background-color:rgb(17,141,255);"));
    EXPECT_EQ(start, 8);
    EXPECT_EQ(end, 11);
    EXPECT_EQ(text().attributes(13, &start, &end), QString());
    EXPECT_EQ(start, 11);
    EXPECT_EQ(end, 16);
    item_->HighlightText({}, QColor());
    text().attributes(9, &start, &end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 19);
}

TEST_F(AccessibleText, MayBeEdited)
{
    setText("Tea");
    item_->SetReadOnly(false);
    EXPECT_EQ(roleOf(accessible(item_)), "EditableText");
    EXPECT_TRUE(accessible(item_).state().editable);
}

TEST_F(AccessibleText, TellsClientsOfItsChanges)
{
    const AccessibilityClient client;
    item_->InsertRichText(QStringLiteral("Tea"), true);
    EXPECT_EQ(client.takeUpdates(), (Updates {"TextUpdated: Tea", "NameChanged: Tea"}));
    setText("Tea");
    EXPECT_EQ(client.takeUpdates(), Updates {});
    setText("Cake");
    EXPECT_EQ(client.takeUpdates(), (Updates {"TextUpdated: Cake", "NameChanged: Cake"}));
    item_->HighlightText({QStringLiteral("k")}, QColor(Qt::red));
    EXPECT_EQ(client.takeUpdates(), Updates {"TextAttributeChanged: Cake"});
    item_->HighlightText({QStringLiteral("k")}, QColor(Qt::red));
    EXPECT_EQ(client.takeUpdates(), Updates {});
}

TEST_F(AccessibleText, TellsNothingWhereNobodyListens)
{
    setText("Tea");
    item_->HighlightText({QStringLiteral("t")}, QColor(Qt::red));
    EXPECT_EQ(AccessibilityClient::takeUpdates(), Updates {});
    const AccessibilityClient client;
    TextItem outside;
    outside.setPlainText(QStringLiteral("in no scene"));
    outside.HighlightText({QStringLiteral("n")}, QColor(Qt::red));
    EXPECT_EQ(client.takeUpdates(), Updates {});
}

} // namespace
} // namespace plix::test
