// Animated images in a view, and still ones that must not repaint.
#include "ui/image/AnimationFrames.h"
#include "ui/image/ChatView.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"
#include "ui/image/PlixMovieBudget.h"
#include "ui/image/PlixPicture.h"

#include <QFile>

#include <functional>

namespace plix::test {
namespace {

using AnimationInView = PlixTest;

TEST_F(AnimationInView, PlaysByItself)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", fastGifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(image(path));
    const ChatView view(*card.card().root());
    const AnimationFrames frames(path);
    EXPECT_TRUE(deliverEventsUntil([&] { return frames.count() >= 4; }));
}

TEST_F(AnimationInView, DoesNotRepaintStillImages)
{
    const PictureFolder folder;
    const QImage red = filled({20, 20}, Qt::red);
    const std::vector<std::string> paths {folder.write("a.png", pictureBytes(red)),
                                          folder.write("a.jpg", pictureBytes(red, "JPG")),
                                          folder.write("a.bmp", pictureBytes(red, "BMP")),
                                          folder.write("a.gif", gifAnimation({20, 20}, {1})),
                                          folder.path("missing.png"),
                                          folder.write("empty.png", "")};
    std::string images;
    for (const std::string& path : paths)
        images += (images.empty() ? "" : ",") + image(path, R"("size": "xxs",)");
    const PictureCard card(images);
    ChatView view(*card.card().root());
    EXPECT_EQ(view.at(10, 10), QColor(Qt::red));
    EXPECT_EQ(view.at(10, 130), QColor(Qt::red));
    deliverEvents();
    view.resetPaints();
    for (const std::string& path : paths)
        AnimationFrames(path).end(3);
    EXPECT_EQ(view.paints(), 0);
}

TEST_F(AnimationInView, RepaintsOnlyItsItemForEachFrame)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(box("vertical", "", R"("height": "50px",)") + ","
                           + image(path, R"("size": "sm",)"));
    ChatView view(*card.card().root());
    AnimationFrames frames(path);
    EXPECT_EQ(view.at(10, 60), QColor(Qt::red));
    for (const QColor& color :
         {QColor(Qt::green), QColor(Qt::blue), QColor(Qt::red), QColor(Qt::green)}) {
        deliverEvents();
        view.resetPaints();
        frames.end(1);
        EXPECT_EQ(view.paints(), 1);
        // Qt repaints a little more than the item, for smoothed edges.
        EXPECT_TRUE(QRect(-2, 48, 84, 84).contains(view.paintedArea()))
            << view.paintedArea().height();
        EXPECT_EQ(view.at(10, 60), color) << color.rgb();
    }
}

TEST_F(AnimationInView, StaysOnItsLastFrameAtItsEnd)
{
    const PictureFolder folder;
    // The two frames are shown twice. The first of the four is shown before the test counts.
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2}, 1));
    const PictureCard card(image(path));
    AnimationFrames frames(path);
    ChatView view(*card.card().root());
    frames.end(5);
    EXPECT_EQ(frames.count(), 3);
    EXPECT_EQ(view.at(10, 10), QColor(Qt::green));
    view.view().viewport()->update();
    frames.end(3);
    EXPECT_EQ(frames.count(), 3) << "a paint does not start it again";
    view.resetPaints();
    frames.end(3);
    EXPECT_EQ(view.paints(), 0);
}

TEST_F(AnimationInView, PausesWhileItIsHidden)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2, 3}));
    const PictureCard card(image(path));
    ChatView view(*card.card().root());
    AnimationFrames frames(path);
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
        const int before = frames.count();
        frames.end(3);
        ASSERT_EQ(frames.count(), before + 3) << row.name << ": plays";
        row.hide();
        frames.end(5);
        // It pauses on the first frame that is not painted, and so on the second one: the
        // frame on show was painted.
        EXPECT_EQ(frames.count(), before + 5) << row.name << ": pauses";
        row.show();
        frames.end(3);
        EXPECT_EQ(frames.count(), before + 8) << row.name << ": goes on";
    }
}

// The number of receivers of the picture's FrameChanged().
int receiversOf(const std::string& path)
{
    struct Open : QObject {
        using QObject::receivers;
    };
    const std::shared_ptr<PlixPicture> picture = sharedPicture(path);
    int (QObject::*const receivers)(const char*) const = &Open::receivers;
    return (picture.get()->*receivers)(SIGNAL(FrameChanged()));
}

TEST_F(AnimationInView, ConnectsItsItemOnceHoweverOftenItIsPainted)
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
    EXPECT_EQ(receiversOf(path), 1);
    EXPECT_EQ(PlixMovieBudget::GetInstance().UsedBytes() - before, one) << "one QMovie";
}

TEST_F(AnimationInView, PlaysTheBytesThatItOpened)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.gif", gifAnimation({20, 20}, {1, 2}));
    const PictureCard card(image(path));
    ChatView view(*card.card().root());
    // Keeps the picture, so that PlixPicture::Get() does not open the new file.
    AnimationFrames frames(path);
    folder.write("a.gif", gifAnimation({20, 20}, {3, 3, 3}));
    for (int frame = 1; frame <= 6; ++frame) {
        frames.end(1);
        EXPECT_EQ(frames.count(), frame);
        EXPECT_NE(view.at(10, 10), QColor(Qt::blue));
    }
    QFile::remove(QString::fromStdString(path));
    frames.end(4);
    EXPECT_EQ(frames.count(), 10);
}

TEST_F(AnimationInView, IsPlayedOnceForAllItemsOfTheFile)
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

TEST_F(AnimationInView, EndsWithItsLastItem)
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

TEST_F(AnimationInView, StaysOnTheFirstFrameWhenItIsTooLargeToPlay)
{
    const PictureFolder folder;
    const QSize large(2000, 1200);
    const std::string path = folder.write("a.gif",
                                          gifHead(large) + gifDelay(2) + gifFrame(large, 1)
                                              + gifDelay(2) + gifFrame({1, 1}, 2) + ';');
    const PictureCard card(image(path, R"("aspectMode": "cover",)"));
    AnimationFrames frames(path);
    ChatView view(*card.card().root());
    EXPECT_EQ(view.at(50, 50), QColor(Qt::red));
    frames.end(3);
    EXPECT_EQ(frames.count(), 0);
}

TEST_F(AnimationInView, KeepsPlayingWhenItsLastFrameIsCutOff)
{
    const PictureFolder folder;
    QByteArray bytes = gifAnimation({20, 20}, {1, 2, 3});
    bytes.truncate(bytes.size() - 200);
    const std::string path = folder.write("a.gif", bytes);
    const PictureCard card(image(path));
    ChatView view(*card.card().root());
    AnimationFrames frames(path);
    frames.end(1);
    EXPECT_EQ(view.at(10, 10), QColor(Qt::green));
    frames.end(6);
    EXPECT_EQ(frames.count(), 7);
}

} // namespace
} // namespace plix::test
