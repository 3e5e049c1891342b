#include "SharedFont.h"

#include <algorithm>
#include <array>

namespace kestro {

namespace {

// Cards use a few sizes, in two weights.
constexpr std::size_t kMaximumFonts = 16;

// The fonts that were shared last. A new one replaces the oldest.
class Fonts {
public:
    QFont Share(const QFont& font)
    {
        const auto known = std::find_if(fonts_.begin(), fonts_.end(), [&](const QFont& other) {
            return other == font && other.resolve() == font.resolve();
        });
        if (known != fonts_.end())
            return *known;
        fonts_[oldest_] = font;
        oldest_ = (oldest_ + 1) % fonts_.size();
        return font;
    }

private:
    std::array<QFont, kMaximumFonts> fonts_;
    std::size_t oldest_ = 0;
};

} // namespace

QFont SharedFont(const QFont& font)
{
    // Never destroyed: items may outlive static objects.
    static auto* const fonts = new Fonts;
    return fonts->Share(font);
}

} // namespace kestro
