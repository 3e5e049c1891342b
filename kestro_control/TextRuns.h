#pragma once

#include <QString>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QVector>

#include <vector>

class QFont;
class QTextCursor;

namespace kestro {

// A paragraph as it was inserted.
struct ParagraphSource {
    QString text;
    // Empty if the paragraph has no format.
    QVector<QTextLayout::FormatRange> formats;
    // The format of the character that ends the paragraph before it. Lines without
    // text are as high as its font.
    QTextCharFormat formatBefore;
};

// A text as it was inserted: with formats, and not yet in paragraphs. Holds only what
// a QTextLayout outside of a document lays out as a document would.
class TextRuns {
public:
    // Whether a text can be in this font.
    static bool CanHave(const QFont& font);

    // Whether `text` can be appended.
    bool CanAppend(const QString& text, const QTextCharFormat& format) const;
    void Append(const QString& text, const QTextCharFormat& format);
    void Clear();

    bool IsEmpty() const { return runs_.empty(); }

    // QTextDocument::toPlainText() of a document that has the text.
    QString PlainText() const;

    std::vector<ParagraphSource> Paragraphs() const;

    // Inserts the text at the cursor, in the same steps as it was appended.
    void InsertInto(QTextCursor& cursor) const;

private:
    struct Run {
        QString text;
        QTextCharFormat format;
    };

    bool HasFormats() const;

    std::vector<Run> runs_;
    int length_ = 0;
};

} // namespace kestro
