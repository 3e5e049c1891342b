// A host without Qt's headers: Plix.h and the library are enough for everything
// except showing the card.
#include <plix/Plix.h>

#if __has_include(<QGraphicsItem>) || __has_include(<QtGlobal>)
#error "this host must not find Qt's headers"
#endif

#include "HostChecks.h"

int main()
{
#define PLIX_ADDRESS(name) &name,
    const HostExports exports {PLIX_FOR_EACH_EXPORT(PLIX_ADDRESS)};
#undef PLIX_ADDRESS
    return host::HostChecks(exports).run() == 0 ? 0 : 1;
}
