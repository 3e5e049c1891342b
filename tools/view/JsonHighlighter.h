#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

namespace plix::tool {

// Colours names, strings, numbers and comments of a JSON text.
class JsonHighlighter : public QSyntaxHighlighter {
public:
    // `isDark`: whether the background of the text is dark.
    JsonHighlighter(QTextDocument* document, bool isDark);

protected:
    void highlightBlock(const QString& line) override;

private:
    // These return the end of what they have coloured.
    int highlightTo(int end, int begin, const QTextCharFormat& format);
    int highlightComment(const QString& line, int begin);
    int highlightString(const QString& line, int begin);
    int highlightWord(const QString& line, int begin);

    QTextCharFormat name_;
    QTextCharFormat string_;
    QTextCharFormat word_;
    QTextCharFormat comment_;
};

} // namespace plix::tool
