#pragma once

#include "check/Report.h"

#include <QEventLoop>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QProcess;

namespace plix::tool {

// Checks files. Reads their names from standard input, in percent encoding and one per
// line, and writes a report for each as a line of JSON. Ends with its input.
struct WorkerProgram {
    QString path;
    QStringList arguments;
};

// Checks files in processes of their own. What the library has built stays in memory
// until its process ends, so each of them checks some files only. A card that crashes
// its process fails alone.
class WorkerPool {
public:
    // Gets the reports in the order of the files.
    using Receiver = std::function<void(const Report& report)>;

    WorkerPool(const QStringList& files, const WorkerProgram& program, Receiver receiver);
    ~WorkerPool();

    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    void run();

private:
    struct Worker;

    void start(Worker& worker);
    void giveFile(Worker& worker);
    void readReport(Worker& worker);
    void handleEnd(Worker& worker);
    void deliver(int index, const Report& report);

    QStringList files_;
    WorkerProgram program_;
    Receiver receiver_;
    std::vector<std::unique_ptr<Worker>> workers_;
    // Those that wait for the reports of files before them.
    std::map<int, Report> waiting_;
    int given_ = 0;
    int delivered_ = 0;
    QEventLoop loop_;
};

} // namespace plix::tool
