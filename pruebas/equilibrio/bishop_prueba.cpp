// Bishop on slice tables filled by hand. The six stage flags are set and the stage question is
// answered No, so the method works on exactly these slices.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/acads_apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/textos_apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

const std::string kFin = pruebas::Final("Bishop");

// Three slices under an arc of radius 5 centred at (0, 5). Their middles at x = 3, 1.4 and 0 give
// sin a = 0.6, 0.28, 0 (cos a = 0.8, 0.96, 1) and lie on the arc: y = 1, 0.2, 0.
//   widths b = 2, 1.2, 1.6 (edges 4, 2, 0.8, -0.8); heights h = 4, 3, 1; unit weight 2
//   W = h * 2 * b = 16, 7.2, 3.2;  u = 0, 0.5, 1;  c = 2;  tan phi = 0.5
// The driving moment on the arc carries the radius while the resisting sum is of forces, so the
// factors here are about a fifth of the textbook ones.
void TresDovelas(Proyecto& p) {
  pruebas::TresDovelasDeSuelo(p, 2);
  auto& pi = p.ParámetrosIniciales;
  pi.Radio = 5;
  pi.CentroX = 0;
  pi.CentroY = 5;
  pruebas::UnTramo(p, "C");
  p.Trabajo.YPrimerPuntoFalla = 2;
  p.Trabajo.YÚltimoPuntoFalla = 0.06;
  const double phi = std::atan(0.5) * 45.0 / std::atan(1.0);
  pruebas::Fijar(p.TablaDovelas.FricciónBase, {phi, phi, phi});
}

// The textbook form of the same sum, slice by slice: (c b + ((1 + kv) W - u b) tan phi) / m_a with
// m_a = cos a + sin a tan phi / F. Its driving side on the arc is sum (1 + kv) W Radio sin a plus
// the seismic moment (2 Radio cos a - H) kh W / 2.
double BishopDeLibro(double F, double kh = 0, double kv = 0, std::vector<double> H = {4, 3, 1}) {
  const double s[] = {0.6, 0.28, 0}, co[] = {0.8, 0.96, 1}, b[] = {2, 1.2, 1.6},
               W[] = {16, 7.2, 3.2}, u[] = {0, 0.5, 1};
  double resiste = 0, mueve = 0;
  for (int i = 0; i < 3; ++i) {
    resiste += (2 * b[i] + ((1 + kv) * W[i] - u[i] * b[i]) * 0.5) / (co[i] + s[i] * 0.5 / F);
    mueve += (1 + kv) * W[i] * 5 * s[i] + (2 * 5 * co[i] - H[i]) * kh * 0.5 * W[i];
  }
  return resiste / mueve;
}

