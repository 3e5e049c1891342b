// Plix - structured card messages for desktop chat clients.
//
// This is all a host needs: include it, link the `plix` shared library, and
// you get one QGraphicsItem per card message. docs/host.md answers the questions
// that hosts have, and examples/chat is a small chat window.
//
//     PlixDataController* card = Plix_CreateController();
//     Plix_SetClickCallBack(card, &onClick, this);
//     Plix_InitData(card, json);
//     QGraphicsItem* item = Plix_CreateQGraphicsItem(card);
//     scene->addItem(item);
//     ...
//     delete item;          // or let the scene delete it; the host owns it
//     Plix_Free(card);
//
// Rules for every function below
//
//  Threads    Call everything on the Qt GUI thread. The library has no thread,
//             timer or lock of its own. It calls callbacks on the same thread,
//             synchronously, during the call or Qt event that causes them.
//  Handles    A `PlixDataController*` comes from Plix_CreateController and is
//             valid until Plix_Free. A null pointer, or a pointer to a
//             PlixDataController of your own, is a bad handle: the function
//             does nothing, logs nothing, and returns 0 or null unless its
//             description says otherwise.
//  Strings    UTF-8. The library copies its arguments and keeps no reference
//             to them. Host and library must share one C++ runtime library,
//             because std::string and std::list objects cross the boundary.
//  Exceptions No function throws. Failures while a card is read or built are
//             reported through the log callback.
//  Callbacks  A callback may do anything: call the functions below, delete the
//             card's item, free its controller, run an event loop, throw. So
//             may slots that are connected to geometryChanged() of a card's
//             items. An exception of a click or mention callback, of any type,
//             propagates through the Qt event that caused it and is not
//             logged. An exception while a card is built is logged, with its
//             what() if it is a std::exception. It costs only what was
//             requested: the picture of a download, the wording, or the item
//             that read its font or an emoji from the control support object.
//             During other calls, exceptions of slots and of the control
//             support object are ignored and not logged, and so is always what
//             the log callback throws. The library calls no function of the
//             host while it paints a card.
//  Keyboard   Tab and Shift+Tab walk through everything in a card that can be
//             clicked, in reading order, as QGraphicsScene does: give the view the
//             focus policy Qt::TabFocus or more. Enter and Space click. A mouse click
//             never moves the keyboard focus into a card. To keep the focus in sight,
//             connect QGraphicsScene::focusItemChanged() to
//             QGraphicsView::ensureVisible().
//  Screen     Every item of a card has an accessible interface (QAccessible), which Qt
//  readers    makes when a client asks for it. To let clients find the items, call
//             kestro::InstallGraphicsViewAccessibility() once. The root item's property
//             "accessibleName", if it is set, is the name of the card.
//  Locale     The library neither uses nor changes the process's locale:
//             numbers are read and written the same way in every C and C++
//             locale.
//  Units      Lengths are in logical pixels of the graphics scene.
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

// The opaque handle of one card message. Hosts neither derive from it nor
// delete it: Plix_CreateController creates one, Plix_Free destroys it.
class PlixDataController {
public:
    virtual ~PlixDataController() = 0;
};

inline PlixDataController::~PlixDataController() = default;

// Texts by language code ("en", "ko", "zh-CN", ..., and "default").
struct PlixLanguageMap {
    std::map<std::string, std::string> texts;

    bool Contains(const std::string& code) const { return texts.count(code) != 0; }

    // The text of `code`, or an empty string if there is none.
    std::string Get(const std::string& code) const
    {
        const auto found = texts.find(code);
        return found == texts.end() ? std::string() : found->second;
    }
};

// The action of a clicked item, as in the JSON: each field is the value of the
// JSON key of the same name, or empty if that key is absent. `data` is also read
// from the key "postback", which takes precedence if both are present. The host
// decides which link to open and what a postback means.
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
    // If true, an item whose nearest action opens only mobile apps ignores clicks.
    // Such a text or button shows the wording for "chat_room_check_on_mobile".
    bool mobileOnlyCheck = true;
    // If true, texts may contain mention and emoji markup. If false, every
    // character is shown as it is.
    bool markupEnabled = false;
    // How texts break into lines: a QTextOption::WrapMode value (0 to 4).
    // The default is QTextOption::WrapAtWordBoundaryOrAnywhere.
    std::int32_t wrapMode = 4;
    // For the host's own use; the library does not read it.
    std::int32_t extraOption = 1;
};

// ---------------------------------------------------------------------------
// Callbacks
//
// A callback of one card gets, as its last argument, the `userData` that was set
// with it. The library does not own `userData`. If a callback is not set, nothing
// is called and nothing is logged.
// ---------------------------------------------------------------------------

// Called when an item with an action is clicked. `action` is a copy: it may be
// changed, and is valid during the call only.
using PlixClickCallback = void(PLIX_CALL*)(PlixDataController* controller, ST_ACTION& action,
                                           void* userData);

