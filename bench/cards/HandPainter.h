#pragma once

#include "DecodedPictures.h"

#include <QPointF>

#include <memory>
#include <vector>

class QPainter;
class QTextLayout;

namespace bench {

struct Element;
struct PaintedFill;
struct PaintedPicture;
struct Picture;
struct Text;

// Paints a card by hand: its backgrounds, texts and pictures as they lie on it,
// without items, clips and questions.
class HandPainter {
public:
    // Both have to live longer. `layouts` are those of the texts in their order.
    HandPainter(const Element& card, const std::vector<std::unique_ptr<QTextLayout>>& layouts);

    // Decodes pictures at the first call.
    void paint(QPainter& painter);

private:
    struct Part {
        // Of the element, on the card.
        QPointF origin;
        const Element* element;
        // Null when it has no text.
        QTextLayout* layout;
        // Where the layout is drawn.
        QPointF textOrigin;
    };

    void add(const Element& element, const QPointF& origin);
    void paintPart(QPainter& painter, const Part& part);
    void paintFill(QPainter& painter, const PaintedFill& fill);
    void paintPicture(QPainter& painter, const Picture& picture);

    const std::vector<std::unique_ptr<QTextLayout>>& layouts_;
    std::size_t nextLayout_ = 0;
    std::vector<Part> parts_;
    DecodedPictures pictures_;
};

} // namespace bench
