#pragma once

#include "DocumentText.h"
#include "TextParagraphs.h"

#include <QPointer>
#include <QTextCursor>
#include <QTextDocument>

#include <functional>
#include <memory>
#include <optional>

class QAbstractTextDocumentLayout;

namespace kestro {

// The text of an item and how it is laid out. It is in paragraphs of its own until
// somebody needs a document, and in the document from then on.
class ItemText {
public:
    // `onChange` is called before what is shown changes or, if the document changes
    // it, after that. `owner` must live longer.
    ItemText(QObject& owner, std::function<void()> onChange);
    ~ItemText();

    // Calls between these go to the end of the text (`atEnd`) or, one after the
    // other, to its start.
    void BeginInsertion(bool atEnd);
    void Insert(const QString& text, const QTextCharFormat& format);
    // Where the next text is inserted into the document, which this makes.
    QTextCursor& InsertionCursor();
    void EndInsertion();

    // Removes the text. To be called between BeginInsertion() and EndInsertion().
    void Clear();

    bool IsEmpty() const;
    QString PlainText() const;

    // The document, which the first call makes. It stays the same. Making it changes
    // nothing of what is shown, but LaidOut() has to be called again.
    QTextDocument& Document();
    bool HasDocument() const { return document_ != nullptr; }

    QFont Font() const;
    void SetFont(const QFont& font);

    QTextOption Option() const;
    void SetOption(const QTextOption& option);

    // Negative: no width.
    qreal Width() const;
    void SetWidth(qreal width);

    // See TextItem::SetFrame().
    void SetFrame(qreal height, qreal topMargin);

    // The directions in which the paragraphs read.
    QVector<Qt::LayoutDirection> Directions();

    // Lays the text out if that has not been done since the last change.
    const LaidOutText& LaidOut();

private:
    void ChangeToDocument();
    void MakeDocument();
    void ApplyFrame();
    void WatchDocumentLayout();

    QObject& owner_;
    const std::function<void()> onChange_;
    qreal frameHeight_ = 0;
    qreal topMargin_ = 0;
    // Empty once there is a document.
    std::optional<TextParagraphs> paragraphs_;
    std::unique_ptr<QTextDocument> document_;
    std::optional<DocumentText> documentText_;
    QPointer<QAbstractTextDocumentLayout> watchedLayout_;
    // While text is inserted into the document.
    QTextCursor cursor_;
};

} // namespace kestro