TEST(Bishop, ArcoDeTresDovelasALaMano) {
  // Pass 1 from F = 1: m_a = 0.8 + 0.3 = 1.1, 0.96 + 0.14 = 1.1, 1; numerators c b + (W - u b) tan
  // phi = 4 + 8 = 12, 2.4 + 3.3 = 5.7, 3.2 + 0.8 = 4; driving 5 * (16 * 0.6 + 7.2 * 0.28) = 58.08.
  // F1 = (12/1.1 + 5.7/1.1 + 4) / 58.08 = 0.345918. Then 0.264706, 0.241654, 0.233834, 0.231024,
  // F6 = 0.229994, F7 = 0.229613: |F7 - F6| < 0.001 stops.
  Proyecto p;
  TresDovelas(p);
  InterfazGuionada ui("NN");
  MétodoBishop(p, ui);
  ASSERT_EQ(p.NúmeroIteraciones, 1);
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], 0.229613, 1e-6);
  EXPECT_NEAR(BishopDeLibro(1.0), 0.345918, 1e-6);
  EXPECT_TRUE(p.CálculoHecho);
  EXPECT_EQ(ui.Textos().back(), kFin);

  // Stresses with the final factor: sigma = cos a N / b, N from the last pass (F3), and
  // tau = ((sigma - u) tan phi + c) / F. Slice 2: N = (7.2 + (0.25 - 2) * (0.28/0.96) * 1.2 / F6) /
  // (0.96 + 0.14 / F6).
  const double F6 = 0.229994, F = 0.229613;
  const double N2 = (7.2 + (0.25 - 2) * (0.28 / 0.96) * 1.2 / F6) / (0.96 + 0.14 / F6);
  const auto& d = p.TablaDovelas;
  EXPECT_NEAR(d.FuerzaNormal[2], N2, 1e-4);
  EXPECT_NEAR(d.EsfuerzoNormalTotal[2], 0.96 * N2 / 1.2, 1e-4);
  EXPECT_NEAR(d.EsfuerzoNormalEfectivo[2], 0.96 * N2 / 1.2 - 0.5, 1e-4);
  EXPECT_NEAR(d.EsfuerzoTangencial[2], ((0.96 * N2 / 1.2 - 0.5) * 0.5 + 2) / F, 1e-4);
  EXPECT_NEAR(d.ÁnguloBase[1], std::asin(0.6), 1e-12);
  double suma = 0;
  for (int i = 1; i <= 3; ++i) suma += d.EsfuerzoTangencial[i];
  EXPECT_NEAR(p.SumaTangenciales, suma, 1e-12);
}

TEST(Bishop, ConvergeDesdeArribaYDesdeAbajo) {
  // The fixed point of the sum is 0.229389. From 3: 0.395929, 0.276220, 0.245321, 0.235123,
  // 0.231493, 0.230167, 0.229677. From 0.5: 0.295596, 0.251169, 0.237143, 0.232223, 0.230435,
  // 0.229776.
  for (const auto& [inicial, esperado] :
       std::map<double, double>{{3.0, 0.229677}, {0.5, 0.229776}}) {
    Proyecto p;
    TresDovelas(p);
    p.ParámetrosIniciales.FSInicial = inicial;
    InterfazGuionada ui("NN");
    MétodoBishop(p, ui);
    const double fs = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
    EXPECT_NEAR(fs, esperado, 1e-5) << "desde " << inicial;
    EXPECT_NEAR(fs, 0.229389, 0.001);
  }
}

TEST(Bishop, ConSismoYAguaSobreElTaludElResultadoEsPuntoFijo) {
  // kh = 0.1, kv = 0.05; water over slice 3 (phreatic at 6 over the surface at 1) makes its
  // seismic arm use H = 6 - 0 instead of the height 1, unless a rapid drawdown has taken the water
  // away. The iteration stops within 0.001 of the pass before and contracts by about 0.4 a pass,
  // so the result is a fixed point to 0.0005; the other H is more than 0.001 away.
  for (const bool desembalse : {false, true}) {
    Proyecto p;
    TresDovelas(p);
    p.ParámetrosIniciales.CoeficienteSísmicoHorizontal = 0.1;
    p.ParámetrosIniciales.CoeficienteSísmicoVertical = 0.05;
    p.TablaDovelas.YFreático[3] = 6;
    InterfazGuionada ui(desembalse ? "SN" : "NN");  // the answer on rapid drawdown, the stages
    MétodoBishop(p, ui);
    const double fs = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
    const double H3 = desembalse ? 1 : 6, otro = desembalse ? 6 : 1;
    EXPECT_NEAR(BishopDeLibro(fs, 0.1, 0.05, {4, 3, H3}), fs, 0.0005) << desembalse;
    EXPECT_GT(std::fabs(BishopDeLibro(fs, 0.1, 0.05, {4, 3, otro}) - fs), 0.001) << desembalse;
  }
}

