#pragma once

#include <plix/Plix.h>

#include <string>

namespace plix {

// The key of the host's wording that replaces texts and labels whose action opens
// mobile apps only.
constexpr char kCheckOnMobileKey[] = "chat_room_check_on_mobile";

} // namespace plix

// The host's process-wide callbacks. GUI thread only.
class PlixSettings {
public:
    static PlixSettings& GetInstance();

    // Null removes the callback.
    void SetMultiLangGetCallback(PlixMultiLangCallback callback);
    void SetWiteLogCallback(PlixLogCallback callback);

    // Passes `text` to the log callback unchanged. Ignores what the callback
    // throws, so that logging never changes the result of an operation.
    void WriteLog(const char* text) const noexcept;

    // The host's wording for `key`, UTF-8. Empty without a callback, and if the
    // callback throws, which is logged.
    std::string GetMultiLangText(const std::string& key) const;

private:
    PlixSettings() = default;

    PlixMultiLangCallback multiLangCallback_ = nullptr;
    PlixLogCallback logCallback_ = nullptr;
};
