#include "ui/PlixChildItems.h"

#include "layout/YogaLayoutItem.h"
#include "ui/PlixBaseUI.h"

namespace plix {

void StretchInColumn(YogaLayoutItem* child)
{
    YGUnit unit = YGUnitUndefined;
    const bool hasWidth = child->styleWidth(unit) >= 1; // false for NaN: not set
    if (!hasWidth && !child->widthIsPercent())
        child->setWidthPercent(100);
}

int HighlightChildren(const YogaLayoutItem& parent, const QStringList& words)
{
    int found = -1;
    for (int i = 0; i < parent.childCount(); ++i) {
        YogaLayoutItem* const child = parent.childAt(i);
        if (child && child->setHighlightText(words) >= 0)
            found = 1;
    }
    return found;
}

QStringList ChildTexts(const YogaLayoutItem& parent)
{
    QStringList texts;
    for (int i = 0; i < parent.childCount(); ++i) {
        const auto* const child = dynamic_cast<const PlixBaseUI*>(parent.childAt(i));
        const QString text = child ? child->PlainText() : QString();
        if (!text.trimmed().isEmpty())
            texts.append(text);
    }
    return texts;
}

QString FirstText(const YogaLayoutItem& parent)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        const YogaLayoutItem* const child = parent.childAt(i);
        const auto* const ui = dynamic_cast<const PlixBaseUI*>(child);
        if (!ui)
            continue;
        QString text = child->childCount() > 0 ? FirstText(*child) : ui->PlainText();
        if (!text.trimmed().isEmpty())
            return text;
    }
    return {};
}

} // namespace plix
