// Buttons: their label, look, size and position.
#include "ui/PlixButtonUI.h"

#include "layout/PlixLimits.h"
#include "support/FontFamilyHost.h"
#include "support/LayoutNode.h"
#include "support/Picture.h"
#include "support/Pixels.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <QCursor>
#include <QFontMetrics>
#include <QGraphicsRectItem>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace plix::test {
namespace {

std::string labelled(const std::string& label, const std::string& more = {})
{
    return component("button",
                     R"("action": {"type": "uri", "uri": "u", "label": ")" + label + "\"}," + more);
}

std::string inBox(const std::string& item, const char* layout = "vertical")
{
    return bubbleWithBody(box(layout, item));
}

constexpr char kForApps[] = R"("action": {"type": "uri", "label": "Go", "appUri": "app://a"},)";

using Button = PlixTest;

// ----- Label

struct LabelRow {
    const char* name;
    const char* action; // members of the action
    const char* language;
    const char* label;

    friend std::ostream& operator<<(std::ostream& out, const LabelRow& row)
    {
        return out << row.name;
    }
};

class ButtonLabel : public PlixTest, public testing::WithParamInterface<LabelRow> { };

TEST_P(ButtonLabel, IsChosenByTheLanguage)
{
    const LabelRow& row = GetParam();
    Plix_SetCurrentLanguage(row.language);
    const TestCard card(inBox(
        component("button", R"("action": {)" + std::string(row.action) + R"("type": "uri"},)")));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->label(), QString::fromUtf8(row.label));
}

INSTANTIATE_TEST_SUITE_P(
    Languages, ButtonLabel,
    testing::Values(
        LabelRow {"Plain", R"("label": "plain",)", "ko", "plain"},
        LabelRow {"VariantOfTheLanguage",
                  R"("label": "plain", "i18nLabels": {"ko": "\uC608", "default": "any"},)", "ko",
                  "\uC608"},
        LabelRow {"DefaultVariant",
                  R"("label": "plain", "i18nLabels": {"ko": "k", "default": "any"},)", "fr", "any"},
        LabelRow {"NoVariantThatFits", R"("label": "plain", "i18nLabels": {"ko": "k"},)", "fr",
                  "plain"},
        LabelRow {"EmptyVariantOfTheLanguage",
                  R"("label": "plain", "i18nLabels": {"ko": "", "default": "any"},)", "ko", "any"},
        LabelRow {"EmptyVariantsOnly",
                  R"("label": "plain", "i18nLabels": {"ko": "", "default": ""},)", "ko", "plain"},
        LabelRow {"VariantsOnly", R"("i18nLabels": {"ko": "k"},)", "ko", "k"},
        LabelRow {"NoLabel", "", "en", ""},
        LabelRow {"OtherTexts", R"("text": "t", "displayText": "d", "i18nTexts": {"en": "e"},)",
                  "en", ""},
        LabelRow {"LineEnds", R"("label": "one\ntwo\rthree\u2028four\u2029five",)", "en",
                  "one two three four five"},
        LabelRow {"Markup", R"("label": "<b>a</b> &lt; <m user=\"7\">b</m>",)", "en",
                  "<b>a</b> &lt; <m user=\"7\">b</m>"}),
    RowName());

TEST_F(Button, WithoutAnActionHasNoLabel)
{
    const TestCard card(inBox(component("button")));
    const auto* button = card.ui<PlixButtonUI>({0, 0});
    EXPECT_EQ(button->label(), QString());
    EXPECT_EQ(button->size().height(), 52);
    EXPECT_FALSE(Plix_HasAction(card.item({0, 0})));
}

TEST_F(Button, KeepsTheLabelOfTheLanguageThatItWasBuiltIn)
{
    const TestCard card(inBox(component(
        "button", R"("action": {"type": "uri", "i18nLabels": {"en": "Yes", "ko": "k"}},)")));
    Plix_SetCurrentLanguage("ko");
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->label(), QStringLiteral("Yes"));
}

// ----- Availability

