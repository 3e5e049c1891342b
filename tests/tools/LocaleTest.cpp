// The numbers that the tool reads and prints do not depend on the user's locale.
#include "support/ForeignNumbers.h"
#include "tools/CommandLine.h"
#include "tools/LayoutDump.h"
#include "tools/ToolError.h"

#include <gtest/gtest.h>

#include <QGraphicsWidget>

namespace plix::test {
namespace {

QStringList render(const QString& scale)
{
    return {QStringLiteral("plix"),
            QStringLiteral("render"),
            QStringLiteral("card.json"),
            QStringLiteral("-o"),
            QStringLiteral("a.png"),
            QStringLiteral("--scale"),
            scale};
}

TEST(ToolLocale, NumbersOfALayoutHavePoints)
{
    const ForeignNumbers numbers;
    QGraphicsWidget item;
    item.setGeometry(-0.25, 1234567.5, 1000.5, 20);
    EXPECT_EQ(tool::dumpLayout(item),
              QByteArray("{\"type\": \"QGraphicsWidget\", \"x\": -0.25, \"y\": 1234567.5, "
                         "\"width\": 1000.5, \"height\": 20}\n"));
}

TEST(ToolLocale, NumbersOfOptionsHavePoints)
{
    const ForeignNumbers numbers;
    const auto request = tool::parseCommandLine(render(QStringLiteral("1.5")));
    EXPECT_EQ(std::get<tool::Options>(request).scale, 1.5);
}

TEST(ToolLocale, NumbersInErrorsHavePoints)
{
    const ForeignNumbers numbers;
    try {
        tool::parseCommandLine(render(QStringLiteral("1,5")));
        FAIL() << "a comma is not a decimal point";
    } catch (const tool::ToolError& error) {
        EXPECT_TRUE(error.message.contains(QStringLiteral("a number from 0.25 to 8")))
            << error.message.toStdString();
    }
}

} // namespace
} // namespace plix::test
