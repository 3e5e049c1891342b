#pragma once

#include "model/PlixDataItem.h"

#include <string>

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
