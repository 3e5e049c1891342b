#pragma once

#include <QString>
#include <QtGlobal>

namespace plix::test {

// During its lifetime, drops what the platform without a display says it does not support:
// it says so when windows and popups open. All other messages go where they went before.
class PlatformMessages {
public:
    PlatformMessages() { others = qInstallMessageHandler(&passOthersOn); }
    ~PlatformMessages() { qInstallMessageHandler(others); }

    PlatformMessages(const PlatformMessages&) = delete;
    PlatformMessages& operator=(const PlatformMessages&) = delete;

private:
    static void passOthersOn(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (!text.startsWith(QLatin1String("This plugin does not support ")))
            others(type, context, text);
    }

    static inline QtMessageHandler others = nullptr;
};

} // namespace plix::test
