#include "ImageFolder.h"

#include "Console.h"
#include "ImageFile.h"

#include <plix/Plix.h>

#include <QByteArray>
#include <QUrl>

namespace plix::tool {
namespace {

// Without line ends and without control sequences for terminals.
QString printableUrl(const QString& url)
{
    static const QByteArray kept = " !\"#$%&'()*+,/:;<=>?@[\\]^`{|}";
    return QString::fromLatin1(QUrl::toPercentEncoding(url, kept));
}

} // namespace

ImageFolder::ImageFolder(const QString& folder, const QString& cardPath)
    : folder_(folder)
    , cardPath_(cardPath)
{
}

void ImageFolder::serve(PlixDataController* controller)
{
    const auto download = [](PlixDataController*, const std::string& url, void* self) {
        return static_cast<ImageFolder*>(self)->find(QString::fromStdString(url)).toStdString();
    };
    Plix_SetDownloadCallBack(controller, download, this);
}

QString ImageFolder::find(const QString& url)
{
    QString path = imageFile(folder_.path(), url);
    if (!path.isEmpty())
        return path;
    if (missing_.insert(url).second) {
        console::warn(
            cardPath_,
            QStringLiteral("no image in %1 for \"%2\"").arg(folder_.path(), printableUrl(url)));
    }
    return {};
}

} // namespace plix::tool
