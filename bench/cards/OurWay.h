#pragma once

#include "Canvas.h"
#include "Card.h"
#include "Way.h"

#include <QGraphicsScene>

#include <list>
#include <memory>

class PlixDataController;
class QGraphicsWidget;

namespace bench {

class CardHost;

// The library, by its exports.
class OurWay : public Way {
public:
    // `host` has to live longer.
    OurWay(const CardHost& host, const Card& card, const std::string& word);
    ~OurWay() override;

    QStringList texts() const override;
    QImage picture() const override { return canvas_.image(); }

    // Read and built, not in a scene.
    QGraphicsItem& item() const { return *item_; }

    void read();
    void build();
    void free();

private:
    struct Painted {
        QGraphicsItem* item;
        QTransform transform;
    };

    void enterScene();
    void listItems();
    void paintScene();
    void paintItems();
    void setHeight();
    void setWidth();
    void refresh();
    void highlight();

    const CardHost& host_;
    const Card& card_;
    const std::list<std::string> words_;
    PlixDataController* controller_ = nullptr;
    QGraphicsItem* item_ = nullptr;
    std::unique_ptr<QGraphicsScene> scene_;
    std::vector<Painted> painted_;
    Canvas canvas_;
};

} // namespace bench