class UnavailableButton : public PlixTest {
protected:
    UnavailableButton()
    {
        Plix_SetMultiLangGetCallback([](const char* key) {
            return key == std::string("chat_room_check_on_mobile") ? std::string("\xEC\x98\x88\nGo")
                                                                   : std::string("other");
        });
    }
};

TEST_F(UnavailableButton, ShowsTheHostsWording)
{
    const TestCard card(inBox(component("button", kForApps)));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->label(), QString::fromUtf8("\uC608 Go"));
}

TEST_F(UnavailableButton, IsAlsoAnyButtonInABoxForApps)
{
    const TestCard card(
        bubbleWithBody(box("vertical", box("vertical", component("button")), kForApps)));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0, 0})->label(), QString::fromUtf8("\uC608 Go"));
}

TEST_F(UnavailableButton, ShowsNothingWithoutAWording)
{
    Plix_SetMultiLangGetCallback(nullptr);
    const TestCard card(inBox(component("button", kForApps)));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->label(), QString());
}

TEST_F(UnavailableButton, LooksLikeAnAvailableOne)
{
    const TestCard card(
        inBox(component("button", std::string(kForApps) + R"("style": "primary",)")));
    EXPECT_EQ(
        Picture(*card.root()).at(card.item({0, 0})->sceneBoundingRect().center() - QPointF(100, 0)),
        QColor(0x0d, 0xc9, 0x50));
}

TEST_F(UnavailableButton, DoesNotReactToTheMouse)
{
    const TestCard card(
        inBox(component("button", kForApps) + "," + component("button") + "," + labelled("a")));
    const QGraphicsItem* const unavailable = card.item({0, 0});
    EXPECT_FALSE(unavailable->hasCursor());
    EXPECT_FALSE(unavailable->acceptHoverEvents());
    EXPECT_FALSE(unavailable->acceptTouchEvents());
    for (const int i : {1, 2}) {
        const QGraphicsItem* const live = card.item({0, i});
        EXPECT_EQ(live->cursor().shape(), Qt::PointingHandCursor);
        EXPECT_TRUE(live->acceptHoverEvents());
        EXPECT_TRUE(live->acceptTouchEvents());
        EXPECT_EQ(live->acceptedMouseButtons(), QGraphicsRectItem().acceptedMouseButtons())
            << "all of Qt's buttons";
    }
}

TEST_F(UnavailableButton, IsAvailableWithoutTheMobileCheck)
{
    const TestCard card(inBox(component("button", kForApps)), [](PlixDataController* controller) {
        PlixDisplayParam param;
        param.mobileOnlyCheck = false;
        Plix_SetDisplayParam(controller, param);
    });
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->label(), QStringLiteral("Go"));
    EXPECT_TRUE(card.item({0, 0})->acceptTouchEvents());
}

// ----- Look

// Colours as they are on the screen.
struct LookRow {
    const char* name;
    const char* members;
    QColor background; // invalid: none
    QColor label;

    friend std::ostream& operator<<(std::ostream& out, const LookRow& row)
    {
        return out << row.name;
    }
};

const QColor kButtonBackground(0xF1, 0xF3, 0xF7);
const QColor kNone;

class ButtonLook : public PlixTest, public testing::WithParamInterface<LookRow> {
protected:
    // A label of full blocks, whose middle has the colour of the label.
    static std::string blocks() { return labelled("\u2588\u2588\u2588", GetParam().members); }
};

TEST_P(ButtonLook, IsPaintedInItsColors)
{
    const TestCard card(inBox(blocks()));
    const Picture picture(*card.root());
    const QRectF area = card.item({0, 0})->sceneBoundingRect();
    const QColor expected =
        GetParam().background.isValid() ? GetParam().background : kButtonBackground;
    EXPECT_EQ(picture.at(area.center()), GetParam().label);
    EXPECT_EQ(picture.at({area.left() + 12, area.center().y()}), expected);
    EXPECT_EQ(picture.at({area.center().x(), area.top()}), expected) << "up to the edge";
    EXPECT_EQ(picture.at({area.center().x(), area.bottom() - 1}), expected);
    EXPECT_EQ(picture.at(area.topLeft()), kButtonBackground) << "the corners are round";
}

