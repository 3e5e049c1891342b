#include "view/PictureDownloads.h"

namespace plix::tool {

std::unique_ptr<PictureDownloads> PictureDownloads::create()
{
    return nullptr;
}

} // namespace plix::tool
