#pragma once

class QByteArray;
class QImage;
class QString;

// Functions that write results. They throw ToolError on failure. An existing file is
// replaced by the complete result, or stays as it is.
namespace plix::tool {

void writeFile(const QString& path, const QByteArray& bytes);
void writePng(const QString& path, const QImage& image);
void writeStandardOutput(const QByteArray& bytes);

} // namespace plix::tool
