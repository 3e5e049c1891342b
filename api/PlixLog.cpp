#include "api/PlixLog.h"

#include "api/PlixSettings.h"

#include <QString>

void LogFailure(const std::string& operation, const std::exception& error)
{
    LogFailureLine("call " + operation + " failed. ", error);
}

void LogFailureLine(const std::string& prefix, const std::exception& error)
{
    const QString line = QString::fromStdString(prefix) + QString::fromUtf8(error.what());
    PlixSettings::GetInstance().WriteLog(line.toUtf8().constData());
}
