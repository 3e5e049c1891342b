#pragma once

#include "layout/PlixStyleValues.h"
#include "model/PlixDataItemCommon.h"
#include "model/PlixDataSpan.h"

#include <plix/Plix.h>

#include <string>
#include <vector>

class PlixDataText : public PlixDataItemCommon {
public:
    PlixDataText();

    std::string GetText() const { return text_; }
    void SetText(const std::string& text) { text_ = text; }

    std::string GetWeight() const { return weight_; }
    void SetWeight(const std::string& weight) { weight_ = weight; }

    std::string GetSize() const { return size_; }
    void SetSize(const std::string& size) { size_ = size; }

    std::string GetColor() const { return color_; }
    void SetColor(const std::string& color) { color_ = plix::RgbaToArgb(color); }

    std::string GetStyle() const { return style_; }
    void SetStyle(const std::string& style) { style_ = style; }

    std::string GetDecoration() const { return decoration_; }
    void SetDecoration(const std::string& decoration) { decoration_ = decoration; }

    std::string GetAlign() const { return align_; }
    void SetAlign(const std::string& align) { align_ = align; }

    std::string GetGravity() const { return gravity_; }
    void SetGravity(const std::string& gravity) { gravity_ = gravity; }

    bool GetWrap() const { return wrap_; }
    void SetWrap(bool wrap) { wrap_ = wrap; }

    int GetMaxLines() const { return maxLines_; }
    void SetMaxLines(int lines) { maxLines_ = lines; }

    const PlixLanguageMap& GetTexts() const { return texts_; }
    void SetText(const std::string& code, const std::string& text) { texts_.texts[code] = text; }

    const std::vector<PlixDataSpan>& GetSpans() const { return spans_; }
    // Appends an empty span. The reference is valid until the next call.
    PlixDataSpan& AddSpan() { return spans_.emplace_back(); }

    // The font size in pixels, set when the text is built.
    int GetPixelSize() const { return pixelSize_; }
    void SetPixelSize(int size) { pixelSize_ = size; }

private:
    std::string text_;
    std::string weight_;
    std::string size_;
    std::string color_;
    std::string style_;
    std::string decoration_;
    std::string align_;
    std::string gravity_;
    bool wrap_ = false;
    int maxLines_ = 0;
    PlixLanguageMap texts_;
    std::vector<PlixDataSpan> spans_;
    int pixelSize_ = 16;
};
