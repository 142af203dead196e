// The main window: its menus against the command registry, the panel forwarding to the core
// with the boxes copied in first, menu commands refreshing the whole window, the close box running
// the exit command, every screen a menu opens rendered whole, and the whole road of a
// limit-equilibrium project done by hand (information, slope, stratum, failure surface, screens,
// Fellenius, Save as, New and Open) with everything found as it was.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>
#include <map>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
#include "muestra.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
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
  // Stand-ins of the panel that note the call and change the state as a panel would: Agregar
  // adds the point typed, the others leave X at 5.
  AccionesPanel Sustitutos() {
    auto nota = [this](const char* qué) {
      return [this, qué](Proyecto& q, Interfaz&) {
        const EstadoVentana& v = q.Ventana;
        llamadas.push_back({qué, v.TextoX, v.TextoY, v.FilaSeleccionada});
        if (llamadas.back().qué == "agregar")
          q.Ventana.ListaCoordenadas.push_back({ANúmero(v.TextoX), ANúmero(v.TextoY)});
        q.Ventana.TextoX = llamadas.back().qué == "agregar" ? "" : "5";
        q.Ventana.TextoEstado = "Punto agregado";
      };
    };
    AccionesPanel a{nota("agregar"), nota("borrar"), nota("modificar")};
    a.elegirEstrato = [this](Proyecto& q, Interfaz&, int fila) {
      llamadas.push_back({"estrato", "", "", fila});
      q.Ventana.EtiquetaCoordenadas = "Coordenadas del estrato";
      q.Ventana.EstratoSeleccionado = fila;
    };
    return a;
  }

  Proyecto p;
  std::vector<Llamada> llamadas;
};

