// The stress solutions on small meshes whose answers are known without the program: the
// self-weight column under rollers, a mesh that never yields and one that always does.
#include <gtest/gtest.h>

#include <cmath>

#include "elementos/elemento.h"
#include "elementos/malla_apoyo.h"
#include "elementos/plastico.h"
#include "elementos/viscoplastico.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

using namespace lomaterra;
using namespace lomaterra::pruebas;

namespace {

constexpr double kGamma = 1.8, kNu = 0.3;

// A column `columnas` m wide and `filas` m high on rollers: the sides slide vertically, the base
// horizontally, each as a stiff spring (10^12 kg/cm).
void Columna(Proyecto& p, long columnas, long filas, double c, double fi) {
  ProyectoUnEstrato(p, static_cast<double>(columnas), static_cast<double>(filas) + 0.0085, 5000, kNu, kGamma);
  MallaRejilla(p, columnas, filas, 1.0, 1.0);
  p.EstratosCaracterizados = true;
  p.Estrato.Cohesión[1] = c;
  p.Estrato.Fricción[1] = fi;
  p.Estrato.Viscosidad[1] = 1000;
  p.Malla.IntervaloDeTiempo = 0.01;
  MallaElementos& m = p.Malla;
  // A listed direction takes its spring in place of the material term of the diagonal: the free
  // direction of a roller takes ten times that term (kg/cm, times 0.1 at use), so it keeps it.
  InterfazGuionada sinVoz;
  CálculoElementos k;
  k.reloj = [] { return 0.0; };
  Elementotriangular(p, sinVoz, k);
  std::vector<long> filasR;
  for (long i = 0; i <= columnas; ++i)
    for (long j = 0; j <= filas; ++j)
      if (i == 0 || i == columnas || j == 0) filasR.push_back(1 + i * (filas + 1) + j);
  m.NúmeroNodosConRestricción = static_cast<std::int32_t>(filasR.size());
  m.NodoConRestricción.Redimensionar(static_cast<long>(filasR.size()));
  for (std::size_t q = 0; q < filasR.size(); ++q) {
    const long r = static_cast<long>(q) + 1, n = filasR[q];
    const long i = (n - 1) / (filas + 1), j = (n - 1) % (filas + 1);
    m.NodoConRestricción.NodoRestringido[r] = static_cast<double>(n);
    m.NodoConRestricción.RestricciónX[r] = m.NodoConRestricción.RestricciónY[r] = "S";
    m.NodoConRestricción.ResorteX[r] = (i == 0 || i == columnas) ? 1e12 : 10 * k.MatrizRigidez->Diagonal(2 * n - 1);
    m.NodoConRestricción.ResorteY[r] = j == 0 ? 1e12 : 10 * k.MatrizRigidez->Diagonal(2 * n);
  }
  m.NodosRestringidosDefinidos = true;
}

bool Contiene(const std::vector<std::string>& textos, const std::string& trozo) {
  for (const auto& t : textos)
    if (t.find(trozo) != std::string::npos) return true;
  return false;
}

int Pantallas(const InterfazGuionada& ui, const std::string& nombre) {
  int n = 0;
  for (const auto& a : ui.Transcripción()) n += a.tipo == "pantalla" && a.texto.find(nombre) != std::string::npos;
  return n;
}

}  // namespace

// Yield function by hand. With phi = 0 it is Tresca: a = 0, J = tau² + (sy - sx)²/2, F = sqrt(J) - c.
// Under equal normal stresses and no shear, J = 0 and F = sin phi · sigma - c cos phi.
TEST(Fluencia, CasosALaMano) {
  struct Caso {
    double sx, sy, t, fi, c, F;
  } casos[] = {
      {0, 0, 5, 0, 2, 3},
      {-4, 4, 0, 0, 1, std::sqrt(32.0) - 1},
      {-10, -10, 0, 30, 1, -5 - std::cos(M_PI / 6)},
  };
  for (const Caso& k : casos) {
    const EstadoFluencia f = FunciónDeFluencia(k.sx, k.sy, k.t, k.fi * 3.14159265358979 / 180, k.c);
    EXPECT_NEAR(f.F, k.F, 1e-9) << k.sx << " " << k.sy << " " << k.t;
  }
}

