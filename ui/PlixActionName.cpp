#include "ui/PlixActionName.h"

#include "ui/PlixActionWords.h"

#include <plix/Plix.h>

#include <QUrl>

#include <array>
#include <string>

namespace {

// Links without a host, such as "tel:+44 20 7946 0000", need not be longer.
constexpr int kMaximumLinkLength = 40;

using Field = std::string ST_ACTION::*;

// A host on a desktop takes the first one.
constexpr std::array<Field, 7> kLinks = {
    &ST_ACTION::pcUri,  &ST_ACTION::uri,        &ST_ACTION::webUri, &ST_ACTION::pcAuthUri,
    &ST_ACTION::appUri, &ST_ACTION::androidUri, &ST_ACTION::iosUri};

// Empty without a link.
QString LinkOf(const ST_ACTION& action)
{
    for (const Field link : kLinks) {
        const QUrl url(QString::fromStdString(action.*link));
        // Encoded, because letters of other scripts can look like Latin ones.
        const QString host = url.host(QUrl::FullyEncoded);
        QString name =
            host.isEmpty() ? url.toString(QUrl::FullyEncoded).left(kMaximumLinkLength) : host;
        if (!name.isEmpty())
            return name;
    }
    return {};
}

} // namespace

QString plix::NameOf(const ST_ACTION& action)
{
    for (const std::string& words : {LabelOf(action), DisplayTextOf(action), TextOf(action)}) {
        QString name = QString::fromStdString(words);
        if (!name.trimmed().isEmpty())
            return name;
    }
    const QString link = LinkOf(action);
    return link.isEmpty() ? QStringLiteral("action") : link;
}
