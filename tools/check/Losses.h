#pragma once

#include "check/Finding.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <map>

namespace plix::tool {

// What is lost by the values that the reader cannot read. Findings are named by their
// indexes.
class Losses {
public:
    // The value is lost.
    void addValue(std::size_t finding);
    // Something that is read after it is lost, too. The important ones are named first.
    void add(std::size_t finding, const QString& name, bool isImportant);
    // Adds what is lost to the messages of the findings.
    void describe(Findings& findings) const;

private:
    struct Loss {
        int count = 0;
        QStringList names;
    };

    static QString textOf(const Loss& loss);

    std::map<std::size_t, Loss> losses_;
};

} // namespace plix::tool
