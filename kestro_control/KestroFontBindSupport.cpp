#include "kestro_control/KestroFontBindSupport.h"

KestroFontBindSupport::~KestroFontBindSupport() = default;

void KestroFontBindSupport::FontChanged() { }

bool KestroFontBindSupport::IsUseFontBonding() const
{
    return useFontBonding_;
}

void KestroFontBindSupport::SetUseFontBonding(bool use)
{
    useFontBonding_ = use;
}
