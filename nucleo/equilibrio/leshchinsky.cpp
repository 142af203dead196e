#include "equilibrio/leshchinsky.h"

#include <cmath>

#include "equilibrio/bishop.h"
#include "equilibrio/dovelas.h"
#include "equilibrio/instantaneos.h"
#include "equilibrio/puertas.h"
#include "equilibrio/form13.h"
#include "equilibrio/form9.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kTextoDeterminanteCero = "Determinante = 0, ordene la matriz";
const char* const kTítuloDeterminanteCero = "En cálculo";
const char* const kTextoLímiteHistoria =
    "Se completaron las 100 filas de la historia de iteraciones sin que las sumas de fuerzas y de "
    "momentos llegaran a la tolerancia. El cálculo terminó y no se guardó ningún resultado. Varíe "
    "los multiplicadores de Lagrange, el factor de seguridad inicial o el esfuerzo inicial en la "
    "cresta del talud y calcule de nuevo.";
const char* const kTítuloLímiteHistoria = "Límite de iteraciones";
const char* const kTextoFinLeshchinsky =
    "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Leshchinsky and "
    "Ching-Chuan Huang para suelos.";
const char* const kTextoPocasDovelas =
    "El método de Leshchinsky y Huang necesita al menos cuatro dovelas. Aumente el número de "
    "dovelas en los parámetros iniciales de cálculo y calcule de nuevo.";
const char* const kTítuloPocasDovelas = "Dovelas insuficientes";

