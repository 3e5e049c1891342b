#include "TextWork.h"

namespace kestro {

TextWork& WorkSoFar()
{
    static TextWork work;
    return work;
}

} // namespace kestro
