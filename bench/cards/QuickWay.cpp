#include "QuickWay.h"

#include "Card.h"
#include "Element.h"
#include "Fail.h"
#include "JsonReading.h"
#include "QmlWriter.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextDocumentFragment>

namespace bench {
namespace {

// One for all cards, as a host would have it.
QQmlEngine& engine()
{
    static auto* const engine = new QQmlEngine(qApp);
    return *engine;
}

void addTexts(const QQuickItem& item, QStringList& texts)
{
    // Text.StyledText
    constexpr int styledText = 4;
    const QString text = item.property("text").toString();
    if (item.property("textFormat").toInt() == styledText)
        texts.append(QTextDocumentFragment::fromHtml(text).toPlainText());
    else
        texts.append(text);
    for (const QQuickItem* child : item.childItems())
        addTexts(*child, texts);
}

} // namespace

QuickWay::QuickWay(const Card& card, const Element& content)
    : Way("Quick")
    , size_(content.rect.size())
    , control_(std::make_unique<QQuickRenderControl>())
    , window_(std::make_unique<QQuickWindow>(control_.get()))
    , component_(std::make_unique<QQmlComponent>(&engine()))
{
    window_->setColor(Qt::transparent);
    window_->resize(size_.toSize());
    control_->initialize(nullptr);
    component_->setData(qmlOf(content), QUrl());
    if (!component_->isReady())
        fail(component_->errorString());
    on(Step::Read, [&card] { parseJson(card.json); });
    on(Step::Build, [this] { build(); });
    before(Step::FirstPaint, [this] { takeSize(); });
    on(Step::FirstPaint, [this] { paint(); });
    on(Step::RepaintScene, [this] { paint(); });
    on(Step::OtherWidth, [this] { setWidth(); });
    on(Step::Delete, [this] { item_.reset(); });
}

QuickWay::~QuickWay() = default;

void QuickWay::build()
{
    item_.reset(qobject_cast<QQuickItem*>(component_->create()));
    item_->setWidth(size_.width());
    item_->setParentItem(window_->contentItem());
    control_->polishItems();
}

void QuickWay::takeSize()
{
    window_->resize(size_.width() > 0 ? qRound(size_.width()) : 1, qRound(item_->implicitHeight()));
}

void QuickWay::paint()
{
    control_->sync();
    picture_ = control_->grab();
}

void QuickWay::setWidth()
{
    constexpr qreal narrower = 0.9;
    item_->setWidth(size_.width() * narrower);
    control_->polishItems();
}

QStringList QuickWay::texts() const
{
    QStringList texts;
    addTexts(*item_, texts);
    return texts;
}

} // namespace bench
