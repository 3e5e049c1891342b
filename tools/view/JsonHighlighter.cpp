#include "view/JsonHighlighter.h"

#include <algorithm>

namespace plix::tool {
namespace {

enum BlockState { Outside, InComment };

QTextCharFormat formatOf(const QColor& color)
{
    QTextCharFormat format;
    format.setForeground(color);
    return format;
}

} // namespace

JsonHighlighter::JsonHighlighter(QTextDocument* document, bool isDark)
    : QSyntaxHighlighter(document)
    , name_(formatOf(isDark ? QColor(0x8A, 0xB4, 0xF8) : QColor(0x0B, 0x51, 0xA8)))
    , string_(formatOf(isDark ? QColor(0x9C, 0xD6, 0x8E) : QColor(0x1E, 0x6B, 0x24)))
    , word_(formatOf(isDark ? QColor(0xF2, 0xA6, 0x60) : QColor(0xA0, 0x3E, 0x00)))
    , comment_(formatOf(QColor(0x80, 0x80, 0x80)))
{
}

void JsonHighlighter::highlightBlock(const QString& line)
{
    setCurrentBlockState(Outside);
    int i = previousBlockState() == InComment ? highlightComment(line, 0) : 0;
    while (i < line.size()) {
        const QChar c = line.at(i);
        if (c == QLatin1Char('"'))
            i = highlightString(line, i);
        else if (line.midRef(i, 2) == QLatin1String("//"))
            i = highlightTo(line.size(), i, comment_);
        else if (line.midRef(i, 2) == QLatin1String("/*"))
            i = highlightComment(line, i);
        else if (c.isLetterOrNumber() || c == QLatin1Char('-'))
            i = highlightWord(line, i);
        else
            ++i;
    }
}

int JsonHighlighter::highlightTo(int end, int begin, const QTextCharFormat& format)
{
    setFormat(begin, end - begin, format);
    return end;
}

int JsonHighlighter::highlightComment(const QString& line, int begin)
{
    const int mark = line.indexOf(QLatin1String("*/"), begin);
    if (mark < 0)
        setCurrentBlockState(InComment);
    const int end = mark < 0 ? line.size() : mark + 2;
    return highlightTo(end, begin, comment_);
}

int JsonHighlighter::highlightString(const QString& line, int begin)
{
    int end = begin + 1;
    while (end < line.size() && line.at(end) != QLatin1Char('"'))
        end += line.at(end) == QLatin1Char('\\') ? 2 : 1;
    end = std::min(end + 1, line.size());
    const bool isName = line.mid(end).trimmed().startsWith(QLatin1Char(':'));
    return highlightTo(end, begin, isName ? name_ : string_);
}

int JsonHighlighter::highlightWord(const QString& line, int begin)
{
    int end = begin;
    while (end < line.size()
           && (line.at(end).isLetterOrNumber() || QStringLiteral("-+.").contains(line.at(end))))
        ++end;
    return highlightTo(end, begin, word_);
}

} // namespace plix::tool
