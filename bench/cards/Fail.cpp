#include "Fail.h"

#include <QString>

#include <cstdio>
#include <cstdlib>

namespace bench {

void fail(const QString& reason)
{
    std::fprintf(stderr, "card_bench: error: %s\n", qPrintable(reason));
    // Without destructors: objects of Qt Quick are in use.
    std::_Exit(EXIT_FAILURE);
}

} // namespace bench
