// Animated pictures, and still ones that must not act as such.
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"
#include "ui/image/PlixMovie.h"
#include "ui/image/PlixMovieBudget.h"
#include "ui/image/PlixPicture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGraphicsView>
#include <QPaintEvent>
#include <QThread>

namespace plix::test {
namespace {

constexpr int kPatience = 60'000;
// Of animations that gifAnimation() makes.
constexpr int kFrameMilliseconds = 20;

// How often a signal was sent.
class SignalCount {
public:
    template <typename Sender, typename Signal> SignalCount(Sender* sender, Signal signal)
    {
        QObject::connect(sender, signal, &receiver_, [this] { ++count_; });
    }

    int count() const { return count_; }

private:
    QObject receiver_;
    int count_ = 0;
};

// A chat window around a card, that counts its paints.
class ChatView : private QObject {
public:
    explicit ChatView(QGraphicsItem& root)
        : root_(root)
        , view_(&scene_)
    {
        scene_.addItem(&root_);
        view_.setFrameShape(QFrame::NoFrame);
        view_.setViewportUpdateMode(QGraphicsView::MinimalViewportUpdate);
        view_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        view_.setSceneRect(0, 0, 300, 5000);
        view_.resize(300, 300);
        view_.viewport()->installEventFilter(this);
        view_.show();
        EXPECT_TRUE(waitUntil([this] { return paints_ > 0; }));
        settle();
    }

    ~ChatView() override { scene_.removeItem(&root_); }

    QGraphicsView& view() { return view_; }
    QColor at(int x, int y) { return view_.viewport()->grab().toImage().pixelColor(x, y); }
    int paints() const { return paints_; }
    // What was painted since reset().
    QRect painted() const { return painted_; }
    void reset()
    {
        paints_ = 0;
        painted_ = QRect();
    }

    // Until nothing is left to do.
    static void settle()
    {
        for (int i = 0; i < 20; ++i)
            QApplication::processEvents();
    }
    // Long enough for a movie that plays to go on many times: a frame in each
    // round is due, however slow the machine is.
    static void pass()
    {
        for (int i = 0; i < 12; ++i) {
            QThread::msleep(kFrameMilliseconds + 5);
            QApplication::processEvents();
        }
    }
    static bool waitUntil(const std::function<bool()>& isTrue)
    {
        QElapsedTimer timer;
        timer.start();
        while (!isTrue() && !timer.hasExpired(kPatience))
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        return isTrue();
    }

private:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints_;
            painted_ |= static_cast<QPaintEvent*>(event)->region().boundingRect();
        }
        return false;
    }

    QGraphicsItem& root_;
    QGraphicsScene scene_;
    QGraphicsView view_;
    int paints_ = 0;
    QRect painted_;
};

// The picture that the card's items show.
std::shared_ptr<PlixPicture> shared(const std::string& path)
{
    return PlixPicture::Get(QString::fromStdString(path));
}

// The frames that a picture goes on to, from now on.
class Frames {
public:
    explicit Frames(const std::string& path)
        : picture_(shared(path))
        , spy_(picture_.get(), &PlixPicture::frameChanged)
    {
    }

    int count() const { return spy_.count(); }
    bool wait(int frames)
    {
        return ChatView::waitUntil([&] { return spy_.count() >= frames; });
    }

private:
    std::shared_ptr<PlixPicture> picture_;
    SignalCount spy_;
};

using MovieInView = PlixTest;

TEST_F(MovieInView, PaintsAnIdleCardWithStillPicturesNoMore)
{
    const PictureFolder folder;
    const QByteArray still = pictureBytes(filled({20, 20}, Qt::red));
    const PictureCard card(
        image(folder.write("a.png", still), R"("size": "xxs",)") + ","
        + image(folder.write("a.jpg", pictureBytes(filled({20, 20}, Qt::red), "JPG")),
                R"("size": "xxs",)")
        + ","
        + image(folder.write("a.bmp", pictureBytes(filled({20, 20}, Qt::red), "BMP")),
                R"("size": "xxs",)")
        + "," + image(folder.write("a.gif", gifAnimation({20, 20}, {1})), R"("size": "xxs",)") + ","
        + image(folder.path("missing.png"), R"("size": "xxs",)") + ","
        + image(folder.write("empty.png", ""), R"("size": "xxs",)"));
    ChatView view(*card.card().root());
    EXPECT_EQ(view.at(10, 10), QColor(Qt::red));
    EXPECT_EQ(view.at(10, 130), QColor(Qt::red));
    ChatView::settle();
    view.reset();
    ChatView::pass();
    EXPECT_EQ(view.paints(), 0);
}

