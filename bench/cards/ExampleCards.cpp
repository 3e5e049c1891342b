#include "ExampleCards.h"

#include "Fail.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace bench {
namespace {

Card readCard(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(path + QStringLiteral(" cannot be read"));
    return {"example/" + QFileInfo(path).completeBaseName().toStdString(),
            file.readAll().toStdString()};
}

} // namespace

std::vector<Card> exampleCards(const QString& folder)
{
    const QDir directory(folder);
    std::vector<Card> cards;
    for (const QString& name :
         directory.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name))
        cards.push_back(readCard(directory.filePath(name)));
    if (cards.empty())
        fail(QStringLiteral("there are no cards in ") + folder);
    return cards;
}

} // namespace bench
