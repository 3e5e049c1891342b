#include "TextLayoutMaker.h"

#include "Element.h"

#include <QTextLayout>

namespace bench {
namespace {

QVector<QTextLayout::FormatRange> formatsOf(const Text& text)
{
    QVector<QTextLayout::FormatRange> formats;
    for (const Span& span : text.spans) {
        QTextLayout::FormatRange range;
        range.start = span.start;
        range.length = span.length;
        range.format.setFont(span.font);
        range.format.setForeground(span.color);
        formats.append(range);
    }
    return formats;
}

} // namespace

std::unique_ptr<QTextLayout> makeTextLayout(const Text& text)
{
    auto layout = std::make_unique<QTextLayout>(text.shown, text.font);
    QTextOption option(text.alignment | Qt::AlignAbsolute);
    option.setWrapMode(text.lineCount > 1 ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                          : QTextOption::NoWrap);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    if (!text.spans.empty())
        layout->setFormats(formatsOf(text));
    layOut(*layout, text.width, text.lineCount);
    return layout;
}

void layOut(QTextLayout& layout, qreal width, int maximumLines)
{
    layout.beginLayout();
    qreal top = 0;
    for (int i = 0; i < maximumLines; ++i) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        line.setPosition(QPointF(0, top));
        top += line.height();
    }
    layout.endLayout();
}

} // namespace bench
