// The desk as a user meets it: boxes that show their whole text, Qt's own dialogs in Spanish, the
// save dialog on the project's file, the drawing that follows the panel, and every sample giving
// at the desk (real boxes answered by hand, charts open and repainting) what the batch runner gives.
#include <gtest/gtest.h>

#include <QApplication>
#include <QChartView>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "interfaz_qt.h"
#include "pantallas/comandos_archivo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/comandos.h"
#include "proyecto/proyecto.h"
#include "salida/graficos.h"
#include "ventana_apoyo.h"
#include "ventana_principal_qt.h"
#include "vista_grafico_qt.h"
#include "vista_seccion.h"

namespace lomaterra {
namespace {

class Escritorio : public ::testing::Test {
 protected:
  void SetUp() override { pruebas::Aplicación(); }
  static void Foto(QWidget& w, const char* nombre) {
    QDir().mkpath("capturas_escritorio");
    w.grab().save(QString("capturas_escritorio/%1.png").arg(nombre));
  }
};

// 600 characters: the box wraps them all at its width and grows in height; 8000 scroll.
TEST_F(Escritorio, UnaCajaEnvuelveTodoSuTextoYUnTextoMuyLargoSeDesplaza) {
  std::string texto;
  while (texto.size() < 600)
    texto += "El peso unitario saturado es mayor que el peso unitario húmedo. Observe bien los "
             "valores antes de salir de esta pantalla. ";
  for (const auto& [largo, nombre] : {std::pair{std::size_t{600}, "caja_600"},
                                      std::pair{std::size_t{8000}, "caja_8000"}}) {
    std::string t = texto;
    while (t.size() < largo) t += texto;
    t.resize(largo);
    auto caja = CrearCaja(t, "", true, nullptr);
    caja->show();
    QApplication::processEvents();
    auto* etiqueta = caja->findChild<QLabel*>("TextoCaja");
    auto* área = caja->findChild<QScrollArea*>("DesplazamientoCaja");
    ASSERT_TRUE(etiqueta && área);
    EXPECT_TRUE(etiqueta->wordWrap());
    EXPECT_EQ(etiqueta->text(), Q(t));
    // The label is as tall as its wrapped text at its width: nothing is cut.
    EXPECT_GE(etiqueta->height(), etiqueta->heightForWidth(etiqueta->width()));
    EXPECT_LE(caja->width(), 700);
    const bool largoTexto = largo > 600;
    EXPECT_EQ(área->verticalScrollBar()->maximum() > 0, largoTexto) << largo;
    if (!largoTexto) EXPECT_GE(área->height(), etiqueta->height());
    EXPECT_LE(área->height(), CajaDeMensaje::kAltoMáximo);
    Foto(*caja, nombre);
  }
}

TEST_F(Escritorio, LosDiálogosDeQtHablanEspañolYGuardarEmpiezaEnElArchivoDelProyecto) {
  QTranslator* traductor = CargarTraducciónDeQt(*QCoreApplication::instance());
  ASSERT_NE(traductor, nullptr) << "falta el catálogo qtbase_es (paquete qt6-translations-l10n)";
  EXPECT_NE(QFileDialog::tr("Look in:"), "Look in:");
  EXPECT_NE(QCoreApplication::translate("QFileDialog", "File &name:"), "File &name:");

  const QString carpeta = QDir::temp().filePath("lomaterra_escritorio");
  QDir().mkpath(carpeta);
  const QString archivo = QDir(carpeta).filePath("presa.cod");
  InterfazQt ui;
  ui.AlNombreActual([&] { return archivo; });
  const FiltroQt f =
      ConvertirFiltro("Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod", 2);
  QFileDialog diálogo(nullptr, "Guardar como", QString(), f.filtros);
  diálogo.setOption(QFileDialog::DontUseNativeDialog, true);
  ui.ConfigurarGuardar(diálogo, f);
  // The program asks about overwriting in its own words; Qt does not ask a second time.
  EXPECT_TRUE(diálogo.testOption(QFileDialog::DontConfirmOverwrite));
  diálogo.show();
  QApplication::processEvents();
  auto* nombre = diálogo.findChild<QLineEdit*>("fileNameEdit");
  ASSERT_NE(nombre, nullptr);
  EXPECT_EQ(nombre->text(), "presa.cod");
  EXPECT_EQ(QDir(diálogo.directory()).absolutePath(), QDir(carpeta).absolutePath());
  Foto(diálogo, "dialogo_guardar");
  diálogo.hide();
  QCoreApplication::removeTranslator(traductor);
  delete traductor;
}

TEST_F(Escritorio, ElDibujoSigueACadaPuntoDelPanel) {
  Proyecto p;
  ReiniciarProyecto(p);
  p.InformaciónDada = true;
  p.Ventana.EntradaCoordenadasAbierta = true;
  VentanaPrincipalQt ventana(p);
  ventana.Refrescar();
  auto* dibujo = dynamic_cast<VistaSección*>(ventana.findChild<QWidget*>("DibujoSección"));
  auto* x = ventana.findChild<QLineEdit*>("TextoX");
  auto* y = ventana.findChild<QLineEdit*>("TextoY");
  auto* agregar = ventana.findChild<QPushButton*>(QString::fromUtf8("BotónAgregar"));
  ASSERT_TRUE(dibujo && x && y && agregar);
  auto puntosDelTalud = [&] {
    for (const auto& t : dibujo->figura().trazos)
      if (t.nombre == "talud") return t.puntos.size();
    return std::size_t{0};
  };
  // Typed as a Spanish user types them: decimal commas.
  const char* puntos[][2] = {{"40", "10"}, {"20,5", "10"}, {"0", "0,25"}};
  std::size_t n = 0;
  for (const auto& [px, py] : puntos) {
    x->setText(px);
    y->setText(py);
    agregar->click();
    EXPECT_EQ(puntosDelTalud(), ++n) << "tras agregar " << px;
  }
  ASSERT_EQ(p.Ventana.ListaCoordenadas.size(), 3u);
  EXPECT_DOUBLE_EQ(p.Ventana.ListaCoordenadas[1].X, 20.5);
  EXPECT_DOUBLE_EQ(p.Ventana.ListaCoordenadas[2].Y, 0.25);
  // Deleting a point takes it off the drawing at once.
  p.Ventana.FilaSeleccionada = 2;
  ventana.Refrescar();
  ventana.findChild<QPushButton*>(QString::fromUtf8("BotónBorrar"))->click();
  EXPECT_EQ(puntosDelTalud(), 2u);
}

// ------------------------------------------------------------------------------------------------
// The desk against the batch runner

// Answers the real boxes of the desk as the scripted port answers its questions, and keeps the
// text of every box it saw.
class Contestador {
 public:
  Contestador(const std::string& respuestas, bool porDefecto) : porDefecto_(porDefecto) {
    for (char c : respuestas) respuestas_.push_back(c == 'S');
    QObject::connect(&reloj_, &QTimer::timeout, [this] { Mirar(); });
    reloj_.start(0);
  }
  std::vector<std::string> vistas;

