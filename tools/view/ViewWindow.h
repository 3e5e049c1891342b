#pragma once

#include "view/CardEvents.h"
#include "view/CardPreview.h"
#include "view/PictureSource.h"
#include "view/ViewFiles.h"
#include "view/ViewFonts.h"
#include "view/ViewOptions.h"

#include <QMainWindow>
#include <QVector>

class QDockWidget;
class QLabel;
class QSettings;

namespace plix::tool {

class CardEditor;
class CardView;
class EventPane;
class FolderList;
class ItemDetails;
class ItemTree;
class MessageBar;
class ProblemList;
class SettingsPanel;

// The window of "plix view": a card beside its JSON.
class ViewWindow : public QMainWindow {
    Q_OBJECT

public:
    // `store` keeps the settings and must outlive the window. Throws ToolError if the file
    // cannot be read.
    ViewWindow(const ViewOptions& options, QSettings& store, const PreviewDelays& delays = {});
    ~ViewWindow() override;

    ViewFiles& files() { return files_; }

    // Returns whether it was done. Tells the user if it fails.
    bool exportPicture(const QString& path);
    void askForPicture();
    void copyPicture();
    void copyText();
    void clearEvents();
    void goToProblem(bool forward);
    void goToText(const ShownItem* item);

    CardEditor& editor() { return *editor_; }
    CardView& view() { return *view_; }
    SettingsPanel& settingsPanel() { return *settings_; }
    // The panes that can be hidden, in the order of their numbers in the menu.
    const QVector<QDockWidget*>& panes() const { return panes_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addPanes();
    QWidget* centralPane();
    QWidget* textPane();
    QDockWidget* addPane(Qt::DockWidgetArea area, const QString& title, QWidget* content);
    void addStatusLabels();
    void connectCard();
    void connectEditor();
    void connectItems();
    void connectEvents();
    void connectFiles();

    void applySettings();
    void updateCard();
    void updateProblems();
    void updateTitle();
    void outline(QGraphicsObject* item);
    void showItem(const ShownItem* item);
    void selectItemAtCursor();
    void updatePixelRatio(double scale);
    QImage picture();
    void restore(const QSettings& store);
    void remember();

    QSettings& store_;
    ViewFonts fonts_;
    PictureSource pictures_;
    CardEvents events_;
    CardPreview preview_;

    CardEditor* editor_;
    CardView* view_;
    SettingsPanel* settings_;
    ItemTree* items_;
    ItemDetails* details_;
    ProblemList* problems_;
    EventPane* eventPane_;
    FolderList* folder_;
    MessageBar* fileBar_; // about the file
    MessageBar* cardBar_; // about the card
    ViewFiles files_;
    QLabel* sizeLabel_;
    QLabel* placeLabel_;
    QLabel* problemLabel_;
    QVector<QDockWidget*> panes_;
    QDockWidget* eventDock_ = nullptr;
};

} // namespace plix::tool