constexpr char kRedText[] = R"("color": "#FF0000",)";

std::string styled(const char* style, const char* color = "")
{
    return R"("style": ")" + std::string(style) + "\"," + color;
}

const std::string kStyles[] = {styled("link"),
                               styled("link", kRedText),
                               styled("", kRedText),
                               styled("primary"),
                               styled("primary", kRedText),
                               styled("secondary"),
                               styled("secondary", kRedText),
                               styled("automatic"),
                               styled("automatic", kRedText),
                               styled("Primary"),
                               styled("flashy", kRedText),
                               styled("primary", R"("color": "#80FF0000",)"),
                               styled("primary", R"("color": "reddish",)"),
                               styled("link", R"("color": "reddish",)")};

INSTANTIATE_TEST_SUITE_P(
    Styles, ButtonLook,
    testing::Values(
        LookRow {"None", "", kNone, QColor(0x15, 0x7E, 0xFB)},
        LookRow {"Link", kStyles[0].c_str(), kNone, QColor(0x15, 0x7E, 0xFB)},
        LookRow {"RedLink", kStyles[1].c_str(), kNone, Qt::red},
        LookRow {"RedEmpty", kStyles[2].c_str(), kNone, Qt::red},
        LookRow {"RedNone", kRedText, kNone, Qt::red},
        LookRow {"Primary", kStyles[3].c_str(), QColor(0x0D, 0xC9, 0x50), Qt::white},
        LookRow {"RedPrimary", kStyles[4].c_str(), Qt::red, Qt::white},
        LookRow {"Secondary", kStyles[5].c_str(), QColor(0xD8, 0xDE, 0xE6), Qt::black},
        LookRow {"RedSecondary", kStyles[6].c_str(), Qt::red, Qt::black},
        LookRow {"Automatic", kStyles[7].c_str(), Qt::white, QColor(0x00, 0x87, 0xEE)},
        LookRow {"RedAutomatic", kStyles[8].c_str(), Qt::white, QColor(0x00, 0x87, 0xEE)},
        LookRow {"OtherCase", kStyles[9].c_str(), kNone, Qt::black},
        LookRow {"Unknown", kStyles[10].c_str(), kNone, Qt::black},
        LookRow {"HalfTransparent", kStyles[11].c_str(), QColor(0xF8, 0x79, 0x7B), Qt::white},
        // Qt paints invalid colours black.
        LookRow {"InvalidBackground", kStyles[12].c_str(), Qt::black, Qt::white},
        LookRow {"InvalidLabel", kStyles[13].c_str(), kNone, Qt::black}),
    RowName());

TEST_F(Button, RoundsItsBackground)
{
    const TestCard card(inBox(labelled("", R"("style": "primary",)")));
    const Picture picture(*card.root());
    const QPointF corner = card.item({0, 0})->sceneBoundingRect().topLeft();
    const QColor color(0x0D, 0xC9, 0x50);
    // A circle of 6 pixels leaves 1.75 of them free along the diagonal.
    EXPECT_EQ(picture.at(corner), kButtonBackground);
    EXPECT_EQ(picture.at(corner + QPointF(2, 2)), color);
    EXPECT_NE(picture.at(corner + QPointF(4, 0)), color);
    EXPECT_EQ(picture.at(corner + QPointF(6, 0)), color);
    EXPECT_EQ(picture.at(corner + QPointF(0, 6)), color);
}

TEST_F(Button, LooksTheSameForEverySender)
{
    const std::string json = inBox(labelled("Go", R"("style": "primary",)"));
    const TestCard others(json);
    const TestCard own(json,
                       [](PlixDataController* controller) { Plix_InitSetFrom(controller, 1); });
    const Picture othersPicture(*others.root());
    const Picture ownPicture(*own.root());
    // Without the edges, where the background of the bubble shows through.
    const QRectF area = others.item({0, 0})->sceneBoundingRect().adjusted(6, 6, -6, -6);
    ASSERT_EQ(area, own.item({0, 0})->sceneBoundingRect().adjusted(6, 6, -6, -6));
    for (double y = area.top(); y < area.bottom(); ++y) {
        for (double x = area.left(); x < area.right(); ++x)
            ASSERT_EQ(othersPicture.at({x, y}), ownPicture.at({x, y})) << x << " " << y;
    }
}

// ----- Size and place

struct HeightRow {
    const char* name;
    const char* members;
    double height;

    friend std::ostream& operator<<(std::ostream& out, const HeightRow& row)
    {
        return out << row.name;
    }
};

class ButtonHeight : public PlixTest, public testing::WithParamInterface<HeightRow> { };

TEST_P(ButtonHeight, IsOneOfTwoHeights)
{
    for (const char* layout : {"vertical", "horizontal", "baseline"}) {
        const TestCard card(inBox(labelled("a", GetParam().members), layout));
        EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->size().height(), GetParam().height) << layout;
    }
}

