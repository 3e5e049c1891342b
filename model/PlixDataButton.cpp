#include "model/PlixDataButton.h"

PlixDataButton::PlixDataButton()
    : PlixDataItemCommon(PlixKindButton)
{
}
