#include "FuzzInput.h"
#include "FuzzTargets.h"
#include "FuzzWindow.h"

#include <kestro_control/TextItem.h>

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace plix::test {
namespace {

void insertSpan(TextItem& item, FuzzInput& input)
{
    QTextCharFormat format;
    format.setFontPointSize(input.below(64));
    format.setFontWeight(input.below(100));
    format.setFontItalic(input.flip());
    format.setForeground(QColor(input.byte(), input.byte(), input.byte()));
    item.InsertRichText(QString::fromStdString(input.text()), true, &format);
}

void changeText(TextItem& item, FuzzInput& input)
{
    switch (input.below(14)) {
    case 0:
        return item.SetMarkupEnabled(input.flip());
    case 1:
        return item.InsertRichText(QString::fromStdString(input.text()), input.flip());
    case 2:
        return insertSpan(item, input);
    case 3:
        return item.setPlainText(QString::fromStdString(input.text()));
    case 4:
        return item.SetFixedItemWidth(input.number());
    case 5:
        return item.SetMaxLineCount(input.below(8) - 1);
    case 6:
        return item.SetElide(input.flip());
    case 7:
        return item.SetWrapMode(static_cast<QTextOption::WrapMode>(input.below(5)));
    case 8:
        return item.SetTextDirection(input.flip() ? Qt::RightToLeft : Qt::LeftToRight);
    case 9:
        return item.HighlightText({QString::fromStdString(input.text()), QStringLiteral("a")},
                                  Qt::yellow);
    case 10:
        return item.SetFrame(input.number(), input.number());
    case 11:
        return item.setGeometry({0, 0, input.below(400) + 0.5, input.below(400) + 0.5});
    case 12:
        return item.setTextWidth(input.number());
    default:
        return item.ClickMention(input.below(4) - 1);
    }
}

void useText(FuzzWindow& window, TextItem& item, FuzzInput& input)
{
    switch (input.below(8)) {
    case 0:
        return window.useMouse(input);
    case 1:
        return window.pressKey(input);
    case 2:
        return window.paintPart({input.below(320), input.below(400), 40, 40});
    case 3:
        item.NaturalLines();
        item.sizeHint(Qt::PreferredSize);
        return;
    default:
        return changeText(item, input);
    }
}

} // namespace

void fuzzText(std::string_view bytes)
{
    FuzzInput input(bytes);
    FuzzWindow& window = FuzzWindow::instance();
    auto* const item = new TextItem;
    window.show(*item);
    item->SetMarkupEnabled(true);
    item->setTextInteractionFlags(Qt::TextSelectableByMouse);
    item->SetFixedItemWidth(200);
    item->InsertRichText(QString::fromStdString(input.line()), true);
    window.paint();
    constexpr int kMaximumSteps = 40;
    for (int i = 0; i < kMaximumSteps && !input.isEmpty(); ++i)
        useText(window, *item, input);
    window.paint();
    window.clear();
}

} // namespace plix::test
