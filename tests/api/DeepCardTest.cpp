// The deepest cards on a stack of one megabyte, which the main thread of a Windows
// program has.
#include "layout/PlixLimits.h"
#include "support/Mouse.h"
#include "support/PlixTest.h"

#include <QGraphicsScene>
#include <QImage>
#include <QPainter>

#if defined(_WIN32)
#include <windows.h>
#else
#include <sys/resource.h>
#endif

namespace plix::test {
namespace {

constexpr std::size_t kStack = 1024 * 1024;

#if defined(_WIN32)

// The linker sets it; here it can only be read.
std::size_t stackLimit()
{
    const auto* const start = reinterpret_cast<const char*>(GetModuleHandleA(nullptr));
    const auto* const dosHeader = reinterpret_cast<const IMAGE_DOS_HEADER*>(start);
    const auto* const headers =
        reinterpret_cast<const IMAGE_NT_HEADERS*>(start + dosHeader->e_lfanew);
    return headers->OptionalHeader.SizeOfStackReserve;
}

#else

std::size_t stackLimit()
{
    rlimit limit {};
    getrlimit(RLIMIT_STACK, &limit);
    limit.rlim_cur = kStack;
    setrlimit(RLIMIT_STACK, &limit);
    getrlimit(RLIMIT_STACK, &limit);
    return limit.rlim_cur;
}

#endif

std::string nestedBoxes(int depth)
{
    std::string card = text("deep", R"("action": {"type": "uri", "uri": "here"},)");
    for (int i = 0; i < depth; ++i)
        card = box(i % 2 == 0 ? "vertical" : "horizontal", card);
    return bubbleWithBody(card);
}

using DeepCard = PlixTest;

TEST_F(DeepCard, WorksOnOneMegabyteOfStack)
{
    ASSERT_EQ(stackLimit(), kStack);
    int clicks = 0;
    const TestCard card(nestedBoxes(kMaximumNestedBoxes),
                        [&clicks](PlixDataController* controller) {
                            Plix_SetClickCallBack(
                                controller,
                                [](PlixDataController*, ST_ACTION&, void* userData) {
                                    ++*static_cast<int*>(userData);
                                },
                                &clicks);
                        });
    ASSERT_NE(card.root(), nullptr);

    EXPECT_EQ(Plix_SetHighLightText(card.controller(), {"deep"}), 1);
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 2000), 0);
    Plix_RefreshLayout(card.controller());

    QGraphicsScene scene;
    scene.addItem(card.root());
    QImage image(300, 300, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), image.rect());
    painter.end();
    scene.removeItem(card.root());

    QGraphicsItem* deepest = card.root();
    while (!deepest->childItems().isEmpty())
        deepest = deepest->childItems().first();
    click(*card.root(), deepest->sceneBoundingRect().center());
    EXPECT_EQ(clicks, 1);
}

TEST_F(DeepCard, IsReadOnOneMegabyteOfStackAtAnyDepth)
{
    ASSERT_EQ(stackLimit(), kStack);
    for (const int depth : {490, 600, 3000}) {
        const TestCard card(nestedBoxes(depth));
        EXPECT_NE(takeLogLine(), "");
        EXPECT_EQ(pendingLogLines(), 0);
        EXPECT_NE(card.root(), nullptr);
    }
}

} // namespace
} // namespace plix::test