TEST(Bishop, SuperficieNoCircularTomaMomentosEnLaReferencia) {
  // The same slices as straight stretches, moments about (0, 5): every base lies 5 m from it
  // along its normal, so the arms cancel the normal force in the driving moment and the factor
  // is the textbook one without the radius: fixed point 1.897222; from 1: 1.729589, 1.876986,
  // 1.894942, 1.896967, 1.897194.
  Proyecto p;
  TresDovelas(p);
  p.TramoFalla.TipoUnión[1] = "L";
  p.ParámetrosIniciales.ReferenciaMomentoX = 0;
  p.ParámetrosIniciales.ReferenciaMomentoY = 5;
  p.ParámetrosIniciales.CentroX = 100;  // the centre plays no part off the arc
  InterfazGuionada ui("NN");
  MétodoBishop(p, ui);
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones], 1.897194, 1e-6);
}

// --- The guards ------------------------------------------------------------------------------

struct ResultadosPrevios {
  explicit ResultadosPrevios(Proyecto& p) {
    p.CálculoHecho = true;
    p.TablaDovelas.EsfuerzoTangencial.Redimensionar(3);
    p.TablaDovelas.EsfuerzoTangencial[2] = 7.5;
    p.SumaTangenciales = 22.5;
    p.NúmeroIteraciones = 2;
    p.HistoriaIteraciones.Redimensionar(2);
    p.HistoriaIteraciones.FactorDeSeguridad[2] = 1.75;
  }
  static void Comprobar(const Proyecto& p) {
    EXPECT_TRUE(p.CálculoHecho);
    EXPECT_EQ(p.TablaDovelas.EsfuerzoTangencial[2], 7.5);
    EXPECT_EQ(p.SumaTangenciales, 22.5);
    EXPECT_EQ(p.NúmeroIteraciones, 2);
    EXPECT_EQ(p.HistoriaIteraciones.FactorDeSeguridad[2], 1.75);
  }
};

const std::string kGuarda1 =
    "Existe alguna dovela donde el esfuerzo efectivo se hace cero o menor que cero. Problamente las presiones de "
    "poros son elevadas en esa dovela.  Puede reajustar las presiones de poros en el menú Equilibrio Límite en la "
    "opción 'Cambio de parámetros de resistencia' o  aplique otro método y compare resultados. Si desea que el "
    "programa continúe  y no ver más este mensaje para otra dovela presione <SI> y Si desea salir del cálculo  "
    "presione <NO> .?";
const std::string kGuarda2 =
    "Alguna dovela no cumple con ciertas condiciones de angulos o dimensiones. Cambie las dimensiones de las "
    "dovelas o geometría de la SPF, y si aún con este cambio no se obtiene el chequeo, entonces abandone el "
    "análisis por este método. Si desea que el programa continúe  y no ver más este mensaje para otra dovela "
    "presione <SI> y Si desea salir del cálculo  presione <NO> .?";

int Veces(const InterfazGuionada& ui, const std::string& texto) {
  int n = 0;
  for (const auto& t : ui.Textos()) n += t == texto;
  return n;
}

TEST(Bishop, GuardaDeEsfuerzoEfectivo) {
  // u = 5 on slice 3, whose base is flat: N = W = 3.2 and N - u b / cos a = 3.2 - 8 < 0.
  {  // No: the command ends silently and leaves what there was.
    Proyecto p;
    TresDovelas(p);
    ResultadosPrevios previos(p);
    p.TablaDovelas.PresiónPoros[3] = 5;
    InterfazGuionada ui("NSNN");  // drawdown, recalculate, stages, guard
    MétodoBishop(p, ui);
    EXPECT_EQ(ui.Textos().back(), kGuarda1);
    ResultadosPrevios::Comprobar(p);
  }
  {  // Yes once: never asked again in this run, and the run ends with its message.
    Proyecto p;
    TresDovelas(p);
    p.TablaDovelas.PresiónPoros[3] = 5;
    InterfazGuionada ui("NNS");
    MétodoBishop(p, ui);
    EXPECT_EQ(Veces(ui, kGuarda1), 1);
    EXPECT_EQ(ui.Textos().back(), kFin);
    EXPECT_TRUE(p.CálculoHecho);
  }
}

