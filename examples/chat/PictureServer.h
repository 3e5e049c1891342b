#pragma once

#include <QDir>
#include <QSet>
#include <QTcpServer>
#include <QUrl>

#include <functional>
#include <vector>

class QTcpSocket;

// Stands for a chat's own picture server: serves the files of a folder on this machine. A
// picture is the file that is named like the last segment of its URL. Slow and failing
// servers can be tried.
class PictureServer : public QTcpServer {
public:
    explicit PictureServer(const QString& folder);

    QUrl url() const;
    void setFolder(const QString& folder) { folder_.setPath(folder); }
    // Replies come up to this time after their requests, each after another time.
    void setSlowness(int milliseconds) { slowness_ = milliseconds; }
    // Holds all replies back, or sends them.
    void hold() { isHolding_ = true; }
    void release();
    int held() const { return static_cast<int>(held_.size()); }
    // The connection breaks in the middle of this picture.
    void breakOff(const QString& name) { broken_.insert(name); }

private:
    void answer(QTcpSocket& socket);
    void send(QTcpSocket& socket, const QString& name) const;

    QDir folder_;
    int slowness_ = 0;
    bool isHolding_ = false;
    std::vector<std::function<void()>> held_;
    QSet<QString> broken_;
};
