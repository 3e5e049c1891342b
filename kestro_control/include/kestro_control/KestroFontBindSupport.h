#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QtGlobal>

// A mix-in for items whose font can follow the application's font. For as long
// as it lives, KestroControlManager knows it and tells it of changes.
class KESTRO_CONTROL_API KestroFontBindSupport {
public:
    KestroFontBindSupport();
    virtual ~KestroFontBindSupport();

    // The application's font has changed: an item that follows it overrides
    // this and takes the new font. Does nothing here.
    virtual void FontChanged();

    // Whether the item's font follows the application's; it does unless set
    // otherwise. Overrides of FontChanged() are to ask this first.
    bool IsUseFontBonding() const;
    void SetUseFontBonding(bool use);

private:
    Q_DISABLE_COPY(KestroFontBindSupport)

    bool useFontBonding_ = true;
};
