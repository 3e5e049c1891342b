#include "CardLog.h"

#include "CardFile.h"
#include "Console.h"
#include "check/TextCheck.h"

namespace plix::tool {

CardLog::CardLog(const CardFile& file)
    : path_(file.path())
    , json_(file.json())
{
}

void CardLog::print(const QString& line)
{
    const Finding* const found = findPlace(line);
    if (!found) {
        console::warn(path_, line);
        return;
    }
    console::warn(
        QStringLiteral("%1:%2:%3").arg(path_).arg(found->place.line).arg(found->place.column),
        found->path + QStringLiteral(": ") + line);
}

// The reader logs a line for each value that it cannot read, in its order.
const Finding* CardLog::findPlace(const QString& line)
{
    if (!line.startsWith(QLatin1String("call PlixJsonDataParse::")))
        return nullptr;
    if (!places_)
        places_ = checkText(json_).logged;
    return next_ < places_->size() ? &(*places_)[next_++] : nullptr;
}

} // namespace plix::tool