TEST(Bishop, GuardaDeÁngulos) {
  // Slice 3 moved to x = -3 on the arc: sin a = -0.6, cos a = 0.8. From F = 0.45 with tan phi 0.5,
  // m_a = 0.8 - 0.3 / 0.45 = 0.133, below 0.2, while N stays positive with c = 1:
  // slice 1: N0 = 16 - 1 * 0.75 * 2 / 0.45 = 12.67; slice 3: N0 = 3.2 + 0.75 * 1.6 / 0.45 = 5.87.
  Proyecto p;
  TresDovelas(p);
  ResultadosPrevios previos(p);
  p.CálculoHecho = false;
  p.TablaDovelas.XMedio[3] = -3;
  p.TablaDovelas.YBase[3] = 1;
  p.TablaDovelas.YTalud[3] = 2;
  p.TablaDovelas.YFreático[3] = 1;
  p.TablaDovelas.PresiónPoros[3] = 0;
  for (int i = 1; i <= 3; ++i) p.TablaDovelas.CohesiónBase[i] = 1;
  p.ParámetrosIniciales.FSInicial = 0.45;
  InterfazGuionada ui("NNN");
  MétodoBishop(p, ui);
  EXPECT_EQ(ui.Textos().back(), kGuarda2);
  EXPECT_EQ(Veces(ui, kGuarda1), 0);
  EXPECT_FALSE(p.CálculoHecho);
  EXPECT_EQ(p.NúmeroIteraciones, 2);
  EXPECT_EQ(p.SumaTangenciales, 22.5);
}

TEST(Bishop, SinConvergenciaSeDetieneConAviso) {
  // Three passes are not enough from F = 1 (seven are needed): the command says so, stores nothing.
  Proyecto p;
  TresDovelas(p);
  ResultadosPrevios previos(p);
  p.CálculoHecho = false;
  InterfazGuionada ui("NN");
  OpcionesBishop op;
  op.límitePasadas = 3;
  MétodoBishopConOpciones(p, ui, op);
  EXPECT_EQ(ui.Transcripción().back().título, "Sin convergencia:");
  EXPECT_EQ(ui.Textos().back(),
            "El cálculo por el método de Bishop no convergió en 3 iteraciones. El factor de "
            "seguridad de la "
            "última iteración fue 0.242. No se guardó ningún resultado.");
  EXPECT_FALSE(p.CálculoHecho);
  EXPECT_EQ(p.NúmeroIteraciones, 2);
  EXPECT_EQ(p.SumaTangenciales, 22.5);
}

// --- The radius search ---------------------------------------------------------------------------

// A search between the ends (10, 2) and (0, 0): chord sqrt(104) = 10.198, so radii below 5.099 have
// no arc. The stages are replaced by one slice whose factor is a chosen function of the radius:
// with tan phi = 0 the factor is c l / (W Radio sin a) whatever the start, so with the middle at
// CentroX + 0.05 Radio (sin a = 0.05, l = 1 / cos a) and W = 10, c = FS W Radio sin a cos a gives
// FS. (N = W (1 - Radio sin^2 a) stays positive up to Radio 400.)
struct Búsqueda {
  Proyecto p;
  std::vector<double> radios;  // radius of every rerun of the stages
  std::function<double(double)> fs;

  // `exacta`: the centre put at x = 0 and the middle at R/8 (sin a = 1/8 for every radius), so that
  // the factor at 2R is bit for bit the one at R when both are asked for.
  bool exacta = false;

