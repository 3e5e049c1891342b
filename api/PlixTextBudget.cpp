#include "api/PlixTextBudget.h"

#include "api/PlixLog.h"
#include "layout/PlixLimits.h"

#include <algorithm>
#include <string>
#include <utility>

PlixTextBudget::PlixTextBudget()
    : left_(plix::kMaximumTextCost)
{
}

void PlixTextBudget::Spend(int cost, bool wasCut)
{
    left_ = std::max(0, left_ - cost);
    if (!wasCut || std::exchange(isLogged_, true))
        return;
    const std::string reason =
        "The texts of the card cost more than " + std::to_string(plix::kMaximumTextCost) + ".";
    plix::LogFailedBuild(reason.c_str());
}
