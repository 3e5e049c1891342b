#pragma once

#include <QObject>

// The rule by which pictures of the web are named on this machine.
class PlixWebImage : public QObject {
    Q_OBJECT

public:
    PlixWebImage();

    // Where the picture of `url` is kept: below the application's folder, under
    // the URL's last segment as it stands, query and all. Nothing is created,
    // and nothing made safe: hosts that write there check the name.
    QString TempFileName(const QString& url) const;
};
