#pragma once

#include "view/CardDocument.h"

#include <QObject>
#include <QString>

namespace plix::tool {

class CardEditor;
class FolderList;
class MessageBar;

// Brings cards from files into the editor and back. Asks what to do with unsaved changes,
// and tells the user if something fails.
class ViewFiles : public QObject {
    Q_OBJECT

public:
    // `bar` asks what to do when another program changes the file. All must outlive this.
    ViewFiles(QWidget& window, CardEditor& editor, FolderList& folder, MessageBar& bar);

    // Empty for a new card.
    const QString& path() const { return document_.path(); }

    // Opens a card, the first card of a folder, or a new card if `input` is empty. Throws
    // ToolError. Asks nothing.
    void open(const QString& input);

    // These return whether it was done.
    bool openFile(const QString& path);
    bool openFolder(const QString& folder);
    bool startWith(const QString& text);
    bool saveFile(const QString& path);
    bool save();
    bool saveAs();

    void askForFile();
    void askForFolder();
    void reload();
    // Opens the card that is `step` rows below the current one.
    void openNeighbour(int step);

    // Asks what to do with unsaved changes. False: the user wants to stay.
    bool mayLeave();

Q_SIGNALS:
    // The editor has another text, which is not the user's.
    void replaced();
    // The card has another file.
    void pathChanged();
    // Something to show for a moment.
    void told(const QString& message);

private:
    void addButtons();
    void showText(const QString& text);
    void takeChangeOnDisk(const QString& text);
    void replaceText(const QString& text);

    QWidget& window_;
    CardEditor& editor_;
    FolderList& folder_;
    MessageBar& bar_;
    CardDocument document_;
    QString textOnDisk_; // that the user may load
};

} // namespace plix::tool
