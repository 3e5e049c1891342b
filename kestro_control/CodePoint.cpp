#include "CodePoint.h"

namespace kestro {

uint CodePointAt(const QString& text, int at)
{
    const QChar character = text.at(at);
    if (character.isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(character, text.at(at + 1));
    return character.unicode();
}

} // namespace kestro
