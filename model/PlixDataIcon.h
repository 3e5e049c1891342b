#pragma once

#include "model/PlixDataItemCommon.h"
#include "model/PlixRareValue.h"

#include <plix/Plix.h>

#include <string>
#include <string_view>

class PlixDataIcon : public PlixDataItemCommon {
public:
    PlixDataIcon();

    std::string GetSize() const { return fields_.Get(PlixField::Size); }
    void SetSize(std::string_view size) { fields_.Set(PlixField::Size, size); }

    std::string GetUrl() const { return fields_.Get(PlixField::Url); }
    void SetUrl(std::string_view url) { fields_.Set(PlixField::Url, url); }

    std::string GetAspectRatio() const { return fields_.Get(PlixField::AspectRatio); }
    void SetAspectRatio(std::string_view ratio) { fields_.Set(PlixField::AspectRatio, ratio); }

    const PlixLanguageMap& GetUrls() const { return urls_.Get(); }
    PlixLanguageMap& MutableUrls() { return urls_.Make(); }

    // The icon's size in pixels, set when the icon is built.
    int GetPixelSize() const { return pixelSize_; }
    void SetPixelSize(int size) { pixelSize_ = size; }

private:
    PlixRareValue<PlixLanguageMap> urls_;
    int pixelSize_ = 16;
};
