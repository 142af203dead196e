// The stress solutions on small meshes whose answers are known without the program: the
// self-weight column under rollers, a mesh that never yields and one that always does. Then the
// factor of safety from stresses on two elements and two slices, and on the seismic stresses of
// one step, checked by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "apoyo/apoyo.h"
#include "apoyo/proyectos.h"
#include "apoyo/sismo_apoyo.h"
#include "elementos/elemento.h"
#include "elementos/plastico.h"
#include "elementos/seguridad_esfuerzos.h"
#include "elementos/viscoplastico.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"

using namespace lomaterra;
using namespace lomaterra::pruebas;

namespace {

constexpr double kGamma = 1.8, kNu = 0.3;

// A column 2 m wide and 6 m high of linear triangles on rollers (pruebas/datos/elementos/
// columna.cod: E 5000, nu 0.3, gamma 1.8, viscosity 1000, interval 0.01): the sides slide
// vertically, the base horizontally, each as a stiff spring (10^12 kg/cm); the free direction of
// a roller takes ten times the material term of its diagonal (kg/cm, times 0.1 at use), so it
// keeps it.
Proyecto Columna(double c, double fi) {
  Proyecto p;
  InterfazGuionada ui;
  EXPECT_TRUE(LeerProyecto(p, pruebas::RutaDatos("elementos/columna.cod"), ui));
  p.Estrato.Cohesión[1] = c, p.Estrato.Fricción[1] = fi;
  p.Malla.ConfirmarElementos = true;  // the number of elements is confirmed in each session
  return p;
}

bool Contiene(const std::vector<std::string>& textos, const std::string& trozo) {
  auto tiene = [&](const std::string& t) { return t.find(trozo) != std::string::npos; };
  return std::any_of(textos.begin(), textos.end(), tiene);
}

int Pantallas(const InterfazGuionada& ui, const std::string& nombre) {
  int n = 0;
  for (const auto& a : ui.Transcripción()) n += a.tipo == "pantalla" && a.texto.find(nombre) != std::string::npos;
  return n;
}

}  // namespace

