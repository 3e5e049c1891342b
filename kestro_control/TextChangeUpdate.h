#pragma once

#include <QString>

class TextItem;

namespace kestro {

// Tells clients of QAccessible at the end of its life how the text of an item has changed
// since its start. Does nothing if there are no clients.
class TextChangeUpdate {
public:
    explicit TextChangeUpdate(TextItem& item);
    ~TextChangeUpdate();

    TextChangeUpdate(const TextChangeUpdate&) = delete;
    TextChangeUpdate& operator=(const TextChangeUpdate&) = delete;

private:
    // Null if nobody is to be told.
    TextItem* const item_;
    const QString before_;
};

} // namespace kestro
