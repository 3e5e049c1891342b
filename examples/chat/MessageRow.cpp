#include "MessageRow.h"

#include <kestro_control/TextItem.h>

#include <QtWidgets>

#include <algorithm>
#include <iostream>
#include <list>
#include <utility>

namespace {

constexpr double kMargin = 12;
constexpr double kNameHeight = 18;
constexpr double kMaximumTextWidth = 320;

// The words of a message, with the colours of a card.
class TextBubble : public TextItem {
public:
    TextBubble(const QString& text, bool isOwn)
        : color_(isOwn ? 0xC0EAFC : 0xF1F3F7)
    {
        InsertRichText(text, true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        if (TextItem::boundingRect().width() > kMaximumTextWidth)
            SetFixedItemWidth(kMaximumTextWidth);
    }

    QRectF boundingRect() const override
    {
        return TextItem::boundingRect().adjusted(-kMargin, -kMargin, kMargin, kMargin);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override
    {
        painter->setPen(Qt::NoPen);
        painter->setBrush(color_);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawRoundedRect(boundingRect(), kMargin, kMargin);
        TextItem::paint(painter, option, widget);
    }

private:
    QColor color_;
};

// The library logs during the call that reads or builds a card: the line is about this one's.
std::string currentSender;

void PLIX_CALL logLine(const char* line)
{
    std::clog << "A card of " << currentSender << ": " << line << std::endl;
}

// Deleting an item that is in a scene takes the longer, the more items there are.
void removeFromScene(QGraphicsItem* item)
{
    if (item && item->scene())
        item->scene()->removeItem(item);
}

void PLIX_CALL onClick(PlixDataController*, ST_ACTION& action, void* client)
{
    static_cast<CardClient*>(client)->act(action);
}

void PLIX_CALL onMention(std::int64_t number, void* client)
{
    static_cast<CardClient*>(client)->showUser(number);
}

std::string PLIX_CALL onDownload(PlixDataController*, const std::string& url, void* client)
{
    const QString path = static_cast<CardClient*>(client)->download(QString::fromStdString(url));
    return path.toStdString();
}

} // namespace

MessageRow::MessageRow(const ChatMessage& message)
    : message_(message)
{
}

MessageRow::~MessageRow()
{
    release();
}

void MessageRow::build(QGraphicsScene& scene, CardClient& client)
{
    if (isBuilt())
        return;
    if (message_.isCard)
        buildCard(client);
    if (!bubble_) {
        const QString words =
            message_.isCard ? QStringLiteral("This message cannot be shown.") : message_.content;
        bubble_ = std::make_unique<TextBubble>(words, message_.isOwn);
    }
    name_ = std::make_unique<QGraphicsSimpleTextItem>(message_.sender);
    name_->setBrush(QColor(0x8A, 0x94, 0xA3));
    scene.addItem(bubble_.get());
    scene.addItem(name_.get());
    nameForScreenReaders();
}

// Leaves no bubble if the message is no card, or has nothing to show.
void MessageRow::buildCard(CardClient& client)
{
    currentSender = message_.sender.toStdString();
    Plix_SetWiteLogCallback(&logLine);
    card_ = Plix_CreateController();
    PlixDisplayParam display;
    display.markupEnabled = true;
    Plix_SetDisplayParam(card_, display);
    Plix_InitSetFrom(card_, message_.isOwn ? 1 : 0);
    Plix_SetClickCallBack(card_, &onClick, &client);
    Plix_SetMentionHandleCallback(card_, &onMention, &client);
    Plix_SetBotMentionHandleCallback(card_, &onMention, &client);
    Plix_SetDownloadCallBack(card_, &onDownload, &client);
    Plix_InitData(card_, message_.content.toStdString());
    if (QGraphicsItem* const item = Plix_CreateQGraphicsItem(card_))
        bubble_.reset(item->toGraphicsObject());
    if (bubble_ && bubble_->boundingRect().isEmpty())
        release();
}

// Screen readers do not find the name above the bubble: that item is no QObject.
void MessageRow::nameForScreenReaders()
{
    const QString words = card_ ? text().section(QLatin1Char('\n'), 0, 0) : text();
    bubble_->setProperty("accessibleName", QStringLiteral("%1: %2").arg(message_.sender, words));
}

void MessageRow::release()
{
    removeFromScene(bubble_.get());
    removeFromScene(name_.get());
    bubble_.reset();
    name_.reset();
    Plix_Free(std::exchange(card_, nullptr));
}

QString MessageRow::text() const
{
    return bubble_->property("plainText").toString();
}

void MessageRow::highlight(const QStringList& words)
{
    if (card_) {
        std::list<std::string> list;
        for (const QString& word : words)
            list.push_back(word.toStdString());
        Plix_SetHighLightText(card_, list);
    } else if (auto* const plain = qobject_cast<TextItem*>(bubble_.get())) {
        plain->HighlightText(words, QColor(0x11, 0x8D, 0xFF));
    }
}

void MessageRow::place(double top, double width, double zoom, double pixelRatio)
{
    top_ = top;
    if (!isBuilt())
        return;
    const double scale = std::min(zoom, (width - 2 * kMargin) / bubble_->boundingRect().width());
    bubble_->setScale(scale);
    Plix_SetDpi(card_, static_cast<float>(pixelRatio * scale));
    const auto left = [&](const QRectF& rect) {
        return message_.isOwn ? width - kMargin - rect.width() : kMargin;
    };
    name_->setPos(left(name_->boundingRect()), top);
    const QRectF rect = bubble_->sceneBoundingRect();
    bubble_->moveBy(left(rect) - rect.left(), top + kNameHeight - rect.top());
    height_ = kNameHeight + rect.height();
}
