#pragma once

#include <QByteArray>
#include <QGraphicsObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

class PlixDataController;

namespace plix::tool {

class CardEvents;
class PictureSource;
struct CardOptions;

// A card as a host keeps it: its controller and its item.
class LiveCard {
public:
    // Builds the card. `pictures` and `events` must outlive it.
    LiveCard(const QByteArray& json, const CardOptions& options, PictureSource& pictures,
             CardEvents& events);
    ~LiveCard();

    LiveCard(const LiveCard&) = delete;
    LiveCard& operator=(const LiveCard&) = delete;

    // Null if the card could not be built.
    QGraphicsObject* item() const { return item_; }

    void highlight(const QStringList& words);
    // The card's own background if `color` is empty.
    void setBackground(const QString& color);
    // Device pixels per logical pixel, for pictures.
    void setPixelRatio(double ratio);
    double pixelRatio() const { return pixelRatio_; }

private:
    struct Free {
        void operator()(PlixDataController* controller) const;
    };

    void setCallbacks(PictureSource& pictures, CardEvents& events);
    void build(const QByteArray& json, const CardOptions& options);

    std::unique_ptr<PlixDataController, Free> controller_;
    QPointer<QGraphicsObject> item_;
    double pixelRatio_ = 1;
};

} // namespace plix::tool