// Far from yield: one step, no elastic screen, no convergence message; the finish screen only;
// displacements in centimetres (the base settles by about gamma H² / (2 M) with M the
// constrained modulus, some millimetres here). Self weight on rollers: sigma y = -gamma d and
// sigma x = nu/(1 - nu) sigma y at the depth d of the two lowest triangles' mean height.
TEST(Viscoplástico, PuertasMallaElásticaYFluenciaPequeña) {
  Proyecto p = Columna(1000, 30);
  Proyecto plástico = p;
  InterfazGuionada ui;
  CálculoEsfuerzosComportamientoViscoplástico(p, ui);
  EXPECT_EQ(p.Malla.NúmeroDeIteración, 1);
  EXPECT_LE(p.Malla.FluenciaMáxima, 0.05);
  EXPECT_EQ(Pantallas(ui, "Form26"), 1);
  const auto t = ui.Textos();
  EXPECT_FALSE(Contiene(t, "elasticamente"));
  EXPECT_FALSE(Contiene(t, "no lográndose la convergencia"));
  EXPECT_EQ(t.back(), "Se finalizó el cálculo de esfuerzos y desplazamientos considerando un comportamiento viscoplástico.");
  // Top of the middle column: settlement gamma H² / (2 M), M = E (1 - nu) / ((1 + nu)(1 - 2 nu)).
  const double M = 5000 * (1 - kNu) / ((1 + kNu) * (1 - 2 * kNu));
  const long cima = 1 + 1 * 7 + 6;
  EXPECT_NEAR(p.Malla.Desplazamientos(2 * cima, 1), -100 * kGamma * 36 / (2 * M), 0.1 * 100 * kGamma * 36 / (2 * M));
  double sx = 0, sy = 0, y = 0;
  const auto& el = p.Malla.Elemento;
  for (long e = 1; e <= p.Malla.NúmeroDeElementos; ++e) {
    const double yc = (el.YElemento(e, 1) + el.YElemento(e, 2) + el.YElemento(e, 3)) / 3;
    if (yc < 1) sx += p.Malla.EsfuerzoX(e, 1) / 4, sy += p.Malla.EsfuerzoY(e, 1) / 4, y += yc / 4;
  }
  const double esperadoY = -kGamma * (6 - y);
  EXPECT_NEAR(sy, esperadoY, 0.01 * std::abs(esperadoY));
  EXPECT_NEAR(sx, kNu / (1 - kNu) * esperadoY, 0.01 * std::abs(kNu / (1 - kNu) * esperadoY));
  // Perfect plasticity far from yield: the plastic step 2 repeats the elastic step 1.
  InterfazGuionada otra;
  CálculoEsfuerzosComportamientoPlástico(plástico, otra);
  const MallaElementos& w = plástico.Malla;
  ASSERT_EQ(w.NúmeroDeIteración, 2);
  for (long e = 1; e <= w.NúmeroDeElementos; ++e) {
    EXPECT_EQ(w.EsfuerzoY(e, 2), w.EsfuerzoY(e, 1));
    EXPECT_EQ(w.EsfuerzoPrincipalMenor(e, 2), w.EsfuerzoPrincipalMenor(e, 1));
  }
  for (long d = 1; d <= 2L * w.NúmeroDeNodos; ++d)
    EXPECT_EQ(w.Desplazamientos(d, 2), w.Desplazamientos(d, 1));
  EXPECT_EQ(Pantallas(otra, "Form29"), 1);
  // A column that yields a little: cohesion 2.65 and 10 degrees give at depth d, under sigma y =
  // -1.8 d and sigma x = 0.4286 sigma y, F = 0.504 d - 0.985 c, some 0.25 at the lowest centres
  // (d = 5.67). Such points still push the next step. Their time step is the critical one,
  // 4 (1 + nu)(1 - 2 nu) eta / ((sin² phi + 1 - 2 nu) E) = 2.08 / (0.43015 * 5000) = 9.671e-4 for
  // eta = 1, below the interval 0.01 of the mesh.
  Proyecto poca = Columna(2.65, 10);
  poca.Estrato.Viscosidad[1] = 1;
  InterfazGuionada uf;
  CálculoEsfuerzosComportamientoViscoplástico(poca, uf);
  const MallaElementos& m = poca.Malla;
  double mayor = -1e9;
  for (long k = 1; k <= 3 * m.NúmeroDeElementos; ++k) mayor = std::max(mayor, m.FunciónFluencia.Leer(k, 1));
  ASSERT_TRUE(mayor > 0.1 && mayor < 0.4 && m.NúmeroDeIteración >= 2) << mayor;
  EXPECT_NEAR(m.TiempoAcumulado[1], 2.08 / ((std::pow(std::sin(10 * M_PI / 180), 2) + 0.4) * 5000), 1e-12);
  bool mueve = false;
  for (long d = 1; d <= 2L * m.NúmeroDeNodos; ++d) mueve = mueve || m.Desplazamientos(d, 2) != m.Desplazamientos(d, 1);
  EXPECT_TRUE(mueve);
  // The gates in order, word for word.
  const Proyecto base = Columna(1000, 30);
  const std::pair<std::function<void(Proyecto&)>, std::string> casos[] = {
      {[](Proyecto& q) { q.TipoDeAnálisis = "T"; }, "Ud. no está trabajando con elementos finitos"},
      {[](Proyecto& q) { q.EstratosCaracterizados = false; },
       "No se han dado los parámetros geotécnicos de los suelos. Vaya al menú 'Parámetros y Cargas' en la opción "
       "'Características geotécnicas'"},
      {[](Proyecto& q) { q.Malla.RestriccionesTrasRefinar = false; },
       "Vaya a la opción Nodos con restricción, e inserte los nuevos Nodos con está característica, debido al "
       "incremento de número de elementos."},
      {[](Proyecto& q) { q.Malla.CaracterísticasElásticasDadas = false; },
       "No se ha caracterizado los materiales con sus propiedades elásticas. Vaya al Menú Elemeentos finitos y "
       "seleccione parámetros de los estratos."},
      {[](Proyecto& q) { q.Malla.ConfirmarElementos = false; }, "Confirme primero el número de elementos."},
      {[](Proyecto& q) { q.Sísmico.RegistroDado = true; },
       "Existe  datos o registros para análisis sísmicos. Por tanto, esa información  se borrará (ningún archivo se "
       "borra, solo lo cargado en memoria) ya que se va hacer estimaciones considerando el modelo "
       "elástico-viscoplástico.  ¿Desea continuar?."},
  };
  for (const auto& [cambio, texto] : casos) {
    Proyecto q = base;
    cambio(q);
    InterfazGuionada ui("N");
    CálculoEsfuerzosComportamientoViscoplástico(q, ui);
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{texto});
    EXPECT_FALSE(q.CálculoHecho);
  }
}

