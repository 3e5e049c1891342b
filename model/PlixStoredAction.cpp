#include "model/PlixStoredAction.h"

#include <array>
#include <string>
#include <utility>

namespace {

struct TextField {
    PlixField field;
    std::string ST_ACTION::*text;
};

constexpr std::array kTexts = std::to_array<TextField>({
    {PlixField::ActionType, &ST_ACTION::type},
    {PlixField::Label, &ST_ACTION::label},
    {PlixField::Text, &ST_ACTION::text},
    {PlixField::DisplayText, &ST_ACTION::displayText},
    {PlixField::Uri, &ST_ACTION::uri},
    {PlixField::PcUri, &ST_ACTION::pcUri},
    {PlixField::WebUri, &ST_ACTION::webUri},
    {PlixField::AppUri, &ST_ACTION::appUri},
    {PlixField::AndroidUri, &ST_ACTION::androidUri},
    {PlixField::IosUri, &ST_ACTION::iosUri},
    {PlixField::PcAuthUri, &ST_ACTION::pcAuthUri},
    {PlixField::CopyText, &ST_ACTION::copyText},
    {PlixField::Data, &ST_ACTION::data},
    {PlixField::Mode, &ST_ACTION::mode},
    {PlixField::Initial, &ST_ACTION::initial},
    {PlixField::Max, &ST_ACTION::max},
    {PlixField::Min, &ST_ACTION::min},
});

} // namespace

PlixStoredAction::PlixStoredAction(const std::shared_ptr<ST_ACTION>& action)
    : record_(action)
{
    for (const TextField& row : kTexts) {
        const std::string& text = (*action).*row.text;
        if (!text.empty())
            fields_.Set(row.field, text);
    }
    StoreMaps(*action);
}

void PlixStoredAction::StoreMaps(const ST_ACTION& action)
{
    const bool hasTexts = !action.i18nLabels.texts.empty() || !action.i18nTexts.texts.empty()
        || !action.i18nDisplayTexts.texts.empty();
    if (hasTexts)
        maps_.Make() = {action.i18nLabels, action.i18nTexts, action.i18nDisplayTexts};
}

std::shared_ptr<ST_ACTION> PlixStoredAction::GetRecord() const
{
    std::shared_ptr<ST_ACTION> record = record_.lock();
    if (!record) {
        // make_shared() would keep the record's memory as long as the weak pointer.
        record = std::make_unique<ST_ACTION>(MakeRecord());
        record_ = record;
    }
    return record;
}

ST_ACTION PlixStoredAction::MakeRecord() const
{
    ST_ACTION record;
    for (const TextField& row : kTexts)
        record.*row.text = fields_.View(row.field);
    const LanguageMaps& maps = maps_.Get();
    record.i18nLabels = maps.labels;
    record.i18nTexts = maps.texts;
    record.i18nDisplayTexts = maps.displayTexts;
    return record;
}

bool PlixStoredAction::OpensDesktop() const
{
    return !fields_.View(PlixField::Uri).empty() || !fields_.View(PlixField::PcUri).empty()
        || !fields_.View(PlixField::WebUri).empty();
}

bool PlixStoredAction::OpensMobileApp() const
{
    return !fields_.View(PlixField::AppUri).empty() || !fields_.View(PlixField::AndroidUri).empty()
        || !fields_.View(PlixField::IosUri).empty();
}
