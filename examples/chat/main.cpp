// Opens the chat window with example cards:
//
//     plix_chat CARDS PICTURES [--messages NUMBER] [--screenshot FILE.png]
#include "ChatWindow.h"
#include "PictureServer.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTimer>

#include <cstdlib>
#include <iostream>

namespace {

// The last messages of the conversation. Earlier ones are all the cards, over and over.
const std::vector<std::pair<const char*, const char*>> kLastMessages = {
    {"Tamsin", "Lunch tomorrow? The place at the old cinema is open again."},
    {"Food Bot", "coffee_shop.json"},
    {nullptr, "See you there at one!"},
    {"Release Bot", "mentions.json"},
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
        const QString name = names[i / 2 % names.size()];
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

// Saves a picture of the window, with all its pictures, and ends the program.
void takeScreenshot(ChatWindow& window, const QString& path)
{
    auto* const timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, &window, [&window, path] {
        if (!window.isLoadingPictures())
            QCoreApplication::exit(window.grab().save(path) ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    timer->start(200);
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
