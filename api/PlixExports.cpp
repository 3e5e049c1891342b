#include <plix/Plix.h>

#include "api/PlixCatchExceptions.h"
#include "api/PlixCurrentLanguage.h"
#include "api/PlixDataMgr.h"
#include "api/PlixSettings.h"
#include "ui/PlixBaseUI.h"

#include <kestro_control/KestroControlManager.h>

#include <cstddef>
#include <list>
#include <map>
#include <string>

// Hosts are compiled separately, so the layout of these records must not change.
static_assert(sizeof(PlixDisplayParam) == 12);
static_assert(offsetof(PlixDisplayParam, mobileOnlyCheck) == 0);
static_assert(offsetof(PlixDisplayParam, markupEnabled) == 1);
static_assert(offsetof(PlixDisplayParam, wrapMode) == 4);
static_assert(offsetof(PlixDisplayParam, extraOption) == 8);
static_assert(sizeof(PlixLanguageMap) == sizeof(std::map<std::string, std::string>));
static_assert(sizeof(ST_ACTION) == 17 * sizeof(std::string) + 3 * sizeof(PlixLanguageMap));

namespace {

// Runs the body of an export. Returns `resultOnFailure` if it throws.
template <typename Result, typename Body>
Result RunExport(Result resultOnFailure, Body body) noexcept
{
    Result result = resultOnFailure;
    plix::CatchExceptions([&] { result = body(); });
    return result;
}

// Runs `body` with the manager of a handle. Returns `resultOnFailure` for a bad
// handle, too.
template <typename Result, typename Body>
Result WithManager(PlixDataController* controller, Result resultOnFailure, Body body) noexcept
{
    return RunExport(resultOnFailure, [&] {
        auto* manager = dynamic_cast<PlixDataMgr*>(controller);
        if (!manager)
            return resultOnFailure;
        const PlixDataMgr::Use use(*manager);
        return body(*manager);
    });
}

// The same for setters, which always return 0.
template <typename Body> int SetOnManager(PlixDataController* controller, Body body) noexcept
{
    return WithManager(controller, 0, [&](PlixDataMgr& manager) { return body(manager), 0; });
}

} // namespace

PlixDataController* PLIX_CALL Plix_CreateController()
{
    return RunExport<PlixDataController*>(nullptr, [] { return new PlixDataMgr; });
}

QGraphicsItem* PLIX_CALL Plix_CreateQGraphicsItem(PlixDataController* controller)
{
    return WithManager<QGraphicsItem*>(controller, nullptr, [](PlixDataMgr& manager) {
        manager.CreateUI();
        return manager.GetRootItem();
    });
}

void PLIX_CALL Plix_Free(PlixDataController* controller)
{
    plix::CatchExceptions([&] {
        if (auto* manager = dynamic_cast<PlixDataMgr*>(controller))
            manager->Free();
        else
            delete controller;
    });
}

bool PLIX_CALL Plix_HasAction(QGraphicsItem* item)
{
    return RunExport(false, [&] {
        auto* ui = dynamic_cast<PlixBaseUI*>(item);
        return ui && ui->HasAction();
    });
}

int PLIX_CALL Plix_InitData(PlixDataController* controller, const std::string& json)
{
    return WithManager(controller, 0, [&](PlixDataMgr& manager) { return manager.InitData(json); });
}

int PLIX_CALL Plix_InitSetFrom(PlixDataController* controller, int from)
{
    return SetOnManager(controller, [&](PlixDataMgr& manager) { manager.InitSetFrom(from); });
}

int PLIX_CALL Plix_ModifyHeight(PlixDataController* controller, int height)
{
    return WithManager(controller, 0,
                       [&](PlixDataMgr& manager) { return manager.ModifyHeight(height); });
}

void PLIX_CALL Plix_RefreshLayout(PlixDataController* controller)
{
    SetOnManager(controller, [](PlixDataMgr& manager) { manager.RefreshLayout(); });
}

int PLIX_CALL Plix_ResumeBubbleBkColor(PlixDataController* controller)
{
    return SetOnManager(controller, [](PlixDataMgr& manager) { manager.ResumeBubbleBkColor(); });
}

int PLIX_CALL Plix_SetBotMentionHandleCallback(PlixDataController* controller,
                                               PlixBotMentionCallback callback, void* userData)
{
    return SetOnManager(controller, [&](PlixDataMgr& manager) {
        manager.SetBotMentionHandleCallback(callback, userData);
    });
}

int PLIX_CALL Plix_SetBubbleBkColor(PlixDataController* controller, const std::string& color)
{
    return SetOnManager(controller, [&](PlixDataMgr& manager) { manager.SetBubbleBkColor(color); });
}

void PLIX_CALL Plix_SetClickCallBack(PlixDataController* controller, PlixClickCallback callback,
                                     void* userData)
{
    SetOnManager(controller,
                 [&](PlixDataMgr& manager) { manager.SetClickCallBack(callback, userData); });
}

void PLIX_CALL Plix_SetCurrentLanguage(const std::string& language)
{
    plix::CatchExceptions([&] { plix::SetCurrentLanguage(language); });
}

int PLIX_CALL Plix_SetDisplayParam(PlixDataController* controller, const PlixDisplayParam& param)
{
    return SetOnManager(controller, [&](PlixDataMgr& manager) { manager.SetDisplayParam(param); });
}

void PLIX_CALL Plix_SetDownloadCallBack(PlixDataController* controller,
                                        PlixDownloadCallback callback, void* userData)
{
    SetOnManager(controller,
                 [&](PlixDataMgr& manager) { manager.SetDownloadCallBack(callback, userData); });
}

int PLIX_CALL Plix_SetDpi(PlixDataController* controller, float dpi)
{
    return SetOnManager(controller, [&](PlixDataMgr& manager) { manager.SetDpi(dpi); });
}

int PLIX_CALL Plix_SetHighLightText(PlixDataController* controller,
                                    const std::list<std::string>& words)
{
    return WithManager(controller, -1,
                       [&](PlixDataMgr& manager) { return manager.SetHighLightText(words); });
}

int PLIX_CALL Plix_SetMentionHandleCallback(PlixDataController* controller,
                                            PlixMentionCallback callback, void* userData)
{
    return SetOnManager(controller, [&](PlixDataMgr& manager) {
        manager.SetMentionHandleCallback(callback, userData);
    });
}

int PLIX_CALL Plix_SetMultiLangGetCallback(PlixMultiLangCallback callback)
{
    PlixSettings::GetInstance().SetMultiLangGetCallback(callback);
    return 0;
}

int PLIX_CALL Plix_SetKestroControlSupport(KestroControlSupport* support)
{
    return RunExport(0, [&] {
        KestroControlManager::GetInstance()->SetKestroControlSupport(support);
        return 0;
    });
}

int PLIX_CALL Plix_SetWiteLogCallback(PlixLogCallback callback)
{
    PlixSettings::GetInstance().SetWiteLogCallback(callback);
    return 0;
}
