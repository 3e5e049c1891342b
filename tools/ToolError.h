#pragma once

#include <QString>

namespace plix::tool {

// The exit code of the tool. Scripts rely on these numbers.
enum class ExitCode { Done = 0, NotACard = 1, WrongUse = 2 };

// Thrown if a command, or one card of a gallery, fails. The message is the complete
// line for the user.
struct ToolError {
    ExitCode code;
    QString message;
    // Without the file, if the message is about one.
    QString reason = {};
};

// The error of a file or folder that cannot be read or written.
inline ToolError fileError(const QString& path, const QString& reason)
{
    return {ExitCode::WrongUse, QStringLiteral("%1: error: %2").arg(path, reason), reason};
}

} // namespace plix::tool
