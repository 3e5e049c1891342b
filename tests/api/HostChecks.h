#pragma once

#include "HostExports.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

// Uses everything that needs no Qt object, and reports what differs from the header.
namespace host {

static_assert(sizeof(PlixDisplayParam) == 12);
static_assert(offsetof(PlixDisplayParam, mobileOnlyCheck) == 0);
static_assert(sizeof(PlixDisplayParam::mobileOnlyCheck) == 1);
static_assert(offsetof(PlixDisplayParam, markupEnabled) == 1);
static_assert(sizeof(PlixDisplayParam::markupEnabled) == 1);
static_assert(offsetof(PlixDisplayParam, wrapMode) == 4);
static_assert(sizeof(PlixDisplayParam::wrapMode) == 4);
static_assert(offsetof(PlixDisplayParam, extraOption) == 8);
static_assert(sizeof(PlixDisplayParam::extraOption) == 4);

// Designators must be in the order of the fields.
inline ST_ACTION actionWithEveryField()
{
    return {.type = "type",
            .label = "label",
            .text = "text",
            .displayText = "displayText",
            .uri = "uri",
            .pcUri = "pcUri",
            .webUri = "webUri",
            .appUri = "appUri",
            .androidUri = "androidUri",
            .iosUri = "iosUri",
            .pcAuthUri = "pcAuthUri",
            .copyText = "copyText",
            .data = "data",
            .mode = "mode",
            .initial = "initial",
            .max = "max",
            .min = "min",
            .i18nLabels = {{{"en", "label"}}},
            .i18nTexts = {{{"en", "text"}}},
            .i18nDisplayTexts = {{{"en", "display text"}}}};
}
static_assert(sizeof(ST_ACTION) == 17 * sizeof(std::string) + 3 * sizeof(PlixLanguageMap));
static_assert(sizeof(PlixLanguageMap) == sizeof(std::map<std::string, std::string>));

inline std::vector<std::string> logLines;

inline void collectLog(const char* text)
{
    logLines.emplace_back(text);
}

inline void throwFromLog(const char*)
{
    throw std::runtime_error("the host's own");
}

inline void onClick(PlixDataController*, ST_ACTION&, void*) { }
inline std::string onDownload(PlixDataController*, const std::string&, void*)
{
    return {};
}
inline void onMention(std::int64_t, void*) { }
inline std::string onMultiLang(const char*)
{
    return {};
}

class Foreign : public PlixDataController {
public:
    explicit Foreign(bool& destroyed)
        : destroyed_(destroyed)
    {
    }
    ~Foreign() override { destroyed_ = true; }

private:
    bool& destroyed_;
};

class HostChecks {
public:
    explicit HostChecks(const HostExports& plix)
        : plix_(plix)
    {
    }

    // Returns the number of failed checks.
    int run()
    {
        fields();
        plix_.Plix_SetWiteLogCallback(&collectLog);
        refuse(nullptr);
        refuseForeign();
        expect(!plix_.Plix_HasAction(nullptr), "null has no action");
        globals();
        cards();
        silentCards();
        return failures_;
    }

private:
    void expect(bool holds, const char* what)
    {
        if (holds)
            return;
        std::fprintf(stderr, "failed: %s\n", what);
        ++failures_;
    }

    void expectLog(const std::vector<std::string>& lines, const char* what)
    {
        expect(logLines == lines, what);
        for (const std::string& line : logLines)
            if (logLines != lines)
                std::fprintf(stderr, "  logged: %s\n", line.c_str());
        logLines.clear();
    }

    void fields()
    {
        const ST_ACTION action = actionWithEveryField();
        expect(action.i18nLabels.Get("en") == "label", "maps find texts by code");
        expect(!action.i18nTexts.Contains("ko"), "maps hold only the given texts");
        const PlixDisplayParam param;
        expect(param.mobileOnlyCheck && !param.markupEnabled && param.wrapMode == 4
                   && param.extraOption == 1,
               "the display settings have their defaults");
    }

    void refuse(PlixDataController* handle)
    {
        expect(plix_.Plix_CreateQGraphicsItem(handle) == nullptr, "no item for a bad handle");
        expect(plix_.Plix_InitData(handle, R"({"type": "bubble", "size": 5})") == 0,
               "no data for a bad handle");
        expect(plix_.Plix_InitSetFrom(handle, 1) == 0, "no sender for a bad handle");
        expect(plix_.Plix_ModifyHeight(handle, 100) == 0, "no height for a bad handle");
        plix_.Plix_RefreshLayout(handle);
        expect(plix_.Plix_ResumeBubbleBkColor(handle) == 0, "nothing to resume");
        expect(plix_.Plix_SetBubbleBkColor(handle, "red") == 0, "no colour for a bad handle");
        plix_.Plix_SetClickCallBack(handle, &onClick, this);
        plix_.Plix_SetDownloadCallBack(handle, &onDownload, this);
        expect(plix_.Plix_SetMentionHandleCallback(handle, &onMention, this) == 0, "no mentions");
        expect(plix_.Plix_SetBotMentionHandleCallback(handle, &onMention, this) == 0, "no bots");
        expect(plix_.Plix_SetDisplayParam(handle, PlixDisplayParam()) == 0, "no settings");
        expect(plix_.Plix_SetDpi(handle, 2) == 0, "no scale for a bad handle");
        expect(plix_.Plix_SetHighLightText(handle, {"word"}) == -1, "no words for a bad handle");
        expectLog({}, "bad handles are not logged");
    }

