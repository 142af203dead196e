// The sample projects: one slope 10 m high at 2 horizontal to 1 vertical, crest at elevation 20
// from X = 60 to 40, toe at elevation 10 from X = 20 to 0 (X descends from the crest side), with
// four different failure surfaces and soils. Tons and metres.
//
// To write the files again after a change of the format or of a sample:
//   prueba_lote --gtest_also_run_disabled_tests --gtest_filter='*GenerarEjemplos*'
#include "lote/ejemplos.h"

#include "apoyo/proyectos.h"
#include "equilibrio/estratos/hoek_brown.h"
#include "equilibrio/janbu.h"
#include "pantallas/interfaz_guionada.h"

#include <cmath>
#include <initializer_list>
#include <utility>

namespace lomaterra::pruebas {

namespace {

struct Suelo {
  double c, fi, húmedo, saturado;
  Entero tipo = 0;  // 1 fill ("A"), 0 natural ("B")
  double b = 0, cv = 0, meses = 0;
  std::vector<std::pair<double, double>> línea;  // lower boundary, X descending
};

void Estratos(Proyecto& p, const std::vector<Suelo>& suelos) {
  const long n = static_cast<long>(suelos.size());
  long mayor = 0;
  for (const auto& s : suelos) mayor = std::max<long>(mayor, static_cast<long>(s.línea.size()));
  p.NúmeroEstratos = static_cast<Entero>(n);
  p.NúmeroEstratosCaracterizados = static_cast<Entero>(n);
  p.EstratosCaracterizados = true;
  p.PuntosEstrato.Redimensionar(n);
  p.XEstrato.Redimensionar(n, mayor);
  p.YEstrato.Redimensionar(n, mayor);
  p.Estrato.RedimensionarConservando(n);
  for (long s = 1; s <= n; ++s) {
    const Suelo& d = suelos[static_cast<std::size_t>(s - 1)];
    p.Estrato.Cohesión[s] = d.c;
    p.Estrato.Fricción[s] = d.fi;
    p.Estrato.PesoUnitarioHúmedo[s] = d.húmedo;
    p.Estrato.PesoUnitarioSaturado[s] = d.saturado;
    p.Estrato.TipoEstrato[s] = d.tipo;
    p.Estrato.ParámetroPresión[s] = d.b;
    p.Estrato.CoeficienteConsolidaciónVertical[s] = d.cv;
    p.Estrato.TiempoDeConstrucción[s] = d.meses;
    p.PuntosEstrato[s] = static_cast<Entero>(d.línea.size());
    long j = 1;
    for (auto [x, y] : d.línea) {
      p.XEstrato(s, j) = x;
      p.YEstrato(s, j) = y;
      ++j;
    }
  }
}

// What every sample shares: a soil slope for limit equilibrium by Fellenius.
Proyecto Base(const std::string& descripción, const std::string& progresiva) {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.InformaciónDada = true;
  p.Ventana.TextoProyecto = descripción;
  p.InformaciónProyecto = {progresiva, progresiva, "15/01/2026", "Ing. Responsable", "Lomaterra, proyecto de ejemplo"};
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{60, 20}, {40, 20}, {20, 10}, {0, 10}});
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 3;
  pi.FSInicial = 1.5;
  pi.NúmeroDovelas = 20;
  p.ParámetrosInicialesDados = true;
  p.NúmeroCargasUniformes = 0;
  p.NúmeroCargasPuntuales = 0;
  return p;
}

// The writer stores the coordinate panel first: it holds the surface, as after opening a file.
Proyecto Terminar(Proyecto p) {
  CargarPanelCoordenadas(p, 1, 1);
  return p;
}

}  // namespace

