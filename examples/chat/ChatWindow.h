// A chat window with plain messages and cards: an example to copy from.
#pragma once

#include <plix/Plix.h>

#include <QMainWindow>
#include <QNetworkAccessManager>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>
#include <vector>

class QGraphicsView;
class QLineEdit;
class QScrollBar;

// One message as the chat's server delivers it.
struct ChatMessage {
    QString sender;
    QString content; // the JSON of a card, or the words of a plain message
    bool isCard = false;
    bool isOwn = false;
};

// Shows thousands of messages, because only those near the visible part have items.
class ChatWindow : public QMainWindow {
    Q_OBJECT

public:
    // Senders of cards choose the URLs of pictures. They are not fetched from there, but
    // from `pictureServer`, which gets the URL as its parameter "url". Otherwise senders
    // would learn the addresses of their readers, and could reach into their networks.
    explicit ChatWindow(const QUrl& pictureServer);
    ~ChatWindow() override;

    void add(const std::vector<ChatMessage>& messages);
    bool isLoadingPictures() const { return !loading_.isEmpty(); }

    // For the callbacks of cards. download() returns the path of a file, which does not
    // exist before the download is complete.
    QString download(const QString& url);
    void act(const ST_ACTION& action);
    void showStatus(const QString& text);

Q_SIGNALS:
    // The user has clicked a link of a card, which leads to a page on the web.
    void linkClicked(const QUrl& url);

private:
    class Row;

    void addControls();
    void addShortcuts();
    void say(const QString& text);
    void showMenu(const QPoint& place);
    void setLanguage(const QString& code);
    void highlight(const QString& words);
    void findOlder();
    // Builds the rows that are near the visible part, and places all rows.
    void arrange();
    void place();
    bool updateRows();
    Row& rowAt(double y) const;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

    const QUrl pictureServer_;
    QTemporaryDir pictures_;
    QSet<QString> loading_;
    QNetworkAccessManager network_;
    QGraphicsView* view_;
    QScrollBar* scrollBar_;
    QLineEdit* search_;
    QLineEdit* input_;
    std::vector<std::unique_ptr<Row>> rows_;
    QStringList words_;
    std::size_t found_ = 0; // where the search for older messages continues
    double zoom_ = 1;
    bool followsEnd_ = true;
    bool isArranging_ = false;
};
