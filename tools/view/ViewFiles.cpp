#include "view/ViewFiles.h"

#include "view/Attempt.h"
#include "view/CardEditor.h"
#include "view/FolderList.h"
#include "view/MessageBar.h"
#include "view/Templates.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextDocument>

namespace plix::tool {
namespace {

const QString kCardFilter = QStringLiteral("Cards (*.json)");

} // namespace

ViewFiles::ViewFiles(QWidget& window, CardEditor& editor, FolderList& folder, MessageBar& bar)
    : window_(window)
    , editor_(editor)
    , folder_(folder)
    , bar_(bar)
{
    addButtons();
    connect(&document_, &CardDocument::changedOnDisk, this, &ViewFiles::takeChangeOnDisk);
    connect(&folder_, &FolderList::picked, this, [this](const QString& path) {
        if (!openFile(path))
            folder_.mark(document_.path());
    });
}

void ViewFiles::addButtons()
{
    bar_.addButton(QStringLiteral("&Use the file"), [this] {
        bar_.setText({});
        replaceText(textOnDisk_);
    });
    bar_.addButton(QStringLiteral("Keep m&y text"), [this] { bar_.setText({}); });
}

void ViewFiles::open(const QString& input)
{
    const QFileInfo file(input);
    if (file.isDir()) {
        folder_.setFolder(input);
        const QString first = folder_.neighbour(1);
        showText(first.isEmpty() ? emptyCard() : document_.open(first));
    } else {
        if (!input.isEmpty())
            folder_.setFolder(file.absolutePath());
        showText(input.isEmpty() ? emptyCard() : document_.open(input));
    }
}

void ViewFiles::showText(const QString& text)
{
    bar_.setText({});
    editor_.setPlainText(text);
    editor_.document()->setModified(false);
    folder_.mark(document_.path());
    Q_EMIT pathChanged();
    Q_EMIT replaced();
    if (document_.isDamaged())
        Q_EMIT told(QStringLiteral("The file is not UTF-8: its bad bytes are shown as \uFFFD."));
}

bool ViewFiles::openFile(const QString& path)
{
    return mayLeave() && attempt(window_, [&] { showText(document_.open(path)); });
}

bool ViewFiles::openFolder(const QString& folder)
{
    return mayLeave() && attempt(window_, [&] { open(folder); });
}

bool ViewFiles::startWith(const QString& text)
{
    if (!mayLeave())
        return false;
    document_.close();
    showText(text);
    return true;
}

bool ViewFiles::saveFile(const QString& path)
{
    return attempt(window_, [&] {
        document_.save(path, QString::fromUtf8(editor_.json()));
        editor_.document()->setModified(false);
        bar_.setText({});
        folder_.mark(path);
        Q_EMIT pathChanged();
        Q_EMIT told(QStringLiteral("Saved"));
    });
}

bool ViewFiles::save()
{
    return document_.path().isEmpty() ? saveAs() : saveFile(document_.path());
}

bool ViewFiles::saveAs()
{
    const QString path = QFileDialog::getSaveFileName(&window_, QStringLiteral("Save the card"),
                                                      document_.path(), kCardFilter);
    return !path.isEmpty() && saveFile(path);
}

void ViewFiles::askForFile()
{
    const QString path = QFileDialog::getOpenFileName(&window_, QStringLiteral("Open a card"),
                                                      document_.path(), kCardFilter);
    if (!path.isEmpty() && mayLeave())
        attempt(window_, [&] { open(path); });
}

void ViewFiles::askForFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(
        &window_, QStringLiteral("Open a folder of cards"), folder_.folder());
    if (!folder.isEmpty())
        openFolder(folder);
}

void ViewFiles::reload()
{
    if (!document_.path().isEmpty())
        openFile(document_.path());
}

void ViewFiles::openNeighbour(int step)
{
    const QString path = folder_.neighbour(step);
    if (!path.isEmpty())
        openFile(path);
}

void ViewFiles::takeChangeOnDisk(const QString& text)
{
    if (text.toUtf8() == editor_.json())
        return;
    if (editor_.document()->isModified()) {
        textOnDisk_ = text;
        bar_.setText(QStringLiteral("Another program has changed the file."));
        return;
    }
    replaceText(text);
}

// The user can undo this.
void ViewFiles::replaceText(const QString& text)
{
    editor_.replaceText(text);
    editor_.document()->setModified(false);
    Q_EMIT replaced();
}

bool ViewFiles::mayLeave()
{
    if (!editor_.document()->isModified())
        return true;
    const auto answer = QMessageBox::question(
        &window_, QStringLiteral("Plix"), QStringLiteral("Save the changes of this card?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

} // namespace plix::tool
