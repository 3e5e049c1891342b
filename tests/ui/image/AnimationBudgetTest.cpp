// The memory limit of all animations of the process.
#include "layout/PlixLimits.h"
#include "ui/image/AnimationFrames.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"
#include "ui/image/PlixMovie.h"
#include "ui/image/PlixMovieBudget.h"

#include <memory>
#include <vector>

namespace plix::test {
namespace {

// An animation whose file announces this size, which the budget uses. Its frames are tiny.
std::unique_ptr<PlixMovie> animationOf(qint64 megabytes)
{
    const auto height = static_cast<int>(megabytes * 1024 * 1024 / 16 / 1024);
    return std::make_unique<PlixMovie>(
        PlixPictureFile {gifAnimation({2, 2}, {1, 2}), "gif", {1024, height}});
}

class AnimationBudget : public PlixTest {
protected:
    PlixMovieBudget& budget_ = PlixMovieBudget::GetInstance();
    std::vector<std::unique_ptr<PlixMovie>> animations_;

    // Uses almost the whole budget for animations that play.
    void fill()
    {
        for (int i = 0; i < 10; ++i) {
            animations_.push_back(animationOf(25));
            ASSERT_TRUE(budget_.Join(*animations_.back()));
        }
    }
};

TEST_F(AnimationBudget, RefusesAnAnimationThatIsTooLarge)
{
    EXPECT_FALSE(budget_.Join(*animationOf(33)));
    EXPECT_EQ(budget_.UsedBytes(), 0);
}

TEST_F(AnimationBudget, HasNoRoomWhileAllAnimationsPlay)
{
    fill();
    const auto late = animationOf(25);
    EXPECT_FALSE(budget_.Join(*late));
    EXPECT_LE(budget_.UsedBytes(), kMaximumMoviesBytes);
    animations_.clear();
    EXPECT_EQ(budget_.UsedBytes(), 0);
    EXPECT_TRUE(budget_.Join(*late));
}

TEST_F(AnimationBudget, EvictsAnimationsThatAreNotPainted)
{
    fill();
    const SignalCount playing(animations_[2].get(), &PlixMovie::Evicted);
    const SignalCount paused(animations_[3].get(), &PlixMovie::Evicted);
    // The first frame counts as painted. The second one is not, so the animation pauses.
    endFrame(*animations_[3]);
    ASSERT_TRUE(animations_[3]->IsPlaying());
    endFrame(*animations_[3]);
    ASSERT_FALSE(animations_[3]->IsPlaying());
    const auto late = animationOf(25);
    EXPECT_TRUE(budget_.Join(*late));
    EXPECT_EQ(paused.count(), 1);
    EXPECT_EQ(playing.count(), 0);
    EXPECT_LE(budget_.UsedBytes(), kMaximumMoviesBytes);
}

TEST_F(AnimationBudget, LetsAnEvictedAnimationPlayAgainWhenItIsPainted)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(image(path));
    card.paint();
    const qint64 one = budget_.UsedBytes();
    ASSERT_GT(one, 0);
    AnimationFrames frames(path);
    // The second frame is not painted, so the animation pauses on the third one.
    frames.end(5);
    ASSERT_EQ(frames.count(), 2);
    fill();
    EXPECT_FALSE(budget_.Join(*animationOf(25)));
    animations_.clear();
    EXPECT_EQ(budget_.UsedBytes(), 0) << "the animation has no QMovie any more";
    card.paint();
    EXPECT_EQ(budget_.UsedBytes(), one);
    frames.end(1);
    EXPECT_EQ(frames.count(), 3);
}

TEST_F(AnimationBudget, LeavesAnAnimationAtItsEndOnItsLastFrame)
{
    const PictureFolder folder;
    // Without a count of repetitions, a file is played once.
    const std::string path =
        folder.write("a.gif",
                     gifHead({20, 20}) + gifDelay(kLongGifDelay) + gifFrame({20, 20}, 1)
                         + gifFrame({20, 20}, 2) + ';');
    const PictureCard card(image(path));
    AnimationFrames frames(path);
    card.paint();
    frames.end(1);
    ASSERT_EQ(frames.count(), 1);
    EXPECT_EQ(card.at(10, 10), QColor(Qt::green));
    frames.end(1);
    fill();
    EXPECT_FALSE(budget_.Join(*animationOf(25)));
    EXPECT_EQ(card.at(10, 10), QColor(Qt::green));
    frames.end(3);
    EXPECT_EQ(frames.count(), 1);
}

} // namespace
} // namespace plix::test
