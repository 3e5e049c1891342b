#include "MentionName.h"

#include "CodePoint.h"
#include "DirectionControls.h"

#include <algorithm>

namespace kestro {

namespace {

bool SetsDirection(QChar character)
{
    return (character >= QChar(0x202A) && character <= QChar(0x202E))
        || (character >= QChar(0x2066) && character <= QChar(0x2069));
}

bool ReadsFromRight(uint character)
{
    const QChar::Direction direction = QChar::direction(character);
    return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN;
}

bool HasTextFromRight(const QString& text)
{
    for (int at = 0; at < text.size(); ++at) {
        const uint character = CodePointAt(text, at);
        if (ReadsFromRight(character))
            return true;
        at += QChar::requiresSurrogates(character) ? 1 : 0;
    }
    return false;
}

} // namespace

QString WithoutDirections(const QString& name)
{
    if (std::none_of(name.begin(), name.end(), &SetsDirection))
        return name; // without a copy
    QString shown = name;
    const auto* const end = std::remove_if(shown.begin(), shown.end(), &SetsDirection);
    shown.truncate(static_cast<int>(end - shown.begin()));
    return shown;
}

QString Isolated(const QString& name)
{
    return HasTextFromRight(name) ? kFirstStrongIsolate + name + kPopDirectionalIsolate : name;
}

} // namespace kestro