// Perfect plasticity, the plastic step of each yielding triangle: its strain is D^-1 of its
// elastic stress, and its plastic strain the flow vector a times t, the projection of the strain
// on a in the measure where the volumetric part weighs l = nu / (1 - 2 nu) more:
// t = (e.a + l (a1 + a2)(e1 + e2)) / (a.a + l (a1 + a2)²). The stress of the step is
// Dp e + (D - Dp)^T t a.
// Viscoplastic, with no cohesion and little friction the column yields and goes on yielding: the
// loop runs its four steps, shows the elastic screen after the first and ends with the message.
TEST(Plástico, FluenciaALaManoBarridoJacobiYPasoDeCadaPuntoQueFluye) {
  Proyecto p = Columna(0, 5);
  Proyecto viscoso = p;
  InterfazGuionada ui;
  CálculoEsfuerzosComportamientoPlástico(p, ui);
  const MallaElementos& m = p.Malla;
  const double fi = 5 * M_PI / 180, s = std::sin(fi), l = kNu / (1 - 2 * kNu);
  const MatrizD D = MatrizConstitutiva(5000, kNu);
  const double det = D.D[1][1] * D.D[1][1] - D.D[1][2] * D.D[1][2];
  int fluyen = 0;
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    const double sx = m.EsfuerzoX(e, 1), sy = m.EsfuerzoY(e, 1), t = m.EsfuerzoXY(e, 1);
    const EstadoFluencia f = FunciónDeFluencia(sx, sy, t, fi, 0);
    if (f.F <= 0) continue;
    ++fluyen;
    const double eps[4] = {0, (D.D[1][1] * sx - D.D[1][2] * sy) / det, (D.D[1][1] * sy - D.D[1][2] * sx) / det,
                           t / D.D[3][3]};
    const double q = std::sqrt(9 + 3 * s * s) / (6 * std::sqrt(f.J));
    const double a[4] = {0, s / 3 + q * f.sx, s / 3 + q * f.sy, 2 * q * t}, pa = a[1] + a[2];
    const double k = (eps[1] * a[1] + eps[2] * a[2] + eps[3] * a[3] + l * pa * (eps[1] + eps[2])) /
                     (a[1] * a[1] + a[2] * a[2] + a[3] * a[3] + l * pa * pa);
    const MatrizD Dp = MatrizPlástica(5000, kNu, f, t);
    double esperado[4] = {};
    for (int r = 1; r <= 3; ++r)
      for (int c = 1; c <= 3; ++c) esperado[r] += Dp.D[r][c] * eps[c] + k * a[c] * (D.D[c][r] - Dp.D[c][r]);
    EXPECT_NEAR(m.EsfuerzoX(e, 2), esperado[1], 1e-9 * (1 + std::abs(esperado[1]))) << e;
    EXPECT_NEAR(m.EsfuerzoY(e, 2), esperado[2], 1e-9 * (1 + std::abs(esperado[2]))) << e;
    EXPECT_NEAR(m.EsfuerzoXY(e, 2), esperado[3], 1e-9 * (1 + std::abs(esperado[3]))) << e;
  }
  EXPECT_GT(fluyen, 0);
  // No number lost: the yielding column changes its stresses, all finite.
  EXPECT_GT(m.FluenciaMáxima, 0);
  bool cambia = false;
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    EXPECT_TRUE(std::isfinite(m.EsfuerzoY(e, 2)) && std::isfinite(m.EsfuerzoX(e, 2)));
    cambia = cambia || m.EsfuerzoX(e, 2) != m.EsfuerzoX(e, 1);
  }
  EXPECT_TRUE(cambia);
  for (long d = 1; d <= 2L * m.NúmeroDeNodos; ++d) EXPECT_TRUE(std::isfinite(m.Desplazamientos(d, 2)));
  InterfazGuionada vui;
  CálculoEsfuerzosComportamientoViscoplástico(viscoso, vui);
  const MallaElementos& v = viscoso.Malla;
  EXPECT_TRUE(v.NúmeroDeIteración == 4 && v.CálculoViscoplásticoHecho && viscoso.CálculoHecho);
  EXPECT_EQ(Pantallas(vui, "Form26"), 2);
  const auto t = vui.Textos();
  EXPECT_TRUE(Contiene(t, "A continuación se presenta una pantalla donde se aprecia los valores de las funciones de "
                          "fluencia, desplazamientos y esfuerzos cuando se considera que el suelo se comporta "
                          "elasticamente."));
  EXPECT_TRUE(Contiene(t, "Existe algún elemento o elementos donde los esfuerzos son mayores a la resistencia del "
                          "cortante, no lográndose la convergencia para esos puntos, cuando se tiene un "
                          "comportamiento viscoplástico."));
  for (long e = 1; e <= v.NúmeroDeElementos; ++e) EXPECT_FALSE(std::isnan(v.EsfuerzoY(e, 4)));
  // The sweep on a diagonally dominant system converges to its solution: 4x + y = 9, x + 3y = 8
  // gives x = 19/11, y = 23/11.
  const std::vector<double> x = BarridoJacobi({4, 1, 1, 3}, {9, 8}, 2);
  EXPECT_TRUE(std::abs(x[0] - 19.0 / 11) < 0.002 && std::abs(x[1] - 23.0 / 11) < 0.002);
  // Yield function by hand. With phi = 0 it is Tresca: a = 0, J = tau² + (sy - sx)²/2, F = sqrt(J) - c.
  // Under equal normal stresses and no shear, J = 0 and F = sin phi · sigma - c cos phi.
  const struct { double sx, sy, t, fi, c, F; } casos[] = {
      {0, 0, 5, 0, 2, 3},
      {-4, 4, 0, 0, 1, std::sqrt(32.0) - 1},
      {-10, -10, 0, 30, 1, -5 - std::cos(M_PI / 6)},
  };
  for (const auto& k : casos) {
    const EstadoFluencia f = FunciónDeFluencia(k.sx, k.sy, k.t, k.fi * 3.14159265358979 / 180, k.c);
    EXPECT_NEAR(f.F, k.F, 1e-9) << k.sx << " " << k.sy << " " << k.t;
  }
}

