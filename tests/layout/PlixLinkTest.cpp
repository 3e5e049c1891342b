// Links to objects that may be deleted.
#include "layout/PlixLink.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

struct Object {
    PlixLinkTarget<Object> target {this};
};

using Link = PlixLink<Object>;

TEST(Link, PointsToItsObjectUntilThatIsDeleted)
{
    auto object = std::make_unique<Object>();
    const Link link = object->target.link();
    EXPECT_EQ(link.get(), object.get());
    object.reset();
    EXPECT_EQ(link.get(), nullptr);
}

TEST(Link, IsNullWithoutAnObject)
{
    const Link link;
    EXPECT_EQ(link.get(), nullptr);
    EXPECT_EQ(Link(link).get(), nullptr);
}

TEST(Link, IsNullOnceItsObjectHasMadeTheLinksExpire)
{
    Object object;
    const Link before = object.target.link();
    object.target.expire();
    EXPECT_EQ(before.get(), nullptr);
    EXPECT_EQ(object.target.link().get(), nullptr);
}

TEST(Link, CanBeCopiedAndSetToAnotherObject)
{
    Object first;
    Object second;
    Link link = first.target.link();
    const Link copy = link;
    link = second.target.link();
    EXPECT_EQ(copy.get(), &first);
    EXPECT_EQ(link.get(), &second);
    const Link& itself = link;
    link = itself;
    EXPECT_EQ(link.get(), &second);
    link = Link();
    EXPECT_EQ(link.get(), nullptr);
}

TEST(Link, MayBeDeletedInAnyOrder)
{
    for (std::size_t deleted = 0; deleted < 3; ++deleted) {
        auto object = std::make_unique<Object>();
        std::vector<std::unique_ptr<Link>> links;
        for (int i = 0; i < 3; ++i)
            links.push_back(std::make_unique<Link>(object->target.link()));
        links[deleted].reset();
        for (const auto& link : links)
            EXPECT_TRUE(!link || link->get() == object.get());
        object.reset();
        for (const auto& link : links)
            EXPECT_TRUE(!link || link->get() == nullptr);
    }
}

TEST(Link, SurvivesTheGrowthOfAVector)
{
    auto object = std::make_unique<Object>();
    std::vector<Link> links;
    for (int i = 0; i < 20; ++i)
        links.push_back(object->target.link());
    object.reset();
    for (const Link& link : links)
        EXPECT_EQ(link.get(), nullptr);
}

} // namespace
