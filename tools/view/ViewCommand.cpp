#include "view/ViewCommand.h"

#include "view/ViewWindow.h"

#include <QApplication>
#include <QSettings>

namespace plix::tool {

ExitCode runView(const ViewOptions& options)
{
    QSettings store(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("plix"),
                    QStringLiteral("view"));
    ViewWindow window(options, store);
    window.show();
    QApplication::exec();
    return ExitCode::Done;
}

} // namespace plix::tool