// Called while the card is built, once for each image and icon. Returns the path
// (UTF-8) of the local file that contains the picture, or will contain it later.
// Returns an empty string if there is no picture.
//
// The file is read when the picture is painted, and again when it is painted in
// another size, so it must stay while the card exists. Until the file exists, the
// item shows its background. The item looks for the file each time it is painted.
// When a download ends later, call update() on the card's root item. No size changes
// when a picture arrives, so no new layout is needed. If the path was not known while
// the card was built, pass it to the item now:
//
//     QMetaObject::invokeMethod(item->toGraphicsObject(), "OnFileArrived",
//                               Q_ARG(QString, path));
//
// `item` is the item of the card whose property "pictureFile" is the path that
// was returned.
//
// PNG, JPEG, GIF, WebP and BMP files are shown, if the host's Qt has the plugin.
// A file of more than 32 MiB or 16,777,216 pixels, or of another format, counts as
// a missing file.
using PlixDownloadCallback = std::string(PLIX_CALL*)(PlixDataController* controller,
                                                     const std::string& url, void* userData);

// Called when a mention of a user, or of a bot, is clicked. `userNo` is the number
// in the markup of the mention.
using PlixMentionCallback = void(PLIX_CALL*)(std::int64_t userNo, void* userData);
using PlixBotMentionCallback = void(PLIX_CALL*)(std::int64_t userNo, void* userData);

// Returns the host's wording for `key` (UTF-8). Called while a card is built. The
// only key is "chat_room_check_on_mobile". `key` is valid during the call only.
using PlixMultiLangCallback = std::string(PLIX_CALL*)(const char* key);

// Gets one line about a failure: "call CLASS::OPERATION failed. " and the reason,
// which is empty for an exception that is not a std::exception. `text` is UTF-8
// without a line end, and valid during the call only. Quotations from a card or
// from a host's exception are shortened, and line ends and invisible characters
// in them are written as "\n" or "\u2028", so a card cannot forge log lines. What
// the callback throws is ignored.
using PlixLogCallback = void(PLIX_CALL*)(const char* text);

