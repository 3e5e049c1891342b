#pragma once

#include <QColor>
#include <QImage>
#include <QString>

// Pictures like photographs, products, faces and the like.
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
QImage drawAvatar(const QColor& ground, const QColor& hair, const QColor& shirt);