// Self weight on rollers: sigma y = -gamma d and sigma x = nu/(1 - nu) sigma y, with d the depth
// below the top. Each row's two triangles are read at their mean height, below the top 2 m.
TEST(Viscoplástico, ColumnaDePesoPropioEnRodillos) {
  for (TipoAlmacén tipo : {TipoAlmacén::Perfil, TipoAlmacén::Denso}) {
    Proyecto p;
    const long filas = 12;
    Columna(p, 2, filas, 1000, 30);
    InterfazGuionada ui;
    CálculoEsfuerzosComportamientoViscoplástico(p, ui, tipo);
    ASSERT_TRUE(p.CálculoHecho);
    ASSERT_EQ(p.Malla.NúmeroDeIteración, 1);
    const MallaElementos& m = p.Malla;
    const double cima = static_cast<double>(filas);
    for (long j = 0; j < filas - 2; ++j) {
      double sx = 0, sy = 0, y = 0;
      int n = 0;
      for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
        if (std::floor(m.Elemento.YCentroElemento[e]) != static_cast<double>(j)) continue;
        sx += m.EsfuerzoX(e, 1);
        sy += m.EsfuerzoY(e, 1);
        y += m.Elemento.YCentroElemento[e];
        ++n;
      }
      ASSERT_EQ(n, 4);
      const double esperadoY = -kGamma * (cima - y / n);
      EXPECT_NEAR(sy / n, esperadoY, 0.01 * std::abs(esperadoY)) << "fila " << j;
      EXPECT_NEAR(sx / n, kNu / (1 - kNu) * esperadoY, 0.01 * std::abs(kNu / (1 - kNu) * esperadoY)) << "fila " << j;
    }
  }
}

// Far from yield: one step, no elastic screen, no convergence message; the finish screen only;
// displacements in centimetres (the base settles by about gamma H² / (2 M) with M the
// constrained modulus, some millimetres here).
TEST(Viscoplástico, MallaElásticaTerminaEnElPrimerPaso) {
  Proyecto p;
  Columna(p, 2, 6, 1000, 30);
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
}

// No cohesion and little friction: the column yields and goes on yielding, the loop runs its four
// steps, shows the elastic screen after the first and ends with the message.
TEST(Viscoplástico, MallaQueFluyeLlegaAlCuartoPaso) {
  Proyecto p;
  Columna(p, 2, 6, 0, 5);
  InterfazGuionada ui;
  CálculoEsfuerzosComportamientoViscoplástico(p, ui);
  EXPECT_EQ(p.Malla.NúmeroDeIteración, 4);
  EXPECT_TRUE(p.Malla.CálculoViscoplásticoHecho);
  EXPECT_TRUE(p.CálculoHecho);
  EXPECT_EQ(Pantallas(ui, "Form26"), 2);
  const auto t = ui.Textos();
  EXPECT_TRUE(Contiene(t, "A continuación se presenta una pantalla donde se aprecia los valores de las funciones de "
                          "fluencia, desplazamientos y esfuerzos cuando se considera que el suelo se comporta "
                          "elasticamente."));
  EXPECT_TRUE(Contiene(t, "Existe algún elemento o elementos donde los esfuerzos son mayores a la resistencia del "
                          "cortante, no lográndose la convergencia para esos puntos, cuando se tiene un "
                          "comportamiento viscoplástico."));
  for (long e = 1; e <= p.Malla.NúmeroDeElementos; ++e) EXPECT_FALSE(std::isnan(p.Malla.EsfuerzoY(e, 4)));
}

// A column that yields a little: cohesion 2.65 and 10 degrees give at depth d, under sigma y =
// -1.8 d and sigma x = 0.4286 sigma y, F = 0.504 d - 0.985 c, some 0.25 at the lowest centres
// (d = 5.67). Such points still push the next step. Their time step is the critical one,
// 4 (1 + nu)(1 - 2 nu) eta / ((sin² phi + 1 - 2 nu) E) = 2.08 / (0.43015 * 5000) = 9.671e-4 for
// eta = 1, below the interval 0.01 of the mesh.
TEST(Viscoplástico, FluenciaPequeñaYPasoCrítico) {
  Proyecto p;
  Columna(p, 2, 6, 2.65, 10);
  p.Estrato.Viscosidad[1] = 1;
  InterfazGuionada ui;
  CálculoEsfuerzosComportamientoViscoplástico(p, ui);
  const MallaElementos& m = p.Malla;
  double mayor = -1e9;
  for (long k = 1; k <= 3 * m.NúmeroDeElementos; ++k) mayor = std::max(mayor, m.FunciónFluencia.Leer(k, 1));
  ASSERT_GT(mayor, 0.1);
  ASSERT_LT(mayor, 0.4);
  ASSERT_GE(m.NúmeroDeIteración, 2);
  EXPECT_NEAR(m.TiempoAcumulado[1], 2.08 / ((std::pow(std::sin(10 * M_PI / 180), 2) + 0.4) * 5000), 1e-12);
  bool mueve = false;
  for (long d = 1; d <= 2L * m.NúmeroDeNodos; ++d) mueve = mueve || m.Desplazamientos(d, 2) != m.Desplazamientos(d, 1);
  EXPECT_TRUE(mueve);
}

