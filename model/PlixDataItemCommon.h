#pragma once

#include "model/PlixDataItem.h"

#include <string>
#include <string_view>

// The layout properties that box, text, image, icon and button share. Values are
// stored as in the JSON, and converted to pixels when the card is built.
class PlixDataItemCommon : public PlixDataItem {
public:
    ~PlixDataItemCommon() override;

    // An item without "flex" grows in a row but not in a column.
    int GetGrow() const override;
    virtual void SetGrow(int grow);

    bool IsGrowDefault() const { return growIsDefault_; }

    bool HasAbsolutePosition() const;
    // Whether the item or one of the boxes around it has an absolute position.
    bool IsAbsolute() const;

    std::string GetMargin() const { return fields_.Get(PlixField::Margin); }
    void SetMargin(std::string_view margin) { fields_.Set(PlixField::Margin, margin); }

    std::string GetPosition() const { return fields_.Get(PlixField::Position, "relative"); }
    void SetPosition(std::string_view position) { fields_.Set(PlixField::Position, position); }

    std::string GetOffsetTop() const { return fields_.Get(PlixField::OffsetTop); }
    void SetOffsetTop(std::string_view offset) { fields_.Set(PlixField::OffsetTop, offset); }

    std::string GetOffsetBottom() const { return fields_.Get(PlixField::OffsetBottom); }
    void SetOffsetBottom(std::string_view offset) { fields_.Set(PlixField::OffsetBottom, offset); }

    std::string GetOffsetStart() const { return fields_.Get(PlixField::OffsetStart); }
    void SetOffsetStart(std::string_view offset) { fields_.Set(PlixField::OffsetStart, offset); }

    std::string GetOffsetEnd() const { return fields_.Get(PlixField::OffsetEnd); }
    void SetOffsetEnd(std::string_view offset) { fields_.Set(PlixField::OffsetEnd, offset); }

protected:
    using PlixDataItem::PlixDataItem;

private:
    int grow_ = 1;
    bool growIsDefault_ = true;
};