  explicit Búsqueda(std::map<double, double> factores, bool exacta = false)
      : Búsqueda(std::function<double(double)>([factores](double r) { return factores.at(r); }),
                 exacta) {}
  explicit Búsqueda(std::function<double(double)> factores, bool exacta_ = false)
      : fs(std::move(factores)), exacta(exacta_) {
    TresDovelas(p);
    auto& pi = p.ParámetrosIniciales;
    pi.VaríaRadio = true;
    pi.Radio = 8;
    pi.Cuerda = std::sqrt(104.0);
    p.Trabajo.XMáximaFalla = 10;
    p.Trabajo.XMínimaFalla = 0;
    p.Trabajo.YPrimerPuntoFalla = 2;
    p.Trabajo.YÚltimoPuntoFalla = 0;
    // Centre of the start: on the bisector of the chord, 8 m from both ends.
    const double medio = std::sqrt(64.0 - 26.0), k = medio / std::sqrt(104.0);
    pi.CentroX = 5 - 2 * k;
    pi.CentroY = 1 + 10 * k;
    Dovela(p);
  }
  void Dovela(Proyecto& q) {
    auto& d = q.TablaDovelas;
    const double s = exacta ? 0.125 : 0.05;
    if (exacta) q.ParámetrosIniciales.CentroX = 0;
    const double R = q.ParámetrosIniciales.Radio, x = q.ParámetrosIniciales.CentroX + s * R;
    q.NúmeroBordes = 2;
    d.BordeX.Redimensionar(2);
    d.BordeX[1] = x + 0.5;
    d.BordeX[2] = x - 0.5;
    for (auto* t : {&d.XMedio, &d.Ancho, &d.YBase, &d.YTalud, &d.YFreático, &d.PesoUnitarioMedio,
                    &d.AlturaAguaSobreTalud, &d.PresiónPoros, &d.CohesiónBase, &d.TanFricciónBase})
      t->Redimensionar(1);
    d.XMedio[1] = x;
    d.Ancho[1] = 1;
    d.YTalud[1] = 1;
    d.PesoUnitarioMedio[1] = 10;
    d.CohesiónBase[1] = fs(R) * 10 * R * s * std::sqrt(1 - s * s);
  }
  void Correr() {
    InterfazGuionada ui("NN");
    OpcionesBishop op;
    op.etapas = [this](Proyecto& q, Interfaz&) {
      radios.push_back(q.ParámetrosIniciales.Radio);
      Dovela(q);
    };
    MétodoBishopConOpciones(p, ui, op);
    ASSERT_EQ(ui.Textos().back(), kFin);
  }
  double FS() const { return p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones]; }
};

TEST(BishopBúsquedaDelRadio, CasosDeLaBúsqueda) {
  struct Caso {
    const char* nombre;
    std::map<double, double> fs;
    std::vector<double> radios;  // every rerun of the stages; the last is the final pass
    double radio;
    bool exacta = false;
  };
  const Caso casos[] = {
      {"subir empeora y baja hasta el mejor", {{8, 1.50}, {9, 1.55}, {7, 1.45}, {6, 1.47}}, {9, 7, 6, 7}, 7},
      {"ambos primeros pasos suben y queda R0", {{8, 1.50}, {9, 1.55}, {7, 1.52}, {6, 1.56}}, {9, 7, 6, 8}, 8},
      // Going up falls twice, then rises: the best of the way up is 10. The way down compares its
      // first row with the last row going up (11, 1.38): 7 at 1.6 is not below it, so that row
      // is the best going down, and 10 wins.
      {"sube", {{8, 1.5}, {9, 1.4}, {10, 1.35}, {11, 1.38}, {7, 1.6}}, {9, 10, 11, 7, 10}, 10},
      // Going down to 5 m leaves no arc (5 < 5.099): the last row going down is its best.
      {"semicuerda", {{8, 1.5}, {9, 1.6}, {7, 1.45}, {6, 1.4}}, {9, 7, 6, 6}, 6},
      // Best going up 12 m, best going down 6 m (5 m has no arc), both at 1.4: the way down wins.
      {"empate",
       {{8, 1.5}, {9, 1.48}, {10, 1.46}, {11, 1.44}, {12, 1.4}, {13, 1.45}, {7, 1.43}, {6, 1.4}},
       {9, 10, 11, 12, 13, 7, 6, 6},
       6,
       true},
  };
  for (const auto& c : casos) {
    Búsqueda b(c.fs, c.exacta);
    b.Correr();
    const auto& pi = b.p.ParámetrosIniciales;
    EXPECT_EQ(b.radios, c.radios) << c.nombre;
    EXPECT_EQ(pi.Radio, c.radio) << c.nombre;
    EXPECT_EQ(b.p.Trabajo.RadioActual, c.radio) << c.nombre;
    EXPECT_TRUE(b.p.Trabajo.RadioEnVariación) << c.nombre;
    EXPECT_NEAR(b.FS(), c.fs.at(c.radio), 1e-9) << c.nombre;
    EXPECT_EQ(b.p.NúmeroIteraciones, static_cast<long>(c.radios.size()) + 1) << c.nombre;
    if (c.exacta) continue;
    // The centre of the chosen radius lies that far from both ends, above the upper one.
    EXPECT_NEAR(std::hypot(pi.CentroX - 10, pi.CentroY - 2), c.radio, 1e-9) << c.nombre;
    EXPECT_NEAR(std::hypot(pi.CentroX, pi.CentroY), c.radio, 1e-9) << c.nombre;
    EXPECT_GT(pi.CentroY, 2) << c.nombre;
  }
}

