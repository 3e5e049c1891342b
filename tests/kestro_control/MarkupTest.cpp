// What the markup reader returns, and what an item shows of markup.
#include "EmojiCode.h"
#include "Ink.h"
#include "MarkupReader.h"

#include "support/RowName.h"

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>
#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTextDocument>

#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace {

using kestro::MarkupRun;
using kestro::ReadMarkup;

const QString kFamily = QString::fromUtf8("👨‍👩‍👧");

QString describe(const std::vector<MarkupRun>& runs)
{
    QString description;
    for (const MarkupRun& run : runs) {
        switch (run.kind) {
        case MarkupRun::Kind::Text:
            description += QStringLiteral("text[%1]").arg(run.text);
            break;
        case MarkupRun::Kind::UserMention:
            description += QStringLiteral("user %1[%2]").arg(run.number).arg(run.text);
            break;
        case MarkupRun::Kind::BotMention:
            description += QStringLiteral("bot %1[%2]").arg(run.number).arg(run.text);
            break;
        case MarkupRun::Kind::Emoji:
            description += QStringLiteral("emoji %1[%2]").arg(run.emojiCode, run.text);
            break;
        }
    }
    return description;
}

struct MarkupRow {
    const char* name;
    const char* text;
    const char* runs;

    friend std::ostream& operator<<(std::ostream& out, const MarkupRow& row)
    {
        return out << row.name;
    }
};

class Markup : public testing::TestWithParam<MarkupRow> { };

TEST_P(Markup, IsReadAsDocumented)
{
    EXPECT_EQ(describe(ReadMarkup(QString::fromUtf8(GetParam().text))).toStdString(),
              GetParam().runs);
}

INSTANTIATE_TEST_SUITE_P(
    WellFormed, Markup,
    testing::Values(
        MarkupRow {"Nothing", "", ""}, MarkupRow {"PlainText", "a\nb", "text[a\nb]"},
        MarkupRow {"UserMention", R"(<m user="123">Ada</m>)", "user 123[Ada]"},
        MarkupRow {"BotMention", R"(<m bot="77">Helper</m>)", "bot 77[Helper]"},
        MarkupRow {"NegativeNumber", R"(<m user="-5">Ada</m>)", "user -5[Ada]"},
        MarkupRow {"LargestNumber", R"(<m user="9223372036854775807">A</m>)",
                   "user 9223372036854775807[A]"},
        MarkupRow {"SmallestNumber", R"(<m user="-9223372036854775808">A</m>)",
                   "user -9223372036854775808[A]"},
        MarkupRow {"MentionInsideText", R"(a <m user="1">B</m> c)", "text[a ]user 1[B]text[ c]"},
        MarkupRow {"MentionsSideBySide", R"(<m user="1">B</m><m user="1">B</m>)",
                   "user 1[B]user 1[B]"},
        MarkupRow {"EntitiesInText", "&lt;&gt;&amp;", "text[<>&]"},
        MarkupRow {"EntitiesInNames", R"(<m user="1">a&lt;b&amp;&gt;</m>)", "user 1[a<b&>]"},
        MarkupRow {"EntitiesUndoneOnce", "&amp;lt;&amp;amp;", "text[&lt;&amp;]"},
        MarkupRow {"EntitiesThatMakeUpAnElement", R"(&lt;m user="1">a&lt;/m>)",
                   R"(text[<m user="1">a</m>])"},
        MarkupRow {"OtherEntities", "&quot;&#60;&LT;&lt &", "text[&quot;&#60;&LT;&lt &]"},
        MarkupRow {"GreaterThanInNames", R"(<m user="1">a>b</m>)", "user 1[a>b]"},
        MarkupRow {"LineEndInNames", "<m user=\"1\">a\nb</m>", "user 1[a\nb]"},
        MarkupRow {"EmojiWithoutContent", R"(<e code="1F600"/>)", "emoji 1F600[😀]"},
        MarkupRow {"EmojiWithFallback", R"(<e code="1F600">:-)</e>)", "emoji 1F600[😀]"},
        MarkupRow {"EmojiWithEmptyFallback", R"(<e code="1F600"></e>)", "emoji 1F600[😀]"},
        MarkupRow {"EmojiInSmallLetters", R"(<e code="1f600"/>)", "emoji 1F600[😀]"},
        MarkupRow {"EmojiWithLeadingZero", R"(<e code="01F600"/>)", "emoji 1F600[😀]"},
        MarkupRow {"EmojiSequence", R"(<e code="1F469-200D-1F4BB"/>)",
                   "emoji 1F469-200D-1F4BB[👩‍💻]"},
        MarkupRow {"Flag", R"(<e code="1F1E9-1F1EA"/>)", "emoji 1F1E9-1F1EA[🇩🇪]"},
        MarkupRow {"Keycap", R"(<e code="31-FE0F-20E3"/>)", "emoji 31-FE0F-20E3[1️⃣]"},
        MarkupRow {"SkinTone", R"(<e code="1F44D-1F3FD"/>)", "emoji 1F44D-1F3FD[👍🏽]"}),
    plix::test::RowName());

