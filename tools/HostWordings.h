#pragma once

#include <QMap>
#include <QString>

namespace plix::tool {

// Answers the library's questions for the host's own wordings, for as long as
// it lives. There is one host, so there is one of these at a time.
class HostWordings {
public:
    explicit HostWordings(const QMap<QString, QString>& wordings);
    ~HostWordings();
    HostWordings(const HostWordings&) = delete;
    HostWordings& operator=(const HostWordings&) = delete;
};

} // namespace plix::tool
