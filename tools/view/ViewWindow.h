#pragma once

#include "view/CardEvents.h"
#include "view/CardExport.h"
#include "view/CardPreview.h"
#include "view/ItemSelection.h"
#include "view/PictureSource.h"
#include "view/ViewFiles.h"
#include "view/ViewFonts.h"
#include "view/ViewOptions.h"
#include "view/ViewPanes.h"
#include "view/ViewWidgets.h"

#include <QMainWindow>

class QLabel;

namespace plix::tool {

// The window of "plix view": a card beside its JSON.
class ViewWindow : public QMainWindow {
    Q_OBJECT

public:
    // `store` keeps the settings and must outlive the window. Throws ToolError if the file
    // cannot be read.
    ViewWindow(const ViewOptions& options, QSettings& store, const PreviewDelays& delays = {});
    ~ViewWindow() override;

    const ViewWidgets& widgets() const { return widgets_; }
    const ViewPanes& panes() const { return panes_; }
    ViewFiles& files() { return files_; }
    CardExport& cardExport() { return export_; }

    void goToProblem(bool forward);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addStatusLabels();
    void connectCard();
    void connectEditor();
    void connectEvents();
    void connectFiles();

    void updateCard();
    void updateProblems();
    void updateTitle();
    void updatePixelRatio(double scale);
    void applySettings();
    void remember();
    void tell(const QString& message);

    QSettings& store_;
    ViewFonts fonts_;
    PictureSource pictures_;
    CardEvents events_;
    CardPreview preview_;

    ViewWidgets widgets_;
    ViewPanes panes_;
    ItemSelection selection_;
    ViewFiles files_;
    CardExport export_;
    QLabel* sizeLabel_;
    QLabel* placeLabel_;
    QLabel* problemLabel_;
};

} // namespace plix::tool
