#include "model/PlixDataImage.h"

#include "layout/PlixStyleValues.h"

namespace {

constexpr float kDefaultSize = 100;

} // namespace

PlixDataImage::PlixDataImage()
    : PlixDataItemCommon(PlixKindImage)
    , sizePixels_(kDefaultSize)
{
}

float PlixDataImage::GetSizePixels()
{
    if (sizePixels_ == kDefaultSize)
        sizePixels_ = plix::ToImageSize(GetSize());
    return sizePixels_;
}
