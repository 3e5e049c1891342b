#pragma once

#include <locale>
#include <string>

namespace plix::test {

// While it lives, C++ streams that use the global locale write and read numbers as
// "1.234,5". No locale has to be installed.
class ForeignNumbers {
public:
    explicit ForeignNumbers(char point = ',', char separator = '.', std::string grouping = "\3")
        : before_(std::locale::global(
            {std::locale(), new Punctuation(point, separator, std::move(grouping))}))
    {
    }

    ~ForeignNumbers() { std::locale::global(before_); }

    ForeignNumbers(const ForeignNumbers&) = delete;
    ForeignNumbers& operator=(const ForeignNumbers&) = delete;

private:
    class Punctuation : public std::numpunct<char> {
    public:
        Punctuation(char point, char separator, std::string grouping)
            : point_(point)
            , separator_(separator)
            , grouping_(std::move(grouping))
        {
        }

    protected:
        char do_decimal_point() const override { return point_; }
        char do_thousands_sep() const override { return separator_; }
        std::string do_grouping() const override { return grouping_; }

    private:
        char point_;
        char separator_;
        std::string grouping_;
    };

    std::locale before_;
};

} // namespace plix::test
