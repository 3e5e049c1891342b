#include "view/ItemTree.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace plix::tool {
namespace {

constexpr int kItemRole = Qt::UserRole; // the index of the item
constexpr int kMaximumWords = 40;
constexpr int kIndentation = 12; // boxes are nested deeply

QString typeOf(const ShownItem& item)
{
    return QString::fromUtf8(item.source.format.type.data(),
                             static_cast<int>(item.source.format.type.size()));
}

// What tells an item from its neighbours.
QString titleOf(const ShownItem& item)
{
    const std::string_view layout = item.source.text("layout");
    QString words =
        item.isText() || item.source.isA("button") ? item.text().simplified() : QString();
    if (words.size() > kMaximumWords)
        words = words.left(kMaximumWords) + QChar(0x2026);
    if (item.source.isA("box"))
        words = QString::fromUtf8(layout.data(), static_cast<int>(layout.size()));
    if (!item.source.zone.empty())
        words.prepend(
            QString::fromUtf8(item.source.zone.data(), static_cast<int>(item.source.zone.size()))
            + QLatin1Char(' '));
    return (typeOf(item) + QLatin1Char(' ') + words).trimmed();
}

void setRectangle(QTreeWidgetItem& row, const QRectF& rect)
{
    int column = 1;
    for (const double value : {rect.x(), rect.y(), rect.width(), rect.height()}) {
        row.setText(column, QString::number(value));
        row.setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        ++column;
    }
}

QRectF rectangleIn(const QGraphicsObject& item)
{
    return item.mapRectToParent(item.boundingRect());
}

} // namespace

ItemTree::ItemTree(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderLabels({QStringLiteral("Item"), QStringLiteral("x"), QStringLiteral("y"),
                     QStringLiteral("Width"), QStringLiteral("Height")});
    setUniformRowHeights(true);
    setIndentation(kIndentation);
    setMouseTracking(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    setAccessibleName(QStringLiteral("Items"));
    connect(this, &QTreeWidget::itemEntered, this, [this](QTreeWidgetItem* row) {
        const ShownItem* const item = itemOf(row);
        Q_EMIT hovered(item ? item->object : nullptr);
    });
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* row) { Q_EMIT picked(itemOf(row)); });
}

void ItemTree::setItems(const QGraphicsObject* card,
                        const std::vector<std::unique_ptr<ShownItem>>& items)
{
    const QSignalBlocker blocker(this);
    clear();
    items_.clear();
    rows_.clear();
    marked_ = nullptr;
    if (!card)
        return;
    auto* const root = new QTreeWidgetItem(this, {QStringLiteral("bubble")});
    setRectangle(*root, card->boundingRect());
    rows_.insert(card, root);
    for (const auto& item : items)
        add(*root, *item);
    expandAll();
}

// Recursive: the library nests boxes a few dozen levels deep at most.
void ItemTree::add(QTreeWidgetItem& parent, const ShownItem& item)
{
    auto* const row = new QTreeWidgetItem(&parent, {titleOf(item)});
    row->setData(0, kItemRole, static_cast<int>(items_.size()));
    items_.push_back(&item);
    rows_.insert(item.object, row);
    setRectangle(*row, rectangleIn(*item.object));
    for (const auto& child : item.children)
        add(*row, *child);
}

const ShownItem* ItemTree::selected() const
{
    return itemOf(currentItem());
}

const ShownItem* ItemTree::itemOf(const QTreeWidgetItem* row) const
{
    const QVariant index = row ? row->data(0, kItemRole) : QVariant();
    return index.isValid() ? items_.at(static_cast<std::size_t>(index.toInt())) : nullptr;
}

void ItemTree::select(const QGraphicsObject* object)
{
    selectRow(rows_.value(object));
}

void ItemTree::selectByte(int byte)
{
    const ShownItem* innermost = nullptr;
    for (const ShownItem* item : items_) {
        // An item inside of another one comes after it.
        const TextRange& range = item->source.node.range;
        if (range.begin <= byte && byte < range.end)
            innermost = item;
    }
    selectRow(innermost ? rows_.value(innermost->object) : nullptr);
}

void ItemTree::selectRow(QTreeWidgetItem* row)
{
    const QSignalBlocker blocker(this);
    setCurrentItem(row);
    if (row)
        scrollToItem(row);
}

void ItemTree::mark(const QGraphicsObject* object)
{
    QTreeWidgetItem* const row = rows_.value(object);
    if (row == marked_)
        return;
    const auto setBackground = [this](QTreeWidgetItem* marked, const QBrush& brush) {
        for (int column = 0; marked && column < columnCount(); ++column)
            marked->setBackground(column, brush);
    };
    setBackground(marked_, {});
    setBackground(row, palette().brush(QPalette::Midlight));
    marked_ = row;
    if (row)
        scrollToItem(row);
}

void ItemTree::leaveEvent(QEvent* event)
{
    QTreeWidget::leaveEvent(event);
    Q_EMIT hovered(nullptr);
}

} // namespace plix::tool
