#pragma once

#include "check/CheckOptions.h"
#include "check/Report.h"

#include <QString>

namespace plix::tool {

// Checks the card in a file, or that from standard input ("-").
Report checkCard(const QString& path, const CheckOptions& options);

} // namespace plix::tool
