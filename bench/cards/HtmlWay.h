#pragma once

#include "Canvas.h"
#include "HtmlWriter.h"
#include "Way.h"

#include <memory>

class QTextDocument;

namespace bench {

struct Card;
struct Element;

// HTML in one QTextDocument. The HTML is there: making it of the message is free.
class HtmlWay : public Way {
public:
    // `card` has to live longer.
    HtmlWay(const Card& card, const Element& content);
    ~HtmlWay() override;

    QStringList texts() const override;
    QImage picture() const override { return canvas_.image(); }

private:
    void build();
    void setMargins();
    void paint();
    void setWidth();

    const QSizeF size_;
    const HtmlCard card_;
    std::unique_ptr<QTextDocument> document_;
    Canvas canvas_;
};

} // namespace bench
