#include "RandomTexts.h"

#include <QColor>
#include <QStringList>

#include <array>

namespace {

const QStringList pieces {
    QStringLiteral("Dinner is ready at seven"),
    QStringLiteral("bring some juice, please."),
    QStringLiteral("AVAVA To. fi ffi"),
    QStringLiteral("incomprehensibilities"),
    QStringLiteral("https://example.com/a/very/long/path?with=values&and=more#end"),
    QStringLiteral("يوم سعيد لكم جميعا"),
    QStringLiteral("לילה טוב לכולם"),
    QStringLiteral("שלום (abc) 123, עולם"),
    QStringLiteral("price 12.50 يوم 34%"),
    QStringLiteral("สวัสดีครับทุกคนวันนี้"),
    QStringLiteral("今日は良い天気ですね。散歩に行きましょう"),
    QStringLiteral("你好，世界"),
    QStringLiteral("안녕하세요 여러분"),
    QStringLiteral("नमस्ते दुनिया क्षत्रिय"),
    QStringLiteral("\U0001F600\U0001F469\u200D\U0001F4BB\U0001F44D\U0001F3FD"),
    QStringLiteral("e\u0301a\u0308\u0323"),
    QStringLiteral("\u202Bright to left\u202C"),
    QStringLiteral("\u2067abc שלום\u2069"),
    QStringLiteral("\u200Fabc\u200E"),
    QStringLiteral("soft\u00ADhyphen\u00ADated\u00ADword"),
    QStringLiteral("no\u00A0break\u00A0space"),
    QStringLiteral("zero\u200Bwidth\u200Bspace"),
    QStringLiteral("a\tb\tc"),
    QStringLiteral("   "),
    QStringLiteral("\t"),
    QStringLiteral("."),
    QStringLiteral("mixed漢字かなABCعربي"),
    QStringLiteral("\u0001\uFFFE"),
};

const QStringList joints {
    QStringLiteral(" "),      QStringLiteral(" "),  QStringLiteral(" "),   QStringLiteral(" "),
    QStringLiteral("  "),     QStringLiteral(""),   QStringLiteral("\n"),  QStringLiteral("\n\n"),
    QStringLiteral("\u2028"), QStringLiteral("\r"), QStringLiteral(" \n"), QStringLiteral("\u2029"),
    QStringLiteral("\r\n"),
};

} // namespace

int RandomTexts::Number(int count)
{
    return static_cast<int>(engine_() % static_cast<unsigned>(count));
}

QString RandomTexts::Text()
{
    QString text;
    for (int i = Number(6); i >= 0; --i)
        text += pieces.at(Number(pieces.size())) + joints.at(Number(joints.size()));
    return text;
}

QTextCharFormat RandomTexts::Format()
{
    QTextCharFormat format;
    if (OneIn(3))
        return format;
    if (OneIn(3))
        format.setFont(Font());
    if (OneIn(2))
        format.clearProperty(QTextFormat::FontFamily);
    if (OneIn(2))
        format.setForeground(QColor::fromHsv(Number(360), 255, 200));
    if (OneIn(4))
        format.setBackground(QColor::fromHsv(Number(360), 90, 250));
    if (OneIn(4))
        format.setFontWeight(QFont::Bold);
    if (OneIn(4))
        format.setFontItalic(true);
    if (OneIn(4))
        format.setFontUnderline(true);
    if (OneIn(6))
        format.setFontStrikeOut(true);
    if (OneIn(6))
        format.setProperty(QTextFormat::FontPixelSize, 8 + Number(40));
    if (OneIn(8))
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (OneIn(10))
        format.setProperty(QTextFormat::FontSizeAdjustment, 2);
    if (OneIn(12))
        format.setFontCapitalization(QFont::SmallCaps);
    if (OneIn(12))
        format.setFontLetterSpacing(130);
    return format;
}

QFont RandomTexts::Font()
{
    static const std::array families {QStringLiteral("DejaVu Sans"), QStringLiteral("DejaVu Serif"),
                                      QStringLiteral("Noto Sans CJK SC")};
    QFont font(families[static_cast<std::size_t>(Number(families.size()))]);
    font.setPixelSize(9 + Number(30));
    font.setBold(OneIn(4));
    font.setItalic(OneIn(4));
    font.setUnderline(OneIn(6));
    font.setStrikeOut(OneIn(8));
    if (OneIn(12))
        font.setCapitalization(QFont::AllUppercase);
    return font;
}

qreal RandomTexts::Width()
{
    static const std::array usual {-1.0, 0.0, 0.3, 5.0, 1e6};
    if (OneIn(3))
        return usual[static_cast<std::size_t>(Number(usual.size()))];
    return Number(400 * 16) / 16.0 + Number(7) / 7.0;
}

QTextOption::WrapMode RandomTexts::WrapMode()
{
    return static_cast<QTextOption::WrapMode>(Number(5));
}

Qt::Alignment RandomTexts::Alignment()
{
    static const std::array alignments {Qt::Alignment(Qt::AlignLeft),
                                        Qt::Alignment(Qt::AlignRight),
                                        Qt::Alignment(Qt::AlignHCenter),
                                        Qt::Alignment(Qt::AlignRight | Qt::AlignAbsolute),
                                        Qt::Alignment(Qt::AlignLeft | Qt::AlignAbsolute),
                                        Qt::Alignment(Qt::AlignJustify),
                                        Qt::Alignment()};
    return alignments[static_cast<std::size_t>(Number(alignments.size()))];
}

Qt::LayoutDirection RandomTexts::Direction()
{
    return static_cast<Qt::LayoutDirection>(Number(3));
}