TEST_F(MovieInView, PlaysAnAnimationAndPaintsNothingElse)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(box("vertical", "", R"("height": "50px",)") + ","
                           + image(path, R"("size": "sm",)"));
    ChatView view(*card.card().root());
    Frames frames(path);
    for (const QColor& color : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)})
        EXPECT_TRUE(ChatView::waitUntil([&] { return view.at(10, 60) == color; })) << color.rgb();
    ChatView::settle();
    view.reset();
    ASSERT_TRUE(frames.wait(frames.count() + 5));
    ChatView::settle();
    EXPECT_GE(view.paints(), 4);
    // Qt repaints a little more than the item, for smoothed edges.
    EXPECT_TRUE(QRect(-2, 48, 84, 84).contains(view.painted())) << view.painted().height();
}

TEST_F(MovieInView, EndsOnTheLastFrameAndStaysThere)
{
    const PictureFolder folder;
    // It is repeated once, so there are four frames, of which the first is the
    // one that was painted before anybody counted.
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2}, 1));
    const PictureCard card(image(path));
    Frames frames(path);
    ChatView view(*card.card().root());
    ASSERT_TRUE(frames.wait(3));
    ChatView::pass();
    EXPECT_EQ(frames.count(), 3);
    EXPECT_EQ(view.at(10, 10), QColor(Qt::green));
    view.view().viewport()->update();
    ChatView::pass();
    EXPECT_EQ(frames.count(), 3) << "a paint does not start it again";
    view.reset();
    ChatView::pass();
    EXPECT_EQ(view.paints(), 0);
}

TEST_F(MovieInView, PausesWhileItIsHidden)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(image(path));
    ChatView view(*card.card().root());
    Frames frames(path);
    const struct {
        const char* name;
        std::function<void()> hide;
        std::function<void()> show;
    } rows[] = {
        {"item", [&] { card.item().hide(); }, [&] { card.item().show(); }},
        {"card", [&] { card.card().root()->hide(); }, [&] { card.card().root()->show(); }},
        {"scrolled out", [&] { view.view().centerOn(0, 4000); },
         [&] { view.view().centerOn(0, 0); }},
        {"view", [&] { view.view().hide(); }, [&] { view.view().show(); }},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(frames.wait(frames.count() + 3)) << row.name << ": plays";
        row.hide();
        ChatView::pass();
        const int before = frames.count();
        ChatView::pass();
        EXPECT_EQ(frames.count(), before) << row.name << ": pauses";
        row.show();
        EXPECT_TRUE(frames.wait(before + 3)) << row.name << ": goes on";
    }
}

// How many are told of the picture's next frame.
int listeners(const std::string& path)
{
    struct Open : QObject {
        using QObject::receivers;
    };
    const std::shared_ptr<PlixPicture> picture = shared(path);
    int (QObject::*const receivers)(const char*) const = &Open::receivers;
    return (picture.get()->*receivers)(SIGNAL(frameChanged()));
}

TEST_F(MovieInView, TellsAnItemOfAFrameOnceHoweverOftenItIsPainted)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(image(path));
    const qint64 before = PlixMovieBudget::GetInstance().UsedBytes();
    card.paint();
    const qint64 one = PlixMovieBudget::GetInstance().UsedBytes() - before;
    for (int i = 0; i < 50; ++i) {
        card.paint();
        QMetaObject::invokeMethod(card.item().toGraphicsObject(), "OnFileArrived",
                                  Q_ARG(QString, QString::fromStdString(path)));
    }
    EXPECT_EQ(listeners(path), 1);
    EXPECT_EQ(PlixMovieBudget::GetInstance().UsedBytes() - before, one) << "one movie";
}

TEST_F(MovieInView, PlaysTheBytesThatItOpened)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2}));
    const PictureCard card(image(path));
    ChatView view(*card.card().root());
    // Held, so that nobody asks whether the file is the same.
    const std::shared_ptr<PlixPicture> picture = shared(path);
    SignalCount spy(picture.get(), &PlixPicture::frameChanged);
    folder.write("a.gif", gifAnimation({20, 20}, {3, 3, 3}));
    for (int frame = 0; frame < 6; ++frame) {
        const int before = spy.count();
        ASSERT_TRUE(ChatView::waitUntil([&] { return spy.count() > before; }));
        EXPECT_NE(view.at(10, 10), QColor(Qt::blue));
    }
    QFile::remove(QString::fromStdString(path));
    const int before = spy.count();
    EXPECT_TRUE(ChatView::waitUntil([&] { return spy.count() > before + 3; }));
}

