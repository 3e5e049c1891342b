#pragma once

#include <QObject>

// Names the local files of pictures from the web.
class PlixWebImage : public QObject {
    Q_OBJECT

public:
    PlixWebImage();

    // The local file of `url`: in a folder below the application's, with the URL's last
    // segment, including its query, as the name. Creates nothing, and does not make
    // the name safe: a host that writes there must check it.
    QString TempFileName(const QString& url) const;
};