// The gates in order, word for word.
TEST(Viscoplástico, Puertas) {
  Proyecto p;
  Columna(p, 2, 2, 1000, 30);
  struct Caso {
    std::function<void(Proyecto&)> cambio;
    std::string texto;
  } casos[] = {
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
  for (const Caso& k : casos) {
    Proyecto q = p;
    k.cambio(q);
    InterfazGuionada ui("N");
    CálculoEsfuerzosComportamientoViscoplástico(q, ui);
    ASSERT_EQ(ui.Textos().size(), 1u);
    EXPECT_EQ(ui.Textos()[0], k.texto);
    EXPECT_FALSE(q.CálculoHecho);
  }
}

// Perfect plasticity: far from yield the plastic column repeats the elastic one; a column that
// yields changes its stresses and keeps its restrained base in place.
TEST(Plástico, SinFluenciaElPasoDosRepiteElUno) {
  Proyecto p;
  Columna(p, 2, 6, 1000, 30);
  InterfazGuionada ui;
  CálculoEsfuerzosComportamientoPlástico(p, ui);
  const MallaElementos& m = p.Malla;
  ASSERT_EQ(m.NúmeroDeIteración, 2);
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    EXPECT_EQ(m.EsfuerzoY(e, 2), m.EsfuerzoY(e, 1));
    EXPECT_EQ(m.EsfuerzoPrincipalMenor(e, 2), m.EsfuerzoPrincipalMenor(e, 1));
  }
  for (long d = 1; d <= 2L * m.NúmeroDeNodos; ++d) EXPECT_EQ(m.Desplazamientos(d, 2), m.Desplazamientos(d, 1));
  EXPECT_EQ(Pantallas(ui, "Form29"), 1);
}

// The sweep on a diagonally dominant system converges to its solution: 4x + y = 9, x + 3y = 8
// gives x = 19/11, y = 23/11.
TEST(Plástico, BarridoJacobiEnUnSistemaDominante) {
  const std::vector<double> x = BarridoJacobi({4, 1, 1, 3}, {9, 8}, 2);
  EXPECT_NEAR(x[0], 19.0 / 11, 0.002);
  EXPECT_NEAR(x[1], 23.0 / 11, 0.002);
}

// The plastic step of each yielding triangle: its strain is D^-1 of its elastic stress, and its
// plastic strain the flow vector a times t, the projection of the strain on a in the measure where
// the volumetric part weighs l = nu / (1 - 2 nu) more: t = (e.a + l (a1 + a2)(e1 + e2)) /
// (a.a + l (a1 + a2)²). The stress of the step is Dp e + (D - Dp)^T t a.
TEST(Plástico, PasoDeCadaPuntoQueFluye) {
  Proyecto p;
  Columna(p, 2, 6, 0, 5);
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
}

TEST(Plástico, ColumnaQueFluyeSinNúmerosPerdidos) {
  Proyecto p;
  Columna(p, 2, 6, 0, 5);
  InterfazGuionada ui;
  CálculoEsfuerzosComportamientoPlástico(p, ui);
  const MallaElementos& m = p.Malla;
  ASSERT_GT(m.FluenciaMáxima, 0);
  bool cambia = false;
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    EXPECT_TRUE(std::isfinite(m.EsfuerzoY(e, 2)) && std::isfinite(m.EsfuerzoX(e, 2)));
    cambia = cambia || m.EsfuerzoX(e, 2) != m.EsfuerzoX(e, 1);
  }
  EXPECT_TRUE(cambia);
  for (long d = 1; d <= 2L * m.NúmeroDeNodos; ++d) EXPECT_TRUE(std::isfinite(m.Desplazamientos(d, 2)));
}
