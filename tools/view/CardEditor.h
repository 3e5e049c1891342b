#pragma once

#include "check/Finding.h"
#include "view/Completions.h"

#include <QPlainTextEdit>
#include <QTextCursor>

#include <vector>

class QCompleter;
class QStandardItemModel;

namespace plix::tool {

// Edits the JSON of a card: colours it, underlines its problems, and completes names and
// words of the card format.
class CardEditor : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit CardEditor(QWidget* parent = nullptr);

    // The text in UTF-8. Unlike toPlainText(), keeps every character.
    QByteArray json() const;
    // Replaces the text, as one step that can be undone.
    void replaceText(const QString& text);

    // Underlines the findings. They move with the text that is edited.
    void setFindings(const QByteArray& json, const Findings& findings);
    // Moves the cursor to the finding of this index.
    void goToFinding(std::size_t index);
    // Moves the cursor to the next finding, or the one before; returns its index, or -1.
    int goToNextFinding(bool forward);

    void selectRange(int begin, int end);

public Q_SLOTS:
    void complete();

Q_SIGNALS:
    // What the marked completion means.
    void completionDescribed(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Problem {
        QTextCursor cursor;
        QString message;
    };

    void popUp(bool isAsked);
    void insertCompletion(const QModelIndex& row);
    void indentNewLine();
    QString textOfDocument() const;
    QString problemsAt(int position) const;

    QStandardItemModel* words_;
    QCompleter* completer_;
    JsonCursor place_; // of the completions
    std::vector<Completion> completions_;
    std::vector<Problem> problems_;
};

} // namespace plix::tool
