#pragma once

#include <QtGlobal>

#include <memory>

class QTextLayout;

namespace bench {

struct Text;

// The text, laid out once, in the width that is known. It draws from (0, 0).
std::unique_ptr<QTextLayout> makeTextLayout(const Text& text);

// Breaks the lines anew.
void layOut(QTextLayout& layout, qreal width, int maximumLines);

} // namespace bench
