// What texts show: words, fonts, colours and lines.
#include "ui/text/PlixTextUI.h"

#include "api/PlixDataMgr.h"
#include "model/PlixDataText.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/text/PlixTextFont.h"

#include <QCursor>
#include <QTextBlock>
#include <QTextDocument>

#include <functional>
#include <ostream>

namespace plix::test {
namespace {

// A card of a single text component, and its item.
class OneText : public TestCard {
public:
    explicit OneText(const std::string& component, const std::string& layout = "vertical",
                     const std::function<void(PlixDataController*)>& configure = {})
        : TestCard(bubbleWithBody(box(layout, component)), configure)
    {
    }

    PlixTextUI& item() const { return *ui<PlixTextUI>({0, 0}); }
};

std::string property(const std::string& key, const std::string& value)
{
    return "\"" + key + "\": \"" + value + "\",";
}

std::string spans(const std::string& list, const std::string& more = {})
{
    return component("text", R"("contents": [)" + list + "]," + more);
}

std::string span(const std::string& words, const std::string& more = {})
{
    return component("span", property("text", words) + more);
}

// The format of the nth run of a text.
QTextCharFormat formatOf(const PlixTextUI& item, int run)
{
    QTextBlock::iterator fragment = item.document()->begin().begin();
    for (int i = 0; i < run; ++i)
        ++fragment;
    return fragment.fragment().charFormat();
}

// ----- Sizes

struct SizeRow {
    const char* name;
    const char* size;
    int pixels;

    friend std::ostream& operator<<(std::ostream& out, const SizeRow& row)
    {
        return out << row.name;
    }
};

class TextSize : public PlixTest, public testing::WithParamInterface<SizeRow> { };

TEST_P(TextSize, FollowsTheWord)
{
    EXPECT_EQ(ToTextPixels(GetParam().size), GetParam().pixels);
    const OneText card(text("words", property("size", GetParam().size)));
    EXPECT_EQ(card.item().font().pixelSize(), GetParam().pixels);
}

TEST_P(TextSize, FollowsTheWordOfASpan)
{
    const OneText card(spans(span("words", property("size", GetParam().size))));
    EXPECT_EQ(formatOf(card.item(), 0).font().pixelSize(), GetParam().pixels);
}

TEST_P(TextSize, FollowsTheWordOfASpanInATextOfAnotherSize)
{
    const std::string word = GetParam().size;
    const OneText card(spans(span("words", property("size", word)), property("size", "5xl")));
    const int expected = word.empty() ? 74 : GetParam().pixels;
    EXPECT_EQ(formatOf(card.item(), 0).font().pixelSize(), expected);
}

INSTANTIATE_TEST_SUITE_P(Words, TextSize,
                         testing::Values(SizeRow {"Xxs", "xxs", 11}, SizeRow {"Xs", "xs", 13},
                                         SizeRow {"Sm", "sm", 14}, SizeRow {"Md", "md", 16},
                                         SizeRow {"Lg", "lg", 19}, SizeRow {"Xl", "xl", 22},
                                         SizeRow {"Xxl", "xxl", 29}, SizeRow {"ThreeXl", "3xl", 35},
                                         SizeRow {"FourXl", "4xl", 48},
                                         SizeRow {"FiveXl", "5xl", 74},
                                         SizeRow {"OtherCase", "XL", 16},
                                         SizeRow {"Pixels", "30px", 16}, SizeRow {"Empty", "", 16}),
                         RowName());

using Text = PlixTest;

TEST_F(Text, IsOfMediumSizeByDefault)
{
    const OneText card(text("words"));
    EXPECT_EQ(card.item().font().pixelSize(), 16);
    const auto data = std::dynamic_pointer_cast<PlixDataText>(
        PlixItemRegistry::GetInstance().Find(card.item().data(kDataItemRole).toLongLong()));
    EXPECT_EQ(data->GetPixelSize(), 16);
}

TEST_F(Text, StoresItsPixelSizeInItsData)
{
    const OneText card(text("words", property("size", "xl")));
    const auto data = std::dynamic_pointer_cast<PlixDataText>(
        PlixItemRegistry::GetInstance().Find(card.item().data(kDataItemRole).toLongLong()));
    EXPECT_EQ(data->GetPixelSize(), 22);
}

TEST_F(Text, PassesItsSizeOnToSpansWithoutASize)
{
    const OneText card(
        spans(span("a") + "," + span("b", property("size", "xs")), property("size", "xl")));
    EXPECT_EQ(formatOf(card.item(), 0).font().pixelSize(), 22);
    EXPECT_EQ(formatOf(card.item(), 1).font().pixelSize(), 13);
}

// ----- Font words

struct FontRow {
    const char* name;
    const char* key;
    const char* word;
    bool bold;
    bool strikeOut;
    bool underline;
    bool italic;

