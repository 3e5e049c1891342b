#pragma once

#include <plix/Plix.h>

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>

#include <QString>

namespace plix::test {

// A host that names the font family of all items, for as long as this lives.
class FontFamilyHost : public KestroControlSupport {
public:
    FontFamilyHost() { Plix_SetKestroControlSupport(this); }
    ~FontFamilyHost() override { Plix_SetKestroControlSupport(nullptr); }

    FontFamilyHost(const FontFamilyHost&) = delete;
    FontFamilyHost& operator=(const FontFamilyHost&) = delete;

    QString GetFontFamily() const override { return family; }

    // These set another family and the first one again, without a signal.
    void switchFamily() { family = QStringLiteral("Noto Sans CJK SC"); }
    void resetFamily() { family = QStringLiteral("DejaVu Sans"); }

    // Sets another family and emits the signal that changes all items.
    void changeFamily()
    {
        switchFamily();
        KestroControlManager::GetInstance()->FontFamilyChanged();
    }

    QString family = QStringLiteral("DejaVu Sans");
};

} // namespace plix::test
