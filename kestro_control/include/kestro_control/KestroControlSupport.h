#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QImage>
#include <QString>

// What the controls need from the application that shows them. The application
// implements it and registers its object with KestroControlManager.
class KESTRO_CONTROL_API KestroControlSupport {
public:
    KestroControlSupport() = default;
    // Removes the object from KestroControlManager.
    virtual ~KestroControlSupport();

    // The font family of the application's own texts, in the form that
    // QFont::setFamily() takes. Items call this when they are created and when
    // the font family has changed. If it is empty, they keep their font.
    virtual QString GetFontFamily() const = 0;

    // The application's own picture of an emoji. `code` holds the Unicode code
    // points of the emoji, in upper case hexadecimal and joined by "-":
    // "1F469-200D-1F4BB". If the picture is null, as it is here, the emoji is
    // shown as text. Items keep the picture. Return copies of one QImage for the
    // same code, so that the items share its pixels.
    virtual QImage GetEmojiImage(const QString& code) const;

private:
    Q_DISABLE_COPY(KestroControlSupport)
};
