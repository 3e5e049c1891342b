#include "ParagraphLayout.h"

#include "CodePoint.h"
#include "TextRuns.h"
#include "TextWork.h"

#include <QStyle>

#include <algorithm>
#include <cmath>

namespace kestro {

namespace {

// The direction of the option or, if it has none, of the first letter that has one.
Qt::LayoutDirection DirectionOf(const QString& text, const QTextOption& option)
{
    if (option.textDirection() != Qt::LayoutDirectionAuto)
        return option.textDirection();
    for (int at = 0; at < text.size(); ++at) {
        const uint character = CodePointAt(text, at);
        if (QChar::requiresSurrogates(character))
            ++at;
        switch (QChar::direction(character)) {
        case QChar::DirL:
            return Qt::LeftToRight;
        case QChar::DirR:
        case QChar::DirAL:
            return Qt::RightToLeft;
        default:
            break;
        }
    }
    return Qt::LeftToRight;
}

QTextOption ParagraphOption(QTextOption option, const QString& text)
{
    const Qt::LayoutDirection direction = DirectionOf(text, option);
    option.setTextDirection(direction);
    option.setAlignment(QStyle::visualAlignment(direction, option.alignment()));
    return option;
}

} // namespace

ParagraphLayout::ParagraphLayout(const ParagraphSource& source, const QFont& font,
                                 const QTextOption& option)
    : layout_(std::make_unique<QTextLayout>(source.text))
    , wrapMode_(option.wrapMode())
{
    const bool isEmpty = source.text.isEmpty();
    layout_->setFont(isEmpty ? source.formatBefore.font().resolve(font) : font);
    layout_->setTextOption(ParagraphOption(option, source.text));
    if (!source.formats.isEmpty())
        layout_->setFormats(source.formats);
    // Shown lines are broken, drawn and measured many times.
    layout_->setCacheEnabled(true);
}

Qt::LayoutDirection ParagraphLayout::Direction() const
{
    return layout_->textOption().textDirection();
}

// The text engine's session, which beginLayout() starts, stays open. So lines can be
// broken again without shaping the text again. Everything else here, up to the
// rounding, is what QTextDocumentLayout does.
qreal ParagraphLayout::BreakLines(qreal width)
{
    Shape();
    SetWrapMode(width < 0 ? QTextOption::ManualWrap : wrapMode_);
    if (width >= 0 && StaysInOneLine(width)) {
        layout_->lineAt(0).setLineWidth(width);
        return height_;
    }
    ++WorkSoFar().lineBreakings;
    layout_->clearLayout();
    qreal height = 0;
    qreal bottom = 0;
    for (QTextLine line = layout_->createLine(); line.isValid(); line = layout_->createLine()) {
        line.setLeadingIncluded(true);
        FitLine(line, std::max(0.0, width));
        line.setPosition(QPointF(0, height));
        bottom = height + line.height();
        height += std::ceil(line.ascent() + line.descent() + line.leading());
    }
    height_ = std::max(height, bottom);
    return height_;
}

// Whether the lines are a single one, which another width does not change. A line that
// ends in a space, or whose last glyph reaches beyond its advance, may be measured in
// another way if it has more room.
bool ParagraphLayout::StaysInOneLine(qreal width) const
{
    const QString text = layout_->text();
    if (layout_->lineCount() != 1 || text.isEmpty() || text.back().isSpace())
        return false;
    const QTextLine line = layout_->lineAt(0);
    const qreal natural = line.naturalTextWidth();
    return natural <= width && natural == line.horizontalAdvance();
}

void ParagraphLayout::Shape()
{
    if (isShaped_)
        return;
    isShaped_ = true;
    ++WorkSoFar().shapings;
    WorkSoFar().shapedCharacters += layout_->text().size();
    layout_->beginLayout();
}

// A line that does not fit breaks anywhere. The lines after it break at words only.
void ParagraphLayout::FitLine(QTextLine& line, qreal width)
{
    line.setLineWidth(width);
    if (line.naturalTextWidth() <= width)
        return;
    const bool breaksAnywhere = wrapMode_ == QTextOption::WrapAtWordBoundaryOrAnywhere
        && layout_->textOption().wrapMode() != QTextOption::ManualWrap;
    if (breaksAnywhere)
        SetWrapMode(QTextOption::WrapAnywhere);
    line.setLineWidth(std::max(line.naturalTextWidth(), width));
    if (breaksAnywhere)
        SetWrapMode(QTextOption::WordWrap);
}

void ParagraphLayout::SetWrapMode(QTextOption::WrapMode mode)
{
    QTextOption option = layout_->textOption();
    if (option.wrapMode() == mode)
        return;
    option.setWrapMode(mode);
    layout_->setTextOption(option);
}

} // namespace kestro
