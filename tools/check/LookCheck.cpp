#include "check/LookCheck.h"

#include "CardFile.h"
#include "CardHost.h"
#include "check/Excerpt.h"
#include "check/Glyphs.h"
#include "check/LookMends.h"
#include "check/TextContrast.h"

#include <QFont>
#include <QGraphicsItem>
#include <QGraphicsObject>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace plix::tool {
namespace {

// Yoga rounds rectangles to whole pixels.
constexpr double kRounding = 1.01;
// In a long column, only neighbours can overlap.
constexpr std::size_t kNeighbours = 6;

bool contains(const QRectF& outer, const QRectF& inner)
{
    return outer.adjusted(-kRounding, -kRounding, kRounding, kRounding).contains(inner);
}

bool isEmptySpace(const ShownItem& item)
{
    return item.source.isA("filler") || item.source.isA("spacer");
}

bool hasSize(const ShownItem& item)
{
    const QRectF place = item.place();
    return place.width() >= 1 && place.height() >= 1;
}

// Whether the item would show something if it had room.
bool showsSomething(const ShownItem& item)
{
    const CardItem& source = item.source;
    if (item.isText())
        return !source.text("text").empty() || source.has("contents") || source.has("i18nTexts");
    if (source.isA("box"))
        return !item.children.empty() || !source.text("backgroundColor").empty();
    return !isEmptySpace(item);
}

// The author has said that the text may be cut.
bool mayBeCut(const CardItem& source)
{
    const bool hasSpans = source.has("contents");
    const bool hasLimit = source.flag("wrap") && !hasSpans && source.number("maxLines") >= 1;
    return hasLimit || (source.has("wrap") && !source.flag("wrap"));
}

QString pixels(double value)
{
    return QString::number(static_cast<int>(value));
}

} // namespace

LookCheck::LookCheck(const CardFile& file, const JsonNode& root, const CheckOptions& options,
                     Findings& findings)
    : file_(file)
    , root_(root)
    , options_(options)
    , findings_(findings)
{
}

void LookCheck::check()
{
    const QStringList languages =
        options_.languages.isEmpty() ? QStringList {QString()} : options_.languages;
    QVector<std::optional<int>> heights {std::nullopt};
    for (const int height : options_.heights)
        heights.append(height);
    if (heights.size() > 1)
        heights.removeFirst();

    for (const QString& language : languages) {
        for (const std::optional<int>& height : heights) {
            CardOptions options = options_.card;
            options.language = language;
            options.height = height;
            variant_ = language.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(language);
            if (height)
                variant_ += QStringLiteral(" (height %1)").arg(*height);
            checkOnce(options);
        }
    }
}

void LookCheck::checkOnce(const CardOptions& options)
{
    CardHost host(file_, options);
    card_ = host.card().sceneBoundingRect();
    items_ = shownItems(host.card(), root_);
    for (const auto& item : items_)
        checkItems(*item);
    checkContrast(host);
    items_.clear();
}

void LookCheck::checkItems(const ShownItem& item)
{
    const std::size_t before = findings_.size();
    checkSize(item);
    const bool hasRoom = findings_.size() == before;
    if (!hasRoom)
        return; // what is inside has no room either
    checkPlace(item);
    checkText(item);
    checkGlyphs(item);
    checkOverlaps(item);
    for (const auto& child : item.children)
        checkItems(*child);
}

void LookCheck::checkSize(const ShownItem& item)
{
    if (!showsSomething(item))
        return;
    const bool isEmptied = item.isText() && item.text().isEmpty();
    if (hasSize(item) && !(isEmptied && item.source.flag("wrap") && item.place().width() < 2))
        return;
    if (item.isText())
        note(Rule::NoRoom, item, QStringLiteral("the text has no room, and is not shown"),
             roomMend(item));
    else if (!item.source.isA("separator"))
        note(Rule::NoSize, item,
             QStringLiteral("%1 has no size, and is not shown").arg(nameOf(item)), roomMend(item));
}

