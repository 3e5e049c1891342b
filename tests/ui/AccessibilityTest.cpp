// Cards, as a client of QAccessible such as a screen reader finds them.
#include "ClickHost.h"
#include "ClickableCard.h"

#include "support/AccessibilityClient.h"
#include "support/AccessibleTree.h"
#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixFocusStop.h"
#include "ui/PlixSeparatorUI.h"
#include "ui/text/PlixTextUI.h"

#include <kestro_control/GraphicsViewAccessibility.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QScrollBar>

#include <algorithm>
#include <set>

namespace plix::test {
namespace {

using Lines = std::vector<std::string>;

std::string wording(const char*)
{
    return "See your phone";
}

class AccessibleCard : public PlixTest {
protected:
    explicit AccessibleCard(const std::string& json = cardOfAllKinds())
        : card_(json, prepared())
        , view_(*card_.root())
    {
        QApplication::setActiveWindow(&view_.view());
    }

    std::function<void(PlixDataController*)> prepared()
    {
        kestro::InstallGraphicsViewAccessibility();
        Plix_SetMultiLangGetCallback(&wording);
        return host_.setUp();
    }

    QAccessibleInterface& root() { return accessible(card_.root()->toGraphicsObject()); }

    QAccessibleInterface& found(const std::vector<int>& path) const
    {
        return accessible(card_.item(path)->toGraphicsObject());
    }

    ClickHost host_;
    TestCard card_;
    CardView view_;
};

// ----- Roles and names

TEST_F(AccessibleCard, HasARoleAndANameForEachItem)
{
    EXPECT_EQ(treeOf(root()), R"(Grouping plain
  Grouping
    StaticText plain
    Button inside
      StaticText inside
    Grouping
      StaticText no 
      Link words
      Graphic Press
    StaticText To @Ann Lee and @Ann Lee
      Link @Ann Lee
      Link @Ann Lee
    StaticText See your phone
    Button See your phone
    Button
    StaticText odd
    Button @Ann Lee
      StaticText @Ann Lee
    Button Press
)");
}

TEST_F(AccessibleCard, IsAChildOfItsView)
{
    QAccessibleInterface& view = accessible(&view_.view());
    EXPECT_EQ(view.child(0), &root());
    EXPECT_EQ(root().parent(), &view);
    int count = 0;
    forEachAccessible(view, [&](QAccessibleInterface&) { ++count; });
    EXPECT_GT(count, 15);
}

TEST_F(AccessibleCard, CanBeReadBeforeItIsInAScene)
{
    const TestCard card(cardOfAllKinds(), host_.setUp());
    QAccessibleInterface& alone = accessible(card.root()->toGraphicsObject());
    EXPECT_EQ(treeOf(alone), treeOf(root()));
    EXPECT_EQ(alone.parent(), nullptr);
    EXPECT_TRUE(alone.state().invisible);
}

TEST_F(AccessibleCard, LetsTheHostNameIt)
{
    card_.root()->toGraphicsObject()->setProperty("accessibleName", QStringLiteral("Bot: a card"));
    EXPECT_EQ(nameOf(root()), "Bot: a card");
}

TEST_F(AccessibleCard, LeavesOutWhatSaysNothing)
{
    const std::string strip = box("vertical", "", R"("backgroundColor": "#FF0000",)");
    const TestCard card(
        R"({"type": "bubble", "styles": {"body": {"separator": true}},
            "header": )"
        + box("vertical", text("head")) + R"(, "body": )"
        + box("vertical",
              component("separator") + ',' + component("spacer") + ',' + component("filler") + ','
                  + strip + ',' + component("icon", R"("url": "a.png",)"))
        + "}");
    EXPECT_EQ(treeOf(accessible(card.root()->toGraphicsObject())), R"(Grouping head
  Grouping
    StaticText head
  Grouping
    Graphic
)");
}

TEST_F(AccessibleCard, KeepsWhatTheHostHasPutIntoAnItemThatSaysNothing)
{
    const TestCard card(cardOfColumn({text("a"), component("separator"), text("b")}));
    auto* const mine = new TextItem(card.ui<PlixSeparatorUI>({0, 1}));
    mine->setPlainText(QStringLiteral("mine"));
    EXPECT_EQ(treeOf(accessible(card.root()->toGraphicsObject())), R"(Grouping a
  Grouping
    StaticText a
    StaticText mine
    StaticText b
)");
    EXPECT_EQ(accessible(mine).parent(), &accessible(card.item({0})->toGraphicsObject()));
}

TEST_F(AccessibleCard, IsNamedByItsFirstTextEvenInARowOfBoxes)
{
    const TestCard card(
        cardOfColumn({component("icon", R"("url": "a.png",)"),
                      box("horizontal",
                          box("vertical", text(" ")) + ',' + box("vertical", text("one")) + ','
                              + text("two"))}));
    EXPECT_EQ(nameOf(accessible(card.root()->toGraphicsObject())), "one");
    const TestCard empty("{}");
    EXPECT_EQ(treeOf(accessible(empty.root()->toGraphicsObject())), "Grouping\n");
}

TEST_F(AccessibleCard, NamesABoxWithoutTextsByItsAction)
{
    const std::string image = component("image", R"("size": "xxs",)");
    const TestCard card(cardOfColumn({box("vertical", image, uriAction("box"))}));
    EXPECT_EQ(treeOf(accessible(card.item({0, 0})->toGraphicsObject())),
              "Button Press\n  Graphic\n");
}

TEST_F(AccessibleCard, NamesAnImageInTheCurrentLanguage)
{
    const std::string action = R"("action": {"type": "uri", "label": "Map", "uri": "a",
        "i18nLabels": {"ko": "지도"}},)";
    const TestCard card(cardOfColumn({component("image", action)}));
    QAccessibleInterface& image = accessible(card.item({0, 0})->toGraphicsObject());
    EXPECT_EQ(nameOf(image), "Map");
    Plix_SetCurrentLanguage("ko");
    EXPECT_EQ(nameOf(image), "지도");
}

