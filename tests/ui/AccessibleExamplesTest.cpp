// The example cards, as a client of QAccessible finds them: compared with their texts, and
// with what keyboard and mouse click.
#include "ClickHost.h"
#include "ExampleCards.h"

#include "support/AccessibleTree.h"
#include "support/Mouse.h"
#include "support/PlixTest.h"

#include <kestro_control/GraphicsViewAccessibility.h>

#include <QGraphicsScene>

#include <utility>

namespace plix::test {
namespace {

using Lines = std::vector<std::string>;

// All that the host gets of a click.
std::string recordOf(const ST_ACTION& action)
{
    std::string record;
    for (const std::string* field :
         {&action.type, &action.label, &action.text, &action.displayText, &action.uri,
          &action.pcUri, &action.webUri, &action.appUri, &action.androidUri, &action.iosUri,
          &action.pcAuthUri, &action.copyText, &action.data, &action.mode, &action.initial,
          &action.max, &action.min})
        record += *field + '|';
    for (const PlixLanguageMap* map :
         {&action.i18nLabels, &action.i18nTexts, &action.i18nDisplayTexts}) {
        for (const auto& [code, text] : map->texts)
            record += code + '=' + text + '|';
    }
    return record;
}

// Records all actions and mentions that a host gets, in their order.
class RecordingHost {
public:
    RecordingHost()
    {
        host_.onAction = [this](const ST_ACTION& action) { records_.push_back(recordOf(action)); };
    }

    void listenTo(PlixDataController* controller)
    {
        showExamplePictures(controller);
        host_.listenTo(controller);
    }

    Lines takeAll()
    {
        Lines all = std::exchange(records_, {});
        // Of actions, only the URI.
        for (const std::string& arrived : std::exchange(host_.arrived, {})) {
            if (arrived.rfind("user ", 0) == 0 || arrived.rfind("bot ", 0) == 0)
                all.push_back(arrived);
        }
        return all;
    }

private:
    ClickHost host_;
    Lines records_;
};

std::string phoneWording(const char*)
{
    return "See your phone";
}

std::string onOneLine(const std::string& text)
{
    return QString::fromStdString(text).simplified().toStdString();
}

std::string onOneLine(const Lines& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += text + ' ';
    return onOneLine(all);
}

// The names of texts and buttons, in the order of the tree. Boxes and mentions repeat texts.
Lines wordsOf(QAccessibleInterface& root)
{
    Lines words;
    forEachAccessible(root, [&](QAccessibleInterface& each) {
        const bool isText = each.textInterface();
        if (isText || (each.role() == QAccessible::Button && each.childCount() == 0))
            words.push_back(nameOf(each));
    });
    return words;
}

class AccessibleExamples : public PlixTest {
protected:
    AccessibleExamples()
    {
        kestro::InstallGraphicsViewAccessibility();
        Plix_SetMultiLangGetCallback(&phoneWording);
    }

    // Calls `check` with the name, the card and its interface, while a view shows it.
    void forEachExample(
        const std::function<void(const TestCard&, CardView&, QAccessibleInterface&)>& check)
    {
        for (const std::string& name : exampleNames()) {
            SCOPED_TRACE(name);
            const TestCard card(exampleCard(name), [this](PlixDataController* controller) {
                host_.listenTo(controller);
            });
            CardView view(*card.root());
            check(card, view, accessible(card.root()->toGraphicsObject()));
        }
    }

    RecordingHost host_;
};

TEST_F(AccessibleExamples, SayTheirTextsInTheirOrder)
{
    forEachExample([](const TestCard& card, CardView&, QAccessibleInterface& root) {
        const QString text = card.root()->toGraphicsObject()->property("plainText").toString();
        EXPECT_EQ(onOneLine(wordsOf(root)), onOneLine(text.toStdString()));
        EXPECT_EQ(onOneLine(text.toStdString()).rfind(onOneLine(nameOf(root)), 0), 0U);
        forEachAccessible(root, [](QAccessibleInterface& each) {
            const bool isBox = each.role() == QAccessible::Button && each.childCount() > 0;
            EXPECT_EQ(onOneLine(isBox ? nameOf(each) : ""),
                      onOneLine(isBox ? wordsOf(each) : Lines {}));
        });
    });
}

TEST_F(AccessibleExamples, AreMadeOfThingsThatAreSeen)
{
    forEachExample([](const TestCard&, CardView&, QAccessibleInterface& root) {
        forEachAccessible(root, [&](QAccessibleInterface& each) {
            EXPECT_FALSE(each.state().invisible) << nameOf(each);
            EXPECT_FALSE(each.state().offscreen) << nameOf(each);
            EXPECT_TRUE(root.rect().contains(each.rect())) << nameOf(each);
        });
    });
}

TEST_F(AccessibleExamples, PressWhatTheKeyboardClicks)
{
    std::size_t all = 0;
    forEachExample([&](const TestCard&, CardView& view, QAccessibleInterface& root) {
        const QGraphicsItem* before = nullptr;
        Lines byKeyboard;
        while (true) {
            view.pressKey(Qt::Key_Tab);
            if (view.scene().focusItem() == std::exchange(before, view.scene().focusItem()))
                break; // the view has no other widget to pass the focus to
            view.pressKey(Qt::Key_Space);
            const Lines records = host_.takeAll();
            byKeyboard.insert(byKeyboard.end(), records.begin(), records.end());
        }
        Lines byPress;
        forEachAccessible(root, [&](QAccessibleInterface& each) {
            EXPECT_EQ(canPress(each), bool(each.state().focusable)) << nameOf(each);
            if (!canPress(each))
                return;
            press(each);
            EXPECT_FALSE(nameOf(each).empty());
            const Lines records = host_.takeAll();
            EXPECT_EQ(records.size(), 1U);
            byPress.insert(byPress.end(), records.begin(), records.end());
        });
        EXPECT_EQ(byPress, byKeyboard);
        all += byPress.size();
    });
    EXPECT_GT(all, 50U);
}

TEST_F(AccessibleExamples, DeliverWhatTheMouseDelivers)
{
    std::size_t compared = 0;
    forEachExample([&](const TestCard&, CardView& view, QAccessibleInterface& root) {
        forEachAccessible(root, [&](QAccessibleInterface& each) {
            // A box may contain items that are clicked themselves.
            if (!canPress(each) || each.childCount() > 0)
                return;
            press(each);
            const Lines pressed = host_.takeAll();
            const QPoint pixel = view.view().mapFromGlobal(each.rect().center());
            view.click(view.view().mapToScene(pixel));
            EXPECT_EQ(host_.takeAll(), pressed) << nameOf(each);
            ++compared;
        });
    });
    EXPECT_GT(compared, 40U);
}

} // namespace
} // namespace plix::test
