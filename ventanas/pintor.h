// Draws a figure of the core with QPainter, fitted to a rectangle.
#pragma once

#include <QPainter>
#include <QRectF>

#include "salida/figura.h"

namespace lomaterra {

void DibujarFigura(QPainter& pintor, const Figura& figura, const QRectF& marco);

}  // namespace lomaterra
