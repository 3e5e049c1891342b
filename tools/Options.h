#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace plix::tool {

// How a host would show the card.
struct CardOptions {
    // Of the pictures; empty for the scale of what is painted.
    std::optional<float> dpi;
    QString language;
    int from = 0;
    std::optional<int> height;
    QStringList highlight;
    QString background;
    bool markup = false;
    bool mobileOnlyCheck = true;
    int wrapMode = 4;
    QMap<QString, QString> wordings;
    // Where pictures are; empty for none.
    QString images;
};

enum class Command { Render, Layout, Gallery };

struct Options {
    Command command = Command::Render;
    QString input;
    QString output;
    double scale = 2;
    CardOptions card;
};

} // namespace plix::tool
