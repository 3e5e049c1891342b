#include "ui/text/PlixTextMarkup.h"

#include <algorithm>

namespace plix {

namespace {

// Where the first `opener` ends, beyond the end of the text if there is none.
int EndOfFirst(const QString& opener, const QString& text)
{
    const int start = text.indexOf(opener);
    return start < 0 ? text.size() : start + opener.size();
}

// Anything may stand between an opener and a closer, so the first of the one
// and the last of the other decide.
bool HasFrom(int position, const QString& closer, const QString& text)
{
    return text.lastIndexOf(closer) >= position;
}

} // namespace

bool HasMarkup(const QString& text)
{
    const int emoji = EndOfFirst(QStringLiteral("<e"), text);
    const int mention = EndOfFirst(QStringLiteral("<m"), text);
    return HasFrom(std::min(emoji, mention), QStringLiteral("/>"), text)
        || HasFrom(emoji, QStringLiteral("</e>"), text)
        || HasFrom(mention, QStringLiteral("</m>"), text);
}

QString EscapeMarkup(const QString& text)
{
    struct Replacement {
        QLatin1String before;
        QLatin1String after;
    };
    // The order matters: first what was escaped is undone, then all is escaped.
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
