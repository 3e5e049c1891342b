#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "ToolError.h"

#include <QApplication>
#include <QTextCodec>

namespace {

using namespace plix::tool;

ExitCode runTool(const QStringList& arguments)
{
    try {
        const std::variant<Options, Answer> request = parseCommandLine(arguments);
        if (const Answer* answer = std::get_if<Answer>(&request)) {
            console::print(answer->text);
            return ExitCode::Done;
        }
        return run(std::get<Options>(request));
    } catch (const ToolError& error) {
        console::printError(error.message);
        return error.code;
    }
}

void printFailure(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        console::printError(QStringLiteral("plix: error: %1").arg(text));
}

} // namespace

int main(int argc, char** argv)
{
    // Drawing needs no display, and a build machine has none.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // A container often has no locale: arguments and file names are UTF-8 all the same.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

    // Qt warns about a session without a runtime folder, which no picture needs.
    qInstallMessageHandler(&printFailure);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName(QStringLiteral("plix"));
    QApplication::setApplicationVersion(QStringLiteral(PLIX_VERSION));
    return static_cast<int>(runTool(QApplication::arguments()));
}
