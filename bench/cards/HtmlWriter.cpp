#include "HtmlWriter.h"

#include "BoxLook.h"
#include "Element.h"

#include <QUrl>

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

class HtmlWriter {
public:
    // With a free height above it.
    void write(const Element& element, qreal above);

    QString takeHtml() { return std::move(html_); }

private:
    void writeText(const Element& element, qreal above);
    void writeSpans(const Text& text);
    void writePicture(const Element& element, qreal above);
    void writeBox(const Element& element, qreal above);
    void writeRow(const Element& element);
    void writeColumn(const Element& element);
    void writeGround(const Element& element, qreal above);

    QString html_;
};

bool isFree(const Element& element)
{
    return element.children.empty() && !element.text && !element.picture
        && !lookOf(element).color.isValid();
}

void HtmlWriter::write(const Element& element, qreal above)
{
    if (element.text)
        writeText(element, above);
    else if (element.picture)
        writePicture(element, above);
    else if (!element.children.empty())
        writeBox(element, above);
    else
        writeGround(element, above);
}

void HtmlWriter::writeText(const Element& element, qreal above)
{
    const Text& text = *element.text;
    html_ += QStringLiteral("<p align=%1 style=\"margin-top:%2px;white-space:%3;%4\">")
                 .arg(alignmentName(text.alignment), number(above),
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

void HtmlWriter::writePicture(const Element& element, qreal above)
{
    const QRectF& target = element.picture->painted.target;
    html_ += QStringLiteral("<p style=\"margin-top:%1px;margin-left:%2px\">"
                            "<img src=\"%3\" width=%4 height=%5></p>")
                 .arg(number(above + target.y()), number(target.x()), element.picture->file,
                      number(target.width()), number(target.height()));
}

// A paragraph as high as the element.
void HtmlWriter::writeGround(const Element& element, qreal above)
{
    const BoxLook look = lookOf(element);
    if (!look.color.isValid())
        return;
    html_ += QStringLiteral("<p style=\"margin-top:%1px;font-size:1px;line-height:%2px;"
                            "background-color:%3\">&#160;</p>")
                 .arg(number(above), number(element.rect.height()), look.color.name());
}

void HtmlWriter::writeBox(const Element& element, qreal above)
{
    const BoxLook look = lookOf(element);
    const QString ground =
        look.color.isValid() ? QStringLiteral(" bgcolor=") + look.color.name() : QString();
    html_ += QStringLiteral("<table cellspacing=0 cellpadding=0 width=%1 style=\"margin-top:%2px\""
                            "%3><tr>")
                 .arg(number(element.rect.width()), number(above), ground);
    if (element.flow.isRow)
        writeRow(element);
    else
        writeColumn(element);
    html_ += QStringLiteral("</tr></table>");
}

void HtmlWriter::writeRow(const Element& element)
{
    const QMarginsF& paddings = element.flow.paddings;
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        const Flow::Place& place = element.flow.places[i];
        const Element& child = element.children[i];
        html_ += QStringLiteral("<td width=%1 style=\"padding-left:%2px;padding-bottom:%3px\">")
                     .arg(number(place.left + child.rect.width()), number(place.left),
                          number(paddings.bottom()));
        write(child, paddings.top() + place.top);
        html_ += QStringLiteral("</td>");
    }
    html_ += QStringLiteral("<td></td>");
}

void HtmlWriter::writeColumn(const Element& element)
{
    const QMarginsF& paddings = element.flow.paddings;
    html_ +=
        QStringLiteral("<td style=\"padding-left:%1px;padding-right:%2px;padding-bottom:%3px\">")
            .arg(number(paddings.left()), number(paddings.right()), number(paddings.bottom()));
    qreal above = 0;
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        const Element& child = element.children[i];
        above += element.flow.places[i].top;
        if (isFree(child)) {
            above += child.rect.height();
            continue;
        }
        write(child, above);
        above = 0;
    }
    html_ += QStringLiteral("</td>");
}

} // namespace

QString htmlOf(const Element& card)
{
    HtmlWriter writer;
    writer.write(card, 0);
    return writer.takeHtml();
}

} // namespace bench
