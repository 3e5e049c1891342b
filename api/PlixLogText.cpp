#include "api/PlixLogText.h"

namespace plix {

namespace {

// Characters that some programs take for the end of a line, or that change how a
// line looks.
bool IsInvisible(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString Escaped(QChar character)
{
    if (character == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

// Does not split a surrogate pair.
QString Shortened(const QString& text, int maxLength)
{
    if (text.size() <= maxLength)
        return text;
    const bool splitsCharacter = text.at(maxLength - 1).isHighSurrogate();
    return text.left(splitsCharacter ? maxLength - 1 : maxLength) + QStringLiteral("...");
}

} // namespace

QString ToLogText(const QString& text, int maxLength)
{
    QString result;
    for (const QChar character : Shortened(text, maxLength))
        result += IsInvisible(character) ? Escaped(character) : QString(character);
    return result;
}

} // namespace plix
