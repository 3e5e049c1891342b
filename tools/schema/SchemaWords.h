#pragma once

#include <QString>

namespace plix::tool {

// Keywords of JSON Schema, which are keys of cards, too.
inline const QString kType = QStringLiteral("type");
inline const QString kProperties = QStringLiteral("properties");

} // namespace plix::tool
