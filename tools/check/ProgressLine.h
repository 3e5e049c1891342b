#pragma once

namespace plix::tool {

// Shows on a terminal how many of many files are done. Elsewhere, it shows nothing.
class ProgressLine {
public:
    explicit ProgressLine(int total);
    ~ProgressLine();

    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void advance();
    // So that other lines can be written.
    void clear();

private:
    int total_;
    int done_ = 0;
    bool isOnTerminal_;
    bool isShown_ = false;
};

} // namespace plix::tool
