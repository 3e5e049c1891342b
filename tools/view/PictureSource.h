#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

namespace plix::tool {

class PictureDownloads;

// Where the pictures of cards come from: a folder, and if the user wants it, the network.
class PictureSource : public QObject {
    Q_OBJECT

public:
    PictureSource();
    ~PictureSource() override;

    // No folder if empty.
    void setFolder(const QString& folder) { folder_ = folder; }
    // Does nothing if Qt has no network.
    void setNetworkUsed(bool used) { usesNetwork_ = used; }
    bool hasNetwork() const { return downloads_ != nullptr; }

    // The file of a picture, or an empty text. The file of a download appears later.
    QString find(const QString& url);

Q_SIGNALS:
    // What has become of a picture; emitted again when a download ends.
    void reported(const QString& url, const QString& state);
    // A file has appeared.
    void arrived();

private:
    QString download(const QString& url);

    QString folder_;
    bool usesNetwork_ = false;
    QHash<QString, QString> ended_; // what became of each download
    std::unique_ptr<PictureDownloads> downloads_;
};

} // namespace plix::tool
