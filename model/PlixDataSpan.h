#pragma once

#include "layout/PlixStyleValues.h"
#include "model/PlixFieldTexts.h"
#include "model/PlixRareValue.h"

#include <plix/Plix.h>

#include <string>
#include <string_view>

// A part of a text with its own style.
class PlixDataSpan {
public:
    std::string GetText() const { return fields_.Get(PlixField::Text); }
    void SetText(std::string_view text) { fields_.Set(PlixField::Text, text); }

    std::string GetSize() const { return fields_.Get(PlixField::Size); }
    void SetSize(std::string_view size) { fields_.Set(PlixField::Size, size); }

    std::string GetColor() const { return fields_.Get(PlixField::Color); }
    void SetColor(std::string_view color)
    {
        fields_.Set(PlixField::Color, plix::RgbaToArgb(color));
    }

    std::string GetWeight() const { return fields_.Get(PlixField::Weight); }
    void SetWeight(std::string_view weight) { fields_.Set(PlixField::Weight, weight); }

    std::string GetStyle() const { return fields_.Get(PlixField::Style); }
    void SetStyle(std::string_view style) { fields_.Set(PlixField::Style, style); }

    std::string GetDecoration() const { return fields_.Get(PlixField::Decoration); }
    void SetDecoration(std::string_view decoration)
    {
        fields_.Set(PlixField::Decoration, decoration);
    }

    const PlixLanguageMap& GetTexts() const { return texts_.Get(); }
    void SetText(const std::string& code, std::string_view text)
    {
        texts_.Make().texts[code] = text;
    }

private:
    PlixFieldTexts fields_;
    PlixRareValue<PlixLanguageMap> texts_;
};
