#include "HtmlWay.h"

#include "Card.h"
#include "Element.h"
#include "HtmlWriter.h"
#include "JsonReading.h"

#include <QPainter>
#include <QPixmapCache>
#include <QTextDocument>

namespace bench {

HtmlWay::HtmlWay(const Card& card, const Element& content)
    : Way("HTML")
    , size_(content.rect.size())
    , html_(htmlOf(content))
{
    on(Step::Read, [&card] { parseJson(card.json); });
    // Each life decodes its pictures, as elsewhere.
    before(Step::Build, [] { QPixmapCache::clear(); });
    on(Step::Build, [this] { build(); });
    for (const Step step : {Step::FirstPaint, Step::RepaintScene}) {
        before(step, [this] { canvas_.clear(document_->size()); });
        on(step, [this] { paint(); });
    }
    on(Step::OtherWidth, [this] { setWidth(); });
    on(Step::Delete, [this] { document_.reset(); });
}

HtmlWay::~HtmlWay() = default;

void HtmlWay::build()
{
    document_ = std::make_unique<QTextDocument>();
    document_->setUndoRedoEnabled(false);
    document_->setDocumentMargin(0);
    // Cells without text are low.
    QFont font;
    font.setPixelSize(1);
    document_->setDefaultFont(font);
    document_->setTextWidth(size_.width());
    document_->setHtml(html_);
    document_->size();
}

void HtmlWay::paint()
{
    QPainter painter;
    canvas_.begin(painter);
    document_->drawContents(&painter);
}

void HtmlWay::setWidth()
{
    constexpr qreal narrower = 0.9;
    document_->setTextWidth(size_.width() * narrower);
    document_->size();
}

QStringList HtmlWay::texts() const
{
    return document_->toPlainText()
        .remove(QChar(QChar::ObjectReplacementCharacter))
        .split(QLatin1Char('\n'));
}

} // namespace bench
