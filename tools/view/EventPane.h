#pragma once

#include <plix/Plix.h>

#include <QHash>
#include <QTabWidget>
#include <QTreeWidget>

namespace plix::tool {

// What cards have told their host: a tab for clicks, mentions, pictures and log lines.
class EventPane : public QTabWidget {
public:
    explicit EventPane(QWidget* parent = nullptr);

    void addClick(const ST_ACTION& action);
    void addMention(const QString& kind, qint64 userNo);
    void setPicture(const QString& url, const QString& state);
    void addLogLine(const QString& line);

    // Empties the lists that are about one card as it is built.
    void clearBuild();
    void clearAll();

private:
    QTreeWidget* addList(const QString& title, const QStringList& columns);
    void addRow(QTreeWidget& list, QTreeWidgetItem* row);

    QTreeWidget* clicks_;
    QTreeWidget* mentions_;
    QTreeWidget* pictures_;
    QTreeWidget* log_;
    QHash<QString, QTreeWidgetItem*> pictureRows_;
};

} // namespace plix::tool
