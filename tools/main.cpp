#include "CommandLine.h"
#include "CommandParser.h"
#include "Commands.h"
#include "Console.h"
#include "FontList.h"
#include "ToolError.h"
#include "check/CheckCommand.h"
#include "schema/SchemaCommand.h"
#include "view/ViewCommand.h"
#include "view/ViewCommandLine.h"

#include <QApplication>
#include <QLatin1String>
#include <QTextCodec>

#include <variant>

namespace {

using namespace plix::tool;

const QLatin1String kOffscreen("offscreen");

ExitCode execute(const Information& information)
{
    console::print(information.text);
    return ExitCode::Done;
}

ExitCode execute(const Options& options)
{
    return run(options);
}

ExitCode execute(const CheckOptions& options)
{
    return CheckCommand(options).run();
}

ExitCode execute(const SchemaOptions& options)
{
    return writeSchema(options);
}

ExitCode execute(const ViewOptions& options)
{
    if (QGuiApplication::platformName() == kOffscreen)
        refuseUse(QStringLiteral("the window needs a display"), kViewCommand);
    return runView(options);
}

ExitCode runTool(const QStringList& arguments)
{
    try {
        return std::visit([](const auto& options) { return execute(options); },
                          parseCommandLine(arguments));
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

bool hasDisplay()
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return true;
#else
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#endif
}

void choosePlatform([[maybe_unused]] const QString& fontList, bool showsWindow)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || (showsWindow && hasDisplay()))
        return;
#if defined(Q_OS_WIN)
    // Only the desktop's platform knows the system's fonts, and it always exists.
    if (fontList.isEmpty())
        return;
#endif
    // Drawing needs no display, and a build machine has none.
    qputenv("QT_QPA_PLATFORM", kOffscreen.data());
}

} // namespace

int main(int argc, char** argv)
{
    console::setUp();
#if defined(Q_OS_UNIX)
    // Containers often have no locale; arguments and file names are UTF-8 even then.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    const QString fontList = qEnvironmentVariable("PLIX_FONTS");
    choosePlatform(fontList, argc > 1 && QLatin1String(argv[1]) == kViewCommand);

    // Hides Qt's warnings about a missing runtime folder or font folder, which the
    // tool does not need.
    qInstallMessageHandler(&printFailure);
    QApplication application(argc, argv);
    const bool hasFonts = fontList.isEmpty() || useFontList(fontList);
    qInstallMessageHandler(nullptr);
    if (!hasFonts) {
        console::printError(
            fileError(fontList, QStringLiteral("Not all fonts of this list exist")).message);
        return static_cast<int>(ExitCode::WrongUse);
    }
    QApplication::setApplicationName(QStringLiteral("plix"));
    QApplication::setApplicationVersion(QStringLiteral(PLIX_VERSION));
    return static_cast<int>(runTool(QApplication::arguments()));
}
