#include "FuzzHost.h"

#include <QApplication>

namespace plix::test {

void startFuzzHost()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", PLIX_TEST_FONTS_CONF);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    // Never deleted: libFuzzer ends the process by exit().
    static auto* const application = new QApplication(argc, argv);
    application->setQuitOnLastWindowClosed(false);
}

} // namespace plix::test
