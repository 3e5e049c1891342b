#include "kestro_control/KestroControlManager.h"

KestroControlManager* KestroControlManager::GetInstance()
{
    static auto* const instance = new KestroControlManager;
    return instance;
}

void KestroControlManager::SetKestroControlSupport(KestroControlSupport* support)
{
    support_ = support;
}

KestroControlSupport* KestroControlManager::GetKestroControlSupport() const
{
    return support_;
}
