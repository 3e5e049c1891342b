#include "view/PictureSource.h"

#include "ImageFile.h"
#include "view/PictureDownloads.h"

namespace plix::tool {

PictureSource::PictureSource()
    : downloads_(PictureDownloads::create())
{
    if (!downloads_)
        return;
    connect(downloads_.get(), &PictureDownloads::ended, this,
            [this](const QString& url, const QString& state) {
                ended_.insert(url, state);
                Q_EMIT reported(url, state);
                Q_EMIT arrived();
            });
}

PictureSource::~PictureSource() = default;

QString PictureSource::find(const QString& url)
{
    QString path = folder_.isEmpty() ? QString() : imageFile(folder_, url);
    if (!path.isEmpty()) {
        Q_EMIT reported(url, path);
        return path;
    }
    if (usesNetwork_ && downloads_)
        return download(url);
    Q_EMIT reported(url,
                    folder_.isEmpty()
                        ? QStringLiteral("no folder of pictures is set, and the network is off")
                        : QStringLiteral("not in the folder, and the network is off"));
    return {};
}

QString PictureSource::download(const QString& url)
{
    QString path = downloads_->fetch(url);
    const QString state = path.isEmpty() ? QStringLiteral("refused: not an address of the web")
                                         : ended_.value(url, QStringLiteral("asked for"));
    Q_EMIT reported(url, state);
    return path;
}

} // namespace plix::tool
