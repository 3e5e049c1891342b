#include "kestro_control/KestroControlManager.h"

#include "kestro_control/KestroFontBindSupport.h"

#include <exception>
#include <vector>

KestroControlManager* KestroControlManager::GetInstance()
{
    static auto* const instance = new KestroControlManager;
    return instance;
}

void KestroControlManager::SetKestroControlSupport(KestroControlSupport* support)
{
    support_ = support;
    FontFamilyChanged();
}

KestroControlSupport* KestroControlManager::GetKestroControlSupport() const
{
    return support_;
}

void KestroControlManager::FontFamilyChanged()
{
    const std::vector<KestroFontBindSupport*> items(items_.begin(), items_.end());
    std::exception_ptr failure;
    for (KestroFontBindSupport* item : items) {
        // The call for an earlier item may have deleted this one.
        if (items_.count(item) == 0 || !item->IsUseFontBonding())
            continue;
        try {
            item->FontChanged();
        } catch (...) {
            failure = std::current_exception();
        }
    }
    if (failure)
        std::rethrow_exception(failure);
}

void KestroControlManager::Forget(const KestroControlSupport* support)
{
    if (support_ == support)
        support_ = nullptr;
}

void KestroControlManager::Register(KestroFontBindSupport* item)
{
    items_.insert(item);
}

void KestroControlManager::Unregister(KestroFontBindSupport* item)
{
    items_.erase(item);
}
