#include "check/LookCheck.h"

#include "CardFile.h"
#include "CardHost.h"
#include "check/Excerpt.h"
#include "check/Glyphs.h"
#include "check/LookMends.h"
#include "check/SplitWord.h"
#include "check/TextContrast.h"
#include "check/TextMends.h"

#include <QFont>
#include <QGraphicsItem>
#include <QGraphicsObject>
#include <QVariant>
#include <QVector>

#include <algorithm>
#include <cstddef>

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

// In a row or a column, with a size.
bool isPlaced(const ShownItem& item)
{
    return !item.source.isAbsolute() && !isEmptySpace(item) && hasSize(item);
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
    checkLabel(item);
    checkText(item);
    checkWords(item);
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

void LookCheck::checkLabel(const ShownItem& item)
{
    const QString shown = item.object->property("shownLabel").toString();
    if (item.source.isA("button") && shown != item.text())
        note(Rule::TextCut, item,
             QStringLiteral("the label is cut: %1 is shown (the button %2)")
                 .arg(quoted(shown), roomText(item.neededWidth(), item.place().width())),
             QStringLiteral("a shorter label, or one button per row"));
}

void LookCheck::checkText(const ShownItem& item)
{
    if (!item.isText() || mayBeCut(item.source))
        return;
    if (item.object->property("elided").toBool())
        note(Rule::TextCut, item, cutMessage(item), cutMend(item));
    else if (item.painted().height() > item.place().height() + kRounding)
        note(Rule::TextCut, item, QStringLiteral("the text is higher than its place"),
             QStringLiteral("no \"height\" for the boxes around it"));
}

void LookCheck::checkWords(const ShownItem& item)
{
    if (!item.isText() || !item.source.flag("wrap"))
        return;
    const auto lineStarts = item.object->property("lineStarts").value<QVector<int>>();
    if (const std::optional<SplitWord> word = findSplitWord(item.text(), lineStarts))
        note(Rule::WordSplit, item, splitMessage(item, *word), splitMend(item, *word));
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
    const std::size_t count = box.children.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t end = std::min(count, i + 1 + kNeighbours);
        for (std::size_t j = i + 1; j < end; ++j)
            checkOverlap(box, i, j);
    }
}

void LookCheck::checkOverlap(const ShownItem& box, std::size_t first, std::size_t second)
{
    const ShownItem& below = *box.children[first];
    const ShownItem& above = *box.children[second];
    if (!isPlaced(below) || !isPlaced(above))
        return;
    const QRectF common = below.painted().intersected(above.painted());
    if (common.width() <= kRounding || common.height() <= kRounding)
        return;
    const auto begin = box.children.begin();
    const bool isPulled = std::any_of(begin + static_cast<std::ptrdiff_t>(first) + 1,
                                      begin + static_cast<std::ptrdiff_t>(second) + 1,
                                      [](const auto& item) { return hasNegativeMargin(*item); });
    QString message = QStringLiteral("%1 overlaps %2").arg(nameOf(above), below.source.path);
    if (isPulled)
        message += QStringLiteral(" because of a negative \"margin\"");
    note(Rule::Overlap, above, message, overlapMend(above, isPulled));
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
        note(Rule::LowContrast, item, contrastMessage(item, *result), contrastMend(*result));
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
