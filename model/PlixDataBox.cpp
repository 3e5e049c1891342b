#include "model/PlixDataBox.h"

#include <utility>

namespace {

void ReadPadding(const std::string& text, PlixPadding& padding)
{
    if (text.empty()) {
        padding.px = -1;
        return;
    }
    padding.px = plix::ToLengthPixels(text);
    if (padding.px == 0)
        padding.percent = plix::ToPercent(text);
}

// An empty text leaves the length as it is.
void ReadSize(const std::string& text, PlixLength& length)
{
    if (!text.empty())
        plix::ParseLength(text, length);
}

} // namespace

PlixDataBox::PlixDataBox()
    : PlixDataItemCommon(PlixKindBox)
{
}

void PlixDataBox::SetWidth(const std::string& width)
{
    width_ = width;
    ReadSize(width, widthLength_);
}

void PlixDataBox::SetHeight(const std::string& height)
{
    height_ = height;
    ReadSize(height, heightLength_);
}

void PlixDataBox::SetPaddingAll(const std::string& padding)
{
    ReadPadding(padding, paddingAll_);
}

void PlixDataBox::SetPaddingTop(const std::string& padding)
{
    ReadPadding(padding, paddingTop_);
}

void PlixDataBox::SetPaddingBottom(const std::string& padding)
{
    ReadPadding(padding, paddingBottom_);
}

void PlixDataBox::SetPaddingStart(const std::string& padding)
{
    ReadPadding(padding, paddingStart_);
}

void PlixDataBox::SetPaddingEnd(const std::string& padding)
{
    ReadPadding(padding, padding.empty() ? paddingStart_ : paddingEnd_);
}

void PlixDataBox::SetContainer(std::shared_ptr<PlixDataContainer> container)
{
    container_ = std::move(container);
}
