#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace plix::tool {

// The file of the card that is edited. Tells when another program changes it.
class CardDocument : public QObject {
    Q_OBJECT

public:
    CardDocument();

    // Empty for a new card.
    const QString& path() const { return path_; }
    // Whether the text that was read had bytes that are not UTF-8.
    bool isDamaged() const { return isDamaged_; }

    // Reads the file and returns its text. Throws ToolError; then nothing changes.
    QString open(const QString& path);
    // Writes the text to the file, which becomes that of the card. Throws ToolError.
    void save(const QString& path, const QString& text);
    // Begins a card without a file.
    void close();

Q_SIGNALS:
    // The file has another text than the one that was read or written last.
    void changedOnDisk(const QString& text);

private:
    void watch();
    void check();
    QString take(const QByteArray& bytes);

    QString path_;
    QByteArray bytes_; // what was read or written last
    bool hasCarriageReturns_ = false;
    bool isDamaged_ = false;
    QFileSystemWatcher watcher_;
    QTimer checkTimer_;
};

} // namespace plix::tool
