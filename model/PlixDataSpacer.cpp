#include "model/PlixDataSpacer.h"

#include "layout/PlixStyleValues.h"

PlixDataSpacer::PlixDataSpacer()
    : PlixDataItem(PlixKindSpacer)
{
}

float PlixDataSpacer::GetSizePixels() const
{
    return static_cast<float>(plix::ToSpacerPixels(GetSize()));
}
