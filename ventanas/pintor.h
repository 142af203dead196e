// Draws a figure of the core with QPainter, fitted to a rectangle: drawings at equal scales,
// charts with axes, ticks, grid and legend. The same code paints on screen, into a PNG, an SVG,
// a PDF page and a printed page.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QSize>
#include <QString>

#include "salida/figura.h"

namespace lomaterra {

void DibujarFigura(QPainter& pintor, const Figura& figura, const QRectF& marco);

// The data coordinates under a point of the rectangle where the figure was drawn; false outside
// the plotting area.
bool CoordenadasEnFigura(const Figura& figura, const QRectF& marco, const QPaintDevice* dispositivo,
                         QPointF punto, double& x, double& y);

// Writes the figure to a file. Nothing is left at `ruta` unless the whole file was written: the
// text of a failure comes back in `error` (in Spanish) and the function returns false.
bool ExportarPNG(const Figura& figura, const QString& ruta, QString* error = nullptr,
                 QSize tamaño = QSize(1600, 1100));
bool ExportarSVG(const Figura& figura, const QString& ruta, QString* error = nullptr,
                 QSize tamaño = QSize(1200, 825));
// One A4 page in landscape.
bool ExportarPDF(const Figura& figura, const QString& ruta, QString* error = nullptr);
// By the extension of the path: .png, .svg or .pdf.
bool ExportarFigura(const Figura& figura, const QString& ruta, QString* error = nullptr);

}  // namespace lomaterra
