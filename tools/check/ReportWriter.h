#pragma once

#include "check/CheckOptions.h"
#include "check/Report.h"

#include <memory>

namespace plix::tool {

// Writes reports to standard output.
class ReportWriter {
public:
    virtual ~ReportWriter() = default;

    ReportWriter(const ReportWriter&) = delete;
    ReportWriter& operator=(const ReportWriter&) = delete;

    virtual void begin() { }
    virtual void write(const Report& report) = 0;
    virtual void end() { }

protected:
    ReportWriter() = default;
};

std::unique_ptr<ReportWriter> makeReportWriter(CheckFormat format);

} // namespace plix::tool
