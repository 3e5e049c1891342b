#include "view/ViewMenus.h"

#include "view/CardEditor.h"
#include "view/CardView.h"
#include "view/EventPane.h"
#include "view/SettingsPanel.h"
#include "view/Templates.h"
#include "view/ViewWindow.h"

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>

namespace plix::tool {
namespace {

// Shows a pane, and gives its first control the focus.
void goTo(QDockWidget& pane)
{
    pane.show();
    pane.raise();
    for (QWidget* content : pane.widget()->findChildren<QWidget*>()) {
        if (content->focusPolicy() != Qt::NoFocus && content->isVisible())
            return content->setFocus(Qt::ShortcutFocusReason);
    }
    pane.widget()->setFocus(Qt::ShortcutFocusReason);
}

} // namespace

ViewMenus::ViewMenus(ViewWindow& window)
    : window_(window)
{
}

void ViewMenus::add()
{
    addFileMenu();
    addEditMenu();
    addViewMenu();
    addGoMenu();
}

QAction* ViewMenus::addAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                              const Function& function)
{
    QAction* const action = menu.addAction(text);
    action->setShortcut(keys);
    QObject::connect(action, &QAction::triggered, &window_, function);
    return action;
}

void ViewMenus::addFileMenu()
{
    ViewFiles* const files = &window_.files();
    ViewWindow* const window = &window_;
    QMenu& menu = *window_.menuBar()->addMenu(QStringLiteral("&File"));
    addAction(menu, QStringLiteral("&New"), QKeySequence::New,
              [files] { files->startWith(emptyCard()); });
    addTemplates(*menu.addMenu(QStringLiteral("New &from")));
    addAction(menu, QStringLiteral("&Open…"), QKeySequence::Open, [files] { files->askForFile(); });
    addAction(menu, QStringLiteral("Open fol&der…"), QKeySequence(QStringLiteral("Ctrl+Shift+O")),
              [files] { files->askForFolder(); });
    addAction(menu, QStringLiteral("&Reload"), QKeySequence::Refresh, [files] { files->reload(); });
    menu.addSeparator();
    addAction(menu, QStringLiteral("&Save"), QKeySequence::Save, [files] { files->save(); });
    addAction(menu, QStringLiteral("Save &as…"), QKeySequence(QStringLiteral("Ctrl+Shift+S")),
              [files] { files->saveAs(); });
    addAction(menu, QStringLiteral("&Export picture…"), QKeySequence(QStringLiteral("Ctrl+E")),
              [window] { window->cardExport().askForPicture(window->files().path()); });
    menu.addSeparator();
    addAction(menu, QStringLiteral("&Quit"), QKeySequence::Quit, [window] { window->close(); });
}

void ViewMenus::addTemplates(QMenu& menu)
{
    ViewFiles* const files = &window_.files();
    for (const TemplateGroup& group : templateGroups()) {
        QMenu& cards = *menu.addMenu(QLatin1Char('&') + group.title);
        for (const CardTemplate& card : group.cards)
            addAction(cards, card.title, {},
                      [files, card] { files->startWith(templateText(card)); });
    }
}

void ViewMenus::addEditMenu()
{
    CardExport* const card = &window_.cardExport();
    CardEditor* const editor = window_.widgets().editor;
    EventPane* const events = window_.widgets().events;
    QMenu& menu = *window_.menuBar()->addMenu(QStringLiteral("&Edit"));
    addAction(menu, QStringLiteral("&Undo"), {}, [editor] { editor->undo(); });
    addAction(menu, QStringLiteral("&Redo"), {}, [editor] { editor->redo(); });
    addAction(menu, QStringLiteral("&Complete the word"),
              QKeySequence(QStringLiteral("Ctrl+Space")), [editor] { editor->complete(); });
    menu.addSeparator();
    addAction(menu, QStringLiteral("Copy &picture"), QKeySequence(QStringLiteral("Ctrl+Shift+C")),
              [card] { card->copyPicture(); });
    addAction(menu, QStringLiteral("Copy &text of the card"),
              QKeySequence(QStringLiteral("Ctrl+Shift+T")), [card] { card->copyText(); });
    addAction(menu, QStringLiteral("C&lear the events"), QKeySequence(QStringLiteral("Ctrl+L")),
              [events] { events->clearAll(); });
}

void ViewMenus::addViewMenu()
{
    CardView* const view = window_.widgets().view;
    SettingsPanel* const settings = window_.widgets().settings;
    QMenu& menu = *window_.menuBar()->addMenu(QStringLiteral("&View"));
    addAction(menu, QStringLiteral("Zoom &in"), QKeySequence::ZoomIn, [view] { view->zoomIn(); });
    addAction(menu, QStringLiteral("Zoom &out"), QKeySequence::ZoomOut,
              [view] { view->zoomOut(); });
    addAction(menu, QStringLiteral("&Normal size"), QKeySequence(QStringLiteral("Ctrl+0")),
              [view] { view->resetZoom(); });
    addAction(menu, QStringLiteral("&Dark or light chat"), QKeySequence(QStringLiteral("Ctrl+D")),
              [settings] { settings->toggleDark(); });
    menu.addSeparator();
    for (QDockWidget* pane : window_.panes().docks())
        menu.addAction(pane->toggleViewAction());
}

void ViewMenus::addGoMenu()
{
    ViewFiles* const files = &window_.files();
    ViewWindow* const window = &window_;
    const ViewWidgets widgets = window_.widgets();
    QMenu& menu = *window_.menuBar()->addMenu(QStringLiteral("&Go"));
    addAction(menu, QStringLiteral("&Next problem"), QKeySequence(Qt::Key_F8),
              [window] { window->goToProblem(true); });
    addAction(menu, QStringLiteral("&Previous problem"), QKeySequence(QStringLiteral("Shift+F8")),
              [window] { window->goToProblem(false); });
    addAction(menu, QStringLiteral("Next &card"), QKeySequence(QStringLiteral("Ctrl+PgDown")),
              [files] { files->openNeighbour(1); });
    addAction(menu, QStringLiteral("Previous c&ard"), QKeySequence(QStringLiteral("Ctrl+PgUp")),
              [files] { files->openNeighbour(-1); });
    menu.addSeparator();
    int number = 1;
    const auto addPlace = [&](const QString& name, const Function& function) {
        addAction(menu, QStringLiteral("&%1 %2").arg(number).arg(name),
                  QKeySequence(QStringLiteral("Ctrl+%1").arg(number)), function);
        ++number;
    };
    addPlace(QStringLiteral("JSON"), [widgets] { widgets.editor->setFocus(); });
    addPlace(QStringLiteral("Card"), [widgets] { widgets.view->setFocus(); });
    for (QDockWidget* pane : window_.panes().docks())
        addPlace(pane->windowTitle(), [pane] { goTo(*pane); });
}

} // namespace plix::tool
