#include "kestro_control/KestroFontBindSupport.h"

#include "kestro_control/KestroControlManager.h"
#include "kestro_control/KestroControlSupport.h"

#include <QFont>
#include <QString>

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

bool KestroFontBindSupport::ApplyFontFamily(QFont& font)
{
    const KestroControlSupport* support =
        KestroControlManager::GetInstance()->GetKestroControlSupport();
    const QString family = support ? support->GetFontFamily() : QString();
    if (family.isEmpty())
        return false;
    font.setFamily(family);
    return true;
}
