#include "FuzzInput.h"
#include "FuzzTargets.h"
#include "FuzzWindow.h"

#include <plix/Plix.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <string>

namespace plix::test {
namespace {

const std::string kCard = R"({"type": "bubble", "body": {"type": "box", "layout": "vertical",
    "contents": [{"type": "image", "url": "p", "size": "full", "aspectMode": "cover"},
                 {"type": "image", "url": "p", "size": "xs"},
                 {"type": "box", "layout": "baseline", "contents": [{"type": "icon", "url": "p"}]}]}})";

// In memory where the system has such a folder.
QString pictureFile()
{
    static const QTemporaryDir folder((QFile::exists(QStringLiteral("/dev/shm"))
                                           ? QStringLiteral("/dev/shm")
                                           : QStringLiteral("."))
                                      + QStringLiteral("/fuzz-XXXXXX"));
    return folder.filePath(QStringLiteral("picture"));
}

std::string PLIX_CALL findPicture(PlixDataController*, const std::string&, void*)
{
    return pictureFile().toStdString();
}

void writePicture(std::string_view bytes)
{
    QFile file(pictureFile());
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

} // namespace

void fuzzPicture(std::string_view bytes)
{
    writePicture(bytes);
    PlixDataController* const card = Plix_CreateController();
    Plix_SetDownloadCallBack(card, &findPicture, nullptr);
    Plix_InitData(card, kCard);
    FuzzWindow& window = FuzzWindow::instance();
    window.show(*Plix_CreateQGraphicsItem(card));
    window.paint();
    QCoreApplication::processEvents(); // animations go on
    Plix_SetDpi(card, 1.5F);
    window.paint();
    window.clear();
    Plix_Free(card);
}

} // namespace plix::test
