#include "FuzzInput.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace plix::test {

std::uint8_t FuzzInput::byte()
{
    if (bytes_.empty())
        return 0;
    const auto first = static_cast<std::uint8_t>(bytes_.front());
    bytes_.remove_prefix(1);
    return first;
}

int FuzzInput::below(int limit)
{
    const int high = limit > 256 ? byte() : 0;
    return limit > 0 ? (high * 256 + byte()) % limit : 0;
}

double FuzzInput::number()
{
    using Limits = std::numeric_limits<double>;
    static constexpr std::array kHardNumbers {0.0,
                                              -0.0,
                                              0.5,
                                              1e-30,
                                              -1e-30,
                                              1e30,
                                              -1e30,
                                              1e300,
                                              Limits::max(),
                                              Limits::infinity(),
                                              2147483647.0,
                                              -2147483648.0,
                                              4294967296.0,
                                              Limits::lowest(),
                                              Limits::quiet_NaN()};
    const int kind = byte();
    if (kind < static_cast<int>(kHardNumbers.size()))
        return kHardNumbers[static_cast<std::size_t>(kind)];
    if (kind < 128)
        return below(65'536) / 16.0 - 512;
    const std::string raw = take(sizeof(double));
    double value = 0;
    if (raw.size() == sizeof value)
        std::memcpy(&value, raw.data(), sizeof value);
    return value;
}

std::string FuzzInput::text()
{
    return take(byte());
}

std::string FuzzInput::line()
{
    const std::size_t end = std::min(bytes_.find('\0'), bytes_.size());
    std::string result = take(end);
    byte();
    return result;
}

std::string FuzzInput::rest()
{
    return take(bytes_.size());
}

std::string FuzzInput::take(std::size_t count)
{
    const std::string_view taken = bytes_.substr(0, count);
    bytes_.remove_prefix(taken.size());
    return std::string(taken);
}

} // namespace plix::test
