#include "CardHost.h"

#include <plix/Plix.h>

namespace bench {
namespace {

std::string PLIX_CALL wording(const char*)
{
    return "See your phone";
}

// The file that has the name of the URL's last part.
std::string PLIX_CALL pictureFile(PlixDataController*, const std::string& url, void* folder)
{
    return *static_cast<const std::string*>(folder) + url.substr(url.find_last_of('/') + 1);
}

} // namespace

CardHost::CardHost(const QString& imageFolder)
    : imageFolder_(imageFolder.toStdString() + '/')
{
    Plix_SetMultiLangGetCallback(&wording);
}

CardHost::~CardHost()
{
    Plix_SetMultiLangGetCallback(nullptr);
}

PlixDataController* CardHost::newController() const
{
    PlixDataController* controller = Plix_CreateController();
    PlixDisplayParam display;
    display.markupEnabled = true;
    Plix_SetDisplayParam(controller, display);
    Plix_SetDownloadCallBack(controller, &pictureFile, const_cast<std::string*>(&imageFolder_));
    return controller;
}

} // namespace bench
