#include "LaidOutText.h"

namespace kestro {

LaidOutParagraph LaidOutText::ParagraphAt(int position) const
{
    int first = 0;
    int count = ParagraphCount();
    while (count > 1) {
        const int half = count / 2;
        const bool isBehind = Paragraph(first + half).position <= position;
        first += isBehind ? half : 0;
        count = isBehind ? count - half : half;
    }
    return Paragraph(first);
}

QChar LaidOutText::CharacterAt(int position) const
{
    const LaidOutParagraph paragraph = ParagraphAt(position);
    return paragraph.text.at(position - paragraph.position);
}

int LaidOutText::End() const
{
    const LaidOutParagraph last = Paragraph(ParagraphCount() - 1);
    return last.position + last.text.size();
}

} // namespace kestro
