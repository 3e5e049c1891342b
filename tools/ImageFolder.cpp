#include "ImageFolder.h"

#include "Console.h"

#include <plix/Plix.h>

#include <QByteArray>
#include <QFileInfo>
#include <QUrl>

namespace plix::tool {
namespace {

// URLs are untrusted: a name must not lead out of the folder, on any system, or to
// a hidden file.
bool isPlainName(const QString& name)
{
    static const QString separators = QStringLiteral("/\\:");
    for (const QChar character : name) {
        if (separators.contains(character) || character.isNull())
            return false;
    }
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.'));
}

QString lastSegment(const QString& url)
{
    return QUrl(url).fileName(QUrl::FullyDecoded);
}

// Without line ends and without control sequences for terminals.
QString printable(const QString& url)
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
    const QString name = lastSegment(url);
    QString path = isPlainName(name) ? folder_.absoluteFilePath(name) : QString();
    if (!path.isEmpty() && QFileInfo(path).isFile())
        return path;
    if (missing_.insert(url).second) {
        console::warn(
            cardPath_,
            QStringLiteral("no image in %1 for \"%2\"").arg(folder_.path(), printable(url)));
    }
    return {};
}

} // namespace plix::tool
