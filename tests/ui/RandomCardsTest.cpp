// Cards of random and extreme content can all be shown.
#include "CardTree.h"
#include "layout/PlixLimits.h"
#include "layout/YogaLayoutItem.h"
#include "support/AccessibilityClient.h"
#include "support/AccessibleTree.h"
#include "support/PlixTest.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <random>

namespace plix::test {
namespace {

class RandomCardWriter {
public:
    explicit RandomCardWriter(unsigned seed)
        : random_(seed)
    {
    }

    std::string card()
    {
        std::string json = R"({"type": "bubble", )";
        json += maybe("size") + maybe("direction");
        json += R"("styles": {)";
        for (const char* zone : {"header", "hero", "body"})
            json += quoted(zone) + R"(: {"separator": )" + oneOf({"true", "false", "7"}) + ", "
                + quoted("separatorColor") + ": " + value() + R"(, "backgroundColor": )" + value()
                + "}, ";
        json += R"("footer": {}})";
        for (const char* zone : {"header", "hero", "body", "footer"}) {
            if (below(4) > 0)
                json.append(", ").append(quoted(zone)).append(": ").append(anyComponent(4));
        }
        return json + "}";
    }

private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    std::string oneOf(const std::vector<std::string>& words)
    {
        return words[static_cast<std::size_t>(below(static_cast<int>(words.size())))];
    }

    static std::string quoted(const std::string& word)
    {
        return std::string(1, '"').append(word).append(1, '"');
    }

    // Mostly a value of the right type, sometimes another one.
    std::string value()
    {
        static const std::vector<std::string> strings {"",
                                                       "md",
                                                       "xxl",
                                                       "0",
                                                       "1px",
                                                       "-1px",
                                                       "33%",
                                                       "100%",
                                                       "-50%",
                                                       "2147483647px",
                                                       "-2147483648",
                                                       "2147483647%",
                                                       "99999999999999px",
                                                       "1e9px",
                                                       "NaN",
                                                       "inf",
                                                       "%",
                                                       "px",
                                                       "vertical",
                                                       "horizontal",
                                                       "baseline",
                                                       "absolute",
                                                       "center",
                                                       "end",
                                                       "bottom",
                                                       "bold",
                                                       "rtl",
                                                       "giga",
                                                       "nano",
                                                       "5xl",
                                                       "light",
                                                       "#FF0000",
                                                       "#80FF000080",
                                                       "red",
                                                       "#12345",
                                                       "\\u0000",
                                                       "\\ud800",
                                                       "a\\u0000b",
                                                       "\xff\xfe\xc0",
                                                       "true",
                                                       "full"};
        if (below(12) == 0)
            return oneOf({"null", "7", "-1", "1e300", "true", "[]", "{}", "2147483648"});
        return quoted(oneOf(strings));
    }

    std::string maybe(const std::string& key)
    {
        return below(3) == 0 ? quoted(key).append(": ").append(value()).append(", ")
                             : std::string();
    }

    std::string words()
    {
        static const std::vector<std::string> list {
            "",
            "word",
            "two words",
            "\\u0000",
            "\\ud800 lone",
            "\xff\xfe broken",
            "晚上一起",
            "العشاء",
            "😀👨‍👩‍👧",
            "\\n\\n\\n",
            "\\u2028\\u0007",
            "\\u202e mirror",
            "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW"};
        std::string all;
        for (int i = below(6); i >= 0; --i)
            all.append(oneOf(list)).append(1, ' ');
        return quoted(all);
    }

    std::string common()
    {
        std::string members;
        for (const char* key : {"margin", "position", "offsetTop", "offsetBottom", "offsetStart",
                                "offsetEnd", "align", "gravity", "size", "color", "weight", "style",
                                "decoration", "url", "aspectRatio"})
            members += maybe(key);
        if (below(3) == 0)
            members += R"("flex": )"
                + oneOf({"0", "1", "3", "-1", "2147483647", "-2147483648", "1.5", "null"}) + ", ";
        if (below(4) == 0)
            members += R"("action": {"type": )" + oneOf({R"("uri")", R"("dance")", "3"})
                + R"(, "uri": )" + value() + R"(, "appUri": )" + value() + "}, ";
        return members;
    }

