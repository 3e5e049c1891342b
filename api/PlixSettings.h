#pragma once

#include <plix/Plix.h>

#include <string>

namespace plix {

// The one wording that the library asks its host for: what is shown in place of
// a text or label whose action leads to mobile apps only.
constexpr char kCheckOnMobileKey[] = "chat_room_check_on_mobile";

} // namespace plix

// The host's process-wide callbacks.
class PlixSettings {
public:
    static PlixSettings& GetInstance();

    // Null switches the feature off.
    void SetMultiLangGetCallback(PlixMultiLangCallback callback);
    void SetWiteLogCallback(PlixLogCallback callback);

    // Passes `text` to the host as it stands. A log callback that throws is
    // not allowed to disturb the work it is told about.
    void WriteLog(const char* text) const noexcept;

    // The host's wording for `key`, UTF-8; empty without a callback, and when
    // it throws, for which the build that asks has a log line.
    std::string GetMultiLangText(const std::string& key) const;

private:
    PlixSettings() = default;

    PlixMultiLangCallback multiLangCallback_ = nullptr;
    PlixLogCallback logCallback_ = nullptr;
};
