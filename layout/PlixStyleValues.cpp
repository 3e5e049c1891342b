#include "layout/PlixStyleValues.h"

#include "layout/PlixLengthWords.h"
#include "layout/PlixLimits.h"
#include "layout/PlixStyleNumber.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>

namespace plix {

namespace {

constexpr int kDefaultSpacer = 8;
constexpr float kDefaultImageSize = 100;
constexpr int kNotGiven = -1;

// The whole number that `text` is without each `unit` in it; 0 if it is none.
int NumberWithout(const QString& unit, const std::string& text)
{
    QString number = QString::fromStdString(text);
    return number.remove(unit, Qt::CaseInsensitive).toInt();
}

int PixelNumber(const std::string& text)
{
    return NumberWithout(QStringLiteral("px"), text);
}

// "#RRGGBB" and "#AARRGGBB", which are nearly all colours of cards, in much less time
// than QColor needs.
std::optional<QRgb> ReadHexColor(std::string_view text)
{
    constexpr std::size_t kRgbDigits = 6;
    constexpr std::size_t kArgbDigits = 8;
    const std::string_view digits = text.substr(text.empty() ? 0 : 1);
    if (text.empty() || text.front() != '#'
        || (digits.size() != kRgbDigits && digits.size() != kArgbDigits))
        return std::nullopt;
    QRgb rgb = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), rgb, 16);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return digits.size() == kRgbDigits ? rgb | 0xFF000000 : rgb;
}

template <std::size_t Size>
int WordOrPixels(const std::array<PlixKeyword<int>, Size>& words, const std::string& text,
                 int whenEmpty)
{
    if (text.empty())
        return whenEmpty;
    const auto word = FindKeyword(words, text);
    return word ? *word : PixelNumber(text);
}

} // namespace

int ToLengthPixels(const std::string& text)
{
    return WordOrPixels(kLengths, text, 0);
}

int ToPercent(const std::string& text)
{
    return NumberWithout(QStringLiteral("%"), text);
}

void ParseLength(const std::string& text, PlixLength& length)
{
    if (text.empty()) {
        length = PlixLength();
        return;
    }
    length.px = ToLengthPixels(text);
    if (length.px == 0)
        length.percent = ToPercent(text);
}

int ToSpacingPixels(const std::string& text)
{
    return FindKeyword(kLengths, text).value_or(0);
}

int ToCornerRadius(const std::string& text)
{
    return WordOrPixels(kCornerRadii, text, kNotGiven);
}

int ToBorderWidth(const std::string& text)
{
    return WordOrPixels(kBorderWidths, text, kNotGiven);
}

int ToSpacerPixels(const std::string& text)
{
    return FindKeyword(kLengths, text).value_or(kDefaultSpacer);
}

float ToImageSize(const std::string& text)
{
    return FindKeyword(kImageSizes, text).value_or(kDefaultImageSize);
}

float ToAspectRatio(const std::string& text)
{
    constexpr float kSquare = 1;
    const QStringList sides = QString::fromStdString(text).split(QLatin1Char(':'));
    if (sides.size() != 2)
        return kSquare;
    const double width = sides[0].toFloat();
    const double height = sides[1].toFloat();
    const double ratio = width / height;
    // In the range of a float, also where the FPU computes with more digits. This
    // also rejects infinity divided by infinity, and ratios that are too large or
    // too small.
    using Limits = std::numeric_limits<float>;
    const bool isUsable = width > 0 && ratio >= Limits::min() && ratio <= Limits::max();
    // Yoga also divides by it.
    return isUsable ? ToStyleNumber(std::max(ratio, 1 / kMaximumStyleNumber)) : kSquare;
}

QColor ToColor(const std::string& text)
{
    if (const std::optional<QRgb> rgb = ReadHexColor(text))
        return QColor::fromRgba(*rgb);
    const QString name = QString::fromLatin1(text.c_str());
    return QColor::isValidColor(name) ? QColor(name) : QColor();
}

std::string RgbaToArgb(std::string_view color)
{
    constexpr std::size_t kLength = 9;
    if (color.size() != kLength)
        return std::string(color);
    return std::string("#").append(color, 7, 2).append(color, 1, 6);
}

} // namespace plix
