// The coordinate panel of the main window: where a new point stands, the boxes, the buttons, and
// a panel that is always written back when the user leaves it.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "pantallas/comandos_coordenadas.h"
#include "proyecto/ventana_principal.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

using Puntos = std::vector<std::pair<double, double>>;

Puntos DelPanel(const Proyecto& p) {
  Puntos r;
  for (const auto& q : p.Ventana.ListaCoordenadas) r.push_back({q.X, q.Y});
  return r;
}

class Panel : public ::testing::Test {
 protected:
  void SetUp() override {
    ReiniciarProyecto(p);
    p.InformaciónDada = true;
  }
  void Agregar(const std::string& x, const std::string& y) {
    p.Ventana.TextoX = x;
    p.Ventana.TextoY = y;
    PanelAgregar(p, ui);
  }
  void AgregarTodos(const Puntos& puntos) {
    for (const auto& [x, y] : puntos) Agregar(std::to_string(x), std::to_string(y));
  }
  Proyecto p;
  InterfazGuionada ui;
};

struct CasoOrden {
  const char* nombre;
  Puntos entrada;
  Puntos esperado;
};

// X descends; on equal X the order of Y rises when X >= 0 and falls when X < 0; an equal point
// (same X and Y) goes after its equals but before any smaller X.
const CasoOrden kCasosOrden[] = {
    {"AbscisasDistintasEnCualquierOrden",
     {{0, 1}, {20, 0}, {-10, 3}, {15, 2}},
     {{20, 0}, {15, 2}, {0, 1}, {-10, 3}}},
    {"IgualAbscisaPositivaOrdenadaCreciente",
     {{10, 5}, {10, 2}, {10, 8}, {12, 0}},
     {{12, 0}, {10, 2}, {10, 5}, {10, 8}}},
    {"IgualAbscisaCeroCuentaComoPositiva", {{0, 3}, {0, 1}, {-1, 0}}, {{0, 1}, {0, 3}, {-1, 0}}},
    {"IgualAbscisaNegativaOrdenadaDecreciente",
     {{-5, 5}, {-5, 2}, {-5, 8}, {-7, 0}},
     {{-5, 8}, {-5, 5}, {-5, 2}, {-7, 0}}},
    {"PuntoRepetidoVaDetrásDeSusIguales",
     {{10, 5}, {10, 7}, {4, 1}, {10, 5}},
     {{10, 5}, {10, 5}, {10, 7}, {4, 1}}},
    {"PuntoRepetidoNegativoDetrásDeSusIguales",
     {{-3, 2}, {-3, 9}, {-8, 1}, {-3, 2}},
     {{-3, 9}, {-3, 2}, {-3, 2}, {-8, 1}}},
};

TEST_F(Panel, OrdenDeLosPuntosAgregados) {
  for (const CasoOrden& c : kCasosOrden) {
    SCOPED_TRACE(c.nombre);
    p.Ventana.ListaCoordenadas.clear();
    AgregarTodos(c.entrada);
    EXPECT_EQ(DelPanel(p), c.esperado);
  }
  EXPECT_TRUE(ui.Transcripción().empty());
}

TEST_F(Panel, UnaCajaSinNúmeroNoAgregaYUnPuntoAgregadoMarcaLosDatosYVacíaLasCajas) {
  Agregar("uno", "2");
  Agregar("1", "");
  Agregar("", "x");
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{"Debe introducir un número en x",
                                                   "Debe introducir un número en y",
                                                   "Debe introducir un número en x"}));
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
  ASSERT_TRUE(p.DatosGuardados && p.ListaGuardada);
  Agregar("12.5", "-3");
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_FALSE(p.ListaGuardada);
  EXPECT_EQ(p.Ventana.TextoX + p.Ventana.TextoY, "");
  EXPECT_EQ(DelPanel(p), (Puntos{{12.5, -3}}));
}

TEST_F(Panel, ModificarLlevaLaFilaALasCajasAgregarLaReubicaYBorrarQuitaSoloLaSeleccionada) {
  AgregarTodos({{9, 1}, {6, 2}, {3, 3}});
  PanelModificar(p, ui);  // no row selected
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{
                             "Ud no ha seleccionado ninguna fila para modificar valores ya agregados."});
  ui.Olvidar();
  p.Ventana.FilaSeleccionada = 2;
  PanelModificar(p, ui);
  EXPECT_EQ(p.Ventana.TextoX, "6");
  EXPECT_EQ(p.Ventana.TextoY, "2");
  EXPECT_EQ(DelPanel(p), (Puntos{{9, 1}, {3, 3}}));
  p.Ventana.TextoX = "1.5";  // the user changes X and adds it again: it moves to its new place
  PanelAgregar(p, ui);
  EXPECT_EQ(DelPanel(p), (Puntos{{9, 1}, {3, 3}, {1.5, 2}}));
  EXPECT_TRUE(ui.Transcripción().empty());
  p.Ventana.FilaSeleccionada = 0;
  PanelBorrar(p, ui);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 3u);
  p.Ventana.FilaSeleccionada = 3;
  PanelBorrar(p, ui);
  EXPECT_EQ(DelPanel(p), (Puntos{{9, 1}, {3, 3}}));
  EXPECT_EQ(p.Ventana.FilaSeleccionada, 0);
}

