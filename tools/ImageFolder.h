#pragma once

#include <QDir>
#include <QString>

#include <set>
#include <string>

class PlixDataController;

namespace plix::tool {

// The folder of the images. An image is the file that is named like the last
// segment of its URL's path. Each missing file causes one warning.
class ImageFolder {
public:
    // Warnings name the file `cardPath`.
    ImageFolder(const QString& folder, const QString& cardPath);

    // Sets the card's download callback. This object must outlive the card.
    void serve(PlixDataController* controller);

private:
    QString find(const QString& url);

    QDir folder_;
    QString cardPath_;
    std::set<QString> missing_;
};

} // namespace plix::tool