INSTANTIATE_TEST_SUITE_P(Words, ButtonHeight,
                         testing::Values(HeightRow {"None", "", 52},
                                         HeightRow {"Small", R"("height": "sm",)", 40},
                                         HeightRow {"Medium", R"("height": "md",)", 52},
                                         HeightRow {"Large", R"("height": "lg",)", 52},
                                         HeightRow {"OtherCase", R"("height": "SM",)", 52},
                                         HeightRow {"Empty", R"("height": "",)", 52},
                                         HeightRow {"Pixels", R"("height": "20px",)", 52}),
                         RowName());

struct GravityRow {
    const char* name;
    const char* gravity;
    double top; // in a row of 152 pixels

    friend std::ostream& operator<<(std::ostream& out, const GravityRow& row)
    {
        return out << row.name;
    }
};

class ButtonGravity : public PlixTest, public testing::WithParamInterface<GravityRow> { };

TEST_P(ButtonGravity, PlacesItInARow)
{
    const std::string members = R"("gravity": ")" + std::string(GetParam().gravity) + "\",";
    const TestCard card(bubbleWithBody(box(
        "horizontal", labelled("a", members) + "," + box("vertical", "", R"("height": "152px",)"),
        R"("paddingAll": "0px",)")));
    EXPECT_EQ(card.item({0, 0})->pos().y(), GetParam().top);
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->size().height(), 52);
}

INSTANTIATE_TEST_SUITE_P(Words, ButtonGravity,
                         testing::Values(GravityRow {"Top", "top", 0},
                                         GravityRow {"Center", "center", 50},
                                         GravityRow {"Bottom", "bottom", 100},
                                         GravityRow {"Unknown", "middle", 0},
                                         GravityRow {"Empty", "", 0}),
                         RowName());

// Such a box is laid out as a column, but its buttons treat it as a row.
TEST_F(Button, HasItsGravityInABoxOfAnUnknownLayout)
{
    for (const char* layout : {"diagonal", "", "Vertical"}) {
        const TestCard card(inBox(labelled("a", R"("gravity": "center",)"), layout));
        const YGNodeRef node = nodeOf(*card.ui<PlixButtonUI>({0, 0}));
        EXPECT_EQ(YGNodeStyleGetAlignSelf(node), YGAlignCenter) << layout;
        EXPECT_EQ(YGNodeStyleGetJustifyContent(node), YGJustifyFlexStart) << layout;
    }
}

TEST_F(Button, SharesARowByItsGrowFactor)
{
    const TestCard card(bubbleWithBody(
        box("horizontal", labelled("a", R"("flex": 1,)") + "," + labelled("bbbb", R"("flex": 2,)"),
            R"("paddingAll": "0px", "width": "300px",)"),
        R"("size": "giga",)"));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->size().width(), 100);
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 1})->size().width(), 200);
}

TEST_F(Button, FillsAColumn)
{
    const TestCard card(bubbleWithBody(
        box("vertical", labelled("a"), R"("paddingAll": "0px", "width": "170px",)")));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->size().width(), 170);
}

double labelWidth(const PlixButtonUI& button)
{
    return QFontMetrics(button.labelFont()).horizontalAdvance(button.label());
}