    friend std::ostream& operator<<(std::ostream& out, const FontRow& row)
    {
        return out << row.name;
    }
};

class TextFont : public PlixTest, public testing::WithParamInterface<FontRow> {
protected:
    static void expectFont(const QFont& font)
    {
        EXPECT_EQ(font.weight(), GetParam().bold ? 75 : 50);
        EXPECT_EQ(font.strikeOut(), GetParam().strikeOut);
        EXPECT_EQ(font.underline(), GetParam().underline);
        EXPECT_EQ(font.style(), GetParam().italic ? QFont::StyleItalic : QFont::StyleNormal);
    }
};

TEST_P(TextFont, FollowsTheWord)
{
    const OneText card(text("words", property(GetParam().key, GetParam().word)));
    expectFont(card.item().font());
}

TEST_P(TextFont, FollowsTheWordOfASpan)
{
    const OneText card(spans(span("words", property(GetParam().key, GetParam().word))));
    expectFont(formatOf(card.item(), 0).font());
}

INSTANTIATE_TEST_SUITE_P(
    Words, TextFont,
    testing::Values(FontRow {"Bold", "weight", "bold", true, false, false, false},
                    FontRow {"RegularWeight", "weight", "regular", false, false, false, false},
                    FontRow {"BoldInOtherCase", "weight", "Bold", false, false, false, false},
                    FontRow {"LineThrough", "decoration", "line-through", false, true, false,
                             false},
                    FontRow {"Underline", "decoration", "underline", false, false, true, false},
                    FontRow {"NoDecoration", "decoration", "none", false, false, false, false},
                    FontRow {"Italic", "style", "italic", false, false, false, true},
                    FontRow {"NormalStyle", "style", "normal", false, false, false, false}),
    RowName());

TEST_F(Text, KeepsTheFamilyOfTheItem)
{
    const OneText card(text("words", property("weight", "bold")));
    EXPECT_EQ(card.item().font().family(), TextItem().font().family());
}

// ----- Colours

struct ColorRow {
    const char* name;
    int from;
    const char* properties;
    QColor color;

