#include "LabelMaker.h"

#include "BoxLook.h"
#include "DecodedPictures.h"
#include "Element.h"

#include <QGraphicsLinearLayout>
#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QtMath>

namespace bench {
namespace {

std::unique_ptr<QGraphicsWidget> proxyOf(std::unique_ptr<QLabel> label)
{
    auto proxy = std::make_unique<QGraphicsProxyWidget>();
    proxy->setWidget(label.release());
    return proxy;
}

QPalette paletteWith(QPalette::ColorRole role, const QColor& color)
{
    QPalette palette;
    palette.setColor(role, color);
    return palette;
}

std::unique_ptr<QLabel> makeLabel()
{
    auto label = std::make_unique<QLabel>();
    label->setAttribute(Qt::WA_TranslucentBackground);
    return label;
}

QString richText(const Text& text)
{
    QString html;
    int end = 0;
    for (const Span& span : text.spans) {
        if (span.start < end)
            continue;
        html += text.shown.mid(end, span.start - end).toHtmlEscaped()
            + QStringLiteral("<span style=\"color:%1;font-size:%2px;font-weight:%3\">")
                  .arg(span.color.name())
                  .arg(span.font.pixelSize())
                  .arg(span.font.bold() ? 700 : 400)
            + text.shown.mid(span.start, span.length).toHtmlEscaped() + QStringLiteral("</span>");
        end = span.start + span.length;
    }
    return html + text.shown.mid(end).toHtmlEscaped();
}

// A button.
void showPlate(QLabel& label, const Element& element)
{
    const BoxLook look = lookOf(element);
    if (look.color.isValid()) {
        QPalette palette = label.palette();
        palette.setColor(QPalette::Window, look.color);
        label.setPalette(palette);
        label.setAttribute(Qt::WA_TranslucentBackground, false);
        label.setAttribute(Qt::WA_NoSystemBackground, false);
        label.setAutoFillBackground(true);
    }
    label.setAlignment(Qt::AlignCenter);
    label.setFixedSize(element.rect.size().toSize());
}

std::unique_ptr<QGraphicsWidget> makeText(const Element& element)
{
    const Text& text = *element.text;
    std::unique_ptr<QLabel> label = makeLabel();
    label->setTextFormat(text.spans.empty() ? Qt::PlainText : Qt::RichText);
    label->setFont(text.font);
    label->setPalette(paletteWith(QPalette::WindowText, text.color));
    label->setAlignment(text.alignment | Qt::AlignTop);
    label->setWordWrap(text.lineCount > 1);
    label->setText(text.spans.empty() ? text.shown : richText(text));
    const int width = qCeil(text.width);
    label->setFixedSize(
        width, text.lineCount > 1 ? label->heightForWidth(width) : label->sizeHint().height());
    if (text.isLabel)
        showPlate(*label, element);
    return proxyOf(std::move(label));
}

std::unique_ptr<QGraphicsWidget> makePicture(const Element& element)
{
    std::unique_ptr<QLabel> label = makeLabel();
    DecodedPictures pictures;
    const QSize size = element.picture->painted.target.size().toSize();
    label->setPixmap(QPixmap::fromImage(pictures.scaled(element.picture->file, size)));
    label->setAlignment(Qt::AlignCenter);
    label->setFixedSize(element.rect.size().toSize());
    return proxyOf(std::move(label));
}

std::unique_ptr<QGraphicsWidget> makeGround(const Element& element)
{
    auto widget = std::make_unique<QGraphicsWidget>();
    const BoxLook look = lookOf(element);
    if (look.color.isValid()) {
        widget->setAutoFillBackground(true);
        widget->setPalette(paletteWith(QPalette::Window, look.color));
    }
    return widget;
}

// Linear layouts have spacings between items; where an item stands across them
// is a matter of alignment alone.
void addChildren(QGraphicsLinearLayout& layout, const Element& element)
{
    const Flow& flow = element.flow;
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        QGraphicsWidget* child = makeLabels(element.children[i]).release();
        layout.addItem(child);
        layout.setAlignment(child, Qt::AlignLeft | Qt::AlignTop);
        const Flow::Place& place = flow.places[i];
        if (i > 0)
            layout.setItemSpacing(static_cast<int>(i) - 1, flow.isRow ? place.left : place.top);
    }
}

QMarginsF marginsOf(const Flow& flow)
{
    QMarginsF margins = flow.paddings;
    const Flow::Place& first = flow.places.front();
    if (flow.isRow)
        margins.setLeft(margins.left() + first.left);
    else
        margins.setTop(margins.top() + first.top);
    return margins;
}

// Placed without a layout.
void addPile(QGraphicsWidget& widget, const Element& element)
{
    for (const Element& child : element.children) {
        QGraphicsWidget* item = makeLabels(child).release();
        item->setParentItem(&widget);
        item->setGeometry(child.rect);
    }
    widget.setMinimumSize(element.rect.size());
    widget.setMaximumSize(element.rect.size());
}

std::unique_ptr<QGraphicsWidget> makeBox(const Element& element)
{
    std::unique_ptr<QGraphicsWidget> widget = makeGround(element);
    if (element.flow.isPile) {
        addPile(*widget, element);
        return widget;
    }
    auto* layout = new QGraphicsLinearLayout(element.flow.isRow ? Qt::Horizontal : Qt::Vertical);
    layout->setSpacing(0);
    const QMarginsF margins = marginsOf(element.flow);
    layout->setContentsMargins(margins.left(), margins.top(), margins.right(), margins.bottom());
    addChildren(*layout, element);
    widget->setLayout(layout);
    widget->setMinimumWidth(element.rect.width());
    return widget;
}

} // namespace

std::unique_ptr<QGraphicsWidget> makeLabels(const Element& element)
{
    if (element.text)
        return makeText(element);
    if (element.picture)
        return makePicture(element);
    if (!element.children.empty())
        return makeBox(element);
    std::unique_ptr<QGraphicsWidget> leaf = makeGround(element);
    leaf->setMinimumSize(element.rect.size());
    leaf->setMaximumSize(element.rect.size());
    return leaf;
}

} // namespace bench
