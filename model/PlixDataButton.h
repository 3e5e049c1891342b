#pragma once

#include "model/PlixDataItemCommon.h"

#include <string>

class PlixDataButton : public PlixDataItemCommon {
public:
    PlixDataButton();

    std::string GetColor() const { return color_; }
    void SetColor(const std::string& color) { color_ = color; }

    std::string GetStyle() const { return style_; }
    void SetStyle(const std::string& style) { style_ = style; }

    std::string GetHeight() const { return height_; }
    void SetHeight(const std::string& height) { height_ = height; }

    std::string GetGravity() const { return gravity_; }
    void SetGravity(const std::string& gravity) { gravity_ = gravity; }

    std::string GetSize() const { return size_; }
    void SetSize(const std::string& size) { size_ = size; }

    // The label's font size in pixels, set when the button is built.
    int GetPixelSize() const { return pixelSize_; }
    void SetPixelSize(int size) { pixelSize_ = size; }

private:
    std::string color_;
    std::string style_;
    std::string height_ = "50";
    std::string gravity_;
    std::string size_ = "md";
    int pixelSize_ = 16;
};
