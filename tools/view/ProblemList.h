#pragma once

#include "check/Finding.h"

#include <QTreeWidget>

namespace plix::tool {

// The findings about a card, in the order of its text.
class ProblemList : public QTreeWidget {
    Q_OBJECT

public:
    explicit ProblemList(QWidget* parent = nullptr);

    void setFindings(const Findings& findings);
    // Marks the row of this finding; emits nothing.
    void mark(int index);

Q_SIGNALS:
    // The user has clicked the finding of this index, or pressed Enter on it.
    void picked(int index);
};

} // namespace plix::tool
