#pragma once

namespace plix {

// The "from" of cards that the user has sent. Any other value is another sender.
inline constexpr int kFromMyself = 1;

} // namespace plix
