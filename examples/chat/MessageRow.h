#pragma once

#include <plix/Plix.h>

#include <QString>
#include <QStringList>

#include <memory>

class QGraphicsObject;
class QGraphicsScene;
class QGraphicsSimpleTextItem;

// One message as the chat's server delivers it.
struct ChatMessage {
    QString sender;
    QString content; // the JSON of a card, or the words of a plain message
    bool isCard = false;
    bool isOwn = false;
};

// What cards ask of the chat that shows them.
class CardClient {
public:
    // Returns the path of the picture's file, which need not exist yet.
    virtual QString download(const QString& url) = 0;
    // May delete the card.
    virtual void act(const ST_ACTION& action) = 0;
    virtual void showUser(std::int64_t number) = 0;

protected:
    ~CardClient() = default;
};

// A message in the chat: the sender's name, and a card or a bubble with words below it.
class MessageRow {
public:
    explicit MessageRow(const ChatMessage& message);
    ~MessageRow();
    Q_DISABLE_COPY(MessageRow)

    const ChatMessage& message() const { return message_; }

    // The row has items in a scene between these. `client` must live as long as they.
    void build(QGraphicsScene& scene, CardClient& client);
    void release();
    bool isBuilt() const { return bubble_ != nullptr; }

    // What the bubble says. The row must be built.
    QString text() const;
    void highlight(const QStringList& words);

    // A bubble that is too wide for `width` becomes smaller as a whole.
    void place(double top, double width, double zoom, double pixelRatio);
    double top() const { return top_; }
    double bottom() const { return top_ + height_; }

private:
    void buildCard(CardClient& client);
    void nameForScreenReaders();

    const ChatMessage message_;
    PlixDataController* card_ = nullptr; // null for a bubble with words
    std::unique_ptr<QGraphicsObject> bubble_;
    std::unique_ptr<QGraphicsSimpleTextItem> name_;
    double top_ = 0;
    double height_ = 250; // a guess, until there is a bubble
};