// One soil, dry, on one circular arc from the crest (45, 20) to beyond the toe (15, 10) with a
// radius of 25 m: the centre falls at about (23.88, 33.37) and the arc dips 1.6 m below the toe.
Proyecto TaludHomogéneo() {
  Proyecto p = Base("Talud homogéneo de 10 m de altura, pendiente 2H:1V, superficie de falla circular. "
                    "Suelo arcilloso-arenoso seco. Método de Fellenius.",
                    "K0+100");
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{45, 20}, {15, 10}});
  PonerTramos(p, {{1, 2, "C"}});
  p.ParámetrosIniciales.Radio = 25;
  Estratos(p, {{2.5, 25, 1.8, 2.0, 0, 0, 0, 0, {{60, -10}, {0, -10}}}});
  return Terminar(p);
}

// A compacted fill (letter "A", parameter B 0.3, no consolidation considered) over a clay
// and a dense sand; a phreatic line; a polyline failure surface whose upper end is the foot of a
// tension crack 3 m deep with 1.5 m of water (thrust 0.5 x 1.5² = 1.125 t/m); a strip load of
// 2 t/m2 and a line load of 5 t/m on the crest.
Proyecto TaludEstratificado() {
  Proyecto p = Base("Talud estratificado: relleno compactado sobre arcilla y arena densa, con nivel freático, "
                    "grieta de tracción con agua, sobrecarga uniforme y carga puntual en la corona. "
                    "Superficie de falla poligonal. Método de Fellenius.",
                    "K0+250");
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{46, 17}, {38, 12}, {28, 6}, {18, 6.5}, {12, 10}});
  PonerTramos(p, {{1, 2, "L"}, {2, 3, "L"}, {3, 4, "L"}, {4, 5, "L"}});
  PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{46, 18.5}, {38, 15}, {24, 11}, {20, 9.8}, {0, 9.5}});
  Estratos(p, {
                  {1.0, 30, 1.9, 2.05, 1, 0.3, 0, 0, {{60, 14}, {28, 14}}},
                  {2.5, 22, 1.8, 1.95, 0, 0, 0, 0, {{60, 7}, {0, 7}}},
                  {0.5, 34, 1.9, 2.1, 0, 0, 0, 0, {{60, -10}, {0, -10}}},
              });
  p.ParámetrosIniciales.NúmeroDovelas = 25;
  CargasUniformes(p, {{41, 45, 0, 2}});
  p.CargaUniforme.yo[1] = p.CargaUniforme.yf[1] = 20;
  CargasPuntuales(p, {{43, 20, 0, 5}});
  auto& g = p.GrietaTracción;
  g.AbscisaPrimerPunto = 46; g.OrdenadaPrimerPunto = 20;
  g.AbscisaSegundoPunto = 46; g.OrdenadaSegundoPunto = 17;
  g.AbscisaNF = 46; g.OrdenadaNF = 18.5;
  g.EmpujeGrieta = 0.5 * (18.5 - 17) * (18.5 - 17);
  return Terminar(p);
}

// A straight stretch down from the crest to (34, 7), an arc between points 2 and 3 on a level
// chord, fitted to the chord that follows (radius about 14.2 m, centre near (29, 20.3), lowest at
// about elevation 6.1), and a straight stretch out at the toe. The arc's chord is level on
// purpose: an inner edge belongs to the last stretch that accepts it, and a later stretch whose
// chord descends would also take every edge above its first point.
Proyecto FallaMixtaC() {
  Proyecto p = Base("Talud homogéneo con superficie de falla mixta: tramo recto, arco circular entre los puntos 2 y 3, "
                    "tramo recto de salida al pie. Método de Fellenius.",
                    "K0+400");
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{46, 20}, {34, 7}, {24, 7}, {16, 10}});
  PonerTramos(p, {{1, 2, "L"}, {2, 3, "C"}, {3, 4, "L"}});
  Estratos(p, {{2.0, 27, 1.85, 2.0, 0, 0, 0, 0, {{60, -10}, {0, -10}}}});
  return Terminar(p);
}

