#include "TextParagraphs.h"

namespace kestro {

namespace {

// The options of a new document.
QTextOption DocumentOption()
{
    QTextOption option;
    option.setTabStopDistance(80);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

} // namespace

TextParagraphs::TextParagraphs()
    : option_(DocumentOption())
{
}

TextParagraphs::~TextParagraphs() = default;

void TextParagraphs::Append(const QString& text, const QTextCharFormat& format)
{
    runs_.Append(text, format);
    DropParagraphs();
}

void TextParagraphs::Clear()
{
    runs_.Clear();
    DropParagraphs();
}

void TextParagraphs::SetFont(const QFont& font)
{
    font_ = font;
    DropParagraphs();
}

void TextParagraphs::SetOption(const QTextOption& option)
{
    option_ = option;
    DropParagraphs();
}

void TextParagraphs::SetWidth(qreal width)
{
    width_ = width;
    isLaidOut_ = false;
}

QVector<Qt::LayoutDirection> TextParagraphs::Directions()
{
    MakeParagraphs();
    QVector<Qt::LayoutDirection> directions;
    for (const Placed& paragraph : paragraphs_)
        directions.push_back(paragraph.layout.Direction());
    return directions;
}

void TextParagraphs::LayOut()
{
    if (isLaidOut_)
        return;
    MakeParagraphs();
    qreal top = 0;
    for (Placed& paragraph : paragraphs_) {
        paragraph.top = top;
        top += paragraph.layout.BreakLines(width_);
    }
    isLaidOut_ = true;
}

int TextParagraphs::ParagraphCount() const
{
    return static_cast<int>(paragraphs_.size());
}

LaidOutParagraph TextParagraphs::Paragraph(int index) const
{
    const Placed& placed = paragraphs_[static_cast<std::size_t>(index)];
    LaidOutParagraph paragraph;
    paragraph.layout = placed.layout.Layout();
    paragraph.text = paragraph.layout->text();
    paragraph.formats = paragraph.layout->formats();
    paragraph.position = placed.position;
    paragraph.isLast = index == ParagraphCount() - 1;
    paragraph.origin = QPointF(0, top_ + placed.top);
    paragraph.right = width_;
    return paragraph;
}

void TextParagraphs::MakeParagraphs()
{
    if (!paragraphs_.empty())
        return;
    int position = 0;
    for (const ParagraphSource& source : runs_.Paragraphs()) {
        paragraphs_.push_back({ParagraphLayout(source, font_, option_), position, 0});
        position += source.text.size() + 1;
    }
}

void TextParagraphs::DropParagraphs()
{
    paragraphs_.clear();
    isLaidOut_ = false;
}

} // namespace kestro
