#pragma once

#include "model/PlixDataItem.h"

#include <string>
#include <string_view>

class PlixDataSeparator : public PlixDataItem {
public:
    PlixDataSeparator();

    int GetGrow() const override { return 0; }

    std::string GetMargin() const { return fields_.Get(PlixField::Margin); }
    void SetMargin(std::string_view margin) { fields_.Set(PlixField::Margin, margin); }

    std::string GetColor() const { return fields_.Get(PlixField::Color); }
    void SetColor(std::string_view color) { fields_.Set(PlixField::Color, color); }

private:
};
