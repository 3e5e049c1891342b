#include "model/PlixDataText.h"

PlixDataText::PlixDataText()
    : PlixDataItemCommon(PlixKindText)
{
}
