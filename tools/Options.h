#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace plix::tool {

constexpr int kMaximumCardHeight = 100000;

// The host's settings for a card.
struct CardOptions {
    // Device pixels per logical pixel, for images; the scale of the picture if empty.
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
    // The folder of the images; no images if empty.
    QString images;

    bool operator==(const CardOptions&) const = default;
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
