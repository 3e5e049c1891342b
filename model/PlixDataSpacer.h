#pragma once

#include "model/PlixDataItem.h"

#include <string>
#include <string_view>

// Empty space of a fixed size.
class PlixDataSpacer : public PlixDataItem {
public:
    PlixDataSpacer();

    int GetGrow() const override { return 0; }
    // The size in pixels, by its size word.
    virtual float GetSizePixels() const;

    std::string GetSize() const { return fields_.Get(PlixField::Size); }
    void SetSize(std::string_view size) { fields_.Set(PlixField::Size, size); }

private:
};
