// Draws the pictures of the example cards:
//
//     plix_example_images FOLDER
#include "Animations.h"
#include "Icons.h"
#include "Scenes.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QString>

#include <cstdio>

namespace {

class Folder {
public:
    explicit Folder(const QString& path)
        : folder_(path)
    {
    }

    void save(const char* name, const QImage& image)
    {
        constexpr int kQuality = 80; // of the JPEG file; PNG is lossless
        const QString path = pathOf(name);
        countFailure(
            name, image.save(path, nullptr, path.endsWith(QLatin1String(".jpg")) ? kQuality : -1));
    }

    void save(const char* name, const QByteArray& bytes)
    {
        QFile file(pathOf(name));
        countFailure(name, file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    int failures() const { return failures_; }

private:
    QString pathOf(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    void countFailure(const char* name, bool isWritten)
    {
        if (isWritten)
            return;
        ++failures_;
        std::fprintf(stderr, "%s cannot be written\n", name);
    }

    QDir folder_;
    int failures_ = 0;
};

void saveScenes(Folder& folder)
{
    folder.save("coffee.png", drawCoffee());
    folder.save("skyline.jpg", drawSkyline());
    folder.save("mountain.png", drawMountain());
    folder.save("map.png", drawMap());
    folder.save("noodles.png", drawNoodles());
    folder.save("concert.png", drawConcert());
    folder.save("headphones.png", drawHeadphones());
    folder.save("plant.png", drawPlant());
    folder.save("album.png", drawAlbum());
    folder.save("poster_en.png", drawPoster(QStringLiteral("THE FAR SHORE")));
    folder.save("poster_ko.png", drawPoster(QString::fromUtf8("먼 바닷가")));
    folder.save("logo.png", drawLogo());
    folder.save("avatar_ann.png", drawAvatar(0xCDE7D8, 0x6B3F22, 0x2E7D6B));
    folder.save("avatar_ben.png", drawAvatar(0xD6E0F5, 0x2B2B33, 0x3F51B5));
    folder.save("avatar_cho.png", drawAvatar(0xF7DCE4, 0x1B1B1B, 0xC2185B));
}

void saveIcons(Folder& folder)
{
    folder.save("star_full.png", drawStar(1));
    folder.save("star_half.png", drawStar(0.5));
    folder.save("star_empty.png", drawStar(0));
    folder.save("pin.png", drawPin());
    folder.save("clock.png", drawClock());
    folder.save("check.png", drawCheck());
    folder.save("cross.png", drawCross());
    folder.save("sun.png", drawSun());
    folder.save("cloud.png", drawCloud());
    folder.save("rain.png", drawRain());
    folder.save("phone.png", drawPhone());
    folder.save("note.png", drawNote());
    folder.save("badge.png", drawBadge());
}

void saveAnimations(Folder& folder)
{
    folder.save("equalizer.gif", drawEqualizer());
    folder.save("ring.gif", drawRing());
    folder.save("flag.gif", drawFlag());
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "Usage: plix_example_images FOLDER\n");
        return 2;
    }
    Folder folder(QString::fromLocal8Bit(argv[1]));
    saveScenes(folder);
    saveIcons(folder);
    saveAnimations(folder);
    return folder.failures() == 0 ? 0 : 1;
}
