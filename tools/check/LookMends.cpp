#include "check/LookMends.h"

#include "check/TextMends.h"
#include "check/ValueCheck.h"

#include <QGraphicsObject>
#include <QStringList>
#include <QVariant>

#include <cstddef>

namespace plix::tool {
namespace {

constexpr int kShortText = 16;

const auto& siblings(const ShownItem& item)
{
    return item.box->children;
}

bool isPicture(const ShownItem& item)
{
    return item.source.isA("image") || item.source.isA("icon");
}

bool isColumn(const ShownItem& item)
{
    const std::string_view layout = item.source.text("layout");
    return item.source.isA("box") && layout != "horizontal" && layout != "baseline";
}

bool isShortText(const ShownItem& item)
{
    return item.isText() && item.text().size() <= kShortText && !item.source.flag("wrap");
}

bool growsByDefault(const ShownItem& item)
{
    return !item.source.has("flex") && !item.source.isAbsolute();
}

// Whether the pictures of a row alone are wider than what is inside of the row's box.
bool arePicturesTooWide(const ShownItem& item)
{
    const QRectF box = item.box->place();
    const double padding = siblings(item).front()->place().left() - box.left();
    double width = 0;
    for (const auto& each : siblings(item))
        width += isPicture(*each) ? each->place().width() : 0;
    return width > box.width() - 2 * padding;
}

bool isCut(const ShownItem& item)
{
    return item.object->property("elided").toBool();
}

// What is next to something wider needs a width of its own, and a column none.
QString changeFor(const ShownItem& item)
{
    if (isPicture(item) || isShortText(item))
        return QStringLiteral("\"flex\": 0 in ") + item.source.path;
    if (isColumn(item) && !item.source.has("width"))
        return QStringLiteral("\"width\": \"0px\" in ") + item.source.path;
    return {};
}

// The changes of those items of a row that grow, and for which `isWanted` is true.
template <typename Predicate>
QStringList rowChanges(const ShownItem& item, const Predicate& isWanted)
{
    constexpr int kMaximum = 4;
    QStringList changes;
    for (const auto& each : siblings(item)) {
        const QString change =
            growsByDefault(*each) && isWanted(*each) ? changeFor(*each) : QString();
        if (!change.isEmpty() && changes.size() < kMaximum)
            changes.append(change);
    }
    return changes;
}

QString joined(const QStringList& changes)
{
    return changes.join(QStringLiteral(", and "));
}

// In a row, everything without "flex" grows. What has a width of its own leaves no room
// for the others then.
QString rowMend(const ShownItem& item)
{
    if (arePicturesTooWide(item))
        return QStringLiteral("a smaller \"size\" for the pictures of the row");
    const QStringList changes = rowChanges(item, [](const ShownItem&) { return true; });
    return changes.isEmpty() ? QStringLiteral("fewer or smaller items in the row")
                             : joined(changes);
}

} // namespace

QString nameOf(const ShownItem& item)
{
    const std::string_view type = item.source.format.type;
    return QStringLiteral("the ") + QString::fromUtf8(type.data(), static_cast<int>(type.size()));
}

QString roomMend(const ShownItem& item)
{
    if (item.source.isInRow() && item.box)
        return rowMend(item);
    return QStringLiteral("more room in the box around it");
}

QString placeMend(const ShownItem& item)
{
    if (item.source.isAbsolute())
        return QStringLiteral("smaller offsets, or a smaller item");
    if (item.source.isInRow() && item.box)
        return rowMend(item);
    // The box may be in a row that is too narrow for it.
    if (item.box && item.box->source.isInRow() && item.box->box)
        return rowMend(*item.box);
    return QStringLiteral("a larger \"width\" and \"height\" of the boxes around it, or none");
}

QString overlapMend(const ShownItem& item, bool hasNegativeMargin)
{
    return hasNegativeMargin
        ? QStringLiteral("no negative margin, or \"position\": \"absolute\" if they shall overlap")
        : placeMend(item);
}

bool hasNegativeMargin(const ShownItem& item)
{
    return pixelsIn(item.source.text("margin")).value_or(0) < 0;
}

QString cutMend(const ShownItem& item)
{
    if (item.source.flag("wrap"))
        return QStringLiteral("a shorter text");
    const QString more =
        canWrap(item) ? QStringLiteral("\"wrap\": true") : widthMend(item, item.neededWidth());
    QString wrap = more + QStringLiteral(", or \"wrap\": false if it may be cut");
    if (!item.source.isInRow() || !item.box)
        return wrap;
    const auto isNoText = [](const ShownItem& each) { return !each.isText(); };
    if (!rowChanges(item, isNoText).isEmpty())
        return rowMend(item);
    // In a table, all rows must have the same shares.
    constexpr std::size_t kLabelAndValue = 2;
    const QStringList changes =
        rowChanges(item, [](const ShownItem& each) { return !isCut(each); });
    if (siblings(item).size() > kLabelAndValue)
        return QStringLiteral("a larger \"flex\" than that of the others, or ") + wrap;
    return changes.isEmpty() ? wrap : joined(changes) + QStringLiteral(", or ") + wrap;
}

} // namespace plix::tool
