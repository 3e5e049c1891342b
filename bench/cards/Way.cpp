#include "Way.h"

namespace bench {

void Way::prepare(Step step)
{
    if (action(step).prepare)
        action(step).prepare();
}

void Way::before(Step step, std::function<void()> prepare)
{
    action(step).prepare = std::move(prepare);
}

} // namespace bench
