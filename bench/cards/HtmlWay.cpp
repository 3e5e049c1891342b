#include "HtmlWay.h"

#include "Card.h"
#include "Element.h"
#include "JsonReading.h"

#include <QPainter>
#include <QPixmapCache>
#include <QTextDocument>
#include <QTextFrame>

namespace bench {

HtmlWay::HtmlWay(const Card& card, const Element& content)
    : Way("HTML")
    , size_(content.rect.size())
    , card_(htmlOf(content))
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
    document_->setHtml(card_.html);
    setMargins();
    // Last: from here on, the document has a layout that follows every change.
    document_->setTextWidth(size_.width());
    document_->size();
}

void HtmlWay::setMargins()
{
    QTextFrameFormat format = document_->rootFrame()->frameFormat();
    format.setTopMargin(card_.topMargin);
    format.setBottomMargin(card_.bottomMargin);
    document_->rootFrame()->setFrameFormat(format);
}

void HtmlWay::paint()
{
    QPainter painter;
    canvas_.begin(painter);
    if (card_.background.isValid())
        painter.fillRect(canvas_.image().rect(), card_.background);
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
