#include "view/PictureDownloads.h"

#include <QCryptographicHash>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

namespace plix::tool {
namespace {

constexpr int kMaximumPictureBytes = 32 * 1024 * 1024;
constexpr int kMilliseconds = 30'000;

bool isOfTheWeb(const QUrl& url)
{
    const bool isWeb =
        url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return isWeb && url.isValid() && !url.host().isEmpty();
}

class NetworkDownloads : public PictureDownloads {
public:
    QString fetch(const QString& url) override;

private:
    void start(const QString& url, const QString& path);
    QString take(QNetworkReply& reply, const QString& path);

    QTemporaryDir folder_;
    QSet<QString> asked_;
    QNetworkAccessManager network_;
};

QString NetworkDownloads::fetch(const QString& url)
{
    if (!isOfTheWeb(QUrl(url)))
        return {};
    // A hash is a plain file name, whatever the URL contains.
    const QByteArray hash = QCryptographicHash::hash(url.toUtf8(), QCryptographicHash::Sha256);
    QString path = folder_.filePath(QString::fromLatin1(hash.toHex()));
    if (!asked_.contains(url)) {
        asked_.insert(url);
        start(url, path);
    }
    return path;
}

void NetworkDownloads::start(const QString& url, const QString& path)
{
    QNetworkRequest request {QUrl(url)};
    request.setTransferTimeout(kMilliseconds);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    QNetworkReply* const reply = network_.get(request);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 bytes) {
        if (bytes > kMaximumPictureBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, url, path] {
        reply->deleteLater();
        Q_EMIT ended(url, take(*reply, path));
    });
}

// Writes the file, and says what happened.
QString NetworkDownloads::take(QNetworkReply& reply, const QString& path)
{
    if (reply.error() != QNetworkReply::NoError)
        return QStringLiteral("failed: ") + reply.errorString();
    const QByteArray bytes = reply.readAll();
    QSaveFile file(path); // gets its name when it is complete
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isSaved ? QStringLiteral("fetched, %1 bytes").arg(bytes.size())
                   : QStringLiteral("failed: ") + file.errorString();
}

} // namespace

std::unique_ptr<PictureDownloads> PictureDownloads::create()
{
    return std::make_unique<NetworkDownloads>();
}

} // namespace plix::tool