TEST_F(VentanaPrueba, UnProyectoNuevoYElDeMuestra) {
  VentanaPrincipalQt ventana(p);
  EXPECT_EQ(ventana.windowTitle(), "[Nuevo proyecto] - Lomaterra");
  EXPECT_FALSE(ventana.dibujo().TieneDibujo());
  ASSERT_TRUE(p.DatosGuardados);
  Hijo<QPlainTextEdit>(ventana, "TextoProyecto")->setPlainText("Presa de tierra, sección 3");
  EXPECT_EQ(p.Ventana.TextoProyecto, "Presa de tierra, sección 3");
  EXPECT_FALSE(p.DatosGuardados);
  ProyectoDeMuestra(p);
  ventana.Refrescar();
  EXPECT_EQ(ventana.windowTitle(), "talud_de_muestra.cod - Lomaterra");
  EXPECT_EQ(S(Hijo<QPlainTextEdit>(ventana, "TextoProyecto")->toPlainText()),
            p.Ventana.TextoProyecto);
  EXPECT_EQ(Hijo<QLabel>(ventana, "EtiquetaCoordenadas")->text(), "Coordenadas Talud-Presa-Túnel");
  auto* lista = Hijo<QTableWidget>(ventana, "ListaCoordenadas");
  ASSERT_EQ(lista->rowCount(), 4);
  EXPECT_EQ(lista->horizontalHeaderItem(0)->text(), "X");
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
  for (const bool abierta : {false, true}) {
    Hijo<QPushButton>(ventana, "BotónAgregar")->click();  // shut, it calls nothing
    p.Ventana.EntradaCoordenadasAbierta = abierta;
    ventana.Refrescar();
    for (const char* n : {"TextoX", "TextoY", "BotónAgregar", "BotónBorrar", "BotónModificar"})
      EXPECT_EQ(Hijo<QWidget>(ventana, n)->isEnabled(), abierta) << n;
  }
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
  // Choosing a stratum passes its row.
  p.Ventana.ReconstruirListaEstrato(3);
  ventana.Refrescar();
  auto* estratos = Hijo<QComboBox>(ventana, "ListaEstrato");
  estratos->setCurrentIndex(2);
  emit estratos->activated(2);
  ASSERT_EQ(llamadas.size(), 5u);
  EXPECT_EQ(llamadas[4].fila, 2);
  EXPECT_EQ(Hijo<QLabel>(ventana, "EtiquetaCoordenadas")->text(), "Coordenadas del estrato");
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

TEST_F(MenúPrueba, UnComandoDelMenúUsaLasCajasRefrescaLaVentanaYSalirCierraSoloSiTermina) {
  VentanaPrincipalQt ventana(p, Árbol());
  InterfazGuionada guion("S");
  ventana.interfaz().Sustituto(&guion);
  ventana.findChild<QAction*>("Cambiar")->trigger();
  EXPECT_EQ(guion.Textos(), (std::vector<std::string>{"¿Cambia el proyecto?", "Hecho."}));
  EXPECT_EQ(ventana.windowTitle(), "otro.cod - Lomaterra");
  EXPECT_EQ(Hijo<QPlainTextEdit>(ventana, "TextoProyecto")->toPlainText(), "Otro proyecto");
  EXPECT_EQ(Hijo<QTableWidget>(ventana, "ListaCoordenadas")->rowCount(), 2);
  EXPECT_EQ(Hijo<QComboBox>(ventana, "ListaEstrato")->count(), 2);
  // A fault of a command is announced and the window goes on.
  guion.Olvidar();
  ventana.show();
  ventana.findChild<QAction*>("Fallar")->trigger();
  ASSERT_EQ(guion.Transcripción().size(), 1u);
  EXPECT_EQ(guion.Transcripción()[0].título, TítuloDeFallo());
  EXPECT_TRUE(ventana.isVisible());
  // The close box runs the exit command and closes only when it ends the program.
  guion.Olvidar();
  guion.Responder("NS");
  ventana.close();
  EXPECT_TRUE(ventana.isVisible());
  ventana.close();
  EXPECT_FALSE(ventana.isVisible());
  EXPECT_EQ(guion.Textos(),
            (std::vector<std::string>{"¿Sale del programa?", "¿Sale del programa?"}));
  p.Ventana.SalirDelPrograma = false;
  VentanaPrincipalQt otra(p, Árbol());
  InterfazGuionada sí("S");
  otra.interfaz().Sustituto(&sí);
  otra.show();
  otra.findChild<QAction*>(QString::fromUtf8("MenúArchivoSalir"))->trigger();
  EXPECT_FALSE(otra.isVisible());
  EXPECT_EQ(sí.Textos().size(), 1u);  // the close that follows does not ask again
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

// The control names of the entries of a menu (or of the bar), in the order they are shown.
std::vector<std::string> Nombres(const QList<QAction*>& acciones) {
  std::vector<std::string> r;
  for (QAction* a : acciones)
    if (!a->isSeparator()) r.push_back(S(a->objectName()));
  return r;
}

TEST_F(VentanaPrueba, CadaEntradaDelRegistroEstáEnSuMenúEnOrdenConSuTextoYSuNombre) {
  const auto árbol = ÁrbolDeMenús();
  VentanaPrincipalQt ventana(p, árbol);
  std::map<std::string, std::vector<std::string>> esperados;  // parent -> children in order
  for (const EntradaMenú& e : árbol) {
    esperados[e.padre].push_back(e.nombre);
    SCOPED_TRACE(e.nombre);
    QAction* a = nullptr;
    if (e.EsSubmenú) {
      QMenu* m = ventana.findChild<QMenu*>(Q(e.nombre));
      ASSERT_NE(m, nullptr);
      EXPECT_EQ(S(m->title()), e.texto);
      a = m->menuAction();
    } else {
      for (QAction* c : ventana.findChildren<QAction*>(Q(e.nombre)))
        if (!c->menu()) a = c;
      ASSERT_NE(a, nullptr);
      EXPECT_EQ(S(a->text()), e.texto);
    }
    EXPECT_EQ(S(a->objectName()), e.nombre);
    EXPECT_EQ(a->isEnabled(), e.Habilitada());
  }
  EXPECT_EQ(Nombres(ventana.menuBar()->actions()), esperados[""]);
  for (const auto& [padre, hijos] : esperados) {
    if (padre.empty()) continue;
    SCOPED_TRACE(padre);
    QMenu* m = ventana.findChild<QMenu*>(Q(padre));
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(Nombres(m->actions()), hijos);
  }
  // Alt and a letter opens one menu of the bar only.
  QSet<QChar> letras;
  for (QAction* a : ventana.menuBar()->actions()) {
    const int y = a->text().indexOf('&');
    ASSERT_GE(y, 0) << S(a->text());
    EXPECT_FALSE(letras.contains(a->text().at(y + 1).toLower())) << S(a->text());
    letras.insert(a->text().at(y + 1).toLower());
  }
}

class Camino : public ::testing::Test {
 protected:
  void SetUp() override {
    pruebas::Aplicación();
    ReiniciarProyecto(p);
    ventana = std::make_unique<VentanaPrincipalQt>(p);
    ventana->interfaz().Sustituto(&guion);
    ventana->interfaz().AlMostrar([this](VistaPantalla& v) {
      auto r = guiones.find(S(v.objectName()));
      ASSERT_NE(r, guiones.end()) << S(v.objectName());
      r->second(v);
    });
  }
  void Menú(const char* nombre) {
    QAction* a = ventana->findChild<QAction*>(QString::fromUtf8(nombre));
    ASSERT_NE(a, nullptr) << nombre;
    ASSERT_TRUE(a->isEnabled()) << nombre;
    a->trigger();
  }
  static void Escribir(QWidget& w, const char* nombre, const char* valor) {
    auto* caja = Hijo<QLineEdit>(w, nombre);
    ASSERT_NE(caja, nullptr) << nombre;
    caja->setText(QString::fromUtf8(valor));
  }
  static void Pulsar(QWidget& w, const char* nombre) {
    auto* b = Hijo<QPushButton>(w, nombre);
    ASSERT_NE(b, nullptr) << nombre;
    b->click();
  }
  // Points typed in the coordinate panel of the main window.
  void Puntos(std::initializer_list<std::pair<const char*, const char*>> puntos) {
    for (const auto& [x, y] : puntos) {
      Escribir(*ventana, "TextoX", x);
      Escribir(*ventana, "TextoY", y);
      Pulsar(*ventana, "BotónAgregar");
    }
  }

  Proyecto p;
  InterfazGuionada guion;
  std::map<std::string, std::function<void(VistaPantalla&)>> guiones;
  std::unique_ptr<VentanaPrincipalQt> ventana;
};

TEST_F(Camino, DeLaInformaciónAlCálculoYDeVueltaDesdeElArchivo) {
  // The weight confirmation of the strata screen, the drawdown question, the save question on a
  // project not calculated (Fellenius leaves it so).
  guion.Responder("SNS");
  guiones["Form15"] = [this](VistaPantalla& v) {
    Escribir(v, "TextoProgresivaInicial", "0+100.00");
    Escribir(v, "TextoProgresivaFinal", "0+160.00");
    Escribir(v, "TextoFechaProyecto", "22 / 11/ 2026");
    Escribir(v, "TextoIngResponsable", "Ing. Núñez");
    Escribir(v, "TextoDeAnálisis", "t");
    Pulsar(v, "BotónAceptar");  // the company is missing: the box, and the screen stays
    ASSERT_EQ(guion.Transcripción().size(), 1u);
    EXPECT_EQ(InterfazGuionada::Línea(guion.Transcripción()[0]),
              "[mensaje] Progresiva final | Debe dar un nombre para la Empresa encargada del "
              "proyecto");
    EXPECT_TRUE(v.isVisible());
    Escribir(v, "TextoEmpresa", "Geotecnia del Sur");
    Pulsar(v, "BotónAceptar");
  };
  guiones["Form5"] = [](VistaPantalla& v) {
    auto* lista = Hijo<QTableWidget>(v, "ListaEstratos");
    ASSERT_NE(lista, nullptr);
    ASSERT_EQ(lista->rowCount(), 1);
    lista->selectRow(0);
    Escribir(v, "TextoCohesión", "2.5");
    Escribir(v, "TextoFricción", "25");
    Escribir(v, "TextoPesoUnitarioHúmedo", "1.8");
    Escribir(v, "TextoPesoUnitarioSaturado", "2.0");
    Escribir(v, "TextoTipoEstrato", "B");
    Escribir(v, "TextoParámetroPresión", "0");
    Escribir(v, "TextoCoeficienteConsolidaciónVertical", "0");
    Escribir(v, "TextoTiempoDeConstrucción", "0");
    Pulsar(v, "BotónModificar");
    Escribir(v, "TextoSueloRoca", "s");
    Pulsar(v, "BotónAceptar");
  };
  guiones["Form6"] = [](VistaPantalla& v) {
    Escribir(v, "TextoPuntoInicial", "1");
    Escribir(v, "TextoPuntoFinal", "2");
    Escribir(v, "TextoTipoUnión", "c");
    Pulsar(v, "BotónAgregar");
    Pulsar(v, "BotónAceptar");
  };
  guiones["Constantes"] = [](VistaPantalla& v) {
    Escribir(v, "TextoMétodoDeCálculo", "3");
    Escribir(v, "TextoDefiniciónDeParámetrosInstantáneos", "0");
    Escribir(v, "TextoFSInicial", "1.5");
    Escribir(v, "TextoRadioCírculoFalla", "25");
    Escribir(v, "TextoVaríaElRadio", "N");
    Escribir(v, "TextoNúmeroDovelas", "20");
    for (const char* c : {"TextoMultiplicadorLagrange1", "TextoMultiplicadorLagrange2",
                          "TextoEsfuerzoInicialCresta", "TextoCoeficienteSísmicoHorizontal",
                          "TextoCoeficienteSísmicoVertical", "TextoAbscisaPrimerPuntoGrieta",
                          "TextoOrdenadaPrimerPuntoGrieta", "TextoAbscisaSegundoPuntoGrieta",
                          "TextoOrdenadaSegundoPuntoGrieta", "TextoAbscisaNivelFreáticoGrieta",
                          "TextoOrdenadaNivelFreáticoGrieta"})
      Escribir(v, c, "0");
    Pulsar(v, "BotónAceptar");
  };

  Menú("MenúInformación");
  ASSERT_TRUE(p.InformaciónDada);
  Menú("MenúCoordenadasTalud");
  Puntos({{"60", "20"}, {"40", "20"}, {"20", "10"}, {"0", "10"}});
  EXPECT_EQ(Hijo<QTableWidget>(*ventana, "ListaCoordenadas")->rowCount(), 4);
  Menú("MenúInsertarEstrato");
  ASSERT_EQ(p.NúmeroEstratos, 1);
  Puntos({{"60", "-10"}, {"0", "-10"}});
  Menú("MenúCoordenadasFalla");  // stores the stratum line, then shows the failure surface
  Puntos({{"45", "20"}, {"15", "10"}});
  Menú("CaracterísticasGeomecánicasSuelos");
  ASSERT_TRUE(p.EstratosCaracterizados);
  Menú("MénuGeometríaEntrePuntosSuperficieFalla");
  ASSERT_TRUE(p.GeometríaFallaDefinida);
  Menú("MenúArchivoConstantes");
  ASSERT_TRUE(p.ParámetrosInicialesDados);
  Menú("MétodoFellenius");
  ASSERT_FALSE(guion.Textos().empty());
  EXPECT_EQ(guion.Textos().back(),
            "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Fellenius "
            "para suelos.");
  // The same section as the sample talud_homogeneo.cod, whose ordinary-method factor worked by
  // hand is 2.359 (sum of c l + W cos a tan phi = 177.4 t/m over sum of W sin a = 75.2 t/m); on
  // the circular surface the program takes the driving side as moments, so it shows 2.359 / 25.
  ASSERT_EQ(p.NúmeroIteraciones, 1);
  const double fs = p.HistoriaIteraciones.FactorDeSeguridad[1];
  EXPECT_NEAR(fs * 25, 2.359, 0.06);

  const std::string ruta = pruebas::CarpetaTemporal() + "/camino.cod";
  guion.ArchivosElegidos({ruta, ruta});
  Menú("MenúArchivoGuardarComo");
  EXPECT_EQ(ventana->windowTitle(), "camino.cod - Lomaterra");
  EXPECT_TRUE(p.DatosGuardados);
  const Proyecto antes = p;

  Menú("ArchivoNuevo");
  EXPECT_EQ(ventana->windowTitle(), "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(p.NúmeroPuntosTalud, 0);
  Menú("MenúArchivoAbrir");
  EXPECT_EQ(ventana->windowTitle(), "camino.cod - Lomaterra");
  EXPECT_EQ(p.InformaciónProyecto.IngResponsable, "Ing. Núñez");
  EXPECT_EQ(p.CoordenadasTalud, antes.CoordenadasTalud);
  EXPECT_EQ(p.YEstrato.Leer(1, 2), -10.0);
  EXPECT_EQ(Hijo<QTableWidget>(*ventana, "ListaCoordenadas")->rowCount(), 4);
  // A project whose only calculation was Fellenius is saved without slice results, and the first
  // calculation after opening it runs and gives the same factor: the surface, the stratum, its
  // strength, the stretches and the constants came back as they were typed.
  EXPECT_FALSE(p.CálculoHecho);
  guion.Responder("N");
  Menú("MétodoFellenius");
  EXPECT_DOUBLE_EQ(p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones], fs);
}

}  // namespace
}  // namespace lomaterra
