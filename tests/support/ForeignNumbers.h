#pragma once

#include <locale>
#include <string>

namespace plix::test {

// While it lives, the process writes and reads numbers as "1.234,5", in the C++
// streams that ask the global locale. The locale is made up: none has to be
// installed.
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
