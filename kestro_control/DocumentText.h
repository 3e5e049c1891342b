#pragma once

#include "LaidOutText.h"

class QTextDocument;

namespace kestro {

// The text of a document, as its document layout lays it out.
class DocumentText : public LaidOutText {
public:
    // The document must live longer.
    explicit DocumentText(const QTextDocument& document);

    bool IsEmpty() const override;
    qreal Width() const override;
    QFont Font() const override;
    int ParagraphCount() const override;
    LaidOutParagraph Paragraph(int index) const override;

private:
    const QTextDocument& document_;
};

} // namespace kestro
