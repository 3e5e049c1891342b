#include "HtmlWriter.h"

#include "BoxLook.h"
#include "Element.h"

#include <QFontMetricsF>

#include <algorithm>
#include <utility>

namespace bench {
namespace {

QString number(qreal value)
{
    return QString::number(qRound(value));
}

QString cssOf(const QFont& font, const QColor& color)
{
    // Qt's weights go to 99, those of CSS to 900.
    return QStringLiteral("font-family:'%1';font-size:%2px;font-weight:%3;font-style:%4;color:%5;")
        .arg(font.family(), number(font.pixelSize()), number(font.bold() ? 700 : 400),
             font.italic() ? QStringLiteral("italic") : QStringLiteral("normal"), color.name());
}

QString escaped(const QString& text)
{
    return text.toHtmlEscaped().replace(QChar(QChar::LineSeparator), QStringLiteral("<br/>"));
}

QString alignmentName(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return QStringLiteral("center");
    return alignment & Qt::AlignRight ? QStringLiteral("right") : QStringLiteral("left");
}

// A free width at both sides.
struct Indent {
    qreal left = 0;
    qreal right = 0;
};

QString styleOf(const Indent& indent, qreal above)
{
    return QStringLiteral("margin:0;margin-left:%1px;margin-right:%2px;margin-top:%3px;")
        .arg(number(indent.left), number(indent.right), number(above));
}

QString backgroundOf(const Element& element)
{
    const QColor color = lookOf(element).color;
    return color.isValid() ? QStringLiteral("background-color:%1;").arg(color.name()) : QString();
}

QString cellOf(qreal width, qreal above, qreal below)
{
    return QStringLiteral("<td width=%1 style=\"padding-top:%2px;padding-bottom:%3px\">")
        .arg(number(width), number(std::max(above, 0.0)), number(below));
}

class HtmlWriter {
public:
    HtmlCard writeCard(const Element& card);

private:
    void write(const Element& element, const Indent& indent);
    void writeText(const Element& element, const Indent& indent);
    void writeLabel(const Element& element, const Indent& indent);
    void writeSpans(const Text& text);
    void beginTable(const Element& element, const Indent& indent);
    void writePicture(const Element& element, const Indent& indent);
    void writeLeaf(const Element& element, const Indent& indent);
    void writeColumn(const Element& element, const Indent& indent);
    void writeTable(const Element& element, const Indent& indent);
    void writeCell(const Element& column);
    void writeCells(const Element& row);
    qreal takeAbove();

