#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>
#include <kestro_control/KestroFontBindSupport.h>

#include <gtest/gtest.h>

namespace {

class Support : public KestroControlSupport {
public:
    QString GetFontFamily() const override { return QStringLiteral("Some Family"); }
};

TEST(KestroControlManager, IsOneObject)
{
    ASSERT_NE(KestroControlManager::GetInstance(), nullptr);
    EXPECT_EQ(KestroControlManager::GetInstance(), KestroControlManager::GetInstance());
}

TEST(KestroControlManager, HandsOutTheSupportThatWasSetLast)
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

TEST(KestroFontBindSupport, BindsTheFontUnlessToldOtherwise)
{
    KestroFontBindSupport item;
    EXPECT_TRUE(item.IsUseFontBonding());
    item.SetUseFontBonding(false);
    EXPECT_FALSE(item.IsUseFontBonding());
    item.SetUseFontBonding(true);
    EXPECT_TRUE(item.IsUseFontBonding());
}

} // namespace
