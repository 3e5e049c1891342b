#include "DocumentText.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

namespace kestro {

DocumentText::DocumentText(const QTextDocument& document)
    : document_(document)
{
}

bool DocumentText::IsEmpty() const
{
    return document_.isEmpty();
}

qreal DocumentText::Width() const
{
    return document_.textWidth();
}

QFont DocumentText::Font() const
{
    return document_.defaultFont();
}

int DocumentText::ParagraphCount() const
{
    return document_.blockCount();
}

LaidOutParagraph DocumentText::Paragraph(int index) const
{
    const QTextBlock block = document_.findBlockByNumber(index);
    const QTextFrameFormat frame = document_.rootFrame()->frameFormat();

    LaidOutParagraph paragraph;
    paragraph.text = block.text();
    paragraph.formats = block.textFormats();
    paragraph.position = block.position();
    paragraph.isLast = !block.next().isValid();
    paragraph.origin = document_.documentLayout()->blockBoundingRect(block).topLeft();
    paragraph.layout = block.layout();
    // Shown lines are drawn and measured many times.
    paragraph.layout->setCacheEnabled(true);
    paragraph.right = document_.textWidth() - frame.rightMargin() - frame.border() - frame.padding()
        - block.blockFormat().rightMargin();
    return paragraph;
}

} // namespace kestro
