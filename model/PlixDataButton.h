#pragma once

#include "model/PlixDataItemCommon.h"

#include <string>
#include <string_view>

class PlixDataButton : public PlixDataItemCommon {
public:
    PlixDataButton();

    std::string GetColor() const { return fields_.Get(PlixField::Color); }
    void SetColor(std::string_view color) { fields_.Set(PlixField::Color, color); }

    std::string GetStyle() const { return fields_.Get(PlixField::Style); }
    void SetStyle(std::string_view style) { fields_.Set(PlixField::Style, style); }

    std::string GetHeight() const { return fields_.Get(PlixField::Height, "50"); }
    void SetHeight(std::string_view height) { fields_.Set(PlixField::Height, height); }

    std::string GetGravity() const { return fields_.Get(PlixField::Gravity); }
    void SetGravity(std::string_view gravity) { fields_.Set(PlixField::Gravity, gravity); }

    std::string GetSize() const { return fields_.Get(PlixField::Size, "md"); }
    void SetSize(std::string_view size) { fields_.Set(PlixField::Size, size); }

    // The label's font size in pixels, set when the button is built.
    int GetPixelSize() const { return pixelSize_; }
    void SetPixelSize(int size) { pixelSize_ = size; }

private:
    int pixelSize_ = 16;
};
