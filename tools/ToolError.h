#pragma once

#include <QString>

namespace plix::tool {

// What the shell gets to see; scripts rely on the difference.
enum class ExitCode { Done = 0, NotACard = 1, WrongUse = 2 };

// Thrown where a command, or one card of a gallery, cannot go on. The message
// is the whole line for the user.
struct ToolError {
    ExitCode code;
    QString message;
};

// The error of a file or folder that cannot be read or written.
inline ToolError fileError(const QString& path, const QString& reason)
{
    return {ExitCode::WrongUse, QStringLiteral("%1: error: %2").arg(path, reason)};
}

} // namespace plix::tool