TEST_F(MovieInView, PlaysOneMovieForAllWhoShowTheFile)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const qint64 before = PlixMovieBudget::GetInstance().UsedBytes();
    const PictureCard one(image(path));
    one.paint();
    const qint64 each = PlixMovieBudget::GetInstance().UsedBytes() - before;
    ASSERT_GT(each, 0);
    const PictureCard many(box("horizontal", list(1000, icon(path))));
    many.paint();
    EXPECT_EQ(PlixMovieBudget::GetInstance().UsedBytes() - before, each);
}

TEST_F(MovieInView, GivesUpTheMovieWithTheLastItem)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const qint64 before = PlixMovieBudget::GetInstance().UsedBytes();
    {
        const PictureCard card(image(path));
        card.paint();
        EXPECT_GT(PlixMovieBudget::GetInstance().UsedBytes(), before);
    }
    EXPECT_EQ(PlixMovieBudget::GetInstance().UsedBytes(), before);
}

TEST_F(MovieInView, StaysOnTheFirstFrameWhenItIsTooLargeToPlay)
{
    const PictureFolder folder;
    const QSize large(2000, 1200);
    const std::string path = folder.write("a.gif",
                                          gifHead(large) + gifDelay(2) + gifFrame(large, 1)
                                              + gifDelay(2) + gifFrame({1, 1}, 2) + ';');
    const PictureCard card(image(path, R"("aspectMode": "cover",)"));
    Frames frames(path);
    ChatView view(*card.card().root());
    EXPECT_EQ(view.at(50, 50), QColor(Qt::red));
    ChatView::pass();
    EXPECT_EQ(frames.count(), 0);
}

// ----- The budget

std::unique_ptr<PlixMovie> movieOf(qint64 megabytes, const QByteArray& bytes)
{
    // What a movie takes is reckoned by its size.
    const auto height = static_cast<int>(megabytes * 1024 * 1024 / 16 / 1024);
    return std::make_unique<PlixMovie>(PlixPictureFile {bytes, "gif", {1024, height}});
}

class MovieBudget : public PlixTest {
protected:
    const QByteArray bytes_ = gifHead({2, 2}) + gifDelay(5000) + gifFrame({2, 2}, 1)
        + gifDelay(5000) + gifFrame({2, 2}, 2) + ';';
    PlixMovieBudget& budget_ = PlixMovieBudget::GetInstance();
    std::vector<std::unique_ptr<PlixMovie>> movies_;

    void fill()
    {
        for (int i = 0; i < 10; ++i) {
            movies_.push_back(movieOf(25, bytes_));
            ASSERT_TRUE(budget_.Join(*movies_.back()));
        }
    }
};

TEST_F(MovieBudget, TakesNoMovieThatIsTooLarge)
{
    EXPECT_FALSE(budget_.Join(*movieOf(33, bytes_)));
    EXPECT_EQ(budget_.UsedBytes(), 0);
}

TEST_F(MovieBudget, HasNoRoomWhileAllPlay)
{
    fill();
    const auto late = movieOf(25, bytes_);
    EXPECT_FALSE(budget_.Join(*late));
    EXPECT_LE(budget_.UsedBytes(), PlixMovieBudget::kMaximumBytes);
    movies_.clear();
    EXPECT_EQ(budget_.UsedBytes(), 0);
    EXPECT_TRUE(budget_.Join(*late));
}

TEST_F(MovieBudget, TakesTheRoomOfMoviesThatNobodySees)
{
    fill();
    // This one is not painted, so it pauses.
    SignalCount playing(movies_[2].get(), &PlixMovie::evicted);
    movies_[3] = movieOf(25, gifAnimation({2, 2}, {1, 2}));
    SignalCount paused(movies_[3].get(), &PlixMovie::evicted);
    ASSERT_TRUE(budget_.Join(*movies_[3]));
    ASSERT_TRUE(ChatView::waitUntil([&] { return !movies_[3]->isPlaying(); }));
    const auto late = movieOf(25, bytes_);
    EXPECT_TRUE(budget_.Join(*late));
    EXPECT_EQ(paused.count(), 1);
    EXPECT_EQ(playing.count(), 0);
    EXPECT_LE(budget_.UsedBytes(), PlixMovieBudget::kMaximumBytes);
}

TEST_F(MovieBudget, LetsAnAnimationGoOnThatLostItsRoomUnseen)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(image(path));
    card.paint();
    const qint64 one = budget_.UsedBytes();
    ASSERT_GT(one, 0);
    Frames frames(path);
    // The second frame is not painted.
    ASSERT_TRUE(frames.wait(2));
    ChatView::pass();
    ASSERT_EQ(frames.count(), 2);
    fill();
    EXPECT_FALSE(budget_.Join(*movieOf(25, bytes_)));
    movies_.clear();
    EXPECT_EQ(budget_.UsedBytes(), 0) << "the animation has no movie any more";
    card.paint();
    EXPECT_EQ(budget_.UsedBytes(), one);
    EXPECT_TRUE(frames.wait(3));
}

