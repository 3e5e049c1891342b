// A chat window with plain messages and cards: an example to copy from.
#pragma once

#include "MessageRow.h"
#include "PictureStore.h"

#include <QMainWindow>

#include <memory>
#include <vector>

class QGraphicsView;
class QLineEdit;
class QScrollBar;

// Shows thousands of messages, because only those near the visible part have items.
class ChatWindow : public QMainWindow, private CardClient {
    Q_OBJECT

public:
    // See PictureStore for `pictureServer`.
    explicit ChatWindow(const QUrl& pictureServer);
    ~ChatWindow() override;

    void add(const std::vector<ChatMessage>& messages);
    bool isLoadingPictures() const { return pictures_.isLoading(); }

Q_SIGNALS:
    // The user has clicked a link of a card, which leads to a page on the web.
    void linkClicked(const QUrl& url);

private:
    // ----- CardClient
    QString download(const QString& url) override { return pictures_.fetch(url); }
    void act(const ST_ACTION& action) override;
    void showUser(std::int64_t number) override;

    void initView();
    void addControls();
    void addShortcuts();
    void say(const QString& text);
    void showStatus(const QString& text);
    void showMenu(const QPoint& place);
    void setLanguage(const QString& code);
    void highlight(const QString& words);
    void findOlder();
    // Builds the rows that are near the visible part, and places all rows.
    void arrange();
    void place();
    // Whether rows have been built.
    bool updateRows();
    void build(MessageRow& row);
    MessageRow& rowAt(double y) const;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

    PictureStore pictures_;
    QGraphicsView* view_;
    QScrollBar* scrollBar_;
    QLineEdit* search_;
    QLineEdit* input_;
    std::vector<std::unique_ptr<MessageRow>> rows_;
    QStringList words_;
    std::size_t found_ = 0; // where the search for older messages continues
    double zoom_ = 1;
    bool followsEnd_ = true;
    bool isArranging_ = false;
};
