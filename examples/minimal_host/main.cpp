#include <plix/Plix.h>

#include <QApplication>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QGraphicsView>

#include <fstream>
#include <iostream>
#include <iterator>

void onClick(PlixDataController*, ST_ACTION& action, void*)
{
    std::cout << action.type << ' ' << action.uri << action.data << std::endl;
}

// A real host would download the picture; this one has the pictures in a folder.
// Cards are untrusted, so only plain file names may become paths.
std::string onDownload(PlixDataController*, const std::string& url, void* folder)
{
    const std::string name = url.substr(url.rfind('/') + 1);
    std::string path = static_cast<const char*>(folder) + ('/' + name);
    const bool isPlain = name.find_first_of("\\:?*") == std::string::npos && name[0] != '.';
    if (isPlain && QFileInfo(QString::fromStdString(path)).isFile())
        return path;
    std::cerr << "No picture for " << url << ": " << path << std::endl;
    return std::string();
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const char* path = argc > 1 ? argv[1] : "examples/cards/receipt.json";
    std::ifstream file(path);
    const std::string json(std::istreambuf_iterator<char>(file), {});
    if (json.empty()) {
        std::cerr << "Cannot read the card " << path << std::endl;
        return 1;
    }
    char folder[] = "examples/images";

    Plix_SetWiteLogCallback([](const char* line) { std::cerr << line << std::endl; });
    PlixDataController* card = Plix_CreateController();
    Plix_SetClickCallBack(card, &onClick, nullptr);
    Plix_SetDownloadCallBack(card, &onDownload, argc > 2 ? argv[2] : folder);
    Plix_InitData(card, json);

    QGraphicsScene scene;
    scene.addItem(Plix_CreateQGraphicsItem(card));
    QGraphicsView view(&scene);
    Plix_SetDpi(card, static_cast<float>(view.devicePixelRatioF()));
    view.show();
    const int result = application.exec();

    scene.clear(); // deletes the card's item
    Plix_Free(card);
    return result;
}
