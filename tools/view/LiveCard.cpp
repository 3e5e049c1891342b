#include "view/LiveCard.h"

#include "HostWordings.h"
#include "LibraryLog.h"
#include "Options.h"
#include "view/CardEvents.h"
#include "view/PictureSource.h"

#include <plix/Plix.h>

#include <list>
#include <string>

namespace plix::tool {
namespace {

void PLIX_CALL onClick(PlixDataController*, ST_ACTION& action, void* events)
{
    Q_EMIT static_cast<CardEvents*>(events)->clicked(action);
}

void PLIX_CALL onMention(std::int64_t userNo, void* events)
{
    Q_EMIT static_cast<CardEvents*>(events)->mentioned(userNo);
}

void PLIX_CALL onBotMention(std::int64_t userNo, void* events)
{
    Q_EMIT static_cast<CardEvents*>(events)->botMentioned(userNo);
}

std::string PLIX_CALL onDownload(PlixDataController*, const std::string& url, void* pictures)
{
    return static_cast<PictureSource*>(pictures)->find(QString::fromStdString(url)).toStdString();
}

PlixDisplayParam displayParam(const CardOptions& options)
{
    PlixDisplayParam display;
    display.mobileOnlyCheck = options.mobileOnlyCheck;
    display.markupEnabled = options.markup;
    display.wrapMode = options.wrapMode;
    return display;
}

} // namespace

void LiveCard::Free::operator()(PlixDataController* controller) const
{
    Plix_Free(controller);
}

LiveCard::LiveCard(const QByteArray& json, const CardOptions& options, PictureSource& pictures,
                   CardEvents& events)
    : controller_(Plix_CreateController())
{
    // The library logs and asks for wordings only while it builds.
    const LibraryLog log([&events](const QString& line) { Q_EMIT events.logged(line); });
    const HostWordings wordings(options.wordings);
    setCallbacks(pictures, events);
    build(json, options);
}

LiveCard::~LiveCard()
{
    delete item_;
}

void LiveCard::setCallbacks(PictureSource& pictures, CardEvents& events)
{
    PlixDataController* const card = controller_.get();
    Plix_SetClickCallBack(card, &onClick, &events);
    Plix_SetMentionHandleCallback(card, &onMention, &events);
    Plix_SetBotMentionHandleCallback(card, &onBotMention, &events);
    Plix_SetDownloadCallBack(card, &onDownload, &pictures);
}

void LiveCard::build(const QByteArray& json, const CardOptions& options)
{
    static const QString english = QStringLiteral("en");
    PlixDataController* const card = controller_.get();
    Plix_SetCurrentLanguage(
        (options.language.isEmpty() ? english : options.language).toStdString());
    Plix_SetDisplayParam(card, displayParam(options));
    Plix_InitSetFrom(card, options.from);
    Plix_InitData(card, json.toStdString());
    if (QGraphicsItem* const item = Plix_CreateQGraphicsItem(card))
        item_ = item->toGraphicsObject();
    if (options.height)
        Plix_ModifyHeight(card, *options.height);
    setBackground(options.background);
    highlight(options.highlight);
}

void LiveCard::highlight(const QStringList& words)
{
    std::list<std::string> list;
    for (const QString& word : words)
        list.push_back(word.toStdString());
    Plix_SetHighLightText(controller_.get(), list);
}

void LiveCard::setBackground(const QString& color)
{
    if (color.isEmpty())
        Plix_ResumeBubbleBkColor(controller_.get());
    else
        Plix_SetBubbleBkColor(controller_.get(), color.toStdString());
}

void LiveCard::setPixelRatio(double ratio)
{
    pixelRatio_ = ratio;
    Plix_SetDpi(controller_.get(), static_cast<float>(ratio));
    if (item_)
        item_->update();
}

} // namespace plix::tool
