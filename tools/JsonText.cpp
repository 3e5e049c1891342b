#include "JsonText.h"

#include <algorithm>

namespace plix::tool {
namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool startsAt(const QByteArray& text, int offset, char first, char second)
{
    return offset + 1 < text.size() && text.at(offset) == first && text.at(offset + 1) == second;
}

// The offset after the comment that starts at `offset`. Returns `offset` if there
// is no comment, -1 if the comment does not end.
int skipComment(const QByteArray& text, int offset)
{
    if (startsAt(text, offset, '/', '/')) {
        const int lineEnd = text.indexOf('\n', offset);
        return lineEnd < 0 ? text.size() : lineEnd;
    }
    if (startsAt(text, offset, '/', '*')) {
        const int closing = text.indexOf("*/", offset + 2);
        return closing < 0 ? -1 : closing + 2;
    }
    return offset;
}

} // namespace

int skipBlanks(const QByteArray& text, int offset)
{
    while (offset < text.size() && isBlank(text.at(offset)))
        ++offset;
    return offset;
}

int skipString(const QByteArray& text, int offset)
{
    for (int i = offset + 1; i < text.size(); ++i) {
        if (text.at(i) == '\\')
            ++i;
        else if (text.at(i) == '"')
            return i + 1;
    }
    return text.size();
}

QByteArray withoutComments(const QByteArray& text)
{
    QByteArray result = text;
    for (int i = 0; i < text.size();) {
        if (text.at(i) == '"') {
            i = skipString(text, i);
            continue;
        }
        const int end = skipComment(text, i);
        if (end < 0)
            break;
        std::fill(result.begin() + i, result.begin() + end, ' ');
        i = std::max(end, i + 1);
    }
    return result;
}

} // namespace plix::tool
