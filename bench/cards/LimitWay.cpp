#include "LimitWay.h"

#include "Card.h"
#include "Element.h"
#include "JsonReading.h"
#include "TextLayoutMaker.h"

#include <QCoreApplication>
#include <QGraphicsWidget>
#include <QPainter>

namespace bench {
namespace {

QVector<QTextLayout::FormatRange> rangesOf(const QString& word, const QString& text)
{
    QVector<QTextLayout::FormatRange> ranges;
    for (int at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive)) {
        QTextLayout::FormatRange range;
        range.start = at;
        range.length = word.size();
        range.format.setBackground(Qt::yellow);
        ranges.append(range);
    }
    return ranges;
}

} // namespace

LimitWay::LimitWay(const Card& card, const Element& content, const QString& word)
    : Way("limit")
    , card_(card)
    , content_(content)
    , word_(word)
{
    on(Step::Read, [this] { read(); });
    on(Step::Build, [this] { build(); });
    before(Step::FirstPaint, [this] { enterScene(); });
    for (const Step step : {Step::FirstPaint, Step::RepaintScene, Step::RepaintItems})
        on(step, [this] { paint(); });
    for (const Step step : {Step::RepaintScene, Step::RepaintItems})
        before(step, [this] { canvas_.clear(content_.rect.size()); });
    on(Step::OtherHeight, [this] { setHeight(); });
    on(Step::OtherWidth, [this] { setWidth(); });
    on(Step::Highlight, [this] { highlight(); });
    on(Step::Delete, [this] { free(); });
}

LimitWay::~LimitWay()
{
    free();
}

void LimitWay::read()
{
    parseJson(card_.json);
}

void LimitWay::build()
{
    addWidget(content_, nullptr);
    tree_.emplace(content_);
    tree_->calculateTwice();
    placeWidgets();
}

void LimitWay::addWidget(const Element& element, QGraphicsWidget* parent)
{
    auto* widget = new QGraphicsWidget(parent);
    if (!parent)
        root_.reset(widget);
    widgets_.push_back(widget);
    if (element.text) {
        layouts_.push_back(makeTextLayout(*element.text));
        texts_.push_back(&*element.text);
    }
    for (const Element& child : element.children)
        addWidget(child, widget);
}

void LimitWay::placeWidgets()
{
    for (std::size_t i = 0; i < widgets_.size(); ++i)
        widgets_[i]->setGeometry(tree_->rect(i));
}

void LimitWay::enterScene()
{
    scene_ = std::make_unique<QGraphicsScene>();
    scene_->addItem(root_.get());
    QCoreApplication::processEvents();
    painter_.emplace(content_, layouts_);
    canvas_.clear(content_.rect.size());
}

void LimitWay::paint()
{
    QPainter painter;
    canvas_.begin(painter);
    painter_->paint(painter);
}

void LimitWay::setHeight()
{
    tree_->forgetSizes();
    tree_->calculateTwice();
    placeWidgets();
    for (std::size_t i = 0; i < layouts_.size(); ++i)
        layOut(*layouts_[i], texts_[i]->width, texts_[i]->lineCount);
}

void LimitWay::setWidth()
{
    constexpr qreal narrower = 0.9;
    constexpr int anyLines = 1000;
    tree_->forgetSizes();
    tree_->calculate(content_.rect.width() * narrower);
    placeWidgets();
    for (std::size_t i = 0; i < layouts_.size(); ++i)
        layOut(*layouts_[i], texts_[i]->width * narrower, anyLines);
}

// Only finds the words. The ranges would be drawn as selections.
void LimitWay::highlight()
{
    highlights_.clear();
    for (const auto& layout : layouts_)
        highlights_.push_back(rangesOf(word_, layout->text()));
}

void LimitWay::free()
{
    painter_.reset();
    highlights_.clear();
    layouts_.clear();
    texts_.clear();
    tree_.reset();
    widgets_.clear();
    root_.reset();
}

QStringList LimitWay::texts() const
{
    QStringList texts;
    for (const auto& layout : layouts_)
        texts.append(layout->text());
    return texts;
}

} // namespace bench
