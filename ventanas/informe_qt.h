// Draws the pages of a report (nucleo/salida/informe.h) on a paged device: a PDF file or a
// printer. Every page carries a header with the project information and its number.
#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>

#include "salida/informe.h"

namespace lomaterra {

// The lines and characters of body text that fit the writing area of the device.
MedidasPágina MedidasDelDispositivo(const QPaintDevice& dispositivo, const QRectF& área);

// Paints every page of the report with a painter already begun on the device (QPdfWriter or
// QPrinter). Returns the number of pages.
int PintarInforme(const Informe& informe, QPagedPaintDevice& dispositivo, QPainter& pintor);

// Writes the report to a PDF file (A4 portrait). Nothing is left at `ruta` unless the whole file
// was written; `páginas` receives the number of pages.
bool EscribirInformePDF(const Informe& informe, const QString& ruta, QString* error = nullptr,
                        int* páginas = nullptr);

}  // namespace lomaterra