    std::string boxMembers()
    {
        std::string members;
        for (const char* key : {"layout", "spacing", "width", "height", "paddingAll", "paddingTop",
                                "paddingBottom", "paddingStart", "paddingEnd", "cornerRadius",
                                "borderWidth", "borderColor", "backgroundColor"})
            members += maybe(key);
        return members;
    }

    std::string anyComponent(int levels)
    {
        const std::string type = oneOf({"box", "box", "box", "text", "text", "text", "image",
                                        "icon", "button", "spacer", "filler", "separator", "film"});
        std::string members = common();
        if (type == "box") {
            members += boxMembers() + R"("contents": [)";
            const int count = levels > 0 ? below(5) : 0;
            for (int i = 0; i < count; ++i)
                members.append(i ? "," : "").append(anyComponent(levels - 1));
            members += "], ";
        } else if (type == "text") {
            members += R"("wrap": )" + oneOf({"true", "false", "0"}) + R"(, "maxLines": )"
                + oneOf({"0", "1", "3", "-2147483648", "2147483647"}) + R"(, "text": )" + words()
                + ", ";
            if (below(4) == 0)
                members += R"("contents": [{"type": "span", "size": )" + value() + R"(, "text": )"
                    + words() + R"(}, {"type": "span", "color": )" + value() + "}], ";
        }
        return std::string(1, '{')
            .append(members)
            .append(R"("type": )")
            .append(quoted(type))
            .append(1, '}');
    }

    std::mt19937 random_;
};

bool isFinite(const QRectF& rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
        && std::isfinite(rect.height());
}

void expectFinite(QGraphicsItem& root)
{
    forEachItem(root, [](QGraphicsItem& item) {
        EXPECT_TRUE(isFinite(item.boundingRect().translated(item.pos())));
        const auto* node = dynamic_cast<YogaLayoutItem*>(&item);
        EXPECT_TRUE(!node || isFinite(node->geometry()));
    });
}

void paintSmall(QGraphicsItem& root)
{
    QGraphicsScene scene;
    scene.addItem(&root);
    QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), QRectF(0, 0, 300, 300));
    painter.end();
    scene.removeItem(&root);
}

// Asks as a screen reader does for all that the card says, and presses everything.
void readAndPress(QGraphicsItem& root)
{
    QGraphicsScene scene;
    const QGraphicsView view(&scene);
    scene.addItem(&root);
    forEachAccessible(accessible(root.toGraphicsObject()), [](QAccessibleInterface& found) {
        EXPECT_FALSE(found.state().invalid);
        const QPoint middle = found.rect().center();
        found.childAt(middle.x(), middle.y());
        if (QAccessibleTextInterface* const text = found.textInterface()) {
            EXPECT_EQ(text->characterCount(), found.text(QAccessible::Name).size());
            for (const int offset : {-1, 0, 1, 7, text->characterCount()}) {
                const QRect rect = text->characterRect(offset);
                EXPECT_LT(text->offsetAtPoint(rect.center()), text->characterCount());
            }
        }
        if (canPress(found))
            press(found);
    });
    scene.removeItem(&root);
}

void ignoreClick(PlixDataController*, ST_ACTION&, void*) { }

std::string noFile(PlixDataController*, const std::string&, void*)
{
    return {};
}

