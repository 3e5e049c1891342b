#include "kestro_control/KestroFontBindSupport.h"

#include "kestro_control/KestroControlManager.h"

KestroFontBindSupport::KestroFontBindSupport()
{
    KestroControlManager::GetInstance()->Register(this);
}

KestroFontBindSupport::~KestroFontBindSupport()
{
    KestroControlManager::GetInstance()->Unregister(this);
}

void KestroFontBindSupport::FontChanged() { }

bool KestroFontBindSupport::IsUseFontBonding() const
{
    return useFontBonding_;
}

void KestroFontBindSupport::SetUseFontBonding(bool use)
{
    useFontBonding_ = use;
}
