#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>
#include <kestro_control/KestroFontBindSupport.h>
#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace {

class Support : public KestroControlSupport {
public:
    QString GetFontFamily() const override { return family; }

    QString family = QStringLiteral("Some Family");
};

TEST(KestroControlManager, IsOneObject)
{
    ASSERT_NE(KestroControlManager::GetInstance(), nullptr);
    EXPECT_EQ(KestroControlManager::GetInstance(), KestroControlManager::GetInstance());
}

TEST(KestroControlManager, ReturnsTheSupportThatWasSetLast)
{
    KestroControlManager* const manager = KestroControlManager::GetInstance();
    EXPECT_EQ(manager->GetKestroControlSupport(), nullptr);

    Support first;
    Support second;
    manager->SetKestroControlSupport(&first);
    EXPECT_EQ(manager->GetKestroControlSupport(), &first);
    manager->SetKestroControlSupport(&second);
    EXPECT_EQ(manager->GetKestroControlSupport(), &second);
    EXPECT_EQ(manager->GetKestroControlSupport()->GetFontFamily(), QStringLiteral("Some Family"));

    manager->SetKestroControlSupport(nullptr);
    EXPECT_EQ(manager->GetKestroControlSupport(), nullptr);
}

TEST(KestroControlManager, ForgetsADeletedSupport)
{
    KestroControlManager* const manager = KestroControlManager::GetInstance();
    Support kept;
    {
        Support first;
        manager->SetKestroControlSupport(&first);
        Support never;
        manager->SetKestroControlSupport(&kept);
    }
    EXPECT_EQ(manager->GetKestroControlSupport(), &kept);
    {
        Support last;
        manager->SetKestroControlSupport(&last);
    }
    EXPECT_EQ(manager->GetKestroControlSupport(), nullptr);
}

class CountingItem : public KestroFontBindSupport {
public:
    void FontChanged() override
    {
        ++changes;
        if (reaction)
            reaction();
    }

    int changes = 0;
    std::function<void()> reaction;
};

TEST(FontFamilyChange, ReachesItemsThatFollowTheFont)
{
    KestroControlManager* const manager = KestroControlManager::GetInstance();
    CountingItem item;
    CountingItem unbound;
    unbound.SetUseFontBonding(false);

    manager->FontFamilyChanged();
    EXPECT_EQ(item.changes, 1);
    Support support;
    manager->SetKestroControlSupport(&support);
    EXPECT_EQ(item.changes, 2);
    manager->SetKestroControlSupport(nullptr);
    EXPECT_EQ(item.changes, 3);
    EXPECT_EQ(unbound.changes, 0);

    unbound.SetUseFontBonding(true);
    manager->FontFamilyChanged();
    EXPECT_EQ(unbound.changes, 1);
}

TEST(FontFamilyChange, SkipsDeletedItems)
{
    auto item = std::make_unique<CountingItem>();
    item.reset();
    KestroControlManager::GetInstance()->FontFamilyChanged();
}

// The first item that is called deletes all others.
TEST(FontFamilyChange, MayDeleteItems)
{
    std::vector<std::unique_ptr<CountingItem>> items;
    int calls = 0;
    for (int i = 0; i < 20; ++i) {
        items.push_back(std::make_unique<CountingItem>());
        CountingItem* const item = items.back().get();
        item->reaction = [&items, &calls, item] {
            ++calls;
            for (auto& other : items) {
                if (other.get() != item)
                    other.reset();
            }
        };
    }
    KestroControlManager::GetInstance()->FontFamilyChanged();
    EXPECT_EQ(calls, 1);
}

TEST(FontFamilyChange, MayCreateItems)
{
    std::vector<std::unique_ptr<CountingItem>> created;
    CountingItem item;
    item.reaction = [&created] {
        for (int i = 0; i < 1000; ++i)
            created.push_back(std::make_unique<CountingItem>());
    };
    KestroControlManager::GetInstance()->FontFamilyChanged();
    EXPECT_EQ(created.size(), 1000U);
    EXPECT_EQ(item.changes, 1);
}

TEST(FontFamilyChange, ReachesAllItemsWhenOneThrows)
{
    CountingItem items[3];
    for (CountingItem& item : items)
        item.reaction = [] { throw 5; };
    EXPECT_THROW(KestroControlManager::GetInstance()->FontFamilyChanged(), int);
    for (const CountingItem& item : items)
        EXPECT_EQ(item.changes, 1);
}

TEST(FontFamilyChange, MayChangeTheSupport)
{
    KestroControlManager* const manager = KestroControlManager::GetInstance();
    auto support = std::make_unique<Support>();
    CountingItem item;
    item.reaction = [&support] { support.reset(); };
    manager->SetKestroControlSupport(support.get());
    EXPECT_EQ(manager->GetKestroControlSupport(), nullptr);
}

// ----- Text items

TEST(TextItemFont, HasTheFamilyOfTheApplicationFromTheStart)
{
    const QString own = TextItem().font().family();
    ASSERT_NE(own, QStringLiteral("Some Family"));
    Support support;
    KestroControlManager::GetInstance()->SetKestroControlSupport(&support);
    EXPECT_EQ(TextItem().font().family(), QStringLiteral("Some Family"));
    support.family.clear();
    EXPECT_EQ(TextItem().font().family(), own);
}

TEST(TextItemFont, FollowsTheFamilyOfTheApplication)
{
    KestroControlManager* const manager = KestroControlManager::GetInstance();
    TextItem item;
    item.setFont(QFont(QStringLiteral("DejaVu Sans"), 30, QFont::Bold, true));
    Support support;
    manager->SetKestroControlSupport(&support);
    EXPECT_EQ(item.font(), QFont(QStringLiteral("Some Family"), 30, QFont::Bold, true));

    support.family = QStringLiteral("Other Family");
    EXPECT_EQ(item.font().family(), QStringLiteral("Some Family"));
    manager->FontFamilyChanged();
    EXPECT_EQ(item.font().family(), QStringLiteral("Other Family"));

    support.family.clear();
    manager->FontFamilyChanged();
    EXPECT_EQ(item.font().family(), QStringLiteral("Other Family"));
    manager->SetKestroControlSupport(nullptr);
    EXPECT_EQ(item.font().family(), QStringLiteral("Other Family"));
}

TEST(TextItemFont, KeepsItsFamilyWithoutFontBonding)
{
    TextItem item;
    item.setFont(QFont(QStringLiteral("DejaVu Sans")));
    item.SetUseFontBonding(false);
    Support support;
    KestroControlManager::GetInstance()->SetKestroControlSupport(&support);
    item.FontChanged();
    EXPECT_EQ(item.font().family(), QStringLiteral("DejaVu Sans"));
    item.SetUseFontBonding(true);
    item.FontChanged();
    EXPECT_EQ(item.font().family(), QStringLiteral("Some Family"));
}

TEST(KestroFontBindSupport, FollowsTheFontUnlessSwitchedOff)
{
    KestroFontBindSupport item;
    EXPECT_TRUE(item.IsUseFontBonding());
    item.SetUseFontBonding(false);
    EXPECT_FALSE(item.IsUseFontBonding());
    item.SetUseFontBonding(true);
    EXPECT_TRUE(item.IsUseFontBonding());
}

} // namespace
