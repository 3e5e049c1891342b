#include "PictureServer.h"

#include <QFile>
#include <QPointer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrlQuery>

#include <utility>

namespace {

// The name of the picture in "GET /?url=https%3A%2F%2Fexample.com%2Fa.png HTTP/1.1".
QString requestedName(const QByteArray& request)
{
    const QUrl target(QString::fromLatin1(request.split(' ').value(1)));
    const QUrlQuery query(target);
    return QUrl(query.queryItemValue(QStringLiteral("url"), QUrl::FullyDecoded)).fileName();
}

QByteArray head(const char* status, qint64 length)
{
    return QByteArray("HTTP/1.1 ") + status
        + "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(length) + "\r\n\r\n";
}

} // namespace

PictureServer::PictureServer(const QString& folder)
    : folder_(folder)
{
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* const socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
        }
    });
}

QUrl PictureServer::url() const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(serverPort()));
}

void PictureServer::release()
{
    isHolding_ = false;
    for (const auto& send : std::exchange(held_, {}))
        send();
}

void PictureServer::answer(QTcpSocket& socket)
{
    // A request has no body: an empty line ends it.
    constexpr qint64 kMaximumRequest = 65'536;
    if (!socket.peek(kMaximumRequest).endsWith("\r\n\r\n"))
        return;
    const QString name = requestedName(socket.readAll());
    const auto reply = [this, name, client = QPointer<QTcpSocket>(&socket)] {
        if (client)
            send(*client, name);
    };
    if (isHolding_)
        held_.emplace_back(reply);
    else if (slowness_ > 0)
        QTimer::singleShot(static_cast<int>(qHash(name) % uint(slowness_)), this, reply);
    else
        reply();
}

void PictureServer::send(QTcpSocket& socket, const QString& name) const
{
    const bool isPlain = !name.contains(QLatin1Char('\\')) && !name.startsWith(QLatin1Char('.'));
    QFile file(folder_.filePath(name));
    if (name.isEmpty() || !isPlain || !file.open(QIODevice::ReadOnly)) {
        socket.write(head("404 Not Found", 0));
    } else {
        socket.write(head("200 OK", file.size()));
        socket.write(broken_.contains(name) ? file.read(file.size() / 2) : file.readAll());
    }
    socket.disconnectFromHost();
}
