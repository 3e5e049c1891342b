#include "model/PlixDataLeaves.h"

#include "layout/PlixStyleValues.h"

PlixDataButton::PlixDataButton()
    : PlixDataItemCommon(PlixKindButton)
{
}

PlixDataSpacer::PlixDataSpacer()
    : PlixDataItem(PlixKindSpacer)
{
}

float PlixDataSpacer::GetSizePixels() const
{
    return static_cast<float>(plix::ToSpacerPixels(size_));
}

PlixDataFiller::PlixDataFiller()
    : PlixDataItem(PlixKindFiller)
{
}

void PlixDataFiller::SetFlex(int flex)
{
    flex_ = flex;
    flexIsDefault_ = false;
}

PlixDataSeparator::PlixDataSeparator()
    : PlixDataItem(PlixKindSeparator)
{
}
