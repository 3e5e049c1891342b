#include "api/PlixLogText.h"

namespace plix {

namespace {

// Those that end a line somewhere, and those that make a line look like another.
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

// Cut between characters.
QString Shortened(const QString& text, int longest)
{
    if (text.size() <= longest)
        return text;
    const bool splitsCharacter = text.at(longest - 1).isHighSurrogate();
    return text.left(splitsCharacter ? longest - 1 : longest) + QStringLiteral("...");
}

} // namespace

QString ToLogText(const QString& text, int longest)
{
    QString result;
    for (const QChar character : Shortened(text, longest))
        result += IsInvisible(character) ? Escaped(character) : QString(character);
    return result;
}

} // namespace plix
