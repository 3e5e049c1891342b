#pragma once

#include "layout/PlixStyleValues.h"
#include "model/PlixDataContainer.h"
#include "model/PlixDataItemCommon.h"
#include "model/PlixRareValue.h"
#include "model/format/PlixWords.h"

#include <memory>
#include <string>
#include <string_view>

// A padding in pixels and in percent; -1 means "not given". A padding that was
// given in percent has 0 pixels.
struct PlixPadding {
    int px = -1;
    int percent = -1;
};

class PlixDataBox : public PlixDataItemCommon {
public:
    PlixDataBox();

    std::string GetLayout() const { return fields_.Get(PlixField::Layout); }
    void SetLayout(std::string_view layout) { fields_.Set(PlixField::Layout, layout); }
    bool IsVertical() const { return HasLayout(PlixBoxLayout::Vertical); }
    bool IsHorizontal() const { return HasLayout(PlixBoxLayout::Horizontal); }
    bool IsBaseline() const { return HasLayout(PlixBoxLayout::Baseline); }

    std::string GetSpacing() const { return fields_.Get(PlixField::Spacing); }
    void SetSpacing(std::string_view spacing) { fields_.Set(PlixField::Spacing, spacing); }

    std::string GetBackgroundColor() const { return fields_.Get(PlixField::BackgroundColor); }
    void SetBackgroundColor(std::string_view color)
    {
        fields_.Set(PlixField::BackgroundColor, plix::RgbaToArgb(color));
    }

    std::string GetCornerRadius() const { return fields_.Get(PlixField::CornerRadius); }
    void SetCornerRadius(std::string_view radius) { fields_.Set(PlixField::CornerRadius, radius); }

    std::string GetWidth() const { return fields_.Get(PlixField::Width); }
    PlixLength GetWidthLength() const { return lengths_.Get().width; }
    void SetWidth(std::string_view width);

    std::string GetHeight() const { return fields_.Get(PlixField::Height); }
    PlixLength GetHeightLength() const { return lengths_.Get().height; }
    void SetHeight(std::string_view height);

    std::string GetBorderColor() const { return fields_.Get(PlixField::BorderColor); }
    void SetBorderColor(std::string_view color)
    {
        fields_.Set(PlixField::BorderColor, plix::RgbaToArgb(color));
    }

    std::string GetBorderWidth() const { return fields_.Get(PlixField::BorderWidth); }
    void SetBorderWidth(std::string_view width) { fields_.Set(PlixField::BorderWidth, width); }

    PlixPadding GetPaddingAll() const { return lengths_.Get().paddingAll; }
    void SetPaddingAll(std::string_view padding);
    PlixPadding GetPaddingTop() const { return lengths_.Get().paddingTop; }
    void SetPaddingTop(std::string_view padding);
    PlixPadding GetPaddingBottom() const { return lengths_.Get().paddingBottom; }
    void SetPaddingBottom(std::string_view padding);
    PlixPadding GetPaddingStart() const { return lengths_.Get().paddingStart; }
    void SetPaddingStart(std::string_view padding);
    PlixPadding GetPaddingEnd() const { return lengths_.Get().paddingEnd; }
    // An empty text resets the start padding instead of the end padding: existing
    // cards rely on this.
    void SetPaddingEnd(std::string_view padding);

    // The children. Null until PlixDataItemCreater sets it.
    std::shared_ptr<PlixDataContainer> GetContainer() const { return container_; }
    void SetContainer(std::shared_ptr<PlixDataContainer> container);

private:
    struct Lengths {
        PlixLength width;
        PlixLength height;
        PlixPadding paddingAll;
        PlixPadding paddingTop;
        PlixPadding paddingBottom;
        PlixPadding paddingStart;
        PlixPadding paddingEnd;
    };

    bool HasLayout(PlixBoxLayout layout) const;

    PlixRareValue<Lengths> lengths_;
    std::shared_ptr<PlixDataContainer> container_;
};