TEST_F(AccessibleCard, NamesWhatHasNoLabelByWhatItsActionDoes)
{
    const struct {
        const char* action;
        const char* name;
    } rows[] = {
        {R"("type": "uri", "uri": "https://example.com/a/b.html?c=d")", "example.com"},
        {R"("type": "uri", "uri": "a", "pcUri": "http://user@pc.example/")", "pc.example"},
        {R"("type": "uri", "label": " ", "uri": "https://b\u00fccher.example/")",
         "xn--bcher-kva.example"},
        {R"("type": "uri", "uri": "tel:123")", "tel:123"},
        {R"("type": "message", "text": "I shall come")", "I shall come"},
        {R"("type": "message", "text": "yes", "i18nTexts": {"en": "Yes", "ko": "a"})", "Yes"},
        {R"("type": "postback", "data": "a=1", "displayText": "Buy", "text": "b")", "Buy"},
        {R"("type": "postback", "data": "a=1")", "action"},
        {R"("type": "uri")", "action"},
    };
    for (const auto& row : rows) {
        const std::string action = std::string(R"("action": {)") + row.action + "},";
        const TestCard card(
            cardOfColumn({component("image", R"("size": "xxs",)" + action),
                          box("vertical", component("separator"), kSmallSize + action)}),
            host_.setUp());
        for (const int item : {0, 1}) {
            QAccessibleInterface& each = accessible(card.item({0, item})->toGraphicsObject());
            EXPECT_TRUE(canPress(each)) << row.action;
            EXPECT_EQ(nameOf(each), row.name);
        }
    }
}

TEST_F(AccessibleCard, NamesAnImageThatCannotBePressedByItsLabelOnly)
{
    const TestCard card(cardOfColumn(
        {component("image", uriAction("https://example.com", "dance")),
         component("image", R"("action": {"type": "dance", "uri": "https://example.com"},)")}));
    EXPECT_EQ(treeOf(accessible(card.item({0})->toGraphicsObject())),
              "Grouping\n  Graphic Press\n  Graphic\n");
}

TEST_F(AccessibleCard, HasOnlyTheMentionsThatAreShown)
{
    const TestCard card(
        cardOfColumn({text("A text with the mention of " + mention(R"(user=\"7\")")),
                      text(mention(R"(user=\"8\")"))},
                     R"("width": "90px",)"),
        host_.setUp());
    ASSERT_TRUE(card.ui<PlixTextUI>({0, 0})->IsElided());
    EXPECT_EQ(treeOf(accessible(card.item({0})->toGraphicsObject())), R"(Grouping
  StaticText A text with the mention of @Ann Lee
  StaticText @Ann Lee
    Link @Ann Lee
)");
}

TEST_F(AccessibleCard, HasTheNamesOfMentionsAsTheyAreInTheCard)
{
    const TestCard card(cardOfColumn({text(R"(To <m user=\"7\">\u05D3\u05E0\u05D4</m>, thanks)")}),
                        host_.setUp());
    EXPECT_EQ(nameOf(*accessible(card.item({0, 0})->toGraphicsObject()).child(0)), "דנה");
}

TEST_F(AccessibleCard, HasTheCharactersOfATextAndTheirPlaces)
{
    const PlixTextUI* const item = card_.ui<PlixTextUI>({0, 3});
    QAccessibleTextInterface* const text = found({0, 3}).textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(3, 11), QStringLiteral("@Ann Lee"));
    QRect mention;
    for (int i = 3; i < 11; ++i)
        mention |= text->characterRect(i);
    const QRect around = found({0, 3}).child(0)->rect();
    EXPECT_TRUE(around.contains(mention));
    EXPECT_LT(around.width(), mention.width() + 10);
    EXPECT_EQ(item->toPlainText(), text->text(0, text->characterCount()));
}

// ----- Pressing

TEST_F(AccessibleCard, DeliversThePressOfEachItemThatCanBeClicked)
{
    std::vector<QAccessibleInterface*> pressable;
    forEachAccessible(root(), [&](QAccessibleInterface& each) {
        if (canPress(each))
            pressable.push_back(&each);
    });
    for (QAccessibleInterface* each : pressable)
        press(*each);
    EXPECT_EQ(host_.arrived, kClickableParts);
    press(found({0, 5}));
    press(found({0, 0}));
    EXPECT_EQ(host_.arrived, kClickableParts);
}

TEST_F(AccessibleCard, MayBeDeletedByAPress)
{
    for (const char* uri : {"box", "text", "image", "user 7", "bot 8", "button"}) {
        SCOPED_TRACE(uri);
        const TestCard card(cardOfAllKinds(), host_.setUp());
        const CardView view(*card.root());
        std::vector<QAccessible::Id> ids;
        forEachAccessible(
            accessible(card.root()->toGraphicsObject()),
            [&](QAccessibleInterface& each) { ids.push_back(QAccessible::uniqueId(&each)); });
        host_.arrived = {"none"};
        for (const QAccessible::Id id : ids) {
            QAccessibleInterface* const each = QAccessible::accessibleInterface(id);
            host_.nextAction = [&] {
                if (host_.arrived.back() == uri)
                    delete card.item({0});
            };
            if (each && canPress(*each))
                press(*each);
            if (host_.arrived.back() == uri)
                break;
        }
        EXPECT_EQ(host_.arrived.back(), uri);
        const auto isLeft = [](QAccessible::Id id) { return QAccessible::accessibleInterface(id); };
        EXPECT_EQ(std::count_if(ids.begin(), ids.end(), isLeft), 1) << "the card itself";
        EXPECT_EQ(treeOf(accessible(card.root()->toGraphicsObject())), "Grouping\n");
    }
}

TEST_F(AccessibleCard, CallsNothingAfterItsControllerIsFreed)
{
    PlixDataController* const controller = Plix_CreateController();
    host_.listenTo(controller);
    Plix_InitData(controller, cardOfAllKinds());
    const std::unique_ptr<QGraphicsItem> item(Plix_CreateQGraphicsItem(controller));
    Plix_Free(controller);
    forEachAccessible(accessible(item->toGraphicsObject()), [](QAccessibleInterface& each) {
        if (canPress(each))
            press(each);
    });
    EXPECT_EQ(host_.arrived, Arrived());
}

// ----- States

TEST_F(AccessibleCard, TellsWhatTheKeyboardCanReach)
{
    Lines focusable;
    forEachAccessible(root(), [&](QAccessibleInterface& each) {
        if (each.state().focusable)
            focusable.push_back(roleOf(each) + ' ' + nameOf(each));
        EXPECT_EQ(bool(each.state().focusable), canPress(each)) << nameOf(each);
    });
    EXPECT_EQ(focusable,
              (Lines {"Button inside", "Link words", "Graphic Press", "Link @Ann Lee",
                      "Link @Ann Lee", "Button @Ann Lee", "Button Press"}));
    EXPECT_TRUE(found({0, 5}).state().disabled) << "not available here";
    EXPECT_TRUE(found({0, 6}).state().disabled) << "without an action";
    EXPECT_FALSE(found({0, 9}).state().disabled);
}

TEST_F(AccessibleCard, FollowsTheKeyboardFocus)
{
    Lines focused;
    for (std::size_t i = 0; i < kClickableParts.size(); ++i) {
        view_.pressKey(Qt::Key_Tab);
        QAccessibleInterface* const focus = accessible(&view_.view()).focusChild();
        ASSERT_NE(focus, nullptr);
        EXPECT_TRUE(focus->state().focused);
        EXPECT_EQ(root().focusChild(), focus);
        focused.push_back(roleOf(*focus) + ' ' + nameOf(*focus));
    }
    EXPECT_EQ(focused,
              (Lines {"Button inside", "Link words", "Graphic Press", "Link @Ann Lee",
                      "Link @Ann Lee", "Button @Ann Lee", "Button Press"}));
    EXPECT_FALSE(found({0, 2, 1}).state().focused);
}

TEST_F(AccessibleCard, HasTheFocusInTheTextThatIsSelected)
{
    const std::string tree = treeOf(root());
    view_.doubleClick(card_.item({0, 0})->sceneBoundingRect().center());
    QAccessibleTextInterface& text = *found({0, 0}).textInterface();
    ASSERT_EQ(text.selectionCount(), 1);
    EXPECT_EQ(text.cursorPosition(), 5);
    EXPECT_EQ(treeOf(root()), tree);
    EXPECT_EQ(root().focusChild(), &found({0, 0}));
    EXPECT_EQ(accessible(&view_.view()).focusChild(), &found({0, 0}));
    EXPECT_TRUE(found({0, 0}).state().focused);
    found({0, 2, 1}).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_FALSE(found({0, 0}).state().focused);
    EXPECT_EQ(root().focusChild(), &found({0, 2, 1}));
}

TEST_F(AccessibleCard, LetsAClientSelectWhatTheMouseSelects)
{
    forEachAccessible(root(), [](QAccessibleInterface& each) {
        if (QAccessibleTextInterface* const text = each.textInterface())
            text->setSelection(0, 0, 2);
    });
    const std::vector<std::vector<int>> texts = {{0, 0}, {0, 1, 0}, {0, 2, 0}, {0, 2, 1},
                                                 {0, 3}, {0, 4},    {0, 7},    {0, 8, 0}};
    std::vector<std::vector<int>> selected;
    std::vector<std::vector<int>> selectable;
    for (const std::vector<int>& path : texts) {
        if (found(path).textInterface()->selectionCount() > 0)
            selected.push_back(path);
        if (found(path).state().selectableText)
            selectable.push_back(path);
    }
    EXPECT_EQ(selectable, (std::vector<std::vector<int>> {{0, 0}, {0, 2, 0}, {0, 3}, {0, 7}}));
    EXPECT_EQ(selected, (std::vector<std::vector<int>> {{0, 7}})) << "the last one";
}

TEST_F(AccessibleCard, LetsAClientMoveTheFocus)
{
    const QString setFocus = QAccessibleActionInterface::setFocusAction();
    found({0, 2, 1}).actionInterface()->doAction(setFocus);
    EXPECT_TRUE(found({0, 2, 1}).state().focused);
    view_.pressKey(Qt::Key_Return);
    EXPECT_EQ(host_.arrived, Arrived {"text"});
    QAccessibleInterface& mention = *found({0, 3}).child(1);
    mention.actionInterface()->doAction(setFocus);
    EXPECT_TRUE(mention.state().focused);
    view_.pressKey(Qt::Key_Return);
    EXPECT_EQ(host_.arrived, (Arrived {"text", "bot 8"}));
}

TEST_F(AccessibleCard, TellsWhatIsOutOfSight)
{
    view_.view().resize(300, 100);
    view_.view().verticalScrollBar()->setValue(0);
    EXPECT_FALSE(found({0, 0}).state().offscreen);
    EXPECT_TRUE(found({0, 9}).state().offscreen);
    EXPECT_FALSE(found({0, 9}).state().invisible);
    view_.view().verticalScrollBar()->setValue(1000);
    EXPECT_TRUE(found({0, 0}).state().offscreen);
    EXPECT_FALSE(found({0, 9}).state().offscreen);
    card_.root()->hide();
    EXPECT_TRUE(found({0, 9}).state().invisible);
}

TEST_F(AccessibleCard, TellsThatItsOutlineCutsAnItemOff)
{
    const std::string outside = text("away", R"("position": "absolute", "offsetTop": "500px",)");
    const TestCard card(cardOfColumn({text("a"), outside}));
    const CardView view(*card.root());
    EXPECT_FALSE(accessible(card.item({0, 0})->toGraphicsObject()).state().offscreen);
    EXPECT_TRUE(accessible(card.item({0, 1})->toGraphicsObject()).state().offscreen);
}

TEST_F(AccessibleCard, KnowsWhereAScaledCardIs)
{
    const QRect before = found({0, 9}).rect();
    card_.root()->setScale(0.5);
    view_.view().scale(2, 2);
    EXPECT_EQ(found({0, 9}).rect().size(), before.size());
    view_.view().scale(2, 2);
    EXPECT_NEAR(found({0, 9}).rect().width(), before.width() * 2, 2);
    QAccessibleInterface* at = &accessible(&view_.view());
    const QPoint middle = found({0, 0}).rect().center();
    while (QAccessibleInterface* const next = at->childAt(middle.x(), middle.y()))
        at = next;
    EXPECT_EQ(at, &found({0, 0}));
}

// ----- Updates

TEST_F(AccessibleCard, TellsClientsOfAHighlight)
{
    const AccessibilityClient client;
    Plix_SetHighLightText(card_.controller(), {"plain"});
    const Lines updates = client.takeUpdates();
    EXPECT_NE(std::find(updates.begin(), updates.end(), "TextAttributeChanged: plain"),
              updates.end());
    Plix_SetHighLightText(card_.controller(), {"plain"});
    EXPECT_EQ(client.takeUpdates(), Lines {});
}

TEST_F(AccessibleCard, TellsClientsOfAnotherHeight)
{
    const AccessibilityClient client;
    Plix_RefreshLayout(card_.controller());
    EXPECT_EQ(client.takeUpdates(), Lines {});
    const double height = card_.root()->boundingRect().height();
    Plix_ModifyHeight(card_.controller(), static_cast<int>(height) + 100);
    EXPECT_EQ(client.takeUpdates(), Lines {"LocationChanged: plain"});
}

TEST_F(AccessibleCard, TellsClientsOfAnotherText)
{
    const AccessibilityClient client;
    card_.ui<PlixTextUI>({0, 0})->setPlainText(QStringLiteral("other"));
    EXPECT_EQ(client.takeUpdates(), (Lines {"TextUpdated: other", "NameChanged: other"}));
}

TEST_F(AccessibleCard, TellsClientsOfTheFocus)
{
    const AccessibilityClient client;
    accessible(&view_.view());
    Lines updates;
    for (int i = 0; i < 4; ++i) {
        view_.pressKey(Qt::Key_Tab);
        QApplication::processEvents();
        for (const std::string& update : client.takeUpdates())
            updates.push_back(update);
    }
    EXPECT_EQ(updates,
              (Lines {"Focus: inside", "Focus: words", "Focus: Press", "Focus: @Ann Lee"}));
}

// What Qt has asked the factories for.
std::set<QString> askedClasses;

QAccessibleInterface* recordClass(const QString& className, QObject*)
{
    askedClasses.insert(className);
    return nullptr;
}

TEST_F(AccessibleCard, CostsNothingWithoutAClient)
{
    QAccessible::installFactory(&recordClass);
    askedClasses.clear();
    const TestCard card(cardOfAllKinds(), host_.setUp());
    CardView view(*card.root());
    view.pressKey(Qt::Key_Tab);
    view.pressKey(Qt::Key_Return);
    Plix_SetHighLightText(card.controller(), {"plain"});
    card.ui<PlixTextUI>({0, 0})->setPlainText(QStringLiteral("other"));
    Plix_ModifyHeight(card.controller(), 1000);
    QApplication::processEvents();
    QAccessible::removeFactory(&recordClass);
    for (const QString& name : askedClasses)
        EXPECT_FALSE(name.startsWith(QLatin1String("Plix"))) << name.toStdString();
    EXPECT_EQ(AccessibilityClient::takeUpdates(), Lines {});
}

} // namespace
} // namespace plix::test