TEST_F(Button, IsAsWideAsItsLabelAndItsPaddingsWhenItIsAbsolute)
{
    for (const char* layout : {"vertical", "horizontal"}) {
        for (const char* label : {"", "i", "Confirm the order"}) {
            const TestCard card(
                inBox(labelled(label, R"("position": "absolute", "size": "xs",)"), layout));
            const auto* button = card.ui<PlixButtonUI>({0, 0});
            EXPECT_EQ(button->size().width(), labelWidth(*button) + 30) << label;
            EXPECT_EQ(button->shownLabel(), button->label());
        }
    }
    const TestCard card(inBox(labelled("i", R"("position": "Absolute",)")));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->size().width(), 300 - 2 * 20) << "the word is exact";
}

TEST_F(Button, HasItsMarginAndOffsetsInPixels)
{
    const TestCard card(
        bubbleWithBody(box("vertical",
                           labelled("a") + "," + labelled("b", R"("margin": "xl",)") + ","
                               + labelled("c", R"("position": "absolute", "offsetTop": "7px",
                                   "offsetStart": "9px",)"),
                           R"("paddingAll": "0px",)")));
    EXPECT_EQ(card.item({0, 1})->pos().y(), 52 + 16);
    EXPECT_EQ(card.item({0, 2})->pos(), QPointF(9, 7));
}

struct ButtonOffsetRow {
    const char* name;
    const char* members;
    QPointF place; // in a box of 200 x 160, with a width of 100

    friend std::ostream& operator<<(std::ostream& out, const ButtonOffsetRow& row)
    {
        return out << row.name;
    }
};

class ButtonOffset : public PlixTest, public testing::WithParamInterface<ButtonOffsetRow> {
protected:
    static std::string card()
    {
        return R"({"type": "bubble", "body": )"
            + box("vertical",
                  labelled("", std::string(GetParam().members) + R"("position": "absolute",)"),
                  R"("width": "200px", "height": "160px", "paddingAll": "0px",)")
            + "}";
    }
};

TEST_P(ButtonOffset, IsAPercentageOfTheBox)
{
    const TestCard shown(card());
    const auto* button = shown.ui<PlixButtonUI>({0, 0});
    EXPECT_EQ(button->size(), QSizeF(30, 52));
    EXPECT_EQ(button->pos(), GetParam().place);
}

TEST_P(ButtonOffset, DoesNotChangeAfterTheFirstLayout)
{
    const TestCard shown(card());
    const auto* button = shown.ui<PlixButtonUI>({0, 0});
    auto* around = shown.ui<YogaLayoutItem>({0});
    around->setWidth(260);
    around->setHeight(300);
    // Twice: what one layout sets has an effect in the next one.
    Plix_ModifyHeight(shown.controller(), 0);
    Plix_ModifyHeight(shown.controller(), 0);
    const bool isFromBottom = std::string(GetParam().members).find("Bottom") != std::string::npos;
    const bool isFromEnd = std::string(GetParam().members).find("End") != std::string::npos;
    EXPECT_EQ(button->pos(),
              GetParam().place + QPointF(isFromEnd ? 60 : 0, isFromBottom ? 140 : 0));
}

INSTANTIATE_TEST_SUITE_P(
    Shares, ButtonOffset,
    testing::Values(
        ButtonOffsetRow {"Top", R"("offsetTop": "25%",)", {0, 40}},
        ButtonOffsetRow {"Start", R"("offsetStart": "25%",)", {50, 0}},
        ButtonOffsetRow {"Bottom", R"("offsetBottom": "25%",)", {0, 160 - 40 - 52}},
        ButtonOffsetRow {"End", R"("offsetEnd": "25%",)", {200 - 50 - 30, 0}},
        ButtonOffsetRow {"TopAndStart", R"("offsetTop": "10%", "offsetStart": "50%",)", {100, 16}},
        ButtonOffsetRow {
            "PixelsAndShares", R"("offsetTop": "3px", "offsetStart": "50%",)", {100, 3}},
        ButtonOffsetRow {"Negative", R"("offsetTop": "-25%",)", {0, 0}}),
    RowName());

// ----- Font

