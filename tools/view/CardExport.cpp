#include "view/CardExport.h"

#include "CardPainter.h"
#include "OutputFile.h"
#include "view/Attempt.h"
#include "view/CardPreview.h"
#include "view/CardView.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>

namespace plix::tool {
namespace {

// Device pixels per logical pixel, as of "plix render".
constexpr double kPictureScale = 2;

} // namespace

CardExport::CardExport(QWidget& window, CardView& view, CardPreview& preview)
    : window_(window)
    , view_(view)
    , preview_(preview)
{
}

// The card in its own size, also while the window shows it in another one.
QImage CardExport::picture()
{
    QGraphicsObject* const card = view_.card();
    if (!card)
        return {};
    const double scale = card->scale();
    const double ratio = preview_.pixelRatio();
    card->setScale(1);
    preview_.setPixelRatio(kPictureScale);
    QImage image = paintCard(*card->scene(), *card, kPictureScale).image;
    card->setScale(scale);
    preview_.setPixelRatio(ratio);
    return image;
}

void CardExport::copyPicture()
{
    QApplication::clipboard()->setImage(picture());
    Q_EMIT told(QStringLiteral("Copied the picture"));
}

void CardExport::copyText()
{
    if (view_.card())
        QApplication::clipboard()->setText(view_.card()->property("plainText").toString());
}

bool CardExport::savePicture(const QString& path)
{
    return attempt(window_, [&] {
        writePng(path, picture());
        Q_EMIT told(QStringLiteral("Exported"));
    });
}

void CardExport::askForPicture(const QString& cardFile)
{
    const QFileInfo file(cardFile.isEmpty() ? QStringLiteral("card") : cardFile);
    const QString path = QFileDialog::getSaveFileName(
        &window_, QStringLiteral("Export the picture"),
        file.dir().filePath(file.completeBaseName() + QStringLiteral(".png")),
        QStringLiteral("Pictures (*.png)"));
    if (!path.isEmpty())
        savePicture(path);
}

} // namespace plix::tool
