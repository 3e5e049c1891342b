#pragma once

#include <QString>

#include <vector>

class QTextBlock;
class QTextDocument;

namespace kestro {

// The text of a paragraph as it is read and searched: with the characters that
// emoji pictures stand for.
class ParagraphText {
public:
    explicit ParagraphText(const QTextBlock& block);

    const QString& Characters() const { return characters_; }

    // Where the document has the character at `index`, which may be one past
    // the last.
    int DocumentPosition(int index) const;

private:
    QString characters_;
    // Of the document's first character.
    int start_;
    // Of every character in the block, and of the end. Empty: they are the
    // same.
    std::vector<int> positions_;
};

// `text` as QTextDocument::toPlainText() would tell it.
QString AsPlainText(QString text);

QString PlainTextOf(const QTextDocument& document);

} // namespace kestro
