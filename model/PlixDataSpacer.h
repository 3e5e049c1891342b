#pragma once

#include "model/PlixDataItem.h"

#include <string>

// Empty space of a fixed size.
class PlixDataSpacer : public PlixDataItem {
public:
    PlixDataSpacer();

    int GetGrow() const override { return 0; }
    // The size in pixels, by its size word.
    virtual float GetSizePixels() const;

    std::string GetSize() const { return size_; }
    void SetSize(const std::string& size) { size_ = size; }

private:
    std::string size_;
};
