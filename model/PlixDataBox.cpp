#include "model/PlixDataBox.h"

#include "layout/PlixKeywordTable.h"

#include <utility>

namespace {

void ReadPadding(std::string_view word, PlixPadding& padding)
{
    const std::string text(word);
    if (text.empty()) {
        padding.px = -1;
        return;
    }
    padding.px = plix::ToLengthPixels(text);
    if (padding.px == 0)
        padding.percent = plix::ToPercent(text);
}

} // namespace

PlixDataBox::PlixDataBox()
    : PlixDataItemCommon(PlixKindBox)
{
}

// An empty size leaves the length as it is.
void PlixDataBox::SetWidth(std::string_view width)
{
    fields_.Set(PlixField::Width, width);
    if (!width.empty())
        plix::ParseLength(std::string(width), lengths_.Make().width);
}

void PlixDataBox::SetHeight(std::string_view height)
{
    fields_.Set(PlixField::Height, height);
    if (!height.empty())
        plix::ParseLength(std::string(height), lengths_.Make().height);
}

void PlixDataBox::SetPaddingAll(std::string_view padding)
{
    ReadPadding(padding, lengths_.Make().paddingAll);
}

void PlixDataBox::SetPaddingTop(std::string_view padding)
{
    ReadPadding(padding, lengths_.Make().paddingTop);
}

void PlixDataBox::SetPaddingBottom(std::string_view padding)
{
    ReadPadding(padding, lengths_.Make().paddingBottom);
}

void PlixDataBox::SetPaddingStart(std::string_view padding)
{
    ReadPadding(padding, lengths_.Make().paddingStart);
}

void PlixDataBox::SetPaddingEnd(std::string_view padding)
{
    PlixPadding& edge = padding.empty() ? lengths_.Make().paddingStart : lengths_.Make().paddingEnd;
    ReadPadding(padding, edge);
}

bool PlixDataBox::HasLayout(PlixBoxLayout layout) const
{
    return plix::FindKeyword(plix::kBoxLayouts, fields_.View(PlixField::Layout)) == layout;
}

void PlixDataBox::SetContainer(std::shared_ptr<PlixDataContainer> container)
{
    container_ = std::move(container);
}
