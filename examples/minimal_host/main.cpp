#include <plix/Plix.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>

#include <fstream>
#include <iostream>
#include <iterator>

void onClick(PlixDataController*, ST_ACTION& action, void*)
{
    std::cout << action.type << ' ' << action.uri << action.data << std::endl;
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    std::ifstream file(argc > 1 ? argv[1] : "examples/cards/receipt.json");
    const std::string json(std::istreambuf_iterator<char>(file), {});

    Plix_SetWiteLogCallback([](const char* line) { std::cerr << line << std::endl; });
    PlixDataController* card = Plix_CreateController();
    Plix_SetClickCallBack(card, &onClick, nullptr);
    Plix_InitData(card, json);

    QGraphicsScene scene;
    scene.addItem(Plix_CreateQGraphicsItem(card));
    QGraphicsView view(&scene);
    view.show();
    const int result = application.exec();

    scene.clear(); // the item first, then its controller
    Plix_Free(card);
    return result;
}
