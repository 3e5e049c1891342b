// Linked into a host by the tests of the package: prints what the host's window shows,
// and ends the host.
#include <QApplication>
#include <QGraphicsView>
#include <QTimer>

#include <iostream>

namespace {

void printCard()
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const auto* view = qobject_cast<const QGraphicsView*>(window);
        if (view == nullptr || !view->isVisible())
            continue;
        const QSizeF size = view->scene()->itemsBoundingRect().size();
        std::cout << "A card of " << size.width() << " x " << size.height() << std::endl;
    }
    QCoreApplication::quit();
}

// Called by the constructor of the application.
void startProbe()
{
    QTimer::singleShot(0, &printCard);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startProbe)