// A cubic through the first four points (lowest at about elevation 8.2 near X = 24) and a straight
// stretch out to the toe; a phreatic line below the slope face.
Proyecto FallaPolinómica() {
  Proyecto p = Base("Talud homogéneo con nivel freático y superficie de falla polinómica por los cuatro primeros puntos, "
                    "con salida recta al pie. Método de Fellenius.",
                    "K0+550");
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{46, 20}, {38, 12.5}, {28, 8.5}, {18, 8.8}, {12, 10}});
  PonerTramos(p, {{1, 4, "P"}, {4, 5, "L"}});
  PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{60, 15}, {40, 14}, {22, 10.3}, {20, 9.9}, {0, 9.6}});
  Estratos(p, {{2.0, 26, 1.85, 2.0, 0, 0, 0, 0, {{60, -10}, {0, -10}}}});
  return Terminar(p);
}

// A slope of clean sand, 10 m high at 2H:1V, dry, by Bishop on the circle from the crest to the toe
// with the radius varied in search of the least factor from R0 = 28.2 m.
Proyecto BishopRadioVariable() {
  Proyecto p = Base("Talud de arena limpia de 10 m de altura, pendiente 2H:1V, seco. Método de Bishop con "
                    "búsqueda del radio de menor factor de seguridad a partir de 28.2 m.",
                    "K0+150");
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{70, 35}, {50, 35}, {30, 25}, {20, 25}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{51.24, 35}, {29.7, 25}});
  PonerTramos(p, {{1, 2, "C"}});
  Estratos(p, {{0, 34, 1.9, 2.05, 0, 0, 0, 0, {{70, 0}, {20, 0}}}});
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 2;
  pi.FSInicial = 1;
  pi.Radio = 28.2;
  pi.VaríaRadio = true;
  pi.LetraVaríaRadio = "S";
  return Terminar(p);
}

// The referee problem EX1(a) of the Australian ACADS study: a 10 m slope at 2H:1V, c' = 3 kPa,
// phi' = 19.6°, gamma = 20 kN/m3 (in tons: divided by 9.81), dry. The critical circle has its
// centre near (29.7, 53.2) and a radius near 28.2 m: it leaves the crest at X = 51.24 and touches
// the ground at the toe. The rigorous methods give 0.986 to 0.993 on it.
Proyecto JanbuACADS() {
  Proyecto p = Base("Problema de referencia ACADS EX1(a): talud homogéneo de 10 m, 2H:1V, c' = 3 kPa, "
                    "fi' = 19.6°, peso unitario 20 kN/m3, sin agua. Método de Janbu sobre el círculo crítico "
                    "publicado (centro 29.7, 53.2; radio 28.2 m).",
                    "EX1(a)");
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{70, 35}, {50, 35}, {30, 25}, {20, 25}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{51.24, 35}, {29.7, 25}});
  PonerTramos(p, {{1, 2, "C"}});
  Estratos(p, {{3 / 9.81, 19.6, 20 / 9.81, 20 / 9.81, 0, 0, 0, 0, {{70, 0}, {20, 0}}}});
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 4;
  pi.FSInicial = 1;
  pi.Radio = 28.2;
  pi.NúmeroDovelas = 30;
  return Terminar(p);
}

namespace {

// One rock mass (mi 10, σci 60) under the slope of the ACADS problem, on its circle: m and s of
// the mass from GSI without disturbance.
Proyecto TaludDeRoca(const std::string& descripción, double gsi) {
  Proyecto p = Base(descripción, "K1+000");
  p.TipoDeMaterial = "R";
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{70, 35}, {50, 35}, {30, 25}, {20, 25}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{51.24, 35}, {29.7, 25}});
  PonerTramos(p, {{1, 2, "C"}});
  Estratos(p, {{0, 0, 2, 2, 0, 0, 0, 0, {{70, 0}, {20, 0}}}});
  const ConstantesMacizo c = ConstantesHoekBrown(10, gsi, 0);
  auto& e = p.Estrato;
  e.m_intacta[1] = 10;
  e.Parámetro_GSI[1] = gsi;
  e.m_macizo[1] = c.m;
  e.s_macizo[1] = c.s;
  e.C_Simple[1] = 60;
  p.Roca.TipoDeObra = "S";
  p.Roca.AlturaH = 10;
  auto& pi = p.ParámetrosIniciales;
  pi.Radio = 28.2;
  pi.NúmeroDovelas = 30;
  return p;
}

}  // namespace

