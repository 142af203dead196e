// The rock strata screen: checks in their order and word for word, what Aceptar stores, and a
// fault that leaves the strata as they were.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "pantallas/estratos_roca.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/fallos.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

class EstratosRoca : public ::testing::Test {
 protected:
  Proyecto p;
  InterfazGuionada ui{"", true};
  PantallaEstratosRoca pantalla{p};

  void SetUp() override {
    if (p.NúmeroEstratos == 0) p.NúmeroEstratos = 1;
    if (p.TipoDeAnálisis.empty()) p.TipoDeAnálisis = "T";
    pantalla.cerrada = false;
    pantalla.Activar(ui);
    Elegir(1);
  }
  void Elegir(int fila) {
    auto& l = pantalla.lista("CaracterísticasEstratosEnRoca");
    l.seleccionada = fila;
    l.alSeleccionar(ui);
  }
  // mi, GSI, m, s, moist, saturated, σc, Cs, Cp, Poisson, viscosity
  void Fila(const std::vector<const char*>& v) {
    const char* cajas[] = {"TextoMIntacta",
                           "TextoGSI",
                           "TextoMMacizo",
                           "TextoSMacizo",
                           "TextoPesoUnitarioHúmedo",
                           "TextoPesoUnitarioSaturado",
                           "TextoCompresiónSimple",
                           "TextoVelocidadCorte",
                           "TextoVelocidadLongitudinal",
                           "TextoPoisson",
                           "TextoViscosidad"};
    for (std::size_t i = 0; i < v.size(); ++i) pantalla.texto(cajas[i]) = v[i];
  }
  std::string Último() { return ui.Transcripción().empty() ? "" : ui.Transcripción().back().texto; }
};

TEST_F(EstratosRoca, ComprobacionesEnSuOrden) {
  struct Caso {
    const char* análisis;
    std::vector<const char*> fila;                           // boxes of the row, for Modificar
    std::vector<std::pair<const char*, const char*>> cajas;  // other boxes, then Aceptar
    const char* texto;
  };
  // clang-format off
  const std::vector<const char*> buena{"10", "50", "0", "0", "2.5", "2.6", "100", "", "", "", ""};
  const std::vector<const char*> buenaF{"10", "50", "0", "0", "2.5", "2.6", "100", "800", "1500", "0.25", "0"};
  const std::vector<std::pair<const char*, const char*>> ningunas;
  const std::vector<Caso> casos = {
      {"T", {"10", "x"}, ningunas, "Debe introducir un número para el índice de calidad de la roca"},
      {"T", {"10", "101"}, ningunas, "Debe introducir el valor apropiado del índice de calidad de la roca GSI"},
      {"T", {"x", "50", "x"}, ningunas, "Debe introducir un número para este parámetro"},
      {"T", {"10", "50", "x", "x"}, ningunas, "Debe introducir un número para el parámetro 'm'"},
      {"T", {"10", "50", "0", "x", "x"}, ningunas, "Debe introducir un número para el parámetro 's'"},
      {"T", {"10", "50", "0", "0", "x", "x"}, ningunas, "Debe introducir un número en el peso unitario húmedo"},
      {"T", {"10", "50", "0", "0", "2", "x", "x"}, ningunas, "Debe introducir un número en el peso unitario saturado"},
      {"T", {"10", "50", "0", "0", "2", "2", "x"}, ningunas, "Debe introducir un número para la resistencia a la compresión simple"},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "x", "1500"}, ningunas, "Debe dar el valor de la velocidad de la onda de corte."},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "1600", "1500"}, ningunas, "La velocidad de la onda de corte es menor que la velocidad de la onda longitudinal."},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "800", "1500", "x", "x"}, ningunas, "Debe dar el valor del coeficiente de poisson."},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "800", "1500", "0.2", "x"}, ningunas, "Debe introducir un número para la viscosidad de la roca, incluyendo el cero."},
      {"T", buena, {{"TextoSueloRoca", "S"}}, "Ud va hacer un análisis en ROCA y debe introducir la letra  'R'"},
      {"F", buenaF, {{"TextoSueloRoca", "r"}, {"TextoTipoDeObra", "X"}}, "Presione la letra 'O' para  Túneles y  la letra 'S' para taludes."},
      {"T", buena, {{"TextoSueloRoca", "R"}, {"TextoFactorPerturbación", "x"}}, "Debe introducir un el valor apropiado para el factor de corrección por perturbación de la roca, el cual varía entre 0 y 1"},
      {"T", buena, {{"TextoSueloRoca", "R"}, {"TextoFactorPerturbación", "1.2"}}, "El factor de perturbación debe estar entre cero y uno, y es parámetro requerido en las estimaciones de esfuerzos."},
      {"T", buena, {{"TextoSueloRoca", "R"}, {"TextoAlturaH", "x"}}, "Debe introducir un valor apropiado para la altura del talud o profundidad del túnel"},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEstadoPlano", "1"}}, "Debe introducir el número  <2>: Deformación plana."},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "x"}}, "Debe dar un número entero para tomar en cuenta el espesor donde va hacer el análisis"},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "0"}}, "Debe dar un valor de espesor considerado para el análisis por deformación plana (1 m es común)."},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "3"}}, "Debe introducir el número <1> o <2> "},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "1"}, {"TextoEspesorDeSedimentos", "x"}}, "Debe dar un número para el espesor de sedimentos del sitio de análisis estimado por el geologo."},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "1"}, {"TextoAlturaH", "0"}}, "El valor de esta altura es requerida. Debe dar el valor de la altura del talud o carga de roca sobre techo del túnel."},
      {"F", {"10", "50", "0", "0", "2.5", "2.6", "100", "0", "0", "0", "0"}, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "S"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "1"}, {"TextoAlturaH", "30"}}, "Faltan datos. Debe introducir las características para todos los estratos:  Las velocidades de la onda, coeficiente de poisson,  en caso de análisis sísmico. En el caso de análisis sismico la viscosidad puede ser cero."},
  };
  // clang-format on
  for (const Caso& c : casos) {
    p = Proyecto{};
    p.NúmeroEstratos = 1;
    p.TipoDeAnálisis = c.análisis;
    SetUp();
    ui.Olvidar();
    Fila(c.fila);
    pantalla.Pulsar("BotónModificar", ui);
    if (!c.cajas.empty()) {
      ASSERT_TRUE(ui.Transcripción().empty()) << c.texto << ": " << Último();
      for (const auto& [caja, valor] : c.cajas) pantalla.texto(caja) = valor;
      pantalla.Pulsar("BotónAceptar", ui);
    }
    EXPECT_EQ(Último(), c.texto);
    EXPECT_FALSE(pantalla.cerrada) << c.texto;
    EXPECT_EQ(p.TipoDeMaterial, "") << c.texto;
  }
}

