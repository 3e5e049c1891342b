#pragma once

#include "check/ReportWriter.h"

#include <QJsonArray>

namespace plix::tool {

// Writes one SARIF 2.1.0 log, which code hosts show beside the lines.
class SarifWriter : public ReportWriter {
public:
    void write(const Report& report) override;
    void end() override;

private:
    QJsonArray results_;
};

} // namespace plix::tool
