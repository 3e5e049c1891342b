#include "CardFile.h"

#include "ToolError.h"
#include "check/CardText.h"
#include "check/TextPlaces.h"

#include <QFile>

#include <iostream>
#include <iterator>

namespace plix::tool {

namespace {

QByteArray readFile(const QString& path)
{
    QFile file(path);
    QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError)
        throw fileError(path, file.errorString());
    return text;
}

// On Windows, QFile fails at the end of a pipe.
QByteArray readStandardInput()
{
    return QByteArray::fromStdString({std::istreambuf_iterator<char>(std::cin), {}});
}

} // namespace

QByteArray readCardText(const QString& path)
{
    QByteArray text = path == QLatin1String("-") ? readStandardInput() : readFile(path);
    // A byte order mark is not part of the message.
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    return text;
}

CardFile::CardFile(const QString& path)
    : CardFile(path, readCardText(path))
{
}

CardFile::CardFile(const QString& path, const QByteArray& json)
    : path_(path)
    , json_(json)
{
    check();
}

void CardFile::check() const
{
    Findings findings;
    readCard(json_, findings);
    const Finding* const refusal = findRefusal(findings);
    if (!refusal)
        return;
    const TextPlace place = TextPlaces(json_).at(refusal->range.begin);
    throw ToolError {ExitCode::NotACard,
                     QStringLiteral("%1:%2:%3: error: %4")
                         .arg(path_, QString::number(place.line), QString::number(place.column),
                              refusal->message)};
}

} // namespace plix::tool
