#include "equilibrio/leshchinsky_rocas.h"

#include <cmath>
#include <string>

#include "equilibrio/constantes.h"
#include "equilibrio/estratos/hoek_brown.h"
#include "equilibrio/form13.h"
#include "equilibrio/form9.h"
#include "equilibrio/puertas.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kTextoFinLeshchinskyRocas =
    "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Leshchinsky and "
    "Ching-Chuan Huang y el criterio de rotura de Hoek and Brown (m,s) para rocas.";

namespace {

std::size_t Z(long i) {
  return static_cast<std::size_t>(i);
}

// First point of the four-point stencil of slice i.
long InicioPlantilla(long i, long n) {
  return i <= n - 3 ? i : n - 3;
}

EstadoHoekBrown Estado(const DatosVariacionales& dv, const BasesRoca& r, long i, double σ3) {
  const std::size_t k = Z(i);
  return RelacionesHoekBrown(σ3, dv.u[k], r.m[k], r.s[k], r.a[k], r.σc[k]);
}

}  // namespace

BasesRoca LeerBasesRoca(const Proyecto& p) {
  const auto& d = p.TablaDovelas;
  const long n = p.NúmeroBordes - 1;
  BasesRoca r;
  for (auto* v : {&r.m, &r.s, &r.a, &r.σc}) v->assign(Z(n + 1), 0.0);
  for (long i = 1; i <= n; ++i) {
    r.m[Z(i)] = d.m_Base.Leer(i);
    r.s[Z(i)] = d.s_Base.Leer(i);
    r.a[Z(i)] = d.a_Base.Leer(i);
    r.σc[Z(i)] = d.C_SimpleBase.Leer(i);
  }
  return r;
}

std::vector<double> PesosDerivadaLagrange(double xe, const double X[4]) {
  std::vector<double> c(4, 0.0);
  for (int j = 0; j < 4; ++j) {
    double denominador = 1;
    for (int l = 0; l < 4; ++l)
      if (l != j) denominador *= X[j] - X[l];
    double numerador = 0;
    for (int k = 0; k < 4; ++k) {
      if (k == j) continue;
      double producto = 1;
      for (int l = 0; l < 4; ++l)
        if (l != j && l != k) producto *= xe - X[l];
      numerador += producto;
    }
    c[Z(j)] = Div(numerador, denominador, "los pesos de la derivada de cuatro puntos");
  }
  return c;
}

SumasEquilibrio SumasEquilibrioRocas(const DatosVariacionales& dv, const BasesRoca& r,
                                     const FilaVariacional& fila) {
  // The sums of the method in soil with the strength tf in place of T and sn + u in place of σ:
  // a slice whose tangent is 0 and whose cohesion is tf has T = tf whatever the stress.
  DatosVariacionales roca = dv;
  FilaVariacional f;
  f.µ1 = fila.µ1;
  f.µ2 = fila.µ2;
  f.F = fila.F;
  f.σ.assign(Z(dv.n + 2), 0.0);
  for (long i = 1; i <= dv.n; ++i) {
    const EstadoHoekBrown e = Estado(dv, r, i, fila.σ[Z(i)]);
    roca.t[Z(i)] = 0;
    roca.c[Z(i)] = e.tf;
    f.σ[Z(i + 1)] = e.sn + dv.u[Z(i)];
  }
  return SumasDeEquilibrio(roca, f);
}

