#pragma once

#include <QColor>
#include <QImage>
#include <QString>

// Pictures in place of photographs, products and faces.
QImage drawCoffee();
QImage drawSkyline();
QImage drawMountain();
QImage drawMap();
QImage drawNoodles();
QImage drawConcert();
QImage drawHeadphones();
QImage drawPlant();
QImage drawAlbum();
QImage drawPoster(const QString& title);
QImage drawLogo();
QImage drawAvatar(const QColor& background, const QColor& hair, const QColor& shirt);
