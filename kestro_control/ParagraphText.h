#pragma once

#include <QString>
#include <QTextLayout>
#include <QVector>

#include <vector>

class QTextDocument;

namespace kestro {

struct LaidOutParagraph;

// The text of a paragraph, in which every emoji picture is replaced with the
// characters that it stands for.
class ParagraphText {
public:
    // `start`: the position in the whole text of the paragraph.
    ParagraphText(QString text, const QVector<QTextLayout::FormatRange>& formats, int start);
    explicit ParagraphText(const LaidOutParagraph& paragraph);

    const QString& Characters() const { return characters_; }

    // The position in the whole text of the character at `index`, which may be one
    // past the last.
    int Position(int index) const;

    // The index of the character at `position`, or of the first one behind it.
    int Index(int position) const;

private:
    QString characters_;
    int start_;
    // The position in the paragraph of each character, and of the end. Empty if it is
    // the character's index.
    std::vector<int> positions_;
};

// Whether a document that has `character` inserted starts a new paragraph there.
bool EndsParagraph(QChar character);

// `text` as QTextDocument::toPlainText() would return it.
QString AsPlainText(QString text);

// QTextDocument::toPlainText(), with the characters of the emoji pictures.
QString PlainTextOf(const QTextDocument& document);

} // namespace kestro