TEST_F(MovieBudget, LeavesAnAnimationThatIsOverOnItsLastFrame)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif",
                                          gifHead({20, 20}) + gifDelay(2) + gifFrame({20, 20}, 1)
                                              + gifFrame({20, 20}, 2) + ';');
    const PictureCard card(image(path));
    Frames frames(path);
    card.paint();
    ASSERT_TRUE(frames.wait(1));
    EXPECT_EQ(card.at(10, 10), QColor(Qt::green));
    ChatView::pass();
    fill();
    EXPECT_FALSE(budget_.Join(*movieOf(25, bytes_)));
    EXPECT_EQ(card.at(10, 10), QColor(Qt::green));
    ChatView::pass();
    EXPECT_EQ(frames.count(), 1);
}

// ----- Broken pictures

struct BrokenRow {
    const char* name;
    QByteArray bytes;

    friend std::ostream& operator<<(std::ostream& out, const BrokenRow& row)
    {
        return out << row.name;
    }
};

class BrokenPicture : public PlixTest, public testing::WithParamInterface<BrokenRow> { };

TEST_P(BrokenPicture, IsOpenedOnceAndLeavesTheCardIdle)
{
    const QtMessagesIgnored messages;
    const PictureFolder folder;
    const std::string path = folder.write("a", GetParam().bytes);
    const PictureCard card(image(path, R"("backgroundColor": "#FFFF00",)"));
    Frames frames(path);
    ChatView view(*card.card().root());
    ChatView::settle();
    view.reset();
    ChatView::pass();
    EXPECT_EQ(view.paints(), 0);
    EXPECT_EQ(frames.count(), 0);
    const int complaints = QtMessagesIgnored::count();
    for (int i = 0; i < 20; ++i) {
        card.item().update();
        ChatView::settle();
    }
    EXPECT_EQ(QtMessagesIgnored::count(), complaints) << "it is not decoded again";
}

QByteArray half(const QByteArray& bytes)
{
    return bytes.left(bytes.size() / 2);
}

INSTANTIATE_TEST_SUITE_P(
    Files, BrokenPicture,
    testing::Values(
        BrokenRow {"Empty", ""}, BrokenRow {"OneByte", "G"}, BrokenRow {"OnlyMagicGif", "GIF89a"},
        BrokenRow {"OnlyMagicPng", pngSignature()}, BrokenRow {"OnlyMagicBmp", "BM"},
        BrokenRow {"OnlyMagicJpeg", QByteArray::fromHex("ffd8ff")},
        BrokenRow {"OnlyMagicWebP", QByteArray("RIFF\0\0\0\0WEBP", 12)},
        BrokenRow {"GifWithoutFrames", gifHead({20, 20}) + ';'},
        BrokenRow {"GifCutInTheScreen", gifHead({20, 20}).left(9)},
        BrokenRow {"GifCutInTheColours", gifHead({20, 20}).left(20)},
        BrokenRow {"GifCutInTheFirstFrame", gifHead({20, 20}) + half(gifFrame({20, 20}, 1))},
        BrokenRow {"GifCutBeforeItsPixels", gifHead({20, 20}) + gifFrame({20, 20}, 1).left(10)},
        BrokenRow {"PngCut", half(pictureBytes(noise({50, 50})))},
        BrokenRow {"PngCutInItsHead", pictureBytes(noise({50, 50})).left(20)},
        BrokenRow {"JpegCut", half(pictureBytes(noise({50, 50}), "JPG"))},
        BrokenRow {"JpegCutInItsHead", pictureBytes(noise({50, 50}), "JPG").left(30)},
        BrokenRow {"BmpCut", pictureBytes(noise({50, 50}), "BMP").left(54 + 50 * 150)},
        BrokenRow {"PngOfNoise", pngSignature() + QByteArray(2000, '\x5A')},
        BrokenRow {"GifOfNoise", "GIF89a" + QByteArray(2000, '\x5A')},
        BrokenRow {"JpegOfNoise", QByteArray::fromHex("ffd8ffe0") + QByteArray(2000, '\x5A')},
        BrokenRow {"Text", "Not found"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(MovieInView, EndsWhenAFrameIsBroken)
{
    const PictureFolder folder;
    QByteArray bytes = gifAnimation({20, 20}, {1, 2, 3});
    bytes.truncate(bytes.size() - 200);
    const std::string path = folder.write("a.gif", bytes);
    const PictureCard card(image(path));
    ChatView view(*card.card().root());
    Frames frames(path);
    EXPECT_TRUE(ChatView::waitUntil([&] { return view.at(10, 1) != QColor(Qt::red); }));
    ChatView::pass();
}

} // namespace
} // namespace plix::test