 private:
  void Mirar() {
    auto* caja = qobject_cast<CajaDeMensaje*>(QApplication::activeModalWidget());
    if (!caja || caja == últimaCaja_) return;
    últimaCaja_ = caja;
    vistas.push_back(S(caja->text()));
    const char* botón = "BotónAceptar";
    if (caja->findChild<QPushButton*>(QString::fromUtf8("BotónSí"))) {
      bool sí = porDefecto_;
      if (!respuestas_.empty()) {
        sí = respuestas_.front();
        respuestas_.pop_front();
      }
      botón = sí ? "BotónSí" : "BotónNo";
    }
    caja->findChild<QPushButton*>(QString::fromUtf8(botón))->click();
  }
  std::deque<bool> respuestas_;
  bool porDefecto_;
  QTimer reloj_;
  QObject* últimaCaja_ = nullptr;
};

struct Método {
  const char* nombre;
  Acción acción;
};

TEST_F(Escritorio, CadaMuestraDaEnElEscritorioElFactorDelLote) {
  const Método métodos[] = {{"Fellenius", MétodoFellenius},
                            {"Bishop", MétodoBishop},
                            {"Janbu", MétodoJanbu},
                            {"Leshchinsky", ProcesoIterativoEnSuelos}};
  std::vector<std::string> muestras;
  for (const auto& e : std::filesystem::directory_iterator(LOMATERRA_EJEMPLOS))
    if (e.path().extension() == ".cod") muestras.push_back(e.path().string());
  std::sort(muestras.begin(), muestras.end());
  ASSERT_GE(muestras.size(), 5u);

  // One program run: one project, every sample opened in turn, the charts of each finished
  // calculation left open (they repaint while the next boxes wait).
  Proyecto escritorio;
  InterfazQt ui;
  ui.AlMostrar([](VistaPantalla&) { QApplication::processEvents(); });
  std::vector<std::unique_ptr<QWidget>> gráficos;
  for (const auto& muestra : muestras)
    for (const Método& m : métodos)
      for (const auto& [respuestas, porDefecto] :
           {std::pair{"N", true}, std::pair{"NNNS", true}, std::pair{"NSNNS", true}}) {
        SCOPED_TRACE(muestra + " " + m.nombre + " " + respuestas);
        Proyecto lote;
        InterfazGuionada abrir;
        AbrirArchivoDeProyecto(lote, abrir, muestra);
        InterfazGuionada guion(respuestas, porDefecto);
        EjecutarComando(m.acción, lote, guion);

        AbrirArchivoDeProyecto(escritorio, abrir, muestra);
        Contestador mano(respuestas, porDefecto);
        EjecutarComando(m.acción, escritorio, ui);

        std::vector<std::string> esperadas;
        for (const auto& a : guion.Transcripción())
          if (a.tipo == "mensaje" || a.tipo == "pregunta") esperadas.push_back(a.texto);
        EXPECT_EQ(mano.vistas, esperadas);
        EXPECT_EQ(escritorio.NúmeroIteraciones, lote.NúmeroIteraciones);
        if (lote.NúmeroIteraciones >= 1)
          EXPECT_EQ(escritorio.HistoriaIteraciones.FactorDeSeguridad.Leer(escritorio.NúmeroIteraciones),
                    lote.HistoriaIteraciones.FactorDeSeguridad.Leer(lote.NúmeroIteraciones));
        if (escritorio.CálculoHecho && gráficos.size() < 6) {
          gráficos.emplace_back(
              CrearVistaGráfico(FiguraGráfico(escritorio, "GráficoEsfuerzoNormalesTotales"), nullptr));
          gráficos.back()->show();
        }
      }
}

}  // namespace
}  // namespace lomaterra
