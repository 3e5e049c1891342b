#include "view/ItemDetails.h"

#include "FormatText.h"

#include <QFileInfo>
#include <QFont>
#include <QGraphicsObject>
#include <QHeaderView>
#include <QVariant>

#include <array>

namespace plix::tool {
namespace {

void addRow(QTreeWidgetItem& group, const QString& name, const QString& value)
{
    new QTreeWidgetItem(&group, {name, value});
}

QString pair(const char* separator, double first, double second)
{
    return QString::number(first) + QString::fromUtf8(separator) + QString::number(second);
}

QString fontText(const QFont& font)
{
    return QStringLiteral("%1, %2 pixels%3%4")
        .arg(font.family(), QString::number(font.pixelSize()),
             font.bold() ? QStringLiteral(", bold") : QString(),
             font.italic() ? QStringLiteral(", italic") : QString());
}

QString valueText(const QVariant& value)
{
    return value.userType() == QMetaType::QFont ? fontText(value.value<QFont>()) : value.toString();
}

// The properties by which items of the library tell what they show.
struct Property {
    const char* name;
    const char* title;
};

constexpr std::array kProperties = std::to_array<Property>({
    {"plainText", "Text"},
    {"shownLineCount", "Lines"},
    {"elided", "Cut"},
    {"font", "Font"},
    {"label", "Label"},
    {"shownLabel", "Shown label"},
    {"labelFont", "Font"},
    {"pictureFile", "Picture"},
});

} // namespace

ItemDetails::ItemDetails(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
    setUniformRowHeights(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    setAccessibleName(QStringLiteral("Details of the item"));
}

void ItemDetails::show(const ShownItem* item, const QByteArray& json)
{
    clear();
    if (!item)
        return;
    addPlace(*item);
    addLook(*item);
    addKeys(*item, json);
    expandAll();
}

QTreeWidgetItem& ItemDetails::addGroup(const QString& title)
{
    auto* const group = new QTreeWidgetItem(this, {title});
    group->setFirstColumnSpanned(true);
    return *group;
}

void ItemDetails::addPlace(const ShownItem& item)
{
    const QRectF inBox = item.object->mapRectToParent(item.object->boundingRect());
    const QGraphicsItem* const card = item.object->topLevelItem();
    const QRectF inCard = item.object->mapRectToItem(card, item.object->boundingRect());
    QTreeWidgetItem& group = addGroup(QStringLiteral("Place"));
    addRow(group, QStringLiteral("Path"), item.source.path);
    addRow(group, QStringLiteral("In its box"), pair(", ", inBox.x(), inBox.y()));
    addRow(group, QStringLiteral("In the card"), pair(", ", inCard.x(), inCard.y()));
    addRow(group, QStringLiteral("Width × height"), pair(" × ", inBox.width(), inBox.height()));
}

void ItemDetails::addLook(const ShownItem& item)
{
    QTreeWidgetItem& group = addGroup(QStringLiteral("Look"));
    for (const Property& property : kProperties) {
        const QVariant value = item.object->property(property.name);
        if (value.isValid())
            addRow(group, QString::fromLatin1(property.title), valueText(value));
    }
    if (group.childCount() == 0)
        delete &group;
}

// The given ones first, then the others with what they stand for.
void ItemDetails::addKeys(const ShownItem& item, const QByteArray& json)
{
    constexpr int kMaximumLength = 200;
    QTreeWidgetItem& given = addGroup(QStringLiteral("Given keys"));
    QTreeWidgetItem& defaults = addGroup(QStringLiteral("Defaults"));
    for (const PlixFormatKey& key : item.source.format.keys) {
        const JsonMember* const member = item.source.node.find(key.name);
        const QString name = toQString(key.name);
        if (member) {
            const TextRange& range = member->value.range;
            const QByteArray value = json.mid(range.begin, range.end - range.begin);
            addRow(given, name, QString::fromUtf8(value.left(kMaximumLength)).simplified());
        } else if (!key.fallback.empty()) {
            addRow(defaults, name, toQString(key.fallback));
        }
    }
    for (QTreeWidgetItem* group : {&given, &defaults}) {
        if (group->childCount() == 0)
            delete group;
    }
}

} // namespace plix::tool
