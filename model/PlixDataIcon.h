#pragma once

#include "model/PlixDataItemCommon.h"

#include <plix/Plix.h>

#include <string>

class PlixDataIcon : public PlixDataItemCommon {
public:
    PlixDataIcon();

    std::string GetSize() const { return size_; }
    void SetSize(const std::string& size) { size_ = size; }

    std::string GetUrl() const { return url_; }
    void SetUrl(const std::string& url) { url_ = url; }

    std::string GetAspectRatio() const { return aspectRatio_; }
    void SetAspectRatio(const std::string& ratio) { aspectRatio_ = ratio; }

    const PlixLanguageMap& GetUrls() const { return urls_; }
    PlixLanguageMap& MutableUrls() { return urls_; }

    // The icon's size in pixels, set when the icon is built.
    int GetPixelSize() const { return pixelSize_; }
    void SetPixelSize(int size) { pixelSize_ = size; }

private:
    std::string size_;
    std::string url_;
    std::string aspectRatio_;
    PlixLanguageMap urls_;
    int pixelSize_ = 16;
};
