#include "check/CheckCommand.h"

#include "Console.h"
#include "OutputFile.h"
#include "check/CardCheck.h"
#include "check/CheckCommandLine.h"
#include "check/ProgressLine.h"
#include "check/WorkerPool.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <cstdio>

namespace plix::tool {
namespace {

// To start a worker takes longer than to check a few cards.
constexpr int kFilesWithoutWorkers = 8;

QStringList cardFiles(const QString& folder)
{
    QStringList files;
    QDirIterator iterator(folder, {QStringLiteral("*.json")}, QDir::Files,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(iterator.next());
    files.sort();
    return files;
}

QString counted(int count, const char* thing)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(
        QLatin1String(thing), count == 1 ? QLatin1String() : QLatin1String("s"));
}

} // namespace

CheckCommand::CheckCommand(const CheckOptions& options)
    : options_(options)
    , writer_(makeReportWriter(options.format))
{
}

ExitCode CheckCommand::run()
{
    if (options_.isWorker)
        return work();
    const QStringList files = this->files();
    writer_->begin();
    if (files.size() <= kFilesWithoutWorkers)
        checkHere(files);
    else
        checkInWorkers(files);
    writer_->end();
    summarize(files.size());
    return exitCode_;
}

QStringList CheckCommand::files() const
{
    QStringList files;
    for (const QString& input : options_.inputs) {
        if (!QFileInfo(input).isDir()) {
            files.append(input);
            continue;
        }
        const QStringList inFolder = cardFiles(input);
        if (inFolder.isEmpty())
            throw fileError(input, QStringLiteral("No *.json file in this folder"));
        files += inFolder;
    }
    return files;
}

void CheckCommand::checkHere(const QStringList& files)
{
    for (const QString& file : files)
        take(checkCard(file, options_));
}

void CheckCommand::checkInWorkers(const QStringList& files)
{
    ProgressLine progress(files.size());
    const WorkerProgram worker {QCoreApplication::applicationFilePath(),
                                QStringList {kCheckCommand, QStringLiteral("--") + kWorkerOption}
                                    + options_.arguments};
    WorkerPool pool(files, worker, [&](const Report& report) {
        progress.clear();
        take(report);
        progress.advance();
    });
    pool.run();
}

// Files by line, reports by line.
ExitCode CheckCommand::work()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw fileError(QStringLiteral("standard input"), input.errorString());
    for (;;) {
        const QByteArray line = input.readLine();
        if (line.isEmpty())
            return ExitCode::Done;
        const QString file = QString::fromUtf8(QByteArray::fromPercentEncoding(line.trimmed()));
        const QJsonObject report = toJson(checkCard(file, options_));
        writeStandardOutput(QJsonDocument(report).toJson(QJsonDocument::Compact) + '\n');
    }
}

void CheckCommand::take(const Report& report)
{
    writer_->write(report);
    if (!report.failure.isEmpty()) {
        console::printError(fileError(report.file, report.failure).message);
        exitCode_ = ExitCode::WrongUse;
    }
    for (const Finding& finding : report.findings)
        ++(description(finding.rule).severity == Severity::Error ? errors_ : warnings_);
    const bool fails = errors_ > 0 || (options_.isStrict && warnings_ > 0);
    if (fails)
        exitCode_ = std::max(exitCode_, ExitCode::NotACard);
}

void CheckCommand::summarize(int files) const
{
    console::printError(
        QStringLiteral("%1 checked: %2, %3")
            .arg(counted(files, "card"), counted(errors_, "error"), counted(warnings_, "warning")));
}

} // namespace plix::tool
