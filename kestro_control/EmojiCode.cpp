#include "EmojiCode.h"

#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <cctype>

namespace kestro {

namespace {

constexpr int kMaximumDigits = 6;
constexpr uint kKeycap = 0x20E3;

struct CodePointRange {
    uint first;
    uint last;

    bool Contains(uint codePoint) const { return codePoint >= first && codePoint <= last; }
};

// Code points that can be emoji of their own: the Unicode blocks that contain
// emoji, including code points that are not assigned yet.
constexpr std::array<CodePointRange, 17> kEmojiRanges {{
    {0xA9, 0xA9},
    {0xAE, 0xAE},
    {0x203C, 0x203C},
    {0x2049, 0x2049},
    {0x2122, 0x2122},
    {0x2139, 0x2139},
    {0x2190, 0x21FF},
    {0x2300, 0x23FF},
    {0x24C2, 0x24C2},
    {0x25A0, 0x27BF},
    {0x2934, 0x2935},
    {0x2B00, 0x2BFF},
    {0x3030, 0x3030},
    {0x303D, 0x303D},
    {0x3297, 0x3297},
    {0x3299, 0x3299},
    {0x1F000, 0x1FAFF},
}};

// The first code points of keycap emoji.
constexpr std::array<CodePointRange, 3> kKeycapBases {{{'#', '#'}, {'*', '*'}, {'0', '9'}}};

// Code points that join or change others: the zero width joiner, the variation
// selectors, the keycap and the tags that spell the names of flags.
constexpr std::array<CodePointRange, 4> kModifiers {{
    {0x200D, 0x200D},
    {0xFE0E, 0xFE0F},
    {kKeycap, kKeycap},
    {0xE0020, 0xE007F},
}};

template <std::size_t count>
bool IsIn(const std::array<CodePointRange, count>& table, uint codePoint)
{
    return std::any_of(table.begin(), table.end(),
                       [codePoint](CodePointRange range) { return range.Contains(codePoint); });
}

std::optional<uint> HexadecimalNumber(QStringView digits)
{
    if (digits.isEmpty() || digits.size() > kMaximumDigits)
        return std::nullopt;
    for (const QChar digit : digits) {
        if (!std::isxdigit(static_cast<unsigned char>(digit.toLatin1())))
            return std::nullopt;
    }
    return digits.toUInt(nullptr, 16);
}

bool AreEmoji(const QVector<uint>& codePoints)
{
    const uint first = codePoints.front();
    const bool isKeycap = IsIn(kKeycapBases, first) && codePoints.back() == kKeycap;
    return (isKeycap || IsIn(kEmojiRanges, first))
        && std::all_of(codePoints.begin() + 1, codePoints.end(), [](uint codePoint) {
               return IsIn(kEmojiRanges, codePoint) || IsIn(kModifiers, codePoint);
           });
}

bool IsOneCharacter(const QString& characters)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, characters);
    return finder.toNextBoundary() == characters.size();
}

} // namespace

EmojiCode::EmojiCode(QString characters)
    : characters_(std::move(characters))
{
}

std::optional<EmojiCode> EmojiCode::Read(QStringView name)
{
    QVector<uint> codePoints;
    for (const QStringView part : name.split(QLatin1Char('-'))) {
        const auto codePoint = HexadecimalNumber(part);
        if (!codePoint || codePoints.size() == kMaximumCodePoints)
            return std::nullopt;
        codePoints.push_back(*codePoint);
    }
    if (!AreEmoji(codePoints))
        return std::nullopt;
    const QString characters = QString::fromUcs4(codePoints.constData(), codePoints.size());
    return IsOneCharacter(characters) ? std::optional(EmojiCode(characters)) : std::nullopt;
}

QString EmojiCode::Name() const
{
    QStringList parts;
    for (const uint codePoint : characters_.toUcs4())
        parts.append(QString::number(codePoint, 16).toUpper());
    return parts.join(QLatin1Char('-'));
}

} // namespace kestro