// Makes all calls that a host makes for a card.
void useCard(const std::string& json, bool withCallbacks, bool itemFirst)
{
    PlixDataController* const controller = Plix_CreateController();
    if (withCallbacks) {
        Plix_SetClickCallBack(controller, &ignoreClick, nullptr);
        Plix_SetDownloadCallBack(controller, &noFile, nullptr);
    }
    Plix_InitData(controller, json);
    QGraphicsItem* const root = Plix_CreateQGraphicsItem(controller);
    ASSERT_NE(root, nullptr);
    expectFinite(*root);
    paintSmall(*root);
    const AccessibilityClient client;
    readAndPress(*root);
    Plix_SetHighLightText(controller, {"word", "", "\xff", std::string("a\0b", 3)});
    Plix_RefreshLayout(controller);
    Plix_ModifyHeight(controller, 700);
    expectFinite(*root);
    readAndPress(*root);
    Plix_ModifyHeight(controller, -2147483647);
    Plix_SetHighLightText(controller, {});
    paintSmall(*root);
    if (itemFirst)
        delete root;
    Plix_Free(controller);
    if (!itemFirst)
        delete root;
}

class RandomCard : public PlixTest, public testing::WithParamInterface<unsigned> { };

TEST_P(RandomCard, CanBeShown)
{
    for (unsigned i = 0; i < 20; ++i) {
        const std::string json = RandomCardWriter(GetParam() * 1000 + i).card();
        SCOPED_TRACE(json);
        useCard(json, i % 2 == 0, i % 3 == 0);
        if (HasFailure())
            break;
    }
    ignoreLog(); // there is one line for each wrong type
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomCard, testing::Range(1U, 21U));

using ExtremeCard = PlixTest;

TEST_F(ExtremeCard, MayBeNestedDeeply)
{
    for (const char* layout : {"vertical", "horizontal", "baseline"}) {
        std::string json = text("deep", R"("wrap": true,)");
        for (int level = 0; level < 450; ++level) {
            json = box(layout, json, level % 5 == 0 ? R"("paddingAll": "1px",)" : "");
            if (level + 1 == kMaximumNestedBoxes)
                useCard(bubbleWithBody(json), true, true);
        }
        EXPECT_EQ(pendingLogLines(), 0);
        useCard(bubbleWithBody(json), true, true);
        EXPECT_EQ(takeLogLine().rfind("call PlixJsonDataParse::ParseBox failed. ", 0), 0U);
    }
}

TEST_F(ExtremeCard, MayHoldManyThings)
{
    for (const char* layout : {"vertical", "horizontal", "baseline"}) {
        std::string contents;
        for (int i = 0; i < 2000; ++i)
            contents.append(i ? "," : "")
                .append(i % 5 == 0 ? text("some words", R"("wrap": true,)")
                                   : component("separator"));
        useCard(bubbleWithBody(box(layout, contents, R"("spacing": "sm",)")), false, true);
    }
}

TEST_F(ExtremeCard, MayHoldOneLongText)
{
    const std::string words(100000, 'w');
    useCard(bubbleWithBody(box("vertical", text(words, R"("wrap": true,)"))), true, false);
    useCard(bubbleWithBody(box("vertical", text(words))), true, false);
}

TEST_F(ExtremeCard, MayHaveHugeSizes)
{
    for (const char* size : {"2147483647px", "2147483647%", "-2147483648px", "1000000px"}) {
        const std::string members = std::string(R"("width": ")") + size + R"(", "height": ")" + size
            + R"(", "paddingAll": ")" + size + R"(", "offsetTop": ")" + size
            + R"(", "cornerRadius": ")" + size + R"(", "borderWidth": ")" + size
            + R"(", "borderColor": "red", "backgroundColor": "blue", )";
        useCard(bubbleWithBody(box("vertical",
                                   text("one", R"("wrap": true,)") + ","
                                       + box("horizontal", text("two"), members),
                                   members)),
                true, true);
    }
}

TEST_F(ExtremeCard, NeedsNoCallbacks)
{
    Plix_SetWiteLogCallback(nullptr);
    Plix_SetMultiLangGetCallback(nullptr);
    Plix_SetKestroControlSupport(nullptr);
    useCard(bubbleWithBody(box("vertical",
                               text("one", R"("action": {"type": "uri", "appUri": "app://a"},)")
                                   + "," + R"({"type": "text", "margin": 7})")),
            false, true);
}

} // namespace
} // namespace plix::test
