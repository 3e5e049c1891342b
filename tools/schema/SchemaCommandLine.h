#pragma once

#include "CommandLine.h"

#include <QLatin1String>

namespace plix::tool {

inline const QLatin1String kSchemaCommand("schema");
inline const QLatin1String kSchemaSummary("writes the card format as a JSON Schema");
inline const QLatin1String kSchemaExamples("  plix schema -o card.schema.json\n");

// Throws ToolError if the arguments are wrong.
Request parseSchemaCommandLine(const QStringList& arguments);

} // namespace plix::tool
