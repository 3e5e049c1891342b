#pragma once

#include "Canvas.h"
#include "HandPainter.h"
#include "Way.h"
#include "YogaTree.h"

#include <QGraphicsScene>
#include <QTextLayout>

#include <memory>
#include <optional>

class QGraphicsWidget;

namespace bench {

struct Card;

// What the job cannot be done without, written by hand: the JSON parsed, one bare
// widget for each element, a Yoga tree calculated twice, each text laid out once.
// It knows beforehand how large the texts are, in which lines they break, and
// what every key of the card means.
class LimitWay : public Way {
public:
    // Both have to live longer.
    LimitWay(const Card& card, const Element& content, const QString& word);
    ~LimitWay() override;

    QStringList texts() const override;
    QImage picture() const override { return canvas_.image(); }

    void read();
    void build();

private:
    void addWidget(const Element& element, QGraphicsWidget* parent);
    void placeWidgets();
    void enterScene();
    void paint();
    void setHeight();
    void setWidth();
    void highlight();
    void free();

    const Card& card_;
    const Element& content_;
    const QString word_;
    std::vector<QGraphicsWidget*> widgets_;
    std::unique_ptr<QGraphicsWidget> root_;
    std::optional<YogaTree> tree_;
    std::vector<std::unique_ptr<QTextLayout>> layouts_;
    // What they show.
    std::vector<const Text*> texts_;
    std::vector<QVector<QTextLayout::FormatRange>> highlights_;
    std::optional<HandPainter> painter_;
    std::unique_ptr<QGraphicsScene> scene_;
    Canvas canvas_;
};

} // namespace bench
