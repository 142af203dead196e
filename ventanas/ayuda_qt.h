// The help viewer: the help file of the program in a browser window.
#pragma once

#include <QString>

class QDialog;
class QWidget;

namespace lomaterra {

// A window that shows the help file at `ruta` (HTML, or plain text when it is not).
QDialog* CrearVentanaAyuda(const QString& ruta, QWidget* padre);

}  // namespace lomaterra
