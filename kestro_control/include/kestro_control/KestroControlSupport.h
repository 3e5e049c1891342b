#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QString>

// What the controls ask of the application that shows them. The application
// implements it and registers its object with KestroControlManager.
class KESTRO_CONTROL_API KestroControlSupport {
public:
    virtual ~KestroControlSupport();

    // The font family of the application's own texts, as QFont::setFamily
    // takes it. Called whenever a control needs it, so a changed answer is
    // taken up at the next call.
    virtual QString GetFontFamily() const = 0;
};