namespace {

// Failure line from (10, 5) to (0, 0), two slices 5 m wide at x = 7.5 and 2.5; element 1 near the
// first slice, element 2 near the second. Stresses of the last step (4) and of step 1.
Proyecto DosDovelas() {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  p.TipoDeMaterial = "S";
  p.CálculoHecho = p.ParámetrosInicialesDados = true;
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{10, 5}, {0, 0}});
  pruebas::PonerTramos(p, {{1, 2, "L"}});
  auto& pi = p.ParámetrosIniciales;
  pi.NúmeroDovelas = 2, pi.FSInicial = 1.5, pi.MétodoDeCálculo = 4;
  p.NúmeroEstratos = 1;
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.Cohesión[1] = 1;
  p.Estrato.Fricción[1] = 30;
  MallaElementos& m = p.Malla;
  m.NúmeroDeElementos = 2;
  m.Elemento.Redimensionar(2);
  m.Elemento.XCentroElemento[1] = 7.5, m.Elemento.YCentroElemento[1] = 3.5;
  m.Elemento.XCentroElemento[2] = 2.5, m.Elemento.YCentroElemento[2] = 1.0;
  m.Elemento.MaterialDeElemento[1] = m.Elemento.MaterialDeElemento[2] = 1;
  m.NúmeroDeIteración = 4;
  for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY}) t->Redimensionar(2, 4);
  // Last step: element 1 compressed with some shear, element 2 in vertical tension.
  m.EsfuerzoX(1, 4) = -5, m.EsfuerzoY(1, 4) = -10, m.EsfuerzoXY(1, 4) = 1;
  m.EsfuerzoX(2, 4) = -2, m.EsfuerzoY(2, 4) = 2, m.EsfuerzoXY(2, 4) = 0;
  // Step 1: both compressed.
  m.EsfuerzoX(1, 1) = -6, m.EsfuerzoY(1, 1) = -12, m.EsfuerzoXY(1, 1) = 0;
  m.EsfuerzoX(2, 1) = -2, m.EsfuerzoY(2, 1) = -4, m.EsfuerzoXY(2, 1) = 0;
  return p;
}

