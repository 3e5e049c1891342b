#include "check/TextCheck.h"

#include "check/AuthorCheck.h"
#include "check/CardItem.h"
#include "check/Excerpt.h"
#include "check/JsonParser.h"
#include "check/ReaderCheck.h"
#include "check/TextPlaces.h"

#include <algorithm>
#include <utility>

namespace plix::tool {
namespace {

// Notes why a value is not a card. Returns whether it is one.
bool isCard(const JsonNode& root, Findings& findings)
{
    const TextRange start = {root.range.begin, root.range.begin + 1};
    if (!root.isObject()) {
        findings.push_back({Rule::NotACard,
                            start,
                            {},
                            QStringLiteral("a card must be a JSON object"),
                            {},
                            {},
                            {}});
        return false;
    }
    const JsonMember* const type = root.find("type");
    const QString mend = QStringLiteral("\"type\": \"bubble\"");
    if (!type) {
        findings.push_back(
            {Rule::NotACard, start, {}, QStringLiteral("the card has no \"type\""), mend, {}, {}});
        return false;
    }
    if (type->value.text == "bubble")
        return true;
    findings.push_back({Rule::NotACard,
                        type->value.range,
                        QStringLiteral("type"),
                        QStringLiteral("the \"type\" of a card must be \"bubble\""),
                        mend,
                        {},
                        {}});
    return false;
}

} // namespace

TextCheck checkText(const QByteArray& json)
{
    TextCheck check;
    std::optional<JsonNode> root = JsonParser(json, check.findings).parse();
    if (root && isCard(*root, check.findings)) {
        ReaderCheck reader(json, check.findings);
        reader.check(*root);
        check.logged = reader.logged();
        AuthorCheck(check.findings).check(*root);
        check.card = std::move(root);
    }
    placeFindings(json, check.findings);
    TextPlaces places(json);
    for (Finding& finding : check.logged)
        finding.place = places.at(finding.range.begin);
    return check;
}

void placeFindings(const QByteArray& json, Findings& findings)
{
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        return a.range.begin < b.range.begin;
    });
    TextPlaces places(json);
    for (Finding& finding : findings) {
        finding.place = places.at(finding.range.begin);
        finding.end = TextPlaces(places).at(finding.range.end);
    }
}

bool losesParts(const Findings& findings)
{
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return description(finding.rule).severity == Severity::Error
            || finding.rule == Rule::NestedTooDeep;
    });
}

} // namespace plix::tool