TEST_F(EstratosRoca, FaltaUnaFilaYLuegoAcepta) {
  p.NúmeroEstratos = 2;
  SetUp();
  Fila({"10", "50", "0", "0", "2.5", "2.6", "100"});
  pantalla.Pulsar("BotónModificar", ui);
  pantalla.texto("TextoSueloRoca") = "R";
  pantalla.texto("TextoFactorPerturbación") = "0.5";
  pantalla.texto("TextoAlturaH") = "0";
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(
      Último(),
      "Faltan datos. Debe introducir las características para todos y cada uno de los estratos");
  EXPECT_FALSE(p.CaracterísticasRocaCompletas);

  Elegir(2);
  Fila({"10", "50", "0", "0", "2.5", "2.6", "100"});
  pantalla.Pulsar("BotónModificar", ui);
  pantalla.Pulsar("BotónAceptar", ui);
  ASSERT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.TipoDeMaterial, "R");
  EXPECT_TRUE(p.CaracterísticasRocaCompletas);
  // With D = 0.5: m = 10·e^(−50/21), s = e^(−50/7.5).
  EXPECT_NEAR(p.Estrato.m_macizo[2], 10 * std::exp(-50.0 / 21), 1e-12);
  EXPECT_NEAR(p.Estrato.s_macizo[2], std::exp(-50.0 / 7.5), 1e-15);
  // H = 0: the empirical line, c = 0.0098·100·e^((0.0455 − 0.0073 ln 10)·50) = 4.114,
  // φ = 0.424·50 − 0.0016·2500 − 6 + 9 ln 10 = 31.92.
  EXPECT_NEAR(p.Estrato.Cohesión[1], 4.1139, 1e-4);
  EXPECT_NEAR(p.Estrato.Fricción[1], 31.9233, 1e-4);
}

TEST_F(EstratosRoca, FricciónNulaTerminaSinTocarLosEstratos) {
  // mi = 1, GSI = 5, H = 0: the empirical friction is 0 and the shear strength divides by it.
  Fila({"1", "5", "0", "0", "2.5", "2.6", "100"});
  pantalla.Pulsar("BotónModificar", ui);
  pantalla.texto("TextoSueloRoca") = "R";
  pantalla.texto("TextoAlturaH") = "0";
  try {
    pantalla.Pulsar("BotónAceptar", ui);
    FAIL() << "sin falla";
  } catch (const FalloAritmético& f) {
    EXPECT_NE(std::string(f.what()).find("estrato 1"), std::string::npos) << f.what();
  }
  EXPECT_EQ(p.TipoDeMaterial, "");
  EXPECT_EQ(p.Estrato.Fricción.Leer(1), 0);
  EXPECT_EQ(p.Estrato.m_macizo.Leer(1), 0);
}

}  // namespace
}  // namespace lomaterra
