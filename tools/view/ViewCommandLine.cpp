#include "view/ViewCommandLine.h"

#include "CardOptionParser.h"

#include <QCommandLineParser>

namespace plix::tool {
namespace {

const QString kViewDescription = QStringLiteral(
    "\nOpens a window that shows a card beside its JSON, live as it is written or as\n"
    "another program changes the file, with its problems, its items, and controls\n"
    "for the settings below. It needs a display. The settings are remembered.");

} // namespace

Request parseViewCommandLine(const QStringList& arguments)
{
    CardOptionParser options(kViewCommand);
    QCommandLineParser& parser = options.parser();
    parser.setApplicationDescription(kViewDescription);
    parser.addPositionalArgument(kViewCommand, kViewSummary);
    parser.addPositionalArgument(
        QStringLiteral("CARD"),
        QStringLiteral("A card, or a folder of cards (default: a new card)."),
        QStringLiteral("[CARD]"));
    options.addOption({QStringLiteral("h"), QStringLiteral("help")},
                      QStringLiteral("Shows this help."));
    options.addCardOptions();
    if (!parser.parse(arguments))
        options.refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        return Information {parser.helpText() + QStringLiteral("\nExamples:\n")
                            + QString(kViewExamples)};
    }
    const QStringList inputs = parser.positionalArguments().mid(1);
    if (inputs.size() > 1) {
        options.refuse(
            QStringLiteral("only one card is allowed, but \"%1\" follows").arg(inputs.at(1)));
    }
    return ViewOptions {inputs.value(0), options.cardOptions()};
}

} // namespace plix::tool
