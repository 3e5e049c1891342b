#pragma once

#include "layout/PlixStyleValues.h"
#include "model/PlixDataItemCommon.h"
#include "model/PlixDataSpan.h"
#include "model/PlixRareValue.h"

#include <plix/Plix.h>

#include <string>
#include <string_view>
#include <vector>

class PlixDataText : public PlixDataItemCommon {
public:
    PlixDataText();

    std::string GetText() const { return fields_.Get(PlixField::Text); }
    void SetText(std::string_view text) { fields_.Set(PlixField::Text, text); }

    std::string GetWeight() const { return fields_.Get(PlixField::Weight); }
    void SetWeight(std::string_view weight) { fields_.Set(PlixField::Weight, weight); }

    std::string GetSize() const { return fields_.Get(PlixField::Size); }
    void SetSize(std::string_view size) { fields_.Set(PlixField::Size, size); }

    std::string GetColor() const { return fields_.Get(PlixField::Color); }
    void SetColor(std::string_view color)
    {
        fields_.Set(PlixField::Color, plix::RgbaToArgb(color));
    }

    std::string GetStyle() const { return fields_.Get(PlixField::Style); }
    void SetStyle(std::string_view style) { fields_.Set(PlixField::Style, style); }

    std::string GetDecoration() const { return fields_.Get(PlixField::Decoration); }
    void SetDecoration(std::string_view decoration)
    {
        fields_.Set(PlixField::Decoration, decoration);
    }

    std::string GetAlign() const { return fields_.Get(PlixField::Align); }
    void SetAlign(std::string_view align) { fields_.Set(PlixField::Align, align); }

    std::string GetGravity() const { return fields_.Get(PlixField::Gravity); }
    void SetGravity(std::string_view gravity) { fields_.Set(PlixField::Gravity, gravity); }

    bool GetWrap() const { return wrap_; }
    void SetWrap(bool wrap) { wrap_ = wrap; }

    int GetMaxLines() const { return maxLines_; }
    void SetMaxLines(int lines) { maxLines_ = lines; }

    const PlixLanguageMap& GetTexts() const { return texts_.Get(); }
    void SetText(const std::string& code, std::string_view text)
    {
        texts_.Make().texts[code] = text;
    }

    const std::vector<PlixDataSpan>& GetSpans() const { return spans_.Get(); }
    // Appends an empty span. The reference is valid until the next call.
    PlixDataSpan& AddSpan() { return spans_.Make().emplace_back(); }
    // Frees what the list has reserved for more spans.
    void EndSpans() { spans_.Make().shrink_to_fit(); }

    // The font size in pixels, set when the text is built.
    int GetPixelSize() const { return pixelSize_; }
    void SetPixelSize(int size) { pixelSize_ = size; }

private:
    bool wrap_ = false;
    int maxLines_ = 0;
    PlixRareValue<PlixLanguageMap> texts_;
    PlixRareValue<std::vector<PlixDataSpan>> spans_;
    int pixelSize_ = 16;
};
