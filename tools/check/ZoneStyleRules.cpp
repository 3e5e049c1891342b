#include "check/ZoneStyleRules.h"

#include "check/CardItem.h"
#include "check/Excerpt.h"
#include "check/KeyNotes.h"

namespace plix::tool {
namespace {

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

} // namespace plix::tool
