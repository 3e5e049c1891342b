#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>

class QAction;
class QMenu;

namespace plix::tool {

class ViewWindow;

// The menus of the window, by which the keyboard reaches everything.
class ViewMenus {
public:
    explicit ViewMenus(ViewWindow& window);

    void add();

private:
    using Function = std::function<void()>;

    void addFileMenu();
    void addTemplates(QMenu& menu);
    void addEditMenu();
    void addViewMenu();
    void addGoMenu();
    QAction* addAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                       const Function& function);

    ViewWindow& window_;
};

} // namespace plix::tool
