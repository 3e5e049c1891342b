#include "view/CardEditor.h"

#include "view/JsonHighlighter.h"
#include "view/TextPositions.h"
#include "view/ToolTipText.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTextBlock>
#include <QToolTip>

#include <algorithm>

namespace plix::tool {
namespace {

constexpr int kCompletionRole = Qt::UserRole; // the index of the completion
constexpr int kTabColumns = 4;

const QColor kErrorColor(0xD9, 0x1E, 0x18);
const QColor kWarningColor(0xC2, 0x7A, 0x00);

bool belongsToCompletionList(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

// Whether names and words are offered after this was typed.
bool beginsWord(const QString& typed)
{
    static const QString others = QStringLiteral("\"-");
    return !typed.isEmpty() && (typed.at(0).isLetterOrNumber() || others.contains(typed.at(0)));
}

QTextCharFormat underline(Severity severity)
{
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(severity == Severity::Error ? kErrorColor : kWarningColor);
    return format;
}

QString messageOf(const Finding& finding)
{
    return finding.mend.isEmpty() ? finding.message
                                  : finding.message + QStringLiteral("; try ") + finding.mend;
}

} // namespace

CardEditor::CardEditor(QWidget* parent)
    : QPlainTextEdit(parent)
    , words_(new QStandardItemModel(this))
    , completer_(new QCompleter(words_, this))
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabStopDistance(kTabColumns * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    setAccessibleName(QStringLiteral("JSON of the card"));
    new JsonHighlighter(document(), palette().base().color().lightness() < 128);
    completer_->setWidget(this);
    completer_->setCaseSensitivity(Qt::CaseInsensitive);
    completer_->setCompletionMode(QCompleter::PopupCompletion);
    connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            &CardEditor::insertCompletion);
    connect(completer_, qOverload<const QModelIndex&>(&QCompleter::highlighted), this,
            [this](const QModelIndex& row) {
                Q_EMIT completionDescribed(row.data(Qt::ToolTipRole).toString());
            });
}

// QPlainTextEdit::toPlainText() would turn no-break spaces into blanks.
QString CardEditor::textOfDocument() const
{
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text;
}

QByteArray CardEditor::json() const
{
    return textOfDocument().toUtf8();
}

void CardEditor::replaceText(const QString& text)
{
    const int position = textCursor().position();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    cursor.endEditBlock();
    selectRange(position, position);
}

void CardEditor::setFindings(const QByteArray& json, const Findings& findings)
{
    problems_.clear();
    QList<QTextEdit::ExtraSelection> selections;
    const TextPositions positions(json);
    const int last = document()->characterCount() - 1;
    for (const Finding& finding : findings) {
        QTextCursor cursor(document());
        const int begin = std::min(positions.toCharacter(finding.range.begin), last);
        const int end = std::clamp(positions.toCharacter(finding.range.end), begin, last);
        cursor.setPosition(begin);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        selections.append({cursor, underline(description(finding.rule).severity)});
        problems_.push_back({cursor, messageOf(finding)});
    }
    setExtraSelections(selections);
}

void CardEditor::goToFinding(std::size_t index)
{
    if (index >= problems_.size())
        return;
    const QTextCursor& cursor = problems_[index].cursor;
    selectRange(cursor.selectionStart(), cursor.selectionEnd());
}

int CardEditor::goToNextFinding(bool forward)
{
    const int position = textCursor().selectionStart();
    const auto comesAfter = [position](const Problem& problem) {
        return problem.cursor.selectionStart() > position;
    };
    const auto isHereOrAfter = [position](const Problem& problem) {
        return problem.cursor.selectionStart() >= position;
    };
    if (problems_.empty())
        return -1;
    // The findings are in the order of the text. After the last one comes the first.
    const auto next = std::find_if(problems_.begin(), problems_.end(), comesAfter);
    const auto here = std::find_if(problems_.begin(), problems_.end(), isHereOrAfter);
    const auto after = next == problems_.end() ? problems_.begin() : next;
    const auto before = (here == problems_.begin() ? problems_.end() : here) - 1;
    const auto index = (forward ? after : before) - problems_.begin();
    goToFinding(static_cast<std::size_t>(index));
    return static_cast<int>(index);
}

void CardEditor::selectRange(int begin, int end)
{
    const int last = document()->characterCount() - 1;
    QTextCursor cursor(document());
    // The cursor is at the beginning, so that the beginning is visible.
    cursor.setPosition(std::clamp(end, 0, last));
    cursor.setPosition(std::clamp(begin, 0, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    centerCursor();
    // Shows the line from its beginning, if the cursor is visible then.
    horizontalScrollBar()->setValue(0);
    ensureCursorVisible();
}

void CardEditor::complete()
{
    popUp(true);
}

void CardEditor::keyPressEvent(QKeyEvent* event)
{
    const bool isListOpen = completer_->popup()->isVisible();
    if (isListOpen && belongsToCompletionList(*event)) {
        event->ignore(); // the list takes them
        return;
    }
    const bool isNewLine = event->key() == Qt::Key_Return && event->modifiers() == Qt::NoModifier;
    if (isNewLine)
        indentNewLine();
    else
        QPlainTextEdit::keyPressEvent(event);
    const bool isShortened = isListOpen && event->key() == Qt::Key_Backspace;
    if (beginsWord(event->text()) || isShortened)
        popUp(false);
    else if (!event->text().isEmpty())
        completer_->popup()->hide();
}

// A new line begins below the line before it.
void CardEditor::indentNewLine()
{
    const QString line = textCursor().block().text();
    int indent = 0;
    while (indent < textCursor().positionInBlock() && indent < line.size()
           && line.at(indent).isSpace())
        ++indent;
    textCursor().insertText(QLatin1Char('\n') + line.left(indent));
    ensureCursorVisible();
}

void CardEditor::popUp(bool isAsked)
{
    place_ = jsonCursorAt(textOfDocument(), textCursor().position());
    completions_ = completionsAt(place_);
    words_->clear();
    for (std::size_t i = 0; i < completions_.size(); ++i) {
        auto* const row = new QStandardItem(completions_[i].word);
        row->setToolTip(completions_[i].description);
        row->setData(static_cast<int>(i), kCompletionRole);
        words_->appendRow(row);
    }
    completer_->setCompletionPrefix(place_.prefix);
    const bool isComplete =
        completer_->completionCount() == 1 && completer_->currentCompletion() == place_.prefix;
    if (completer_->completionCount() == 0 || (isComplete && !isAsked)) {
        completer_->popup()->hide();
        return;
    }
    QAbstractItemView* const list = completer_->popup();
    list->setCurrentIndex(completer_->completionModel()->index(0, 0));
    QRect place = cursorRect();
    place.setWidth(list->sizeHintForColumn(0) + list->verticalScrollBar()->sizeHint().width());
    completer_->complete(place);
}

void CardEditor::insertCompletion(const QModelIndex& row)
{
    const auto index = static_cast<std::size_t>(row.data(kCompletionRole).toInt());
    if (index >= completions_.size())
        return;
    const Completion& completion = completions_[index];
    QTextCursor cursor = textCursor();
    cursor.setPosition(place_.begin);
    cursor.setPosition(place_.end, QTextCursor::KeepAnchor);
    cursor.insertText(completion.text);
    cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, completion.cursorFromEnd);
    setTextCursor(cursor);
    Q_EMIT completionDescribed({});
}

bool CardEditor::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QPlainTextEdit::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QPoint place = viewport()->mapFromGlobal(help->globalPos());
    const QString text = problemsAt(cursorForPosition(place).position());
    QToolTip::showText(help->globalPos(), text.isEmpty() ? text : toolTipOf(text), this);
    return true;
}

QString CardEditor::problemsAt(int position) const
{
    QStringList messages;
    for (const Problem& problem : problems_) {
        if (problem.cursor.selectionStart() <= position
            && position <= problem.cursor.selectionEnd())
            messages.append(problem.message);
    }
    return messages.join(QLatin1Char('\n'));
}

} // namespace plix::tool
