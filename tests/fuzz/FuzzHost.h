#pragma once

namespace plix::test {

// Starts Qt without a display and with fixed fonts. Call it once, at the start of main().
// Log lines and Qt's warnings are not shown: hostile cards cause many.
void startFuzzHost();

} // namespace plix::test
