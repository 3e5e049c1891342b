#pragma once

#include "model/PlixDataItemCommon.h"
#include "model/PlixRareValue.h"

#include <plix/Plix.h>

#include <string>
#include <string_view>

class PlixDataImage : public PlixDataItemCommon {
public:
    PlixDataImage();

    std::string GetUrl() const { return fields_.Get(PlixField::Url); }
    void SetUrl(std::string_view url) { fields_.Set(PlixField::Url, url); }

    std::string GetSize() const { return fields_.Get(PlixField::Size); }
    void SetSize(std::string_view size) { fields_.Set(PlixField::Size, size); }

    std::string GetAspectRatio() const { return fields_.Get(PlixField::AspectRatio, "1:1"); }
    void SetAspectRatio(std::string_view ratio) { fields_.Set(PlixField::AspectRatio, ratio); }

    std::string GetAspectMode() const { return fields_.Get(PlixField::AspectMode, "fit"); }
    void SetAspectMode(std::string_view mode) { fields_.Set(PlixField::AspectMode, mode); }

    std::string GetAlign() const { return fields_.Get(PlixField::Align); }
    void SetAlign(std::string_view align) { fields_.Set(PlixField::Align, align); }

    std::string GetGravity() const { return fields_.Get(PlixField::Gravity); }
    void SetGravity(std::string_view gravity) { fields_.Set(PlixField::Gravity, gravity); }

    std::string GetBackgroundColor() const { return fields_.Get(PlixField::BackgroundColor); }
    void SetBackgroundColor(std::string_view color)
    {
        fields_.Set(PlixField::BackgroundColor, color);
    }

    const PlixLanguageMap& GetUrls() const { return urls_.Get(); }
    PlixLanguageMap& MutableUrls() { return urls_.Make(); }

    // The image's width in pixels, by its size word. Looked up once, except for
    // the default width, which also means "not looked up yet".
    float GetSizePixels();

private:
    PlixRareValue<PlixLanguageMap> urls_;
    float sizePixels_;
};
