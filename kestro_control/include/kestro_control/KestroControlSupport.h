#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QImage>
#include <QString>

// What the controls ask of the application that shows them. The application
// implements it and registers its object with KestroControlManager.
class KESTRO_CONTROL_API KestroControlSupport {
public:
    KestroControlSupport() = default;
    // KestroControlManager forgets the object.
    virtual ~KestroControlSupport();

    // The font family of the application's own texts, as QFont::setFamily
    // takes it. Items ask when they are created and when the manager is told
    // of a change; an empty answer changes nothing.
    virtual QString GetFontFamily() const = 0;

    // The application's own picture of an emoji, whose Unicode code points
    // `code` names: in upper case hexadecimal, joined by "-", as in
    // "1F469-200D-1F4BB". Null, as here: the emoji is shown as text. A picture
    // is kept by the items that show it, so it can be shared among them.
    virtual QImage GetEmojiImage(const QString& code) const;

private:
    Q_DISABLE_COPY(KestroControlSupport)
};
