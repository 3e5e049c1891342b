#include "Console.h"

#include <QByteArray>
#include <QString>

#include <cstdio>

#if defined(_WIN32)
#include <cstddef>
#include <fcntl.h>
#include <io.h>
#endif

namespace plix::tool::console {
namespace {

void writeLine(std::FILE* stream, const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    // Progress must be visible while the next card is drawn, also in a pipe.
    std::fflush(stream);
}

} // namespace

void setUp()
{
#if defined(_WIN32)
    for (std::FILE* stream : {stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
#endif
}

void print(const QString& line)
{
    writeLine(stdout, line);
}

void printError(const QString& line)
{
    writeLine(stderr, line);
}

void warn(const QString& path, const QString& text)
{
    printError(QStringLiteral("%1: warning: %2").arg(path, text));
}

} // namespace plix::tool::console
