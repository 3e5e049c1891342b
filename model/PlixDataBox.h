#pragma once

#include "layout/PlixStyleValues.h"
#include "model/PlixDataContainer.h"
#include "model/PlixDataItemCommon.h"

#include <memory>
#include <string>

// A padding in pixels and in percent; -1 means "not given". A padding that was
// given in percent has 0 pixels.
struct PlixPadding {
    int px = -1;
    int percent = -1;
};

class PlixDataBox : public PlixDataItemCommon {
public:
    PlixDataBox();

    std::string GetLayout() const { return layout_; }
    void SetLayout(const std::string& layout) { layout_ = layout; }
    bool IsVertical() const { return layout_ == "vertical"; }
    bool IsHorizontal() const { return layout_ == "horizontal"; }
    bool IsBaseline() const { return layout_ == "baseline"; }

    std::string GetSpacing() const { return spacing_; }
    void SetSpacing(const std::string& spacing) { spacing_ = spacing; }

    std::string GetBackgroundColor() const { return backgroundColor_; }
    void SetBackgroundColor(const std::string& color)
    {
        backgroundColor_ = plix::RgbaToArgb(color);
    }

    std::string GetCornerRadius() const { return cornerRadius_; }
    void SetCornerRadius(const std::string& radius) { cornerRadius_ = radius; }

    std::string GetWidth() const { return width_; }
    PlixLength GetWidthLength() const { return widthLength_; }
    void SetWidth(const std::string& width);

    std::string GetHeight() const { return height_; }
    PlixLength GetHeightLength() const { return heightLength_; }
    void SetHeight(const std::string& height);

    std::string GetBorderColor() const { return borderColor_; }
    void SetBorderColor(const std::string& color) { borderColor_ = plix::RgbaToArgb(color); }

    std::string GetBorderWidth() const { return borderWidth_; }
    void SetBorderWidth(const std::string& width) { borderWidth_ = width; }

    PlixPadding GetPaddingAll() const { return paddingAll_; }
    void SetPaddingAll(const std::string& padding);
    PlixPadding GetPaddingTop() const { return paddingTop_; }
    void SetPaddingTop(const std::string& padding);
    PlixPadding GetPaddingBottom() const { return paddingBottom_; }
    void SetPaddingBottom(const std::string& padding);
    PlixPadding GetPaddingStart() const { return paddingStart_; }
    void SetPaddingStart(const std::string& padding);
    PlixPadding GetPaddingEnd() const { return paddingEnd_; }
    // An empty text resets the start padding instead of the end padding: existing
    // cards rely on this.
    void SetPaddingEnd(const std::string& padding);

    // The children. Null until PlixDataItemCreater sets it.
    std::shared_ptr<PlixDataContainer> GetContainer() const { return container_; }
    void SetContainer(std::shared_ptr<PlixDataContainer> container);

private:
    std::string layout_;
    std::string spacing_;
    std::string backgroundColor_;
    std::string cornerRadius_;
    std::string width_;
    PlixLength widthLength_;
    std::string height_;
    PlixLength heightLength_;
    std::string borderColor_;
    std::string borderWidth_;
    PlixPadding paddingAll_;
    PlixPadding paddingTop_;
    PlixPadding paddingBottom_;
    PlixPadding paddingStart_;
    PlixPadding paddingEnd_;
    std::shared_ptr<PlixDataContainer> container_;
};
