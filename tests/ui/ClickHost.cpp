#include "ClickHost.h"

#include "support/PlixTest.h"

#include <utility>

namespace plix::test {

void ClickHost::listenTo(PlixDataController* controller)
{
    PlixDisplayParam param;
    param.markupEnabled = true;
    Plix_SetDisplayParam(controller, param);
    Plix_SetClickCallBack(
        controller,
        [](PlixDataController*, ST_ACTION& action, void* self) {
            auto& host = *static_cast<ClickHost*>(self);
            const std::string uri = action.uri.empty() ? action.appUri : action.uri;
            if (host.onAction)
                host.onAction(action);
            host.record(uri);
        },
        this);
    Plix_SetMentionHandleCallback(
        controller,
        [](std::int64_t user, void* self) {
            static_cast<ClickHost*>(self)->record("user " + std::to_string(user));
        },
        this);
    Plix_SetBotMentionHandleCallback(
        controller,
        [](std::int64_t bot, void* self) {
            static_cast<ClickHost*>(self)->record("bot " + std::to_string(bot));
        },
        this);
}

std::function<void(PlixDataController*)> ClickHost::setUp()
{
    return [this](PlixDataController* controller) { listenTo(controller); };
}

void ClickHost::record(const std::string& what)
{
    arrived.push_back(what);
    if (const std::function<void()> next = std::exchange(nextAction, {}))
        next();
}

std::string uriAction(const std::string& uri, const std::string& type)
{
    return R"("action": {"type": ")" + type + R"(", "label": "Press", "uri": ")" + uri + R"("},)";
}

std::string appAction(const std::string& appUri)
{
    return R"("action": {"type": "uri", "label": "Press", "appUri": ")" + appUri + R"("},)";
}

std::string button(const std::string& action)
{
    return component("button", action);
}

} // namespace plix::test
