// Which class draws which kind of data item.
#include "ui/PlixUICreater.h"

#include "api/PlixDataMgr.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDataText.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixBubbleUI.h"
#include "ui/PlixFillerUI.h"
#include "ui/PlixSeparatorUI.h"
#include "ui/PlixSpacerUI.h"
#include "ui/text/PlixTextUI.h"

#include <ostream>

namespace plix::test {
namespace {

template <typename Ui> bool is(PlixBaseUI* item)
{
    return dynamic_cast<Ui*>(item) != nullptr;
}

struct KindRow {
    const char* name;
    int kind;
    bool (*isOfClass)(PlixBaseUI*);

    friend std::ostream& operator<<(std::ostream& out, const KindRow& row)
    {
        return out << row.name;
    }
};

class CreatedItem : public PlixTest, public testing::WithParamInterface<KindRow> { };

TEST_P(CreatedItem, IsOfTheClassOfItsKind)
{
    QGraphicsWidget parent;
    PlixBaseUI* const item =
        PlixUICreater::GetInstance().Create(GetParam().kind, &parent, nullptr, {});
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(GetParam().isOfClass(item));
    EXPECT_EQ(item->GetGraphicsItem()->parentItem(), &parent);
    EXPECT_EQ(item->GetChildParentLayout(), nullptr);
    EXPECT_EQ(item->GetOwner(), nullptr);
}

TEST_P(CreatedItem, IsOneObjectOfThreeBaseClasses)
{
    PlixBaseUI* const item =
        PlixUICreater::GetInstance().Create(GetParam().kind, nullptr, nullptr, {});
    ASSERT_NE(item, nullptr);
    const std::unique_ptr<QGraphicsItem> owned(item->GetGraphicsItem());
    EXPECT_EQ(dynamic_cast<PlixBaseUI*>(item->GetGraphicsItem()), item);
    EXPECT_EQ(dynamic_cast<PlixBaseUI*>(item->GetYogaItem()), item);
    EXPECT_EQ(dynamic_cast<PlixBaseUI*>(item->GetLayoutItem()), item);
    EXPECT_EQ(item->GetYogaItem()->geometryTarget(), item->GetLayoutItem());
    EXPECT_EQ(item->GetLayoutItem()->graphicsItem(), item->GetGraphicsItem());
    EXPECT_EQ(item->GetYogaItem()->orientation(), Qt::Vertical);
}

TEST_P(CreatedItem, DoesNotInitialiseFromDataOfAnotherClass)
{
    PlixBaseUI* const item =
        PlixUICreater::GetInstance().Create(GetParam().kind, nullptr, nullptr, {});
    const std::unique_ptr<QGraphicsItem> owned(item->GetGraphicsItem());
    EXPECT_FALSE(item->Init()) << "no data item at all";
    owned->setData(kDataItemRole, qlonglong(12345));
    EXPECT_FALSE(item->Init()) << "a key that is not registered";

    class Odd : public PlixDataItem {
    public:
        Odd()
            : PlixDataItem(PlixKindNone)
        {
        }
        int GetGrow() const override { return 7; }
    };
    owned->setData(kDataItemRole,
                   qlonglong(PlixItemRegistry::GetInstance().Add(std::make_shared<Odd>())));
    EXPECT_FALSE(item->Init()) << "data of another class";
    EXPECT_EQ(item->GetYogaItem()->growFactor(), 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, CreatedItem,
                         testing::Values(KindRow {"Bubble", PlixKindBubble, &is<PlixBubbleUI>},
                                         KindRow {"Box", PlixKindBox, &is<PlixBoxUI>},
                                         KindRow {"Text", PlixKindText, &is<PlixTextUI>},
                                         KindRow {"Spacer", PlixKindSpacer, &is<PlixSpacerUI>},
                                         KindRow {"Filler", PlixKindFiller, &is<PlixFillerUI>},
                                         KindRow {"Separator", PlixKindSeparator,
                                                  &is<PlixSeparatorUI>}),
                         RowName());

class UndrawnKind : public PlixTest, public testing::WithParamInterface<int> { };

TEST_P(UndrawnKind, IsNotCreatedAndNotLogged)
{
    EXPECT_EQ(PlixUICreater::GetInstance().Create(GetParam(), nullptr, nullptr, {}), nullptr);
    EXPECT_EQ(pendingLogLines(), 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, UndrawnKind, testing::Values(0, 10, -1, 1000, -2147483647 - 1));

// A box that no item draws.
class UndrawnBox : public PlixDataBox {
public:
    int GetType() const override { return 10; }
};

std::shared_ptr<PlixDataText> makeText()
{
    auto text = std::make_shared<PlixDataText>();
    text->SetText("words");
    return text;
}

using UICreater = PlixTest;

TEST_F(UICreater, SkipsDataThatIsNotDrawnWithItsChildren)
{
    PlixDataMgr manager;
    const auto body = std::make_shared<PlixDataBox>();
    body->SetContainer(std::make_shared<PlixDataContainer>());
    body->GetContainer()->SetOwner(body);
    const auto undrawn = std::make_shared<UndrawnBox>();
    undrawn->SetContainer(std::make_shared<PlixDataContainer>());
    undrawn->GetContainer()->SetOwner(undrawn);
    undrawn->GetContainer()->AddChild(makeText());
    body->GetContainer()->AddChild(undrawn);
    body->GetContainer()->AddChild(makeText());
    manager.GetBubble()->GetBody()->AddChild(body);

    manager.CreateUI();
    const std::unique_ptr<QGraphicsItem> root(manager.GetRootItem());
    ASSERT_EQ(root->childItems().size(), 1);
    auto* const box = dynamic_cast<PlixBoxUI*>(root->childItems()[0]);
    ASSERT_NE(box, nullptr);
    ASSERT_EQ(box->childItems().size(), 1);
    EXPECT_EQ(box->childCount(), 1);
    EXPECT_TRUE(dynamic_cast<PlixTextUI*>(box->childItems()[0]));
}

} // namespace
} // namespace plix::test
