#include "check/CardText.h"

#include "check/JsonParser.h"

#include "model/format/PlixFormat.h"

#include <algorithm>
#include <array>

namespace plix::tool {
namespace {

constexpr std::array kRefused {Rule::Syntax, Rule::TextAfterCard, Rule::InvalidUtf8, Rule::NotACard,
                               Rule::TooLarge};

bool isRefused(const Finding& finding)
{
    return std::find(kRefused.begin(), kRefused.end(), finding.rule) != kRefused.end();
}

// Why a value is not a card; nothing if it is one.
std::optional<Finding> refusalOf(const JsonNode& root)
{
    const TextRange start = {root.range.begin, root.range.begin + 1};
    if (!root.isObject())
        return Finding {
            Rule::NotACard, start, {}, QStringLiteral("a card must be a JSON object"), {}, {}, {}};
    const JsonMember* const type = root.find("type");
    const QString mend = QStringLiteral("\"type\": \"bubble\"");
    if (!type)
        return Finding {Rule::NotACard, start, {}, QStringLiteral("the card has no \"type\""),
                        mend,           {},    {}};
    if (type->value.text == "bubble")
        return std::nullopt;
    return Finding {Rule::NotACard,
                    type->value.range,
                    QStringLiteral("type"),
                    QStringLiteral("the \"type\" of a card must be \"bubble\""),
                    mend,
                    {},
                    {}};
}

} // namespace

std::optional<JsonNode> readCard(const QByteArray& json, Findings& findings)
{
    if (json.size() > MaximumMessageBytes()) {
        findings.push_back({Rule::TooLarge,
                            {0, 1},
                            {},
                            QStringLiteral("the card has %1 bytes, but at most %2 are read; "
                                           "lost: the whole card")
                                .arg(json.size())
                                .arg(MaximumMessageBytes()),
                            {},
                            {},
                            {}});
        return std::nullopt;
    }
    std::optional<JsonNode> root = JsonParser(json, findings).parse();
    if (!root)
        return std::nullopt;
    const std::optional<Finding> refusal = refusalOf(*root);
    if (!refusal)
        return root;
    findings.push_back(*refusal);
    return std::nullopt;
}

const Finding* findRefusal(const Findings& findings)
{
    const Finding* first = nullptr;
    for (const Finding& finding : findings) {
        if (isRefused(finding) && (!first || finding.range.begin < first->range.begin))
            first = &finding;
    }
    return first;
}

} // namespace plix::tool
