#pragma once

#include "model/PlixDataItem.h"

// Empty space that takes what is left over.
class PlixDataFiller : public PlixDataItem {
public:
    PlixDataFiller();

    // As the JSON gives it, or 1: what a missing "flex" means in a column is
    // for the drawn item to say.
    int GetGrow() const override { return flex_; }

    bool IsFlexDefault() const { return flexIsDefault_; }
    void SetFlex(int flex);

private:
    int flex_ = 1;
    bool flexIsDefault_ = true;
};