extern "C" {

// ---------------------------------------------------------------------------
// One card: from its creation to its destruction
// ---------------------------------------------------------------------------

// Creates the controller of an empty card. The caller owns it and destroys it
// with Plix_Free. Returns null if there is not enough memory.
PLIX_API PlixDataController* PLIX_CALL Plix_CreateController();

// Builds the graphics items of what Plix_InitData has read and lays them out.
// A card without data becomes an empty bubble.
//
// The returned item has no parent. The caller owns it: add it to a scene, or
// delete it. Deleting it deletes all items of the card. It may be deleted before
// or after Plix_Free. After Plix_Free it is still shown, but clicks on it call
// nothing. Each call builds a new item. Only the first item of a controller is
// laid out and follows Plix_ModifyHeight and Plix_RefreshLayout, so call this
// once for each controller.
//
// What was read for the card stays in memory until the process ends, also after the
// item is deleted and the controller is freed: some hundred bytes for each element of
// the card. So do not build cards again without need.
//
// The author of the card chooses its width. For a narrower window call setScale() on
// the item, and Plix_SetDpi with the scale in it; clicks follow. A card without
// anything to show has the height 0.
//
// The property "plainText" of the returned item has the whole card as text, for
// notifications, for a search, or to copy the message: all texts and the labels of
// buttons in reading order, one line per row, elided ones in full.
//
//     const QString text = item->toGraphicsObject()->property("plainText").toString();
//
// Readers can select and copy texts that cannot be clicked. When a selection begins, the
// view gets the keyboard focus.
//
// Returns null if not even an empty bubble can be built (logged), and for a bad
// handle. A component that cannot be built is logged and left out.
PLIX_API QGraphicsItem* PLIX_CALL Plix_CreateQGraphicsItem(PlixDataController* controller);

// Destroys the controller, but not the graphics item. Accepts null, and deletes any
// object derived from PlixDataController. Afterwards the handle is invalid, and no
// callback is called for it. May be called from within a callback.
PLIX_API void PLIX_CALL Plix_Free(PlixDataController* controller);

// Whether a click on `item`, which may be any item of a card, calls the click
// callback. False for null and for items that do not belong to a card. The result does
// not depend on whether a callback is set, or on Plix_Free: an item that outlives its
// controller still returns true, although clicks call nothing any more.
PLIX_API bool PLIX_CALL Plix_HasAction(QGraphicsItem* item);

// Reads a card message. A second call does not start again: it adds to what was
// read before. For another message, create another controller.
//
// Returns 0 if the message was read. Returns 0, too, if it is not a bubble, or not
// JSON: then nothing is read and nothing is logged. Of a JSON text that breaks off or
// has an error, what precedes the error is read, and 0 is returned. Returns -1 if
// reading the bubble failed (a bad value of its own, or JSON of more than 1000 levels),
// which is logged; what was read before the failure stays. A component that
// cannot be read is logged and keeps what was read of it; the rest of the card is
// read. To tell whether there is a card, look at the height of its item. Bad handle: 0.
PLIX_API int PLIX_CALL Plix_InitData(PlixDataController* controller, const std::string& json);

// Sets the sender of the message: 1 selects the colours of the user's own
// messages (bubble #C0EAFC, texts #0087EE), any other value those of received
// messages (#F1F3F7, #767676). Read by Plix_CreateQGraphicsItem. Returns 0.
PLIX_API int PLIX_CALL Plix_InitSetFrom(PlixDataController* controller, int from);

// ---------------------------------------------------------------------------
// One card: settings and changes
// ---------------------------------------------------------------------------

// Makes the card at least `height` pixels high by growing its body, and lays it
// out again. Returns 0 if the card is that high now, -1 if it has no body that
// can grow (also if the body's item was deleted). Returns 0 before the card is
// built and for a bad handle.
PLIX_API int PLIX_CALL Plix_ModifyHeight(PlixDataController* controller, int height);

// Lays the card out again, for example after a change of the font family. The
// card then looks like a new one and may have another height. Its width is the one
// that its author has chosen, also if the host has resized the root item. Does
// nothing if nothing has changed, before the card is built, and for a bad handle.
PLIX_API void PLIX_CALL Plix_RefreshLayout(PlixDataController* controller);

// Removes the colour of Plix_SetBubbleBkColor: the bubble has its own background
// again. Returns 0.
PLIX_API int PLIX_CALL Plix_ResumeBubbleBkColor(PlixDataController* controller);

// Sets the callback for clicks on bot mentions. Returns 0.
PLIX_API int PLIX_CALL Plix_SetBotMentionHandleCallback(PlixDataController* controller,
                                                        PlixBotMentionCallback callback,
                                                        void* userData);

// Paints the bubble's background in another colour, until the call of
// Plix_ResumeBubbleBkColor. `color` is in Qt's syntax: "#RRGGBB", "#AARRGGBB" or
// an SVG colour name. Anything else is an invalid colour, which Qt paints black.
// Does nothing before the card is built. Returns 0.
PLIX_API int PLIX_CALL Plix_SetBubbleBkColor(PlixDataController* controller,
                                             const std::string& color);

// Sets the callback for clicks on items with an action; null removes it. The
// library reads each callback when it needs it, so a callback may be set or
// changed at any time.
PLIX_API void PLIX_CALL Plix_SetClickCallBack(PlixDataController* controller,
                                              PlixClickCallback callback, void* userData);

// Sets the language, process-wide: cards show the texts, labels and image URLs of
// this language. `language` is a code as in the messages; the default is "en".
// Read while a card is built.
PLIX_API void PLIX_CALL Plix_SetCurrentLanguage(const std::string& language);

// Copies the display settings. Read while the card is built. Returns 0.
PLIX_API int PLIX_CALL Plix_SetDisplayParam(PlixDataController* controller,
                                            const PlixDisplayParam& param);

// Sets the callback that provides the files of images and icons.
PLIX_API void PLIX_CALL Plix_SetDownloadCallBack(PlixDataController* controller,
                                                 PlixDownloadCallback callback, void* userData);

// Sets the number of device pixels per logical pixel; the default is 1.0. If the item
// is scaled, that is the device pixel ratio of the window times the scale. Images and
// icons are scaled for it when they are painted next, so call update() on the root item;
// the layout stays in logical pixels. Returns 0.
PLIX_API int PLIX_CALL Plix_SetDpi(PlixDataController* controller, float dpi);

// Highlights every occurrence of the words in the card's texts, ignoring case.
// Replaces the earlier highlight; an empty list removes it. Returns 1 if at least
// one word occurs, -1 if none does, 0 before the card is built. Bad handle: -1.
PLIX_API int PLIX_CALL Plix_SetHighLightText(PlixDataController* controller,
                                             const std::list<std::string>& words);

// Sets the callback for clicks on mentions of users. Returns 0.
PLIX_API int PLIX_CALL Plix_SetMentionHandleCallback(PlixDataController* controller,
                                                     PlixMentionCallback callback, void* userData);

// ---------------------------------------------------------------------------
// The whole process
// ---------------------------------------------------------------------------

// Sets the callback for the host's wordings. Null removes it; the wordings are
// then empty. Returns 0.
PLIX_API int PLIX_CALL Plix_SetMultiLangGetCallback(PlixMultiLangCallback callback);

// Passes the host's font settings to the KestroControl library, process-wide. The
// host owns `support`: keep it alive, or set null before you delete it. Returns 0.
PLIX_API int PLIX_CALL Plix_SetKestroControlSupport(KestroControlSupport* support);

// Sets the callback for log lines, the only reports of failures apart from return
// values. Null removes it. Returns 0. (The spelling "Wite" is part of the binary
// interface.)
PLIX_API int PLIX_CALL Plix_SetWiteLogCallback(PlixLogCallback callback);

} // extern "C"

#endif // PLIX_PLIX_H
