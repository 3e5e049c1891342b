#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QtGlobal>

class QFont;

// A mix-in for items whose font can follow the application's font. The
// constructor registers it with KestroControlManager, which then calls
// FontChanged(); the destructor removes it.
class KESTRO_CONTROL_API KestroFontBindSupport {
public:
    KestroFontBindSupport();
    virtual ~KestroFontBindSupport();

    // Called when the application's font family has changed. Items override it
    // to set their font. This one does nothing.
    virtual void FontChanged();

    // Whether the item's font follows the application's; true at first. Overrides
    // of FontChanged() must check it.
    bool IsUseFontBonding() const;
    void SetUseFontBonding(bool use);

protected:
    // Sets the application's font family in `font`. False, and nothing changed,
    // when the application names none.
    static bool ApplyFontFamily(QFont& font);

private:
    Q_DISABLE_COPY(KestroFontBindSupport)

    bool useFontBonding_ = true;
};
