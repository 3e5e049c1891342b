#pragma once

#include "check/ShownItem.h"

#include <QImage>
#include <QRect>
#include <QRectF>
#include <QRgb>

#include <memory>
#include <optional>
#include <vector>

namespace plix::tool {

class CardHost;

// The ratio of WCAG 2.2, from 1 to 21, of the word that is worst.
struct ContrastResult {
    double ratio = 21;
    double needed = 0;
    bool isOnDark = false;
    QRgb color = 0; // of that word
    // A value of "color" with enough contrast.
    std::optional<QRgb> better;
};

// Compares the letters of a card with what lies behind them, as both are painted.
class TextContrast {
public:
    TextContrast(CardHost& host, const JsonNode& root,
                 const std::vector<std::unique_ptr<ShownItem>>& items);

    // Nothing for other items, and for texts whose colours are the library's own.
    std::optional<ContrastResult> of(const ShownItem& item) const;

private:
    // Whether the card's author has chosen a colour of the text, or one behind it.
    bool hasChosenColors(const ShownItem& item) const;
    ContrastResult ofText(const ShownItem& item) const;
    std::optional<ContrastResult> ofButton(const ShownItem& item) const;
    QImage paintAlone(const ShownItem& item, const QRect& area) const;
    QRect toPixels(const QRectF& rect) const;

    const JsonNode& root_;
    QRectF card_;
    // Without texts.
    QImage behind_;
};

} // namespace plix::tool
