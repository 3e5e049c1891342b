#pragma once

#include "model/PlixDataItemCommon.h"

#include <plix/Plix.h>

#include <string>

class PlixDataImage : public PlixDataItemCommon {
public:
    PlixDataImage();

    std::string GetUrl() const { return url_; }
    void SetUrl(const std::string& url) { url_ = url; }

    std::string GetSize() const { return size_; }
    void SetSize(const std::string& size) { size_ = size; }

    std::string GetAspectRatio() const { return aspectRatio_; }
    void SetAspectRatio(const std::string& ratio) { aspectRatio_ = ratio; }

    std::string GetAspectMode() const { return aspectMode_; }
    void SetAspectMode(const std::string& mode) { aspectMode_ = mode; }

    std::string GetAlign() const { return align_; }
    void SetAlign(const std::string& align) { align_ = align; }

    std::string GetGravity() const { return gravity_; }
    void SetGravity(const std::string& gravity) { gravity_ = gravity; }

    std::string GetBackgroundColor() const { return backgroundColor_; }
    void SetBackgroundColor(const std::string& color) { backgroundColor_ = color; }

    const PlixLanguageMap& GetUrls() const { return urls_; }
    PlixLanguageMap& MutableUrls() { return urls_; }

    // The image's width in pixels, by its size word. Looked up once, except for
    // the default width, which also means "not looked up yet".
    float GetSizePixels();

private:
    std::string url_;
    std::string size_;
    std::string aspectRatio_ = "1:1";
    std::string aspectMode_ = "fit";
    std::string align_;
    std::string gravity_;
    std::string backgroundColor_;
    PlixLanguageMap urls_;
    float sizePixels_;
};
