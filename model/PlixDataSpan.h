#pragma once

#include "layout/PlixStyleValues.h"

#include <plix/Plix.h>

#include <string>

// A part of a text with its own style.
class PlixDataSpan {
public:
    std::string GetText() const { return text_; }
    void SetText(const std::string& text) { text_ = text; }

    std::string GetSize() const { return size_; }
    void SetSize(const std::string& size) { size_ = size; }

    std::string GetColor() const { return color_; }
    void SetColor(const std::string& color) { color_ = plix::RgbaToArgb(color); }

    std::string GetWeight() const { return weight_; }
    void SetWeight(const std::string& weight) { weight_ = weight; }

    std::string GetStyle() const { return style_; }
    void SetStyle(const std::string& style) { style_ = style; }

    std::string GetDecoration() const { return decoration_; }
    void SetDecoration(const std::string& decoration) { decoration_ = decoration; }

    const PlixLanguageMap& GetTexts() const { return texts_; }
    void SetText(const std::string& code, const std::string& text) { texts_.texts[code] = text; }

private:
    std::string text_;
    std::string size_;
    std::string color_;
    std::string weight_;
    std::string style_;
    std::string decoration_;
    PlixLanguageMap texts_;
};