// Force form by hand. Both slices share alpha = atan(5 / 10.01) (the 0.01 of the reading rule), so
// F = sum(A) / (cos² alpha (tan alpha t / F + 1) sum(Dv)), whose fixed point is
// F = sum(A) / (cos² alpha sum(Dv)) - tan alpha t, with W = -sigma y b + tau b tan alpha,
// A = c b + W t (W < 0: -0.2 tan(45° - phi/2) c b + W t), Dv = (W - b sigma x) tan alpha.
double FuerzasALaMano(const double sx[2], const double sy[2], const double tau[2]) {
  const double al = std::atan(5 / 10.01), b = 5, c = 1, fi = M_PI / 6, t = std::tan(fi);
  double A = 0, Dv = 0;
  for (int i = 0; i < 2; ++i) {
    const double W = -sy[i] * b + tau[i] * b * std::tan(al);
    A += (W >= 0 ? c * b : -0.2 * std::tan(M_PI / 4 - fi / 2) * c * b) + W * t;
    Dv += (W - b * sx[i]) * std::tan(al);
  }
  return A / (std::cos(al) * std::cos(al) * Dv) - std::tan(al) * t;
}

// The moment form with sigma y = -10 and no sigma x or tau in both elements, c = 5.
Proyecto Momentos(double fi, const pruebas::Puntos& talud) {
  Proyecto p = DosDovelas();
  p.ParámetrosIniciales.MétodoDeCálculo = 2;
  p.Estrato.Fricción[1] = fi;
  p.Estrato.Cohesión[1] = 5;
  pruebas::PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, talud);
  MallaElementos& m = p.Malla;
  for (long e = 1; e <= 2; ++e)
    for (long i : {1L, 4L}) m.EsfuerzoX(e, i) = m.EsfuerzoXY(e, i) = 0, m.EsfuerzoY(e, i) = -10;
  InterfazGuionada ui;
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, ui);
  return p;
}

}  // namespace

