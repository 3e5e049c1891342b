#include "check/ShownItem.h"

#include "CardObjects.h"

#include <QGraphicsLayoutItem>
#include <QGraphicsObject>
#include <QVariant>

#include <algorithm>
#include <array>

namespace plix::tool {
namespace {

struct ClassName {
    std::string_view type;
    const char* name;
};

constexpr std::array kClasses = std::to_array<ClassName>({
    {"box", "PlixBoxUI"},
    {"text", "PlixTextUI"},
    {"image", "PlixImageUI"},
    {"icon", "PlixIconUI"},
    {"button", "PlixButtonUI"},
    {"separator", "PlixSeparatorUI"},
    {"spacer", "PlixSpacerUI"},
    {"filler", "PlixFillerUI"},
});

// Takes the objects of a box one by one, for the JSON elements of the box.
class ObjectSequence {
public:
    explicit ObjectSequence(const QGraphicsItem& parent)
        : objects_(childObjects(parent))
    {
    }

    // The object of a component; null if it was not built.
    QGraphicsObject* take(std::string_view type)
    {
        const auto* const row =
            std::find_if(kClasses.begin(), kClasses.end(),
                         [type](const auto& each) { return each.type == type; });
        const bool isNext = row != kClasses.end() && next_ < objects_.size()
            && objects_.at(next_)->inherits(row->name);
        return isNext ? objects_.at(next_++) : nullptr;
    }

private:
    QVector<QGraphicsObject*> objects_;
    int next_ = 0;
};

using Items = std::vector<std::unique_ptr<ShownItem>>;

void addItem(Items& items, ObjectSequence& objects, const JsonNode& node, const CardItem& place);

void addChildren(ShownItem& box)
{
    const JsonMember* const contents = box.source.node.find("contents");
    if (!contents || !box.source.isA("box"))
        return;
    ObjectSequence objects(*box.object);
    int index = 0;
    for (const JsonNode& node : contents->value.elements) {
        const QString path = elementPath(memberPath(box.source.path, "contents"), index);
        addItem(box.children, objects, node,
                {node, box.source.format, path, &box.source, index, {}});
        ++index;
    }
    for (const auto& child : box.children)
        child->box = &box;
}

// Recursive: the library nests boxes a few dozen levels deep at most.
void addItem(Items& items, ObjectSequence& objects, const JsonNode& node, const CardItem& place)
{
    const PlixFormatComponent* const format = FindComponentFormat(textOf(node, "type"));
    QGraphicsObject* const object = format ? objects.take(format->type) : nullptr;
    if (!object)
        return;
    items.push_back(std::make_unique<ShownItem>(ShownItem {
        object, {node, *format, place.path, place.box, place.index, place.zone}, nullptr, {}}));
    addChildren(*items.back());
}

} // namespace

QRectF ShownItem::place() const
{
    const auto* const layout = dynamic_cast<const QGraphicsLayoutItem*>(object);
    const QGraphicsItem* const parent = object->parentItem();
    return layout && parent ? parent->mapRectToScene(layout->geometry()) : painted();
}

QRectF ShownItem::painted() const
{
    return object->mapRectToScene(object->boundingRect());
}

bool ShownItem::isText() const
{
    return source.isA("text");
}

QString ShownItem::text() const
{
    return object->property(isText() ? "plainText" : "label").toString();
}

double ShownItem::neededWidth() const
{
    return object->property("neededWidth").toDouble();
}

std::vector<std::unique_ptr<ShownItem>> shownItems(const QGraphicsItem& card, const JsonNode& root)
{
    Items items;
    ObjectSequence objects(card);
    for (const std::string_view zone : zoneNames()) {
        if (const JsonMember* const member = root.find(zone))
            addItem(items, objects, member->value,
                    {member->value, BubbleFormat(), memberPath({}, zone), nullptr, 0, zone});
    }
    return items;
}

} // namespace plix::tool
