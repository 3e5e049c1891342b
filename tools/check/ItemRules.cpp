#include "check/ItemRules.h"

#include "check/Excerpt.h"
#include "check/ValueCheck.h"

#include <array>
#include <string>

namespace plix::tool {
namespace {

// Notes what is wrong with the keys of an object.
class KeyNotes {
public:
    KeyNotes(const JsonNode& object, const QString& path, Findings& findings)
        : object_(object)
        , path_(path)
        , findings_(findings)
    {
    }

    // Does nothing if the key is not there.
    void note(Rule rule, std::string_view key, const QString& message, const QString& mend = {})
    {
        const JsonMember* const member = object_.find(key);
        if (member)
            findings_.push_back({rule,
                                 {member->nameRange.begin, member->value.range.end},
                                 memberPath(path_, key),
                                 message,
                                 mend,
                                 {},
                                 {}});
    }

    void noEffect(std::string_view key, const QString& reason, const QString& mend = {})
    {
        note(Rule::NoEffect, key, QStringLiteral("%1 has no effect: %2").arg(quoted(key), reason),
             mend);
    }

    void missing(const QString& message, const QString& mend)
    {
        // The whole object would be a long range.
        const int begin = object_.range.begin;
        findings_.push_back({Rule::MissingKey, {begin, begin + 1}, path_, message, mend, {}, {}});
    }

private:
    const JsonNode& object_;
    const QString& path_;
    Findings& findings_;
};

bool hasElements(const CardItem& item)
{
    const JsonMember* const contents = item.node.find("contents");
    return contents && !contents->value.elements.empty();
}

bool isFilled(const JsonMember* member)
{
    return member && !member->value.text.empty();
}

// A map of texts by language that is not empty.
bool hasVariants(const JsonNode& object, std::string_view key)
{
    const JsonMember* const member = object.find(key);
    return member && !member->value.members.empty();
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

void checkOffsets(const CardItem& item, KeyNotes& notes)
{
    if (!item.isAbsolute() || !item.box || !item.box->isA("box"))
        return;
    for (const Edge& row : kEdges) {
        const std::string key = "offset" + std::string(row.edge);
        const std::string opposite = "offset" + std::string(row.opposite);
        if (percentIn(item.text(key)) && isPadded(*item.box, row.edge))
            notes.noEffect(key, QStringLiteral("in a box with a padding there, only pixels count"));
        else if (!row.opposite.empty() && !item.text(key).empty() && item.text(opposite).empty()
                 && isPadded(*item.box, row.opposite) && hasOwnLength(item, row.edge))
            notes.noEffect(
                key,
                QStringLiteral("the padding of the box counts as %1, which takes precedence")
                    .arg(quoted(opposite)),
                QStringLiteral("a box without padding around it"));
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
        notes.missing(QStringLiteral("a box needs a \"layout\""),
                      QStringLiteral("\"layout\": \"vertical\""));
    const bool isPicture = item.isA("image") || item.isA("icon");
    if (isPicture && item.text("url").empty() && !hasVariants(item.node, "i18nUrls"))
        notes.missing(QStringLiteral("a picture needs a \"url\""), QStringLiteral("\"url\""));
    if (item.isA("text") && !item.has("text") && !item.has("i18nTexts") && !hasElements(item))
        notes.missing(QStringLiteral("a text needs a \"text\""), QStringLiteral("\"text\""));
    const JsonMember* const action = item.node.find("action");
    if (!item.isA("button"))
        return;
    if (!action)
        notes.missing(QStringLiteral("a button needs an \"action\" with a \"label\""),
                      QStringLiteral("\"action\""));
    else if (!isFilled(action->value.find("label")) && !hasVariants(action->value, "i18nLabels"))
        notes.missing(QStringLiteral("the action of a button needs a \"label\""),
                      QStringLiteral("\"label\" in \"action\""));
}

// ---- languages

// Some readers would see nothing if the plain text is missing, too.
void checkLanguages(const JsonNode& object, std::string_view variants, std::string_view plain,
                    KeyNotes& notes)
{
    const JsonMember* const member = object.find(variants);
    if (!member || member->value.members.empty() || member->value.find("default")
        || isFilled(object.find(plain)))
        return;
    notes.note(Rule::NoDefaultLanguage, variants,
               QStringLiteral("readers of other languages see nothing: there is neither "
                              "\"default\" nor %1")
                   .arg(quoted(plain)),
               QStringLiteral("\"default\""));
}

void checkItemLanguages(const CardItem& item, KeyNotes& notes)
{
    checkLanguages(item.node, "i18nTexts", "text", notes);
    checkLanguages(item.node, "i18nUrls", "url", notes);
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

void checkZoneStyle(const JsonNode& bubble, std::string_view zone, bool isFirst,
                    const JsonNode& style, KeyNotes& notes)
{
    const JsonMember* const item = bubble.find(zone);
    const bool isBox = item && textOf(item->value, "type") == "box";
    if (!isBox)
        notes.noEffect("backgroundColor", QStringLiteral("%1 is no box").arg(quoted(zone)));
    else if (!textOf(item->value, "backgroundColor").empty())
        notes.noEffect("backgroundColor",
                       QStringLiteral("the box of the zone has its own background"));
    if (isFirst || !item)
        notes.noEffect("separator", QStringLiteral("nothing is above this zone"));
    if (!style.find("separator"))
        notes.noEffect("separatorColor", QStringLiteral("there is no separator"),
                       QStringLiteral("\"separator\": true"));
}

} // namespace

void checkItem(const CardItem& item, Findings& findings)
{
    KeyNotes notes(item.node, item.path, findings);
    for (const ItemCheck check : kItemChecks)
        check(item, notes);
}

void checkZoneStyles(const JsonNode& bubble, Findings& findings)
{
    const JsonMember* const styles = bubble.find("styles");
    bool isFirst = true;
    for (const std::string_view zone : zoneNames()) {
        const JsonMember* const style = styles ? styles->value.find(zone) : nullptr;
        if (style) {
            const QString path = memberPath(QStringLiteral("styles"), zone);
            KeyNotes notes(style->value, path, findings);
            checkZoneStyle(bubble, zone, isFirst, style->value, notes);
        }
        isFirst = isFirst && !bubble.find(zone);
    }
}

void checkAction(const JsonNode& action, const QString& path, Findings& findings)
{
    KeyNotes notes(action, path, findings);
    if (!action.find("type"))
        findings.push_back({Rule::ActionWithoutType,
                            {action.range.begin, action.range.begin + 1},
                            path,
                            QStringLiteral("an action needs a \"type\""),
                            action.find("data") ? QStringLiteral("\"type\": \"postback\"")
                                                : QStringLiteral("\"type\": \"uri\""),
                            {},
                            {}});
    if (action.find("data"))
        notes.note(Rule::DataTwice, "postback",
                   QStringLiteral("\"postback\" replaces \"data\" of the same action"));
    const bool opensDesktop = isFilled(action.find("uri")) || isFilled(action.find("pcUri"))
        || isFilled(action.find("webUri"));
    for (const std::string_view key : {"appUri", "androidUri", "iosUri"}) {
        if (opensDesktop || !isFilled(action.find(key)))
            continue;
        notes.note(Rule::MobileOnlyAction, key,
                   QStringLiteral("the action has links for mobile apps only; on a desktop, it "
                                  "cannot be clicked"),
                   QStringLiteral("\"uri\" as well"));
        break;
    }
    checkLanguages(action, "i18nLabels", "label", notes);
    checkLanguages(action, "i18nTexts", "text", notes);
    checkLanguages(action, "i18nDisplayTexts", "displayText", notes);
}

} // namespace plix::tool
