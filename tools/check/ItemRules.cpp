#include "check/ItemRules.h"

#include "check/Excerpt.h"
#include "check/KeyNotes.h"
#include "check/ValueCheck.h"

#include <array>
#include <string>

namespace plix::tool {
namespace {

bool hasElements(const CardItem& item)
{
    const JsonMember* const contents = item.node.find("contents");
    return contents && !contents->value.elements.empty();
}

// ---- no effect

void checkLines(const CardItem& item, KeyNotes& notes)
{
    if (!item.isA("text") || item.number("maxLines") < 1)
        return;
    if (hasElements(item))
        notes.noEffect("maxLines", QStringLiteral("a text with spans has no limit of lines"));
    else if (!item.flag("wrap"))
        notes.noEffect("maxLines", QStringLiteral("a text that does not wrap has one line"),
                       QStringLiteral("\"wrap\": true"));
}

void checkSpans(const CardItem& item, KeyNotes& notes)
{
    if (!item.isA("text") || !hasElements(item))
        return;
    for (const std::string_view key : {"text", "i18nTexts"})
        notes.noEffect(key, QStringLiteral("the spans of \"contents\" replace it"));
}

void checkMargin(const CardItem& item, KeyNotes& notes)
{
    if (item.index > 0 || item.text("margin").empty())
        return;
    notes.noEffect("margin",
                   item.box ? QStringLiteral("the first item of a box has no margin")
                            : QStringLiteral("the top item of a zone has no margin"),
                   item.box ? QStringLiteral("a padding of the box") : QString());
}

void checkZonePaddings(const CardItem& item, KeyNotes& notes)
{
    const bool hasInsets = !item.box && item.zone != "hero";
    if (!hasInsets || !item.isA("box") || !item.text("paddingAll").empty())
        return;
    for (const std::string_view key :
         {"paddingTop", "paddingBottom", "paddingStart", "paddingEnd"}) {
        notes.noEffect(key,
                       QStringLiteral("without \"paddingAll\", the zone sets all paddings of its "
                                      "top box"),
                       QStringLiteral("\"paddingAll\" as well"));
    }
}

void checkBorder(const CardItem& item, KeyNotes& notes)
{
    const bool hasWidth = !item.text("borderWidth").empty();
    const bool hasColor = !item.text("borderColor").empty();
    if (hasWidth && !hasColor)
        notes.noEffect("borderWidth", QStringLiteral("a border needs a colour, too"),
                       QStringLiteral("\"borderColor\""));
    if (hasColor && !hasWidth)
        notes.noEffect("borderColor", QStringLiteral("a border needs a width, too"),
                       QStringLiteral("\"borderWidth\""));
}

// The padding of a box on one side.
bool isPadded(const CardItem& box, std::string_view edge)
{
    const std::string_view own = box.text("padding" + std::string(edge));
    const std::string_view padding = own.empty() ? box.text("paddingAll") : own;
    // The zone sets the paddings of its top box.
    const bool hasInsets = !box.box && box.zone != "hero" && box.text("paddingAll").empty();
    return hasInsets
        || (!padding.empty() && padding != "none" && !percentIn(padding)
            && pixelsIn(padding).value_or(1) > 0);
}

struct Edge {
    std::string_view edge;
    std::string_view opposite; // the one that counts if both are given
};

constexpr std::array kEdges =
    std::to_array<Edge>({{"Start", ""}, {"End", "Start"}, {"Top", ""}, {"Bottom", "Top"}});

// A box that has no size of its own is stretched between its edges.
bool hasOwnLength(const CardItem& item, std::string_view edge)
{
    return !item.isA("box") || !item.text(edge == "End" ? "width" : "height").empty();
}

bool isFilledLength(std::string_view length)
{
    return !length.empty() && length != "none" && percentIn(length).value_or(1) != 0
        && pixelsIn(length).value_or(1) != 0;
}

// An offset beside that of the opposite edge.
void checkOppositeOffset(const CardItem& item, const Edge& row, KeyNotes& notes)
{
    const std::string key = "offset" + std::string(row.edge);
    const std::string opposite = "offset" + std::string(row.opposite);
    if (item.text(key).empty() || !hasOwnLength(item, row.edge))
        return;
    // A text is stretched between its upper and its lower edge, too.
    const bool isStretched = item.isA("text") && row.edge == "Bottom";
    if (isFilledLength(item.text(opposite)) && !isStretched)
        notes.noEffect(key, QStringLiteral("%1 takes precedence").arg(quoted(opposite)));
    else if (item.text(opposite).empty() && isPadded(*item.box, row.opposite))
        notes.noEffect(key,
                       QStringLiteral("the padding of the box counts as %1, which takes precedence")
                           .arg(quoted(opposite)),
                       QStringLiteral("a box without padding around it"));
}

bool isZero(std::string_view length)
{
    return pixelsIn(length) == 0 || percentIn(length) == 0;
}

// The distance from the opposite edge puts an item at the far edge of its box. It is known
// if both have a size in pixels.
QString farOffset(const CardItem& item, const Edge& row)
{
    const QString key = quoted("offset" + std::string(row.opposite));
    const std::string_view size = row.edge == "End" ? "width" : "height";
    if (!hasOwnLength(item, row.edge) && item.has("offset" + std::string(row.opposite)))
        return quoted(size) + QStringLiteral(": \"100%\"");
    const int outer = pixelsIn(item.box->text(size)).value_or(0);
    const int inner = pixelsIn(item.text(size)).value_or(0);
    return inner > 0 && outer > inner
        ? QStringLiteral("%1: \"%2px\"").arg(key).arg(outer - inner)
        : QStringLiteral("%1 with the distance from that edge").arg(key);
}

// An item that shall be at the far edge is at the near one, unless it reaches from one to
// the other: a box is stretched across the direction of its box.
bool countsAsNone(const CardItem& item, const Edge& row)
{
    const bool isAcross = (row.edge == "End") != item.isInRow();
    const bool isStretched = isAcross && !hasOwnLength(item, row.edge);
    return !isStretched && !row.opposite.empty()
        && isZero(item.text("offset" + std::string(row.edge)))
        && !isFilledLength(item.text("offset" + std::string(row.opposite)));
}

void checkOffsets(const CardItem& item, KeyNotes& notes)
{
    if (!item.isAbsolute() || !item.box || !item.box->isA("box"))
        return;
    for (const Edge& row : kEdges) {
        const std::string key = "offset" + std::string(row.edge);
        if (percentIn(item.text(key)) && isPadded(*item.box, row.edge))
            notes.noEffect(key, QStringLiteral("in a box with a padding there, only pixels count"));
        else if (countsAsNone(item, row))
            notes.noEffect(key, QStringLiteral("an offset of 0 counts as none"),
                           farOffset(item, row));
        else if (!row.opposite.empty())
            checkOppositeOffset(item, row, notes);
    }
}

void checkGravity(const CardItem& item, KeyNotes& notes)
{
    if (item.isA("text") && item.isAbsolute() && !item.text("gravity").empty())
        notes.noEffect("gravity", QStringLiteral("an absolute text is at the top of its place"),
                       QStringLiteral("\"offsetTop\""));
}

void checkButtonColor(const CardItem& item, KeyNotes& notes)
{
    if (item.isA("button") && item.text("style") == "automatic" && item.has("color"))
        notes.noEffect("color", QStringLiteral("the style \"automatic\" has its own colours"));
}

void checkBoxFlex(const CardItem& item, KeyNotes& notes)
{
    if (!item.isA("box") || item.number("flex") < 1)
        return;
    const bool isColumn = item.text("layout") == "vertical";
    const std::string_view length = isColumn ? "height" : "width";
    const std::string_view value = item.text(length);
    if (!value.empty() && !percentIn(value) && pixelsIn(value).value_or(1) > 0)
        notes.noEffect("flex",
                       QStringLiteral("a box with a fixed %1 does not grow").arg(quoted(length)));
}

// ---- missing keys

void checkMissing(const CardItem& item, KeyNotes& notes)
{
    if (item.isA("box") && item.text("layout").empty() && !item.has("layout"))
        notes.noteObject(Rule::MissingKey, QStringLiteral("a box needs a \"layout\""),
                         QStringLiteral("\"layout\": \"vertical\""));
    const bool isPicture = item.isA("image") || item.isA("icon");
    if (isPicture && item.text("url").empty() && !hasVariants(item.node, "i18nUrls"))
        notes.noteObject(Rule::MissingKey, QStringLiteral("a picture needs a \"url\""),
                         QStringLiteral("\"url\""));
    if (item.isA("text") && !item.has("text") && !item.has("i18nTexts") && !hasElements(item))
        notes.noteObject(Rule::MissingKey, QStringLiteral("a text needs a \"text\""),
                         QStringLiteral("\"text\""));
    const JsonMember* const action = item.node.find("action");
    if (!item.isA("button"))
        return;
    if (!action)
        notes.noteObject(Rule::MissingKey,
                         QStringLiteral("a button needs an \"action\" with a \"label\""),
                         QStringLiteral("\"action\""));
    else if (!isFilled(action->value.find("label")) && !hasVariants(action->value, "i18nLabels"))
        notes.noteObject(Rule::MissingKey,
                         QStringLiteral("the action of a button needs a \"label\""),
                         QStringLiteral("\"label\" in \"action\""));
}

void checkItemLanguages(const CardItem&, KeyNotes& notes)
{
    notes.checkLanguages("i18nTexts", "text");
    notes.checkLanguages("i18nUrls", "url");
}

using ItemCheck = void (*)(const CardItem& item, KeyNotes& notes);

constexpr std::array kItemChecks = std::to_array<ItemCheck>({
    &checkLines,
    &checkSpans,
    &checkMargin,
    &checkZonePaddings,
    &checkBorder,
    &checkOffsets,
    &checkGravity,
    &checkButtonColor,
    &checkBoxFlex,
    &checkMissing,
    &checkItemLanguages,
});

} // namespace

void checkItem(const CardItem& item, Findings& findings)
{
    KeyNotes notes(item.node, item.path, findings);
    for (const ItemCheck check : kItemChecks)
        check(item, notes);
}

} // namespace plix::tool