// A weak, blocky rock mass (GSI 20: the exponent a at the bases is 0.65 − 20/200 = 0.55) by
// Leshchinsky and Huang in rock, from µ1 = 40, µ2 = 70 and F = 1.5.
Proyecto TaludRocaLeshchinsky() {
  Proyecto p = TaludDeRoca("Talud de 10 m, 2H:1V, en un macizo rocoso débil (GSI 20, mi 10, compresión simple 60). "
                           "Método de Leshchinsky y Huang con el criterio de Hoek y Brown.",
                           20);
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 1;
  pi.Multiplicador1 = 40;
  pi.Multiplicador2 = 70;
  pi.FSInicial = 1.5;
  return Terminar(p);
}

// The same mass with m and s fitted to three triaxial tests (sigma 1, sigma 3 in ton/m2) on the
// laboratory screen: the pairs lie on (σ1 − σ3)² = 0.5·60·σ3 + 0.001·60², so the fit gives back
// m = 0.5 and s = 0.001. Janbu in rock.
Proyecto EnsayosDeRoca() {
  Proyecto p = TaludDeRoca("Macizo rocoso con m y s ajustados a ensayos triaxiales de laboratorio (tres pares de "
                           "esfuerzos principales). Método de Janbu aplicado a rocas.",
                           20);
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  auto& r = p.Roca;
  r.EnsayosDados = true;
  r.PuntosEnsayo.Redimensionar(1);
  r.PuntosEnsayo[1] = 3;
  r.EnsayoSigma1.Redimensionar(1, 3);
  r.EnsayoSigma3.Redimensionar(1, 3);
  const double σ3[] = {0, 5, 10};
  for (long j = 1; j <= 3; ++j) {
    const double x = σ3[j - 1];
    r.EnsayoSigma3(1, j) = x;
    r.EnsayoSigma1(1, j) = x + std::sqrt(0.5 * 60 * x + 0.001 * 60 * 60);
  }
  p.Estrato.m_macizo[1] = 0.5;
  p.Estrato.s_macizo[1] = 0.001;
  return Terminar(p);
}

// The ACADS problem after a first run of Janbu, saved with the second pass in instantaneous
// parameters between points (case 2) ordered, the letter "S" in the file: the methods refuse it
// until the command "Suelos o Rocas (parámetros instantáneos c,fi)" of the menu Calcular runs.
Proyecto InstantáneosTrasJanbu() {
  Proyecto p = JanbuACADS();
  p.Ventana.TextoProyecto =
      "Problema de referencia ACADS EX1(a) ya calculado por Janbu, para un segundo cálculo con "
      "parámetros instantáneos entre puntos (caso 2).";
  p.ParámetrosIniciales.ParámetrosInstantáneos = 2;
  InterfazGuionada ui;
  MétodoJanbu(p, ui);
  // The pass ordered: the file carries the letter "S" and the case.
  p.ParámetrosIniciales.UsaParámetrosInstantáneos = true;
  p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos = "S";
  return Terminar(p);
}

const std::vector<Ejemplo>& Ejemplos() {
  static const std::vector<Ejemplo> e = {
      {"talud_homogeneo.cod", TaludHomogéneo},
      {"talud_estratificado.cod", TaludEstratificado},
      {"falla_mixta_c.cod", FallaMixtaC},
      {"falla_polinomica.cod", FallaPolinómica},
      {"bishop_radio_variable.cod", BishopRadioVariable},
      {"janbu_acads.cod", JanbuACADS},
      {"talud_roca_leshchinsky.cod", TaludRocaLeshchinsky},
      {"ensayos_roca.cod", EnsayosDeRoca},
      {"instantaneos_tras_janbu.cod", InstantáneosTrasJanbu},
  };
  return e;
}

}  // namespace lomaterra::pruebas
