// The main window: the panel forwards to the core with the boxes copied in first and shows the
// window state afterwards; menu commands run with the scripted boxes, refresh the whole window
// and end the program when they say so; the close box runs the exit command.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
#include "muestra.h"
#include "pantallas/comandos_archivo.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"
#include "ventana_apoyo.h"
#include "ventana_principal_qt.h"
#include "vista_pantalla.h"
#include "vista_seccion.h"

namespace lomaterra {
namespace {

using pruebas::Hijo;

// What a panel stand-in saw of the window state when it was called.
struct Llamada {
  std::string qué, x, y;
  int fila = 0;
};

class VentanaPrueba : public ::testing::Test {
 protected:
  void SetUp() override {
    pruebas::Aplicación();
    ReiniciarProyecto(p);
  }
  // Stand-ins of the panel that note the call and change the state as a panel would.
  AccionesPanel Sustitutos() {
    AccionesPanel a;
    a.agregar = [this](Proyecto& q, Interfaz&) {
      llamadas.push_back(
          {"agregar", q.Ventana.TextoX, q.Ventana.TextoY, q.Ventana.FilaSeleccionada});
      q.Ventana.ListaCoordenadas.push_back(
          {ANúmeroPrueba(q.Ventana.TextoX), ANúmeroPrueba(q.Ventana.TextoY)});
      q.Ventana.TextoX.clear();
      q.Ventana.TextoY.clear();
      q.Ventana.TextoEstado = "Punto agregado";
    };
    a.borrar = [this](Proyecto& q, Interfaz&) {
      llamadas.push_back(
          {"borrar", q.Ventana.TextoX, q.Ventana.TextoY, q.Ventana.FilaSeleccionada});
    };
    a.modificar = [this](Proyecto& q, Interfaz&) {
      llamadas.push_back(
          {"modificar", q.Ventana.TextoX, q.Ventana.TextoY, q.Ventana.FilaSeleccionada});
      q.Ventana.TextoX = "5";
    };
    a.elegirEstrato = [this](Proyecto& q, Interfaz&, int fila) {
      llamadas.push_back({"estrato", "", "", fila});
      q.Ventana.EtiquetaCoordenadas = "Coordenadas del estrato";
      q.Ventana.EstratoSeleccionado = fila;
    };
    return a;
  }
  static double ANúmeroPrueba(const std::string& s) { return ANúmero(s); }

