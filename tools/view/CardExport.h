#pragma once

#include <QImage>
#include <QObject>
#include <QString>

class QWidget;

namespace plix::tool {

class CardPreview;
class CardView;

// Brings the card that is shown out of the window: as a picture, or as text.
class CardExport : public QObject {
    Q_OBJECT

public:
    // All must outlive this, or end with it.
    CardExport(QWidget& window, CardView& view, CardPreview& preview);

    // Returns whether it was done. Tells the user if it fails.
    bool savePicture(const QString& path);
    // Asks for the file. The card has this one; empty for a new card.
    void askForPicture(const QString& cardFile);
    void copyPicture();
    void copyText();

Q_SIGNALS:
    // Something to show for a moment.
    void told(const QString& message);

private:
    QImage picture();

    QWidget& window_;
    CardView& view_;
    CardPreview& preview_;
};

} // namespace plix::tool
