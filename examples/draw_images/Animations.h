#pragma once

#include <QByteArray>

// Animated GIF files.
QByteArray drawEqualizer();
QByteArray drawRing();
QByteArray drawFlag();
