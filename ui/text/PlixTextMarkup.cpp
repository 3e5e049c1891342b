#include "ui/text/PlixTextMarkup.h"

#include <algorithm>

namespace plix {

namespace {

// The position where the first `opener` ends; the end of the text if there is none.
int EndOfFirst(const QString& opener, const QString& text)
{
    const int start = text.indexOf(opener);
    return start < 0 ? text.size() : start + opener.size();
}

// Anything may stand between opener and closer. So it is enough to compare the first
// opener with the last closer.
bool HasCloserFrom(int position, const QString& closer, const QString& text)
{
    return text.lastIndexOf(closer) >= position;
}

} // namespace

bool HasMarkup(const QString& text)
{
    if (!text.contains(QLatin1Char('<')))
        return false;
    const int emoji = EndOfFirst(QStringLiteral("<e"), text);
    const int mention = EndOfFirst(QStringLiteral("<m"), text);
    return HasCloserFrom(std::min(emoji, mention), QStringLiteral("/>"), text)
        || HasCloserFrom(emoji, QStringLiteral("</e>"), text)
        || HasCloserFrom(mention, QStringLiteral("</m>"), text);
}

QString EscapeMarkup(const QString& text)
{
    const bool needsEscaping = text.contains(QLatin1Char('&')) || text.contains(QLatin1Char('<'))
        || text.contains(QLatin1Char('>'));
    if (!needsEscaping)
        return text;
    struct Replacement {
        QLatin1String before;
        QLatin1String after;
    };
    // The order matters: entities are undone first, then everything is escaped.
    static const Replacement replacements[] = {
        {QLatin1String("&lt;"), QLatin1String("<")},  {QLatin1String("&gt;"), QLatin1String(">")},
        {QLatin1String("&amp;"), QLatin1String("&")}, {QLatin1String("&"), QLatin1String("&amp;")},
        {QLatin1String("<"), QLatin1String("&lt;")},  {QLatin1String(">"), QLatin1String("&gt;")},
    };
    QString escaped = text;
    for (const Replacement& replacement : replacements)
        escaped.replace(replacement.before, replacement.after);
    return escaped;
}

} // namespace plix
