#include "ui/text/PlixTextMarkup.h"

#include "support/Picture.h"
#include "support/PlixTest.h"
#include "ui/text/PlixTextUI.h"

#include <QRegExp>

#include <random>

namespace plix::test {
namespace {

// Random text of pieces of markup and others.
QString generatedText(std::mt19937& random)
{
    static const QStringList pieces {
        QStringLiteral("<e"),   QStringLiteral("<m"),   QStringLiteral("/>"),
        QStringLiteral("</e>"), QStringLiteral("</m>"), QStringLiteral("</m"),
        QStringLiteral("<"),    QStringLiteral(">"),    QStringLiteral("/"),
        QStringLiteral("e"),    QStringLiteral("m"),    QStringLiteral("\n"),
        QStringLiteral("<E"),   QStringLiteral("&lt;"), QStringLiteral("ü"),
        QStringLiteral(" ")};
    QString text;
    for (auto length = random() % 7; length > 0; --length)
        text += pieces.at(static_cast<int>(random() % static_cast<unsigned>(pieces.size())));
    return text;
}

TEST(TextMarkup, IsDetectedAsTheRegularExpressionDoes)
{
    const QRegExp detector(QStringLiteral("<[em].*/>|<e.*</e>|<m.*</m>"));
    std::mt19937 random(20261121);
    int detected = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString text = generatedText(random);
        const bool expected = detector.indexIn(text) != -1;
        ASSERT_EQ(HasMarkup(text), expected) << text.toStdString();
        detected += expected ? 1 : 0;
    }
    EXPECT_GT(detected, 1000);
    EXPECT_LT(detected, 19000);
}

TEST(TextMarkup, InUpperCaseIsNotDetected)
{
    EXPECT_FALSE(HasMarkup(QStringLiteral("<E code=\"1F600\"/>")));
    EXPECT_FALSE(HasMarkup(QStringLiteral("<M user=\"1\">a</M>")));
}

TEST(TextMarkup, IsDetectedInLinearTime)
{
    // A quadratic detector would take minutes.
    const QString openers = QStringLiteral("<m<e").repeated(1'000'000);
    EXPECT_FALSE(HasMarkup(openers));
    EXPECT_TRUE(HasMarkup(openers + QStringLiteral("</m>")));
}

TEST(TextMarkup, EscapesNothingTwice)
{
    const struct {
        const char* text;
        const char* escaped;
    } rows[] = {
        {"", ""},
        {"plain", "plain"},
        {"<", "&lt;"},
        {">", "&gt;"},
        {"&", "&amp;"},
        {"a < b && c > d", "a &lt; b &amp;&amp; c &gt; d"},
        {"&lt;", "&lt;"},
        {"&gt;", "&gt;"},
        {"&amp;", "&amp;"},
        {"&LT;", "&amp;LT;"},
        {"&quot;", "&amp;quot;"},
        {"a &lt; b < c", "a &lt; b &lt; c"},
        // The first entity is kept, although the author may have meant it as text.
        {"&amp;lt;", "&amp;lt;"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const QString escaped = EscapeMarkup(QString::fromUtf8(row.text));
        EXPECT_EQ(escaped.toStdString(), row.escaped);
        EXPECT_EQ(EscapeMarkup(escaped), escaped);
    }
}

class TextMarkupInCard : public PlixTest {
protected:
    static std::string shown(const std::string& words, bool markupEnabled)
    {
        const TestCard card(bubbleWithBody(box("vertical", text(words))),
                            [=](PlixDataController* controller) {
                                PlixDisplayParam param;
                                param.markupEnabled = markupEnabled;
                                Plix_SetDisplayParam(controller, param);
                            });
        return card.ui<PlixTextUI>({0, 0})->toPlainText().toStdString();
    }
};

TEST_F(TextMarkupInCard, IsReadWhenItIsEnabled)
{
    EXPECT_EQ(shown(R"(Hi <m user=\"7\">@Ann</m>!)", true), "Hi @Ann!");
    EXPECT_EQ(shown(R"(a &lt; b <e code=\"1F600\"/>)", true), "a < b \xF0\x9F\x98\x80");
    EXPECT_EQ(shown("1 < 2 & 3", true), "1 < 2 & 3");
    EXPECT_EQ(shown("1 &lt; 2", true), "1 < 2");
    EXPECT_EQ(shown("&amp;lt;", true), "&lt;");
}

TEST_F(TextMarkupInCard, IsShownUnchangedWhenItIsDisabled)
{
    for (const char* words : {"1 < 2 & 3", "1 &lt; 2", "&amp;lt;", "<b>x</b>", "<e/>"}) {
        SCOPED_TRACE(words);
        EXPECT_EQ(shown(words, false), words);
    }
    EXPECT_EQ(shown(R"(<m user=\"7\">@Ann</m>)", false), R"(<m user="7">@Ann</m>)");
}

TEST_F(TextMarkupInCard, DoesNotChangeOtherCharactersOfATextWithElements)
{
    EXPECT_EQ(shown(R"(1 < 2 & <m user=\"7\">@Ann</m> <b>)", true), "1 < 2 & @Ann <b>");
}

TEST_F(TextMarkupInCard, IsReadInSpans)
{
    const TestCard card(bubbleWithBody(box("vertical", R"({"type": "text", "contents": [
            {"type": "span", "text": "a < b "},
            {"type": "span", "text": "<m bot=\"9\">@Bot</m>", "weight": "bold"}]})")),
                        [](PlixDataController* controller) {
                            PlixDisplayParam param;
                            param.markupEnabled = true;
                            Plix_SetDisplayParam(controller, param);
                        });
    EXPECT_EQ(card.ui<PlixTextUI>({0, 0})->toPlainText(), QStringLiteral("a < b @Bot"));
}

class TextHighlight : public PlixTest {
protected:
    TextHighlight()
        : card_(bubbleWithBody(box(
            "vertical",
            text("The Harbour opens", R"("size": "xs",)") + ","
                + box("horizontal", text("and closes, a long line that shows its start only")))))
    {
    }

