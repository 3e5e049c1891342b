// A host that was never told about Qt: the header and the library suffice for
// everything but showing the card.
#include <plix/Plix.h>

#if __has_include(<QGraphicsItem>) || __has_include(<QtGlobal>)
#error "this host must not find Qt's headers"
#endif

#include "HostDrive.h"

int main()
{
#define PLIX_ADDRESS(name) &name,
    const HostExports exports {PLIX_FOR_EACH_EXPORT(PLIX_ADDRESS)};
#undef PLIX_ADDRESS
    return host::Drive(exports).run() == 0 ? 0 : 1;
}
