#include "OutputFile.h"

#include "ToolError.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QSaveFile>
#include <QString>

#include <cstdio>

namespace plix::tool {
namespace {

constexpr int kDotsPerMeter = 3780; // 96 per inch

bool writeAll(QFileDevice& file, const QByteArray& bytes)
{
    return file.write(bytes) == bytes.size() && file.flush();
}

void replaceFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    const bool isDone = file.open(QIODevice::WriteOnly) && writeAll(file, bytes) && file.commit();
    if (!isDone)
        throw fileError(path, file.errorString());
}

void writeToDevice(const QString& path, const QByteArray& bytes)
{
    QFile device(path);
    if (!device.open(QIODevice::WriteOnly) || !writeAll(device, bytes))
        throw fileError(path, device.errorString());
}

} // namespace

void writeFile(const QString& path, const QByteArray& bytes)
{
    // A file must not replace a device or a pipe.
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        writeToDevice(path, bytes);
    else
        replaceFile(path, bytes);
}

void writePng(const QString& path, const QImage& image)
{
    // Otherwise Qt writes the resolution of the screen, which depends on the machine.
    QImage picture = image;
    picture.setDotsPerMeterX(kDotsPerMeter);
    picture.setDotsPerMeterY(kDotsPerMeter);

    QBuffer buffer;
    QImageWriter writer(&buffer, "png");
    if (!writer.write(picture))
        throw fileError(path, writer.errorString());
    writeFile(path, buffer.data());
}

void writeStandardOutput(const QByteArray& bytes)
{
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly) || !writeAll(output, bytes))
        throw fileError(QStringLiteral("standard output"), output.errorString());
}

} // namespace plix::tool
