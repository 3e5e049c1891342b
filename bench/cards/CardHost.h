#pragma once

#include <QString>

class PlixDataController;

namespace bench {

// What a host sets up: pictures from a folder, markup, its wording.
class CardHost {
public:
    explicit CardHost(const QString& imageFolder);
    ~CardHost();

    CardHost(const CardHost&) = delete;
    CardHost& operator=(const CardHost&) = delete;

    // A controller that asks this host. It is the caller's.
    PlixDataController* newController() const;

private:
    std::string imageFolder_;
};

} // namespace bench
