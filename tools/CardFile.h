#pragma once

#include <QByteArray>
#include <QString>

namespace plix::tool {

// The text of a file, or of standard input ("-"), without a byte order mark. Throws
// ToolError if it cannot be read.
QByteArray readCardText(const QString& path);

// A file that contains a card message: a JSON object of the type "bubble".
class CardFile {
public:
    // Throws ToolError if the file cannot be read or is not a card.
    explicit CardFile(const QString& path);
    // The same for the text of the file.
    CardFile(const QString& path, const QByteArray& json);

    const QString& path() const { return path_; }
    const QByteArray& json() const { return json_; }

private:
    void check() const;

    QString path_;
    QByteArray json_;
};

} // namespace plix::tool