    int highlight(const std::list<std::string>& words)
    {
        return Plix_SetHighLightText(card_.controller(), words);
    }

    TestCard card_;
};

TEST_F(TextHighlight, FindsWordsWhateverTheirCase)
{
    EXPECT_EQ(highlight({"HARBOUR"}), 1);
    EXPECT_EQ(highlight({"harbour"}), 1);
    EXPECT_EQ(highlight({"nowhere", "CLOSES"}), 1);
    EXPECT_EQ(highlight({"nowhere"}), -1);
}

TEST_F(TextHighlight, FindsWordsThatAreNotShown)
{
    EXPECT_EQ(highlight({"start only"}), 1);
}

TEST_F(TextHighlight, FindsNothingWithoutWords)
{
    EXPECT_EQ(highlight({"harbour"}), 1);
    EXPECT_EQ(highlight({}), -1);
}

TEST_F(TextHighlight, IsDrawnAndRemovedWithoutMovingAnything)
{
    const QRectF rect = card_.item({0, 0})->sceneBoundingRect();
    const auto isHighlighted = [&] {
        const Picture picture(*card_.root());
        for (double x = rect.left(); x < rect.right(); ++x) {
            if (picture.at({x, rect.top() + 1}) == QColor(QStringLiteral("#118DFF")))
                return true;
        }
        return false;
    };
    EXPECT_FALSE(isHighlighted());
    highlight({"harbour"});
    EXPECT_TRUE(isHighlighted());
    EXPECT_EQ(card_.item({0, 0})->sceneBoundingRect(), rect);
    highlight({});
    EXPECT_FALSE(isHighlighted());
    EXPECT_EQ(card_.item({0, 0})->sceneBoundingRect(), rect);
}

} // namespace
} // namespace plix::test
