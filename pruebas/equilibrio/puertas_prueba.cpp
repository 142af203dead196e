// The gates of the four limit-equilibrium commands in one table: each row ends the command with
// its words, in order, and leaves the results and the history of factors as they were.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "equilibrio/textos_apoyo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

using namespace pruebas;

enum : int { F = 1, B = 2, J = 4, L = 8 };

struct Método {
  const char* nombre;
  int bit;
  Entero número;
  void (*correr)(Proyecto&, Interfaz&);
};

const Método kMétodos[] = {{"Fellenius", F, 3, MétodoFellenius},
                           {"Bishop", B, 2, MétodoBishop},
                           {"Janbu", J, 4, MétodoJanbu},
                           {"Leshchinsky", L, 1, ProcesoIterativoEnSuelos}};

struct Puerta {
  const char* nombre;
  int métodos;
  std::function<void(Proyecto&)> preparar;
  std::string respuestas;
  std::vector<Apunte> esperado;
};

const std::string kOjo = "OJO PELAO con este mensaje:";

const std::vector<Puerta>& TablaDePuertas() {
  static const std::vector<Puerta> puertas = {
      {"sin tipo", F | B | J | L, [](Proyecto& p) { p.TipoDeAnálisis = ""; }, "",
       {Msj("", "Seleccione en la pantalla principal la opción <T> ó <F>")}},
      {"elementos finitos", F | B | J | L, [](Proyecto& p) { p.TipoDeAnálisis = "F"; }, "",
       {Msj("", "Ud. está trabajando con elementos finitos")}},
      {"sin parámetros", F | B | J | L, [](Proyecto& p) { p.ParámetrosInicialesDados = false; }, "",
       {Msj("Parámetros iniciales:",
            "Faltan los parámetros iniciales de cálculo. Vaya a la opción Equilibrio límite.")}},
      {"no recalcular", F | B | J, [](Proyecto& p) { p.CálculoHecho = true; }, "NN",
       {Preg(kDesembalse, false), Preg(kRecalcular, false)}},
      {"roca", F | J | L, [](Proyecto& p) { p.TipoDeMaterial = "R"; }, "N",
       {Preg(kDesembalse, false), Msj("No es SUELO:", "Ud. ha considerado el material como una 'ROCA'")}},
      {"roca sin instantáneos", B, [](Proyecto& p) { p.TipoDeMaterial = "R"; }, "N",
       {Preg(kDesembalse, false),
        Msj("No es SUELO:",
            "Ud. ha considerado el material como una 'ROCA' y no calculará por este método a menos "
            "que Ud. seleccione parámetros instantáneos.")}},
      {"grieta", B | J,
       [](Proyecto& p) {
         p.GrietaTracción.OrdenadaPrimerPunto = 3;
         p.GrietaTracción.OrdenadaSegundoPunto = 2;
         p.GrietaTracción.AbscisaSegundoPunto = 4.5;
         PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{4, 2}, {0, 0}});
       },
       "N",
       {Preg(kDesembalse, false),
        Msj(kOjo,
            "Las coordenadas del segundo pto de la grieta deben ser exactamente iguales a las "
            "coordenadas del primer punto de la superficie de falla, por favor revise las "
            "coordenadas de la superficie de falla y las coordenadas de la grieta.")}},
      {"nivel en la grieta", B | J,
       [](Proyecto& p) {
         p.GrietaTracción.OrdenadaNF = 1.5;
         p.GrietaTracción.AbscisaNF = 4;
       },
       "N",
       {Preg(kDesembalse, false),
        Msj(kOjo,
            "Las coordenadas del N.F en la grieta deben ser exactamente iguales a la primera "
            "coordenada del N.F que Ud debe dar. Por favor revise las coordenadas del N.F y la "
            "coordenada del N.F en la grieta.")}},
      {"instantáneos sin calcular", B | J | L,
       [](Proyecto& p) { p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos = "S"; }, "N",
       {Preg(kDesembalse, false),
        Msj("No es el camino:",
            "Este problema corresponde al método de parámetros instantáneos por favor "
            "seleccione:Suelos o Rocas (parámetros instantáneos c,fi). ")}},
      {"instantáneos no", B | J | L,
       [](Proyecto& p) {
         p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos = "S";
         p.ParámetrosIniciales.UsaParámetrosInstantáneos = true;
         p.ParámetrosInstantáneosCalculados = true;
       },
       "NN", {Preg(kDesembalse, false), Preg(kContinuarInstantáneos, false)}},
      {"sin dovelas", F | B | J, [](Proyecto& p) { p.NúmeroBordes = 1; }, "NN",
       {Preg(kDesembalse, false), Preg(kPrimeraVez, false),
        Msj("Sin dovelas:",
            "No hay dovelas para calcular. Revise la superficie de falla y el número de dovelas.")}},
      {"tres dovelas", L, [](Proyecto&) {}, "NN",
       {Preg(kDesembalse, false), Preg(kPrimeraVez, false),
        Msj("Dovelas insuficientes",
            "El método de Leshchinsky y Huang necesita al menos cuatro dovelas. Aumente el número "
            "de dovelas en los parámetros iniciales de cálculo y calcule de nuevo.")}},
  };
  return puertas;
}