TEST_F(Button, IsBoldAndOfTheSizeOfItsWord)
{
    const struct {
        const char* size;
        int pixels;
    } rows[] = {{"xxs", 11}, {"xs", 13},  {"sm", 14},  {"md", 16},  {"lg", 19},
                {"xl", 22},  {"xxl", 29}, {"3xl", 35}, {"4xl", 48}, {"5xl", 74},
                {"", 16},    {"XL", 16},  {"20px", 16}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        const TestCard card(inBox(labelled("a", R"("size": ")" + std::string(row.size) + "\",")));
        const QFont font = card.ui<PlixButtonUI>({0, 0})->labelFont();
        EXPECT_EQ(font.pixelSize(), row.pixels);
        EXPECT_EQ(font.weight(), 75);
    }
    const TestCard card(inBox(labelled("a")));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->labelFont().pixelSize(), 16);
}

class ButtonFont : public PlixTest {
protected:
    FontFamilyHost host_;
};

TEST_F(ButtonFont, IsOfTheHostsFamily)
{
    const TestCard card(inBox(labelled("a")));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->labelFont().family(), host_.family);
}

TEST_F(ButtonFont, FollowsTheHost)
{
    const TestCard card(inBox(labelled("a", R"("size": "xl",)")));
    const auto* button = card.ui<PlixButtonUI>({0, 0});
    host_.changeFamily();
    EXPECT_EQ(button->labelFont().family(), host_.family);
    EXPECT_EQ(button->labelFont().pixelSize(), 22);
    EXPECT_EQ(button->labelFont().weight(), 75);
}

TEST_F(ButtonFont, DoesNotChangeWhileFontBindingIsOff)
{
    const TestCard card(inBox(labelled("a")));
    auto* button = card.ui<PlixButtonUI>({0, 0});
    const QFont before = button->labelFont();
    button->SetUseFontBonding(false);
    host_.changeFamily();
    button->FontChanged();
    EXPECT_EQ(button->labelFont(), before);
    button->SetUseFontBonding(true);
    button->FontChanged();
    EXPECT_EQ(button->labelFont().family(), host_.family);
}

TEST_F(ButtonFont, IsThatOfTheApplicationWithoutAFamily)
{
    host_.family.clear();
    const TestCard nameless(inBox(labelled("a")));
    EXPECT_EQ(nameless.ui<PlixButtonUI>({0, 0})->labelFont().family(), QFont().family());
    Plix_SetKestroControlSupport(nullptr);
    const TestCard alone(inBox(labelled("a")));
    EXPECT_EQ(alone.ui<PlixButtonUI>({0, 0})->labelFont().family(), QFont().family());
}

// ----- The part of the label that is shown

// A button of this width.
std::string wide(const std::string& label, int width)
{
    return bubbleWithBody(
        box("vertical", labelled(label),
            R"("paddingAll": "0px", "width": ")" + std::to_string(width) + "px\","));
}

constexpr char kLong[] = "Take the whole of it to the counter";

int widthOf(const char* label)
{
    const TestCard card(wide(label, 100));
    return static_cast<int>(labelWidth(*card.ui<PlixButtonUI>({0, 0})));
}

TEST_F(Button, ShowsALabelThatJustFits)
{
    const char* const label = "Take it";
    const TestCard card(wide(label, widthOf(label) + 30));
    EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->shownLabel(), QString::fromLatin1(label));
}

TEST_F(Button, ElidesALabelThatIsAPixelTooWide)
{
    const char* const label = "Take it";
    const int available = widthOf(label) - 1;
    const TestCard card(wide(label, available + 30));
    const auto* button = card.ui<PlixButtonUI>({0, 0});
    EXPECT_EQ(button->shownLabel(),
              QFontMetrics(button->labelFont())
                  .elidedText(QString::fromLatin1(label), Qt::ElideRight, available));
    EXPECT_TRUE(button->shownLabel().endsWith(QChar(0x2026)));
}

TEST_F(Button, ElidesAsTheMetricsDoInEveryWidth)
{
    const TestCard card(wide(kLong, 200));
    auto* button = card.ui<PlixButtonUI>({0, 0});
    const QFontMetrics metrics(button->labelFont());
    const int full = metrics.horizontalAdvance(button->label());
    for (double width = 0; width < full + 40; width += 0.5) {
        button->resize(width, 52);
        const QString expected = full <= width - 30
            ? button->label()
            : metrics.elidedText(button->label(), Qt::ElideRight, static_cast<int>(width - 30));
        ASSERT_EQ(button->shownLabel(), expected) << width;
    }
}

