#include "api/PlixLog.h"

#include "support/PlixTest.h"

namespace plix::test {
namespace {

class PlixLogTest : public PlixTest { };

TEST_F(PlixLogTest, ALineNamesTheOperationAndTheReason)
{
    LogFailure("PlixDataMgr::CreateUI", "the reason");
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. the reason");
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(PlixLogTest, ALineWithoutAReasonIsThePrefixOnly)
{
    LogFailure("PlixJsonDataParse::Parse", "");
    EXPECT_EQ(takeLogLine(), "call PlixJsonDataParse::Parse failed. ");
    LogFailure("PlixJsonDataParse::Parse", nullptr);
    EXPECT_EQ(takeLogLine(), "call PlixJsonDataParse::Parse failed. ");
}

TEST_F(PlixLogTest, AFailedBuildHasItsOwnLine)
{
    LogFailedBuild("why");
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. why");
}

TEST_F(PlixLogTest, ALineMayHaveAnotherPrefix)
{
    LogFailureLine("call YogaLayoutItem::AddChild failed.- ", "why");
    EXPECT_EQ(takeLogLine(), "call YogaLayoutItem::AddChild failed.- why");
}

TEST_F(PlixLogTest, LinesAreUtf8)
{
    LogFailure("A::B", "caf\xC3\xA9 \xF0\x9F\x98\x80");
    EXPECT_EQ(takeLogLine(), "call A::B failed. caf\xC3\xA9 \xF0\x9F\x98\x80");
    LogFailure("A::B", "\xFF");
    EXPECT_EQ(takeLogLine(), "call A::B failed. \xEF\xBF\xBD");
}

TEST_F(PlixLogTest, ALineHasNoLineEndsAndAMaximumLength)
{
    LogFailure("A::B", "one\ncall C::D failed. two\r\n");
    EXPECT_EQ(takeLogLine(), "call A::B failed. one\\ncall C::D failed. two\\u000d\\n");
    EXPECT_EQ(pendingLogLines(), 0);
    LogFailure("A::B", std::string(1'000'000, 'x').c_str());
    EXPECT_EQ(takeLogLine(), "call A::B failed. " + std::string(1000, 'x') + "...");
}

} // namespace
} // namespace plix::test
