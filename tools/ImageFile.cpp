#include "ImageFile.h"

#include <QDir>
#include <QFileInfo>
#include <QString>
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

} // namespace

QString imageFile(const QString& folder, const QString& url)
{
    const QString name = QUrl(url).fileName(QUrl::FullyDecoded);
    const QString path = QDir(folder).absoluteFilePath(name);
    return isPlainName(name) && QFileInfo(path).isFile() ? path : QString();
}

} // namespace plix::tool
