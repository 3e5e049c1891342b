#pragma once

#include "model/PlixDataItem.h"

// Empty space that grows.
class PlixDataFiller : public PlixDataItem {
public:
    PlixDataFiller();

    // The value of "flex", or 1. PlixFillerUI decides what a missing "flex" means
    // in a column.
    int GetGrow() const override { return flex_; }

    bool IsFlexDefault() const { return flexIsDefault_; }
    void SetFlex(int flex);

private:
    int flex_ = 1;
    bool flexIsDefault_ = true;
};
