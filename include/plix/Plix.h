// Plix - structured card messages for desktop chat clients.
//
// This is all a host needs: include it, link the `plix` shared library, and
// you get one QGraphicsItem per card message.
//
//     PlixDataController* card = Plix_CreateController();
//     Plix_SetClickCallBack(card, &onClick, this);
//     Plix_InitData(card, json);
//     scene->addItem(Plix_CreateQGraphicsItem(card));
//     ...
//     delete item;          // the scene, or you: the item is the host's
//     Plix_Free(card);
//
// Rules that hold for every function below
//
//  Threads    Call everything on the Qt GUI thread. The library has no thread,
//             timer or lock of its own, and calls back on the same thread,
//             synchronously, from inside the call or Qt event that causes it.
//  Handles    A `PlixDataController*` comes from Plix_CreateController and is
//             valid until Plix_Free. A null handle, or a pointer to a
//             PlixDataController of your own, is refused: nothing happens and
//             the function returns its "bad handle" value. Nothing is logged.
//  Strings    UTF-8. Arguments are copied; nothing keeps a reference to them.
//             Host and library must share one C++ runtime library, because
//             std::string and std::list objects cross the boundary.
//  Exceptions None leaves a function. Failures while a card is read or built
//             are reported through the log callback.
//  Callbacks  May do anything: call the functions below, delete the card's
//             item, free its controller, run an event loop, throw. The same
//             holds for slots on the geometryChanged() of a card's items.
//             What a click or mention callback throws, of whatever type, leaves
//             through the Qt event that caused it, without a log line. What is
//             thrown while a card is built has a log line and costs the piece
//             that was asked for: the picture of a download, the wording, or
//             the item that asked the control support object for its font or
//             an emoji. Nothing of the host's is called while a card is
//             painted, so nothing of it can throw there.
//  Locale     Has no say in how a card is read, and is never set: numbers are
//             read and written alike in every C and C++ locale.
//  Units      Lengths are logical pixels of the graphics scene.
#ifndef PLIX_PLIX_H
#define PLIX_PLIX_H

#include <cstdint>
#include <list>
#include <map>
#include <string>

#if defined(_WIN32)
#if defined(PLIX_BUILDING_LIBRARY)
#define PLIX_API __declspec(dllexport)
#else
#define PLIX_API __declspec(dllimport)
#endif
#define PLIX_CALL __cdecl
#else
#define PLIX_API __attribute__((visibility("default")))
#define PLIX_CALL
#endif

class QGraphicsItem;
class KestroControlSupport;

// ---------------------------------------------------------------------------
// Records
// ---------------------------------------------------------------------------

// The opaque handle of one card message. Hosts never derive from it or delete
// it themselves: Plix_CreateController makes one, Plix_Free destroys it.
class PlixDataController {
public:
    virtual ~PlixDataController() = 0;
};

inline PlixDataController::~PlixDataController() = default;

// Texts by language code ("en", "ko", "zh-CN", ..., and "default").
struct PlixLanguageMap {
    std::map<std::string, std::string> texts;

    bool Contains(const std::string& code) const { return texts.count(code) != 0; }

    // The text of `code`, or an empty string when there is none.
    std::string Get(const std::string& code) const
    {
        const auto found = texts.find(code);
        return found == texts.end() ? std::string() : found->second;
    }
};

// What a card's author wants to happen on a click, as the JSON gave it: every
// field is the text of the JSON key of the same name, empty when absent.
// `data` also takes the key "postback", which wins when both are present.
// Which link is opened, and what a postback means, is the host's to decide.
struct ST_ACTION {
    std::string type; // "uri", "message", "postback"; not validated
    std::string label;
    std::string text;
    std::string displayText;
    std::string uri;
    std::string pcUri;
    std::string webUri;
    std::string appUri;
    std::string androidUri;
    std::string iosUri;
    std::string pcAuthUri;
    std::string copyText;
    std::string data;
    std::string mode;
    std::string initial;
    std::string max;
    std::string min;
    PlixLanguageMap i18nLabels;
    PlixLanguageMap i18nTexts;
    PlixLanguageMap i18nDisplayTexts;
};

// Display settings of one card; see Plix_SetDisplayParam. 12 bytes.
struct PlixDisplayParam {
    // Items whose nearest action leads to mobile apps only refuse clicks and
    // show the host's text for "chat_room_check_on_mobile" instead.
    bool mobileOnlyCheck = true;
    // Texts may carry mention and emoji markup; otherwise every character is
    // shown as it stands.
    bool markupEnabled = false;
    // How texts break into lines: a QTextOption::WrapMode value (0 to 4).
    // The default is QTextOption::WrapAtWordBoundaryOrAnywhere.
    std::int32_t wrapMode = 4;
    // Carried along for the host; the library does not read it.
    std::int32_t extraOption = 1;
};

