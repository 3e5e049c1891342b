#pragma once

#include <QJsonObject>

namespace plix::tool {

// The card format as a JSON Schema (2020-12), made from the format's table, so that
// editors complete and check cards while they are written.
QJsonObject cardSchema();

} // namespace plix::tool
