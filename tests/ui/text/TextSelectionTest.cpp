// Which texts of a card can be selected and copied, and what that changes for clicks.
#include "ui/CardTree.h"
#include "ui/ClickHost.h"
#include "ui/ExampleCards.h"

#include "support/FontFamilyHost.h"
#include "support/LiveView.h"
#include "support/Mouse.h"
#include "support/PlatformMessages.h"
#include "support/PlixTest.h"
#include "ui/text/PlixTextUI.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>

namespace plix::test {
namespace {

class TextSelection : public PlixTest {
protected:
    // What a drag over the whole text selects, which may begin at its right end.
    static QString dragOver(CardView& view, const QGraphicsItem& text)
    {
        const QRectF rect = text.sceneBoundingRect();
        view.drag(rect.topLeft() + QPointF(1, 1), rect.bottomRight() + QPointF(20, 20));
        return dynamic_cast<const PlixTextUI&>(text).SelectedText();
    }

    // What the only entry of the context menu copies; "none" without a menu.
    static QString copyByMenu(CardView& view, const QGraphicsItem& text)
    {
        const PlatformMessages platform;
        QMenu* const menu = view.openMenu(text.sceneBoundingRect().center());
        if (!menu)
            return QStringLiteral("none");
        EXPECT_EQ(menu->actions().size(), 1);
        QApplication::clipboard()->clear();
        menu->actions().first()->trigger();
        menu->close();
        return QApplication::clipboard()->text();
    }
};

TEST_F(TextSelection, IsThatOfTextsThatCannotBeClicked)
{
    ClickHost host;
    const TestCard card(
        bubbleWithBody(box("vertical",
                           text("plain words") + ',' + text("odd", uriAction("its", "dance")) + ','
                               + box("horizontal", text("12,000 won")))),
        host.setUp());
    CardView view(*card.root());
    EXPECT_EQ(dragOver(view, *card.item({0, 0})), QStringLiteral("plain words"));
    EXPECT_EQ(dragOver(view, *card.item({0, 1})), QStringLiteral("odd"));
    EXPECT_EQ(dragOver(view, *card.item({0, 2, 0})), QStringLiteral("12,000 won"));
    EXPECT_EQ(card.ui<PlixTextUI>({0, 0})->SelectedText(), QString()) << "one at a time";
    EXPECT_EQ(host.arrived, Arrived {});
}

TEST_F(TextSelection, LeavesClickableTextsToTheClick)
{
    ClickHost host;
    const TestCard card(bubbleWithBody(box("vertical",
                                           text("order 12", uriAction("its")) + ','
                                               + box("vertical", box("vertical", text("in a box")),
                                                     uriAction("around")))),
                        host.setUp());
    CardView view(*card.root());
    QGraphicsItem* const own = card.item({0, 0});
    QGraphicsItem* const inBox = card.item({0, 1, 0, 0});
    for (QGraphicsItem* const item : {own, inBox}) {
        EXPECT_EQ(dragOver(view, *item), QString());
        view.doubleClick(item->sceneBoundingRect().center());
    }
    EXPECT_EQ(host.arrived, (Arrived {"its", "its", "around", "around"}));
    EXPECT_EQ(copyByMenu(view, *own), QStringLiteral("order 12"));
    EXPECT_EQ(copyByMenu(view, *inBox), QStringLiteral("in a box"));
    EXPECT_EQ(host.arrived.size(), 4U) << "the menu does not click";
}

TEST_F(TextSelection, IsNotThatOfTheWordingForApps)
{
    Plix_SetMultiLangGetCallback([](const char*) { return std::string("On your phone"); });
    const TestCard card(
        bubbleWithBody(box("vertical", text("words", appAction("app://a")), uriAction("around"))));
    CardView view(*card.root());
    EXPECT_EQ(dragOver(view, *card.item({0, 0})), QString());
    EXPECT_EQ(copyByMenu(view, *card.item({0, 0})), QStringLiteral("none"));
}

TEST_F(TextSelection, KeepsMentionsClickable)
{
    ClickHost host;
    const TestCard card(
        bubbleWithBody(box("vertical", text(R"(See <m user=\"7\">Ann</m>, please)"))),
        host.setUp());
    CardView view(*card.root());
    const auto* const words = card.ui<PlixTextUI>({0, 0});
    EXPECT_EQ(dragOver(view, *words), QStringLiteral("See Ann, please"));
    view.click(words->mapToScene(words->MentionRect(0).center()));
    EXPECT_EQ(host.arrived, Arrived {"user 7"});
    view.drag(words->mapToScene(words->MentionRect(0).center()), view.nowhere());
    EXPECT_EQ(host.arrived.size(), 1U);
    EXPECT_EQ(words->SelectedText(), QString()) << "a mention is for clicks";
}

TEST_F(TextSelection, PassesClicksToAnImageBelowTheText)
{
    ClickHost host;
    const std::string image =
        component("image", R"("size": "full", "aspectRatio": "3:1",)" + uriAction("photo"));
    const std::string label =
        text("SALE", R"("position": "absolute", "offsetTop": "20px", "offsetStart": "20px",)");
    const TestCard card(bubbleWithBody(box("vertical", image + ',' + label)), host.setUp());
    CardView view(*card.root());
    const QGraphicsItem* const words = card.item({0, 1});
    view.click(words->sceneBoundingRect().center());
    EXPECT_EQ(host.arrived, Arrived {"photo"});
    EXPECT_EQ(dragOver(view, *words), QStringLiteral("SALE"));
    EXPECT_EQ(host.arrived, Arrived {"photo"});
    host.nextAction = [&card] { delete card.item({0}); };
    view.click(words->sceneBoundingRect().center());
    EXPECT_EQ(host.arrived.size(), 2U);
}

TEST_F(TextSelection, LetsTheHostSelectTheCard)
{
    const TestCard card(bubbleWithBody(box("vertical", text("words"))));
    card.root()->setFlag(QGraphicsItem::ItemIsSelectable);
    CardView view(*card.root());
    view.click(card.item({0, 0})->sceneBoundingRect().center());
    EXPECT_TRUE(card.root()->isSelected());
}

TEST_F(TextSelection, LastsThroughChangesOfTheCard)
{
    FontFamilyHost fonts;
    const TestCard card(bubbleWithBody(
        box("vertical", text("Words that need some lines in a card", R"("wrap": true,)"))));
    CardView view(*card.root());
    QApplication::setActiveWindow(&view.view());
    const auto* const words = card.ui<PlixTextUI>({0, 0});
    ASSERT_EQ(dragOver(view, *words), words->toPlainText());
    view.pressKey(Qt::Key_Left, Qt::ShiftModifier);
    const QString selected = words->SelectedText();
    Plix_ModifyHeight(card.controller(), 400);
    Plix_RefreshLayout(card.controller());
    Plix_SetHighLightText(card.controller(), {"need"});
    Plix_SetBubbleBkColor(card.controller(), "#FFFFFF");
    fonts.changeFamily();
    view.view().grab();
    Plix_RefreshLayout(card.controller());
    view.view().grab();
    EXPECT_EQ(words->SelectedText(), selected);
    EXPECT_LT(selected.size(), words->toPlainText().size());
    delete card.item({0});
    EXPECT_EQ(view.scene().focusItem(), nullptr);
}

TEST_F(TextSelection, CanBeSwitchedOff)
{
    const TestCard card(bubbleWithBody(box("vertical", text("words"))));
    CardView view(*card.root());
    card.item({0, 0})->toGraphicsObject()->setProperty("textInteractionFlags", 0);
    EXPECT_EQ(dragOver(view, *card.item({0, 0})), QString());
    EXPECT_EQ(copyByMenu(view, *card.item({0, 0})), QStringLiteral("none"));
}

TEST_F(TextSelection, ShowsElidedTextsInATooltip)
{
    const PlatformMessages platform;
    const std::string sentence = "A sentence that is much too long for a card as narrow as this";
    const TestCard card(bubbleWithBody(
        box("vertical",
            text(sentence) + ',' + text("short") + ',' + text(sentence, uriAction("its"))),
        R"("size": "nano",)"));
    CardView view(*card.root());
    const auto toolTipOf = [&](int index) {
        return view.toolTipAt(card.item({0, index})->sceneBoundingRect().center());
    };
    EXPECT_TRUE(toolTipOf(0).contains(QString::fromStdString(sentence)));
    EXPECT_EQ(toolTipOf(1), QString());
    EXPECT_TRUE(toolTipOf(2).contains(QString::fromStdString(sentence)));
}

// In every text of every example card.
TEST_F(TextSelection, IsTheWholeTextOfEveryTextThatIsNotClickable)
{
    int selected = 0;
    int clickable = 0;
    for (const std::string& name : exampleNames()) {
        SCOPED_TRACE(name);
        const TestCard card(exampleCard(name), &showExamplePictures);
        CardView view(*card.root());
        forEachItem(*card.root(), [&](QGraphicsItem& item) {
            auto* const words = dynamic_cast<PlixTextUI*>(&item);
            if (!words || words->boundingRect().isEmpty())
                return;
            words->SelectAll();
            const bool isSelectable = words->cursor().shape() != Qt::PointingHandCursor;
            EXPECT_EQ(words->SelectedText(), isSelectable ? words->toPlainText() : QString());
            (isSelectable ? selected : clickable) += 1;
            if (!isSelectable)
                return;
            words->ClearSelection();
            view.drag(words->mapToScene(words->boundingRect().center()), view.nowhere());
            const QString start = words->SelectedText();
            EXPECT_TRUE(words->toPlainText().startsWith(start));
        });
    }
    EXPECT_GT(selected, 200);
    EXPECT_GT(clickable, 20);
}

TEST_F(TextSelection, OfAnyTextOfAnExampleLeavesNothingBehind)
{
    for (const char* name : {"receipt", "arabic_order", "mentions"}) {
        SCOPED_TRACE(name);
        const TestCard card(exampleCard(name), &showExamplePictures);
        LiveView view(*card.root());
        const QImage before = view.shown();
        forEachItem(*card.root(), [&](QGraphicsItem& item) {
            auto* const words = dynamic_cast<PlixTextUI*>(&item);
            if (!words || !words->isVisible())
                return;
            words->SelectAll();
            if (!words->HasSelection() || words->boundingRect().isEmpty())
                return;
            view.paintWhatChanged();
            const QRect changed = differenceOf(before, view.shown());
            EXPECT_FALSE(changed.isEmpty());
            const QRectF place = view.pixelsOf(words->sceneBoundingRect()).toAlignedRect();
            EXPECT_TRUE(place.contains(changed)) << words->toPlainText().toStdString();
            words->ClearSelection();
            view.paintWhatChanged();
            EXPECT_EQ(view.shown(), before);
        });
    }
}

} // namespace
} // namespace plix::test
