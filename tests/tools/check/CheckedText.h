#pragma once

#include "check/TextCheck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace plix::test {

// The findings about a card's text, one line each: "LINE:COLUMN CODE PATH".
inline std::vector<std::string> checkedLines(const std::string& json)
{
    std::vector<std::string> lines;
    for (const tool::Finding& finding : tool::checkText(QByteArray::fromStdString(json)).findings) {
        lines.push_back(std::to_string(finding.place.line) + ':'
                        + std::to_string(finding.place.column) + ' '
                        + tool::description(finding.rule).code + ' ' + finding.path.toStdString());
    }
    return lines;
}

inline std::vector<tool::Finding> findingsAt(const std::string& json, const std::string& path)
{
    std::vector<tool::Finding> found;
    for (const tool::Finding& finding : tool::checkText(QByteArray::fromStdString(json)).findings) {
        if (finding.path.toStdString() == path)
            found.push_back(finding);
    }
    return found;
}

} // namespace plix::test
