#include "view/CardDocument.h"

#include "CardFile.h"
#include "OutputFile.h"
#include "ToolError.h"

#include <QDir>
#include <QFileInfo>

namespace plix::tool {
namespace {

// An editor that is handed more stops to answer.
constexpr qint64 kMaximumCardBytes = 8'388'608;
// Programs write a file in several steps.
constexpr int kSettleMilliseconds = 30;

QByteArray readText(const QString& path)
{
    const QFileInfo file(path);
    if (file.exists() && !file.isFile())
        throw fileError(path, QStringLiteral("This is no file"));
    if (file.size() > kMaximumCardBytes)
        throw fileError(path, QStringLiteral("A card has less than 8 MiB"));
    return readCardText(path);
}

} // namespace

CardDocument::CardDocument()
{
    checkTimer_.setSingleShot(true);
    checkTimer_.setInterval(kSettleMilliseconds);
    connect(&checkTimer_, &QTimer::timeout, this, &CardDocument::check);
    const auto later = [this] { checkTimer_.start(); };
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, later);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, later);
}

QString CardDocument::open(const QString& path)
{
    const QByteArray bytes = readText(path);
    path_ = path;
    watch();
    return take(bytes);
}

void CardDocument::save(const QString& path, const QString& text)
{
    QByteArray bytes = text.toUtf8();
    if (hasCarriageReturns_)
        bytes.replace("\n", "\r\n");
    writeFile(path, bytes);
    path_ = path;
    bytes_ = bytes;
    isDamaged_ = false;
    watch();
}

void CardDocument::close()
{
    path_.clear();
    bytes_.clear();
    hasCarriageReturns_ = false;
    isDamaged_ = false;
    watch();
}

// Many programs replace a file by another one of its name. So its folder is watched, too.
void CardDocument::watch()
{
    const QStringList watched = watcher_.files() + watcher_.directories();
    if (!watched.isEmpty())
        watcher_.removePaths(watched);
    if (path_.isEmpty())
        return;
    watcher_.addPath(QFileInfo(path_).absolutePath());
    if (QFileInfo::exists(path_))
        watcher_.addPath(path_);
}

void CardDocument::check()
{
    if (path_.isEmpty())
        return;
    watch();
    try {
        const QByteArray bytes = readText(path_);
        if (bytes == bytes_)
            return;
        const QString text = take(bytes);
        Q_EMIT changedOnDisk(text);
    } catch (const ToolError&) {
        // While it is replaced, there is no file. The folder changes when there is one.
    }
}

QString CardDocument::take(const QByteArray& bytes)
{
    bytes_ = bytes;
    hasCarriageReturns_ = bytes.contains("\r\n");
    QString text = QString::fromUtf8(bytes);
    isDamaged_ = text.toUtf8() != bytes;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    // The editor would begin a new line there.
    text.replace(QChar::ParagraphSeparator, QStringLiteral("\\u2029"));
    return text;
}

} // namespace plix::tool
