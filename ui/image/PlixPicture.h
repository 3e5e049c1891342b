#pragma once

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class PlixMovie;

// A picture file, as items show it. Still and animated pictures take one path:
// both are opened as a movie, of which a still one is rid of at once. Files are
// opened when a picture is painted, not before, and again when it is painted in
// a size that it was not painted in lately.
class PlixPicture : public QObject {
    Q_OBJECT

public:
    // How many pixels a scaled picture has at most.
    static constexpr qint64 kMaximumScaledPixels = qint64 {2048} * 2048;

    // The picture in this file, which need not be there yet. All who show the
    // same file share it: a card may name one a thousand times. If the file is
    // another one than when it was opened, it is opened again.
    static std::shared_ptr<PlixPicture> Get(const QString& path);
    ~PlixPicture() override;

    QString fileName() const { return fileName_; }

    // What size to scale a picture of this size to.
    using Fit = std::function<QSize(const QSize& picture)>;
    // The middle of the frame on show, as much of it as has the proportions of
    // the size that `fit` answers, in that size. Null when there is no picture,
    // or nothing in it.
    QImage scaled(const Fit& fit);

Q_SIGNALS:
    // There is another frame to paint.
    void frameChanged();

private:
    // What tells one version of a file from the next.
    struct FileVersion {
        qint64 bytes;
        QDateTime modified;

        bool operator==(const FileVersion&) const = default;
    };

    explicit PlixPicture(const QString& path);

    FileVersion currentVersion() const;
    void openAgainIfChanged();
    QImage open();
    void play(std::unique_ptr<PlixMovie> movie);
    void stop();
    void onFrameChanged();

    const QString fileName_;
    // Of the file when it was opened, or could not be.
    std::optional<FileVersion> opened_;
    QSize size_; // empty while there is no picture
    std::unique_ptr<PlixMovie> movie_;
};
