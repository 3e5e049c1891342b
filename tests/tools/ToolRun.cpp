#include "ToolRun.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QThread>

#include <sstream>

namespace plix::test {
namespace {

QProcessEnvironment environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("FONTCONFIG_FILE"), QStringLiteral(PLIX_TEST_FONTS_CONF));
#if defined(Q_OS_WIN)
    environment.insert(QStringLiteral("PLIX_FONTS"), QStringLiteral(PLIX_TEST_FONT_LIST));
#endif
    // As in a container without locales.
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    return environment;
}

} // namespace

Arguments operator+(Arguments first, const Arguments& more)
{
    first.insert(first.end(), more.begin(), more.end());
    return first;
}

ToolResult runTool(const Arguments& arguments, const QString& folder, const QByteArray& input)
{
    QStringList words;
    for (const std::string& argument : arguments)
        words.append(QString::fromStdString(argument));

    QProcess process;
    process.setProcessEnvironment(environment());
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral(PLIX_TOOL), words);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(-1)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << "the tool crashed";
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

ToolFolder::~ToolFolder()
{
    // Windows may lock the working folder of a program for a moment after it ends.
    for (int i = 0; i < 100 && !QDir(folder_.path()).removeRecursively(); ++i)
        QThread::msleep(20);
    folder_.setAutoRemove(QDir(folder_.path()).exists());
}

QString ToolFolder::path(const std::string& name) const
{
    return folder_.filePath(QString::fromStdString(name));
}

void ToolFolder::write(const std::string& name, const QByteArray& bytes) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name;
    file.write(bytes);
}

QByteArray ToolFolder::read(const std::string& name) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.isOpen() ? file.readAll() : QByteArray();
}

bool ToolFolder::contains(const std::string& name) const
{
    return QFileInfo::exists(path(name));
}

ToolResult ToolFolder::run(const Arguments& arguments, const QByteArray& input) const
{
    return runTool(arguments, folder_.path(), input);
}

QByteArray cardOf(const QByteArray& components)
{
    return R"({"type": "bubble", "body": {"type": "box", "layout": "vertical", "contents": [)"
        + components + "]}}";
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

int countOf(const std::string& text, const std::string& part)
{
    int count = 0;
    for (auto i = text.find(part); i != std::string::npos; i = text.find(part, i + part.size()))
        ++count;
    return count;
}

} // namespace plix::test
