#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace plix::test {

// What is allocated meanwhile may be leaked without a report of LeakSanitizer. Qt leaks its
// own when an exception passes through its event delivery.
class LeaksIgnored {
public:
#if defined(__SANITIZE_ADDRESS__)
    LeaksIgnored()
    {
        __lsan_disable();
    }
    ~LeaksIgnored()
    {
        __lsan_enable();
    }
#else
    LeaksIgnored() = default;
#endif

    LeaksIgnored(const LeaksIgnored&) = delete;
    LeaksIgnored& operator=(const LeaksIgnored&) = delete;
};

} // namespace plix::test
