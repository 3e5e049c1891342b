#include "ui/image/PlixWebImage.h"

#include <QCoreApplication>

PlixWebImage::PlixWebImage() = default;

QString PlixWebImage::TempFileName(const QString& url) const
{
    const int slash = url.lastIndexOf(QLatin1Char('/'));
    return QCoreApplication::applicationDirPath() + QStringLiteral("/bot_plix_temp/")
        + url.right(url.length() - slash - 1);
}
