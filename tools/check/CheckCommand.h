#pragma once

#include "ToolError.h"
#include "check/CheckOptions.h"
#include "check/Report.h"
#include "check/ReportWriter.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace plix::tool {

// "plix check".
class CheckCommand {
public:
    explicit CheckCommand(const CheckOptions& options);

    ExitCode run();

private:
    QStringList files() const;
    void checkHere(const QStringList& files);
    void checkInWorkers(const QStringList& files);
    ExitCode work();
    void take(const Report& report);
    void summarize(int files) const;

    CheckOptions options_;
    std::unique_ptr<ReportWriter> writer_;
    ExitCode exitCode_ = ExitCode::Done;
    int errors_ = 0;
    int warnings_ = 0;
};

} // namespace plix::tool