TEST_F(Panel, AbscisasIgualesSeGuardanUnCentésimoMásBajasYElPanelLasMuestraComoEntraron) {
  MenúCoordenadasTalud(p, ui);
  AgregarTodos({{10, 5}, {10, 2}, {4, 0}});
  ASSERT_EQ(DelPanel(p), (Puntos{{10, 2}, {10, 5}, {4, 0}}));
  MenúCoordenadasFalla(p, ui);  // leaves the surface: it is stored
  ASSERT_EQ(p.NúmeroPuntosTalud, 3);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[1], 10.0);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[2], 10.0 - 0.01);  // the later of the two equal abscissas
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.Y[2], 5.0);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[3], 4.0);
  MenúCoordenadasTalud(p, ui);  // reloaded from the table: now the stored values show
  EXPECT_EQ(DelPanel(p), (Puntos{{10, 2}, {10 - 0.01, 5}, {4, 0}}));
  using Filas = std::vector<std::pair<std::string, std::string>>;
  EXPECT_EQ(FilasCoordenadas(p.Ventana),
            (Filas{{"10.00", "2.00"}, {"9.99", "5.00"}, {"4.00", "0.00"}}));
}

TEST_F(Panel, SalirDelPanelPorOtroComandoNoLoPierde) {
  MenúCoordenadasTalud(p, ui);
  AgregarTodos({{30, 10}, {20, 10}, {0, 0}});
  MenúCoordenadasFalla(p, ui);
  EXPECT_EQ(p.Ventana.TipoPanel, 2);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas de la superficie de falla");
  AgregarTodos({{25, 10}, {5, 0}});
  MenúCoordenadasFreático(p, ui);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas del nivel freático");
  AgregarTodos({{30, 8}, {0, -1}});
  MenúInsertarEstrato(p, ui);  // first stratum: the phreatic line is stored on the way
  AgregarTodos({{30, 2}, {0, -4}});
  MenúCoordenadasTalud(p, ui);
  EXPECT_EQ(DelPanel(p), (Puntos{{30, 10}, {20, 10}, {0, 0}}));
  MenúCoordenadasFalla(p, ui);
  EXPECT_EQ(DelPanel(p), (Puntos{{25, 10}, {5, 0}}));
  MenúCoordenadasFreático(p, ui);
  EXPECT_EQ(DelPanel(p), (Puntos{{30, 8}, {0, -1}}));
  MenúCoordenadasEstratos(p, ui);
  EXPECT_EQ(p.Ventana.TipoPanel, 4);
  EXPECT_EQ(DelPanel(p), (Puntos{{30, 2}, {0, -4}}));
  EXPECT_EQ(p.NúmeroPuntosTalud, 3);
  EXPECT_EQ(p.NúmeroPuntosFalla, 2);
  EXPECT_EQ(p.NúmeroPuntosFreático, 2);
  EXPECT_EQ(p.PuntosEstrato[1], 2);
}

TEST_F(Panel, ElegirEstratoGuardaElQueEstabaYCargaElElegido) {
  MenúInsertarEstrato(p, ui);
  AgregarTodos({{10, -1}, {0, -2}});
  InterfazGuionada ui2;
  ui2.GuionPantalla("Form4", [](Pantalla& f, Interfaz& i) {
    f.lista("ListaEntre").seleccionada = 2;  // after the last
    f.Pulsar("BotónAceptar", i);
  });
  MenúInsertarEstrato(p, ui2);
  ASSERT_EQ(p.NúmeroEstratos, 2);
  AgregarTodos({{10, -5}});
  PanelElegirEstrato(p, ui, 1);
  EXPECT_EQ(p.Ventana.EstratoPanel, 1);
  EXPECT_EQ(p.Ventana.EstratoSeleccionado, 1);
  EXPECT_EQ(DelPanel(p), (Puntos{{10, -1}, {0, -2}}));
  PanelElegirEstrato(p, ui, 2);
  EXPECT_EQ(DelPanel(p), (Puntos{{10, -5}}));
  PanelElegirEstrato(p, ui, 0);  // the prompt row changes nothing
  EXPECT_EQ(p.Ventana.EstratoPanel, 2);
  EXPECT_EQ(DelPanel(p), (Puntos{{10, -5}}));
}

}  // namespace
}  // namespace lomaterra