    void refuseForeign()
    {
        bool destroyed = false;
        auto* const foreign = new Foreign(destroyed);
        refuse(foreign);
        expect(!destroyed, "a bad handle is not deleted");
        plix_.Plix_Free(foreign);
        expect(destroyed, "Plix_Free calls the destructor of a derived class");
        plix_.Plix_Free(nullptr);
    }

    void globals()
    {
        plix_.Plix_SetCurrentLanguage("a language whose code is rather long");
        expect(plix_.Plix_SetMultiLangGetCallback(&onMultiLang) == 0, "wordings set");
        expect(plix_.Plix_SetMultiLangGetCallback(nullptr) == 0, "wordings removed");
        expect(plix_.Plix_SetKestroControlSupport(nullptr) == 0, "font settings set");
        expect(plix_.Plix_SetWiteLogCallback(&collectLog) == 0, "log set");
    }

    PlixDataController* newCard()
    {
        PlixDataController* const card = plix_.Plix_CreateController();
        expect(card != nullptr, "a card is created");
        return card;
    }

    void cards()
    {
        PlixDataController* const card = newCard();
        PlixDataController* const other = newCard();
        expect(card != other, "each card is a new object");
        setEverything(card);
        read(card);
        beforeTheBuild(card);
        plix_.Plix_Free(other);
        plix_.Plix_Free(card);
        expectLog({}, "freeing a card logs nothing");
    }

    void setEverything(PlixDataController* card)
    {
        PlixDisplayParam param;
        param.markupEnabled = true;
        expect(plix_.Plix_SetDisplayParam(card, param) == 0, "settings return 0");
        expect(plix_.Plix_SetDpi(card, 1.5F) == 0, "the scale returns 0");
        expect(plix_.Plix_InitSetFrom(card, 1) == 0, "the sender returns 0");
        plix_.Plix_SetClickCallBack(card, &onClick, this);
        plix_.Plix_SetDownloadCallBack(card, &onDownload, this);
        expect(plix_.Plix_SetMentionHandleCallback(card, &onMention, this) == 0, "mentions");
        expect(plix_.Plix_SetBotMentionHandleCallback(card, &onMention, this) == 0, "bots");
        plix_.Plix_SetClickCallBack(card, nullptr, nullptr);
        plix_.Plix_SetDownloadCallBack(card, nullptr, nullptr);
        expectLog({}, "settings log nothing");
    }

    void read(PlixDataController* card)
    {
        expect(plix_.Plix_InitData(card, "") == 0, "an empty text is not a failure");
        expect(plix_.Plix_InitData(card, "no JSON") == 0, "text that is not JSON is not a failure");
        expect(plix_.Plix_InitData(card, R"({"type": "Bubble", "size": 5})") == 0,
               "another type is not a failure");
        expect(plix_.Plix_InitData(card, R"({"type": "bubble", "size": "giga", "body": {
                   "type": "box", "layout": "vertical", "contents": [
                       {"type": "text", "text": "Dinner at eight, as it was last week?"}]}})")
                   == 0,
               "a card is read");
        expectLog({}, "only failures are logged");
        expect(plix_.Plix_InitData(card, R"({"type": "bubble", "hero": {"type": "box",
                   "spacing": 5}, "size": "mega"})")
                   == 0,
               "a bad component does not fail the card");
        expectLog({"call PlixJsonDataParse::ParseBox failed. "
                   "\"spacing\" must be a string, but is the number 5"},
                  "a bad component is logged");
        expect(plix_.Plix_InitData(card, R"({"type": "bubble", "size": []})") == -1,
               "a bad card is a failure");
        expectLog({"call PlixJsonDataParse::ParseBubble failed. "
                   "\"size\" must be a string, but is an array"},
                  "a bad card is logged");
        expect(plix_.Plix_InitData(card, std::string(100000, '[')) == -1,
               "too many brackets are a failure");
        expect(logLines.size() == 1, "too many brackets are logged");
        logLines.clear();
    }

    void beforeTheBuild(PlixDataController* card)
    {
        expect(plix_.Plix_ModifyHeight(card, 1000) == 0, "no height before the build");
        plix_.Plix_RefreshLayout(card);
        expect(plix_.Plix_SetBubbleBkColor(card, "red") == 0, "no colour before the build");
        expect(plix_.Plix_ResumeBubbleBkColor(card) == 0, "nothing to resume before the build");
        expect(plix_.Plix_SetHighLightText(card, {"eight", "a word that is rather long"}) == 0,
               "no words before the build");
    }

    void silentCards()
    {
        const std::string broken = R"({"type": "bubble", "size": 5})";
        PlixDataController* const card = newCard();
        expect(plix_.Plix_SetWiteLogCallback(&throwFromLog) == 0, "a log that throws can be set");
        expect(plix_.Plix_InitData(card, broken) == -1, "a log that throws changes no result");
        expect(plix_.Plix_SetWiteLogCallback(nullptr) == 0, "the log can be removed");
        expect(plix_.Plix_InitData(card, broken) == -1, "without a log the result is the same");
        plix_.Plix_Free(card);
        expectLog({}, "a removed log is not called");
    }

    const HostExports& plix_;
    int failures_ = 0;
};

} // namespace host
