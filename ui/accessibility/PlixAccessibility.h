#pragma once

namespace plix {

// Lets Qt make accessible interfaces of the items of cards, when a client such as a screen
// reader asks for them. Further calls change nothing.
void InstallAccessibility();

} // namespace plix
