// The schema of cards is what the format's table says. tests/docs/schema.py feeds it cards.
#include "ToolRun.h"

#include "model/format/PlixFormat.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <set>

namespace plix::test {
namespace {

QByteArray keptSchema()
{
    QFile file(QStringLiteral(PLIX_DOCS "/card.schema.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

std::set<std::string> propertiesOf(const QJsonValue& schema)
{
    std::set<std::string> names;
    for (const QString& name :
         schema.toObject().value(QStringLiteral("properties")).toObject().keys())
        names.insert(name.toStdString());
    return names;
}

TEST(Schema, IsKeptInTheDocuments)
{
    const ToolResult result = runTool({"schema"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(result.output == keptSchema().toStdString())
        << "plix schema -o docs/card.schema.json";
}

TEST(Schema, IsWrittenToAFile)
{
    const ToolFolder folder;
    EXPECT_EQ(folder.run({"schema", "-o", "card.schema.json"}).output, "");
    EXPECT_EQ(folder.read("card.schema.json"), keptSchema());
}

TEST(Schema, TakesNoFiles)
{
    const ToolResult result = runTool({"schema", "card.json"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(contains(result.errors, "\"card.json\" is not expected")) << result.errors;
}

TEST(Schema, HasTheKeysOfEachComponent)
{
    const QJsonObject schema = QJsonDocument::fromJson(keptSchema()).object();
    const QJsonObject definitions = schema.value(QStringLiteral("$defs")).toObject();
    for (const PlixFormatComponent& component : ComponentFormats()) {
        SCOPED_TRACE(component.type);
        std::set<std::string> names {"type"};
        for (const PlixFormatKey& key : component.keys)
            names.emplace(key.name);
        const QString type = QString::fromStdString(std::string(component.type));
        EXPECT_EQ(propertiesOf(definitions.value(type)), names);
    }
}

} // namespace
} // namespace plix::test
