// Files that are cut off, empty, or not pictures.
#include "support/RowName.h"
#include "ui/image/AnimationFrames.h"
#include "ui/image/ChatView.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"

#include <ostream>

namespace plix::test {
namespace {

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
    AnimationFrames frames(path);
    ChatView view(*card.card().root());
    view.resetPaints();
    frames.end(3);
    EXPECT_EQ(view.paints(), 0);
    EXPECT_EQ(frames.count(), 0);
    const int complaints = QtMessagesIgnored::count();
    for (int i = 0; i < 20; ++i) {
        card.item().update();
        deliverEvents();
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
    RowName());

} // namespace
} // namespace plix::test
