#include "view/Templates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace plix::tool {
namespace {

const QString kFolder = QStringLiteral(":/plix/templates");

// Of a file or a folder.
QString titleOf(const QFileInfo& file)
{
    QString title = file.completeBaseName();
    title.replace(QLatin1Char('_'), QLatin1Char(' ')).replace(QLatin1Char('-'), QLatin1Char(' '));
    title[0] = title.at(0).toUpper();
    return title;
}

} // namespace

std::vector<TemplateGroup> templateGroups()
{
    std::vector<TemplateGroup> groups;
    for (const QFileInfo& folder : QDir(kFolder).entryInfoList(QDir::Dirs, QDir::Name)) {
        TemplateGroup group {titleOf(folder), {}};
        for (const QFileInfo& file : QDir(folder.filePath()).entryInfoList(QDir::Files, QDir::Name))
            group.cards.push_back({titleOf(file), file.filePath()});
        groups.push_back(group);
    }
    return groups;
}

QString templateText(const CardTemplate& card)
{
    QFile file(card.resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString emptyCard()
{
    return QStringLiteral(R"({
  "type": "bubble",
  "body": {
    "type": "box",
    "layout": "vertical",
    "contents": [
      { "type": "text", "text": "Hello", "wrap": true }
    ]
  }
}
)");
}

} // namespace plix::tool
