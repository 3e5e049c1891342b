#include "CardFile.h"

#include "JsonPosition.h"
#include "JsonText.h"
#include "ToolError.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace plix::tool {
namespace {

// Qt's parser reports the offset after the token that it cannot use. For the
// errors listed here it reports the offset of a character.
int errorOffset(const QJsonParseError& error, int size)
{
    switch (error.error) {
    case QJsonParseError::GarbageAtEnd:
    case QJsonParseError::IllegalNumber:
    case QJsonParseError::IllegalUTF8String:
    case QJsonParseError::TerminationByNumber:
    case QJsonParseError::UnterminatedString:
        return std::min(error.offset, size);
    default:
        return std::clamp(error.offset - 1, 0, size);
    }
}

} // namespace

QByteArray readCardText(const QString& path)
{
    QFile file(path);
    const bool isOpen = path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                   : file.open(QIODevice::ReadOnly);
    QByteArray text = isOpen ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError)
        throw fileError(path, file.errorString());
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
    const QByteArray plain = withoutComments(json_);
    const JsonPosition position(plain);
    if (position.start() == plain.size() || plain.at(position.start()) != '{')
        refuse(position.start(), QStringLiteral("a card must be a JSON object"));

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(plain, &error);
    if (error.error != QJsonParseError::NoError)
        refuse(errorOffset(error, plain.size()), error.errorString());

    const QString key = QStringLiteral("type");
    const QJsonValue type = document.object().value(key);
    if (type.isUndefined())
        refuse(position.start(), QStringLiteral("the card has no \"type\""));
    if (type != QJsonValue(QStringLiteral("bubble"))) {
        refuse(position.rootMember(key).value_or(position.start()),
               QStringLiteral("the \"type\" of a card must be \"bubble\""));
    }
}

void CardFile::refuse(int offset, const QString& reason) const
{
    const TextPlace place = placeAt(json_, offset);
    throw ToolError {
        ExitCode::NotACard,
        QStringLiteral("%1:%2:%3: error: %4")
            .arg(path_, QString::number(place.line), QString::number(place.column), reason)};
}

} // namespace plix::tool
