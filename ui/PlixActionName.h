#pragma once

#include <QString>

struct ST_ACTION;

namespace plix {

// What screen readers call something that is pressed for this action but has no words: the
// label of the action. Without one, the message that it sends, or the host of its link. Never
// empty.
QString NameOf(const ST_ACTION& action);

} // namespace plix
