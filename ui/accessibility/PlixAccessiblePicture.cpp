#include "ui/accessibility/PlixAccessiblePicture.h"

QString PlixAccessiblePicture::Name() const
{
    PlixBaseUI* const ui = Ui();
    return ui ? ui->ActionName() : QString();
}