INSTANTIATE_TEST_SUITE_P(
    InsideMalformedMarkup, Markup,
    testing::Values(MarkupRow {"AMentionInAMention", R"(<m user="1">a<m user="2">b</m></m>)",
                               R"(text[<m user="1">a]user 2[b]text[</m>])"},
                    MarkupRow {"AMentionAfterAnOpenOne", R"(<m user="1">a <m user="2">b</m>)",
                               R"(text[<m user="1">a ]user 2[b])"},
                    MarkupRow {"AnEmojiInAMention", R"(<m user="1">a<e code="1F600"/></m>)",
                               R"(text[<m user="1">a]emoji 1F600[😀]text[</m>])"},
                    MarkupRow {"AnElementInATag", R"(<m <m user="2">b</m>)", "text[<m ]user 2[b]"},
                    MarkupRow {"AnEntity", R"(<m user="1">&lt;)", R"(text[<m user="1"><])"}),
    plix::test::RowName());

class MalformedMarkup : public testing::TestWithParam<const char*> { };

TEST_P(MalformedMarkup, IsText)
{
    const QString text = QString::fromUtf8(GetParam());
    const std::vector<MarkupRun> runs = ReadMarkup(text);
    ASSERT_EQ(runs.size(), 1U) << describe(runs).toStdString();
    EXPECT_EQ(runs[0].kind, MarkupRun::Kind::Text);
    EXPECT_EQ(runs[0].text, text);
}

