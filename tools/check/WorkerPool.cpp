#include "check/WorkerPool.h"

#include <QJsonDocument>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <optional>
#include <utility>

namespace plix::tool {
namespace {

// A card leaves some 100 kB behind.
constexpr int kFilesPerProcess = 200;

} // namespace

struct WorkerPool::Worker {
    std::unique_ptr<QProcess> process;
    std::optional<int> file; // that it is checking
    int checked = 0;
};

WorkerPool::WorkerPool(const QStringList& files, const WorkerProgram& program, Receiver receiver)
    : files_(files)
    , program_(program)
    , receiver_(std::move(receiver))
{
}

WorkerPool::~WorkerPool() = default;

void WorkerPool::run()
{
    const int count = std::min(QThread::idealThreadCount(), files_.size());
    for (int i = 0; i < count; ++i) {
        workers_.push_back(std::make_unique<Worker>());
        start(*workers_.back());
    }
    if (delivered_ < files_.size())
        loop_.exec();
    for (const std::unique_ptr<Worker>& worker : workers_) {
        worker->process->closeWriteChannel();
        worker->process->waitForFinished(-1);
    }
}

void WorkerPool::start(Worker& worker)
{
    worker.checked = 0;
    worker.process = std::make_unique<QProcess>();
    QProcess& process = *worker.process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [this, &worker] { readReport(worker); });
    // Queued, because the process is then replaced.
    QObject::connect(
        &process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop_,
        [this, &worker] { handleEnd(worker); }, Qt::QueuedConnection);
    QObject::connect(
        &process, &QProcess::errorOccurred, &loop_,
        [this, &worker](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                handleEnd(worker);
        },
        Qt::QueuedConnection);
    process.start(program_.path, program_.arguments);
    giveFile(worker);
}

void WorkerPool::giveFile(Worker& worker)
{
    if (given_ == files_.size() || worker.checked == kFilesPerProcess) {
        worker.process->closeWriteChannel();
        return;
    }
    worker.file = given_++;
    ++worker.checked;
    // On Windows, a program that is missing has failed already.
    if (worker.process->state() != QProcess::NotRunning)
        worker.process->write(files_.at(*worker.file).toUtf8().toPercentEncoding() + '\n');
}

void WorkerPool::readReport(Worker& worker)
{
    if (!worker.process->canReadLine() || !worker.file)
        return;
    const QJsonDocument document = QJsonDocument::fromJson(worker.process->readLine());
    const int file = *std::exchange(worker.file, std::nullopt);
    giveFile(worker);
    deliver(file, reportFromJson(document.object()));
}

void WorkerPool::handleEnd(Worker& worker)
{
    if (worker.file) {
        const int file = *std::exchange(worker.file, std::nullopt);
        deliver(file, {files_.at(file), QStringLiteral("The check of this card crashed"), {}});
    }
    if (given_ < files_.size())
        start(worker);
}

void WorkerPool::deliver(int index, const Report& report)
{
    waiting_.emplace(index, report);
    while (!waiting_.empty() && waiting_.begin()->first == delivered_) {
        receiver_(waiting_.begin()->second);
        waiting_.erase(waiting_.begin());
        ++delivered_;
    }
    if (delivered_ == files_.size())
        loop_.quit();
}

} // namespace plix::tool