// ---------------------------------------------------------------------------
// Callbacks
//
// Per-message callbacks get back, as their last argument, the `userData` that
// was registered with them. A callback that is not set is skipped silently.
// ---------------------------------------------------------------------------

// An item with an action was clicked. `action` is a copy that lives for the
// duration of the call.
using PlixClickCallback = void(PLIX_CALL*)(PlixDataController* controller, ST_ACTION& action,
                                           void* userData);

// A picture is needed: asked while the card is built, once for each image and
// icon. Returns the path of the local file that holds it, or will hold it, UTF-8;
// empty when there is none.
//
// The file is read when the picture is painted, and again when it is painted in
// another size, so it has to stay. Until it is there the item shows its
// background. It is looked for whenever the item is painted; a host whose
// download ends later updates the item, or names the file to it:
//
//     QMetaObject::invokeMethod(item->toGraphicsObject(), "OnFileArrived",
//                               Q_ARG(QString, path));
//
// where the item is that of the card's items whose property "pictureFile" is the
// path that was returned.
//
// Shown are PNG, JPEG, GIF, WebP and BMP files, as far as the host's Qt has the
// plugins, of at most 32 MiB and 16,777,216 pixels. What is larger, or anything
// else, counts as not there.
using PlixDownloadCallback = std::string(PLIX_CALL*)(PlixDataController* controller,
                                                     const std::string& url, void* userData);

// A mention of a user, or of a bot, was clicked.
using PlixMentionCallback = void(PLIX_CALL*)(std::int64_t userNo, void* userData);
using PlixBotMentionCallback = void(PLIX_CALL*)(std::int64_t userNo, void* userData);

// Returns the host's own wording for `key` (UTF-8). The one key in use is
// "chat_room_check_on_mobile".
using PlixMultiLangCallback = std::string(PLIX_CALL*)(const char* key);

// One line about a failure: "call CLASS::OPERATION failed. " and the reason,
// which is empty for an exception that is no std::exception. No line end, UTF-8,
// valid during the call only. What the reason quotes of a card or of a host's
// exception is shortened, and shows line ends and invisible characters as "\n"
// or "\u2028": a card cannot write lines of its own.
using PlixLogCallback = void(PLIX_CALL*)(const char* text);

