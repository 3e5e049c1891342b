#include "view/FolderList.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalBlocker>

namespace plix::tool {

FolderList::FolderList(QWidget* parent)
    : QListWidget(parent)
{
    setAccessibleName(QStringLiteral("Cards of the folder"));
    setUniformItemSizes(true);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FolderList::readFolder);
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            Q_EMIT picked(pathOf(row));
    });
}

void FolderList::setFolder(const QString& folder)
{
    if (!watcher_.directories().isEmpty())
        watcher_.removePaths(watcher_.directories());
    folder_ = folder;
    if (!folder.isEmpty())
        watcher_.addPath(folder);
    readFolder();
}

void FolderList::readFolder()
{
    const QSignalBlocker blocker(this);
    clear();
    if (!folder_.isEmpty())
        addItems(QDir(folder_).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name));
    mark(marked_);
}

void FolderList::mark(const QString& path)
{
    const QSignalBlocker blocker(this);
    marked_ = path;
    const QFileInfo file(path);
    const bool isHere = !path.isEmpty() && file.absoluteDir() == QDir(folder_);
    const QList<QListWidgetItem*> found =
        isHere ? findItems(file.fileName(), Qt::MatchExactly) : QList<QListWidgetItem*>();
    setCurrentItem(found.value(0));
}

QString FolderList::neighbour(int step) const
{
    const int row = currentRow() + step;
    return row >= 0 && row < count() ? pathOf(row) : QString();
}

QString FolderList::pathOf(int row) const
{
    return QDir(folder_).filePath(item(row)->text());
}

} // namespace plix::tool
