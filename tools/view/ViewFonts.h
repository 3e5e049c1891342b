#pragma once

#include <kestro_control/KestroControlSupport.h>

#include <QString>

namespace plix::tool {

// The font family of the host, for all cards that are built. Process-wide, so only one
// of these may exist at a time.
class ViewFonts : public KestroControlSupport {
public:
    ViewFonts();

    // Cards that are already built keep theirs.
    void setFamily(const QString& family) { family_ = family; }
    QString GetFontFamily() const override { return family_; }

private:
    QString family_;
};

} // namespace plix::tool