namespace {

std::size_t Z(long i) {
  return static_cast<std::size_t>(i);
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Finite differences

PesosCuatroPuntos PesosDerivadaCuatroPuntos(double X1, double X2, double X3, double X4) {
  const char* dónde = "los pesos de la derivada de cuatro puntos";
  PesosCuatroPuntos w;
  w.w1 = Div((X4 - X3) * (X4 - X2), (X1 - X3) * (X1 - X2) * (X1 - X4), dónde);
  w.w2 = Div((X4 - X3) * (X4 - X1), (X2 - X3) * (X2 - X1) * (X2 - X4), dónde);
  w.w3 = Div((X4 - X1) * (X4 - X2), (X3 - X2) * (X3 - X1) * (X3 - X4), dónde);
  w.w4 = Div(((X4 - X1) + (X4 - X2)) * (X4 - X3) + (X4 - X2) * (X4 - X1),
             (X4 - X2) * (X4 - X1) * (X4 - X3), dónde);
  return w;
}

double DerivadaTresPuntos(double hA, double hD, double σA, double σM, double σD) {
  const double E = (hA * hA - hD * hD) * σM + hD * hD * σA - hA * hA * σD;
  return Div(E, (hA + hD) * hA * hD, "la derivada de tres puntos");
}

// ---------------------------------------------------------------------------------------------
// The slices in short names

double DatosVariacionales::g(long i, double µ1, double µ2, double F) const {
  return (x[Z(i)] - µ1) * t[Z(i)] + (y[Z(i)] - µ2) * F;
}

double DatosVariacionales::f(long i, double µ1, double µ2, double F) const {
  const std::size_t k = Z(i);
  return ((1 + kv) * ge[k] * F + p[k] * t[k]) * (x[k] - µ1) + 2 * t[k] * u[k] - 2 * c[k] -
         kh * F * ge[k] * (y[k] - µ2);
}

double DatosVariacionales::W(long i) const {
  const std::size_t k = Z(i);
  return (yt[k] - y[k]) * gm[k] + hw[k];
}

double DatosVariacionales::T(long i, double σ) const {
  const std::size_t k = Z(i);
  return (σ - u[k]) * t[k] + c[k];
}

DatosVariacionales LeerDatosVariacionales(const Proyecto& p, bool pesoEquivalente) {
  const auto& d = p.TablaDovelas;
  DatosVariacionales dv;
  const long n = p.NúmeroBordes - 1;
  dv.n = n;
  for (auto* v : {&dv.x, &dv.y, &dv.yt, &dv.yw, &dv.b, &dv.gm, &dv.hw, &dv.s, &dv.st, &dv.c, &dv.t,
                  &dv.u, &dv.p, &dv.h, &dv.ge, &dv.d})
    v->assign(Z(n + 1), 0.0);
  dv.uniformes.assign(Z(n + 1), {});
  dv.puntuales.assign(Z(n + 1), {});
  dv.kh = p.ParámetrosIniciales.CoeficienteSísmicoHorizontal;
  dv.kv = p.ParámetrosIniciales.CoeficienteSísmicoVertical;
  const auto& gr = p.GrietaTracción;
  dv.EmpujeGrieta = gr.EmpujeGrieta;
  dv.BrazoGrieta = (gr.OrdenadaNF - gr.OrdenadaSegundoPunto) / 3 + gr.OrdenadaSegundoPunto;

  for (long i = 1; i <= n; ++i) {
    const std::size_t k = Z(i);
    dv.x[k] = d.XMedio[i];
    dv.y[k] = d.YBase[i];
    dv.yt[k] = d.YTalud[i];
    dv.yw[k] = d.YFreático[i];
    dv.b[k] = d.Ancho[i];
    dv.gm[k] = d.PesoUnitarioMedio[i];
    dv.hw[k] = d.AlturaAguaSobreTalud.Leer(i);
    dv.s[k] = d.PendienteBase[i];
    dv.st[k] = d.PendienteTalud[i];
    dv.c[k] = d.CohesiónBase[i];
    dv.t[k] = d.TanFricciónBase[i];
    dv.u[k] = d.PresiónPoros.Leer(i);
    dv.p[k] = d.PresiónPorosMedia.Leer(i);
    // Water standing over the surface enters the column of the differential equation as a
    // weighted mean of soil and water, unless a rapid drawdown has taken it away.
    if (pesoEquivalente && dv.yw[k] > dv.yt[k] && !p.DesembalseRápido)
      dv.ge[k] = Div((dv.yt[k] - dv.y[k]) * dv.gm[k] + (dv.yw[k] - dv.yt[k]), dv.yw[k] - dv.y[k],
                     "el peso unitario equivalente de la columna");
    else
      dv.ge[k] = dv.gm[k];
    dv.h[k] = i == 1 ? dv.b[k] / 2 : (dv.b[k] + dv.b[k - 1]) / 2;

    for (long q = 1; q <= p.CargasUniformesVigentes(); ++q) {
      const auto& cu = p.CargaUniforme;
      if (cu.xo.Leer(q) <= dv.x[k] && dv.x[k] <= cu.xf.Leer(q))
        dv.uniformes[k].push_back({cu.qx.Leer(q), cu.qy.Leer(q)});
    }
    // A point load on an edge belongs to both slices that share it.
    for (long q = 1; q <= p.CargasPuntualesVigentes(); ++q) {
      const auto& cp = p.CargaPuntual;
      const double xp = cp.Xpuntual.Leer(q);
      if (d.BordeX[i + 1] <= xp && xp <= d.BordeX[i])
        dv.puntuales[k].push_back({xp, cp.Ypuntual.Leer(q), cp.Px.Leer(q), cp.Py.Leer(q)});
    }
  }
  for (long i = 1; i <= n - 1; ++i)
    dv.d[Z(i)] = (dv.h[Z(i)] + dv.h[Z(i + 1)]) * dv.h[Z(i)] * dv.h[Z(i + 1)];
  if (n >= 4)
    dv.w = PesosDerivadaCuatroPuntos(dv.x[Z(n - 3)], dv.x[Z(n - 2)], dv.x[Z(n - 1)], dv.x[Z(n)]);
  return dv;
}

// ---------------------------------------------------------------------------------------------
// The systems

void SistemaPrimerCampo(const DatosVariacionales& dv, const FilaVariacional& fila, MatrizDensa& A,
                        std::vector<double>& r) {
  const long n = dv.n;
  const auto& σ = fila.σ;
  A = MatrizDensa(n);
  r.assign(Z(n + 1), 0.0);
  for (long i = 1; i <= n - 1; ++i) {
    const std::size_t k = Z(i);
    const double hA = dv.h[k], hD = dv.h[k + 1];
    const double a = Div(dv.g(i, fila.µ1, fila.µ2, fila.F), dv.d[k], "la ecuación diferencial");
    if (i > 1) A(i, i - 1) = hD * hD * a;
    A(i, i) = (hA * hA - hD * hD) * a + 2 * dv.t[k];
    A(i, i + 1) = -hA * hA * a;
    r[k] = dv.f(i, fila.µ1, fila.µ2, fila.F);
    // The column of the crest stress is known: it goes to the right-hand side.
    if (i == 1) r[k] -= hD * hD * a * σ[1];
  }
  const double gn = dv.g(n, fila.µ1, fila.µ2, fila.F);
  A(n, n - 3) = dv.w.w1 * gn;
  A(n, n - 2) = dv.w.w2 * gn;
  A(n, n - 1) = dv.w.w3 * gn;
  A(n, n) = dv.w.w4 * gn + 2 * dv.t[Z(n)];
  r[Z(n)] = dv.f(n, fila.µ1, fila.µ2, fila.F);
}

namespace {

// Moment arm terms of a slice that multiply F.
double TérminoB(const DatosVariacionales& dv, long i, double σ) {
  const std::size_t k = Z(i);
  return (dv.yt[k] * dv.yt[k] - dv.y[k] * dv.y[k]) * dv.kh * 0.5 * dv.gm[k] +
         (dv.s[k] * dv.y[k] + dv.x[k]) * σ - dv.W(i) * (1 + dv.kv) * dv.x[k] +
         ((dv.yw[k] - dv.yt[k]) / 2 + dv.yt[k]) * dv.kh * dv.hw[k];
}

}  // namespace

SumasEquilibrio SumasDeEquilibrio(const DatosVariacionales& dv, const FilaVariacional& fila) {
  const double F = fila.F;
  SumasEquilibrio s;
  for (long i = 1; i <= dv.n; ++i) {
    const std::size_t k = Z(i);
    const double σ = fila.σ[k + 1];
    const double T = dv.T(i, σ), W = dv.W(i), b = dv.b[k];
    double hx = (T - (W * dv.kh + dv.s[k] * σ) * F) * b;
    double hy = (T * dv.s[k] - (W * (1 + dv.kv) - σ) * F) * b;
    double mo = ((dv.y[k] - dv.x[k] * dv.s[k]) * T - F * TérminoB(dv, i, σ)) * b;
    for (const auto& q : dv.uniformes[k]) {
      hx += F * q.qx * b * dv.st[k];
      hy -= q.qy * F * b;
      mo += (dv.yt[k] * q.qx * dv.st[k] + dv.x[k] * q.qy) * F * b;
    }
    for (const auto& q : dv.puntuales[k]) {
      hx -= q.Px * F;
      hy -= q.Py * F;
      mo += (q.X * q.Py - q.Y * q.Px) * F;
    }
    s.horizontal += hx;
    s.vertical += hy;
    s.momento += mo;
  }
  s.horizontal -= dv.EmpujeGrieta * F;
  s.momento -= dv.BrazoGrieta * dv.EmpujeGrieta * F;
  s.horizontal = Finito(s.horizontal, "la suma de fuerzas horizontales");
  s.vertical = Finito(s.vertical, "la suma de fuerzas verticales");
  s.momento = Finito(s.momento, "la suma de momentos");
  return s;
}

void SistemaNewton(const DatosVariacionales& dv, const FilaVariacional& fila, MatrizDensa& J,
                   std::vector<double>& R) {
  const long n = dv.n;
  const long m = n + 3;
  const double µ1 = fila.µ1, µ2 = fila.µ2, F = fila.F, kh = dv.kh, kv = dv.kv;
  const auto& σ = fila.σ;
  J = MatrizDensa(m);
  R.assign(Z(m + 1), 0.0);

  // The differential equation at the slices 1 .. n − 1, by the three-point derivative.
  for (long l = 1; l <= n - 1; ++l) {
    const std::size_t k = Z(l);
    const double hA = dv.h[k], hD = dv.h[k + 1], d = dv.d[k];
    const double E = (hA * hA - hD * hD) * σ[k + 1] + hD * hD * σ[k] - hA * hA * σ[k + 2];
    const double g = dv.g(l, µ1, µ2, F);
    const double Ed = Div(E, d, "la ecuación diferencial");
    const double gd = Div(g, d, "la ecuación diferencial");
    J(l, 1) = Ed * dv.t[k] - ((1 + kv) * dv.ge[k] * F + dv.p[k] * dv.t[k]);
    J(l, 2) = Ed * F - kh * F * dv.ge[k];
    J(l, 3) = -Ed * (dv.y[k] - µ2) + (dv.x[k] - µ1) * (1 + kv) * dv.ge[k] -
              (dv.y[k] - µ2) * kh * dv.ge[k];
    if (l == 1) {
      J(1, 4) = -((hA * hA - hD * hD) * gd + 2 * dv.t[k]);
      J(1, 5) = hA * hA * gd;
    } else {
      // In this one entry the tangent is that of the slice before.
      const double G = (dv.y[k] - µ2) * F + (dv.x[k] - µ1) * dv.t[k - 1];
      J(l, l + 2) = -hD * hD * gd;
      J(l, l + 3) = -((hA * hA - hD * hD) * Div(G, d, "la ecuación diferencial") + 2 * dv.t[k]);
      J(l, l + 4) = hA * hA * gd;
    }
    R[k] = -(hA * hA * gd * σ[k + 2] - ((hA * hA - hD * hD) * gd + 2 * dv.t[k]) * σ[k + 1] -
             hD * hD * gd * σ[k] + dv.f(l, µ1, µ2, F));
  }

  // The last slice, by the four-point derivative. The residual adds Dn and g where the matrix
  // row multiplies them: so the method was settled, and so it stays.
  {
    const std::size_t k = Z(n);
    const auto& w = dv.w;
    const double Dn = w.w1 * σ[k - 2] + w.w2 * σ[k - 1] + w.w3 * σ[k] + w.w4 * σ[k + 1];
    const double g = dv.g(n, µ1, µ2, F);
    J(n, 1) = -Dn * dv.t[k] + (1 + kv) * dv.ge[k] * F + dv.t[k] * dv.p[k];
    J(n, 2) = -Dn * F + kh * F * dv.ge[k];
    J(n, 3) =
        Dn * (dv.y[k] - µ2) - (dv.x[k] - µ1) * (1 + kv) * dv.ge[k] + (dv.y[k] - µ2) * kh * dv.ge[k];
    J(n, n) = g * w.w1;
    J(n, n + 1) = g * w.w2;
    J(n, n + 2) = g * w.w3;
    J(n, n + 3) = g * w.w4 + 2 * dv.t[k];
    R[k] = -(Dn + g + (σ[k + 1] - dv.u[k]) * 2 * dv.t[k] + 2 * dv.c[k] -
             ((1 + kv) * dv.ge[k] * F + dv.p[k] * dv.t[k]) * (dv.x[k] - µ1) +
             kh * F * dv.ge[k] * (dv.y[k] - µ2));
  }

  // The three equilibrium equations; the columns of the multipliers stay 0.
  double jH = 0, jV = 0, jM = 0;
  for (long i = 1; i <= n; ++i) {
    const std::size_t k = Z(i);
    const double σi = σ[k + 1], b = dv.b[k], W = dv.W(i);
    jH += -(W * kh + dv.s[k] * σi) * b;
    jV += -(W * (1 + kv) - σi) * b;
    jM += -TérminoB(dv, i, σi) * b;
    for (const auto& q : dv.uniformes[k]) {
      jH += q.qx * dv.st[k] * b;
      jV -= q.qy * b;
      jM += (dv.yt[k] * q.qx * dv.st[k] + dv.x[k] * q.qy) * b;
    }
    for (const auto& q : dv.puntuales[k]) {
      jH -= q.Px;
      jV -= q.Py;
      jM += q.X * q.Py - q.Y * q.Px;
    }
    J(n + 1, i + 3) = (dv.t[k] - dv.s[k] * F) * b;
    J(n + 2, i + 3) = (dv.t[k] * dv.s[k] + F) * b;
    J(n + 3, i + 3) =
        ((dv.y[k] - dv.x[k] * dv.s[k]) * dv.t[k] - (dv.s[k] * dv.y[k] + dv.x[k]) * F) * b;
  }
  J(n + 1, 3) = jH - dv.EmpujeGrieta;
  J(n + 2, 3) = jV;
  J(n + 3, 3) = jM - dv.BrazoGrieta * dv.EmpujeGrieta;
  const SumasEquilibrio s = SumasDeEquilibrio(dv, fila);
  R[Z(n + 1)] = -s.horizontal;
  R[Z(n + 2)] = -s.vertical;
  R[Z(n + 3)] = -s.momento;
}

// ---------------------------------------------------------------------------------------------
// The command

namespace {

// The iteration in progress: the slices, the history and the current row.
struct Corrida {
  Proyecto& p;
  Interfaz& ui;
  DatosVariacionales dv;
  FilaVariacional fila;
  double σCresta = 0;

  // Writes the current row into the history and the stress table at row k.
  void AnotarFila(long k) {
    p.HistoriaIteraciones.Multiplicador1[k] = fila.µ1;
    p.HistoriaIteraciones.Multiplicador2[k] = fila.µ2;
    p.HistoriaIteraciones.FactorDeSeguridad[k] = fila.F;
    for (long j = 1; j <= dv.n + 1; ++j) p.EsfuerzoIteración(j, k) = fila.σ[Z(j)];
  }

  // The Mohr-Coulomb law at every base: false at the first slice whose effective stress lies
  // below −c/tanφ; `fallida` takes its number.
  bool ChequeoResistencia(long& fallida) const {
    for (long j = 2; j <= dv.n + 1; ++j) {
      const std::size_t i = Z(j - 1);
      if (Div(-dv.c[i], dv.t[i], "el chequeo de resistencia (fricción nula en la base)") >
          fila.σ[Z(j)] - dv.u[i]) {
        fallida = j - 1;
        return false;
      }
    }
    return true;
  }

  void GuardarSumas(const SumasEquilibrio& s) {
    p.SumaFuerzasHorizontales = s.horizontal;
    p.SumaFuerzasVerticales = s.vertical;
    p.SumaMomentos = s.momento;
  }

  void LiberarTablas() {
    p.EsfuerzoIteración.Borrar();
    p.LímiteEsfuerzo.Borrar();
  }

  // The results of the current row into the slices. Everything is computed and checked first;
  // only then is anything written, so that a fault leaves the result columns as they were.
  void GuardarResultados() {
    const long n = dv.n;
    std::vector<double> total(Z(n + 1)), tangencial(Z(n + 1)), efectivo(Z(n + 1));
    double sT = 0, sN = 0, sE = 0;
    for (long i = 1; i <= n; ++i) {
      const std::size_t k = Z(i);
      const double σ = fila.σ[k + 1];
      total[k] = Finito(σ, "los esfuerzos normales");
      tangencial[k] = Finito(Div(dv.T(i, σ), fila.F, "los esfuerzos tangenciales"),
                             "los esfuerzos tangenciales");
      efectivo[k] = Finito(σ - dv.u[k], "los esfuerzos efectivos");
      sT += tangencial[k];
      sN += total[k];
      sE += efectivo[k];
    }
    ComprobarExcepcionesFlotantes("el método de Leshchinsky y Huang");
    auto& d = p.TablaDovelas;
    d.EsfuerzoNormalTotal.RedimensionarConservando(n);
    d.EsfuerzoTangencial.RedimensionarConservando(n);
    d.EsfuerzoNormalEfectivo.RedimensionarConservando(n);
    for (long i = 1; i <= n; ++i) {
      d.EsfuerzoNormalTotal[i] = total[Z(i)];
      d.EsfuerzoTangencial[i] = tangencial[Z(i)];
      d.EsfuerzoNormalEfectivo[i] = efectivo[Z(i)];
    }
    p.SumaTangenciales = sT;
    p.SumaNormalesTotales = sN;
    p.SumaNormalesEfectivos = sE;
    p.CálculoHecho = true;
    LiberarTablas();
  }

  // Reads row k of the history and the stress table: the iteration goes on from what the
  // tables hold, as every step is written there first.
  void LeerFila(long k) {
    fila.µ1 = p.HistoriaIteraciones.Multiplicador1[k];
    fila.µ2 = p.HistoriaIteraciones.Multiplicador2[k];
    fila.F = p.HistoriaIteraciones.FactorDeSeguridad[k];
    for (long j = 1; j <= dv.n + 1; ++j) fila.σ[Z(j)] = p.EsfuerzoIteración(j, k);
  }

  // One Newton step from the current row to the next. False: singular matrix, message shown.
  bool PasoNewton() {
    LeerFila(p.NúmeroIteraciones);
    fila.σ[1] = σCresta;  // the crest stress is the boundary value and never changes
    MatrizDensa J;
    std::vector<double> R;
    SistemaNewton(dv, fila, J, R);
    if (!InvertirSinPivoteo(J)) {
      ui.Mensaje(kTextoDeterminanteCero, kTítuloDeterminanteCero);
      return false;
    }
    const std::vector<double> Δ = Multiplicar(J, R);
    const char* dónde = "el paso de Newton";
    FilaVariacional nueva = fila;
    nueva.µ1 = Finito(fila.µ1 + Δ[1], dónde);
    nueva.µ2 = Finito(fila.µ2 + Δ[2], dónde);
    nueva.F = Finito(fila.F + Δ[3], dónde);
    for (long j = 2; j <= dv.n + 1; ++j) nueva.σ[Z(j)] = Finito(fila.σ[Z(j)] + Δ[Z(j + 2)], dónde);
    fila = std::move(nueva);
    return true;
  }
};

}  // namespace

void ProcesoIterativoEnSuelos(Proyecto& p, Interfaz& ui) {
  // Gates
  if (!PuertasIniciales(p, ui)) return;
  auto& par = p.ParámetrosIniciales;
  if (p.TipoDeMaterial == "R" && !par.UsaParámetrosInstantáneos) {
    ui.Mensaje("Ud. ha considerado el material como una 'ROCA'", "No es SUELO:");
    return;
  }
  if (par.MétodoDeCálculo == 2 || par.MétodoDeCálculo == 3 || par.MétodoDeCálculo == 4) {
    ui.Mensaje("Ud. no ha seleccionado este método de cálculo", "No es el METODO:");
    return;
  }
  const bool letraS = par.LetraUsaParámetrosInstantáneos == "S";
  if (letraS) {
    if (!p.ParámetrosInstantáneosCalculados) {
      ui.Mensaje(
          "Este problema corresponde al método de parámetros instantáneos por favor "
          "seleccione:Suelos o Rocas (parámetros instantáneos c,fi). ",
          "No es el camino:");
      return;
    }
    if (!ui.Pregunta("Ud. está calculando por el método de parámetros instantáneos. ¿Desea "
                     "continuar el cálculo?"))
      return;
  }

  // Stresses left by the correction screen in the last row of the former run, kept before the
  // tables are dimensioned anew.
  std::vector<double> corregidos;
  if (p.SigmaCorregidaDisponible) {
    const long k = p.NúmeroIteraciones;
    for (long j = 0; j <= p.EsfuerzoIteración.Filas(); ++j)
      corregidos.push_back(p.EsfuerzoIteración.Leer(j, k));
  }

  // Preparation
  // The slices, with the values of an instantaneous pass kept and made around the stages.
  PasePrevioInstantáneo(p);
  DovelasDelMétodo(p, ui);
  const long n = p.NúmeroBordes - 1;
  if (n < 4) {
    ui.Mensaje(kTextoPocasDovelas, kTítuloPocasDovelas);
    return;
  }

  // From here on the floating-point flags speak of this method alone: the net before the results
  // are stored must not catch what an earlier command left raised.
  LimpiarExcepcionesFlotantes();
  Corrida cr{p, ui, LeerDatosVariacionales(p), {}, par.EsfuerzoInicialCresta};
  p.HistoriaIteraciones.Redimensionar(kFilasHistoria);
  p.EsfuerzoIteración.Redimensionar(n + 1, kFilasHistoria);
  p.LímiteEsfuerzo.Redimensionar(n + 1);

  // History row 1
  cr.fila.µ1 = par.Multiplicador1;
  cr.fila.µ2 = par.Multiplicador2;
  cr.fila.F = par.FSInicial;
  cr.fila.σ.assign(Z(n + 2), 0.0);
  cr.fila.σ[1] = par.EsfuerzoInicialCresta;
  p.NúmeroIteraciones = 1;

  // First stress field
  {
    MatrizDensa A;
    std::vector<double> r;
    SistemaPrimerCampo(cr.dv, cr.fila, A, r);
    if (!InvertirSinPivoteo(A)) {
      cr.AnotarFila(1);
      ui.Mensaje(kTextoDeterminanteCero, kTítuloDeterminanteCero);
      return;
    }
    const std::vector<double> σ = Multiplicar(A, r);
    for (long j = 2; j <= n + 1; ++j)
      cr.fila.σ[Z(j)] = Finito(σ[Z(j - 1)], "el primer campo de esfuerzos");
    if (p.SigmaCorregidaDisponible && static_cast<long>(corregidos.size()) == n + 2)
      for (long j = 2; j <= n + 1; ++j) cr.fila.σ[Z(j)] = corregidos[Z(j)];
    p.SigmaCorregidaDisponible = false;
  }
  cr.AnotarFila(1);

  long fallida = 0;
  if (!cr.ChequeoResistencia(fallida)) {
    ui.Mensaje(
        "No chequea la resistencia de Morh-Coulomb. Varie los valores de xc, yc, FS o del sigma "
        "inicial",
        "Chequeo de Resistencia");
    return;
  }

  Form9 form9(p);
  Form13 form13(p);
  for (;;) {
    if (p.NúmeroIteraciones >= kFilasHistoria) {
      ui.Mensaje(kTextoLímiteHistoria, kTítuloLímiteHistoria);
      return;
    }
    if (!cr.PasoNewton()) return;
    ++p.NúmeroIteraciones;
    cr.AnotarFila(p.NúmeroIteraciones);

    // Strength check of the new row
    for (long j = 2; j <= n + 1; ++j) {
      const std::size_t i = Z(j - 1);
      p.LímiteEsfuerzo[j] =
          Div(-cr.dv.c[i], cr.dv.t[i], "el límite de esfuerzo (fricción nula en la base)") +
          cr.dv.u[i];
    }
    if (!cr.ChequeoResistencia(fallida)) {
      ui.Mensaje(
          "No chequea la ley de resistencia. Varie los multiplicadores de Lagrange, el factor de "
          "seguridad inicial o el esfuerzo incial en la cresta del talud.",
          "Parámetros inciales");
      p.DovelaFallida = static_cast<Entero>(fallida);
      ui.Abrir(form13);
      return;
    }

    // End of the step
    const SumasEquilibrio s = SumasDeEquilibrio(cr.dv, cr.fila);
    cr.GuardarSumas(s);
    p.SoluciónAceptada = false;
    p.SalirDelCálculo = false;
    ui.Abrir(form9);
    if (p.SoluciónAceptada) {
      cr.GuardarResultados();
      return;
    }
    if (p.SalirDelCálculo) {
      cr.LiberarTablas();
      return;
    }
    if (!(std::fabs(s.horizontal) > 0.001 || std::fabs(s.vertical) > 0.001 ||
          std::fabs(s.momento) > 0.009)) {
      cr.GuardarResultados();
      ui.Mensaje(kTextoFinLeshchinsky);
      return;
    }
  }
}

}  // namespace lomaterra
