#pragma once

#include "model/format/PlixFormatKey.h"

#include <QJsonObject>
#include <QString>

namespace plix::tool {

// What a schema says about the value of a key.
QJsonObject keySchema(const PlixFormatKey& key);

// The reference to a definition of the schema.
QJsonObject schemaReference(const QString& definition);

// The definitions that the schemas of keys refer to, by name.
QJsonObject valueDefinitions();

// The name of the definition of a part.
QString partDefinition(PlixFormatPart part);

} // namespace plix::tool
