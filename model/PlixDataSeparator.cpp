#include "model/PlixDataSeparator.h"

PlixDataSeparator::PlixDataSeparator()
    : PlixDataItem(PlixKindSeparator)
{
}
