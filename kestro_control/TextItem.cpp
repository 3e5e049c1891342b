#include "kestro_control/TextItem.h"

#include "ShownLines.h"

#include <QAbstractTextDocumentLayout>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPointer>
#include <QStyleOptionGraphicsItem>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

// Lengths beyond 2^23 overflow the text engine's fixed-point numbers; this
// leaves room for what it adds up.
constexpr qreal widestItem = 1 << 20;

constexpr qreal naturalWidth = -1;

qreal documentWidth(qreal itemWidth)
{
    if (!std::isfinite(itemWidth) || itemWidth <= 0)
        return naturalWidth;
    return std::min(itemWidth, widestItem);
}

bool isWrapMode(QTextOption::WrapMode mode)
{
    switch (mode) {
    case QTextOption::NoWrap:
    case QTextOption::WordWrap:
    case QTextOption::ManualWrap:
    case QTextOption::WrapAnywhere:
    case QTextOption::WrapAtWordBoundaryOrAnywhere:
        return true;
    }
    return false;
}

} // namespace

class TextItem::Private {
public:
    explicit Private(TextItem& textItem);
    ~Private();

    // The lines on show, laid out when they are asked for first.
    const ShownLines& Shown();

    // What is shown is about to change, or has just changed in the document.
    void Invalidate();

    QTextDocument document;
    QColor textColor = QGuiApplication::palette().color(QPalette::Text);
    int maxLineCount = 0;
    bool elide = false;
    bool readOnly = true;

private:
    void WatchLayout();

    TextItem& item_;
    ShownLines shown_;
    bool isShownValid_ = false;
    QPointer<QAbstractTextDocumentLayout> watchedLayout_;
};

TextItem::Private::Private(TextItem& textItem)
    : item_(textItem)
{
    document.setDocumentMargin(0);
    document.setUndoRedoEnabled(false);
    connect(&document, &QTextDocument::contentsChanged, &item_, [this] { Invalidate(); });
}

TextItem::Private::~Private()
{
    document.disconnect(&item_);
    if (watchedLayout_)
        watchedLayout_->disconnect(&item_);
}

const ShownLines& TextItem::Private::Shown()
{
    if (!isShownValid_) {
        WatchLayout();
        shown_ =
            readOnly ? ShownLines(document, maxLineCount, elide) : ShownLines(document, 0, false);
        isShownValid_ = true;
    }
    return shown_;
}

// The layout tells of changes of which the document says nothing: of its
// width, its font and its default text option.
void TextItem::Private::WatchLayout()
{
    QAbstractTextDocumentLayout* const layout = document.documentLayout();
    if (watchedLayout_ == layout)
        return;
    watchedLayout_ = layout;
    connect(layout, &QAbstractTextDocumentLayout::update, &item_, [this] { Invalidate(); });
}

void TextItem::Private::Invalidate()
{
    // Nobody has seen what is shown since it was invalidated last.
    if (!isShownValid_)
        return;
    // The scene asks for the old rectangle meanwhile.
    item_.prepareGeometryChange();
    isShownValid_ = false;
    shown_ = ShownLines();
    item_.update();
    item_.updateGeometry();
}

