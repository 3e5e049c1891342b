#pragma once

#include <QByteArray>

// Steps through JSON text as bytes. All of them cope with text that is not JSON.
namespace plix::tool {

// The offset of the first byte from `offset` on that is not blank.
int skipBlanks(const QByteArray& text, int offset);

// The offset behind the string whose opening quote is at `offset`.
int skipString(const QByteArray& text, int offset);

// `text` with every comment of the // and /* */ kind overwritten with blanks;
// all other bytes stay where they are. A comment without an end is left alone,
// for the JSON parser to complain about.
QByteArray withoutComments(const QByteArray& text);

} // namespace plix::tool
