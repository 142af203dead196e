#include "salida_lote.h"

#include <QGuiApplication>
#include <cstdlib>

#include "informe_qt.h"
#include "pintor.h"
#include "proyecto/proyecto.h"
#include "salida/graficos.h"
#include "salida/formas_modales.h"
#include "salida/malla_resultados.h"
#include "salida/informe.h"
#include "salida/resumen.h"

namespace lomaterra {

namespace {

// The offscreen platform complains of a missing runtime folder that a batch run never needs.
void Mensajes(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto) {
  if (texto.startsWith(QLatin1String("QStandardPaths:"))) return;
  qInstallMessageHandler(nullptr);
  qt_message_output(tipo, contexto, texto);
  qInstallMessageHandler(Mensajes);
}

}  // namespace

void PrepararDibujoSinVentana() {
  if (QCoreApplication::instance()) return;
  qInstallMessageHandler(Mensajes);
  if (!std::getenv("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static char nombre[] = "lomaterra-lote";
  static char* argv[] = {nombre, nullptr};
  new QGuiApplication(argc, argv);  // lives until the program ends
}

bool EscribirInformeDeResultados(const Proyecto& p, const std::string& ruta, std::string& error) {
  if (p.TipoDeAnálisis == "F" && p.CálculoHecho && p.Malla.NúmeroDeIteración >= 1) {
    PrepararDibujoSinVentana();
    QString e;
    if (!EscribirInformePDF(InformeElementosFinitos(p), QString::fromStdString(ruta), &e)) {
      error = e.toStdString();
      return false;
    }
    return true;
  }
  if (!HayResultados(p)) {
    error = "No hay resultados de un cálculo por equilibrio límite para el informe " + ruta + ".";
    return false;
  }
  PrepararDibujoSinVentana();
  QString e;
  if (!EscribirInformePDF(InformeDeResultados(p), QString::fromStdString(ruta), &e)) {
    error = e.toStdString();
    return false;
  }
  return true;
}

bool EscribirFiguraDelMenú(const Proyecto& p, const std::string& nombre, const std::string& ruta,
                           std::string& error) {
  if (EsFiguraFormaModal(nombre)) {
    const long modo = ModoDeFiguraFormaModal(p, nombre);
    if (error = DefectoDeLaFormaModal(p, modo); !error.empty()) return false;
    PrepararDibujoSinVentana();
    QString e;
    if (!ExportarFigura(FiguraFormaModal(p, modo), QString::fromStdString(ruta), &e)) {
      error = e.toStdString();
      return false;
    }
    return true;
  }
  if (EsFiguraDeMalla(nombre)) {
    if (FiguraDeMallaNecesitaResultados(nombre) && (!p.CálculoHecho || p.Malla.NúmeroDeIteración < 1)) {
      error = "No hay resultados de un cálculo de esfuerzos por elementos finitos para la figura " + nombre + ".";
      return false;
    }
    PrepararDibujoSinVentana();
    QString e;
    if (!ExportarFigura(FiguraDeMalla(p, nombre), QString::fromStdString(ruta), &e)) {
      error = e.toStdString();
      return false;
    }
    return true;
  }
  const auto& nombres = NombresDeGráficos();
  bool conocido = false;
  for (const auto& n : nombres) conocido |= n == nombre;
  if (!conocido) {
    error = "No hay una figura llamada " + nombre + ". Las figuras son:";
    for (const auto& n : nombres) error += " " + n;
    return false;
  }
  if (nombre != "GráficoGeometría" && !HayResultados(p)) {
    error = "No hay resultados de un cálculo por equilibrio límite para la figura " + nombre + ".";
    return false;
  }
  PrepararDibujoSinVentana();
  QString e;
  if (!ExportarFigura(FiguraGráfico(p, nombre), QString::fromStdString(ruta), &e)) {
    error = e.toStdString();
    return false;
  }
  return true;
}

bool LeerArgumentoFigura(const std::string& argumento, std::string& nombre, std::string& ruta) {
  const auto igual = argumento.find('=');
  if (igual == std::string::npos || igual == 0 || igual + 1 >= argumento.size()) return false;
  nombre = argumento.substr(0, igual);
  ruta = argumento.substr(igual + 1);
  return true;
}

}  // namespace lomaterra
