#pragma once

#include <QFileSystemWatcher>
#include <QListWidget>

namespace plix::tool {

// The cards of a folder, to switch among.
class FolderList : public QListWidget {
    Q_OBJECT

public:
    explicit FolderList(QWidget* parent = nullptr);

    void setFolder(const QString& folder);
    const QString& folder() const { return folder_; }

    // Marks the card of this path; emits nothing.
    void mark(const QString& path);
    // The path of the card that is `step` rows below the current one; empty if there
    // is none.
    QString neighbour(int step) const;

Q_SIGNALS:
    // The user wants to see this card.
    void picked(const QString& path);

private:
    void readFolder();
    QString pathOf(int row) const;

    QString folder_;
    QString marked_;
    QFileSystemWatcher watcher_;
};

} // namespace plix::tool