void SistemaNewtonRocas(const DatosVariacionales& dv, const BasesRoca& r,
                        const FilaVariacional& fila, MatrizDensa& J, std::vector<double>& R) {
  const long n = dv.n;
  const double µ1 = fila.µ1, µ2 = fila.µ2, F = fila.F, kh = dv.kh, kv = dv.kv;
  J = MatrizDensa(n + 3);
  R.assign(Z(n + 4), 0.0);
  std::vector<EstadoHoekBrown> e(Z(n + 1));
  for (long i = 1; i <= n; ++i) e[Z(i)] = Estado(dv, r, i, fila.σ[Z(i)]);

  // The differential equation at every slice, by the four-point derivative.
  for (long i = 1; i <= n; ++i) {
    const std::size_t k = Z(i);
    const long inicio = InicioPlantilla(i, n);
    const double X[4] = {dv.x[Z(inicio)], dv.x[Z(inicio + 1)], dv.x[Z(inicio + 2)],
                         dv.x[Z(inicio + 3)]};
    const std::vector<double> c = PesosDerivadaLagrange(dv.x[k], X);
    const double dy = dv.y[k] - µ2, dx = dv.x[k] - µ1;
    double G = 0, dµ1 = 0, dµ2 = 0, dF = 0;
    for (int q = 0; q < 4; ++q) {
      const long j = inicio + q;
      const EstadoHoekBrown& ej = e[Z(j)];
      G += c[Z(q)] * (dy * F * ej.sn + dx * ej.tf);
      dµ1 -= c[Z(q)] * ej.tf;
      dµ2 -= c[Z(q)] * F * ej.sn;
      dF += c[Z(q)] * dy * ej.sn;
      J(i, j + 3) += c[Z(q)] * (dy * F * ej.dsn + dx * ej.dtf);
    }
    G += -(1 + kv) * F * dv.gm[k] * dx + dy * kh * F + 2 * e[k].tf;
    J(i, 1) = dµ1 + (1 + kv) * F * dv.gm[k];
    J(i, 2) = dµ2 - kh * F;
    J(i, 3) = dF - (1 + kv) * dv.gm[k] * dx + dy * kh;
    J(i, i + 3) += 2 * e[k].dtf;
    R[k] = -G;
  }

  // The three equilibrium equations: affine in F, so their F column is S(1) − S(0).
  const SumasEquilibrio s = SumasEquilibrioRocas(dv, r, fila);
  FilaVariacional uno = fila, cero = fila;
  uno.F = 1;
  cero.F = 0;
  const SumasEquilibrio s1 = SumasEquilibrioRocas(dv, r, uno),
                        s0 = SumasEquilibrioRocas(dv, r, cero);
  J(n + 1, 3) = s1.horizontal - s0.horizontal;
  J(n + 2, 3) = s1.vertical - s0.vertical;
  J(n + 3, 3) = s1.momento - s0.momento;
  for (long i = 1; i <= n; ++i) {
    const std::size_t k = Z(i);
    const EstadoHoekBrown& ei = e[k];
    const double b = dv.b[k], sb = dv.s[k];
    J(n + 1, i + 3) = (ei.dtf - sb * F * ei.dsn) * b;
    J(n + 2, i + 3) = (ei.dtf * sb + F * ei.dsn) * b;
    J(n + 3, i + 3) =
        ((dv.y[k] - dv.x[k] * sb) * ei.dtf - F * (sb * dv.y[k] + dv.x[k]) * ei.dsn) * b;
  }
  R[Z(n + 1)] = -s.horizontal;
  R[Z(n + 2)] = -s.vertical;
  R[Z(n + 3)] = -s.momento;
}

std::optional<double> RaízInicialSigma3(double q, double m, double s, double σc) {
  const double π = 4 * std::atan(1.0);
  const char* dónde = "el esfuerzo inicial de una dovela";
  const double H = Div(8, m * m, dónde) * (Div(q * m, σc, dónde) + s) + 1.5;
  const double p = Div(27, 4 * H * H * H, dónde);
  // Below the tensile limit of the mass the cubic has no real angle: no starting value.
  if (2 * p - p * p < 0) return std::nullopt;
  double A = 1 - p == 0 ? π / 2 : std::atan(std::sqrt(2 * p - p * p) / (1 - p));
  if (A < 0) {
    double grados = -A * 180 / π;
    grados = 2 * (90 - grados) + grados;
    A = grados * π / 180;
  }
  const double θ = (π / 2 + (2 * std::cos(A / 3 + 4 * π / 3) + 1) * H / 3) / 2;
  const double tanθ = std::tan(θ);
  auto f = [&](double x) { return std::sqrt(m / (2 * std::sqrt(x * m / σc + s)) + 1) - tanθ; };
  for (int paso = 0; paso <= 10000; ++paso) {
    const double x = paso == 0 ? 0.001 : paso;
    const double fx = f(x);
    if (!(fx < 0)) continue;
    if (paso == 0) return x;
    const double xp = paso == 1 ? 0.9 : paso - 1;
    const double fp = f(xp);
    return Finito(x - (x - xp) * fx / (fx - fp), dónde);
  }
  return std::nullopt;
}

