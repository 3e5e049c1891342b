#pragma once

#include <plix/Plix.h>

#include <QObject>
#include <QString>

namespace plix::tool {

// What cards tell their host, as signals.
class CardEvents : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void clicked(const ST_ACTION& action);
    void mentioned(qint64 userNo);
    void botMentioned(qint64 userNo);
    void logged(const QString& line);
};

} // namespace plix::tool
