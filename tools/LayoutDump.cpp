#include "LayoutDump.h"

#include "CardObjects.h"

#include <QFileInfo>
#include <QFont>
#include <QGraphicsObject>
#include <QJsonArray>
#include <QJsonDocument>
#include <QString>
#include <QVariant>

#include <cmath>
#include <utility>

namespace plix::tool {
namespace {

QByteArray jsonString(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray {text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

// Two decimals: smaller differences are invisible, and differ between machines.
QByteArray rounded(double value)
{
    if (!std::isfinite(value))
        return "null";
    const double hundredths = std::round(value * 100);
    // Adding 0.0 turns -0.0 into 0.0.
    QByteArray digits = QByteArray::number(hundredths / 100 + 0.0, 'f', 2);
    while (digits.endsWith('0'))
        digits.chop(1);
    if (digits.endsWith('.'))
        digits.chop(1);
    return digits;
}

class LayoutWriter {
public:
    void write(const QGraphicsObject& item, int depth);

    QByteArray takeText() { return std::move(text_); }

private:
    void writeRectangle(const QGraphicsObject& item);
    void writeText(const QGraphicsObject& item);
    void writeLabel(const QGraphicsObject& item);
    void writePicture(const QGraphicsObject& item);
    void writeChildren(const QGraphicsObject& item, int depth);
    void member(const char* name, const QByteArray& value);

    QByteArray text_;
};

// Recursive: the library nests boxes a few dozen levels deep at most.
void LayoutWriter::write(const QGraphicsObject& item, int depth)
{
    text_ += QByteArray(2 * depth, ' ')
        + "{\"type\": " + jsonString(QString::fromLatin1(item.metaObject()->className()));
    writeRectangle(item);
    if (item.property("shownLineCount").isValid())
        writeText(item);
    if (item.property("label").isValid())
        writeLabel(item);
    if (item.property("pictureFile").isValid())
        writePicture(item);
    writeChildren(item, depth);
    text_ += '}';
}

void LayoutWriter::writeRectangle(const QGraphicsObject& item)
{
    const QRectF rect = item.mapRectToParent(item.boundingRect());
    member("x", rounded(rect.x()));
    member("y", rounded(rect.y()));
    member("width", rounded(rect.width()));
    member("height", rounded(rect.height()));
}

void LayoutWriter::writeText(const QGraphicsObject& item)
{
    member("text", jsonString(item.property("plainText").toString()));
    member("fontSize", QByteArray::number(item.property("font").value<QFont>().pixelSize()));
    member("lines", QByteArray::number(item.property("shownLineCount").toInt()));
    if (item.property("elided").toBool())
        member("elided", "true");
}

void LayoutWriter::writeLabel(const QGraphicsObject& item)
{
    const QString label = item.property("label").toString();
    member("label", jsonString(label));
    member("fontSize", QByteArray::number(item.property("labelFont").value<QFont>().pixelSize()));
    if (item.property("shownLabel").toString() != label)
        member("elided", "true");
}

// Without the folder, which differs between machines.
void LayoutWriter::writePicture(const QGraphicsObject& item)
{
    const QString file = item.property("pictureFile").toString();
    if (!file.isEmpty())
        member("picture", jsonString(QFileInfo(file).fileName()));
}

void LayoutWriter::writeChildren(const QGraphicsObject& item, int depth)
{
    const QVector<QGraphicsObject*> children = childObjects(item);
    if (children.isEmpty())
        return;
    text_ += ", \"children\": [\n";
    for (QGraphicsObject* child : children) {
        write(*child, depth + 1);
        text_ += child == children.last() ? "\n" : ",\n";
    }
    text_ += QByteArray(2 * depth, ' ') + ']';
}

void LayoutWriter::member(const char* name, const QByteArray& value)
{
    text_ += QByteArray(", \"") + name + "\": " + value;
}

} // namespace

QByteArray dumpLayout(const QGraphicsItem& card)
{
    const QGraphicsObject* object = card.toGraphicsObject();
    if (!object)
        return "null\n";
    LayoutWriter writer;
    writer.write(*object, 0);
    return writer.takeText() + '\n';
}

} // namespace plix::tool
