#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace plix::test {

// Takes values from the bytes of a fuzzer. Gives zeros and empty texts when all bytes are
// used up.
class FuzzInput {
public:
    // `bytes` must outlive this object.
    explicit FuzzInput(std::string_view bytes)
        : bytes_(bytes)
    {
    }

    bool isEmpty() const { return bytes_.empty(); }

    std::uint8_t byte();
    bool flip() { return byte() % 2 != 0; }
    // A number from 0 to `limit` - 1; `limit` is at most 65,536.
    int below(int limit);
    // Often one that is hard to calculate with: huge, tiny, negative, infinite, not a number.
    double number();
    // At most 255 bytes, not always UTF-8.
    std::string text();
    // The bytes up to the next NUL byte, which is skipped.
    std::string line();
    // All remaining bytes.
    std::string rest();

private:
    std::string take(std::size_t count);

    std::string_view bytes_;
};

} // namespace plix::test
