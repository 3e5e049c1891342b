#include "schema/SchemaCommand.h"

#include "OutputFile.h"
#include "schema/CardSchema.h"

#include <QJsonDocument>

namespace plix::tool {

ExitCode writeSchema(const SchemaOptions& options)
{
    const QByteArray schema = QJsonDocument(cardSchema()).toJson();
    if (options.output.isEmpty())
        writeStandardOutput(schema);
    else
        writeFile(options.output, schema);
    return ExitCode::Done;
}

} // namespace plix::tool
