// The Qt user-interface port: the filters of the file dialogs in Qt form, the captions of the
// boxes, the Spanish buttons of a question, the stand-in used by tests, and the help file.
#include <gtest/gtest.h>

#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <string>

#include "interfaz_qt.h"
#include "pantallas/interfaz_guionada.h"
#include "ventana_apoyo.h"

namespace lomaterra {
namespace {

const char* const kFiltroCod = "Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod";

TEST(FiltroQtPrueba, ConvierteLosFiltrosYEligeElIndicado) {
  struct Caso {
    const char* filtro;
    int índice;
    const char* filtros;
    const char* seleccionado;
    const char* extensión;
  };
  const char* const dos = "Todos los archivos (*.*);;Archivos de coordenadas (*.cod)";
  const Caso casos[] = {
      {kFiltroCod, 2, dos, "Archivos de coordenadas (*.cod)", "cod"},
      {kFiltroCod, 1, dos, "Todos los archivos (*.*)", ""},
      // An index out of range falls back on the first filter.
      {kFiltroCod, 0, dos, "Todos los archivos (*.*)", ""},
      {kFiltroCod, 3, dos, "Todos los archivos (*.*)", ""},
      // A caption without its patterns gets them, since Qt reads them from the caption.
      {"Proyectos|*.cod", 1, "Proyectos (*.cod)", "Proyectos (*.cod)", "cod"},
      {"Textos|*.txt;*.cod", 1, "Textos (*.txt *.cod)", "Textos (*.txt *.cod)", "txt"},
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(std::string(c.filtro) + " " + std::to_string(c.índice));
    const FiltroQt f = ConvertirFiltro(c.filtro, c.índice);
    EXPECT_EQ(S(f.filtros), c.filtros);
    EXPECT_EQ(S(f.seleccionado), c.seleccionado);
    EXPECT_EQ(S(f.extensión), c.extensión);
  }
}

class InterfazPrueba : public ::testing::Test {
 protected:
  void SetUp() override { pruebas::Aplicación(); }
};

TEST_F(InterfazPrueba, LasCajasLlevanElTítuloDadoOElNombreDelPrograma) {
  EXPECT_EQ(InterfazQt::TítuloDeCaja(""), "Lomaterra");
  EXPECT_EQ(InterfazQt::TítuloDeCaja("Información requerida"), "Información requerida");
  auto pregunta = CrearCaja("¿Desea recalcular?", "", true, nullptr);
  EXPECT_EQ(pregunta->windowTitle(), "Lomaterra");
  EXPECT_EQ(pregunta->text(), "¿Desea recalcular?");
  QStringList botones;
  for (QAbstractButton* b : pregunta->buttons()) botones << b->text();
  botones.sort();
  EXPECT_EQ(botones, (QStringList{"&No", "&Sí"}));
  auto mensaje = CrearCaja("Texto", "Título", false, nullptr);
  ASSERT_EQ(mensaje->buttons().size(), 1);
  EXPECT_EQ(mensaje->buttons().front()->text(), "Aceptar");
}

// The real boxes, answered by a timer that presses a button of the box once it is up.
TEST_F(InterfazPrueba, UnaPreguntaRespondeSíONoSegúnElBotón) {
  InterfazQt ui;
  for (const auto& [botón, esperado] : {std::pair{"BotónSí", true}, std::pair{"BotónNo", false}}) {
    const QString nombre = QString::fromUtf8(botón);
    QTimer::singleShot(0, [nombre] {
      if (auto* caja = qobject_cast<CajaDeMensaje*>(QApplication::activeModalWidget()))
        if (auto* b = caja->findChild<QPushButton*>(nombre)) b->click();
    });
    EXPECT_EQ(ui.Pregunta("¿Es correcto?", "Pregunta"), esperado) << botón;
  }
}

TEST_F(InterfazPrueba, ConUnSustitutoLasCajasYLosEstadosVanAél) {
  InterfazGuionada guion("N");
  InterfazQt ui;
  ui.Sustituto(&guion);
  QString estado;
  ui.AlEstado([&](const QString& t) { estado = t; });
  ui.Mensaje("Debe dar la información del proyecto. Entre al menú 'Archivo'",
             "Información requerida");
  EXPECT_FALSE(ui.Pregunta("No ha guardado los datos actuales, ¿desea guardarlos?"));
  ui.Estado("Listo.");
  EXPECT_EQ(estado, "Listo.");
  EXPECT_FALSE(ui.ElegirArchivoAbrir(kFiltroCod, 2).has_value());
  ui.Ayuda("AYUDALOMATERRA.HLP");
  std::vector<std::string> líneas;
  for (const auto& a : guion.Transcripción()) líneas.push_back(InterfazGuionada::Línea(a));
  const std::vector<std::string> esperadas = {
      "[mensaje] Información requerida | Debe dar la información del proyecto. Entre al menú "
      "'Archivo'",
      "[pregunta]  | No ha guardado los datos actuales, ¿desea guardarlos? -> N",
      "[estado] Listo.",
      "[archivo] Abrir | ",
      "[ayuda] AYUDALOMATERRA.HLP",
  };
  EXPECT_EQ(líneas, esperadas);
}

TEST_F(InterfazPrueba, LaAyudaSeMuestraEnUnaSolaVentanaConLaGuía) {
  QWidget ventana;
  InterfazQt ui(&ventana);
  ui.Ayuda("AYUDALOMATERRA.HLP");
  ui.Ayuda("AYUDALOMATERRA.HLP");  // asked again: the same window comes forward
  const auto ayudas = ventana.findChildren<QDialog*>("VentanaAyuda");
  ASSERT_EQ(ayudas.size(), 1);
  EXPECT_TRUE(ayudas.front()->isVisible());
  auto* texto = ayudas.front()->findChild<QTextBrowser*>("TextoAyuda");
  ASSERT_NE(texto, nullptr);
  const QString guía = texto->toPlainText();
  for (const char* tema : {"Teoría: las fórmulas de cada método", "Fellenius", "Bishop", "Janbu",
                           "Leshchinsky", "Información del proyecto", "ton/m2", "Guardar"})
    EXPECT_TRUE(guía.contains(QString::fromUtf8(tema))) << tema;
  EXPECT_TRUE(InterfazQt::BuscarAyuda("NOEXISTE.HLP").isEmpty());
  EXPECT_FALSE(guía.contains("<h2>"));  // shown as a document, not as its markup
  // A link of the contents takes the reader to its section.
  QApplication::processEvents();
  texto->setSource(QUrl("#teoria"));
  QApplication::processEvents();
  EXPECT_GT(texto->verticalScrollBar()->value(), 0);
  ayudas.front()->close();
}

}  // namespace
}  // namespace lomaterra
