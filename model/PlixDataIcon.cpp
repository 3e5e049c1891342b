#include "model/PlixDataIcon.h"

PlixDataIcon::PlixDataIcon()
    : PlixDataItemCommon(PlixKindIcon)
{
}
