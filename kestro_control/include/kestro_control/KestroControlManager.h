#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QtGlobal>

#include <unordered_set>

class KestroControlSupport;
class KestroFontBindSupport;

// Where the controls of the process find the application's support object, and
// who tells them when its answers have changed. Like all of the library it
// belongs to the GUI thread.
class KESTRO_CONTROL_API KestroControlManager {
public:
    // The one manager of the process, made at the first call. It is never
    // destroyed, so that items that outlive main() can still ask it.
    static KestroControlManager* GetInstance();

    // `support` stays the caller's, who may delete it at any time: there is
    // none from then on. Null: there is no support object. Items that follow
    // the application's font are told.
    void SetKestroControlSupport(KestroControlSupport* support);

    // What was set last, unless it is gone; null when nothing was.
    KestroControlSupport* GetKestroControlSupport() const;

    // To be called by the application when the support object's font family
    // has changed: calls FontChanged() on every item that follows it. Items may
    // come and go meanwhile; those that come are not told. What an item throws,
    // as when the support object does, leaves when all are told; of several
    // exceptions the last.
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