TextItem::TextItem(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : QGraphicsTextItem(parent)
    , QGraphicsLayoutItem(parentLayout)
    , private_(std::make_unique<Private>(*this))
{
    setGraphicsItem(this);
    setAcceptDrops(false);
    setAcceptHoverEvents(false);
}

TextItem::~TextItem()
{
    // The base's control lives longer than the document.
    if (!IsReadOnly())
        QGraphicsTextItem::setDocument(nullptr);
}

void TextItem::InsertRichText(const QString& text, bool append, const QTextCharFormat* format)
{
    QTextCursor cursor(document());
    if (append)
        cursor.movePosition(QTextCursor::End);
    cursor.insertText(text, format ? *format : QTextCharFormat());
}

void TextItem::ClearText()
{
    setPlainText(QString());
}

void TextItem::setPlainText(const QString& text)
{
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setBlockFormat(QTextBlockFormat());
    cursor.setBlockCharFormat(QTextCharFormat());
    cursor.insertText(text, QTextCharFormat());
    cursor.endEditBlock();
}

QString TextItem::toPlainText() const
{
    return private_->document.toPlainText();
}

QTextDocument* TextItem::document() const
{
    return &private_->document;
}

QTextCursor TextItem::textCursor() const
{
    return IsReadOnly() ? QTextCursor(document()) : QGraphicsTextItem::textCursor();
}

QFont TextItem::font() const
{
    return private_->document.defaultFont();
}

void TextItem::setFont(const QFont& font)
{
    if (font == this->font())
        return;
    private_->Invalidate();
    private_->document.setDefaultFont(font);
}

QColor TextItem::defaultTextColor() const
{
    return private_->textColor;
}

void TextItem::setDefaultTextColor(const QColor& color)
{
    if (color == private_->textColor)
        return;
    private_->textColor = color;
    if (!IsReadOnly())
        QGraphicsTextItem::setDefaultTextColor(color);
    update();
}

void TextItem::SetWrapMode(QTextOption::WrapMode mode)
{
    QTextOption option = private_->document.defaultTextOption();
    if (mode == option.wrapMode() || !isWrapMode(mode))
        return;
    option.setWrapMode(mode);
    private_->Invalidate();
    private_->document.setDefaultTextOption(option);
}

void TextItem::SetFixedItemWidth(qreal width)
{
    const qreal newWidth = documentWidth(width);
    if (newWidth == textWidth())
        return;
    private_->Invalidate();
    private_->document.setTextWidth(newWidth);
}

void TextItem::setTextWidth(qreal width)
{
    SetFixedItemWidth(width);
}

qreal TextItem::textWidth() const
{
    return private_->document.textWidth();
}

void TextItem::adjustSize()
{
    private_->document.adjustSize();
}

void TextItem::SetMaxLineCount(int count)
{
    const int newCount = std::max(count, 0);
    if (newCount == private_->maxLineCount)
        return;
    private_->Invalidate();
    private_->maxLineCount = newCount;
}

void TextItem::SetElide(bool elide)
{
    if (elide == private_->elide)
        return;
    private_->Invalidate();
    private_->elide = elide;
}

int TextItem::ShownLineCount() const
{
    return private_->Shown().Count();
}

bool TextItem::IsElided() const
{
    return private_->Shown().IsElided();
}

qreal TextItem::FirstLineAscent() const
{
    const ShownLines& shown = private_->Shown();
    return shown.Count() > 0 ? shown.FirstAscent() : QFontMetricsF(font()).ascent();
}

void TextItem::SetReadOnly(bool readOnly)
{
    if (readOnly == IsReadOnly())
        return;
    prepareGeometryChange();
    private_->Invalidate();
    private_->readOnly = readOnly;

    const auto interaction = readOnly ? Qt::NoTextInteraction : Qt::TextEditorInteraction;
    QGraphicsTextItem::setTextInteractionFlags(interaction);
    QGraphicsTextItem::setDocument(readOnly ? nullptr : document());
    QGraphicsTextItem::setDefaultTextColor(defaultTextColor());
    document()->setUndoRedoEnabled(!readOnly);
    setAcceptDrops(!readOnly);
    setAcceptHoverEvents(!readOnly);
    update();
}

bool TextItem::IsReadOnly() const
{
    return private_->readOnly;
}

void TextItem::FontChanged()
{
    KestroFontBindSupport::FontChanged();
}

QSizeF TextItem::sizeHint(Qt::SizeHint which, const QSizeF&) const
{
    switch (which) {
    case Qt::MinimumSize:
    case Qt::PreferredSize:
    case Qt::MaximumSize:
        return QSizeF(-1, boundingRect().height());
    default:
        return QSizeF(-1, -1);
    }
}

void TextItem::setGeometry(const QRectF& rect)
{
    QGraphicsLayoutItem::setGeometry(rect);
    setPos(rect.topLeft());
}

QRectF TextItem::boundingRect() const
{
    return IsReadOnly() ? private_->Shown().BoundingRect() : QGraphicsTextItem::boundingRect();
}

QPainterPath TextItem::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

bool TextItem::contains(const QPointF& point) const
{
    return boundingRect().contains(point);
}

void TextItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    if (!IsReadOnly()) {
        QGraphicsTextItem::paint(painter, option, widget);
        return;
    }
    const QPen pen = painter->pen();
    painter->setPen(private_->textColor);
    const bool isPart = option && option->exposedRect.isValid();
    private_->Shown().Draw(painter, isPart ? option->exposedRect : boundingRect());
    painter->setPen(pen);
}

// The base's handlers leave events accepted even when there is no control to
// handle them, so a read-only item goes past them all.

bool TextItem::sceneEvent(QEvent* event)
{
    return IsReadOnly() ? QGraphicsItem::sceneEvent(event) : QGraphicsTextItem::sceneEvent(event);
}

void TextItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::mousePressEvent(event);
}

void TextItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::mouseMoveEvent(event);
}

void TextItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::mouseReleaseEvent(event);
}

void TextItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::mouseDoubleClickEvent(event);
}

void TextItem::contextMenuEvent(QGraphicsSceneContextMenuEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::contextMenuEvent(event);
}

void TextItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::hoverEnterEvent(event);
}

void TextItem::hoverMoveEvent(QGraphicsSceneHoverEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::hoverMoveEvent(event);
}

void TextItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::hoverLeaveEvent(event);
}

void TextItem::keyPressEvent(QKeyEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::keyPressEvent(event);
}

void TextItem::keyReleaseEvent(QKeyEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::keyReleaseEvent(event);
}
