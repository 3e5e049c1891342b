#pragma once

#include <QDir>
#include <QString>

#include <set>
#include <string>

class PlixDataController;

namespace plix::tool {

// A folder that stands for the web: a picture is looked up in it by the last
// segment of its URL's path. One that is not there is warned about, once.
class ImageFolder {
public:
    // `cardPath` is what warnings are about.
    ImageFolder(const QString& folder, const QString& cardPath);

    // Answers the card's questions for pictures. Keep the folder until the card
    // is freed.
    void serve(PlixDataController* controller);

private:
    QString find(const QString& url);

    QDir folder_;
    QString cardPath_;
    std::set<QString> missing_;
};

} // namespace plix::tool
