#include "FuzzInput.h"
#include "FuzzTargets.h"
#include "FuzzWindow.h"

#include <plix/Plix.h>

#include <QGraphicsObject>
#include <QGraphicsRectItem>
#include <QPointer>

#include <array>
#include <stdexcept>

namespace plix::test {
namespace {

const std::array<std::string, 5> kCards {
    R"({"type": "bubble", "body": {"type": "box", "layout": "vertical", "contents": [
        {"type": "text", "text": "<m user=\"7\">Ann</m> pays", "action": {"type": "uri", "uri": "u"}},
        {"type": "image", "url": "p"}, {"type": "button", "action": {"type": "message",
        "label": "Go", "text": "t"}}]}})",
    R"({"type": "bubble", "body": {"type": "box", "layout": "vertical", "action": {"type":
        "postback", "data": "d"}, "contents": [{"type": "text", "text": "a", "margin": 7}]}})",
    R"({"type": "bubble"})", "[", ""};

// A handle that the library did not make.
class ForeignController : public PlixDataController { };

class CallSequence {
public:
    explicit CallSequence(std::string_view bytes)
        : input_(bytes)
    {
    }

    ~CallSequence()
    {
        calls_ = kMaximumCalls; // callbacks do nothing any more
        for (Card& card : cards_)
            free(card);
        FuzzWindow::instance().clear();
        Plix_SetMultiLangGetCallback(nullptr);
        Plix_SetWiteLogCallback(nullptr);
        running = nullptr;
    }

    CallSequence(const CallSequence&) = delete;
    CallSequence& operator=(const CallSequence&) = delete;

    void run()
    {
        running = this;
        while (call()) { }
    }

private:
    struct Card {
        PlixDataController* controller = nullptr;
        QPointer<QGraphicsObject> item;
    };

    static constexpr int kMaximumCalls = 60;
    static constexpr int kMaximumDepth = 4;

    // What the callbacks do: nothing, a call, or an exception. They may be called when no
    // sequence runs.
    static void callBack()
    {
        if (!running || running->depth_ >= kMaximumDepth)
            return;
        ++running->depth_;
        const int choice = running->input_.below(6);
        if (choice < 3)
            running->call();
        --running->depth_;
        if (choice == 3)
            throw std::runtime_error("the host's");
        if (choice == 4)
            throw 4;
    }

    static void PLIX_CALL onClick(PlixDataController*, ST_ACTION& action, void*)
    {
        action.text.clear();
        callBack();
    }

    static void PLIX_CALL onMention(std::int64_t, void*) { callBack(); }

    static std::string PLIX_CALL onDownload(PlixDataController*, const std::string& url, void*)
    {
        callBack();
        return url;
    }

    static std::string PLIX_CALL onWording(const char* key)
    {
        callBack();
        return key;
    }

    static void PLIX_CALL onLog(const char*) { callBack(); }

    // One call of the library; false when there is nothing more to do.
    bool call();
    void callExport(PlixDataController* handle, Card& card);
    void build(Card& card);
    void useItem(Card& card);

    // Mostly that of `card`, which may be null, sometimes a foreign one.
    PlixDataController* handleOf(const Card& card)
    {
        return input_.below(8) == 1 ? &foreign_ : card.controller;
    }

    static void free(Card& card) { Plix_Free(std::exchange(card.controller, nullptr)); }

    FuzzInput input_;
    std::array<Card, 3> cards_;
    ForeignController foreign_;
    int calls_ = 0;
    int depth_ = 0;
    static CallSequence* running;
};

CallSequence* CallSequence::running = nullptr;

bool CallSequence::call()
{
    if (input_.isEmpty() || ++calls_ > kMaximumCalls)
        return false;
    Card& card = cards_[static_cast<std::size_t>(input_.below(static_cast<int>(cards_.size())))];
    if (!card.controller)
        card.controller = Plix_CreateController();
    else
        callExport(handleOf(card), card);
    return true;
}

void CallSequence::callExport(PlixDataController* handle, Card& card)
{
    switch (input_.below(24)) {
    case 0:
        return free(card);
    case 1:
        return build(card);
    case 2:
        Plix_HasAction(card.item ? static_cast<QGraphicsItem*>(card.item.data()) : nullptr);
        return;
    case 3:
        Plix_InitData(handle, kCards[static_cast<std::size_t>(input_.below(kCards.size()))]);
        return;
    case 4:
        Plix_InitSetFrom(handle, input_.below(3) - 1);
        return;
    case 5:
        Plix_ModifyHeight(handle, input_.below(3000) - 1000);
        return;
    case 6:
        return Plix_RefreshLayout(handle);
    case 7:
        Plix_ResumeBubbleBkColor(handle);
        return;
    case 8:
        Plix_SetBotMentionHandleCallback(handle, input_.flip() ? &onMention : nullptr, this);
        return;
    case 9:
        Plix_SetBubbleBkColor(handle, input_.text());
        return;
    case 10:
        return Plix_SetClickCallBack(handle, input_.flip() ? &onClick : nullptr, this);
    case 11:
        return Plix_SetCurrentLanguage(input_.flip() ? "ko" : input_.text());
    case 12: {
        PlixDisplayParam display;
        display.markupEnabled = input_.flip();
        display.wrapMode = input_.byte() - 10;
        Plix_SetDisplayParam(handle, display);
        return;
    }
    case 13:
        return Plix_SetDownloadCallBack(handle, input_.flip() ? &onDownload : nullptr, this);
    case 14:
        Plix_SetDpi(handle, static_cast<float>(input_.number()));
        return;
    case 15:
        Plix_SetHighLightText(handle, {input_.text(), "", "a"});
        return;
    case 16:
        Plix_SetMentionHandleCallback(handle, input_.flip() ? &onMention : nullptr, this);
        return;
    case 17:
        Plix_SetMultiLangGetCallback(input_.flip() ? &onWording : nullptr);
        return;
    case 18:
        Plix_SetKestroControlSupport(nullptr);
        return;
    case 19:
        Plix_SetWiteLogCallback(input_.flip() ? &onLog : nullptr);
        return;
    default:
        return useItem(card);
    }
}

void CallSequence::build(Card& card)
{
    QGraphicsItem* const item = Plix_CreateQGraphicsItem(card.controller);
    if (!item)
        return;
    card.item = item->toGraphicsObject();
    if (!item->scene())
        FuzzWindow::instance().show(*item);
}

void CallSequence::useItem(Card& card)
{
    FuzzWindow& window = FuzzWindow::instance();
    switch (input_.below(6)) {
    case 0:
        delete card.item;
        return;
    case 1:
        return window.paint();
    case 2:
        return window.pressKey(input_);
    case 3:
        // Not in the middle of an event, where Qt forbids it.
        if (depth_ == 0)
            window.clear();
        return;
    default:
        return window.useMouse(input_);
    }
}

} // namespace

void fuzzCalls(std::string_view bytes)
{
    CallSequence(bytes).run();
}

} // namespace plix::test
