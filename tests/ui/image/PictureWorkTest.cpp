// How much is decoded and scaled in one paint, and what is kept of it.
#include "layout/PlixLimits.h"
#include "ui/image/ChatView.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"
#include "ui/image/PlixKeptPictures.h"
#include "ui/image/PlixPictureWork.h"
#include "ui/image/PlixShownPicture.h"

#include <QDateTime>
#include <QFile>

#include <cmath>

namespace plix::test {
namespace {

PlixPictureWork::Count workIn(const std::function<void()>& steps)
{
    const PlixPictureWork::Count before = PlixPictureWork::SoFar();
    steps();
    const PlixPictureWork::Count after = PlixPictureWork::SoFar();
    return {after.decodings - before.decodings, after.scalings - before.scalings};
}

// A picture so large that each one needs a paint of its own.
constexpr QSize kLarge(4096, 4096);

class PictureWork : public PlixTest {
protected:
    std::string file(int number, const QSize& size = kLarge) const
    {
        return folder_.write(std::to_string(number) + ".png", blackPng(size));
    }

    std::string icons(int count, const QSize& size = kLarge) const
    {
        std::string all;
        for (int i = 0; i < count; ++i)
            all += (i == 0 ? "" : ",") + icon(file(i, size), R"("flex": 0, "size": "md",)");
        return box("horizontal", all, R"("backgroundColor": "#FFFFFF",)");
    }

    PictureFolder folder_;
};

// The number of icons that show their picture.
int shownIcons(ChatView& view, int count)
{
    const QImage image = view.view().viewport()->grab().toImage();
    int shown = 0;
    for (int i = 0; i < count; ++i)
        shown += image.pixelColor(16 * i + 8, 8) == QColor(Qt::black) ? 1 : 0;
    return shown;
}

// The work for the first paint of a card, before control returns to Qt.
PlixPictureWork::Count workOfFirstPaint(const PictureCard& card)
{
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    view.resize(400, 400);
    view.show();
    deliverEvents();
    scene.addItem(card.card().root());
    const PlixPictureWork::Count work = workIn([&] { view.viewport()->repaint(); });
    scene.removeItem(card.card().root());
    return work;
}

TEST_F(PictureWork, OfALargePictureIsAllOfOnePaint)
{
    const PictureCard card(icons(6));
    EXPECT_EQ(workOfFirstPaint(card).decodings, 1);
}

TEST_F(PictureWork, InOnePaintIsLimited)
{
    // Decoding and scaling take two pixels for each of the picture's, and the file has a few
    // bytes.
    const auto half = static_cast<int>(std::sqrt(kMaximumPictureWork / 4));
    EXPECT_EQ(workOfFirstPaint(PictureCard(icons(3, {half - 8, half}))).decodings, 2);
    EXPECT_EQ(workOfFirstPaint(PictureCard(icons(3, {half + 8, half}))).decodings, 1);
}

TEST_F(PictureWork, IsLimitedExactly)
{
    for (const int more : {-1, 0, 1}) {
        deliverEvents(); // ends the turn
        PlixPictureWork first(PlixPictureWork::Limit::OnePaint);
        first.Add(1000);
        PlixPictureWork second(PlixPictureWork::Limit::OnePaint);
        EXPECT_EQ(second.MayStart(kMaximumPictureWork - 1000 + more), more <= 0) << more;
        EXPECT_EQ(second.IsRefused(), more > 0) << more;
    }
}

TEST_F(PictureWork, ContinuesInFurtherPaintsUntilAllIsShown)
{
    constexpr int kIcons = 6;
    const PictureCard card(icons(kIcons));
    const PlixPictureWork::Count all = workIn([&] {
        ChatView view(*card.card().root());
        EXPECT_TRUE(deliverEventsUntil([&] { return shownIcons(view, kIcons) == kIcons; }));
        deliverEvents();
        view.resetPaints();
        deliverEvents();
        EXPECT_EQ(view.paints(), 0) << "an idle card is not painted";
        EXPECT_EQ(workIn([&] { view.view().viewport()->repaint(); }).scalings, 0);
    });
    EXPECT_EQ(all.decodings, kIcons);
    EXPECT_EQ(all.scalings, kIcons);
}

TEST_F(PictureWork, OfOrdinaryPicturesIsDoneInTheFirstPaint)
{
    constexpr int kIcons = 10;
    EXPECT_EQ(workOfFirstPaint(PictureCard(icons(kIcons, {1000, 1000}))).decodings, kIcons);
}

TEST_F(PictureWork, IsDoneAtOnceWithoutAWidget)
{
    constexpr int kIcons = 4;
    const PictureCard card(icons(kIcons));
    const QImage image = card.paint();
    for (int i = 0; i < kIcons; ++i)
        EXPECT_EQ(image.pixelColor(16 * i + 8, 8), QColor(Qt::black)) << i;
}

TEST_F(PictureWork, OfOneFileInManySizesDecodesItOnce)
{
    const std::string path = file(0);
    std::string all;
    for (const char* size : {"xxs", "xs", "sm", "md"})
        all += (all.empty() ? "" : ",") + image(path, std::string(R"("size": ")") + size + "\",");
    const PictureCard card(all);
    const PlixPictureWork::Count work = workIn([&] {
        ChatView view(*card.card().root());
        deliverEvents();
    });
    EXPECT_EQ(work.decodings, 1);
    EXPECT_EQ(work.scalings, 4);
}

TEST_F(PictureWork, IsNotRepeatedForAFileThatCannotBeDecoded)
{
    const std::string path = folder_.write("a.png", blackPng(kLarge).left(40'000));
    const QtMessagesIgnored messages;
    const PictureCard card(image(path) + "," + image(file(1)));
    const PlixPictureWork::Count work = workIn([&] {
        ChatView view(*card.card().root());
        deliverEvents();
        for (int i = 0; i < 3; ++i) {
            view.view().viewport()->update();
            deliverEvents();
        }
    });
    EXPECT_LE(work.decodings, 2);
}

// ----- What is kept

// Items on top of each other, each with a copy of 16 MiB.
std::string stack(int count, const std::function<std::string(int)>& path, int width = 2048)
{
    const std::string size = "\"" + std::to_string(width) + "px\"";
    std::string all;
    for (int i = 0; i < count; ++i)
        all += (i == 0 ? "" : ",")
            + box("vertical", image(path(i), R"("size": "full", "backgroundColor": "#00FF00",)"),
                  R"("position": "absolute", "offsetTop": ")" + std::to_string(8 * i + 1)
                      + R"(px", "width": )" + size + R"(, "height": )" + size + ",");
    return box("vertical", all, R"("height": "300px",)");
}

TEST_F(PictureWork, IsNotRepeatedForMorePicturesThanTheCacheHolds)
{
    constexpr int kPictures = 9;
    const PictureCard card(stack(kPictures, [this](int i) { return file(i); }));
    ChatView view(*card.card().root());
    EXPECT_TRUE(deliverEventsUntil([&] { return view.at(100, 8 * kPictures + 10) == Qt::black; }));
    deliverEvents();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(workIn([&] { view.view().viewport()->repaint(); }).scalings, 0);
    view.resetPaints();
    deliverEvents();
    EXPECT_EQ(view.paints(), 0);
}

TEST_F(PictureWork, IsBoundedByWhatOneCardMayKeep)
{
    constexpr int kPictures = 12;
    {
        const PictureCard card(stack(kPictures, [this](int i) { return file(i); }));
        {
            ChatView view(*card.card().root());
            deliverEvents();
            view.resetPaints();
            deliverEvents();
            EXPECT_EQ(view.paints(), 0) << "what does not fit asks for no further paint";
            EXPECT_LE(PlixKeptPictures::UsedBytes(), kMaximumKeptBytesOfCard);
            EXPECT_GT(PlixKeptPictures::UsedBytes(), kMaximumKeptBytesOfCard / 2);
            EXPECT_EQ(view.at(100, 8 * kPictures + 10), QColor(0, 255, 0)) << "the background";
            EXPECT_EQ(workIn([&] { view.view().viewport()->repaint(); }).decodings, 0);
        }
        EXPECT_EQ(card.at(100, 8 * kPictures + 10), QColor(Qt::black)) << "without a widget";
    }
    EXPECT_EQ(PlixKeptPictures::UsedBytes(), 0);
}

// A picture of so many bytes, a multiple of 4. Nobody writes to it, so it takes no memory.
QImage pictureOfBytes(int bytes)
{
    return QImage(bytes, 1, QImage::Format_Alpha8);
}

// What an item keeps, as long as it lives.
struct KeptPicture {
    KeptPicture(const void* card, int bytes)
        : isKept(PlixKeptPictures::Insert(item, card, pictureOfBytes(bytes)))
    {
    }
    ~KeptPicture() { PlixKeptPictures::Remove(item); }

    KeptPicture(const KeptPicture&) = delete;
    KeptPicture& operator=(const KeptPicture&) = delete;

    const PlixShownPicture item;
    const bool isKept;
};

TEST_F(PictureWork, IsKeptUpToTheBytesOfACard)
{
    constexpr int kFirst = 4000;
    const int card = 0;
    for (const int more : {-4, 0, 4}) {
        const KeptPicture first(&card, kFirst);
        const KeptPicture second(&card, kMaximumKeptBytesOfCard - kFirst + more);
        EXPECT_TRUE(first.isKept);
        EXPECT_EQ(second.isKept, more <= 0) << more;
    }
    EXPECT_EQ(PlixKeptPictures::UsedBytes(), 0);
}

TEST_F(PictureWork, IsKeptUpToTheBytesOfTheProcess)
{
    constexpr int kFirst = 4000;
    const int cards[3] = {};
    for (const int more : {-4, 0, 4}) {
        const KeptPicture first(&cards[0], kFirst);
        const KeptPicture second(&cards[1], kMaximumKeptBytesOfCard);
        const KeptPicture third(&cards[2],
                                kMaximumKeptBytes - kMaximumKeptBytesOfCard - kFirst + more);
        EXPECT_TRUE(third.isKept);
        EXPECT_EQ(PlixKeptPictures::Find(first.item).isNull(), more > 0) << more;
        EXPECT_FALSE(PlixKeptPictures::Find(second.item).isNull());
    }
    EXPECT_EQ(PlixKeptPictures::UsedBytes(), 0);
}

TEST_F(PictureWork, ShowsAFileThatWasReplaced)
{
    constexpr int kIcons = 3;
    const PictureCard card(icons(kIcons));
    ChatView view(*card.card().root());
    EXPECT_TRUE(deliverEventsUntil([&] { return shownIcons(view, kIcons) == kIcons; }));
    const std::string path = folder_.write("1.png", pictureBytes(filled({10, 10}, Qt::red)));
    QFile picture(QString::fromStdString(path));
    ASSERT_TRUE(picture.open(QIODevice::ReadWrite));
    ASSERT_TRUE(picture.setFileTime(QDateTime::currentDateTime().addSecs(10),
                                    QFileDevice::FileModificationTime));
    picture.close();
    const PictureCard other(icon(path));
    EXPECT_EQ(view.at(16 + 8, 8), QColor(Qt::red));
}

} // namespace
} // namespace plix::test
