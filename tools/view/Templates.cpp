#include "view/Templates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace plix::tool {
namespace {

const QString kFolder = QStringLiteral(":/plix/templates");

QString titleOf(const QString& file)
{
    QString title = QFileInfo(file).completeBaseName();
    title.replace(QLatin1Char('_'), QLatin1Char(' '));
    title[0] = title.at(0).toUpper();
    return title;
}

} // namespace

std::vector<CardTemplate> cardTemplates()
{
    std::vector<CardTemplate> templates;
    for (const QString& file : QDir(kFolder).entryList(QDir::Files, QDir::Name))
        templates.push_back({titleOf(file), kFolder + QLatin1Char('/') + file});
    return templates;
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
