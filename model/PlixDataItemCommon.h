#pragma once

#include "model/PlixDataItem.h"

#include <string>

// The layout properties that box, text, image, icon and button share. Values are
// stored as in the JSON, and converted to pixels when the card is built.
class PlixDataItemCommon : public PlixDataItem {
public:
    ~PlixDataItemCommon() override;

    // An item without "flex" grows in a row but not in a column.
    int GetGrow() const override;
    virtual void SetGrow(int grow);

    bool IsGrowDefault() const { return growIsDefault_; }

    // Whether the item or one of the boxes around it has an absolute position.
    bool IsAbsolute() const;

    std::string GetMargin() const { return margin_; }
    void SetMargin(const std::string& margin) { margin_ = margin; }

    std::string GetPosition() const { return position_; }
    void SetPosition(const std::string& position) { position_ = position; }

    std::string GetOffsetTop() const { return offsetTop_; }
    void SetOffsetTop(const std::string& offset) { offsetTop_ = offset; }

    std::string GetOffsetBottom() const { return offsetBottom_; }
    void SetOffsetBottom(const std::string& offset) { offsetBottom_ = offset; }

    std::string GetOffsetStart() const { return offsetStart_; }
    void SetOffsetStart(const std::string& offset) { offsetStart_ = offset; }

    std::string GetOffsetEnd() const { return offsetEnd_; }
    void SetOffsetEnd(const std::string& offset) { offsetEnd_ = offset; }

protected:
    using PlixDataItem::PlixDataItem;

private:
    int grow_ = 1;
    bool growIsDefault_ = true;
    std::string margin_;
    std::string position_ = "relative";
    std::string offsetTop_;
    std::string offsetBottom_;
    std::string offsetStart_;
    std::string offsetEnd_;
};
