#include "ExampleCards.h"

#include <plix/Plix.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QUrl>

namespace plix::test {
namespace {

std::string PLIX_CALL findPicture(PlixDataController*, const std::string& url, void*)
{
    const QDir folder(QStringLiteral(PLIX_IMAGES));
    const QString path = folder.filePath(QUrl(QString::fromStdString(url)).fileName());
    return QFile::exists(path) ? path.toStdString() : std::string();
}

} // namespace

std::vector<std::string> exampleNames()
{
    const QDir folder(QStringLiteral(PLIX_CARDS), QStringLiteral("*.json"));
    std::vector<std::string> names;
    for (const QFileInfo& file : folder.entryInfoList())
        names.push_back(file.completeBaseName().toStdString());
    return names;
}

std::string exampleCard(const std::string& name)
{
    QFile file(QStringLiteral(PLIX_CARDS "/%1.json").arg(QString::fromStdString(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll().toStdString();
}

void showExamplePictures(PlixDataController* controller)
{
    PlixDisplayParam display;
    display.markupEnabled = true;
    Plix_SetDisplayParam(controller, display);
    Plix_SetDownloadCallBack(controller, &findPicture, nullptr);
}

} // namespace plix::test