    QString html_;
    qreal top_ = 0;
    // The free height above what comes next.
    qreal above_ = 0;
};

HtmlCard HtmlWriter::writeCard(const Element& card)
{
    writeColumn(card, {});
    return {html_, top_, above_, lookOf(card).color};
}

// A document drops the free height above its first paragraph.
qreal HtmlWriter::takeAbove()
{
    const qreal above = std::exchange(above_, 0);
    if (!html_.isEmpty())
        return above;
    top_ = above;
    return 0;
}

void HtmlWriter::write(const Element& element, const Indent& indent)
{
    if (element.text && element.text->isLabel)
        writeLabel(element, indent);
    else if (element.text)
        writeText(element, indent);
    else if (element.picture)
        writePicture(element, indent);
    else if (element.children.empty())
        writeLeaf(element, indent);
    else if (element.flow.isRow || lookOf(element).color.isValid())
        writeTable(element, indent);
    else
        writeColumn(element, indent);
}

void HtmlWriter::writeText(const Element& element, const Indent& indent)
{
    const Text& text = *element.text;
    html_ += QStringLiteral("<p align=%1 style=\"%2white-space:%3;%4\">")
                 .arg(alignmentName(text.alignment), styleOf(indent, takeAbove()),
                      text.lineCount > 1 ? QStringLiteral("pre-wrap") : QStringLiteral("pre"),
                      cssOf(text.font, text.color));
    writeSpans(text);
    html_ += QStringLiteral("</p>");
}

void HtmlWriter::writeSpans(const Text& text)
{
    int end = 0;
    for (const Span& span : text.spans) {
        if (span.start < end)
            continue;
        html_ += escaped(text.shown.mid(end, span.start - end))
            + QStringLiteral("<span style=\"%1\">").arg(cssOf(span.font, span.color))
            + escaped(text.shown.mid(span.start, span.length)) + QStringLiteral("</span>");
        end = span.start + span.length;
    }
    html_ += escaped(text.shown.mid(end));
}

void HtmlWriter::writePicture(const Element& element, const Indent& indent)
{
    const QRectF& target = element.picture->painted.target;
    const Indent inside {indent.left + target.x(), indent.right};
    html_ += QStringLiteral("<p style=\"%1\"><img src=\"%2\" width=%3 height=%4></p>")
                 .arg(styleOf(inside, takeAbove() + target.y()), element.picture->file,
                      number(target.width()), number(target.height()));
}

// Free height, or a table of one cell that is as high.
void HtmlWriter::writeLeaf(const Element& element, const Indent& indent)
{
    if (!lookOf(element).color.isValid()) {
        above_ += element.rect.height();
        return;
    }
    beginTable(element, indent);
    // An empty paragraph takes two pixels.
    html_ += cellOf(element.rect.width(), element.rect.height() - 2, 0)
        + QStringLiteral("</td></tr></table>");
}

// Nothing but what is in it: tables inside of tables take long.
void HtmlWriter::writeColumn(const Element& element, const Indent& indent)
{
    const QMarginsF& paddings = element.flow.paddings;
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        const Flow::Place& place = element.flow.places[i];
        above_ += place.top;
        write(element.children[i],
              {indent.left + paddings.left() + place.left, indent.right + paddings.right()});
    }
    above_ += paddings.bottom();
}

void HtmlWriter::beginTable(const Element& element, const Indent& indent)
{
    html_ +=
        QStringLiteral("<table cellspacing=0 cellpadding=0 width=%1 style=\"%2%3\"><tr>")
            .arg(number(element.rect.width()), styleOf(indent, takeAbove()), backgroundOf(element));
}

void HtmlWriter::writeTable(const Element& element, const Indent& indent)
{
    beginTable(element, indent);
    if (element.flow.isRow)
        writeCells(element);
    else
        writeCell(element);
    html_ += QStringLiteral("</tr></table>");
    above_ = 0;
}

// In the middle of a table of one cell.
void HtmlWriter::writeLabel(const Element& element, const Indent& indent)
{
    const qreal textHeight = QFontMetricsF(element.text->font).height();
    const qreal padding = (element.rect.height() - textHeight) / 2;
    beginTable(element, indent);
    html_ += cellOf(element.rect.width(), padding, padding);
    writeText(element, {});
    html_ += QStringLiteral("</td></tr></table>");
}

// A column. Free heights at the ends of a cell are its paddings.
void HtmlWriter::writeCell(const Element& column)
{
    const qreal above = column.flow.places.front().top;
    html_ += cellOf(column.rect.width(), above, column.flow.paddings.bottom());
    above_ = -above;
    writeColumn(column, {});
    html_ += QStringLiteral("</td>");
}

void HtmlWriter::writeCells(const Element& row)
{
    const QMarginsF& paddings = row.flow.paddings;
    qreal end = 0;
    for (std::size_t i = 0; i < row.children.size(); ++i) {
        const Flow::Place& place = row.flow.places[i];
        const Element& child = row.children[i];
        const qreal width = place.left + child.rect.width();
        end += width;
        html_ += cellOf(width, paddings.top() + place.top, paddings.bottom());
        above_ = 0;
        write(child, {place.left, 0});
        html_ += QStringLiteral("</td>");
    }
    if (row.rect.width() - end >= 1)
        html_ += QStringLiteral("<td width=%1></td>").arg(number(row.rect.width() - end));
}

} // namespace

HtmlCard htmlOf(const Element& card)
{
    return HtmlWriter().writeCard(card);
}

} // namespace bench
