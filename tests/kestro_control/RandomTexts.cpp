#include "RandomTexts.h"

#include <QColor>
#include <QStringList>

#include <array>

namespace {

const QStringList kPieces {
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

const QStringList kJoints {
    QStringLiteral(" "),      QStringLiteral(" "),  QStringLiteral(" "),   QStringLiteral(" "),
    QStringLiteral("  "),     QStringLiteral(""),   QStringLiteral("\n"),  QStringLiteral("\n\n"),
    QStringLiteral("\u2028"), QStringLiteral("\r"), QStringLiteral(" \n"), QStringLiteral("\u2029"),
    QStringLiteral("\r\n"),
};

} // namespace

int RandomTexts::number(int count)
{
    return static_cast<int>(engine_() % static_cast<unsigned>(count));
}

QString RandomTexts::text()
{
    QString text;
    for (int i = number(6); i >= 0; --i)
        text += kPieces.at(number(kPieces.size())) + kJoints.at(number(kJoints.size()));
    return text;
}

QTextCharFormat RandomTexts::format()
{
    QTextCharFormat format;
    if (oneIn(3))
        return format;
    if (oneIn(3))
        format.setFont(font());
    if (oneIn(2))
        format.clearProperty(QTextFormat::FontFamily);
    if (oneIn(2))
        format.setForeground(QColor::fromHsv(number(360), 255, 200));
    if (oneIn(4))
        format.setBackground(QColor::fromHsv(number(360), 90, 250));
    if (oneIn(4))
        format.setFontWeight(QFont::Bold);
    if (oneIn(4))
        format.setFontItalic(true);
    if (oneIn(4))
        format.setFontUnderline(true);
    if (oneIn(6))
        format.setFontStrikeOut(true);
    if (oneIn(6))
        format.setProperty(QTextFormat::FontPixelSize, 8 + number(40));
    if (oneIn(8))
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (oneIn(10))
        format.setProperty(QTextFormat::FontSizeAdjustment, 2);
    if (oneIn(12))
        format.setFontCapitalization(QFont::SmallCaps);
    if (oneIn(12))
        format.setFontLetterSpacing(130);
    return format;
}

QFont RandomTexts::font()
{
    static const std::array families {QStringLiteral("DejaVu Sans"), QStringLiteral("DejaVu Serif"),
                                      QStringLiteral("Noto Sans CJK SC")};
    QFont font(families[static_cast<std::size_t>(number(families.size()))]);
    font.setPixelSize(9 + number(30));
    font.setBold(oneIn(4));
    font.setItalic(oneIn(4));
    font.setUnderline(oneIn(6));
    font.setStrikeOut(oneIn(8));
    if (oneIn(12))
        font.setCapitalization(QFont::AllUppercase);
    return font;
}

qreal RandomTexts::width()
{
    static const std::array usual {-1.0, 0.0, 0.3, 5.0, 1e6};
    if (oneIn(3))
        return usual[static_cast<std::size_t>(number(usual.size()))];
    return number(400 * 16) / 16.0 + number(7) / 7.0;
}

QTextOption::WrapMode RandomTexts::wrapMode()
{
    return static_cast<QTextOption::WrapMode>(number(5));
}

Qt::Alignment RandomTexts::alignment()
{
    static const std::array alignments {Qt::Alignment(Qt::AlignLeft),
                                        Qt::Alignment(Qt::AlignRight),
                                        Qt::Alignment(Qt::AlignHCenter),
                                        Qt::Alignment(Qt::AlignRight | Qt::AlignAbsolute),
                                        Qt::Alignment(Qt::AlignLeft | Qt::AlignAbsolute),
                                        Qt::Alignment(Qt::AlignJustify),
                                        Qt::Alignment()};
    return alignments[static_cast<std::size_t>(number(alignments.size()))];
}

Qt::LayoutDirection RandomTexts::direction()
{
    return static_cast<Qt::LayoutDirection>(number(3));
}
