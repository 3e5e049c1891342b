#pragma once

#include "check/Finding.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

namespace plix::tool {

// What was found in one file.
struct Report {
    QString file;
    // Why the file could not be checked; empty if it was.
    QString failure;
    Findings findings;
};

// As JSON, for programs that read the results, and between processes.
QJsonObject toJson(const Report& report);
Report reportFromJson(const QJsonObject& object);

} // namespace plix::tool
