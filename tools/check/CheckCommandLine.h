#pragma once

#include "CommandLine.h"

#include <QLatin1String>

namespace plix::tool {

inline const QLatin1String kCheckCommand("check");
inline const QLatin1String kCheckSummary("finds what is wrong with cards");
inline const QLatin1String
    kCheckExamples("  plix check receipt.json\n"
                   "  plix check cards --strict --allow low-contrast\n"
                   "  plix check cards --format sarif > cards.sarif\n"
                   "  plix check receipt.json --lang en --lang ko --height 400\n");

// Throws ToolError if the arguments are wrong.
Request parseCheckCommandLine(const QStringList& arguments);

} // namespace plix::tool
