#include "JsonPosition.h"

#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace plix::tool {

TextPlace placeAt(const QByteArray& text, int offset)
{
    const QByteArray before = text.left(std::max(offset, 0));
    const int lineStart = before.lastIndexOf('\n') + 1;
    const QString line = QString::fromUtf8(before.mid(lineStart));
    return {static_cast<int>(before.count('\n')) + 1, static_cast<int>(line.toUcs4().size()) + 1};
}

JsonPosition::JsonPosition(const QByteArray& text)
    : text_(text)
{
}

int JsonPosition::start() const
{
    return skipBlanks(text_, 0);
}

std::optional<int> JsonPosition::rootMember(const QString& name) const
{
    std::optional<int> value;
    int depth = 0;
    for (int i = 0; i < text_.size(); ++i) {
        const char c = text_.at(i);
        if (c == '{' || c == '[') {
            ++depth;
        } else if (c == '}' || c == ']') {
            --depth;
        } else if (c == '"') {
            const int end = skipString(text_, i);
            const int colon = skipBlanks(text_, end);
            const bool isName = depth == 1 && colon < text_.size() && text_.at(colon) == ':';
            if (isName && isNamed(i, end, name))
                value = skipBlanks(text_, colon + 1);
            i = end - 1;
        }
    }
    return value;
}

bool JsonPosition::isNamed(int begin, int end, const QString& name) const
{
    // The name may contain escapes, so it is decoded first.
    const QByteArray array = '[' + text_.mid(begin, end - begin) + ']';
    return QJsonDocument::fromJson(array).array().at(0).toString() == name;
}

} // namespace plix::tool
