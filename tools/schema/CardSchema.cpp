#include "schema/CardSchema.h"

#include "FormatText.h"
#include "schema/KeySchema.h"
#include "schema/SchemaWords.h"

#include "model/format/PlixFormat.h"

#include <QJsonArray>

namespace plix::tool {
namespace {

const QString kRequired = QStringLiteral("required");
const QString kDescription = QStringLiteral("description");

QJsonObject objectOf(const QJsonObject& properties, const QJsonArray& required)
{
    QJsonObject schema {{kType, QStringLiteral("object")}, {kProperties, properties}};
    if (!required.isEmpty())
        schema.insert(kRequired, required);
    return schema;
}

// An object that has the keys of a component or a part, and no others.
QJsonObject componentSchema(const PlixFormatComponent& component)
{
    QJsonObject properties;
    QJsonArray required;
    if (!component.type.empty()) {
        properties.insert(kType,
                          QJsonObject {{QStringLiteral("const"), toQString(component.type)}});
        required.append(kType);
    }
    for (const PlixFormatKey& key : component.keys) {
        properties.insert(toQString(key.name), keySchema(key));
        if (key.isRequired)
            required.append(toQString(key.name));
    }
    QJsonObject schema = objectOf(properties, required);
    schema.insert(kDescription, toQString(component.description));
    schema.insert(QStringLiteral("additionalProperties"), false);
    return schema;
}

// The keys of a component of this type.
QJsonObject choice(const QString& type)
{
    const QJsonObject isType {{kType, QJsonObject {{QStringLiteral("const"), type}}}};
    return {{QStringLiteral("if"), objectOf(isType, {kType})},
            {QStringLiteral("then"), schemaReference(type)}};
}

// The "type" decides which keys there are, and not the keys, so that editors say what is
// wrong with a component, and not that it is of no type.
QJsonObject anyComponentSchema()
{
    QJsonArray types;
    QJsonArray descriptions;
    QJsonArray choices;
    for (const PlixFormatComponent& component : ComponentFormats()) {
        types.append(toQString(component.type));
        descriptions.append(toQString(component.description));
        choices.append(choice(toQString(component.type)));
    }
    const QJsonObject type {{QStringLiteral("enum"), types},
                            {QStringLiteral("enumDescriptions"), descriptions}};
    QJsonObject schema = objectOf({{kType, type}}, {kType});
    schema.insert(QStringLiteral("allOf"), choices);
    return schema;
}

QJsonObject definitions()
{
    QJsonObject definitions = valueDefinitions();
    for (const PlixFormatComponent& component : ComponentFormats())
        definitions.insert(toQString(component.type), componentSchema(component));
    for (const PlixFormatPart part : {PlixFormatPart::Span, PlixFormatPart::Action,
                                      PlixFormatPart::Styles, PlixFormatPart::ZoneStyle})
        definitions.insert(partDefinition(part), componentSchema(PartFormat(part)));
    definitions.insert(partDefinition(PlixFormatPart::Component), anyComponentSchema());
    return definitions;
}

} // namespace

QJsonObject cardSchema()
{
    const QString dialect = QStringLiteral("$schema");
    QJsonObject schema = componentSchema(BubbleFormat());
    QJsonObject properties = schema.value(kProperties).toObject();
    properties.insert(dialect,
                      QJsonObject {{kType, QStringLiteral("string")},
                                   {kDescription,
                                    QStringLiteral("The address of this schema, for editors. "
                                                   "It changes nothing in the card.")}});
    schema.insert(kProperties, properties);
    schema.insert(dialect, QStringLiteral("https://json-schema.org/draft/2020-12/schema"));
    schema.insert(QStringLiteral("title"), QStringLiteral("Plix card"));
    schema.insert(QStringLiteral("$defs"), definitions());
    return schema;
}

} // namespace plix::tool
