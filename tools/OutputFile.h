#pragma once

class QByteArray;
class QImage;
class QString;

// Where results go. All of them throw ToolError when they cannot write; a file is
// replaced by the whole result or left as it was.
namespace plix::tool {

void writeFile(const QString& path, const QByteArray& bytes);
void writePng(const QString& path, const QImage& image);
void writeStandardOutput(const QByteArray& bytes);

} // namespace plix::tool