TEST_F(Button, PaintsItsLabelInTheMiddle)
{
    for (const char* label : {"HH", kLong, "H\\tH", "H\\t\\t\\t\\t\\tH"}) {
        for (const char* height : {"sm", "md"}) {
            const TestCard card(bubbleWithBody(
                box("vertical", labelled(label, R"("height": ")" + std::string(height) + "\","),
                    R"("width": "161px",)")));
            const auto* button = card.ui<PlixButtonUI>({0, 0});
            const QRectF area = card.item({0, 0})->sceneBoundingRect();
            const QRectF ink = Picture(*card.root()).inkIn(area, area.topLeft());
            const QFontMetricsF metrics(button->labelFont());
            EXPECT_NEAR(ink.center().x(), area.center().x(), 2.5);
            const QRectF line(area.x(), area.center().y() - metrics.height() / 2, area.width(),
                              metrics.height());
            EXPECT_TRUE(line.contains(ink));
            EXPECT_LE(ink.width(), area.width() - 30 + 2);
        }
    }
}

TEST_F(Button, PaintsItsShownLabel)
{
    const TestCard elided(wide(kLong, 150));
    const QString shown = elided.ui<PlixButtonUI>({0, 0})->shownLabel();
    ASSERT_NE(shown, QString::fromLatin1(kLong));
    // A button whose label is the elided text, which fits.
    const TestCard plain(wide(shown.toStdString(), 150));
    ASSERT_EQ(plain.ui<PlixButtonUI>({0, 0})->shownLabel(), shown);
    const Picture elidedPicture(*elided.root());
    const Picture plainPicture(*plain.root());
    const QRectF area = elided.item({0, 0})->sceneBoundingRect();
    for (double y = area.top(); y < area.bottom(); ++y) {
        for (double x = area.left(); x < area.right(); ++x)
            ASSERT_EQ(elidedPicture.at({x, y}), plainPicture.at({x, y})) << x << " " << y;
    }
}

TEST_F(Button, PaintsItsLabelAsAPainterDoes)
{
    for (const char* label : {"HH", kLong, "H\\tH", "Äg fj", "שלום world"}) {
        const TestCard card(wide(label, 161));
        auto* button = card.ui<PlixButtonUI>({0, 0});
        for (const double width : {161.0, 90.0, 230.0}) {
            button->resize(width, 51);
            QImage picture(260, 60, QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::white);
            QImage expected = picture;
            QPainter painter(&picture);
            button->paint(&painter, nullptr, nullptr);
            painter.end();
            painter.begin(&expected);
            painter.setPen(QColor("#157EFB"));
            painter.setFont(button->labelFont());
            QTextOption option(Qt::AlignCenter);
            option.setWrapMode(QTextOption::NoWrap);
            painter.drawText(button->rect(), button->shownLabel(), option);
            painter.end();
            EXPECT_EQ(picture, expected) << label << ", " << width;
        }
    }
}

