#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QtGlobal>

class KestroControlSupport;

// Where the controls of the process find the application's support object.
// Like all of the library it belongs to the GUI thread.
class KESTRO_CONTROL_API KestroControlManager {
public:
    // The one manager of the process, made at the first call. It is never
    // destroyed, so that items that outlive main() can still ask it.
    static KestroControlManager* GetInstance();

    // `support` stays the caller's, who must set another one, or null, before
    // deleting it. Null: there is no support object.
    void SetKestroControlSupport(KestroControlSupport* support);

    // What was set last; null when nothing was.
    KestroControlSupport* GetKestroControlSupport() const;

private:
    KestroControlManager() = default;
    ~KestroControlManager() = default;
    Q_DISABLE_COPY(KestroControlManager)

    KestroControlSupport* support_ = nullptr;
};
