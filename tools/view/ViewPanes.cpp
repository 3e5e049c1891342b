#include "view/ViewPanes.h"

#include "view/CardEditor.h"
#include "view/CardView.h"
#include "view/EventPane.h"
#include "view/FolderList.h"
#include "view/ItemDetails.h"
#include "view/ItemTree.h"
#include "view/MessageBar.h"
#include "view/ProblemList.h"
#include "view/SettingsPanel.h"

#include <QDockWidget>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>

namespace plix::tool {
namespace {

constexpr QSize kFirstSize(1280, 800);
constexpr int kBottomHeight = 150;
const QList<int> kSideWidths {160, 330};
const QList<int> kCentralWidths {430, 350};

const QString kGeometry = QStringLiteral("window/geometry");
const QString kState = QStringLiteral("window/state");
const QString kSplitter = QStringLiteral("window/splitter");

// A widget with a line above it.
QWidget* columnOf(QWidget* bar, QWidget* content)
{
    auto* const pane = new QWidget;
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(bar);
    column->addWidget(content, 1);
    return pane;
}

QWidget* scrolled(QWidget* content)
{
    auto* const area = new QScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

QWidget* stacked(QWidget* upper, QWidget* lower)
{
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(upper);
    splitter->addWidget(lower);
    return splitter;
}

} // namespace

ViewPanes::ViewPanes(QMainWindow& window, const ViewWidgets& widgets)
    : window_(window)
    , centre_(new QSplitter)
{
    window_.resize(kFirstSize);
    addCentre(widgets);
    addDocks(widgets);
}

void ViewPanes::addCentre(const ViewWidgets& widgets)
{
    centre_->addWidget(columnOf(widgets.fileBar, widgets.editor));
    centre_->addWidget(columnOf(widgets.cardBar, widgets.view));
    centre_->setChildrenCollapsible(false);
    centre_->setSizes(kCentralWidths);
    centre_->setStretchFactor(0, 1);
    window_.setCentralWidget(centre_);
}

void ViewPanes::addDocks(const ViewWidgets& widgets)
{
    QDockWidget* const folder =
        addDock(Qt::LeftDockWidgetArea, QStringLiteral("Folder"), widgets.folder);
    QDockWidget* const items = addDock(Qt::RightDockWidgetArea, QStringLiteral("Items"),
                                       stacked(widgets.items, widgets.details));
    QDockWidget* const settings =
        addDock(Qt::RightDockWidgetArea, QStringLiteral("Settings"), scrolled(widgets.settings));
    QDockWidget* const problems =
        addDock(Qt::BottomDockWidgetArea, QStringLiteral("Problems"), widgets.problems);
    events_ = addDock(Qt::BottomDockWidgetArea, QStringLiteral("Events"), widgets.events);
    window_.tabifyDockWidget(items, settings);
    items->raise();
    window_.tabifyDockWidget(problems, events_);
    problems->raise();
    window_.resizeDocks({folder, items}, kSideWidths, Qt::Horizontal);
    window_.resizeDocks({problems}, {kBottomHeight}, Qt::Vertical);
}

QDockWidget* ViewPanes::addDock(Qt::DockWidgetArea area, const QString& title, QWidget* content)
{
    auto* const dock = new QDockWidget(title);
    dock->setObjectName(title);
    dock->setWidget(content);
    window_.addDockWidget(area, dock);
    docks_.append(dock);
    return dock;
}

void ViewPanes::showEvents()
{
    events_->raise();
}

void ViewPanes::restore(const QSettings& store)
{
    window_.restoreGeometry(store.value(kGeometry).toByteArray());
    window_.restoreState(store.value(kState).toByteArray());
    const QByteArray sizes = store.value(kSplitter).toByteArray();
    if (!sizes.isEmpty())
        centre_->restoreState(sizes);
}

void ViewPanes::remember(QSettings& store) const
{
    store.setValue(kGeometry, window_.saveGeometry());
    store.setValue(kState, window_.saveState());
    store.setValue(kSplitter, centre_->saveState());
}

} // namespace plix::tool
