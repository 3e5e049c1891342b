#include "LabelWay.h"

#include "Card.h"
#include "Element.h"
#include "JsonReading.h"
#include "LabelMaker.h"

#include <QCoreApplication>
#include <QGraphicsLayout>
#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QPainter>
#include <QTextDocumentFragment>

namespace bench {
namespace {

void addTexts(const QGraphicsItem& item, QStringList& texts)
{
    if (const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(&item)) {
        const auto* label = qobject_cast<const QLabel*>(proxy->widget());
        if (label && label->textFormat() == Qt::RichText)
            texts.append(QTextDocumentFragment::fromHtml(label->text()).toPlainText());
        else if (label)
            texts.append(label->text());
    }
    for (const QGraphicsItem* child : item.childItems())
        addTexts(*child, texts);
}

} // namespace

LabelWay::LabelWay(const Card& card, const Element& content)
    : Way("QLabels")
    , content_(content)
{
    on(Step::Read, [&card] { parseJson(card.json); });
    before(Step::Build, [this] { scene_ = std::make_unique<QGraphicsScene>(); });
    on(Step::Build, [this] { build(); });
    before(Step::FirstPaint, [this] { makeReady(); });
    on(Step::FirstPaint, [this] { paint(); });
    before(Step::RepaintScene, [this] { canvas_.clear(root_->size()); });
    on(Step::RepaintScene, [this] { paint(); });
    on(Step::Delete, [this] { root_.reset(); });
}

LabelWay::~LabelWay()
{
    root_.reset();
}

void LabelWay::build()
{
    root_ = makeLabels(content_);
    scene_->addItem(root_.get());
    if (root_->layout())
        root_->layout()->activate();
    root_->resize(root_->effectiveSizeHint(Qt::PreferredSize));
}

void LabelWay::makeReady()
{
    QCoreApplication::processEvents();
    canvas_.clear(root_->size());
}

void LabelWay::paint()
{
    QPainter painter;
    canvas_.begin(painter);
    scene_->render(&painter, QRectF(QPointF(), root_->size()), root_->sceneBoundingRect());
}

QStringList LabelWay::texts() const
{
    QStringList texts;
    addTexts(*root_, texts);
    return texts;
}

} // namespace bench
