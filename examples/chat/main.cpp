// Opens the chat window with example cards:
//
//     plix_chat CARDS PICTURES [--messages NUMBER] [--screenshot FILE.png]
#include "ChatWindow.h"
#include "PictureServer.h"

#include <QtWidgets>

#include <cstdlib>
#include <utility>
#include <vector>

namespace {

// The last messages of the conversation. Earlier ones are all the cards, over and over.
const std::vector<std::pair<const char*, const char*>> kLastMessages = {
    {"Release Bot", "mentions.json"},
    {"Tamsin", "Thanks! Lunch tomorrow? The place behind the cinema is open again."},
    {"Food Bot", "coffee_shop.json"},
    {nullptr, "See you there at one!"},
};

QString readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

std::vector<ChatMessage> conversation(const QDir& cards, int length)
{
    std::vector<ChatMessage> messages;
    const QStringList names = cards.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    const int earlier = names.isEmpty() ? 0 : length - static_cast<int>(kLastMessages.size());
    for (int i = 0; i < earlier; ++i) {
        const QString& name = names[i / 2 % names.size()];
        if (i % 2 == 0)
            messages.push_back({QStringLiteral("Maren"), QStringLiteral("%1. Look:").arg(i + 1)});
        else
            messages.push_back({QStringLiteral("Bot"), readFile(cards.filePath(name)), true});
    }
    for (const auto& [sender, words] : kLastMessages) {
        const QString text = QString::fromUtf8(words);
        const bool isCard = text.endsWith(QLatin1String(".json"));
        messages.push_back({sender ? QString::fromUtf8(sender) : QStringLiteral("Me"),
                            isCard ? readFile(cards.filePath(text)) : text, isCard, !sender});
    }
    return messages;
}

// The window as it is, and beside it a dark one that has found a word.
QImage pictureOf(ChatWindow& window)
{
    const QPixmap light = window.grab();
    window.findChild<QCheckBox*>()->setChecked(true);
    auto* const search = window.findChild<QLineEdit*>();
    search->setText(QStringLiteral("release"));
    Q_EMIT search->returnPressed();
    const QPixmap dark = window.grab();
    constexpr int kGap = 24;
    QImage picture(2 * light.width() + kGap, light.height(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawPixmap(0, 0, light);
    painter.drawPixmap(light.width() + kGap, 0, dark);
    return picture;
}

// Saves a picture of the window when its pictures have arrived, and ends the program.
void takeScreenshot(ChatWindow& window, const QString& path)
{
    auto* const timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, &window, [&window, path] {
        if (!window.isLoadingPictures())
            QCoreApplication::exit(pictureOf(window).save(path) ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    timer->start(100);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    QCommandLineParser options;
    options.addPositionalArgument(QStringLiteral("cards"),
                                  QStringLiteral("The folder of the cards."));
    options.addPositionalArgument(QStringLiteral("pictures"),
                                  QStringLiteral("The folder of their pictures."));
    options.addOptions({
        {QStringLiteral("messages"), QStringLiteral("How many messages the chat has."),
         QStringLiteral("number"), QStringLiteral("5000")},
        {QStringLiteral("screenshot"), QStringLiteral("Saves a picture of the window and ends."),
         QStringLiteral("file")},
    });
    options.addHelpOption();
    options.process(application);
    const QStringList folders = options.positionalArguments();
    if (folders.size() != 2)
        options.showHelp(EXIT_FAILURE);

    PictureServer server(folders[1]);
    const QString screenshot = options.value(QStringLiteral("screenshot"));
    if (screenshot.isEmpty()) {
        server.setSlowness(2000);
        server.breakOff(QStringLiteral("skyline.jpg"));
    }
    ChatWindow window(server.url());
    QObject::connect(&window, &ChatWindow::linkClicked, &QDesktopServices::openUrl);
    window.add(conversation(QDir(folders[0]), options.value(QStringLiteral("messages")).toInt()));
    window.show();
    if (!screenshot.isEmpty())
        takeScreenshot(window, screenshot);
    return QApplication::exec();
}
