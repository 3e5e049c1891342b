#pragma once

#include "CommandLine.h"

#include <QLatin1String>

namespace plix::tool {

inline const QLatin1String kViewCommand("view");
inline const QLatin1String kViewSummary("opens a window to write cards in");
inline const QLatin1String kViewExamples("  plix view receipt.json --images images\n"
                                         "  plix view examples/cards --lang ko\n");

// Throws ToolError if the arguments are wrong.
Request parseViewCommandLine(const QStringList& arguments);

} // namespace plix::tool
