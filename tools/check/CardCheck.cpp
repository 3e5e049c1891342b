#include "check/CardCheck.h"

#include "CardFile.h"
#include "ToolError.h"
#include "check/LookCheck.h"
#include "check/TextCheck.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace plix::tool {
namespace {

// A card cannot fill a disk with findings.
constexpr std::size_t kMaximumFindings = 1000;

} // namespace

Report checkCard(const QString& path, const CheckOptions& options)
{
    Report report;
    report.file = path;
    try {
        const QByteArray json = readCardText(path);
        TextCheck check = checkText(json);
        if (options.look && check.card && !losesParts(check.findings)) {
            LookCheck(CardFile(path, json), *check.card, options, check.findings).check();
            placeFindings(json, check.findings);
        }
        report.findings = std::move(check.findings);
    } catch (const ToolError& error) {
        report.failure = error.reason.isEmpty() ? error.message : error.reason;
    }
    Findings& findings = report.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [&options](const Finding& finding) {
                                      return options.allowed.count(finding.rule) != 0;
                                  }),
                   findings.end());
    if (findings.size() > kMaximumFindings)
        findings.erase(findings.begin() + kMaximumFindings, findings.end());
    return report;
}

} // namespace plix::tool