    friend std::ostream& operator<<(std::ostream& out, const ColorRow& row)
    {
        return out << row.name;
    }
};

class TextColor : public PlixTest, public testing::WithParamInterface<ColorRow> {
protected:
    static void setFrom(PlixDataController* controller)
    {
        Plix_InitSetFrom(controller, GetParam().from);
    }
};

TEST_P(TextColor, IsItsOwnOrDependsOnTheSender)
{
    const OneText card(text("words", GetParam().properties), "vertical", &setFrom);
    EXPECT_EQ(card.item().defaultTextColor(), GetParam().color);
}

TEST_P(TextColor, IsThatOfSpansWithoutAColor)
{
    const OneText card(
        spans(span("a") + "," + span("b", property("color", "#00FF00")), GetParam().properties),
        "vertical", &setFrom);
    EXPECT_EQ(formatOf(card.item(), 0).foreground().color(), GetParam().color);
    EXPECT_EQ(formatOf(card.item(), 1).foreground().color(), QColor(Qt::green));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextColor,
    testing::Values(ColorRow {"FromOthers", 0, "", QColor(0x76, 0x76, 0x76)},
                    ColorRow {"FromTheUser", 1, "", QColor(0x00, 0x87, 0xEE)},
                    ColorRow {"FromAnyoneElse", 2, "", QColor(0x76, 0x76, 0x76)},
                    ColorRow {"Given", 0, R"("color": "#FF0000",)", QColor(Qt::red)},
                    ColorRow {"GivenByTheUser", 1, R"("color": "#FF0000",)", QColor(Qt::red)},
                    ColorRow {"AlphaLast", 0, R"("color": "#FF000080",)", QColor(255, 0, 0, 128)},
                    ColorRow {"Empty", 0, R"("color": "",)", QColor(0x76, 0x76, 0x76)}),
    RowName());

TEST_F(Text, HasAnInvalidColorForUnknownWords)
{
    const OneText card(text("words", property("color", "dark-ish")));
    EXPECT_FALSE(card.item().defaultTextColor().isValid());
}

TEST_F(Text, IsPaintedInItsColour)
{
    const OneText card(text("HHHH", property("size", "5xl") + property("color", "#FF0000")));
    const Picture picture(*card.root());
    const QRectF box = card.item().sceneBoundingRect();
    int red = 0;
    for (int x = 0; x < box.width(); ++x)
        red += picture.at({box.left() + x, box.center().y()}) == QColor(Qt::red);
    EXPECT_GT(red, 20);
}

// ----- Words

struct WordsRow {
    const char* name;
    const char* language;
    const char* i18n;
    const char* shown;

    friend std::ostream& operator<<(std::ostream& out, const WordsRow& row)
    {
        return out << row.name;
    }
};

class TextWords : public PlixTest, public testing::WithParamInterface<WordsRow> { };

TEST_P(TextWords, AreThoseOfTheLanguage)
{
    Plix_SetCurrentLanguage(GetParam().language);
    const OneText card(text("plain", GetParam().i18n));
    EXPECT_EQ(card.item().toPlainText().toStdString(), GetParam().shown);
}

TEST_P(TextWords, AreThoseOfTheLanguageInSpans)
{
    Plix_SetCurrentLanguage(GetParam().language);
    const OneText card(spans(span("plain", GetParam().i18n) + "," + span("!")));
    EXPECT_EQ(card.item().toPlainText().toStdString(), std::string(GetParam().shown) + "!");
}

INSTANTIATE_TEST_SUITE_P(
    Languages, TextWords,
    testing::Values(
        WordsRow {"Current", "ko", R"("i18nTexts": {"ko": "other", "default": "d"},)", "other"},
        WordsRow {"Default", "ko", R"("i18nTexts": {"en": "other", "default": "d"},)", "d"},
        WordsRow {"PlainWithoutADefault", "ko", R"("i18nTexts": {"en": "other"},)", "plain"},
        WordsRow {"PlainWithoutVariants", "ko", "", "plain"}),
    RowName());

TEST_F(Text, ShowsASpanThatConvertsToNothingAsASpace)
{
    // QString drops a byte order mark at the beginning, so the text of this span is empty.
    const OneText card(spans(span("a") + "," + span("\\ufeff") + "," + span("b")));
    EXPECT_EQ(card.item().toPlainText(), QStringLiteral("a b"));
    const OneText empty(spans(span("a") + "," + span("") + "," + span("b")));
    EXPECT_EQ(empty.item().toPlainText(), QStringLiteral("ab"));
}

TEST_F(Text, ShowsItsSpansInOrderInsteadOfItsWords)
{
    const OneText card(
        spans(span("a") + "," + span("b", property("weight", "bold")) + "," + span("c"),
              property("text", "instead")));
    EXPECT_EQ(card.item().toPlainText(), QStringLiteral("abc"));
    EXPECT_EQ(formatOf(card.item(), 1).font().weight(), 75);
    EXPECT_EQ(formatOf(card.item(), 2).font().weight(), 50);
}

TEST_F(Text, IsNotReadAsHtml)
{
    const OneText card(text("<b>1 < 2 &amp; 3</b>"));
    EXPECT_EQ(card.item().toPlainText(), QStringLiteral("<b>1 < 2 &amp; 3</b>"));
}

TEST_F(Text, HasNoMarginAroundIt)
{
    const OneText card(text("words"));
    EXPECT_EQ(card.item().document()->documentMargin(), 0);
}

// ----- Texts with an action for mobile apps only

std::string wording(const char* key)
{
    return std::string(key) == "chat_room_check_on_mobile" ? "On your phone" : "wrong key";
}

TEST_F(Text, WithAnActionForAppsShowsTheHostsWording)
{
    constexpr char kAction[] = R"("action": {"type": "uri", "appUri": "app://a"},)";
    for (const std::string& component :
         {text("words", kAction), spans(span("a") + "," + span("b"), kAction)}) {
        const OneText without(component);
        EXPECT_EQ(without.item().toPlainText(), QString());

        Plix_SetMultiLangGetCallback(&wording);
        const OneText card(component);
        EXPECT_EQ(card.item().toPlainText(), QStringLiteral("On your phone"));
        EXPECT_FALSE(card.item().hasCursor());
        EXPECT_EQ(card.item().acceptedMouseButtons(), Qt::NoButton);
        Plix_SetMultiLangGetCallback(nullptr);
    }
}

TEST_F(Text, InABoxForAppsShowsTheHostsWording)
{
    Plix_SetMultiLangGetCallback(&wording);
    const TestCard card(bubbleWithBody(
        box("vertical", text("words"), R"("action": {"type": "uri", "iosUri": "app://a"},)")));
    EXPECT_EQ(card.ui<PlixTextUI>({0, 0})->toPlainText(), QStringLiteral("On your phone"));
}

TEST_F(Text, ShowsItsOwnWordsWithoutTheMobileCheck)
{
    Plix_SetMultiLangGetCallback(&wording);
    const OneText card(text("words", R"("action": {"type": "uri", "appUri": "app://a"},)"),
                       "vertical", [](PlixDataController* controller) {
                           PlixDisplayParam param;
                           param.mobileOnlyCheck = false;
                           Plix_SetDisplayParam(controller, param);
                       });
    EXPECT_EQ(card.item().toPlainText(), QStringLiteral("words"));
}

// ----- Lines

struct LinesRow {
    const char* name;
    std::string component;
    int lines;

    friend std::ostream& operator<<(std::ostream& out, const LinesRow& row)
    {
        return out << row.name;
    }
};

class TextLines : public PlixTest, public testing::WithParamInterface<LinesRow> { };

TEST_P(TextLines, AreLimited)
{
    const OneText card(GetParam().component);
    EXPECT_EQ(card.item().ShownLineCount(), GetParam().lines);
    EXPECT_EQ(card.item().IsElided(), GetParam().lines < 5);
}

constexpr char kFiveLines[] = R"(1\n2\n3\n4\n5)";

INSTANTIATE_TEST_SUITE_P(
    Texts, TextLines,
    testing::Values(
        LinesRow {"Wrapped", text(kFiveLines, R"("wrap": true,)"), 5},
        LinesRow {"NotWrapped", text(kFiveLines), 1},
        LinesRow {"WrappedWithALimit", text(kFiveLines, R"("wrap": true, "maxLines": 3,)"), 3},
        LinesRow {"NotWrappedDespiteTheLimit", text(kFiveLines, R"("wrap": false, "maxLines": 3,)"),
                  1},
        LinesRow {"LimitOfZero", text(kFiveLines, R"("wrap": true, "maxLines": 0,)"), 5},
        LinesRow {"NegativeLimit", text(kFiveLines, R"("wrap": true, "maxLines": -1,)"), 5},
        LinesRow {"SpansIgnoreTheLimit", spans(span(kFiveLines), R"("wrap": true, "maxLines": 3,)"),
                  5},
        LinesRow {"SpansNotWrapped", spans(span(kFiveLines), R"("maxLines": 3,)"), 1}),
    RowName());

struct WrapRow {
    const char* name;
    int mode;
    QTextOption::WrapMode used;

    friend std::ostream& operator<<(std::ostream& out, const WrapRow& row)
    {
        return out << row.name;
    }
};

class TextWrap : public PlixTest, public testing::WithParamInterface<WrapRow> { };

TEST_P(TextWrap, FollowsTheHost)
{
    // A long word, so that the modes differ.
    const std::string words = "ab " + std::string(60, 'x') + " cd ef";
    const int mode = GetParam().mode;
    const OneText card(text(words, R"("wrap": true,)"), "vertical",
                       [mode](PlixDataController* controller) {
                           PlixDisplayParam param;
                           param.wrapMode = mode;
                           Plix_SetDisplayParam(controller, param);
                       });
    TextItem expected;
    QFont font = expected.font();
    font.setPixelSize(16);
    expected.setFont(font);
    expected.SetWrapMode(GetParam().used);
    expected.InsertRichText(QString::fromStdString(words), true);
    expected.SetFixedItemWidth(card.item().boundingRect().width());
    EXPECT_EQ(card.item().ShownLineCount(), expected.ShownLineCount());
}

INSTANTIATE_TEST_SUITE_P(
    Modes, TextWrap,
    testing::Values(WrapRow {"No", QTextOption::NoWrap, QTextOption::NoWrap},
                    WrapRow {"Word", QTextOption::WordWrap, QTextOption::WordWrap},
                    WrapRow {"Manual", QTextOption::ManualWrap, QTextOption::ManualWrap},
                    WrapRow {"Anywhere", QTextOption::WrapAnywhere, QTextOption::WrapAnywhere},
                    WrapRow {"WordOrAnywhere", QTextOption::WrapAtWordBoundaryOrAnywhere,
                             QTextOption::WrapAtWordBoundaryOrAnywhere},
                    WrapRow {"TooLarge", 5, QTextOption::WrapAtWordBoundaryOrAnywhere},
                    WrapRow {"Negative", -1, QTextOption::WrapAtWordBoundaryOrAnywhere}),
    RowName());

TEST_F(Text, WrapsAtWordsOrAnywhereWithoutAController)
{
    // Built by hand: no owner.
    const auto data = std::make_shared<PlixDataText>();
    data->SetText("ab " + std::string(60, 'x'));
    data->SetWrap(true);
    PlixTextUI item(nullptr, nullptr, {});
    item.setData(kDataItemRole, qlonglong(PlixItemRegistry::GetInstance().Add(data)));
    EXPECT_TRUE(item.Init());
    item.SetFixedItemWidth(100);
    EXPECT_GT(item.ShownLineCount(), 3);
}

// ----- Alignment

struct AlignRow {
    const char* name;
    const char* align;
    Qt::Alignment alignment;

    friend std::ostream& operator<<(std::ostream& out, const AlignRow& row)
    {
        return out << row.name;
    }
};

class TextAlign : public PlixTest, public testing::WithParamInterface<AlignRow> { };

TEST_P(TextAlign, IsThatOfTheDocument)
{
    for (const char* direction : {"ltr", "rtl"}) {
        const TestCard card(
            bubbleWithBody(box("vertical", text("words", property("align", GetParam().align))),
                           property("direction", direction)));
        const QTextOption option = card.ui<PlixTextUI>({0, 0})->document()->defaultTextOption();
        EXPECT_EQ(option.alignment(), GetParam().alignment);
    }
}

INSTANTIATE_TEST_SUITE_P(Words, TextAlign,
                         testing::Values(AlignRow {"Center", "center", Qt::AlignHCenter},
                                         AlignRow {"End", "end", Qt::AlignRight},
                                         AlignRow {"Start", "start", Qt::AlignLeft},
                                         AlignRow {"Unknown", "justify", Qt::AlignLeft},
                                         AlignRow {"Empty", "", Qt::AlignLeft}),
                         RowName());

} // namespace
} // namespace plix::test
