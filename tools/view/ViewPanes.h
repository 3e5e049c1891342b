#pragma once

#include "view/ViewWidgets.h"

#include <QMainWindow>
#include <QVector>

class QDockWidget;
class QSettings;
class QSplitter;

namespace plix::tool {

// Arranges the widgets of the window: the text and the card in its middle, the others in
// panes around them. Remembers how the user has arranged them.
class ViewPanes {
public:
    // Gives the widgets to the window.
    ViewPanes(QMainWindow& window, const ViewWidgets& widgets);

    // Those that can be hidden, in the order of their numbers in the menu.
    const QVector<QDockWidget*>& docks() const { return docks_; }
    void showEvents();

    void restore(const QSettings& store);
    void remember(QSettings& store) const;

private:
    void addCentre(const ViewWidgets& widgets);
    void addDocks(const ViewWidgets& widgets);
    QDockWidget* addDock(Qt::DockWidgetArea area, const QString& title, QWidget* content);

    QMainWindow& window_;
    QSplitter* centre_; // the window owns it
    QVector<QDockWidget*> docks_;
    QDockWidget* events_ = nullptr;
};

} // namespace plix::tool