TEST(FactorDesdeEsfuerzos, FormasDeFuerzasYDeMomentosALaManoYPuertas) {
  Proyecto p = DosDovelas();
  p.CálculoHecho = false;
  InterfazGuionada ui;
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].texto,
            "No se ha hecho ningún cálculo de esfuerzos considerando un comportamiento viscoplástico del material.");
  EXPECT_EQ(ui.Transcripción()[0].título, "No hay cálculos:");
  p.CálculoHecho = true;
  ui.Olvidar();
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, ui);
  EXPECT_EQ(p.Malla.ElementoDeDovela[1], 1);
  EXPECT_EQ(p.Malla.ElementoDeDovela[2], 2);
  const double sx4[2] = {-5, -2}, sy4[2] = {-10, 2}, t4[2] = {1, 0};
  const double sx1[2] = {-6, -2}, sy1[2] = {-12, -4}, t1[2] = {0, 0};
  // The iteration stops within 0.02 of a step; the contraction of this map is small.
  EXPECT_NEAR(p.Malla.FSViscoplástico, FuerzasALaMano(sx4, sy4, t4), 0.02);
  EXPECT_NEAR(p.Malla.FSElástico, FuerzasALaMano(sx1, sy1, t1), 0.02);
  ASSERT_EQ(ui.Textos().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].título, "Factor de seguridad:");
  p.Malla.FSViscoplástico = 1.2;
  InterfazGuionada no("N");
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, no);
  EXPECT_EQ(no.Textos(), std::vector<std::string>{"El factor de seguridad ya se estimó considerando un comportamiento "
                                                  "viscoplástico. ¿Desea volver a calcularlo?"});
  EXPECT_EQ(p.Malla.FSViscoplástico, 1.2);
  // Moment form about the point ((x last - x first)/2, (y last - y first)/2) of the slope line. With
  // no friction (t = 0) and sigma x = tau = 0: R = c b / cos a, N = (W - tan a b c / F) / cos a, and
  // with k = (dy sin a + dx cos a) the equation F = sum(R (sin a dx - cos a dy)) / sum(k N) has the
  // root F = (num + S2) / S1, S1 = sum(k W / cos a), S2 = sum(k tan a b c / cos a).
  const Proyecto sin = Momentos(0, {{0, 0}, {20, 30}});
  const double cx = 10, cy = 15, a = std::atan(5 / 10.01), b = 5, W = 50, c = 5;
  double num = 0, S1 = 0, S2 = 0;
  for (double x : {7.5, 2.5}) {
    const double y = (x - 10) * 5 / 10.01 + 5;
    const double k = (y - cy) * std::sin(a) + (x - cx) * std::cos(a);
    num += c * b / std::cos(a) * (std::sin(a) * (x - cx) - std::cos(a) * (y - cy));
    S1 += k * W / std::cos(a);
    S2 += k * std::tan(a) * b * c / std::cos(a);
  }
  EXPECT_NEAR(sin.Malla.FSViscoplástico, (num + S2) / S1, 0.02);
  EXPECT_NEAR(sin.Malla.FSElástico, (num + S2) / S1, 0.02);
  // The same form with friction (30 degrees, c = 5) about (-5, 15): N = (W - tan a b c / F) / m_a with
  // m_a = cos a + sin a tan phi / F, R = c b / cos a + tan phi N. The root of F = sum(R (sin a dx -
  // cos a dy)) / sum(k N), found here by halving [2, 10], is 5.2652.
  const Proyecto con = Momentos(30, {{10, 0}, {0, 30}});
  const double t = std::tan(M_PI / 6);
  auto resto = [&](double F) {
    double num = 0, den = 0;
    for (double x : {7.5, 2.5}) {
      const double dx = x + 5, dy = (x - 10) * 5 / 10.01 + 5 - 15;
      const double N = (W - std::tan(a) * b * c / F) / (std::cos(a) + std::sin(a) * t / F);
      num += (c * b / std::cos(a) + t * N) * (std::sin(a) * dx - std::cos(a) * dy);
      den += (dy * std::sin(a) + dx * std::cos(a)) * N;
    }
    return num / den - F;
  };
  double bajo = 2, alto = 10;
  for (int k = 0; k < 60; ++k) (resto((bajo + alto) / 2) > 0 ? bajo : alto) = (bajo + alto) / 2;
  EXPECT_NEAR(bajo, 5.2652, 1e-4);
  EXPECT_NEAR(con.Malla.FSViscoplástico, bajo, 0.02);
}

