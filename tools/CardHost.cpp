#include "CardHost.h"

#include "CardFile.h"
#include "CardLog.h"
#include "Console.h"
#include "ToolError.h"

#include <plix/Plix.h>

#include <list>
#include <string>
#include <utility>

namespace plix::tool {

void CardHost::Free::operator()(PlixDataController* controller) const
{
    Plix_Free(controller);
}

CardHost::CardHost(const CardFile& file, const CardOptions& options)
    : CardHost(file, options,
               [log = CardLog(file)](const QString& line) mutable { log.print(line); })
{
}

CardHost::CardHost(const CardFile& file, const CardOptions& options, LibraryLog::Receiver receiver)
    : log_(std::move(receiver))
    , wordings_(options.wordings)
    , images_(options.images, file.path())
    , controller_(Plix_CreateController())
{
    prepare(options);
    build(file);
    adjust(file, options);
}

void CardHost::prepare(const CardOptions& options)
{
    PlixDisplayParam display;
    display.mobileOnlyCheck = options.mobileOnlyCheck;
    display.markupEnabled = options.markup;
    display.wrapMode = options.wrapMode;
    Plix_SetDisplayParam(controller_.get(), display);
    Plix_InitSetFrom(controller_.get(), options.from);
    if (options.dpi)
        Plix_SetDpi(controller_.get(), *options.dpi);
    if (!options.language.isEmpty())
        Plix_SetCurrentLanguage(options.language.toStdString());
    if (!options.images.isEmpty())
        images_.serve(controller_.get());
}

void CardHost::build(const CardFile& file)
{
    Plix_InitData(controller_.get(), file.json().toStdString());
    card_ = Plix_CreateQGraphicsItem(controller_.get());
    if (!card_) {
        throw ToolError {ExitCode::NotACard,
                         QStringLiteral("%1: error: the card cannot be built").arg(file.path())};
    }
    scene_.addItem(card_);
}

void CardHost::adjust(const CardFile& file, const CardOptions& options)
{
    const bool cannotGrow =
        options.height && Plix_ModifyHeight(controller_.get(), *options.height) != 0;
    if (cannotGrow)
        console::warn(file.path(), QStringLiteral("the card has no body that can grow"));
    if (!options.background.isEmpty())
        Plix_SetBubbleBkColor(controller_.get(), options.background.toStdString());

    std::list<std::string> words;
    for (const QString& word : options.highlight)
        words.push_back(word.toStdString());
    Plix_SetHighLightText(controller_.get(), words);
}

} // namespace plix::tool