namespace {

struct CorridaRocas {
  Proyecto& p;
  Interfaz& ui;
  DatosVariacionales dv;
  BasesRoca r;
  FilaVariacional fila;

  void AnotarFila(long k) {
    p.HistoriaIteraciones.Multiplicador1[k] = fila.µ1;
    p.HistoriaIteraciones.Multiplicador2[k] = fila.µ2;
    p.HistoriaIteraciones.FactorDeSeguridad[k] = fila.F;
    // σ3 of slice i in column i + 1, where the correction screen reads the stress of slice i.
    for (long i = 1; i <= dv.n; ++i) p.EsfuerzoIteración(i + 1, k) = fila.σ[Z(i)];
  }

  double Límite(long i) const {
    const std::size_t k = Z(i);
    return -Div(r.s[k], r.m[k], "el límite de sigma 3") * r.σc[k] + dv.u[k] + 0.1;
  }

  void LiberarTablas() {
    p.EsfuerzoIteración.Borrar();
    p.LímiteEsfuerzo.Borrar();
  }

  void GuardarResultados() {
    const long n = dv.n;
    std::vector<double> menor(Z(n + 1)), mayor(Z(n + 1)), tang(Z(n + 1)), efec(Z(n + 1)),
        total(Z(n + 1));
    double sT = 0, sN = 0, sM = 0, sE = 0, sm = 0;
    for (long i = 1; i <= n; ++i) {
      const std::size_t k = Z(i);
      const double σ3 = fila.σ[k], u = dv.u[k];
      const EstadoHoekBrown e = Estado(dv, r, i, σ3);
      menor[k] = σ3 - u;
      mayor[k] = Finito(Pot(e.w, 1 - r.a[k], "el esfuerzo principal mayor") * r.σc[k] + σ3 - u,
                        "el esfuerzo principal mayor");
      tang[k] =
          Finito(Div(e.tf, fila.F, "los esfuerzos tangenciales"), "los esfuerzos tangenciales");
      efec[k] = e.sn;
      total[k] = u + e.sn;
      sT += tang[k];
      sN += total[k];
      sM += mayor[k];
      sE += efec[k];
      sm += menor[k];
    }
    ComprobarExcepcionesFlotantes("el método de Leshchinsky y Huang en rocas");
    auto& d = p.TablaDovelas;
    for (auto* c : {&d.EsfuerzoPrincipalMenor, &d.EsfuerzoPrincipalMayor, &d.EsfuerzoTangencial,
                    &d.EsfuerzoNormalEfectivo, &d.EsfuerzoNormalTotal})
      c->Redimensionar(n);
    for (long i = 1; i <= n; ++i) {
      d.EsfuerzoPrincipalMenor[i] = menor[Z(i)];
      d.EsfuerzoPrincipalMayor[i] = mayor[Z(i)];
      d.EsfuerzoTangencial[i] = tang[Z(i)];
      d.EsfuerzoNormalEfectivo[i] = efec[Z(i)];
      d.EsfuerzoNormalTotal[i] = total[Z(i)];
    }
    p.SumaTangenciales = sT;
    p.SumaNormalesTotales = sN;
    p.SumaPrincipalesMayores = sM;
    p.SumaNormalesEfectivos = sE;
    p.SumaPrincipalesMenores = sm;
    p.CálculoHecho = true;
    LiberarTablas();
  }

