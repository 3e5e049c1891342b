#include "api/PlixSettings.h"

#include "api/PlixCatchExceptions.h"
#include "api/PlixLog.h"

PlixSettings& PlixSettings::GetInstance()
{
    static PlixSettings instance;
    return instance;
}

void PlixSettings::SetMultiLangGetCallback(PlixMultiLangCallback callback)
{
    multiLangCallback_ = callback;
}

void PlixSettings::SetWiteLogCallback(PlixLogCallback callback)
{
    logCallback_ = callback;
}

void PlixSettings::WriteLog(const char* text) const noexcept
{
    if (!logCallback_)
        return;
    // A failure of the log itself cannot be logged.
    plix::CatchExceptions([&] { logCallback_(text); });
}

std::string PlixSettings::GetMultiLangText(const std::string& key) const
{
    std::string text;
    if (multiLangCallback_)
        plix::CatchExceptions([&] { text = multiLangCallback_(key.c_str()); },
                              &plix::LogFailedBuild);
    return text;
}
