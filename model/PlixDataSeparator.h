#pragma once

#include "model/PlixDataItem.h"

#include <string>

class PlixDataSeparator : public PlixDataItem {
public:
    PlixDataSeparator();

    int GetGrow() const override { return 0; }

    std::string GetMargin() const { return margin_; }
    void SetMargin(const std::string& margin) { margin_ = margin; }

    std::string GetColor() const { return color_; }
    void SetColor(const std::string& color) { color_ = color; }

private:
    std::string margin_;
    std::string color_;
};
