#pragma once

#include <QImage>

// Small pictures with a transparent background.
QImage drawStar(double filled); // 0 to 1, from the left
QImage drawPin();
QImage drawClock();
QImage drawCheck();
QImage drawCross();
QImage drawSun();
QImage drawCloud();
QImage drawRain();
QImage drawPhone();
QImage drawNote();
QImage drawBadge();
