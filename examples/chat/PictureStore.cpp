#include "PictureStore.h"

#include <QtNetwork>

namespace {

constexpr int kMaximumBytes = 32 * 1024 * 1024;
constexpr int kMaximumMilliseconds = 30'000;

} // namespace

PictureStore::PictureStore(const QUrl& server)
    : server_(server)
{
}

QString PictureStore::fetch(const QString& url)
{
    // A hash is a plain file name, whatever the URL contains.
    const QByteArray hash = QCryptographicHash::hash(url.toUtf8(), QCryptographicHash::Sha256);
    QString path = folder_.filePath(QString::fromLatin1(hash.toHex()));
    if (!QFile::exists(path) && !loading_.contains(path))
        download(url, path);
    return path;
}

void PictureStore::download(const QString& url, const QString& path)
{
    loading_.insert(path);
    QUrl address = server_;
    address.setQuery(QStringLiteral("url=") + QString::fromLatin1(QUrl::toPercentEncoding(url)));
    QNetworkRequest request(address);
    request.setTransferTimeout(kMaximumMilliseconds);
    QNetworkReply* const reply = network_.get(request);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 bytes) {
        if (bytes > kMaximumBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, url, path] {
        reply->deleteLater();
        loading_.remove(path);
        QSaveFile file(path); // gets its name when it is complete
        const bool isSaved = reply->error() == QNetworkReply::NoError
            && file.open(QIODevice::WriteOnly) && file.write(reply->readAll()) > 0 && file.commit();
        if (isSaved)
            Q_EMIT arrived();
        else
            Q_EMIT failed(url);
    });
}
