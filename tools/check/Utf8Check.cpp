#include "check/Utf8Check.h"

#include <QString>

namespace plix::tool {
namespace {

int lengthOf(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    return lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
}

// Whether these are the bytes of one character.
bool isCharacter(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const bool isReplacement = bytes == "\xEF\xBF\xBD";
    return text.toUtf8() == bytes && text.contains(QChar::ReplacementCharacter) == isReplacement;
}

} // namespace

std::optional<int> findBadUtf8(const QByteArray& text)
{
    for (int i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text.at(i));
        const int length = lengthOf(lead);
        const QByteArray bytes = length == 1 ? QByteArray() : text.mid(i, length);
        if (length > 1 && (bytes.size() != length || !isCharacter(bytes)))
            return i;
        i += length;
    }
    return std::nullopt;
}

} // namespace plix::tool
