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

    // Another family, and back. The items are not told.
    void switchFamily() { family = QStringLiteral("Noto Sans CJK SC"); }
    void resetFamily() { family = QStringLiteral("DejaVu Sans"); }

    // Another family, of which the items are told.
    void changeFamily()
    {
        switchFamily();
        KestroControlManager::GetInstance()->FontFamilyChanged();
    }

    QString family = QStringLiteral("DejaVu Sans");
};

} // namespace plix::test
