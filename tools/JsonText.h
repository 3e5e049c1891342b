#pragma once

#include <QByteArray>

// Functions that scan JSON text. The text may be malformed.
namespace plix::tool {

// The offset of the first byte at or after `offset` that is not blank.
int skipBlanks(const QByteArray& text, int offset);

// The offset after the string whose opening quote is at `offset`.
int skipString(const QByteArray& text, int offset);

// `text` with each // and /* */ comment replaced by as many blanks, so that all
// offsets stay valid. A comment without an end stays: the JSON parser reports it.
QByteArray withoutComments(const QByteArray& text);

} // namespace plix::tool
