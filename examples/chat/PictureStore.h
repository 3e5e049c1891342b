#pragma once

#include <QNetworkAccessManager>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

// Downloads the pictures of cards, each once, and keeps them until the end.
class PictureStore : public QObject {
    Q_OBJECT

public:
    // Senders of cards choose the URLs of pictures. They are not fetched from there, but
    // from `server`, which gets the URL as its parameter "url". Otherwise senders would learn
    // the addresses of their readers, and could reach into their networks.
    explicit PictureStore(const QUrl& server);

    // Returns the path of the file, which does not exist before the download is complete.
    QString fetch(const QString& url);
    bool isLoading() const { return !loading_.isEmpty(); }

Q_SIGNALS:
    void arrived();
    void failed(const QString& url);

private:
    void download(const QString& url, const QString& path);

    const QUrl server_;
    const QTemporaryDir folder_;
    QSet<QString> loading_;
    QNetworkAccessManager network_;
};
