#include "DrawCard.h"

#include "CardFile.h"
#include "CardHost.h"
#include "CardPainter.h"
#include "Console.h"

namespace plix::tool {

QImage drawCard(const QString& path, const Options& options)
{
    const CardFile file(path);
    CardHost host(file, options.card);
    const CardPicture picture = paintCard(host.scene(), host.card(), options.scale);
    if (picture.isCut) {
        const QString text =
            QStringLiteral("the card is too large; its picture is cut to %1 x %2 pixels")
                .arg(picture.image.width())
                .arg(picture.image.height());
        console::warn(path, text);
    }
    return picture.image;
}

} // namespace plix::tool
