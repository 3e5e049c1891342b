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
class PlixPictureWork;
struct PlixPictureFile;

// A picture file that items show. Still and animated pictures take one path: both
// are opened as a QMovie; a still picture's is deleted once its frame is decoded. A
// file is opened when it is first painted, and again when it is painted in a size of
// which there is no scaled copy.
class PlixPicture : public QObject {
    Q_OBJECT

public:
    // The picture in this file, which need not exist yet. All items that show a file
    // share its picture: a card may name one a thousand times. If the file has changed
    // since it was opened, it is opened again.
    static std::shared_ptr<PlixPicture> Get(const QString& path);
    ~PlixPicture() override;

    QString FileName() const { return fileName_; }
    // Empty while there is no picture: before it was decoded, and if that failed.
    QSize Size() const { return size_; }
    bool IsAnimated() const { return movie_ != nullptr; }

    // Returns the size to which a picture of the size `picture` is scaled.
    using Fit = std::function<QSize(const QSize& picture)>;
    // The current frame in the size that `fit` returns. If it has other proportions,
    // its middle is cut out. Null if there is no picture, if it cannot be decoded, or if
    // `work` is refused.
    QImage Scaled(const Fit& fit, PlixPictureWork& work);

Q_SIGNALS:
    // Another frame is to be painted.
    void FrameChanged();

private:
    // Differs between one version of a file and the next.
    struct FileVersion {
        qint64 bytes;
        QDateTime modified;

        bool operator==(const FileVersion&) const = default;
    };

    explicit PlixPicture(const QString& path);

    FileVersion CurrentVersion() const;
    void OpenAgainIfChanged();
    // Decoded now or, if it is a still picture that other items show, just before.
    QImage Frame(PlixPictureWork& work);
    QImage Open(PlixPictureWork& work);
    QImage Decode(const PlixPictureFile& file);
    // Whether several items show the picture.
    bool IsShared() const;
    void Play(std::unique_ptr<PlixMovie> movie);
    void Stop();
    void OnFrameChanged();

    const QString fileName_;
    // The version of the file when it was opened, or when opening it failed.
    std::optional<FileVersion> opened_;
    QSize size_;
    // Of reading and decoding the file, as far as it is known.
    qint64 cost_ = 0;
    std::unique_ptr<PlixMovie> movie_;
};