  Proyecto p;
  std::vector<Llamada> llamadas;
};

TEST_F(VentanaPrueba, MuestraElProyectoDeMuestra) {
  ProyectoDeMuestra(p);
  VentanaPrincipalQt ventana(p);
  EXPECT_EQ(ventana.objectName(), "Form1");
  EXPECT_EQ(ventana.windowTitle(), "talud_de_muestra.cod - Lomaterra");
  EXPECT_EQ(S(Hijo<QPlainTextEdit>(ventana, "TextoProyecto")->toPlainText()),
            p.Ventana.TextoProyecto);
  EXPECT_EQ(Hijo<QLabel>(ventana, "EtiquetaCoordenadas")->text(), "Coordenadas Talud-Presa-Túnel");
  auto* lista = Hijo<QTableWidget>(ventana, "ListaCoordenadas");
  ASSERT_EQ(lista->rowCount(), 4);
  EXPECT_EQ(lista->horizontalHeaderItem(0)->text(), "X");
  EXPECT_EQ(lista->item(0, 0)->text(), "60.00");
  EXPECT_EQ(lista->item(2, 1)->text(), "10.00");
  auto* estratos = Hijo<QComboBox>(ventana, "ListaEstrato");
  ASSERT_EQ(estratos->count(), 3);
  EXPECT_EQ(estratos->itemText(0), "Seleccione el estrato");
  EXPECT_EQ(estratos->itemText(2), "2");
  EXPECT_TRUE(ventana.dibujo().TieneDibujo());
}

// The entry of the panel opens with the project information; its buttons then carry the boxes
// and the row to the core and show the result.
TEST_F(VentanaPrueba, LosBotonesDelPanelLlevanLasCajasYLaFilaAlNúcleoYMuestranElResultado) {
  VentanaPrincipalQt ventana(p, ÁrbolDeMenús(), Sustitutos());
  for (const char* nombre : {"TextoX", "TextoY", "BotónAgregar", "BotónBorrar", "BotónModificar"})
    EXPECT_FALSE(Hijo<QWidget>(ventana, nombre)->isEnabled()) << nombre;
  Hijo<QPushButton>(ventana, "BotónAgregar")->click();
  EXPECT_TRUE(llamadas.empty());
  p.Ventana.EntradaCoordenadasAbierta = true;
  ventana.Refrescar();
  for (const char* nombre : {"TextoX", "TextoY", "BotónAgregar", "BotónBorrar", "BotónModificar"})
    EXPECT_TRUE(Hijo<QWidget>(ventana, nombre)->isEnabled()) << nombre;
  auto* x = Hijo<QLineEdit>(ventana, "TextoX");
  auto* y = Hijo<QLineEdit>(ventana, "TextoY");
  auto* lista = Hijo<QTableWidget>(ventana, "ListaCoordenadas");
  x->setText("12.345");
  y->setText("-3");
  Hijo<QPushButton>(ventana, "BotónAgregar")->click();
  x->setText("7");
  y->setText("1");
  Hijo<QPushButton>(ventana, "BotónAgregar")->click();
  ASSERT_EQ(lista->rowCount(), 2);
  EXPECT_EQ(lista->item(0, 0)->text(), "12.35");  // "#0.00", the half away from zero
  EXPECT_EQ(lista->item(0, 1)->text(), "-3.00");
  EXPECT_TRUE(x->text().isEmpty());
  EXPECT_EQ(Hijo<QLabel>(ventana, "LíneaEstado")->text(), "Punto agregado");

  lista->selectRow(1);
  Hijo<QPushButton>(ventana, "BotónBorrar")->click();
  Hijo<QPushButton>(ventana, "BotónModificar")->click();
  ASSERT_EQ(llamadas.size(), 4u);
  EXPECT_EQ(llamadas[0].qué, "agregar");
  EXPECT_EQ(llamadas[0].x, "12.345");
  EXPECT_EQ(llamadas[0].y, "-3");
  EXPECT_EQ(llamadas[2].qué, "borrar");
  EXPECT_EQ(llamadas[2].fila, 2);
  EXPECT_EQ(llamadas[3].qué, "modificar");
  EXPECT_EQ(x->text(), "5");  // the state after the call is shown
}

TEST_F(VentanaPrueba, ElegirUnEstratoPasaSuFilaAlNúcleo) {
  p.Ventana.ReconstruirListaEstrato(3);
  VentanaPrincipalQt ventana(p, ÁrbolDeMenús(), Sustitutos());
  auto* estratos = Hijo<QComboBox>(ventana, "ListaEstrato");
  estratos->setCurrentIndex(2);
  emit estratos->activated(2);
  ASSERT_EQ(llamadas.size(), 1u);
  EXPECT_EQ(llamadas[0].fila, 2);
  EXPECT_EQ(Hijo<QLabel>(ventana, "EtiquetaCoordenadas")->text(), "Coordenadas del estrato");
}

TEST_F(VentanaPrueba, UnNuevoProyectoMuestraSuTítuloYUnPanelVacíoYGuardaLaDescripción) {
  VentanaPrincipalQt ventana(p);
  EXPECT_EQ(ventana.windowTitle(), "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(Hijo<QTableWidget>(ventana, "ListaCoordenadas")->rowCount(), 0);
  EXPECT_FALSE(ventana.dibujo().TieneDibujo());
  ASSERT_TRUE(p.DatosGuardados);
  Hijo<QPlainTextEdit>(ventana, "TextoProyecto")->setPlainText("Presa de tierra, sección 3");
  EXPECT_EQ(p.Ventana.TextoProyecto, "Presa de tierra, sección 3");
  EXPECT_FALSE(p.DatosGuardados);
}

// A small tree of commands that stand for the real ones.
class MenúPrueba : public VentanaPrueba {
 protected:
  std::vector<EntradaMenú> Árbol() {
    return {
        {"MenúArchivo", "&Archivo", "", {}, true},
        {"Cambiar", "&Cambiar", "MenúArchivo",
         [](Proyecto& q, Interfaz& ui) {
           if (!ui.Pregunta("¿Cambia el proyecto?", "Cambio")) return;
           q.Ventana.Título = "otro.cod - Lomaterra";
           q.Ventana.TextoProyecto = "Otro proyecto";
           q.Ventana.ListaCoordenadas = {{1, 2}, {0, 1}};
           q.Ventana.ReconstruirListaEstrato(1);
           ui.Mensaje("Hecho.", "");
         }},
        {"Fallar", "&Fallar", "MenúArchivo", [](Proyecto&, Interfaz&) { Raíz(-1.0); }},
        {"MenúArchivoSalir", "&Salir", "MenúArchivo",
         [](Proyecto& q, Interfaz& ui) {
           if (ui.Pregunta("¿Sale del programa?", "")) q.Ventana.SalirDelPrograma = true;
         }},
    };
  }
};

TEST_F(MenúPrueba, UnComandoDelMenúUsaLasCajasYRefrescaToda_laVentana) {
  VentanaPrincipalQt ventana(p, Árbol());
  InterfazGuionada guion("S");
  ventana.interfaz().Sustituto(&guion);
  ventana.findChild<QAction*>("Cambiar")->trigger();
  EXPECT_EQ(guion.Textos(), (std::vector<std::string>{"¿Cambia el proyecto?", "Hecho."}));
  EXPECT_EQ(ventana.windowTitle(), "otro.cod - Lomaterra");
  EXPECT_EQ(Hijo<QPlainTextEdit>(ventana, "TextoProyecto")->toPlainText(), "Otro proyecto");
  EXPECT_EQ(Hijo<QTableWidget>(ventana, "ListaCoordenadas")->rowCount(), 2);
  EXPECT_EQ(Hijo<QComboBox>(ventana, "ListaEstrato")->count(), 2);
}

TEST_F(MenúPrueba, UnaFallaDelComandoSeAnunciaYLaVentanaSigue) {
  VentanaPrincipalQt ventana(p, Árbol());
  InterfazGuionada guion;
  ventana.interfaz().Sustituto(&guion);
  ventana.show();
  ventana.findChild<QAction*>("Fallar")->trigger();
  ASSERT_EQ(guion.Transcripción().size(), 1u);
  EXPECT_EQ(guion.Transcripción()[0].título, TítuloDeFallo());
  EXPECT_TRUE(ventana.isVisible());
}

TEST_F(MenúPrueba, LaCajaDeCierreCorreElComandoSalirYSoloCierraSiTermina) {
  VentanaPrincipalQt ventana(p, Árbol());
  InterfazGuionada guion("NS");
  ventana.interfaz().Sustituto(&guion);
  ventana.show();
  ventana.close();
  EXPECT_TRUE(ventana.isVisible());
  ventana.close();
  EXPECT_FALSE(ventana.isVisible());
  EXPECT_EQ(guion.Textos(),
            (std::vector<std::string>{"¿Sale del programa?", "¿Sale del programa?"}));
}

TEST_F(MenúPrueba, SalirDesdeElMenúCierraLaVentanaUnaSolaVez) {
  VentanaPrincipalQt ventana(p, Árbol());
  InterfazGuionada guion("S");
  ventana.interfaz().Sustituto(&guion);
  ventana.show();
  ventana.findChild<QAction*>(QString::fromUtf8("MenúArchivoSalir"))->trigger();
  EXPECT_FALSE(ventana.isVisible());
  EXPECT_EQ(guion.Textos().size(), 1u);  // the close that follows does not ask again
}

// The project information through the real registry: the menu opens Form15 in the generic view,
// the boxes typed by the user reach its checks, and its answer is shown by the window.
TEST_F(VentanaPrueba, LaInformaciónDelProyectoDesdeSuMenú) {
  const auto árbol = ÁrbolDeMenús();
  VentanaPrincipalQt ventana(p, árbol);
  InterfazGuionada guion;
  ventana.interfaz().Sustituto(&guion);
  std::string vista;
  bool abiertaTrasElAviso = false;
  ventana.interfaz().AlMostrar([&](VistaPantalla& v) {
    vista = S(v.objectName());
    auto escribir = [&](const char* nombre, const char* valor) {
      auto* caja = v.findChild<QLineEdit*>(QString::fromUtf8(nombre));
      ASSERT_NE(caja, nullptr) << nombre;
      caja->setText(QString::fromUtf8(valor));
    };
    escribir("TextoProgresivaInicial", "1+001.00");
    escribir("TextoProgresivaFinal", "1+050.00");
    escribir("TextoFechaProyecto", "30 / 12/ 1999");
    escribir("TextoIngResponsable", "Ing. Pérez");
    escribir("TextoDeAnálisis", "t");
    auto* aceptar = v.findChild<QPushButton*>(QString::fromUtf8("BotónAceptar"));
    ASSERT_NE(aceptar, nullptr);
    aceptar->click();  // the company is missing
    abiertaTrasElAviso = v.isVisible();
    escribir("TextoEmpresa", "Geotecnia Andina");
    aceptar->click();
  });
  ventana.findChild<QAction*>(QString::fromUtf8("MenúInformación"))->trigger();
  EXPECT_EQ(vista, "Form15");
  EXPECT_TRUE(abiertaTrasElAviso);
  ASSERT_EQ(guion.Transcripción().size(), 1u);
  EXPECT_EQ(
      InterfazGuionada::Línea(guion.Transcripción()[0]),
      "[mensaje] Progresiva final | Debe dar un nombre para la Empresa encargada del proyecto");
  EXPECT_TRUE(p.InformaciónDada);
  EXPECT_EQ(p.TipoDeAnálisis, "T");
  EXPECT_EQ(p.InformaciónProyecto.Empresa, "Geotecnia Andina");
}

// Every screen that a menu command opens on the sample project is rendered whole: a box for each
// field, a table for each list and a button for each button, found by their control names.
TEST_F(VentanaPrueba, CadaPantallaQueAbreUnMenúSeMuestraCompleta) {
  struct Corte {};
  ProyectoDeMuestra(p);
  int pantallas = 0;
  for (const EntradaMenú& e : ÁrbolDeMenús()) {
    // Nothing that writes a file or ends the program.
    if (!e.acción || e.nombre == "MenúArchivoSalir" || e.nombre == "MenúArchivoGuardar" ||
        e.nombre == "MenúArchivoGuardarComo" || e.nombre == "ArchivoNuevo")
      continue;
    Proyecto copia = p;
    InterfazGuionada guion;
    InterfazQt ui;
    ui.Sustituto(&guion);
    ui.AlMostrar([&](VistaPantalla& v) {
      ++pantallas;
      const Pantalla& s = v.pantalla();
      SCOPED_TRACE(e.nombre + " -> " + s.nombre);
      for (const Campo& c : s.campos) {
        auto* caja = v.findChild<QLineEdit*>(Q(c.nombre));
        ASSERT_NE(caja, nullptr) << c.nombre;
        EXPECT_EQ(S(caja->text()), c.valor);
        EXPECT_EQ(caja->isReadOnly(), c.soloLectura);
      }
      for (const ListaPantalla& l : s.listas) {
        auto* tabla = v.findChild<QTableWidget*>(Q(l.nombre));
        ASSERT_NE(tabla, nullptr) << l.nombre;
        EXPECT_EQ(tabla->columnCount(), static_cast<int>(l.columnas.size()));
        EXPECT_EQ(tabla->rowCount(), static_cast<int>(l.filas.size()));
      }
      for (const BotónPantalla& b : s.botones) {
        auto* botón = v.findChild<QPushButton*>(Q(b.nombre));
        ASSERT_NE(botón, nullptr) << b.nombre;
        EXPECT_EQ(S(botón->text()), b.texto);
      }
      throw Corte{};  // one look is enough; the command ends here
    });
    try {
      EjecutarComando(e.acción, copia, ui);
    } catch (const Corte&) {
    }
  }
  // The entry screens on the sample: information, strata, stretches, loads, constants.
  EXPECT_GE(pantallas, 5);
}

// A sample project file opened as the command line opens it, then Fellenius from its menu.
TEST_F(VentanaPrueba, UnEjemploAbiertoYFelleniusDesdeSuMenú) {
  InterfazGuionada guion("N");
  AbrirArchivoDeProyecto(p, guion, pruebas::RutaEjemplo("talud_homogeneo.cod"));
  ASSERT_TRUE(guion.Transcripción().empty()) << InterfazGuionada::Línea(guion.Transcripción()[0]);
  VentanaPrincipalQt ventana(p);
  ventana.interfaz().Sustituto(&guion);
  EXPECT_EQ(ventana.windowTitle(), "talud_homogeneo.cod - Lomaterra");
  EXPECT_TRUE(
      Hijo<QPlainTextEdit>(ventana, "TextoProyecto")->toPlainText().startsWith("Talud homogéneo"));
  auto* lista = Hijo<QTableWidget>(ventana, "ListaCoordenadas");
  ASSERT_EQ(lista->rowCount(), p.NúmeroPuntosTalud);
  EXPECT_EQ(S(lista->item(0, 0)->text()), Formato(p.CoordenadasTalud.X[1], "#0.00"));
  EXPECT_TRUE(Hijo<QPushButton>(ventana, "BotónAgregar")->isEnabled());

  QAction* fellenius = ventana.findChild<QAction*>(QString::fromUtf8("MétodoFellenius"));
  ASSERT_NE(fellenius, nullptr);
  fellenius->trigger();
  const auto textos = guion.Textos();
  ASSERT_GE(textos.size(), 2u);
  EXPECT_EQ(textos.front(), "Está analizando desembalse rápido en presas de tierra?");
  EXPECT_EQ(textos.back(),
            "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Fellenius "
            "para suelos.");
  EXPECT_EQ(ventana.windowTitle(), "talud_homogeneo.cod - Lomaterra");
}

}  // namespace
}  // namespace lomaterra
