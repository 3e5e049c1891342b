#include "view/ViewFonts.h"

#include <plix/Plix.h>

namespace plix::tool {

ViewFonts::ViewFonts()
{
    Plix_SetKestroControlSupport(this);
}

} // namespace plix::tool
