#include "FuzzInput.h"
#include "FuzzTargets.h"
#include "FuzzWindow.h"

#include <plix/Plix.h>

#include <QGraphicsObject>
#include <QPointer>
#include <QVariant>

#include <string>

namespace plix::test {
namespace {

void PLIX_CALL onClick(PlixDataController*, ST_ACTION&, void*) { }
void PLIX_CALL onMention(std::int64_t, void*) { }

std::string PLIX_CALL onDownload(PlixDataController*, const std::string& url, void*)
{
    return url; // no file has such a name
}

PlixDataController* createCard(FuzzInput& settings)
{
    PlixDataController* const card = Plix_CreateController();
    PlixDisplayParam display;
    display.markupEnabled = settings.flip();
    display.mobileOnlyCheck = settings.flip();
    display.wrapMode = settings.below(6);
    Plix_SetDisplayParam(card, display);
    Plix_InitSetFrom(card, settings.below(3));
    Plix_SetClickCallBack(card, &onClick, nullptr);
    Plix_SetMentionHandleCallback(card, &onMention, nullptr);
    Plix_SetDownloadCallBack(card, &onDownload, nullptr);
    return card;
}

void useCard(PlixDataController* card, FuzzWindow& window, QGraphicsItem& root, FuzzInput& steps)
{
    switch (steps.below(12)) {
    case 0:
        Plix_ModifyHeight(card, steps.below(65'536) - 1000);
        return;
    case 1:
        return Plix_RefreshLayout(card);
    case 2:
        Plix_SetHighLightText(card, {steps.text(), "a"});
        return;
    case 3:
        Plix_SetBubbleBkColor(card, steps.text());
        return;
    case 4:
        Plix_SetDpi(card, static_cast<float>(steps.number()));
        return;
    case 5:
        root.setScale(steps.below(32) / 8.0);
        return;
    case 6:
        root.toGraphicsObject()->property("plainText");
        return;
    case 7:
        return window.paintPart({steps.below(320), steps.below(400), 40, 40});
    case 8:
        return window.pressKey(steps);
    default:
        return window.useMouse(steps);
    }
}

} // namespace

void fuzzCard(std::string_view bytes)
{
    FuzzInput input(bytes);
    const std::string script = input.line();
    const std::string json = input.rest();
    FuzzInput steps(script);

    PlixDataController* const card = createCard(steps);
    Plix_InitData(card, json);
    if (steps.below(8) == 1)
        Plix_InitData(card, json);
    FuzzWindow& window = FuzzWindow::instance();
    QGraphicsItem* const root = Plix_CreateQGraphicsItem(card);
    const QPointer<QGraphicsObject> shown = root->toGraphicsObject();
    window.show(*root);
    window.paint();
    const bool freesFirst = steps.flip();
    constexpr int kMaximumSteps = 12;
    for (int i = 0; i < kMaximumSteps && !steps.isEmpty() && shown; ++i)
        useCard(card, window, *shown, steps);
    if (freesFirst)
        Plix_Free(card);
    window.paint();
    window.clear();
    if (!freesFirst)
        Plix_Free(card);
}

} // namespace plix::test