INSTANTIATE_TEST_SUITE_P(
    Mentions, MalformedMarkup,
    testing::Values(R"(<m user="1">a)", R"(<m user="1">a</m)", R"(<m user="1"></m>)",
                    R"(<m user="1"/>)", R"(<m user="">a</m>)", R"(<m user="-">a</m>)",
                    R"(<m user="+1">a</m>)", R"(<m user=" 1">a</m>)", R"(<m user="1 ">a</m>)",
                    R"(<m user="1.0">a</m>)", R"(<m user="0x1">a</m>)", R"(<m user="--1">a</m>)",
                    R"(<m user="９">a</m>)", R"(<m user="9223372036854775808">a</m>)",
                    R"(<m user="-9223372036854775809">a</m>)",
                    R"(<m user="000000000000000000001">a</m>)", R"(<m user='1'>a</m>)",
                    R"(<m user=1>a</m>)", R"(<m  user="1">a</m>)", R"(<m user="1" >a</m>)",
                    R"(<m user="1" bot="1">a</m>)", R"(<m user="1" x="y">a</m>)",
                    R"(<m name="1">a</m>)", R"(<m>a</m>)", R"(<M user="1">a</M>)",
                    R"(<m user="1">a</e>)", R"(<m user="1">a<b</m>)", R"(< m user="1">a</m>)",
                    R"(<b>a</b>)", R"(<img src="file:///etc/passwd">)", "<", "<<<", "</m>"));

INSTANTIATE_TEST_SUITE_P(
    Emoji, MalformedMarkup,
    testing::Values(R"(<e code="1F600">)", R"(<e code="1F600")", R"(<e code="1F600" />)",
                    R"(<e code=""/>)", R"(<e code="-"/>)", R"(<e code="1F600-"/>)",
                    R"(<e code="-1F600"/>)", R"(<e code="1F600--1F600"/>)",
                    R"(<e code="0x1F600"/>)", R"(<e code="+1F600"/>)", R"(<e code="1F60G"/>)",
                    R"(<e code="001F600"/>)", R"(<e code="FFFFFFFF"/>)", R"(<e code="110000"/>)",
                    R"(<e code="0"/>)", R"(<e code="A"/>)", R"(<e code="1B"/>)",
                    R"(<e code="41"/>)", R"(<e code="3C"/>)", R"(<e code="31"/>)",
                    R"(<e code="D83D-DE00"/>)", R"(<e code="D83D"/>)", R"(<e code="FFFC"/>)",
                    R"(<e code="FFFF"/>)", R"(<e code="202E"/>)", R"(<e code="200D"/>)",
                    R"(<e code="FE0F"/>)", R"(<e code="2028"/>)", R"(<e code="1F600-41"/>)",
                    R"(<e code="1F600-1F600"/>)", R"(<e code="1F600">a<b</e>)",
                    R"(<e code="1F600">a</m>)", R"(<e user="1"/>)", R"(<E code="1F600"/>)",
                    R"(<e code="1F600"x="y"/>)"));

TEST(MalformedMarkup, IncludesEmojiOfTooManyCodePoints)
{
    const auto element = [](int joined) {
        return QStringLiteral("<e code=\"1F468") + QStringLiteral("-200D-1F468").repeated(joined)
            + QStringLiteral("\"/>");
    };
    EXPECT_EQ(ReadMarkup(element(7)).front().kind, MarkupRun::Kind::Emoji);
    EXPECT_EQ(ReadMarkup(element(8)).front().text, element(8));
}

// Matches the whole rest of the text against regular expressions at every position.
std::vector<MarkupRun> readNaively(const QString& text)
{
    const QRegularExpression mention(
        QStringLiteral("\\A<m (user|bot)=\"(-?[0-9]{1,19})\">([^<]+)</m>"));
    const QRegularExpression emoji(
        QStringLiteral("\\A<e code=\"([0-9A-Fa-f-]+)\"(?:/>|>[^<]*</e>)"));
    const auto withoutEntities = [](QString escaped) {
        return escaped.replace(QLatin1String("&lt;"), QLatin1String("<"))
            .replace(QLatin1String("&gt;"), QLatin1String(">"))
            .replace(QLatin1String("&amp;"), QLatin1String("&"));
    };

    std::vector<MarkupRun> runs;
    QString plain;
    const auto add = [&](const MarkupRun& run) {
        if (!plain.isEmpty())
            runs.push_back({MarkupRun::Kind::Text, withoutEntities(plain), 0, {}});
        plain.clear();
        runs.push_back(run);
    };
    for (int at = 0; at < text.size();) {
        auto match = mention.match(text.mid(at));
        bool isNumber = false;
        const qint64 number = match.captured(2).toLongLong(&isNumber);
        if (match.hasMatch() && isNumber) {
            const bool isBot = match.captured(1) == QLatin1String("bot");
            add({isBot ? MarkupRun::Kind::BotMention : MarkupRun::Kind::UserMention,
                 withoutEntities(match.captured(3)),
                 number,
                 {}});
            at += match.capturedLength();
            continue;
        }
        match = emoji.match(text.mid(at));
        const QString code = match.captured(1);
        if (match.hasMatch() && code == QLatin1String("1F468-200D-1F469-200D-1F467")) {
            add({MarkupRun::Kind::Emoji, kFamily, 0, code});
            at += match.capturedLength();
            continue;
        }
        plain += text.at(at++);
    }
    if (!plain.isEmpty())
        runs.push_back({MarkupRun::Kind::Text, withoutEntities(plain), 0, {}});
    return runs;
}

TEST(GeneratedMarkup, IsReadAsByANaiveReader)
{
    const char* const pieces[] = {
        "<m user=\"", "<m bot=\"", "12",   "-7",   "99999999999999999999",
        "\">",        "</m>",      "name", "&lt;", "&gt;",
        "<e code=\"", "\"/>",      "</e>", "<",    "1F468-200D-1F469-200D-1F467",
        "\"",         ">",         "D800", "x y",  "<m user=\"5\">Eve</m>",
        "&",          "m",         "/>",   "\n",   "<e code=\"1F468-200D-1F469-200D-1F467\"/>",
    };
    std::mt19937 random(7);
    std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
    std::uniform_int_distribution<int> length(1, 14);
    int elements = 0;
    for (int i = 0; i < 20000; ++i) {
        QString text;
        for (int rest = length(random); rest > 0; --rest)
            text += QString::fromUtf8(pieces[piece(random)]);
        const QString read = describe(ReadMarkup(text));
        ASSERT_EQ(read, describe(readNaively(text))) << text.toStdString();
        elements += read.contains(QLatin1String("user ")) || read.contains(QLatin1String("emoji "));
    }
    EXPECT_GT(elements, 1000) << "many texts must contain elements";
}

TEST(MalformedMarkup, IsTextAtAnyLength)
{
    for (const char* opener : {"<m user=\"1\">", "<m user=\"", "<e code=\"1F600\">", "<e code=\"",
                               "<m user=\"1\">a", "<", "&"}) {
        const QString text = QString::fromUtf8(opener).repeated(100000);
        const std::vector<MarkupRun> runs = ReadMarkup(text);
        ASSERT_EQ(runs.size(), 1U);
        EXPECT_EQ(runs[0].text, text);
    }
}

// ----- In an item

const QString kMixed =
    QStringLiteral("<m user=\"1\">Ada</m> &amp; <e code=\"1F468-200D-1F469-200D-1F467\"/>!");

struct MarkupItem : TextItem {
    MarkupItem()
    {
        QFont itemFont(QStringLiteral("DejaVu Sans"));
        itemFont.setPixelSize(20);
        setFont(itemFont);
        SetMarkupEnabled(true);
    }

    explicit MarkupItem(const QString& text)
        : MarkupItem()
    {
        InsertRichText(text, true);
    }
};

TEST(TextItemMarkup, IsOffAtFirst)
{
    TextItem item;
    item.InsertRichText(kMixed, true);
    EXPECT_EQ(item.toPlainText(), kMixed);
    EXPECT_FALSE(item.acceptHoverEvents());
}

TEST(TextItemMarkup, IsShownWithoutTags)
{
    EXPECT_EQ(MarkupItem(kMixed).toPlainText(),
              QStringLiteral("Ada & ") + kFamily + QLatin1Char('!'));
}

TEST(TextItemMarkup, AppliesToInsertionsWhileItIsEnabled)
{
    MarkupItem item(QStringLiteral("&lt;"));
    item.SetMarkupEnabled(false);
    item.InsertRichText(QStringLiteral("&lt;"), true);
    item.SetMarkupEnabled(true);
    item.InsertRichText(QStringLiteral("&lt;"), false);
    EXPECT_EQ(item.toPlainText(), QStringLiteral("<<&lt;"));
    item.setPlainText(kMixed);
    EXPECT_EQ(item.toPlainText(), kMixed);
}

TEST(TextItemMarkup, KeepsItsOrderWhenInsertedAtTheStart)
{
    MarkupItem item(QStringLiteral("end"));
    item.InsertRichText(kMixed, false);
    EXPECT_EQ(item.toPlainText(), QStringLiteral("Ada & ") + kFamily + QStringLiteral("!end"));
}

TEST(TextItemMarkup, GivesMentionsTheirColour)
{
    MarkupItem item;
    item.setDefaultTextColor(Qt::black);
    item.InsertRichText(QStringLiteral("<m user=\"1\">HHH</m>"), true);
    EXPECT_TRUE(Ink(item, 3).has(QColor(0x11, 0x8D, 0xFF)));
    EXPECT_FALSE(Ink(item, 3).has(Qt::black));

    item.ClearText();
    item.SetMentionColor(Qt::red);
    EXPECT_EQ(item.MentionColor(), QColor(Qt::red));
    item.InsertRichText(QStringLiteral("<m user=\"1\">HHH</m>"), true);
    EXPECT_TRUE(Ink(item, 3).has(Qt::red));
}

TEST(TextItemMarkup, KeepsTheFontOfTheSpanInMentions)
{
    QTextCharFormat big;
    big.setProperty(QTextFormat::FontPixelSize, 60);
    MarkupItem item;
    item.InsertRichText(QStringLiteral("<m user=\"1\">H</m>"), true, &big);
    EXPECT_GT(Ink(item).rect().height(), 40);
}

// ----- Emoji pictures

const QColor kPictureColor(200, 30, 120);

class PictureSupport : public KestroControlSupport {
public:
    PictureSupport() { KestroControlManager::GetInstance()->SetKestroControlSupport(this); }

    QString GetFontFamily() const override { return {}; }

    QImage GetEmojiImage(const QString& code) const override
    {
        requestedCodes.append(code);
        QImage picture(size, QImage::Format_ARGB32_Premultiplied);
        picture.fill(kPictureColor);
        return picture;
    }

    QSize size {64, 64};
    mutable QStringList requestedCodes;
};

const QString kSmile = QStringLiteral("<e code=\"1f600\">:-)</e>");
const QString kSmileText = QString::fromUtf8("😀");

QRectF pictureRect(QGraphicsItem& item)
{
    const Ink ink(item, 4);
    QRectF rect;
    for (int y = 0; y < ink.picture().height(); ++y) {
        for (int x = 0; x < ink.picture().width(); ++x) {
            if (ink.picture().pixelColor(x, y) == kPictureColor)
                rect |= QRectF(QPointF(x, y) / 4 - QPointF(50, 50), QSizeF(0.25, 0.25));
        }
    }
    return rect;
}

TEST(EmojiPicture, IsRequestedByItsCode)
{
    const PictureSupport support;
    const MarkupItem item(kSmile + QStringLiteral("<e code=\"1F469-200d-1F4BB\"/>"));
    EXPECT_EQ(support.requestedCodes,
              QStringList({QStringLiteral("1F600"), QStringLiteral("1F469-200D-1F4BB")}));
}

TEST(EmojiPicture, IsAsHighAsTheLine)
{
    const PictureSupport support;
    const qreal lineHeight = MarkupItem(QStringLiteral("H")).boundingRect().height();
    MarkupItem item(kSmile);
    EXPECT_EQ(item.boundingRect().height(), lineHeight);
    EXPECT_NEAR(item.boundingRect().width(), lineHeight, 1);
    EXPECT_NEAR(pictureRect(item).height(), lineHeight, 1);
    EXPECT_TRUE(item.boundingRect().adjusted(-1, -1, 1, 1).contains(pictureRect(item)));
}

TEST(EmojiPicture, FollowsTheFont)
{
    const PictureSupport support;
    MarkupItem item(kSmile);
    const QRectF before = pictureRect(item);
    QFont font = item.font();
    font.setPixelSize(40);
    item.setFont(font);
    EXPECT_NEAR(pictureRect(item).width(), 2 * before.width(), 2);
}

TEST(EmojiPicture, KeepsItsProportions)
{
    PictureSupport support;
    support.size = QSize(4000, 1000);
    MarkupItem item(kSmile);
    const QRectF rect = pictureRect(item);
    EXPECT_NEAR(rect.width(), 4 * rect.height(), 2);
    EXPECT_NEAR(rect.width(), item.boundingRect().width(), 1);
}

TEST(EmojiPicture, AppearsAsItsCharactersInThePlainText)
{
    const PictureSupport support;
    MarkupItem item(QStringLiteral("a") + kSmile + kSmile + QStringLiteral("\nb") + kSmile
                    + QChar(QChar::Nbsp) + QStringLiteral("c"));
    EXPECT_EQ(item.toPlainText(),
              QStringLiteral("a") + kSmileText + kSmileText + QStringLiteral("\nb") + kSmileText
                  + QStringLiteral(" c"));
    item.ClearText();
    EXPECT_EQ(item.toPlainText(), QString());
}

TEST(EmojiPicture, DoesNotAffectObjectCharactersInTheText)
{
    const PictureSupport support;
    const QString object(QChar::ObjectReplacementCharacter);
    const MarkupItem item(object + kSmile + object);
    EXPECT_EQ(item.toPlainText(), object + kSmileText + object);
}

TEST(EmojiPicture, StaysInAnElidedLine)
{
    const PictureSupport support;
    for (const char* rest : {" and more text", " ועוד טקסט"}) {
        MarkupItem item(kSmile + QString::fromUtf8(rest));
        const QRectF whole = pictureRect(item);
        item.SetElide(true);
        item.SetMaxLineCount(1);
        item.SetFixedItemWidth(90);
        ASSERT_TRUE(item.IsElided());
        const QRectF elided = pictureRect(item);
        EXPECT_NEAR(elided.width(), whole.width(), 0.6) << rest;
        EXPECT_NEAR(elided.top(), whole.top(), 0.6) << rest;
        EXPECT_EQ(item.toPlainText(), kSmileText + QString::fromUtf8(rest));
    }
}

TEST(EmojiPicture, IsHighlightedWhereItIs)
{
    class Bordered : public PictureSupport {
        QImage GetEmojiImage(const QString&) const override
        {
            QImage picture(60, 60, QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::transparent);
            for (int y = 20; y < 40; ++y) {
                for (int x = 20; x < 40; ++x)
                    picture.setPixelColor(x, y, kPictureColor);
            }
            return picture;
        }
    } const support;
    const QColor background(255, 255, 0);
    for (const char* pattern : {"%1 end", "start %1", "%1 סוף", "שלום %1 סוף", "see שלום %1 סוף"}) {
        for (qreal width : {-1.0, 400.0, 60.0}) {
            MarkupItem item(QString::fromUtf8(pattern).arg(kSmile));
            item.SetFixedItemWidth(width);
            const QRectF picture = pictureRect(item);
            item.HighlightText({kSmileText}, background);
            const Ink ink(item, 4);
            QRectF backgroundRect;
            for (int y = 0; y < ink.picture().height(); ++y) {
                for (int x = 0; x < ink.picture().width(); ++x) {
                    if (ink.picture().pixelColor(x, y) == background)
                        backgroundRect |=
                            QRectF(QPointF(x, y) / 4 - QPointF(50, 50), QSizeF(0.25, 0.25));
                }
            }
            EXPECT_NEAR(backgroundRect.center().x(), picture.center().x(), 1) << pattern << width;
            EXPECT_NEAR(backgroundRect.width(), 24, 1) << pattern << width;
        }
    }
}

TEST(EmojiPicture, IsNotShownWhereItIsCutOff)
{
    const PictureSupport support;
    MarkupItem item(QStringLiteral("some text ") + kSmile + QStringLiteral(" more"));
    item.SetElide(true);
    item.SetMaxLineCount(1);
    item.SetFixedItemWidth(70);
    ASSERT_TRUE(item.IsElided());
    EXPECT_TRUE(pictureRect(item).isEmpty());
}

TEST(EmojiPicture, IsReplacedByTextIfThereIsNone)
{
    class Without : public PictureSupport {
        QImage GetEmojiImage(const QString& code) const override
        {
            return KestroControlSupport::GetEmojiImage(code);
        }
    } const support;
    MarkupItem item(kSmile);
    EXPECT_TRUE(pictureRect(item).isEmpty());
    EXPECT_FALSE(Ink(item).rect().isEmpty());
    EXPECT_EQ(item.document()->toPlainText(), kSmileText);
}

} // namespace
