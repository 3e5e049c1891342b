#include "api/PlixLog.h"

#include "api/PlixLogText.h"
#include "api/PlixSettings.h"

#include <QString>

namespace plix {

namespace {

constexpr int kMaxReasonLength = 1000;

} // namespace

void LogFailure(const std::string& operation, const char* reason)
{
    LogFailureLine("call " + operation + " failed. ", reason);
}

void LogFailedBuild(const char* reason)
{
    LogFailure("PlixDataMgr::CreateUI", reason);
}

void LogFailureLine(const std::string& prefix, const char* reason)
{
    const QString line =
        QString::fromStdString(prefix) + ToLogText(QString::fromUtf8(reason), kMaxReasonLength);
    PlixSettings::GetInstance().WriteLog(line.toUtf8().constData());
}

} // namespace plix
