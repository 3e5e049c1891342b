#pragma once

#include <QMap>
#include <QString>

namespace plix::tool {

// Returns the host's wordings to the library during its lifetime. The callback is
// process-wide, so only one of these may exist at a time.
class HostWordings {
public:
    explicit HostWordings(const QMap<QString, QString>& wordings);
    ~HostWordings();
    HostWordings(const HostWordings&) = delete;
    HostWordings& operator=(const HostWordings&) = delete;
};

} // namespace plix::tool
