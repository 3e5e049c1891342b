#pragma once

#include "LaidOutText.h"
#include "ParagraphLayout.h"
#include "TextRuns.h"

#include <QTextOption>
#include <QVector>

#include <vector>

namespace kestro {

// A text that is only shown. It looks exactly as in a document, but a document needs
// more than twice the memory and the time.
class TextParagraphs : public LaidOutText {
public:
    TextParagraphs();
    ~TextParagraphs() override;

    const TextRuns& Runs() const { return runs_; }
    void Append(const QString& text, const QTextCharFormat& format);
    void Clear();

    void SetFont(const QFont& font);
    const QTextOption& Option() const { return option_; }
    void SetOption(const QTextOption& option);
    void SetWidth(qreal width);
    // The distance of the text from the top, in whole pixels.
    void SetTop(qreal top) { top_ = top; }
    qreal Top() const { return top_; }

    // The directions in which the paragraphs read. Lays nothing out.
    QVector<Qt::LayoutDirection> Directions();

    // Does nothing if nothing has changed. To be called before Paragraph().
    void LayOut();

    bool IsEmpty() const override { return runs_.IsEmpty(); }
    qreal Width() const override { return width_; }
    QFont Font() const override { return font_; }
    int ParagraphCount() const override;
    LaidOutParagraph Paragraph(int index) const override;

private:
    struct Placed {
        ParagraphLayout layout;
        int position;
        // Below the top of the text.
        qreal top;
    };

    // Does nothing if they are there.
    void MakeParagraphs();
    // To be called when the text has to be shaped again.
    void DropParagraphs();

    TextRuns runs_;
    QFont font_;
    QTextOption option_;
    qreal width_ = -1;
    qreal top_ = 0;
    std::vector<Placed> paragraphs_;
    bool isLaidOut_ = false;
};

} // namespace kestro
