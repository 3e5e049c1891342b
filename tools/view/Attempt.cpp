#include "view/Attempt.h"

#include "ToolError.h"

#include <QMessageBox>

namespace plix::tool {

bool attempt(QWidget& window, const std::function<void()>& function)
{
    try {
        function();
        return true;
    } catch (const ToolError& error) {
        QMessageBox box(QMessageBox::Warning, QStringLiteral("Plix"), error.message,
                        QMessageBox::Ok, &window);
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return false;
    }
}

} // namespace plix::tool
