#include "check/JsonScanner.h"

namespace plix::tool {

JsonScanner::JsonScanner(const QByteArray& text, Findings& findings)
    : text_(text)
    , findings_(findings)
{
}

bool JsonScanner::skip(char c)
{
    if (atEnd() || current() != c)
        return false;
    ++offset_;
    return true;
}

void JsonScanner::skipBlanksAndComments()
{
    static const QByteArray blanks = " \t\r\n";
    for (;;) {
        while (!atEnd() && blanks.contains(current()))
            ++offset_;
        const QByteArray start = current() == '/' ? next(2) : QByteArray();
        const bool isBlock = start == "/*";
        if (!isBlock && start != "//")
            return;
        const int closing = text_.indexOf(isBlock ? "*/" : "\n", offset_ + 2);
        if (closing < 0 && isBlock)
            stop({offset_, offset_ + 2}, QStringLiteral("this comment does not end"));
        offset_ = closing < 0 ? text_.size() : closing + (isBlock ? 2 : 1);
    }
}

void JsonScanner::note(Rule rule, TextRange range, const QString& message)
{
    findings_.push_back({rule, range, {}, message, {}, {}, {}});
}

void JsonScanner::stop(TextRange range, const QString& message)
{
    note(Rule::Syntax, range, message);
    throw Stop();
}

void JsonScanner::stopHere(const QString& needed)
{
    if (atEnd())
        stop({offset_, offset_}, QStringLiteral("the text ends, but %1 is needed").arg(needed));
    stop({offset_, offset_ + 1}, QStringLiteral("%1 is needed here").arg(needed));
}

} // namespace plix::tool