  bool PasoNewton() {
    MatrizDensa J;
    std::vector<double> R;
    SistemaNewtonRocas(dv, r, fila, J, R);
    if (!InvertirSinPivoteo(J)) {
      ui.Mensaje("Determinante=0, ordene la matriz", "En cálculo");
      return false;
    }
    const std::vector<double> Δ = Multiplicar(J, R);
    const char* dónde = "el paso de Newton";
    FilaVariacional nueva = fila;
    nueva.µ1 = Finito(fila.µ1 + Δ[1], dónde);
    nueva.µ2 = Finito(fila.µ2 + Δ[2], dónde);
    nueva.F = Finito(fila.F + Δ[3], dónde);
    for (long i = 1; i <= dv.n; ++i) nueva.σ[Z(i)] = Finito(fila.σ[Z(i)] + Δ[Z(i + 3)], dónde);
    fila = std::move(nueva);
    return true;
  }
};

// The exponent a of the bases is 0 for GSI of 25 or more, and the relations of the method divide
// by it: such a base ends the command here, in words that say where and why.
void ComprobarExponentes(const Proyecto& p, const BasesRoca& r, long n) {
  for (long i = 1; i <= n; ++i) {
    if (r.a[Z(i)] != 0) continue;
    long estrato = 0;
    for (long s = 1; s <= p.NúmeroEstratos && estrato == 0; ++s)
      if (p.Estrato.m_macizo.Leer(s) == r.m[Z(i)] && p.Estrato.s_macizo.Leer(s) == r.s[Z(i)] &&
          p.Estrato.C_Simple.Leer(s) == r.σc[Z(i)])
        estrato = s;
    throw FalloAritmético(
        "división por cero en la ley de Hoek y Brown de la dovela " + std::to_string(i) +
        (estrato > 0 ? " (estrato " + std::to_string(estrato) + ")" : std::string()) +
        ": en la base de las dovelas el exponente a vale 0.65 − GSI/200 solo para GSI menor que "
        "25, "
        "y 0 para GSI de 25 o más; este método divide por a. Para ese estrato use un GSI menor que "
        "25 o el método de Janbu aplicado a rocas");
  }
}

}  // namespace

