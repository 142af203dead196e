// Fellenius run by lomaterra-lote on each sample project: the factor of safety must fall where the
// soil mechanics of the sample puts it.
#include <gtest/gtest.h>

#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {
namespace {

struct Caso {
  const char* archivo;
  double mínimo, máximo;  // of the factor of safety as the program gives it
  double escala;          // the factor is compared after multiplying by this
  const char* razón;
};

// The slope of every sample is 10 m high at 2H:1V.
//
// talud_homogeneo: c = 2.5 t/m2, phi = 25°, gamma = 1.8 t/m3, dry, arc from (45, 20) to (15, 10)
// with R = 25 m (centre (23.876, 33.371)), 20 slices of 1.5 m. The ordinary method by hand
// (spreadsheet of the 20 slices: h from the surface to the arc at each middle, W = 1.8 h 1.5,
// sin a = (x - 23.876) / 25, l = 1.5 / cos a) gives sum(c l + W cos a tan phi) = 177.4 t/m and
// sum(W sin a) = 75.2 t/m, a factor of 2.359. On the circular surface the program adds the
// resisting forces but takes the driving side as moments, W R sin a, so what it shows is that
// factor divided by the radius: 2.359 / 25 = 0.0943. The range below is 2.30 to 2.42 after
// multiplying by the radius.
//
// talud_estratificado: a weaker clay (c = 2.5, phi = 22°) under a fill with pore pressure
// parameter B = 0.3, a phreatic line 1.5 to 4 m under the face, 1.125 t/m of water in the crack
// and 13 t/m of crest loads: every one of these lowers the dry value of about 2 for such a slope,
// and a polyline through the clay is not far from critical. Between 1.2 and 2.0.
//
// falla_mixta_c: c = 2, phi = 27°, dry; the surface runs 3 to 4 m deeper than the arc of the first
// sample over most of its length, so it mobilises more strength than driving weight: above the
// dry value of the circle (2.22 for these parameters, by the same hand calculation as above) but
// below twice it. Between 2.0 and 3.5.
//
// falla_polinomica: c = 2, phi = 26°, a phreatic line 1 to 3 m above the base in the middle third:
// a surface of about the depth of the circle, whose dry value is 2.16 for these parameters (same
// hand calculation), lowered by a tenth or so by the water.
// Between 1.6 and 2.5.
const Caso kCasos[] = {
    {"talud_homogeneo.cod", 2.30, 2.42, 25.0, "Fellenius ordinario a mano: 2.359; el programa lo da dividido por el radio"},
    {"talud_estratificado.cod", 1.2, 2.0, 1.0, "agua, relleno con B, grieta con agua y cargas en la corona"},
    {"falla_mixta_c.cod", 2.0, 3.5, 1.0, "superficie más profunda que el círculo crítico, seca"},
    {"falla_polinomica.cod", 1.6, 2.5, 1.0, "superficie de profundidad media con nivel freático"},
};

TEST(FelleniusEnEjemplos, FactorEnUnRangoRazonable) {
  for (const Caso& c : kCasos) {
    SCOPED_TRACE(c.archivo);
    const ValorJson v = LoteJson(c.archivo, "MétodoFellenius");
    // The run ended with the closing message of the method, not with a fault.
    ASSERT_FALSE(Transcrito(v).empty());
    EXPECT_NE(Transcrito(v).back().find("por el método de Fellenius para suelos."), std::string::npos);
    const ValorJson* fs = v.Campo("FactorDeSeguridad");
    ASSERT_TRUE(fs && fs->tipo == ValorJson::Número);
    const double valor = fs->número * c.escala;
    EXPECT_GE(valor, c.mínimo) << c.razón;
    EXPECT_LE(valor, c.máximo) << c.razón;
    // Every slice has a base below the surface and a positive width.
    for (const auto& d : v.Campo("Dovelas")->lista) {
      EXPECT_GT(d.Campo("Ancho")->número, 0);
      EXPECT_GT(d.Campo("YTalud")->número, d.Campo("YBase")->número);
    }
  }
}

}  // namespace
}  // namespace lomaterra::pruebas