TEST(BishopBúsquedaDelRadio, LaTablaDe100FilasDetieneLaSubida) {
  // A factor that keeps falling with the radius: rows 8, 9, ... 107 fill the table, and its last
  // row is the best.
  Búsqueda b(std::function<double(double)>([](double r) { return 2 - 0.01 * r; }));
  b.Correr();
  EXPECT_EQ(b.radios.size(), 100u);
  EXPECT_EQ(b.radios[98], 107);
  EXPECT_EQ(b.radios.back(), 107);
  EXPECT_NEAR(b.FS(), 2 - 1.07, 1e-9);
}

TEST(BishopBúsquedaDelRadio, UnPasoALaManoSobreTresDovelas) {
  // One step of the search on the three slices of the arc: going to R = 6 the stages are
  // replaced by the same slices stretched with the radius (middles at 0.6 R, 0.28 R, 0 from the
  // centre), so the angles and weights stay and only Radio changes in the formula: the driving
  // moment grows by 6/5 and the factor of the step is the fixed point of
  // (12/m1 + 5.7/m2 + 4) / (6 * 11.616), below the one at 5, so the search goes on up. (At these
  // small factors N of slice 1 turns negative: the guard is answered Yes once.)
  Proyecto p;
  TresDovelas(p);
  auto& pi = p.ParámetrosIniciales;
  pi.VaríaRadio = true;
  pi.Cuerda = 4;
  p.Trabajo.XMáximaFalla = 4;
  p.Trabajo.XMínimaFalla = 0;
  p.Trabajo.YPrimerPuntoFalla = 2;
  p.Trabajo.YÚltimoPuntoFalla = 2;
  std::vector<double> radios;
  OpcionesBishop op;
  op.etapas = [&](Proyecto& q, Interfaz&) {
    const double R = q.ParámetrosIniciales.Radio;
    radios.push_back(R);
    q.ParámetrosIniciales.CentroX = 0;
    q.TablaDovelas.XMedio[1] = 0.6 * R;
    q.TablaDovelas.XMedio[2] = 0.28 * R;
  };
  InterfazGuionada ui("NNS");
  MétodoBishopConOpciones(p, ui, op);
  ASSERT_GE(radios.size(), 2u);
  EXPECT_EQ(radios[0], 6);
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], 0.229613, 1e-6);  // R0 = 5
  // At R = 6: g(F) = (12/(0.8 + 0.3/F) + 5.7/(0.96 + 0.14/F) + 4) / 69.696.
  auto g6 = [](double F) { return (12 / (0.8 + 0.3 / F) + 5.7 / (0.96 + 0.14 / F) + 4) / 69.696; };
  const double f6 = p.HistoriaIteraciones.FactorDeSeguridad[2];
  EXPECT_NEAR(g6(f6), f6, 0.001);
  EXPECT_LT(f6, 0.229613);
  EXPECT_EQ(radios[1], 7);
  EXPECT_LE(Veces(ui, kGuarda1), 1);
}

