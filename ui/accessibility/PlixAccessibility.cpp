#include "ui/accessibility/PlixAccessibility.h"

#include "layout/PlixKeywordTable.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixBubbleUI.h"
#include "ui/PlixButtonUI.h"
#include "ui/PlixFillerUI.h"
#include "ui/PlixFocusRing.h"
#include "ui/PlixFocusStop.h"
#include "ui/PlixSeparatorUI.h"
#include "ui/PlixSpacerUI.h"
#include "ui/accessibility/PlixAccessibleButton.h"
#include "ui/accessibility/PlixAccessibleCard.h"
#include "ui/accessibility/PlixAccessibleGroup.h"
#include "ui/accessibility/PlixAccessibleLeftOut.h"
#include "ui/accessibility/PlixAccessibleMention.h"
#include "ui/accessibility/PlixAccessiblePicture.h"
#include "ui/accessibility/PlixAccessibleText.h"
#include "ui/accessibility/PlixAccessibleTextStop.h"
#include "ui/image/PlixPictureUI.h"
#include "ui/text/PlixTextUI.h"

#include <QAccessible>

namespace {

using AccessibleCreator = QAccessibleInterface* (*)(QObject*);

template <typename Interface, typename Item> QAccessibleInterface* Create(QObject* object)
{
    auto* const item = qobject_cast<Item*>(object);
    return item ? new Interface(*item) : nullptr;
}

QAccessibleInterface* CreateForBox(QObject* object)
{
    const auto* const box = qobject_cast<const PlixBoxUI*>(object);
    return box && box->HasOwnAction() ? Create<PlixAccessibleButton, PlixBoxUI>(object)
                                      : Create<PlixAccessibleGroup, PlixBoxUI>(object);
}

QAccessibleInterface* CreateForStop(QObject* object)
{
    const auto* const stop = qobject_cast<const PlixFocusStop*>(object);
    return stop && stop->Mention() ? Create<PlixAccessibleMention, PlixFocusStop>(object)
                                   : Create<PlixAccessibleTextStop, PlixFocusStop>(object);
}

// By the names of classes.
constexpr std::array kAccessibleCreators = std::to_array<PlixKeyword<AccessibleCreator>>({
    {"PlixBoxUI", &CreateForBox},
    {"PlixBubbleUI", &Create<PlixAccessibleCard, PlixBubbleUI>},
    {"PlixButtonUI", &Create<PlixAccessibleButton, PlixButtonUI>},
    {"PlixFillerUI", &Create<PlixAccessibleLeftOut, PlixFillerUI>},
    {"PlixFocusRing", &Create<PlixAccessibleLeftOut, PlixFocusRing>},
    {"PlixFocusStop", &CreateForStop},
    {"PlixPictureUI", &Create<PlixAccessiblePicture, PlixPictureUI>},
    {"PlixSeparatorUI", &Create<PlixAccessibleLeftOut, PlixSeparatorUI>},
    {"PlixSpacerUI", &Create<PlixAccessibleLeftOut, PlixSpacerUI>},
    {"PlixTextUI", &Create<PlixAccessibleText, PlixTextUI>},
});

// Qt calls this for the class of an object and then for its base classes, until a factory
// knows one.
QAccessibleInterface* CreateInterface(const QString& className, QObject* object)
{
    const auto create = plix::FindKeyword(kAccessibleCreators, className.toStdString());
    return create ? (*create)(object) : nullptr;
}

// When the library is unloaded, Qt must not call the factory any more.
struct Removal {
    ~Removal() { QAccessible::removeFactory(&CreateInterface); }
};

} // namespace

void plix::InstallAccessibility()
{
    QAccessible::installFactory(&CreateInterface);
    static const Removal removal;
}
