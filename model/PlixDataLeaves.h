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

    // Noted when the button is built.
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

// Fixed empty space.
class PlixDataSpacer : public PlixDataItem {
public:
    PlixDataSpacer();

    int GetGrow() const override { return 0; }
    virtual float GetSizePixels() const;

    std::string GetSize() const { return size_; }
    void SetSize(const std::string& size) { size_ = size; }

private:
    std::string size_;
};

// Empty space that takes what is left over.
class PlixDataFiller : public PlixDataItem {
public:
    PlixDataFiller();

    // As the JSON gives it, or 1: what a missing "flex" means in a column is
    // for the drawn item to say.
    int GetGrow() const override { return flex_; }

    bool IsFlexDefault() const { return flexIsDefault_; }
    void SetFlex(int flex);

private:
    int flex_ = 1;
    bool flexIsDefault_ = true;
};

class PlixDataSeparator : public PlixDataItem {
public:
    PlixDataSeparator();

    int GetGrow() const override { return 0; }

    std::string GetMargin() const { return margin_; }
    void SetMargin(const std::string& margin) { margin_ = margin; }

    std::string GetColor() const { return color_; }
    void SetColor(const std::string& color) { color_ = color; }

private:
    std::string margin_;
    std::string color_;
};
