#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QtGlobal>

#include <unordered_set>

class KestroControlSupport;
class KestroFontBindSupport;

// Gives the controls of the process the application's support object, and tells
// them when its font family has changed. To be used in the GUI thread only, like
// the whole library.
class KESTRO_CONTROL_API KestroControlManager {
public:
    // The one manager of the process, created by the first call. It is never
    // destroyed, so that items that outlive main() can still use it.
    static KestroControlManager* GetInstance();

    // The caller keeps the ownership of `support` and may delete it at any time;
    // there is no support object then. Null: there is none. Calls
    // FontFamilyChanged().
    void SetKestroControlSupport(KestroControlSupport* support);

    // The object that was set last; null if none was set or if it was deleted.
    KestroControlSupport* GetKestroControlSupport() const;

    // The application calls this when the font family of its support object has
    // changed. Calls FontChanged() on every item that follows the application's
    // font. These calls may create and delete items; new items are not called.
    // If an item or the support object throws, the exception is rethrown after
    // all items were called; if several do, the last one.
    void FontFamilyChanged();

private:
    friend class KestroControlSupport;
    friend class KestroFontBindSupport;

    KestroControlManager() = default;
    ~KestroControlManager() = default;
    Q_DISABLE_COPY(KestroControlManager)

    void Forget(const KestroControlSupport* support);
    void Register(KestroFontBindSupport* item);
    void Unregister(KestroFontBindSupport* item);

    KestroControlSupport* support_ = nullptr;
    std::unordered_set<KestroFontBindSupport*> items_;
};
