#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pantallas/form6.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

const char* const kAviso =
    "Si selecciona círculos como superficies parciales de falla, es recomendable que los mismos estén "
    "entre los dos primeros puntos de la S.F o entre los dos últimos ptos de la S.F y seguidos o "
    "antecedidos por segmentos rectos.";

class Tramos : public ::testing::Test {
 protected:
  Proyecto p;
  InterfazGuionada ui;
  Form6 pantalla{p};

  void Puntos(int n) {
    p.CoordenadasFalla.Redimensionar(n);
    for (int i = 1; i <= n; ++i) {
      p.CoordenadasFalla.X[i] = 10.0 * (n - i);
      p.CoordenadasFalla.Y[i] = 2.0 * (n - i);
    }
    p.NúmeroPuntosFalla = static_cast<Entero>(n);
    pantalla.cerrada = false;
    pantalla.Activar(ui);
  }
  // Adds a stretch and returns the messages it gave.
  std::vector<std::string> Agregar(const char* inicial, const char* final_, const char* tipo) {
    pantalla.texto("TextoPuntoInicial") = inicial;
    pantalla.texto("TextoPuntoFinal") = final_;
    pantalla.texto("TextoTipoUnión") = tipo;
    ui.Olvidar();
    pantalla.Pulsar("BotónAgregar", ui);
    return ui.Textos();
  }
  std::size_t Filas() { return pantalla.lista("ListaTramos").filas.size(); }
};

using Textos = std::vector<std::string>;

TEST_F(Tramos, UnArcoEsUnaFilaDel1Al2) {
  Puntos(2);
  EXPECT_EQ(Agregar("1", "2", "c"), Textos{kAviso});
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.NúmeroTramosFalla, 1);
  EXPECT_EQ(p.TramoFalla.PuntoInicial[1], 1);
  EXPECT_EQ(p.TramoFalla.PuntoFinal[1], 2);
  EXPECT_EQ(p.TramoFalla.TipoUnión[1], "C");
  EXPECT_TRUE(p.GeometríaFallaDefinida);
  EXPECT_TRUE(p.SuperficieCircular());
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Tramos, ComprobacionesDeAgregarEnSuOrden) {
  Puntos(5);
  struct Caso {
    const char *inicial, *final_, *tipo;
    Textos textos;
  };
  const std::vector<Caso> casos = {
      {"uno", "2", "Q",
       {"Debe introducir un número <1,2,3,4,..,n> sabiendo que la mayor abscisa de la primera coordenada "
        "de la superficie de falla es el pto No <1> y la menor abscisa de la superficie de falla, "
        "corresponde al pto <n>."}},
      {"1", "2", "Q",
       {"Para el tipo de superficie de falla entre puntos: Debe introducir  una 'L' para segmentos rectos "
        "entre dos puntos consecutivos, una 'C' para arcos de círculos entre dos puntos consecutivos y una "
        "'P' para definir un polinomio entre tres o más puntos consecutivos."}},
      {"5", "6", "L",
       {"El valor del punto inicial tiene que ser menor que la cantidad de coordenadas de la superficie de falla"}},
      {"4", "6", "L",
       {"El valor del punto final tiene que ser como máximo igual a la cantidad de coordenadas de la superficie de falla"}},
      {"3", "3", "L", {"El valor del punto final, no puede ser menor o igual que el pto inicial"}},
      {"1.5", "3", "L", {"El número del punto inicial debe ser entero"}},
      {"1", "2.5", "L", {"El número del punto final debe ser entero"}},
      {"1", "2", "p", {"No puede seleccionar un polinomio entre dos puntos consecutivos"}},
      {"1", "3", "C", {kAviso, "Debe seleccionar un círculo entre dos puntos consecutivos."}},
      {"1", "3", "L", {"Debe seleccionar un segmento recto entre dos puntos consecutivos."}},
      {"2", "3", "L", {"el valor inicial del primer punto tiene que ser igual a <1>"}},
  };
  for (const auto& c : casos) EXPECT_EQ(Agregar(c.inicial, c.final_, c.tipo), c.textos) << c.inicial << c.final_ << c.tipo;
  EXPECT_EQ(Filas(), 0u);
}

TEST_F(Tramos, ContinuidadEntreTramos) {
  Puntos(6);
  EXPECT_TRUE(Agregar("1", "2", "L").empty());
  EXPECT_TRUE(Agregar("2", "4", "P").empty());
  EXPECT_EQ(Agregar("3", "4", "L"), Textos{"El punto inicial no tiene coincidencia con ningún punto final anterior"});
  EXPECT_EQ(Agregar("2", "3", "L"), Textos{"El punto inicial actual no puede ser diferente del punto final anterior"});
  EXPECT_EQ(Filas(), 2u);
  // Accepting before the last point is reached is refused.
  ui.Olvidar();
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos(), Textos{"El punto final debe ser igual a la cantidad de coordenadas de la superficie de falla y "
                                "además Ud. debe de agregar primero todos los puntos y luego si <Aceptar> sus definiciones"});
  EXPECT_FALSE(p.GeometríaFallaDefinida);
  EXPECT_EQ(Agregar("4", "5", "C"), Textos{kAviso});
  EXPECT_TRUE(Agregar("5", "6", "l").empty());
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.NúmeroTramosFalla, 4);
  EXPECT_EQ(p.TramoFalla.TipoUnión[2], "P");
  EXPECT_EQ(p.TramoFalla.PuntoFinal[2], 4);
  EXPECT_EQ(p.TramoFalla.TipoUnión[4], "L");
  EXPECT_FALSE(p.SuperficieCircular());
}

TEST_F(Tramos, BorrarQuitaElÚltimoYCancelarPregunta) {
  Puntos(3);
  Agregar("1", "2", "L");
  Agregar("2", "3", "L");
  pantalla.Pulsar("BotónBorrar", ui);
  EXPECT_EQ(Filas(), 1u);
  EXPECT_TRUE(Agregar("2", "3", "L").empty());
  ui.Responder("S");
  ui.Olvidar();
  pantalla.Pulsar("BotónCancelar", ui);
  EXPECT_EQ(ui.Textos(), Textos{"No desea archivar los puntos de unión de la superficie de falla?"});
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_FALSE(p.GeometríaFallaDefinida);
  EXPECT_EQ(p.NúmeroTramosFalla, 0);
}

TEST(TramosComando, PideDosPuntosDeLaSuperficieDeFalla) {
  Proyecto p;
  InterfazGuionada ui;
  MénuGeometríaEntrePuntosSuperficieFalla(p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].título, "Coordenadas superficie de falla");
  EXPECT_EQ(ui.Transcripción()[0].texto, "Debe introducir coordenadas de la superficie de falla");
  // The points being entered in the panel of the failure surface count.
  p.Ventana.TipoPanel = 2;
  p.Ventana.ListaCoordenadas = {{20, 6}, {10, 0}};
  ui.Olvidar();
  MénuGeometríaEntrePuntosSuperficieFalla(p, ui);
  EXPECT_EQ(p.NúmeroPuntosFalla, 2);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].tipo, "pantalla");
  EXPECT_EQ(ui.Transcripción()[0].título, "Definición del tipo de superficie de falla");
}

}  // namespace
}  // namespace lomaterra
