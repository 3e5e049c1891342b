#pragma once

#include <QByteArray>
#include <QString>

namespace plix::tool {

// The text of a card message that is known to be one.
class CardFile {
public:
    // Throws ToolError when the file cannot be read or is no card.
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
