#include "FuzzTargets.h"

#include <plix/Plix.h>

#include <string>

namespace plix::test {

void fuzzReader(std::string_view bytes)
{
    PlixDataController* const card = Plix_CreateController();
    const std::string json(bytes);
    Plix_InitData(card, json);
    // A second reading adds to the first.
    Plix_InitData(card, json);
    Plix_Free(card);
}

} // namespace plix::test
