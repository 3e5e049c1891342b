// main() of all Qt tests: fixed fonts, no display, and a failure for every log line or Qt
// warning that a test did not expect.
#include "support/ExpectedLog.h"
#include "tools/FontList.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QByteArray>

#include <cstdlib>
#include <deque>
#include <iostream>
#include <mutex>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

namespace {

std::mutex messagesMutex;
std::deque<std::string> logLines;
std::deque<std::string> qtMessages;

void collectQtMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    const std::lock_guard lock(messagesMutex);
    qtMessages.push_back(text.toStdString());
}

class UnexpectedMessages : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { clear(); }

    void OnTestEnd(const testing::TestInfo&) override
    {
        for (const std::string& line : logLines)
            ADD_FAILURE() << "unexpected log line: " << line;
        for (const std::string& message : qtMessages)
            ADD_FAILURE() << "unexpected Qt message: " << message;
        clear();
    }

    static void clear()
    {
        const std::lock_guard lock(messagesMutex);
        logLines.clear();
        qtMessages.clear();
    }
};

} // namespace

namespace plix::test {

std::string takeLogLine()
{
    if (logLines.empty())
        return {};
    std::string line = std::move(logLines.front());
    logLines.pop_front();
    return line;
}

int pendingLogLines()
{
    return static_cast<int>(logLines.size());
}

void ignoreLog()
{
    logLines.clear();
}

void collectLogLine(const char* text)
{
    logLines.emplace_back(text);
}

} // namespace plix::test

int main(int argc, char** argv)
{
#if defined(Q_OS_WIN)
    // The list of tests may be read on Linux, so lines end there as they do on Linux.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", PLIX_TEST_FONTS_CONF);
    // No scale factor, style or logging of the user's desktop.
    for (const char* name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI",
                             "QT_STYLE_OVERRIDE", "QT_LOGGING_RULES"})
        qunsetenv(name);

    testing::InitGoogleTest(&argc, argv);
    // The build lists the tests without the environment in which they run.
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();

    qInstallMessageHandler(collectQtMessage);
    QApplication application(argc, argv);
#if defined(Q_OS_WIN)
    if (!plix::tool::useFontList(QStringLiteral(PLIX_TEST_FONT_LIST))) {
        std::cerr << "some fonts of " PLIX_TEST_FONT_LIST " are missing" << std::endl;
        return EXIT_FAILURE;
    }
#endif
    testing::UnitTest::GetInstance()->listeners().Append(new UnexpectedMessages);
    return RUN_ALL_TESTS();
}
