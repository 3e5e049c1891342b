#include "QmlWriter.h"

#include "BoxLook.h"
#include "Element.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

namespace bench {
namespace {

QString quoted(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray {text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QString number(qreal value)
{
    return QString::number(value, 'f', 2);
}

QString alignmentName(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return QStringLiteral("Text.AlignHCenter");
    return alignment & Qt::AlignRight ? QStringLiteral("Text.AlignRight")
                                      : QStringLiteral("Text.AlignLeft");
}

QString spanMarkup(const Text& text)
{
    QString markup;
    int end = 0;
    for (const Span& span : text.spans) {
        if (span.start < end)
            continue;
        const QString weight =
            span.font.bold() ? QStringLiteral("<b>%1</b>") : QStringLiteral("%1");
        markup += text.shown.mid(end, span.start - end).toHtmlEscaped()
            + QStringLiteral("<font color=\"%1\">").arg(span.color.name())
            + weight.arg(text.shown.mid(span.start, span.length).toHtmlEscaped())
            + QStringLiteral("</font>");
        end = span.start + span.length;
    }
    return markup + text.shown.mid(end).toHtmlEscaped();
}

class QmlWriter {
public:
    // `place` is what the layout around it has to know.
    void write(const Element& element, const QString& place);

    QString takeText() { return std::move(text_); }

private:
    void writeText(const Text& text, const QString& place);
    void writePlate(const Element& element, const QString& place);
    void writePicture(const Element& element, const QString& place);
    void writeLeaf(const Element& element, const QString& place);
    void writeBox(const Element& element, const QString& place);
    void writeLayout(const Element& element, const QString& place);
    void writePile(const Element& element, const QString& place);

    QString text_;
    int layouts_ = 0;
};

QString sizeFor(const QSizeF& size)
{
    return QStringLiteral("Layout.preferredWidth: %1; Layout.preferredHeight: %2; ")
        .arg(number(size.width()), number(size.height()));
}

// Paddings are margins of the children.
QString placeIn(const Flow& flow, std::size_t index, std::size_t count)
{
    const bool isLast = index + 1 == count;
    const QMarginsF& paddings = flow.paddings;
    const Flow::Place& place = flow.places[index];
    const qreal left = place.left + (flow.isRow ? 0 : paddings.left());
    const qreal top = place.top + (flow.isRow ? paddings.top() : 0);
    const qreal right = flow.isRow && !isLast ? 0 : paddings.right();
    const qreal bottom = flow.isRow || isLast ? paddings.bottom() : 0;
    const QString width =
        place.isStretched && !flow.isRow ? QStringLiteral("Layout.fillWidth: true; ") : QString();
    return width
        + QStringLiteral("Layout.alignment: Qt.AlignLeft | Qt.AlignTop; Layout.leftMargin: %1; "
                         "Layout.topMargin: %2; Layout.rightMargin: %3; Layout.bottomMargin: %4; ")
              .arg(number(left), number(top), number(right), number(bottom));
}

void QmlWriter::write(const Element& element, const QString& place)
{
    if (element.text && element.text->isLabel)
        writePlate(element, place);
    else if (element.text)
        writeText(
            *element.text,
            place + QStringLiteral("Layout.preferredWidth: %1; ").arg(number(element.text->width)));
    else if (element.picture)
        writePicture(element, place);
    else if (element.children.empty())
        writeLeaf(element, place);
    else
        writeBox(element, place);
}

void QmlWriter::writeText(const Text& text, const QString& place)
{
    const bool hasSpans = !text.spans.empty();
    text_ += QStringLiteral("Text { %1horizontalAlignment: %2; ")
                 .arg(place, alignmentName(text.alignment));
    text_ += QStringLiteral("font.family: %1; font.pixelSize: %2; font.bold: %3; font.italic: %4; ")
                 .arg(quoted(text.font.family()))
                 .arg(text.font.pixelSize())
                 .arg(QLatin1String(text.font.bold() ? "true" : "false"),
                      QLatin1String(text.font.italic() ? "true" : "false"));
    text_ += QStringLiteral("color: %1; textFormat: %2; wrapMode: %3; text: %4 }\n")
                 .arg(quoted(text.color.name()),
                      QLatin1String(hasSpans ? "Text.StyledText" : "Text.PlainText"),
                      QLatin1String(text.lineCount > 1 ? "Text.Wrap" : "Text.NoWrap"),
                      quoted(hasSpans ? spanMarkup(text) : text.shown));
}

// A button.
void QmlWriter::writePlate(const Element& element, const QString& place)
{
    const BoxLook look = lookOf(element);
    const QColor color = look.color.isValid() ? look.color : QColor(Qt::transparent);
    text_ += QStringLiteral("Rectangle { %1%2color: %3; radius: %4\n")
                 .arg(place, sizeFor(element.rect.size()), quoted(color.name(QColor::HexArgb)),
                      number(look.radius));
    writeText(*element.text,
              QStringLiteral("anchors.fill: parent; verticalAlignment: "
                             "Text.AlignVCenter; "));
    text_ += QStringLiteral("}\n");
}

void QmlWriter::writePicture(const Element& element, const QString& place)
{
    const QRectF& target = element.picture->painted.target;
    text_ += QStringLiteral("Item { %1%2Image { x: %3; y: %4; width: %5; height: %6; cache: false; "
                            "fillMode: Image.PreserveAspectCrop; source: %7 } }\n")
                 .arg(place, sizeFor(element.rect.size()), number(target.x()), number(target.y()),
                      number(target.width()), number(target.height()),
                      quoted(QUrl::fromLocalFile(element.picture->file).toString()));
}

void QmlWriter::writeLeaf(const Element& element, const QString& place)
{
    const BoxLook look = lookOf(element);
    if (look.color.isValid()) {
        text_ += QStringLiteral("Rectangle { %1%2color: %3; radius: %4 }\n")
                     .arg(place, sizeFor(element.rect.size()),
                          quoted(look.color.name(QColor::HexArgb)), number(look.radius));
    } else {
        text_ += QStringLiteral("Item { %1%2}\n").arg(place, sizeFor(element.rect.size()));
    }
}

void QmlWriter::writeBox(const Element& element, const QString& place)
{
    const BoxLook look = lookOf(element);
    if (!look.color.isValid()) {
        writeLayout(
            element,
            place
                + QStringLiteral("Layout.preferredWidth: %1; ").arg(number(element.rect.width())));
        return;
    }
    const QString name = QStringLiteral("l%1").arg(layouts_++);
    text_ += QStringLiteral("Rectangle { %1Layout.preferredWidth: %2; implicitWidth: %2; "
                            "implicitHeight: %3.implicitHeight; color: %4; radius: %5\n")
                 .arg(place, number(element.rect.width()), name,
                      quoted(look.color.name(QColor::HexArgb)), number(look.radius));
    writeLayout(element, QStringLiteral("id: %1; anchors.fill: parent; ").arg(name));
    text_ += QStringLiteral("}\n");
}

void QmlWriter::writePile(const Element& element, const QString& place)
{
    text_ +=
        QStringLiteral("Item { %1implicitHeight: %2\n").arg(place, number(element.rect.height()));
    for (const Element& child : element.children) {
        write(child,
              QStringLiteral("x: %1; y: %2; width: %3; height: %4; ")
                  .arg(number(child.rect.x()), number(child.rect.y()), number(child.rect.width()),
                       number(child.rect.height())));
    }
    text_ += QStringLiteral("}\n");
}

void QmlWriter::writeLayout(const Element& element, const QString& place)
{
    if (element.flow.isPile) {
        writePile(element, place);
        return;
    }
    text_ += QLatin1String(element.flow.isRow ? "RowLayout { " : "ColumnLayout { ") + place
        + QStringLiteral("spacing: 0\n");
    const std::size_t count = element.children.size();
    for (std::size_t i = 0; i < count; ++i)
        write(element.children[i], placeIn(element.flow, i, count));
    text_ += QStringLiteral("}\n");
}

} // namespace

QByteArray qmlOf(const Element& card)
{
    QmlWriter writer;
    writer.write(card, QString());
    return QByteArrayLiteral("import QtQuick 2.15\nimport QtQuick.Layouts 1.15\n")
        + writer.takeText().toUtf8();
}

} // namespace bench
