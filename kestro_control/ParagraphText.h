#pragma once

#include <QString>

#include <vector>

class QTextBlock;
class QTextDocument;

namespace kestro {

// The text of a paragraph, in which every emoji picture is replaced with the
// characters that it stands for.
class ParagraphText {
public:
    explicit ParagraphText(const QTextBlock& block);

    const QString& Characters() const { return characters_; }

    // The document's position of the character at `index`, which may be one past
    // the last.
    int DocumentPosition(int index) const;

private:
    QString characters_;
    // The document's position of the paragraph.
    int start_;
    // The position in the block of each character, and of the end. Empty if it is
    // the character's index.
    std::vector<int> positions_;
};

// `text` as QTextDocument::toPlainText() would return it.
QString AsPlainText(QString text);

// QTextDocument::toPlainText(), with the characters of the emoji pictures.
QString PlainTextOf(const QTextDocument& document);

} // namespace kestro
