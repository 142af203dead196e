// lomaterra: the desktop program. One project, reset at start, in one main window; a project file
// given on the command line is opened as the Open command opens it.
#include <QApplication>
#include <QStringList>
#include <clocale>
#include <memory>

#include "icono.h"
#include "interfaz_qt.h"
#include "pantallas/comandos_archivo.h"
#include "proyecto/proyecto.h"
#include "ventana_principal_qt.h"

using namespace lomaterra;

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Lomaterra"));
  QApplication::setWindowIcon(IconoLomaterra());
  // Qt's own dialogs and buttons (the file dialogs above all) speak Spanish, as the program does.
  CargarTraducciónDeQt(app);
  // Numbers are read and written with a point whatever the user's locale.
  std::setlocale(LC_NUMERIC, "C");

  auto proyecto = std::make_unique<Proyecto>();
  ReiniciarProyecto(*proyecto);
  VentanaPrincipalQt ventana(*proyecto);
  const QStringList argumentos = QApplication::arguments();
  if (argumentos.size() > 1) {
    AbrirArchivoDeProyecto(*proyecto, ventana.interfaz(), S(argumentos[1]));
    ventana.Refrescar();
  }
  ventana.show();
  return app.exec();
}
