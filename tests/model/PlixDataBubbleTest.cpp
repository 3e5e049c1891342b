#include "model/PlixDataBubble.h"

#include "model/PlixDataSpacer.h"
#include "model/PlixDiscardDataTree.h"
#include "model/PlixZoneStyle.h"

#include <gtest/gtest.h>

namespace {

// A bubble with a size word, and with or without an item in its footer.
class SizedBubble {
public:
    SizedBubble(const std::string& size, bool hasFooter)
        : bubble_(std::make_shared<PlixDataBubble>())
    {
        bubble_->InitZones();
        bubble_->SetSize(size);
        if (hasFooter)
            bubble_->GetFooter()->AddChild(std::make_shared<PlixDataSpacer>());
    }
    ~SizedBubble() { plix::DiscardDataTree(bubble_); }

    PlixDataBubble* operator->() const { return bubble_.get(); }

private:
    std::shared_ptr<PlixDataBubble> bubble_;
};

TEST(PlixDataBubble, SizeWordsGiveWidthAndInsets)
{
    const struct {
        const char* size;
        float width;
        float spacing;
        float footerSpacing;
    } rows[] = {
        {"giga", 500, 20, 10},  {"autogiga", 385, 20, 20}, {"sn_autogiga", 343, 20, 20},
        {"mega", 300, 20, 10},  {"kilo", 260, 13, 3},      {"micro", 160, 10, 0},
        {"nano", 120, 10, 0},   {"Nano", 300, 20, 20},     {"GIGA", 300, 20, 20},
        {"nano ", 300, 20, 20}, {"tera", 300, 20, 20},     {"", 300, 20, 20},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        const SizedBubble withFooter(row.size, true);
        EXPECT_EQ(withFooter->GetWidth(), row.width);
        EXPECT_EQ(withFooter->GetSizeSpacing(), row.spacing);
        EXPECT_EQ(withFooter->GetFooterSpacing(), row.footerSpacing);
        const SizedBubble withoutFooter(row.size, false);
        EXPECT_EQ(withoutFooter->GetSizeSpacing(), row.spacing);
        EXPECT_EQ(withoutFooter->GetFooterSpacing(), row.spacing);
    }
}

TEST(PlixDataBubble, AWidthIsLookedUpOnce)
{
    PlixDataBubble bubble;
    bubble.SetSize("giga");
    EXPECT_EQ(bubble.GetWidth(), 500);
    bubble.SetSize("nano");
    EXPECT_EQ(bubble.GetWidth(), 500) << "looked up again";
}

TEST(PlixDataBubble, TheDefaultWidthIsLookedUpEveryTime)
{
    PlixDataBubble bubble;
    EXPECT_EQ(bubble.GetWidth(), 300);
    bubble.SetSize("mega");
    EXPECT_EQ(bubble.GetWidth(), 300);
    EXPECT_EQ(bubble.GetWidth(), 300);
    bubble.SetSize("nano");
    EXPECT_EQ(bubble.GetWidth(), 120);
}

TEST(PlixDataBubble, HasNoZonesBeforeInitZones)
{
    const PlixDataBubble bubble;
    EXPECT_EQ(bubble.GetHeader(), nullptr);
    EXPECT_EQ(bubble.GetHero(), nullptr);
    EXPECT_EQ(bubble.GetBody(), nullptr);
    EXPECT_EQ(bubble.GetFooter(), nullptr);
    EXPECT_EQ(bubble.GetFooterSpacing(), 20);
}

TEST(PlixDataBubble, InitZonesThrowsWithoutASharedPointer)
{
    PlixDataBubble bubble;
    EXPECT_THROW(bubble.InitZones(), std::bad_weak_ptr);
}

TEST(PlixDataBubble, IsTheParentOfTheZonesItems)
{
    const auto bubble = std::make_shared<PlixDataBubble>();
    bubble->InitZones();
    const auto zones = bubble->GetZones();
    ASSERT_EQ(zones.size(), 4U);
    EXPECT_EQ(zones[0].container, bubble->GetHeader());
    EXPECT_EQ(zones[1].container, bubble->GetHero());
    EXPECT_EQ(zones[2].container, bubble->GetBody());
    EXPECT_EQ(zones[3].container, bubble->GetFooter());
    EXPECT_EQ(&zones[0].style, &bubble->GetHeaderStyle());
    EXPECT_EQ(&zones[1].style, &bubble->GetHeroStyle());
    EXPECT_EQ(&zones[2].style, &bubble->GetBodyStyle());
    EXPECT_EQ(&zones[3].style, &bubble->GetFooterStyle());
    for (const auto& zone : zones) {
        ASSERT_NE(zone.container, nullptr);
        EXPECT_EQ(zone.container->GetChildCount(), 0);
        const auto child = std::make_shared<PlixDataSpacer>();
        zone.container->AddChild(child);
        EXPECT_EQ(child->GetParent(), bubble);
    }
    plix::DiscardDataTree(bubble);
}

TEST(PlixDataBubble, HasNoIndexAndDoesNotGrow)
{
    PlixDataBubble bubble;
    bubble.SetIndex(5);
    EXPECT_EQ(bubble.GetIndex(), 0);
    EXPECT_EQ(bubble.GetGrow(), 0);
    EXPECT_EQ(bubble.GetDirection(), "");
    EXPECT_EQ(bubble.GetSize(), "");
}

TEST(PlixDataBubble, OnlyTheExactWordIsRightToLeft)
{
    PlixDataBubble bubble;
    EXPECT_FALSE(bubble.IsRightToLeft());
    for (const char* word : {"ltr", "RTL", ""}) {
        bubble.SetDirection(word);
        EXPECT_FALSE(bubble.IsRightToLeft()) << word;
    }
    bubble.SetDirection("rtl");
    EXPECT_TRUE(bubble.IsRightToLeft());
}

TEST(PlixDataBubble, ZoneStylesStartEmpty)
{
    const PlixZoneStyle style;
    EXPECT_EQ(style.backgroundColor, "");
    EXPECT_FALSE(style.separator);
    EXPECT_EQ(style.separatorColor, "");
}

} // namespace
