// The Qt user-interface port: the filters of the file dialogs, the boxes and their Spanish
// buttons, the stand-in used by tests, the help file; the generic view of a screen and the modal
// opening of screens: what the user types reaches the screen before a button acts, what the
// screen holds afterwards is shown, and the screen alone decides when it closes.
#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <string>
#include <vector>

#include "interfaz_qt.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/comandos.h"
#include "proyecto/fallos.h"
#include "proyecto/proyecto.h"
#include "ventana_apoyo.h"
#include "vista_pantalla.h"

namespace lomaterra {
namespace {

using pruebas::Hijo;

const char* const kFiltroCod = "Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod";

TEST(FiltroQtPrueba, ConvierteLosFiltrosYEligeElIndicado) {
  const char* const dos = "Todos los archivos (*.*);;Archivos de coordenadas (*.cod)";
  const struct { const char *filtro; int índice; const char *filtros, *seleccionado, *extensión; }
      casos[] = {
      {kFiltroCod, 2, dos, "Archivos de coordenadas (*.cod)", "cod"},
      {kFiltroCod, 1, dos, "Todos los archivos (*.*)", ""},
      // An index out of range falls back on the first filter.
      {kFiltroCod, 0, dos, "Todos los archivos (*.*)", ""},
      {kFiltroCod, 3, dos, "Todos los archivos (*.*)", ""},
      // A caption without its patterns gets them, since Qt reads them from the caption.
      {"Proyectos|*.cod", 1, "Proyectos (*.cod)", "Proyectos (*.cod)", "cod"},
      {"Textos|*.txt;*.cod", 1, "Textos (*.txt *.cod)", "Textos (*.txt *.cod)", "txt"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(std::string(c.filtro) + " " + std::to_string(c.índice));
    const FiltroQt f = ConvertirFiltro(c.filtro, c.índice);
    EXPECT_EQ(S(f.filtros), c.filtros);
    EXPECT_EQ(S(f.seleccionado), c.seleccionado);
    EXPECT_EQ(S(f.extensión), c.extensión);
  }
}

TEST(InterfazPrueba, LasCajasLlevanSuTítuloYSusBotones) {
  pruebas::Aplicación();
  EXPECT_EQ(InterfazQt::TítuloDeCaja(""), "Lomaterra");
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
  // The real boxes answered Yes and No by their buttons: Escritorio, on every sample.
}

TEST(InterfazPrueba, LaAyudaSeMuestraEnUnaSolaVentanaConLaGuía) {
  pruebas::Aplicación();
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
  EXPECT_TRUE(guía.contains(QString::fromUtf8("Teoría: las fórmulas de cada método")));
  EXPECT_TRUE(InterfazQt::BuscarAyuda("NOEXISTE.HLP").isEmpty());
  EXPECT_FALSE(guía.contains("<h2>"));  // shown as a document, not as its markup
  // A link of the contents takes the reader to its section.
  QApplication::processEvents();
  texto->setSource(QUrl("#teoria"));
  QApplication::processEvents();
  EXPECT_GT(texto->verticalScrollBar()->value(), 0);
  ayudas.front()->close();
}

// A screen with one box of each kind, a list and four buttons; it notes what its code saw.
class PantallaDePrueba : public Pantalla {
 public:
  PantallaDePrueba() {
    nombre = "FormPrueba";
    título = "Pantalla de prueba";
    nota = "Dé los valores y pulse Copiar.";
  }
  void Activar(Interfaz&) override {
    campos = {{"TextoValor", "Valor (ton/m2):", "1.5", "Un número cualquiera", false},
              {"TextoResultado", "Resultado:", "", "", true}};
    ListaPantalla l;
    l.nombre = "ListaFilas";
    l.columnas = {"Fila", "Valor"};
    l.filas = {{"1", "10.00"}, {"2", "20.00"}, {"3", "30.00"}};
    l.alSeleccionar = [this](Interfaz&) {
      seleccionesVistas.push_back(lista("ListaFilas").seleccionada);
      const int f = lista("ListaFilas").seleccionada;
      if (f >= 1)
        texto("TextoValor") = lista("ListaFilas").filas[static_cast<std::size_t>(f - 1)][1];
    };
    listas = {l};
    botones = {{"BotónCopiar", "&Copiar",
                [this](Interfaz&) {
                  valorVisto = texto("TextoValor");
                  filaVista = lista("ListaFilas").seleccionada;
                  texto("TextoResultado") = "copiado " + valorVisto;
                  lista("ListaFilas").filas.push_back({"4", valorVisto});
                }},
               {"BotónAñadirCampo", "A&ñadir campo",
                [this](Interfaz&) {
                  campos.push_back({"TextoNuevo", "Nuevo:", "7", "", false});
                }},
               {"BotónFallo", "&Fallo", [](Interfaz&) { Div(1.0, 0.0); }},
               {"BotónAceptar", "&Aceptar", [this](Interfaz&) { cerrada = true; }}};
    if (cerrarAlActivar) cerrada = true;
  }
  // The exit refuses the first time and closes the second, as a screen that asks first may do.
  void CerrarSinCambios(Interfaz&) override {
    ++salidas;
    if (salidas >= 2) cerrada = true;
  }

  int salidas = 0, filaVista = -1;
  bool cerrarAlActivar = false;
  std::string valorVisto;
  std::vector<int> seleccionesVistas;
};

class VistaPrueba : public ::testing::Test {
 protected:
  void SetUp() override {
    pruebas::Aplicación();
    pantalla.cerrada = false;
    pantalla.Activar(guion);
  }
  PantallaDePrueba pantalla;
  InterfazGuionada guion;
};

TEST_F(VistaPrueba, MuestraLosCamposLasListasYLosBotonesDeLaPantalla) {
  VistaPantalla vista(pantalla, guion);
  // The values of the boxes as every real screen has them (VentanaPrueba); here the rest.
  auto* valor = Hijo<QLineEdit>(vista, "TextoValor");
  ASSERT_NE(valor, nullptr);
  EXPECT_EQ(valor->toolTip(), "Un número cualquiera");
  EXPECT_TRUE(Hijo<QLineEdit>(vista, "TextoResultado")->isReadOnly());
  bool etiqueta = false;
  for (QLabel* l : vista.findChildren<QLabel*>())
    if (l->text() == "Valor (ton/m2):" && l->buddy() == valor) etiqueta = true;
  EXPECT_TRUE(etiqueta);
  auto* nota = Hijo<QLabel>(vista, "Nota");
  ASSERT_NE(nota, nullptr);
  EXPECT_EQ(nota->text(), "Dé los valores y pulse Copiar.");

  auto* tabla = Hijo<QTableWidget>(vista, "ListaFilas");
  ASSERT_NE(tabla, nullptr);
  EXPECT_EQ(tabla->horizontalHeaderItem(1)->text(), "Valor");

  // A button gets what was typed and the row.
  vista.show();
  tabla->selectRow(2);  // choosing a row tells the screen, and what it filled is shown
  ASSERT_EQ(pantalla.seleccionesVistas, std::vector<int>{3});
  EXPECT_EQ(Hijo<QLineEdit>(vista, "TextoValor")->text(), "30.00");
  tabla->selectRow(1);  // second row
  Hijo<QLineEdit>(vista, "TextoValor")->setText("12.5");
  Hijo<QPushButton>(vista, "BotónCopiar")->click();
  EXPECT_EQ(pantalla.valorVisto, "12.5");
  EXPECT_EQ(pantalla.filaVista, 2);
  EXPECT_EQ(Hijo<QLineEdit>(vista, "TextoResultado")->text(), "copiado 12.5");
  ASSERT_EQ(tabla->rowCount(), 4);
  EXPECT_EQ(tabla->item(3, 1)->text(), "12.5");
  EXPECT_TRUE(vista.isVisible());  // the screen did not close itself
  // A new field of the screen appears; what was typed before the rebuild is kept.
  Hijo<QLineEdit>(vista, "TextoValor")->setText("9");
  Hijo<QPushButton>(vista, "BotónAñadirCampo")->click();
  QApplication::processEvents();
  auto* nuevo = Hijo<QLineEdit>(vista, "TextoNuevo");
  ASSERT_NE(nuevo, nullptr);
  EXPECT_EQ(nuevo->text(), "7");
  EXPECT_EQ(Hijo<QLineEdit>(vista, "TextoValor")->text(), "9");
  // A button that closes the screen closes the view as accepted.
  Hijo<QPushButton>(vista, "BotónAceptar")->click();
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_FALSE(vista.isVisible());
  EXPECT_EQ(vista.result(), QDialog::Accepted);
}

// Abrir of the Qt interface, with the modal loop replaced by a hand that presses buttons.
class AbrirPrueba : public VistaPrueba {
 protected:
  void SetUp() override {
    pruebas::Aplicación();
    ui.Sustituto(&guion);
  }
  InterfazQt ui;
};

TEST_F(AbrirPrueba, UnaPantallaQueQuedaAbiertaSeCierraConSuSalidaYUnaYaCerradaNoSeMuestra) {
  // A screen left open is closed with its exit, which may refuse; one already closed is not
  // shown.
  int mostradas = 0;
  ui.AlMostrar([&](VistaPantalla&) { ++mostradas; });
  ui.Abrir(pantalla);
  EXPECT_EQ(pantalla.salidas, 2);  // the first exit refused, the second closed
  EXPECT_TRUE(pantalla.cerrada);
  pantalla.cerrarAlActivar = true;
  ui.Abrir(pantalla);
  EXPECT_EQ(mostradas, 1);
  EXPECT_TRUE(pantalla.cerrada);
}

TEST_F(AbrirPrueba, UnaFallaAritméticaDeUnBotónTerminaElComandoConSuMensaje) {
  ui.AlMostrar([](VistaPantalla& v) {
    v.findChild<QPushButton*>(QString::fromUtf8("BotónFallo"))->click();
  });
  Proyecto p;
  bool siguió = false;
  const auto fin = EjecutarComando(
      [&](Proyecto&, Interfaz& i) {
        i.Abrir(pantalla);
        siguió = true;
      },
      p, ui);
  EXPECT_EQ(fin, FinDeComando::Fallo);
  EXPECT_FALSE(siguió);
  ASSERT_EQ(guion.Transcripción().size(), 1u);
  EXPECT_EQ(guion.Transcripción()[0].título, TítuloDeFallo());
}

// A screen that shows its numbers and asks at once, as the iteration screens do.
class PantallaQuePregunta : public Pantalla {
 public:
  PantallaQuePregunta() {
    nombre = "FormPregunta";
    título = "Resultados de las iteraciones";
  }
  void Activar(Interfaz& ui) override {
    campos = {{"TextoDelFactorDeSeguridad", "Factor de seguridad:", "1.234567890", "", true}};
    if (ui.Pregunta("¿Considera que es la solución?")) cerrada = true;
  }
};

// The real box, answered by a timer: behind it the screen stands already shown and filled.
TEST_F(VistaPrueba, LaPantallaSeVeDetrásDeLaPreguntaDeSuApertura) {
  InterfazQt ui;
  PantallaQuePregunta pantalla;
  bool vistaDetrás = false;
  QString valorDetrás;
  QTimer::singleShot(0, [&] {
    auto* caja = qobject_cast<CajaDeMensaje*>(QApplication::activeModalWidget());
    if (!caja) return;
    if (auto* vista = qobject_cast<QDialog*>(caja->parentWidget())) {
      vistaDetrás = vista->isVisible() && vista->objectName() == "FormPregunta";
      if (auto* casilla = vista->findChild<QLineEdit*>("TextoDelFactorDeSeguridad"))
        valorDetrás = casilla->text();
    }
    caja->findChild<QPushButton*>(QString::fromUtf8("BotónSí"))->click();
  });
  ui.Abrir(pantalla);
  EXPECT_TRUE(vistaDetrás);
  EXPECT_EQ(valorDetrás, "1.234567890");
  EXPECT_TRUE(pantalla.cerrada);
}

}  // namespace
}  // namespace lomaterra
