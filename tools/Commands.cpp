#include "Commands.h"

#include "CardFile.h"
#include "CardHost.h"
#include "DrawCard.h"
#include "Gallery.h"
#include "LayoutDump.h"
#include "OutputFile.h"

#include <QByteArray>

namespace plix::tool {
namespace {

void layOut(const Options& options)
{
    const CardFile file(options.input);
    const CardHost host(file, options.card);
    const QByteArray layout = dumpLayout(host.card());
    if (options.output.isEmpty())
        writeStandardOutput(layout);
    else
        writeFile(options.output, layout);
}

} // namespace

ExitCode run(const Options& options)
{
    switch (options.command) {
    case Command::Render:
        writePng(options.output, drawCard(options.input, options));
        return ExitCode::Done;
    case Command::Layout:
        layOut(options);
        return ExitCode::Done;
    case Command::Gallery:
        return Gallery(options).draw();
    }
    return ExitCode::WrongUse;
}

} // namespace plix::tool
