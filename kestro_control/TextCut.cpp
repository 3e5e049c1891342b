#include "kestro_control/TextCut.h"

#include "DisplayBudget.h"

namespace kestro {

TextCut CutText(const QString& text, int maximumCost)
{
    DisplayBudget budget(maximumCost);
    const int length = budget.Spend(text);
    return {length, budget.Cost(), budget.IsExceeded()};
}

} // namespace kestro
