#include "Gallery.h"

#include "Console.h"
#include "DrawCard.h"
#include "OutputFile.h"

#include <QFileInfo>

#include <algorithm>

namespace plix::tool {
namespace {

const QString kPictureFolder = QStringLiteral("cards");
const QString kSheetFile = QStringLiteral("gallery.png");

} // namespace

Gallery::Gallery(const Options& options)
    : options_(options)
    , input_(options.input)
    , output_(options.output)
{
}

ExitCode Gallery::draw()
{
    const QStringList files = cardFiles();
    createFolders();
    drawCards(files);
    if (drawn_ > 0)
        writeSheet();
    console::print(QStringLiteral("%1 of %2 cards drawn").arg(drawn_).arg(files.size()));
    return exitCode_;
}

QStringList Gallery::cardFiles() const
{
    if (!input_.exists())
        throw fileError(input_.path(), QStringLiteral("No such folder"));
    QStringList files = input_.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    if (files.isEmpty())
        throw fileError(input_.path(), QStringLiteral("No *.json file in this folder"));
    return files;
}

void Gallery::createFolders() const
{
    if (!output_.mkpath(kPictureFolder))
        throw fileError(output_.path(), QStringLiteral("Cannot create this folder"));
}

void Gallery::drawCards(const QStringList& files)
{
    for (int i = 0; i < files.size(); ++i) {
        const QString name = QFileInfo(files.at(i)).completeBaseName();
        const QString progress = QStringLiteral("[%1/%2] ").arg(i + 1).arg(files.size()) + name;
        try {
            const QImage picture = drawOne(files.at(i));
            sheet_.add(name, picture);
            ++drawn_;
            console::print(
                progress
                + QStringLiteral(": %1 x %2 pixels").arg(picture.width()).arg(picture.height()));
        } catch (const ToolError& error) {
            exitCode_ = std::max(exitCode_, error.code);
            console::print(progress + QStringLiteral(": failed"));
            console::printError(error.message);
        }
    }
}

QImage Gallery::drawOne(const QString& file)
{
    QImage picture = drawCard(input_.filePath(file), options_);
    const QString name = QFileInfo(file).completeBaseName() + QStringLiteral(".png");
    writePng(output_.filePath(kPictureFolder + QLatin1Char('/') + name), picture);
    return picture;
}

void Gallery::writeSheet() const
{
    const QString path = output_.filePath(kSheetFile);
    writePng(path, sheet_.paint());
    console::print(QStringLiteral("Cards:         %1").arg(output_.filePath(kPictureFolder)));
    console::print(QStringLiteral("Contact sheet: %1").arg(path));
}

} // namespace plix::tool
