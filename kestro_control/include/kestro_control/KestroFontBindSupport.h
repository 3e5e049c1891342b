#pragma once

#include "kestro_control/KestroControlExport.h"

// A mix-in for items whose font can follow the application's font.
class KESTRO_CONTROL_API KestroFontBindSupport {
public:
    virtual ~KestroFontBindSupport();

    // The application's font has changed: an item that follows it overrides
    // this and takes the new font. Does nothing here.
    virtual void FontChanged();

    // Whether the item's font follows the application's; it does unless set
    // otherwise. Overrides of FontChanged() are to ask this first.
    bool IsUseFontBonding() const;
    void SetUseFontBonding(bool use);

private:
    bool useFontBonding_ = true;
};
