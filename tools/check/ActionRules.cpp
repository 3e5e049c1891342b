#include "check/ActionRules.h"

#include "check/KeyNotes.h"

#include <algorithm>
#include <array>

namespace plix::tool {
namespace {

constexpr std::array<std::string_view, 3> kDesktopLinks {"uri", "pcUri", "webUri"};
constexpr std::array<std::string_view, 3> kMobileLinks {"appUri", "androidUri", "iosUri"};

void checkType(const JsonNode& action, KeyNotes& notes)
{
    if (!action.find("type"))
        notes.noteObject(Rule::ActionWithoutType, QStringLiteral("an action needs a \"type\""),
                         action.find("data") ? QStringLiteral("\"type\": \"postback\"")
                                             : QStringLiteral("\"type\": \"uri\""));
}

void checkLinks(const JsonNode& action, KeyNotes& notes)
{
    const auto isGiven = [&action](std::string_view key) { return isFilled(action.find(key)); };
    const auto* const mobile = std::find_if(kMobileLinks.begin(), kMobileLinks.end(), isGiven);
    if (mobile == kMobileLinks.end()
        || std::any_of(kDesktopLinks.begin(), kDesktopLinks.end(), isGiven))
        return;
    notes.note(Rule::MobileOnlyAction, *mobile,
               QStringLiteral("the action has links for mobile apps only; on a desktop, it "
                              "cannot be clicked"),
               QStringLiteral("\"uri\" as well"));
}

} // namespace

void checkAction(const JsonNode& action, const QString& path, Findings& findings)
{
    KeyNotes notes(action, path, findings);
    checkType(action, notes);
    if (action.find("data"))
        notes.note(Rule::DataTwice, "postback",
                   QStringLiteral("\"postback\" replaces \"data\" of the same action"));
    checkLinks(action, notes);
    notes.checkLanguages("i18nLabels", "label");
    notes.checkLanguages("i18nTexts", "text");
    notes.checkLanguages("i18nDisplayTexts", "displayText");
}

} // namespace plix::tool
