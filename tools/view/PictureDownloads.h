#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace plix::tool {

// Fetches pictures into files that exist as long as this object.
class PictureDownloads : public QObject {
    Q_OBJECT

public:
    // Null if this Qt has no network.
    static std::unique_ptr<PictureDownloads> create();

    // The file that the picture will have. Fetches each picture once. Empty if the URL is
    // not one of the web.
    virtual QString fetch(const QString& url) = 0;

Q_SIGNALS:
    void ended(const QString& url, const QString& state);
};

} // namespace plix::tool
