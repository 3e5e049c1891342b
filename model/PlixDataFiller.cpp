#include "model/PlixDataFiller.h"

PlixDataFiller::PlixDataFiller()
    : PlixDataItem(PlixKindFiller)
{
}

void PlixDataFiller::SetFlex(int flex)
{
    flex_ = flex;
    flexIsDefault_ = false;
}
