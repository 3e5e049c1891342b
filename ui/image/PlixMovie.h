#pragma once

#include "ui/image/PlixPictureFile.h"

#include <QBuffer>
#include <QImage>
#include <QMovie>

// A picture that is decoded and, if it is animated, played. It reads the bytes that
// were checked and not the file, which may have been replaced by the time an
// animation starts over.
class PlixMovie : public QObject {
    Q_OBJECT

public:
    // Decodes the first frame.
    explicit PlixMovie(const PlixPictureFile& file);
    ~PlixMovie() override;

    // The current frame. Null if no frame can be decoded.
    QImage Frame() const { return movie_.currentImage(); }
    bool IsAnimated() const;
    // Whether it is neither paused nor at its end.
    bool IsPlaying() const { return movie_.state() == QMovie::Running; }
    // Roughly the memory that it needs.
    qint64 Bytes() const { return bytes_; }

    // Call this when the current frame is painted. A movie pauses when its frames are
    // not painted, and continues with this call.
    void MarkPainted();

Q_SIGNALS:
    void FrameChanged();
    // Other movies need its memory: delete it.
    void Evicted();

private:
    void OnFrame();

    QBuffer buffer_;
    // A child, so that tests find it and end its frames without waiting.
    QMovie movie_ {this};
    qint64 bytes_;
    bool isPainted_ = true;
};
