#pragma once

#include "model/PlixDataItem.h"
#include "model/PlixDataZones.h"
#include "model/PlixZoneStyle.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

struct PlixBubbleSize;

// The root of a card message.
class PlixDataBubble : public PlixDataItem {
public:
    PlixDataBubble();

    // A zone with its style.
    struct Zone {
        std::shared_ptr<PlixDataContainer> container;
        const PlixZoneStyle& style;
    };

    int GetGrow() const override { return 0; }
    // The root has no siblings.
    void SetIndex(int) override { }
    int GetIndex() const override { return 0; }

    // Creates the four zones. The zones share the ownership of the bubble: throws
    // std::bad_weak_ptr if no shared pointer owns the bubble yet.
    void InitZones();

    std::string GetDirection() const { return fields_.Get(PlixField::Direction); }
    void SetDirection(std::string_view direction) { fields_.Set(PlixField::Direction, direction); }
    bool IsRightToLeft() const;

    std::string GetSize() const { return fields_.Get(PlixField::Size); }
    void SetSize(std::string_view size) { fields_.Set(PlixField::Size, size); }

    std::shared_ptr<PlixDataHeader> GetHeader() const { return header_; }
    std::shared_ptr<PlixDataHero> GetHero() const { return hero_; }
    std::shared_ptr<PlixDataBody> GetBody() const { return body_; }
    std::shared_ptr<PlixDataFooter> GetFooter() const { return footer_; }
    // Header, hero, body, footer; the containers are null before InitZones.
    std::array<Zone, 4> GetZones() const;

    PlixZoneStyle& GetHeaderStyle() { return headerStyle_; }
    PlixZoneStyle& GetHeroStyle() { return heroStyle_; }
    PlixZoneStyle& GetBodyStyle() { return bodyStyle_; }
    PlixZoneStyle& GetFooterStyle() { return footerStyle_; }

    // The card's width in pixels, by its size word. Looked up once, except for
    // the default width, which also means "not looked up yet".
    float GetWidth();

    // The inset of the zones, and the bottom inset of the body, in pixels.
    float GetSizeSpacing() const;
    float GetFooterSpacing() const;

private:
    PlixBubbleSize FindSize() const;

    float width_;
    std::shared_ptr<PlixDataHeader> header_;
    std::shared_ptr<PlixDataHero> hero_;
    std::shared_ptr<PlixDataBody> body_;
    std::shared_ptr<PlixDataFooter> footer_;
    PlixZoneStyle headerStyle_;
    PlixZoneStyle heroStyle_;
    PlixZoneStyle bodyStyle_;
    PlixZoneStyle footerStyle_;
};
