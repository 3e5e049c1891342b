#pragma once

// What the texts of a card may cost together (plix::kMaximumTextCost). TextItem.h says what
// a text costs.
class PlixTextBudget {
public:
    PlixTextBudget();

    // The maximum for the next text.
    int Left() const { return left_; }

    // To be called for each text. The first one that had to be cut is logged.
    void Spend(int cost, bool wasCut);

private:
    int left_;
    bool isLogged_ = false;
};
