#pragma once

#include "HostWordings.h"
#include "ImageFolder.h"
#include "LibraryLog.h"
#include "Options.h"

#include <QGraphicsScene>

#include <memory>

class PlixDataController;

namespace plix::tool {

class CardFile;

// One card in a scene of its own, as in a chat view.
class CardHost {
public:
    // Prints the library's log lines. Throws ToolError if the library cannot build the
    // card.
    CardHost(const CardFile& file, const CardOptions& options);
    // The same, but passes the lines on.
    CardHost(const CardFile& file, const CardOptions& options, LibraryLog::Receiver receiver);

    QGraphicsScene& scene() { return scene_; }
    const QGraphicsItem& card() const { return *card_; }

private:
    void prepare(const CardOptions& options);
    void build(const CardFile& file);
    void adjust(const CardFile& file, const CardOptions& options);

    struct Free {
        void operator()(PlixDataController* controller) const;
    };

    LibraryLog log_;
    HostWordings wordings_;
    ImageFolder images_;
    std::unique_ptr<PlixDataController, Free> controller_;
    // Declared after the controller, so that the card's item is deleted first.
    QGraphicsScene scene_;
    QGraphicsItem* card_ = nullptr;
};

} // namespace plix::tool
