#pragma once

#include "ui/image/PlixPictureFile.h"

#include <QBuffer>
#include <QImage>
#include <QMovie>

// A picture that is being played. It plays the bytes that were looked at, not
// the file: that may be another one by the time an animation starts over.
class PlixMovie : public QObject {
    Q_OBJECT

public:
    // Decodes the first frame.
    explicit PlixMovie(const PlixPictureFile& file);
    ~PlixMovie() override;

    // Null when the picture has none that can be decoded.
    QImage frame() const { return movie_.currentImage(); }
    bool isAnimated() const;
    // Whether time passes for it: neither paused nor at its end.
    bool isPlaying() const { return movie_.state() == QMovie::Running; }
    // Roughly what it takes in memory.
    qint64 bytes() const { return bytes_; }

    // The frame has been painted. A movie whose frames are not painted pauses;
    // it goes on from here.
    void seen();

Q_SIGNALS:
    void frameChanged();
    // The room is needed for movies that are being watched: delete it.
    void evicted();

private:
    void onFrame();

    QBuffer buffer_;
    // A child, so that tests find it and end its frames without waiting.
    QMovie movie_ {this};
    qint64 bytes_;
    bool isSeen_ = true;
};
