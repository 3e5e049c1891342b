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

// One card on a scene of its own, as a chat view would have it.
class CardHost {
public:
    // Throws ToolError when the library cannot build the card.
    CardHost(const CardFile& file, const CardOptions& options);

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
    // Behind the controller: the card's items go first.
    QGraphicsScene scene_;
    QGraphicsItem* card_ = nullptr;
};

} // namespace plix::tool