extern "C" {

// ---------------------------------------------------------------------------
// One card: life
// ---------------------------------------------------------------------------

// Makes an empty card. The caller owns it and gives it back with Plix_Free.
// Returns null when memory runs out.
PLIX_API PlixDataController* PLIX_CALL Plix_CreateController();

// Builds the graphics items of what Plix_InitData has read and lays them out.
// A card that was never given data yields an empty bubble.
//
// The returned item has no parent and is the caller's: put it into a scene, or
// delete it. Deleting it deletes the whole card. It may be deleted before or
// after Plix_Free; in between it is shown as it was, and clicks on it reach
// nobody. Each call builds a new item; only the first one of a controller is
// laid out and follows Plix_ModifyHeight and Plix_RefreshLayout as one would
// wish, so build once.
//
// Returns null when there is not even an empty bubble (logged), and for a bad
// handle. A piece that cannot be built is logged and left out.
PLIX_API QGraphicsItem* PLIX_CALL Plix_CreateQGraphicsItem(PlixDataController* controller);

// Destroys the controller, not the graphics item. Accepts null, and any object
// derived from PlixDataController. The handle is invalid afterwards, and no
// callback is called for it any more; from within a callback, too.
PLIX_API void PLIX_CALL Plix_Free(PlixDataController* controller);

// Whether a click on `item` - any item of a card's tree - would be delivered
// to the click callback. False for null and for items that are not Plix's.
PLIX_API bool PLIX_CALL Plix_HasAction(QGraphicsItem* item);

// Reads a card message. A second call reads on top of what is there: to show
// another message, make another controller.
//
// Returns 0 when the message was read, and also when it is not a bubble at all
// (then nothing was read and nothing is logged); -1 when reading the bubble
// failed (logged; what was read before stays). A piece of the card that cannot
// be read is logged and left as far as it got; the rest of the card is kept.
// Bad handle: 0.
PLIX_API int PLIX_CALL Plix_InitData(PlixDataController* controller, const std::string& json);

// Says who sent the message: 1 selects the look of one's own messages
// (bubble #C0EAFC, texts #0087EE), any other value the look of the others'
// (#F1F3F7, #767676). Read at the next Plix_CreateQGraphicsItem. Returns 0.
PLIX_API int PLIX_CALL Plix_InitSetFrom(PlixDataController* controller, int from);

// ---------------------------------------------------------------------------
// One card: after it was built
// ---------------------------------------------------------------------------

// Makes the card at least `height` pixels high by growing its body, and lays
// it out again. Returns 0 when done or already high enough, -1 when the card
// has no body to grow, as when its item was deleted; 0 before the card is built
// and for a bad handle.
PLIX_API int PLIX_CALL Plix_ModifyHeight(PlixDataController* controller, int height);

// Lays the card out again, for example after a change of the font family: it
// then looks like a new card, and may have another height. Changes nothing when
// nothing has changed. A root item that the host has resized is laid out in that
// size. Does nothing before the card is built or for a bad handle.
PLIX_API void PLIX_CALL Plix_RefreshLayout(PlixDataController* controller);

// Drops the colour of Plix_SetBubbleBkColor. Returns 0.
PLIX_API int PLIX_CALL Plix_ResumeBubbleBkColor(PlixDataController* controller);

// Sets the callback for clicks on bot mentions. Returns 0.
PLIX_API int PLIX_CALL Plix_SetBotMentionHandleCallback(PlixDataController* controller,
                                                        PlixBotMentionCallback callback,
                                                        void* userData);

// Paints the bubble's background in another colour until it is resumed.
// `color` is in Qt's syntax: "#RRGGBB", "#AARRGGBB" or an SVG colour name;
// anything else gives an invalid colour, which Qt paints black. Returns 0.
PLIX_API int PLIX_CALL Plix_SetBubbleBkColor(PlixDataController* controller,
                                             const std::string& color);

// Sets the callback for clicks on items with an action. Callbacks are looked
// up when they are needed, so they may be set or changed at any time.
PLIX_API void PLIX_CALL Plix_SetClickCallBack(PlixDataController* controller,
                                              PlixClickCallback callback, void* userData);

// Sets the language, process-wide, whose variants of texts, labels and image
// URLs cards show: a code as the messages write it, "en" at first. Read while
// a card is built.
PLIX_API void PLIX_CALL Plix_SetCurrentLanguage(const std::string& language);

// Copies the display settings. Read while the card is built. Returns 0.
PLIX_API int PLIX_CALL Plix_SetDisplayParam(PlixDataController* controller,
                                            const PlixDisplayParam& param);

// Sets the callback that provides pictures.
PLIX_API void PLIX_CALL Plix_SetDownloadCallBack(PlixDataController* controller,
                                                 PlixDownloadCallback callback, void* userData);

// Sets how many device pixels a logical pixel has (1.0 at first), for scaling
// pictures; layout stays in logical pixels. Returns 0.
PLIX_API int PLIX_CALL Plix_SetDpi(PlixDataController* controller, float dpi);

// Highlights every occurrence of the words in the card's texts, ignoring case,
// instead of what was highlighted before; an empty list removes the highlight.
// Returns 1 when at least one word occurs, -1 when none does; 0 before the
// card is built. Bad handle: -1.
PLIX_API int PLIX_CALL Plix_SetHighLightText(PlixDataController* controller,
                                             const std::list<std::string>& words);

// Sets the callback for clicks on mentions of users. Returns 0.
PLIX_API int PLIX_CALL Plix_SetMentionHandleCallback(PlixDataController* controller,
                                                     PlixMentionCallback callback, void* userData);

// ---------------------------------------------------------------------------
// The whole process
// ---------------------------------------------------------------------------

// Sets the callback for the host's own wordings; null switches it off (texts
// are then empty). Returns 0.
PLIX_API int PLIX_CALL Plix_SetMultiLangGetCallback(PlixMultiLangCallback callback);

// Hands the host's font settings to the KestroControl library, process-wide.
// Not owned: keep it alive, or set null before it goes. Returns 0.
PLIX_API int PLIX_CALL Plix_SetKestroControlSupport(KestroControlSupport* support);

// Sets the callback for log lines, the library's only error channel; null
// switches it off. (The name is spelled "Wite": it is part of the contract.)
// Returns 0.
PLIX_API int PLIX_CALL Plix_SetWiteLogCallback(PlixLogCallback callback);

} // extern "C"

#endif // PLIX_PLIX_H
