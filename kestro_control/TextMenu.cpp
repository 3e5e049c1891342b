#include "TextMenu.h"

#include "kestro_control/TextItem.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QGraphicsSceneContextMenuEvent>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

namespace kestro {

namespace {

// A word of the context menu of Qt's texts, in the language of the application.
QString QtWord(const char* word)
{
    return QCoreApplication::translate("QWidgetTextControl", word);
}

// The key, as a menu shows it behind the words of an action.
QString Shown(QKeySequence::StandardKey key)
{
    if (QCoreApplication::testAttribute(Qt::AA_DontShowShortcutsInContextMenus))
        return {};
    return QLatin1Char('\t') + QKeySequence(key).toString(QKeySequence::NativeText);
}

void AddCopy(QMenu& menu, TextItem& item, bool isSelectable)
{
    const QString key = isSelectable ? Shown(QKeySequence::Copy) : QString();
    QAction* const copy = menu.addAction(QtWord("&Copy") + key, &item, [&item, isSelectable] {
        QGuiApplication::clipboard()->setText(isSelectable ? item.SelectedText()
                                                           : item.toPlainText());
    });
    copy->setObjectName(QStringLiteral("edit-copy"));
    copy->setEnabled(!isSelectable || item.HasSelection());
}

// The viewport owns the menu.
void AddSelectAll(QMenu& menu, TextItem& item, QWidget* viewport,
                  const std::function<void(QWidget*)>& selectAll)
{
    QAction* const action = menu.addAction(QtWord("Select All") + Shown(QKeySequence::SelectAll),
                                           &item, [selectAll, viewport] { selectAll(viewport); });
    action->setObjectName(QStringLiteral("select-all"));
}

} // namespace

void ShowTextMenu(TextItem& item, const QGraphicsSceneContextMenuEvent& event,
                  const std::function<void(QWidget*)>& selectAll)
{
    const bool isSelectable = item.textInteractionFlags().testFlag(Qt::TextSelectableByMouse);
    auto* const menu = new QMenu(event.widget());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddCopy(*menu, item, isSelectable);
    if (isSelectable)
        AddSelectAll(*menu, item, event.widget(), selectAll);
    menu->popup(event.screenPos());
}

} // namespace kestro
