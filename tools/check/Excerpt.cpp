#include "check/Excerpt.h"

#include <QChar>

#include <algorithm>

namespace plix::tool {
namespace {

constexpr int kMaximumLength = 40;

// A card must not control the terminal on which a message is read.
QString printable(const QString& text)
{
    QString line;
    for (const QChar character : text.simplified())
        line += character.isPrint() || character.isSurrogate() ? character
                                                               : QChar(QChar::ReplacementCharacter);
    if (line.size() <= kMaximumLength)
        return line;
    line.truncate(kMaximumLength);
    if (line.at(line.size() - 1).isHighSurrogate())
        line.chop(1);
    return line + QChar(0x2026);
}

} // namespace

QString excerpt(const QByteArray& text, TextRange range)
{
    // Each character has at most four bytes.
    const int length = std::min(range.end - range.begin, 4 * kMaximumLength + 4);
    return printable(QString::fromUtf8(text.mid(range.begin, length)));
}

QString quoted(std::string_view word)
{
    return quoted(QString::fromUtf8(word.data(), static_cast<int>(word.size())));
}

QString quoted(const QString& word)
{
    return QLatin1Char('"') + printable(word) + QLatin1Char('"');
}

} // namespace plix::tool
