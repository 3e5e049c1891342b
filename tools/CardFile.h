#pragma once

#include <QByteArray>
#include <QString>

namespace plix::tool {

// A file that contains a card message: a JSON object of the type "bubble".
class CardFile {
public:
    // Throws ToolError if the file cannot be read or is not a card.
    explicit CardFile(const QString& path);

    const QString& path() const { return path_; }
    const QByteArray& json() const { return json_; }

private:
    void read();
    void check() const;
    [[noreturn]] void refuse(int offset, const QString& reason) const;

    QString path_;
    QByteArray json_;
};

} // namespace plix::tool
