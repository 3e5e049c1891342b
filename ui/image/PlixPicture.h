#pragma once

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

class PlixMovie;

// A picture file, as an item shows it. Still and animated pictures take one
// path: both are opened as a movie, of which a still one is rid of at once.
// Files are opened when a picture is painted, not before, and again when it is
// painted in another size.
class PlixPicture : public QObject {
    Q_OBJECT

public:
    // How many pixels a scaled picture has at most.
    static constexpr qint64 kMaximumScaledPixels = 2048 * 2048;

    PlixPicture();
    ~PlixPicture() override;

    // The file need not be there yet: it is looked for whenever it is asked for.
    void setFileName(const QString& path);
    QString fileName() const { return fileName_; }

    // In its own pixels; empty while there is no picture.
    QSize size();

    // The middle of the frame on show, as much of it as has the proportions of
    // `target`, in that size. Null when there is no picture, or nothing in it.
    QImage scaledTo(const QSize& target);

Q_SIGNALS:
    // There is another frame to paint.
    void frameChanged();

private:
    // What tells one version of a file from the next.
    struct FileVersion {
        qint64 size = -1;
        QDateTime modified;
    };

    QImage currentFrame();
    QImage open();
    void play(std::unique_ptr<PlixMovie> movie);
    void stop();
    void onFrameChanged();
    bool isKnownAsUnreadable() const;
    void noteAsUnreadable();

    QString fileName_;
    FileVersion unreadable_;
    QSize size_;
    // Decoded to learn the size, and not scaled yet.
    QImage firstFrame_;
    std::unique_ptr<PlixMovie> movie_;
    // Whether the animation lost its movie and is to play again.
    bool wasEvicted_ = false;
};