// --- The whole transcript ------------------------------------------------------------------------

TEST(Bishop, TranscripciónCompletaConYSinParámetrosInstantáneos) {
  using namespace pruebas;
  const Apunte fin = Msj("", kFin);
  struct Caso {
    bool gráficos;
    std::string respuestas;
    std::vector<Apunte> esperado;
  };
  const Caso casos[] = {
      {false, "NN", {Preg(kDesembalse, false), Preg(kPrimeraVez, false), fin}},
      // Graphic instantaneous parameters (case 3): the slices are kept and the user is sent to
      // the screen of strength parameters.
      {true,
       "NS",
       {Preg(kDesembalse, false), Preg(kContinuarInstantáneos, true),
        Msj("Cambie los valores si lo requiere.",
            "A continuación se presenta la pantalla de la sesión 'Cambio de parámetros de "
            "resistencia' para que  dé  los valores de cohesión, fricción y presión de poros  para "
            "cada dovela."),
        Msj("PARAMETROS POR PANTALLA:", "Ud ha dado los parámetros instantáneos por PANTALLA"),
        Apunte{"pantalla", "Cambio de la presión de poros y parámetros de resistencia", "Form18", ""},
        fin}},
  };
  for (const auto& c : casos) {
    Proyecto p;
    TresDovelas(p);
    if (c.gráficos) {
      auto& pi = p.ParámetrosIniciales;
      pi.LetraUsaParámetrosInstantáneos = "S";
      pi.UsaParámetrosInstantáneos = true;
      pi.ParámetrosInstantáneos = 3;
      p.ParámetrosInstantáneosCalculados = true;
    }
    InterfazGuionada ui(c.respuestas);
    MétodoBishop(p, ui);
    EXPECT_EQ(Líneas(ui), Líneas(c.esperado)) << c.gráficos;
    EXPECT_TRUE(p.CálculoHecho);
  }
}

// --- With the real stages ------------------------------------------------------------------------

TEST(BishopConEtapas, BúsquedaDelRadioSobreElEjemploACADS) {
  // The search reruns the six stages for every radius with the centre it rebuilt, and the final
  // pass on the chosen radius. Whatever radius it keeps, it is R0 plus whole metres and its centre
  // lies that far from both ends of the surface, (51.24, 35) and (29.7, 25), above the upper one.
  // (The factor itself is the moment form with the radius in the driving sum; at the start the
  // crest slice has a negative effective normal force, and the guard is answered Yes.)
  Proyecto p = pruebas::EjemploACADS(20, 2);
  p.ParámetrosIniciales.VaríaRadio = true;
  InterfazGuionada ui("NS");
  MétodoBishop(p, ui);
  ASSERT_EQ(ui.Textos().back(), kFin);
  const auto& pi = p.ParámetrosIniciales;
  EXPECT_TRUE(p.Trabajo.RadioEnVariación);
  EXPECT_EQ(p.Trabajo.RadioActual, pi.Radio);
  const double pasos = pi.Radio - 28.2;
  EXPECT_NEAR(pasos, std::round(pasos), 1e-9);
  EXPECT_NEAR(std::hypot(pi.CentroX - 51.24, pi.CentroY - 35), pi.Radio, 1e-6);
  EXPECT_NEAR(std::hypot(pi.CentroX - 29.7, pi.CentroY - 25), pi.Radio, 1e-6);
  EXPECT_GT(pi.CentroY, 35);
  EXPECT_GE(p.NúmeroIteraciones, 3);  // R0, at least one step, and the final pass
  // The result is the least factor found: no row of the history lies below the last one.
  const double fs = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
  for (long k = 1; k < p.NúmeroIteraciones; ++k)
    EXPECT_GE(p.HistoriaIteraciones.FactorDeSeguridad[k], fs - 1e-12) << k;
}

}  // namespace
}  // namespace lomaterra
