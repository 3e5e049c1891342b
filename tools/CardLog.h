#pragma once

#include "check/Finding.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <optional>

namespace plix::tool {

class CardFile;

// Prints the library's log lines about a card as warnings, with the place in the
// card's text.
class CardLog {
public:
    explicit CardLog(const CardFile& file);

    void print(const QString& line);

private:
    // Where the line is about; null if that is not known.
    const Finding* findPlace(const QString& line);

    QString path_;
    QByteArray json_;
    // The places of the reader's lines, in their order. Few cards need them.
    std::optional<Findings> places_;
    std::size_t next_ = 0;
};

} // namespace plix::tool