// The factor of safety on the seismic stresses of one step, worked by hand.
// Failure line from (9.99, 5) to (0, 0): the reading rule's 0.01 makes its slope 5 / 10 = 0.5, so
// every slice has tan a = 0.5 and cos² a = 1 / 1.25 = 0.8. Cohesion 6, no friction, tau = 0, the
// same stresses in both elements. The force form then needs no iteration:
//   W = -sigma y b,  A = c b,  Dv = (W - b sigma x) tan a,  mA = cos² a
//   F = c / (0.8 (-sigma y - sigma x) 0.5)
// step 1: sigma y = -10  -> F = 6 / 4 = 1.5
// step 2: sigma y = -20  -> F = 6 / 8 = 0.75
// step 3: sigma y = -10, sigma x = -4 -> F = 6 / 5.6 = 1.0714...
namespace {

Proyecto CasoSísmico() {
  Proyecto p = pruebas::SismoAMano();
  p.ParámetrosInicialesDados = true;
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{9.99, 5}, {0, 0}});
  pruebas::PonerTramos(p, {{1, 2, "L"}});
  p.ParámetrosIniciales.NúmeroDovelas = 4, p.ParámetrosIniciales.FSInicial = 1;
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  p.NúmeroEstratos = 1;
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.Cohesión[1] = 6;
  p.Sísmico.EsfuerzoX(3, 1) = p.Sísmico.EsfuerzoX(3, 2) = -4;
  p.Sísmico.EsfuerzoXY(2, 2) = 0;
  return p;
}

}  // namespace

TEST(FactorSísmico, ElPasoElegidoOElÚltimoYElMenorGuardado) {
  const struct { DatosSísmicos::Entero elegido; double F; long paso; } casos[] = {
      {1, 1.5, 1}, {2, 0.75, 2}, {0, 6 / 5.6, 3}, {7, 6 / 5.6, 3}, {-1, 0, 0}};
  for (const auto& c : casos) {
    Proyecto p = CasoSísmico();
    p.Sísmico.RegistroSeleccionado = c.elegido;
    p.Sísmico.ResultadosSísmicos = c.elegido >= 0;  // the last case: no seismic run
    InterfazGuionada ui;
    FactorDeSeguridadDeslizamientoAnálisisSísmico(p, ui);
    ASSERT_EQ(ui.Transcripción().size(), 1u);
    if (c.elegido < 0) {
      EXPECT_EQ(ui.Textos()[0], "No se ha hecho ningún cálculo de esfuerzos considerando análisis sísmico");
      EXPECT_EQ(ui.Transcripción()[0].título, "No hay cálculos:");
    }
    EXPECT_NEAR(p.Malla.FSSísmico, c.F, 1e-12) << c.elegido;
    EXPECT_EQ(p.Sísmico.PasoFactorSísmico, c.paso);
    EXPECT_EQ(ui.Textos()[0].find("registro " + std::to_string(c.paso)) != std::string::npos, c.paso > 0);
  }
  Proyecto p = CasoSísmico();
  InterfazGuionada ui("SN");
  for (DatosSísmicos::Entero k : {1, 2, 3}) {
    p.Sísmico.RegistroSeleccionado = k;
    FactorDeSeguridadDeslizamientoAnálisisSísmico(p, ui);
  }
  // The third run was refused.
  for (double F : {p.Malla.FSSísmico, p.Sísmico.FactorSísmicoMínimo}) EXPECT_NEAR(F, 0.75, 1e-12);
  EXPECT_EQ(p.Sísmico.PasoFactorSísmico, 2);
  EXPECT_EQ(ui.Transcripción()[1].texto,
            "El factor de seguridad ya se estimó de los resultados de análisis sísmico. ¿Desea volver a calcularlo?");
  const auto v = FactoresSísmicosPorPaso(p);
  ASSERT_EQ(v.size(), 3u);
  EXPECT_NEAR(v[0].second, 1.5, 1e-12);
  EXPECT_NEAR(v[2].second, 6 / 5.6, 1e-12);
}

