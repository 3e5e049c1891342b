#include "FontList.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QSettings>
#include <QString>
#include <QStringList>

namespace plix::tool {

bool useFontList(const QString& path)
{
    QSettings list(path, QSettings::IniFormat);
    list.beginGroup(QStringLiteral("fonts"));
    const QDir folder(list.value(QStringLiteral("folder")).toString());
    for (const QString& file : list.value(QStringLiteral("files")).toStringList()) {
        if (QFontDatabase::addApplicationFont(folder.filePath(file)) < 0)
            return false;
    }
    QStringList families = list.value(QStringLiteral("families")).toStringList();
    if (families.isEmpty())
        return false;

    QFont font(families.takeFirst());
    QFont::insertSubstitutions(font.family(), families);
    // Cards are laid out once and drawn in any scale. Advances that are hinted for
    // one scale are wrong in others.
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
    // Makes Qt load its fonts now, and warn now if the system has none.
    return QFontDatabase().families().contains(font.family());
}

} // namespace plix::tool
