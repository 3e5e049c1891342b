#include "api/PlixSettings.h"

#include "support/PlixTest.h"

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>

#include <stdexcept>

namespace plix::test {
namespace {

class PlixSettingsTest : public PlixTest { };

std::string hostText(const char* key)
{
    return std::string("host text for ") + key;
}

TEST_F(PlixSettingsTest, IsOneObject)
{
    EXPECT_EQ(&PlixSettings::GetInstance(), &PlixSettings::GetInstance());
}

TEST_F(PlixSettingsTest, WordingsAreEmptyUntilTheHostSetsTheCallback)
{
    const PlixSettings& settings = PlixSettings::GetInstance();
    EXPECT_EQ(settings.GetMultiLangText("chat_room_check_on_mobile"), "");
    EXPECT_EQ(settings.GetMultiLangText("anything"), "");
    EXPECT_EQ(Plix_SetMultiLangGetCallback(&hostText), 0);
    EXPECT_EQ(settings.GetMultiLangText("chat_room_check_on_mobile"),
              "host text for chat_room_check_on_mobile");
    EXPECT_EQ(Plix_SetMultiLangGetCallback(nullptr), 0);
    EXPECT_EQ(settings.GetMultiLangText("chat_room_check_on_mobile"), "");
}

TEST_F(PlixSettingsTest, AWordingThatThrowsIsEmptyAndLogged)
{
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw std::runtime_error("x"); });
    EXPECT_EQ(PlixSettings::GetInstance().GetMultiLangText("anything"), "");
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. x");
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw 5; });
    EXPECT_EQ(PlixSettings::GetInstance().GetMultiLangText("anything"), "");
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. ");
}

TEST_F(PlixSettingsTest, LogLinesAreNotChanged)
{
    PlixSettings::GetInstance().WriteLog("as it is ");
    EXPECT_EQ(takeLogLine(), "as it is ");
    EXPECT_EQ(pendingLogLines(), 0) << "once";
}

std::string lastLine;

void otherLog(const char* text)
{
    lastLine = text;
}

TEST_F(PlixSettingsTest, TheLogCallbackCanBeReplacedAndRemoved)
{
    EXPECT_EQ(Plix_SetWiteLogCallback(&otherLog), 0);
    PlixSettings::GetInstance().WriteLog("one");
    EXPECT_EQ(lastLine, "one");
    EXPECT_EQ(pendingLogLines(), 0);
    EXPECT_EQ(Plix_SetWiteLogCallback(nullptr), 0);
    PlixSettings::GetInstance().WriteLog("two");
    EXPECT_EQ(lastLine, "one");
}

TEST_F(PlixSettingsTest, WithoutALogResultsAreTheSameAndNothingIsWritten)
{
    Plix_SetWiteLogCallback(nullptr);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    PlixDataController* const card = Plix_CreateController();
    EXPECT_EQ(Plix_InitData(card, "no JSON"), 0);
    EXPECT_EQ(Plix_InitData(card, R"({"type": "bubble", "body": 5})"), 0);
    EXPECT_EQ(Plix_InitData(card, R"({"type": "bubble", "size": 5})"), -1);
    EXPECT_EQ(Plix_InitData(card, std::string(5000, '[')), -1);
    Plix_Free(card);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(PlixSettingsTest, ALogThatThrowsChangesNoResult)
{
    Plix_SetWiteLogCallback([](const char*) { throw std::runtime_error("the host's"); });
    EXPECT_NO_THROW(PlixSettings::GetInstance().WriteLog("x"));
    PlixDataController* const card = Plix_CreateController();
    EXPECT_EQ(Plix_InitData(card, R"({"type": "bubble", "size": 5})"), -1);
    EXPECT_EQ(Plix_InitData(card, R"({"type": "bubble", "header": 5, "size": "giga"})"), 0);
    Plix_SetWiteLogCallback([](const char*) { throw 5; });
    EXPECT_EQ(Plix_InitData(card, R"({"type": "bubble", "size": 5})"), -1);
    Plix_Free(card);
}

class Support : public KestroControlSupport {
public:
    QString GetFontFamily() const override { return QStringLiteral("Some Family"); }
};

TEST_F(PlixSettingsTest, FontSettingsArePassedToTheControlLibrary)
{
    Support support;
    EXPECT_EQ(Plix_SetKestroControlSupport(&support), 0);
    EXPECT_EQ(KestroControlManager::GetInstance()->GetKestroControlSupport(), &support);
    EXPECT_EQ(Plix_SetKestroControlSupport(nullptr), 0);
    EXPECT_EQ(KestroControlManager::GetInstance()->GetKestroControlSupport(), nullptr);
}

} // namespace
} // namespace plix::test