// Three slices by hand (Leshchinsky needs four: they are too few for it), a history of seven
// factors and results of a run before.
Proyecto ConResultados(const Método& m) {
  Proyecto p;
  TresDovelasDeSuelo(p, m.número);
  p.NúmeroIteraciones = 7;
  p.HistoriaIteraciones.Redimensionar(7);
  p.HistoriaIteraciones.FactorDeSeguridad[7] = 1.75;
  p.SumaTangenciales = 22.5;
  return p;
}

void NadaCambió(const Proyecto& p, bool hecho, const std::string& caso) {
  EXPECT_EQ(p.CálculoHecho, hecho) << caso;
  EXPECT_EQ(p.NúmeroIteraciones, 7) << caso;
  EXPECT_EQ(p.HistoriaIteraciones.FactorDeSeguridad.Leer(7), 1.75) << caso;
  EXPECT_EQ(p.SumaTangenciales, 22.5) << caso;
}

class Puertas : public ::testing::TestWithParam<Método> {};

TEST_P(Puertas, CadaPuertaTerminaConSusPalabrasSinTocarLosResultados) {
  const Método& m = GetParam();
  for (const Puerta& c : TablaDePuertas()) {
    if (!(c.métodos & m.bit)) continue;
    Proyecto p = ConResultados(m);
    c.preparar(p);
    const bool hecho = p.CálculoHecho;
    InterfazGuionada ui(c.respuestas);
    m.correr(p, ui);
    EXPECT_EQ(Líneas(ui), Líneas(c.esperado)) << c.nombre;
    NadaCambió(p, hecho, c.nombre);
    EXPECT_FALSE(p.DesembalseRápido) << c.nombre;
  }
}

TEST_P(Puertas, OtroMétodoElegidoTerminaTrasLaPreguntaDelDesembalseQueSíSeToma) {
  const Método& m = GetParam();
  for (Entero otro = 1; otro <= 4; ++otro) {
    if (otro == m.número) continue;
    Proyecto p = ConResultados(m);
    p.ParámetrosIniciales.MétodoDeCálculo = otro;
    InterfazGuionada ui("S");
    m.correr(p, ui);
    EXPECT_EQ(Líneas(ui), Líneas({Preg(kDesembalse, true),
                                  Msj("No es el METODO:", "Ud. no ha seleccionado este método de cálculo")}))
        << otro;
    NadaCambió(p, false, std::to_string(otro));
    EXPECT_TRUE(p.DesembalseRápido) << otro;
  }
}

INSTANTIATE_TEST_SUITE_P(Equilibrio, Puertas, ::testing::ValuesIn(kMétodos),
                         [](const ::testing::TestParamInfo<Método>& i) { return std::string(i.param.nombre); });

}  // namespace
}  // namespace lomaterra