TEST_F(Button, CutsALabelThatIsTooHigh)
{
    const TestCard card(inBox(labelled("Åg", R"("size": "5xl", "height": "sm",)")));
    auto* button = card.ui<PlixButtonUI>({0, 0});
    QImage picture(200, 100, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(10, 30);
    button->paint(&painter, nullptr, nullptr);
    painter.end();
    const QRect ink = boundsOfPixels(picture, picture.rect(),
                                     [](QRgb pixel) { return pixel != qRgb(255, 255, 255); });
    EXPECT_EQ(ink.top(), 30);
    EXPECT_EQ(ink.bottom(), 69);
}

TEST_F(Button, HasItsLabelAsAProperty)
{
    const TestCard card(wide(kLong, 150));
    QGraphicsObject* const object = card.item({0, 0})->toGraphicsObject();
    EXPECT_EQ(object->property("label").toString(), QString::fromLatin1(kLong));
    EXPECT_EQ(object->property("shownLabel").toString(),
              card.ui<PlixButtonUI>({0, 0})->shownLabel());
    EXPECT_EQ(object->property("labelFont").value<QFont>().pixelSize(), 16);
}

// Labels that are made to slow the host down.
struct HostileRow {
    const char* name;
    // Made by the test: all processes make all rows.
    std::string (*label)();

    friend std::ostream& operator<<(std::ostream& out, const HostileRow& row)
    {
        return out << row.name;
    }
};

std::string repeated(const std::string& what, int times)
{
    std::string all;
    all.reserve(what.size() * static_cast<std::size_t>(times));
    for (int i = 0; i < times; ++i)
        all += what;
    return all;
}

class HostileLabel : public PlixTest, public testing::WithParamInterface<HostileRow> { };

TEST_P(HostileLabel, IsShownAsFarAsThereIsRoom)
{
    const std::string label = GetParam().label();
    for (const char* more : {"", R"("position": "absolute",)", R"("size": "5xl",)"}) {
        for (const char* layout : {"vertical", "horizontal"}) {
            const TestCard card(inBox(labelled(label, more), layout));
            const auto* button = card.ui<PlixButtonUI>({0, 0});
            EXPECT_EQ(button->size().height(), 52);
            EXPECT_LE(button->shownLabel().size(), 1000);
            const Picture picture(*card.root());
            EXPECT_EQ(button->label().toStdString(), label);
            ignoreLog(); // emoji may cost more than a card may spend
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Labels, HostileLabel,
    testing::Values(HostileRow {"AMillionLetters", [] { return std::string(1000000, 'a'); }},
                    HostileRow {"AMillionSpaces", [] { return std::string(1000000, ' '); }},
                    HostileRow {"ManyMarks", [] { return repeated("\u0301", 300000); }},
                    HostileRow {"ManyJoiners", [] { return repeated("\U0001F469\u200D", 100000); }},
                    HostileRow {"ManyDirections", [] { return repeated("a\u05D0", 200000); }},
                    HostileRow {"Embeddings", [] { return repeated("\u202E", 300000); }},
                    HostileRow {"Emoji", [] { return repeated("\U0001F600", 200000); }}),
    RowName());

TEST_F(Button, ShowsALabelUpToTheMaximumLength)
{
    for (const int more : {-1, 0, 1}) {
        const std::string label(static_cast<std::size_t>(kMaximumLabelLength + more), 'i');
        const TestCard card(inBox(labelled(label, R"("position": "absolute",)")));
        EXPECT_EQ(card.ui<PlixButtonUI>({0, 0})->shownLabel().size(),
                  kMaximumLabelLength + std::min(more, 0));
    }
}

TEST_F(Button, ShowsRightToLeftScripts)
{
    const std::string hebrew = "\u05E9\u05DC\u05D5\u05DD \u05DC\u05DB\u05D5\u05DC\u05DD "
                               "\u05D5\u05EA\u05D5\u05D3\u05D4 \u05E8\u05D1\u05D4";
    for (const char* bubble : {"", R"("direction": "rtl",)"}) {
        const TestCard roomy(bubbleWithBody(box("vertical", labelled(hebrew)), bubble));
        EXPECT_EQ(roomy.ui<PlixButtonUI>({0, 0})->shownLabel().toStdString(), hebrew);
        const QRectF area = roomy.item({0, 0})->sceneBoundingRect();
        const QRectF ink = Picture(*roomy.root()).inkIn(area, area.topLeft());
        EXPECT_NEAR(ink.center().x(), area.center().x(), 2.5);

        const TestCard narrow(wide(hebrew, 110));
        EXPECT_TRUE(narrow.ui<PlixButtonUI>({0, 0})->shownLabel().endsWith(QChar(0x2026)));
        const QRectF cut = narrow.item({0, 0})->sceneBoundingRect();
        const QRectF cutInk = Picture(*narrow.root()).inkIn(cut, cut.topLeft());
        EXPECT_NEAR(cutInk.center().x(), cut.center().x(), 2.5);
    }
}

} // namespace
} // namespace plix::test
