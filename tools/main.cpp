#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "FontList.h"
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

void choosePlatform([[maybe_unused]] const QString& fontList)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
#if defined(Q_OS_WIN)
    // The system's fonts come with its desktop, which is always there.
    if (fontList.isEmpty())
        return;
#endif
    // Drawing needs no display, and a build machine has none.
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char** argv)
{
    console::setUp();
#if defined(Q_OS_UNIX)
    // A container often has no locale: arguments and file names are UTF-8 all the same.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    const QString fontList = qEnvironmentVariable("PLIX_FONTS");
    choosePlatform(fontList);

    // Qt warns about a session without a runtime folder or a folder of fonts,
    // which no picture needs.
    qInstallMessageHandler(&printFailure);
    QApplication application(argc, argv);
    const bool hasFonts = fontList.isEmpty() || useFontList(fontList);
    qInstallMessageHandler(nullptr);
    if (!hasFonts) {
        console::printError(
            fileError(fontList, QStringLiteral("not all fonts of this list are there")).message);
        return static_cast<int>(ExitCode::WrongUse);
    }
    QApplication::setApplicationName(QStringLiteral("plix"));
    QApplication::setApplicationVersion(QStringLiteral(PLIX_VERSION));
    return static_cast<int>(runTool(QApplication::arguments()));
}
