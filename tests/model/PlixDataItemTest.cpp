#include "model/PlixDataItem.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDataButton.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataIcon.h"
#include "model/PlixDataImage.h"
#include "model/PlixDataSeparator.h"
#include "model/PlixDataSpacer.h"
#include "model/PlixDataText.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataItem, StartsWithoutParentIndexOrAction)
{
    const PlixDataSpacer item;
    EXPECT_EQ(item.GetParent(), nullptr);
    EXPECT_EQ(item.GetIndex(), 0);
    EXPECT_EQ(item.GetAction(), nullptr);
    EXPECT_FALSE(item.IsAppOnlyAction());
}

TEST(PlixDataItem, KeepsItsIndexParentAndAction)
{
    const auto parent = std::make_shared<PlixDataFiller>();
    const auto other = std::make_shared<PlixDataFiller>();
    const auto action = std::make_shared<ST_ACTION>();
    PlixDataSpacer item;
    item.SetIndex(7);
    EXPECT_EQ(item.GetIndex(), 7);
    item.SetParent(parent);
    EXPECT_EQ(item.GetParent(), parent);
    item.SetParent(other);
    EXPECT_EQ(item.GetParent(), other);
    EXPECT_EQ(parent.use_count(), 1);
    item.SetAction(action);
    EXPECT_EQ(item.GetAction(), action);
}

TEST(PlixDataItem, KeepsItsParentAlive)
{
    PlixDataSpacer item;
    std::weak_ptr<PlixDataItem> parent;
    {
        const auto box = std::make_shared<PlixDataBox>();
        parent = box;
        item.SetParent(box);
    }
    EXPECT_FALSE(parent.expired());
    item.SetParent(nullptr);
    EXPECT_TRUE(parent.expired());
}

TEST(PlixDataItem, EachClassHasItsKind)
{
    EXPECT_EQ(PlixDataBubble().GetType(), 1);
    EXPECT_EQ(PlixDataImage().GetType(), 2);
    EXPECT_EQ(PlixDataBox().GetType(), 3);
    EXPECT_EQ(PlixDataText().GetType(), 4);
    EXPECT_EQ(PlixDataIcon().GetType(), 5);
    EXPECT_EQ(PlixDataButton().GetType(), 6);
    EXPECT_EQ(PlixDataSpacer().GetType(), 7);
    EXPECT_EQ(PlixDataFiller().GetType(), 8);
    EXPECT_EQ(PlixDataSeparator().GetType(), 9);
}

std::shared_ptr<ST_ACTION> withLink(std::string ST_ACTION::*link)
{
    auto action = std::make_shared<ST_ACTION>();
    (*action).*link = std::string("somewhere");
    return action;
}

TEST(PlixDataItem, MobileLinksAloneAreAppOnly)
{
    const struct {
        const char* behaviour;
        std::string ST_ACTION::*link;
        bool appOnly;
    } rows[] = {
        {"appUri", &ST_ACTION::appUri, true},
        {"androidUri", &ST_ACTION::androidUri, true},
        {"iosUri", &ST_ACTION::iosUri, true},
        {"uri", &ST_ACTION::uri, false},
        {"pcUri", &ST_ACTION::pcUri, false},
        {"webUri", &ST_ACTION::webUri, false},
        {"pcAuthUri does not count as a link", &ST_ACTION::pcAuthUri, false},
        {"text", &ST_ACTION::text, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        PlixDataSpacer item;
        item.SetAction(withLink(row.link));
        EXPECT_EQ(item.IsAppOnlyAction(), row.appOnly);
    }
}

TEST(PlixDataItem, OneDesktopLinkMakesItNotAppOnly)
{
    for (const auto desktop : {&ST_ACTION::uri, &ST_ACTION::pcUri, &ST_ACTION::webUri}) {
        for (const auto mobile : {&ST_ACTION::appUri, &ST_ACTION::androidUri, &ST_ACTION::iosUri}) {
            const auto action = withLink(desktop);
            (*action).*mobile = std::string("somewhere");
            PlixDataSpacer item;
            item.SetAction(action);
            EXPECT_FALSE(item.IsAppOnlyAction());
        }
    }
}

TEST(PlixDataItem, TheNearestActionWithALinkDecides)
{
    const auto grandparent = std::make_shared<PlixDataBox>();
    const auto parent = std::make_shared<PlixDataBox>();
    const auto item = std::make_shared<PlixDataText>();
    parent->SetParent(grandparent);
    item->SetParent(parent);

    grandparent->SetAction(withLink(&ST_ACTION::appUri));
    EXPECT_TRUE(item->IsAppOnlyAction()) << "no action nearer";
    item->SetAction(withLink(&ST_ACTION::text));
    EXPECT_TRUE(item->IsAppOnlyAction()) << "an action without links does not decide";
    parent->SetAction(withLink(&ST_ACTION::pcUri));
    EXPECT_FALSE(item->IsAppOnlyAction()) << "the parent is nearer";
    EXPECT_TRUE(grandparent->IsAppOnlyAction());
    item->SetAction(withLink(&ST_ACTION::iosUri));
    EXPECT_TRUE(item->IsAppOnlyAction()) << "its own is the nearest";
}

TEST(PlixDataItem, NothingIsAppOnlyWhileTheCheckIsOff)
{
    PlixDataSpacer item;
    item.SetAction(withLink(&ST_ACTION::appUri));
    PlixDisplayParam param;
    param.mobileOnlyCheck = false;
    item.SetAttributes(param);
    EXPECT_FALSE(item.IsAppOnlyAction());
    param.mobileOnlyCheck = true;
    item.SetAttributes(param);
    EXPECT_TRUE(item.IsAppOnlyAction());
}

TEST(PlixDataItem, DisplaySettingsHaveTheirDefaults)
{
    const PlixDisplayParam param;
    EXPECT_TRUE(param.mobileOnlyCheck);
    EXPECT_FALSE(param.markupEnabled);
    EXPECT_EQ(param.wrapMode, 4);
    EXPECT_EQ(param.extraOption, 1);
}

} // namespace
