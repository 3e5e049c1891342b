#include "kestro_control/KestroControlSupport.h"

#include "kestro_control/KestroControlManager.h"

KestroControlSupport::~KestroControlSupport()
{
    KestroControlManager::GetInstance()->Forget(this);
}

QImage KestroControlSupport::GetEmojiImage(const QString&) const
{
    return {};
}
