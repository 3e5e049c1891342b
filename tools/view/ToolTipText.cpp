#include "view/ToolTipText.h"

#include <QString>

namespace plix::tool {

QString toolTipOf(const QString& text)
{
    return QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

} // namespace plix::tool
