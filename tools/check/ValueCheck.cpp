#include "check/ValueCheck.h"

#include "check/Excerpt.h"
#include "check/Speller.h"

#include <QColor>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace plix::tool {
namespace {

std::optional<int> numberWithout(const QString& unit, std::string_view text)
{
    QString digits = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    bool isNumber = false;
    const int number = digits.remove(unit, Qt::CaseInsensitive).toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

class ValueChecker {
public:
    ValueChecker(const PlixFormatKey& key, const JsonNode& value, const QString& path,
                 Findings& findings)
        : key_(key)
        , value_(value)
        , path_(path)
        , findings_(findings)
    {
    }

    void checkText();
    void checkNumber();

private:
    void checkWord();
    void checkLength();
    void checkColor();
    void checkRatio();
    bool isWord() const;
    QString closestSize(int pixels) const;
    QString text() const { return QString::fromStdString(value_.text); }
    QString allowedWords() const { return wordsOf(key_).join(QStringLiteral(", ")); }
    void note(Rule rule, const QString& message, const QString& mend = {});

    const PlixFormatKey& key_;
    const JsonNode& value_;
    const QString& path_;
    Findings& findings_;
};

void ValueChecker::checkText()
{
    if (value_.text.empty())
        return;
    switch (key_.rule) {
    case PlixValueRule::Text:
    case PlixValueRule::Url:
        break;
    case PlixValueRule::Word:
        checkWord();
        break;
    case PlixValueRule::Length:
    case PlixValueRule::LengthOrPercent:
        checkLength();
        break;
    case PlixValueRule::Color:
    case PlixValueRule::ColorAlphaLast:
        checkColor();
        break;
    case PlixValueRule::Ratio:
        checkRatio();
        break;
    }
}

bool ValueChecker::isWord() const
{
    return std::any_of(key_.words.begin(), key_.words.end(),
                       [this](const PlixFormatWord& row) { return row.word == value_.text; });
}

// The word for the size that is closest to a number of pixels.
QString ValueChecker::closestSize(int pixels) const
{
    QString closest;
    double distance = std::numeric_limits<double>::infinity();
    for (const PlixFormatWord& row : key_.words) {
        const double rowDistance = row.pixels ? std::abs(*row.pixels - pixels) : distance;
        if (rowDistance < distance) {
            distance = rowDistance;
            closest = QString::fromUtf8(row.word.data(), static_cast<int>(row.word.size()));
        }
    }
    return closest;
}

void ValueChecker::checkWord()
{
    if (isWord())
        return;
    const std::optional<int> pixels = pixelsIn(value_.text);
    const QString size = pixels ? closestSize(*pixels) : QString();
    if (!size.isEmpty()) {
        note(Rule::NoEffect,
             QStringLiteral("%1 has no effect: %2 must be one of the words %3")
                 .arg(quoted(value_.text), quoted(key_.name), allowedWords()),
             quoted(size));
        return;
    }
    const QString word = probableWord(text(), wordsOf(key_));
    const bool isOtherCase = word.compare(text().trimmed(), Qt::CaseInsensitive) == 0;
    note(isOtherCase && !word.isEmpty() ? Rule::WrongCase : Rule::UnknownWord,
         QStringLiteral("%1 is no word of %2; its words are %3")
             .arg(quoted(value_.text), quoted(key_.name), allowedWords()),
         word.isEmpty() ? QString() : quoted(word));
}

void ValueChecker::checkLength()
{
    const bool mayBePercent = key_.rule == PlixValueRule::LengthOrPercent;
    const std::optional<int> pixels = pixelsIn(value_.text);
    const std::optional<int> percent = mayBePercent ? percentIn(value_.text) : std::nullopt;
    const bool isNegative = pixels.value_or(0) < 0 || percent.value_or(0) < 0;
    const bool isGood = !isNegative || (key_.mayBeNegative && pixels);
    if (isWord() || value_.text == "none" || ((pixels || percent) && isGood))
        return;
    const QString word = probableWord(text(), wordsOf(key_));
    const bool isOtherCase = word.compare(text().trimmed(), Qt::CaseInsensitive) == 0;
    const QString number = mayBePercent ? QStringLiteral("a whole number of pixels or percent")
                                        : QStringLiteral("a whole number of pixels");
    note(isOtherCase && !word.isEmpty() ? Rule::WrongCase : Rule::BadLength,
         QStringLiteral("%1 is no length for %2, which is %3, or one of the words %4")
             .arg(quoted(value_.text), quoted(key_.name), number, allowedWords()),
         word.isEmpty() ? QString() : quoted(word));
}

void ValueChecker::checkColor()
{
    constexpr int kRgbaLength = 9;
    constexpr int kRgbLength = 7;
    const QString name = text();
    const bool isHex = name.startsWith(QLatin1Char('#'));
    const QString color = QString::fromLatin1(value_.text.c_str());
    const bool isValid = QColor::isValidColor(color);
    if (isValid && isHex && color.size() < kRgbLength) {
        note(Rule::ShortColor,
             QStringLiteral("%1 is a short form; write all six digits").arg(quoted(name)),
             quoted(QColor(color).name().toUpper()));
        return;
    }
    const bool isOfLength = !isHex || color.size() == kRgbLength || color.size() == kRgbaLength;
    if (isValid && isOfLength)
        return;
    const QString alpha = key_.rule == PlixValueRule::ColorAlphaLast ? QStringLiteral("#RRGGBBAA")
                                                                     : QStringLiteral("#AARRGGBB");
    const bool lacksSign = QColor::isValidColor(QLatin1Char('#') + color);
    note(Rule::BadColor,
         QStringLiteral("%1 is no colour; write #RRGGBB, %2 or an SVG colour name")
             .arg(quoted(name), alpha),
         lacksSign ? quoted(QLatin1Char('#') + color) : QString());
}

void ValueChecker::checkRatio()
{
    const QStringList sides = text().split(QLatin1Char(':'));
    bool isGood = sides.size() == 2;
    for (const QString& side : sides) {
        bool isNumber = false;
        const float number = side.toFloat(&isNumber);
        isGood = isGood && isNumber && number > 0 && std::isfinite(number);
    }
    if (isGood)
        return;
    QString mend = text();
    mend.replace(QLatin1Char('/'), QLatin1Char(':')).replace(QLatin1Char('x'), QLatin1Char(':'));
    note(Rule::BadRatio,
         QStringLiteral("%1 is no ratio; write the width, a colon, and the height")
             .arg(quoted(value_.text)),
         mend != text() ? quoted(mend) : QStringLiteral("\"16:9\""));
}

void ValueChecker::checkNumber()
{
    const double whole = std::trunc(value_.number);
    if (whole != value_.number) {
        note(Rule::BadNumber,
             QStringLiteral("%1 must be a whole number; %2 counts as %3")
                 .arg(quoted(key_.name), QString::number(value_.number), QString::number(whole)),
             QString::number(whole));
    } else if (whole < 0) {
        note(Rule::BadNumber,
             QStringLiteral("%1 must not be negative; %2 counts as 0")
                 .arg(quoted(key_.name), QString::number(whole)),
             QStringLiteral("0"));
    }
}

void ValueChecker::note(Rule rule, const QString& message, const QString& mend)
{
    findings_.push_back({rule, value_.range, path_, message, mend, {}, {}});
}

} // namespace

void checkValue(const PlixFormatKey& key, const JsonNode& value, const QString& path,
                Findings& findings)
{
    ValueChecker checker(key, value, path, findings);
    if (key.type == PlixJsonType::String && value.isString())
        checker.checkText();
    if (key.type == PlixJsonType::Integer && value.kind == JsonNode::Kind::Number)
        checker.checkNumber();
}

QStringList wordsOf(const PlixFormatKey& key)
{
    QStringList words;
    for (const PlixFormatWord& row : key.words)
        words.append(QString::fromUtf8(row.word.data(), static_cast<int>(row.word.size())));
    return words;
}

std::optional<int> pixelsIn(std::string_view text)
{
    return numberWithout(QStringLiteral("px"), text);
}

std::optional<int> percentIn(std::string_view text)
{
    return text.find('%') == std::string_view::npos ? std::nullopt
                                                    : numberWithout(QStringLiteral("%"), text);
}

} // namespace plix::tool
