#pragma once

#include "soak/RegistryBytes.h"
#include "support/Mouse.h"

#include <plix/Plix.h>

#include <QGraphicsItem>
#include <QImage>

#include <cstdint>
#include <string>

namespace plix::test {

// A chat that shows one card after the other in one window.
class SoakHost {
public:
    SoakHost();

    // Reads, builds, paints, clicks, selects and frees the n-th card.
    void live(int n);

    // What the cards so far keep for good, and how many clicks have arrived.
    std::int64_t registryBytes() const { return registryBytes_; }
    int clicks() const { return clicks_; }

private:
    static std::string PLIX_CALL findPicture(PlixDataController*, const std::string& url, void*);
    static void PLIX_CALL onClick(PlixDataController*, ST_ACTION& action, void* self);
    static void PLIX_CALL onMention(std::int64_t user, void* self);

    PlixDataController* newController();
    void use(PlixDataController* controller, QGraphicsItem& root);
    void paint();
    void click(QGraphicsItem& root);
    void select(const QGraphicsItem& root);

    const RegistryBytes kept_;
    std::int64_t registryBytes_ = 0;
    int clicks_ = 0;
    QImage canvas_;
    CardView view_;
};

} // namespace plix::test
