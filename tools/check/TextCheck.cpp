#include "check/TextCheck.h"

#include "check/AuthorCheck.h"
#include "check/CardText.h"
#include "check/ReaderCheck.h"
#include "check/TextPlaces.h"

#include <algorithm>

namespace plix::tool {

TextCheck checkText(const QByteArray& json)
{
    TextCheck check;
    check.card = readCard(json, check.findings);
    if (check.card) {
        ReaderCheck reader(json, check.findings);
        reader.check(*check.card);
        check.logged = reader.logged();
        AuthorCheck(check.findings).check(*check.card);
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