void ProcesoIterativoEnRocas(Proyecto& p, Interfaz& ui) {
  if (!PuertasIniciales(p, ui)) return;
  auto& par = p.ParámetrosIniciales;
  const std::string material = Mayúsculas(p.TipoDeMaterial);
  if ((material == "S" || material.empty()) && !par.UsaParámetrosInstantáneos) {
    ui.Mensaje("Ud. ha considerado el material como un 'SUELO'", "No es ROCA:");
    return;
  }
  if (par.MétodoDeCálculo != 1) {
    ui.Mensaje("Ud. no ha seleccionado este método de cálculo", "No es el METODO:");
    return;
  }
  if (par.UsaParámetrosInstantáneos) {
    ui.Mensaje("Ud. está calculando por el método de parámetros instantáneos");
    return;
  }
  // The rock form still inverts its whole matrix at every Newton step: its time grows with the
  // cube of the slices, so a count that would take minutes is refused before anything is done.
  if (par.NúmeroDovelas > kMáximoDovelasRocas) {
    ui.Mensaje("El método de Leshchinsky-Huang en rocas admite hasta " + std::to_string(kMáximoDovelasRocas) +
                   " dovelas y el proyecto pide " + std::to_string(static_cast<long>(par.NúmeroDovelas)) +
                   ". Reduzca el número de dovelas en las constantes de cálculo.",
               "Demasiadas dovelas:");
    return;
  }

  // Values left by the correction screen in the last row of the run before.
  std::vector<double> corregidos;
  if (p.SigmaCorregidaDisponible) {
    const long k = p.NúmeroIteraciones;
    for (long j = 0; j <= p.EsfuerzoIteración.Filas(); ++j)
      corregidos.push_back(p.EsfuerzoIteración.Leer(j, k));
  }
  std::vector<double> anteriores;
  for (long j = 0; j <= p.EsfuerzoIteración.Filas(); ++j)
    anteriores.push_back(p.EsfuerzoIteración.Leer(j, 1));

  PrepararDovelas(p, ui);
  const long n = p.NúmeroBordes - 1;
  if (n < 4) {
    ui.Mensaje(kTextoPocasDovelas, kTítuloPocasDovelas);
    return;
  }

  LimpiarExcepcionesFlotantes();
  // The column of the differential equation in rock is gm itself, without water over the surface.
  CorridaRocas cr{p, ui, LeerDatosVariacionales(p, false), LeerBasesRoca(p), {}};
  ComprobarExponentes(p, cr.r, n);
  const auto& d = p.TablaDovelas;

  cr.fila.µ1 = par.Multiplicador1;
  cr.fila.µ2 = par.Multiplicador2;
  cr.fila.F = par.FSInicial;
  cr.fila.σ.assign(Z(n + 1), 0.0);
  // The starting field from the overburden of each slice.
  for (long i = 1; i <= n; ++i) {
    const std::size_t k = Z(i);
    if (k + 1 < anteriores.size()) cr.fila.σ[k] = anteriores[k + 1];
    const double W = (d.YTalud[i] - d.YBase[i]) * d.PesoUnitarioMedio[i] * d.Ancho[i];
    const double α = std::atan(d.PendienteBase[i]);
    const double q =
        std::cos(α) * std::cos(α) * Div(W, d.Ancho[i], "el peso de una dovela") - cr.dv.u[k];
    if (const auto x = RaízInicialSigma3(q, cr.r.m[k], cr.r.s[k], cr.r.σc[k]))
      cr.fila.σ[k] = *x + cr.dv.u[k];
  }
  if (p.SigmaCorregidaDisponible && static_cast<long>(corregidos.size()) >= n + 2)
    for (long i = 1; i <= n; ++i) cr.fila.σ[Z(i)] = corregidos[Z(i + 1)];
  p.SigmaCorregidaDisponible = false;
  // A base below the tensile strength of the mass starts just above it.
  for (long i = 1; i <= n; ++i) {
    const std::size_t k = Z(i);
    const double w = (cr.fila.σ[k] - cr.dv.u[k]) * cr.r.m[k] / cr.r.σc[k] + cr.r.s[k];
    if (!(w > 0)) cr.fila.σ[k] = cr.Límite(i);
  }

  p.HistoriaIteraciones.Redimensionar(kFilasHistoria);
  p.EsfuerzoIteración.Redimensionar(n + 1, kFilasHistoria);
  p.LímiteEsfuerzo.Redimensionar(n + 1);
  p.NúmeroIteraciones = 1;
  cr.AnotarFila(1);

  Form9 form9(p);
  Form13 form13(p);
  form13.leySigma3 = true;
  for (;;) {
    if (p.NúmeroIteraciones >= kFilasHistoria) {
      ui.Mensaje(kTextoLímiteHistoria, kTítuloLímiteHistoria);
      return;
    }
    if (!cr.PasoNewton()) return;
    ++p.NúmeroIteraciones;
    cr.AnotarFila(p.NúmeroIteraciones);

    for (long i = 1; i <= n; ++i) p.LímiteEsfuerzo[i + 1] = cr.Límite(i);
    for (long i = 1; i <= n; ++i) {
      const std::size_t k = Z(i);
      if (Div(cr.r.s[k], cr.r.m[k], "el límite de sigma 3") * cr.r.σc[k] +
              (cr.fila.σ[k] - cr.dv.u[k]) <
          0) {
        ui.Mensaje(
            "No chequea sigma '3' en una dovela. Varie los multiplicadores de Lagrange o el Factor "
            "de seguridad. A continuación se presentan los valoes de sigma3 para que observe en "
            "que "
            "dovela no chequeó la resistencia al corte",
            "Chequeo de sigma '3'");
        p.DovelaFallida = static_cast<Entero>(i);
        ui.Abrir(form13);
        return;
      }
    }

    const SumasEquilibrio s = SumasEquilibrioRocas(cr.dv, cr.r, cr.fila);
    p.SumaFuerzasHorizontales = s.horizontal;
    p.SumaFuerzasVerticales = s.vertical;
    p.SumaMomentos = s.momento;
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
    if (SumasEnTolerancia(s)) {
      cr.GuardarResultados();
      ui.Mensaje(kTextoFinLeshchinskyRocas);
      return;
    }
  }
}

}  // namespace lomaterra
