#pragma once

#include "view/CardEditor.h"
#include "view/CardView.h"
#include "view/EventPane.h"
#include "view/FolderList.h"
#include "view/ItemTree.h"
#include "view/ProblemList.h"
#include "view/SettingsPanel.h"
#include "view/ViewWindow.h"

#include "support/PlatformMessages.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

class QMessageBox;

namespace plix::test {

// A card whose body is a column of these components.
QString cardWith(const QString& components);

// A text component.
QString textItem(const QString& text);

// The window of "plix view", used by mouse and keyboard. Its files and settings are in a
// temporary folder.
class View : public testing::Test {
protected:
    View();
    ~View() override;

    // Opens the window with this file or folder.
    void show(const QString& input, const tool::CardOptions& options = {});
    void showCard(const QString& json, const tool::CardOptions& options = {});
    void close();

    tool::ViewWindow& window() { return *window_; }
    tool::CardEditor& editor() { return find<tool::CardEditor>(); }
    tool::CardView& view() { return find<tool::CardView>(); }
    tool::ItemTree& tree() { return find<tool::ItemTree>(); }
    tool::ProblemList& problems() { return find<tool::ProblemList>(); }
    tool::EventPane& events() { return find<tool::EventPane>(); }
    tool::FolderList& folder() { return find<tool::FolderList>(); }
    tool::SettingsPanel& settings() { return find<tool::SettingsPanel>(); }

    template <typename Widget> Widget& find(const QString& name = {})
    {
        for (Widget* widget : window_->findChildren<Widget*>()) {
            if (name.isEmpty() || widget->accessibleName() == name)
                return *widget;
        }
        throw std::logic_error("no such widget");
    }

    // The control with this label, without its mnemonic.
    QWidget& control(const QString& label);

    // The texts of the card that is shown.
    QString shownText();
    // Waits until the card shows this text.
    bool waitForText(const QString& text);
    // The items of the card that show this text.
    QGraphicsObject* itemOf(const QString& text);
    QPoint pixelOf(const QGraphicsObject& item);
    void clickItem(const QString& text, Qt::KeyboardModifiers modifiers = {});

    void replaceAll(const QString& text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    // Activates the menu entry with this text, as its shortcut does.
    void choose(const QString& entry);
    QTreeWidgetItem* rowOf(QTreeWidget& tree, const QString& text, int column = 0);
    void clickRow(QTreeWidget& tree, QTreeWidgetItem& row);
    // Clicks this button of the next message box.
    void answerNextQuestion(int standardButton);
    QString barText();

    QString path(const QString& name) const { return folder_.filePath(name); }
    void write(const QString& name, const QByteArray& bytes) const;
    QByteArray read(const QString& name) const;

    QImage shown() { return view().viewport()->grab().toImage(); }

private:
    const PlatformMessages platform_;
    QTemporaryDir folder_;
    std::unique_ptr<QSettings> store_;
    std::unique_ptr<tool::ViewWindow> window_;
};

} // namespace plix::test
