#include "SelectionView.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>

namespace {

std::unique_ptr<TextItem> makeItem(const QString& text)
{
    auto item = std::make_unique<TextItem>();
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    item->setFont(font);
    item->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    item->InsertRichText(text, true);
    return item;
}

} // namespace

SelectionView::SelectionView(const QString& text)
    : SelectionView(makeItem(text))
{
}

SelectionView::SelectionView(std::unique_ptr<TextItem> shown)
    : CardView(*shown)
    , item(std::move(shown))
{
    view().setFocusPolicy(Qt::TabFocus);
    QApplication::setActiveWindow(&view());
}

QPointF SelectionView::place(int position, int line) const
{
    const QString text = item->toPlainText().split(QLatin1Char('\n')).value(line);
    const qreal x = QFontMetricsF(item->font()).horizontalAdvance(text.left(position));
    return item->mapToScene(QPointF(x, (line + 0.5) * lineHeight()));
}

QPointF SelectionView::on(int position, int line) const
{
    return (place(position, line) + place(position + 1, line)) / 2;
}

void SelectionView::selectAll()
{
    doubleClick(item->mapToScene(item->boundingRect().center()));
    pressKey(Qt::Key_A, Qt::ControlModifier);
}

bool SelectionView::hasFocus()
{
    const QGraphicsItem* const focused = scene().focusItem();
    return view().hasFocus() && focused && focused->parentItem() == item.get();
}

qreal SelectionView::lineHeight() const
{
    return QFontMetricsF(item->font()).height();
}

std::string SelectionView::copied()
{
    QClipboard& clipboard = *QApplication::clipboard();
    clipboard.setText(QStringLiteral("nothing"));
    pressKey(Qt::Key_C, Qt::ControlModifier);
    return clipboard.text().toStdString();
}
