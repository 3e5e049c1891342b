// Writes docs/cards.md and the pictures in it:
//     cmake --build build/release --target card_guide
#include "Console.h"
#include "OutputFile.h"
#include "ToolError.h"
#include "guide/CardGuide.h"

#include <QApplication>

namespace {

using namespace plix::tool;

// Leaves pictures alone that show the same.
void writePictures(const CardGuide& guide)
{
    for (const QString& card : guide.cards()) {
        const QString path = guide.picturePath(card);
        const QImage picture = guide.picture(card);
        if (QImage(path).convertToFormat(picture.format()) != picture)
            writePng(path, picture);
    }
}

} // namespace

int main(int argc, char** argv)
{
    console::setUp();
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        console::printError(QStringLiteral("Usage: plix_card_guide DOCUMENTS IMAGES"));
        return static_cast<int>(ExitCode::WrongUse);
    }
    try {
        const CardGuide guide(arguments.at(1), arguments.at(2));
        writeFile(guide.textPath(), guide.text().toUtf8());
        writePictures(guide);
        console::print(
            QStringLiteral("%1: %2 cards").arg(guide.textPath()).arg(guide.cards().size()));
    } catch (const ToolError& error) {
        console::printError(error.message);
        return static_cast<int>(error.code);
    }
    return 0;
}
