// The seismic result screen on a run filled by hand: its refusals, the refill of a chosen step and
// the click on a node fixed both ways or free in one direction.
#include <gtest/gtest.h>

#include "apoyo/sismo_apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "pantallas/resultados_sismicos.h"

using namespace lomaterra;

namespace {

const std::string kNoAnalizado =
    "Ese registro no existe o no fue analizado, debido a que los esfuerzos producidos por los registros anteriores, "
    "superaron la resistencia al cortante del suelo.";

struct Entrada {
  std::string texto, mensaje;  // empty message: the step is shown
};

TEST(ResultadosSísmicos, SinCálculoLoDiceYNoAbre) {
  Proyecto p;
  InterfazGuionada ui;
  ResultadosDeEsfuerzosDesplazamientosPorSísmo(p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].título, "No ha hecho el cálculo completo de esfuerzos:");
  EXPECT_EQ(ui.Transcripción()[0].texto, "Realice el cálculo para ver resultados  ");
}

TEST(ResultadosSísmicos, ElRegistroPedidoSeCompruebaEnOrden) {
  const Entrada casos[] = {{"abc", "Debe introducir un valor numérico y entero"},
                           {"1.5", "Ud. debe dar un número entero"},
                           {"4", kNoAnalizado},  // the record has 4 points, 3 were computed
                           {"0", kNoAnalizado},
                           {" 2 ", ""}};
  for (const Entrada& c : casos) {
    Proyecto p = pruebas::SismoAMano();
    p.Malla.FSSísmico = 1.234;
    InterfazGuionada ui;
    PantallaResultadosSísmicos f(p);
    f.Activar(ui);
    EXPECT_EQ(f.texto("TextoTotalRegistrosSismicos"), "3");
    EXPECT_EQ(f.texto("TextoFactorSeguridadDeslizamiento"), "1.23");
    EXPECT_NE(f.nota.find("El cálculo se interrumpió (el usuario pulsó Cancelar o una falla del cálculo lo terminó): se calcularon 3 de 4 registros."), std::string::npos);
    f.texto("Texto_Del_Registro_Que_Ud_Ver") = c.texto;
    f.Pulsar("BotónAceptar", ui);
    if (!c.mensaje.empty()) {
      ASSERT_EQ(ui.Textos(), std::vector<std::string>{c.mensaje}) << c.texto;
      EXPECT_TRUE(f.lista("ResultadosDeLosDesplazamientosSísmo").filas.empty());
      EXPECT_EQ(p.Sísmico.RegistroSeleccionado, 0);
      continue;
    }
    EXPECT_TRUE(ui.Textos().empty());
    EXPECT_EQ(p.Sísmico.RegistroSeleccionado, 2);
    // Nodes in table order (4, 3, 2, 1): node 3 is the second row, degrees 5 and 6.
    const auto& n = f.lista("ResultadosDeLosDesplazamientosSísmo").filas;
    ASSERT_EQ(n.size(), 4u);
    EXPECT_EQ(n[1], (std::vector<std::string>{"3", "1.235", "0.000", "0.000", "-0.500", "0.250", "0.000"}));
    const auto& e = f.lista("ResultadosDeLosEsfuerzosSísmo").filas;
    ASSERT_EQ(e.size(), 2u);
    EXPECT_EQ(e[1], (std::vector<std::string>{"2", "0.000", "-20.000", "3.500", "0.000", "0.000", "0.000", "0.000"}));
  }
}

TEST(ResultadosSísmicos, ClicEnUnPuntoFijoOLibre) {
  Proyecto p = pruebas::SismoAMano();
  p.Sísmico.RegistroSeleccionado = 2;
  InterfazGuionada ui;
  PantallaResultadosSísmicos f(p);
  f.Activar(ui);
  NodoElegidoSísmico() = 0;
  f.ClicEnNodo(4, ui);  // node 1: "N" both ways
  f.ClicEnNodo(3, ui);  // node 2: fixed along x only, its chart opens
  ASSERT_EQ(ui.Transcripción().size(), 2u);
  EXPECT_EQ(ui.Transcripción()[0].texto,
            "El punto de coordenada seleccionado es un punto con restricción, sin desplazamiento en ninguna dirección");
  EXPECT_EQ(ui.Transcripción()[1].tipo, "figura");
  EXPECT_EQ(ui.Transcripción()[1].texto, "GraficaDeRegistroSísmicoEstimadoDeAceleraciones");
  EXPECT_EQ(NodoElegidoSísmico(), 2);
  EXPECT_EQ(f.texto("TextoPtoCoordenadaParaRegistro"), "2");
  NodoElegidoSísmico() = 0;
}

}  // namespace