void LookCheck::checkPlace(const ShownItem& item)
{
    if (isEmptySpace(item))
        return;
    const QRectF painted = item.isText() ? item.painted() : item.place();
    const QRectF outer = item.box ? item.box->place() : card_;
    if (contains(outer, painted))
        return;
    const QRectF missing = painted.intersected(outer);
    const QString size =
        QStringLiteral("%1 x %2 of its %3 x %4 pixels are visible")
            .arg(pixels(std::max(missing.width(), 0.0)), pixels(std::max(missing.height(), 0.0)),
                 pixels(painted.width()), pixels(painted.height()));
    const bool isInCard = contains(card_, painted);
    note(isInCard ? Rule::OutsideBox : Rule::OutsideCard, item,
         QStringLiteral("%1 is partly outside %2: %3")
             .arg(nameOf(item), isInCard ? QStringLiteral("its box") : QStringLiteral("the card"),
                  size),
         placeMend(item));
}

void LookCheck::checkText(const ShownItem& item)
{
    if (item.source.isA("button")) {
        if (item.object->property("shownLabel").toString() != item.text())
            note(Rule::TextCut, item,
                 QStringLiteral("the label is cut: %1 is shown")
                     .arg(quoted(item.object->property("shownLabel").toString())),
                 QStringLiteral("a shorter label, or one button per row"));
        return;
    }
    if (!item.isText() || mayBeCut(item.source))
        return;
    if (item.object->property("elided").toBool())
        note(Rule::TextCut, item,
             QStringLiteral("the text is cut: %1 does not fit into %2 pixels")
                 .arg(quoted(item.text()), pixels(item.place().width())),
             cutMend(item));
    else if (item.painted().height() > item.place().height() + kRounding)
        note(Rule::TextCut, item, QStringLiteral("the text is higher than its place"),
             QStringLiteral("no \"height\" for the boxes around it"));
}

void LookCheck::checkGlyphs(const ShownItem& item)
{
    if (!item.isText() && !item.source.isA("button"))
        return;
    const char* const property = item.isText() ? "font" : "labelFont";
    const QString missing =
        missingGlyphs(item.text(), item.object->property(property).value<QFont>());
    if (!missing.isEmpty())
        note(Rule::MissingGlyph, item,
             QStringLiteral("the fonts of this computer lack %1").arg(quoted(missing)),
             QStringLiteral("another character, or --allow if readers have the fonts"));
}

void LookCheck::checkOverlaps(const ShownItem& box)
{
    const auto& children = box.children;
    const auto isPlaced = [](const ShownItem& item) {
        return !item.source.isAbsolute() && !isEmptySpace(item) && hasSize(item);
    };
    for (std::size_t i = 0; i < children.size(); ++i) {
        const std::size_t end = std::min(children.size(), i + 1 + kNeighbours);
        for (std::size_t j = i + 1; j < end; ++j) {
            if (!isPlaced(*children[i]) || !isPlaced(*children[j]))
                continue;
            const QRectF common = children[i]->painted().intersected(children[j]->painted());
            if (common.width() > kRounding && common.height() > kRounding)
                note(Rule::Overlap, *children[j],
                     QStringLiteral("%1 overlaps %2")
                         .arg(nameOf(*children[j]), children[i]->source.path),
                     placeMend(*children[j]));
        }
    }
}

void LookCheck::checkContrast(CardHost& host)
{
    const TextContrast contrast(host, root_, items_);
    for (const auto& item : items_)
        checkItemContrast(*item, contrast);
}

void LookCheck::checkItemContrast(const ShownItem& item, const TextContrast& contrast)
{
    const std::optional<ContrastResult> result = contrast.of(item);
    if (result && result->ratio < result->needed)
        note(Rule::LowContrast, item,
             QStringLiteral("the contrast with what lies behind it is %1:1, but %2:1 is needed")
                 .arg(QString::number(std::floor(result->ratio * 10) / 10, 'f', 1),
                      QString::number(result->needed, 'f', 1)),
             result->isOnDark ? QStringLiteral("a lighter \"color\", or a darker background")
                              : QStringLiteral("a darker \"color\", or a lighter background"));
    for (const auto& child : item.children)
        checkItemContrast(*child, contrast);
}

void LookCheck::note(Rule rule, const ShownItem& item, const QString& message, const QString& mend)
{
    const int begin = item.source.node.range.begin;
    if (!noted_.emplace(rule, begin).second)
        return;
    findings_.push_back(
        {rule, {begin, begin + 1}, item.source.path, message + variant_, mend, {}, {}});
}

} // namespace plix::tool
