#include "api/PlixLog.h"

#include "support/PlixTest.h"

#include <stdexcept>

namespace plix::test {
namespace {

class PlixLogTest : public PlixTest { };

TEST_F(PlixLogTest, ALineNamesTheOperationAndTheReason)
{
    LogFailure("PlixDataMgr::CreateUI", std::runtime_error("the reason"));
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. the reason");
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(PlixLogTest, ALineWithoutAReasonIsTheBarePrefix)
{
    LogFailure("PlixJsonDataParse::Parse", std::runtime_error(""));
    EXPECT_EQ(takeLogLine(), "call PlixJsonDataParse::Parse failed. ");
}

TEST_F(PlixLogTest, ABeginningOfItsOwnIsKept)
{
    LogFailureLine("call YogaLayoutItem::AddChild failed.- ", std::runtime_error("why"));
    EXPECT_EQ(takeLogLine(), "call YogaLayoutItem::AddChild failed.- why");
}

TEST_F(PlixLogTest, LinesAreUtf8)
{
    LogFailure("A::B", std::runtime_error("caf\xC3\xA9 \xF0\x9F\x98\x80"));
    EXPECT_EQ(takeLogLine(), "call A::B failed. caf\xC3\xA9 \xF0\x9F\x98\x80");
    LogFailure("A::B", std::runtime_error("\xFF"));
    EXPECT_EQ(takeLogLine(), "call A::B failed. \xEF\xBF\xBD");
}

} // namespace
} // namespace plix::test
