#include "elementos/seguridad_esfuerzos.h"

#include <cmath>
#include <optional>
#include <string>

#include "elementos/rigidez.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

const double kPi = 4 * std::atan(1.0);

struct Resistencia {
  double c = 0, fi = 0, t = 0;  // fi in radians, t = tan fi
};

Resistencia ResistenciaDe(const Proyecto& p, long e) {
  const long s = std::lround(p.Malla.Elemento.MaterialDeElemento.Leer(e));
  Resistencia r;
  r.c = p.Estrato.Cohesión.Leer(s);
  r.fi = p.Estrato.Fricción.Leer(s) * kPi / 180;
  r.t = std::tan(r.fi);
  return r;
}

}  // namespace

double FuenteEsfuerzos::Leer(const Tabla2<double>& t, long e) const {
  return porPaso ? t.Leer(columna, e) : t.Leer(e, columna);
}

FuenteEsfuerzos FuenteEsfuerzos::Estática(const MallaElementos& m, long columna) {
  return {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, columna, false};
}

FuenteEsfuerzos FuenteEsfuerzos::Sísmica(const DatosSísmicos& s, long paso) {
  return {&s.EsfuerzoX, &s.EsfuerzoY, &s.EsfuerzoXY, paso, true};
}

namespace {

// Stresses of the slice's element from the source.
struct Base {
  double sx, sy, tau, W;
};
Base BaseDe(const FuenteEsfuerzos& f, const DovelasSobreMalla& d, long i) {
  const long e = d.elemento[static_cast<std::size_t>(i)];
  Base b{f.Leer(*f.x, e), f.Leer(*f.y, e), f.Leer(*f.xy, e), 0};
  b.W = -b.sy * d.ancho + b.tau * d.ancho * std::tan(d.alfa[static_cast<std::size_t>(i)]);
  return b;
}

// Stops as both forms do: a change below 0.02, or after 10 steps any change at all.
bool Termina(double nuevo, double viejo, int paso) {
  return std::abs(nuevo - viejo) < 0.02 || (paso > 10 && nuevo != viejo);
}

const char* const kMensajeDovela =
    "Alguna dovela no cumple con ciertas condiciones de angulos o dimensiones. Cambie las dimensiones de las dovelas, "
    "y si aún con este cambio no se obtiene el chequeo, entonces abandone el análisis por este método.";
const char* const kTítuloDovela =
    "Condiciones que puedan ocurrir algunas veces cerca del pie del talud, en el que se ha supuesto una superficie de "
    "falla profunda";

// The moment form on the stresses of `f`; `elástico` is the second run on column 1, whose tension
// branch adds the whole cohesion term. Nothing when a slice fails its check (message given when
// there is someone to tell).
std::optional<double> FormaMomentos(const Proyecto& p, const DovelasSobreMalla& d, const FuenteEsfuerzos& f,
                                    bool elástico, Interfaz* ui) {
  const double cx = d.cx, cy = d.cy;
  double F = p.ParámetrosIniciales.FSInicial;
  for (int k = 1;; ++k) {
    double num = 0, den = 0;
    for (long i = 1; i <= d.n; ++i) {
      const auto I = static_cast<std::size_t>(i);
      const Base b = BaseDe(f, d, i);
      const Resistencia r = ResistenciaDe(p, d.elemento[I]);
      const double a = d.alfa[I], bw = d.ancho;
      const double tracción = 0.2 * std::tan(kPi / 4 - r.fi / 2);
      double N = b.W;
      if (b.W >= 0) N -= Div(std::tan(a) * bw * r.c, F);
      else if (elástico) N += Div(std::tan(a) * bw * r.c, F);
      else N += Div(std::tan(a) * bw * tracción * r.c, F);
      const double m = std::cos(a) + Div(std::sin(a) * r.t, F);
      if (!(m > 0.2)) {
        if (ui) ui->Mensaje(kMensajeDovela, kTítuloDovela);
        return std::nullopt;
      }
      N /= m;
      const double R = (b.W >= 0 ? r.c * bw / std::cos(a) : -tracción * r.c * bw / std::cos(a)) + r.t * N;
      if (d.arco) {
        num += R;
        den += -(b.sx * bw * std::tan(a) * std::cos(a) * d.radio) -
               (d.radio * b.tau * bw * (std::cos(a) - std::tan(a) * std::sin(a)));
      } else {
        const double xm = d.x[I], yb = d.y[I];
        num += R * std::sin(a) * (xm - cx) - R * std::cos(a) * (yb - cy);
        den += ((yb - cy) * std::sin(a) + (xm - cx) * std::cos(a)) * N - bw * b.sx * std::tan(a) * (cy - yb) -
               bw * b.tau * (cy - yb);
      }
    }
    const double nuevo = Finito(Div(num, den, "el factor de seguridad"));
    const bool fin = Termina(nuevo, F, k);
    F = nuevo;
    if (fin) return F;
  }
}

// The force form on two stress sources side by side; returns the factors of both.
std::pair<double, double> FormaFuerzas(const Proyecto& p, const DovelasSobreMalla& d, const FuenteEsfuerzos& f1,
                                       const FuenteEsfuerzos& f2) {
  double F1 = p.ParámetrosIniciales.FSInicial, F2 = F1;
  for (int k = 1;; ++k) {
    double s1 = 0, d1 = 0, s2 = 0, d2 = 0;
    for (long i = 1; i <= d.n; ++i) {
      const auto I = static_cast<std::size_t>(i);
      const Resistencia r = ResistenciaDe(p, d.elemento[I]);
      const double a = d.alfa[I], bw = d.ancho;
      for (int col = 0; col < 2; ++col) {
        const Base b = BaseDe(col == 0 ? f1 : f2, d, i);
        const double cb = b.W >= 0 ? r.c * bw : -0.2 * std::tan(kPi / 4 - r.fi / 2) * r.c * bw;
        const double A = cb + b.W * r.t;
        const double Dv = b.W * std::tan(a) - bw * b.sx * std::tan(a);
        const double F = col == 0 ? F1 : F2;
        const double mA = std::cos(a) * std::cos(a) * (Div(std::tan(a) * r.t, F) + 1);
        (col == 0 ? s1 : s2) += Div(A, mA);
        (col == 0 ? d1 : d2) += Dv;
      }
    }
    const double n1 = Finito(Div(s1, d1, "el factor de seguridad"));
    const double n2 = Finito(Div(s2, d2, "el factor de seguridad"));
    const bool fin = Termina(n1, F1, k);
    F1 = n1;
    F2 = n2;
    if (fin) return {F1, F2};
  }
}

}  // namespace

bool PrepararDovelasSobreMalla(Proyecto& p, DovelasSobreMalla& d) {
  const TablaXY& f = p.CoordenadasFalla;
  const long nf = p.NúmeroPuntosFalla;
  d = DovelasSobreMalla{};
  d.n = std::lround(p.ParámetrosIniciales.NúmeroDovelas);
  if (nf < 2 || d.n < 1) return false;
  double inicio = f.X.Leer(1), fin = f.X.Leer(1);
  for (long j = 1; j <= nf; ++j) {
    inicio = std::max(inicio, f.X.Leer(j));
    fin = std::min(fin, f.X.Leer(j));
  }
  d.ancho = (f.X.Leer(1) - f.X.Leer(nf)) / static_cast<double>(d.n);
  const double X1 = f.X.Leer(1), Y1 = f.Y.Leer(1), X2 = f.X.Leer(2), Y2 = f.Y.Leer(2);
  const double L = std::sqrt((X1 - X2) * (X1 - X2) + (Y1 - Y2) * (Y1 - Y2));
  const double a = std::atan(Div(Y1 - Y2, X1 - X2));
  d.arco = p.SuperficieCircular();
  if (d.arco) {
    double& R = p.ParámetrosIniciales.Radio;
    for (;;) {
      if (R <= 0 || L / (2 * R) >= 1) return false;
      const double t = L / (2 * R);
      const double semi = std::atan(t / std::sqrt(1 - t * t));
      const double g = (kPi / 2 - a) - (kPi / 2 - semi);
      d.cx = std::sin(g) * R + X2;
      d.cy = std::cos(g) * R + Y2;
      if (!(d.cy < Y1)) break;
      R += 0.5;
    }
    d.radio = R;
  } else {
    const long nt = p.NúmeroPuntosTalud;
    d.cx = (p.CoordenadasTalud.X.Leer(nt) - p.CoordenadasTalud.X.Leer(1)) / 2;
    d.cy = (p.CoordenadasTalud.Y.Leer(nt) - p.CoordenadasTalud.Y.Leer(1)) / 2;
  }
  p.Malla.CentroMomentosX = d.cx;
  p.Malla.CentroMomentosY = d.cy;
  const std::size_t n1 = static_cast<std::size_t>(d.n + 1);
  d.x.assign(n1, 0);
  d.y.assign(n1, 0);
  d.alfa.assign(n1, 0);
  d.elemento.assign(n1, 0);
  const MallaElementos& m = p.Malla;
  p.Malla.ElementoDeDovela.Redimensionar(d.n);
  const bool absoluto = Y1 < f.Y.Leer(nf);
  for (long i = 1; i <= d.n; ++i) {
    const auto I = static_cast<std::size_t>(i);
    const double x = inicio - d.ancho / 2 - static_cast<double>(i - 1) * d.ancho;
    d.x[I] = x;
    double alfa = 0;
    if (d.arco) {
      d.y[I] = d.cy - Raíz(d.radio * d.radio - (x - d.cx) * (x - d.cx));
      const double t = (x - d.cx) / d.radio;
      alfa = std::atan(t / std::sqrt(1 - t * t));
    } else {
      long j = 1;
      while (j < nf - 1 && !(f.X.Leer(j) >= x && x > f.X.Leer(j + 1))) ++j;
      const double pendiente = (f.Y.Leer(j) - f.Y.Leer(j + 1)) / (f.X.Leer(j) - (f.X.Leer(j + 1) - 0.01));
      d.y[I] = (x - f.X.Leer(j)) * pendiente + f.Y.Leer(j);
      alfa = std::atan(pendiente);
    }
    d.alfa[I] = absoluto ? std::abs(alfa) : alfa;
    long mejor = 1;
    double distancia = 0;
    for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
      const double dx = d.x[I] - m.Elemento.XCentroElemento.Leer(e), dy = d.y[I] - m.Elemento.YCentroElemento.Leer(e);
      const double r = std::sqrt(dx * dx + dy * dy);
      if (e == 1 || r < distancia) {
        mejor = e;
        distancia = r;
      }
    }
    d.elemento[I] = mejor;
    p.Malla.ElementoDeDovela[i] = static_cast<double>(mejor);
  }
  (void)fin;
  return true;
}

namespace {

// The checks after the question and the missing calculation, common to both commands: parameters,
// failure surface, the radius of an arc (a warning only) and the method. False ends the command.
bool PuertasComunes(const Proyecto& p, Interfaz& ui) {
  if (!p.ParámetrosInicialesDados) {
    ui.Mensaje("No se han dado los 'Parámetros para estimar el factor de seguridad' en elementos finitos",
               "Parámetros para estimar factor de seguridad:");
    return false;
  }
  if (!p.GeometríaFallaDefinida || p.NúmeroTramosFalla < 1) {
    ui.Mensaje(
        "Debe dar las coordenadas de la superficie potencial de falla y definir la geoemetría entre sus puntos. "
        "Seleccione menú Coordenadas y luego Superficie potencial de falla. Luego vaya luego a la opción parámetros de "
        "cálculo iniciales en Elementos finitos y cheque si ud dió el valor del radio y coordenadas del centro de "
        "rotación, en caso de que la superficie de falla sea un arco de círculo.");
    return false;
  }
  if (p.SuperficieCircular() && p.ParámetrosIniciales.Radio == 0)
    ui.Mensaje(
        "La superficie potencial de falla que ud. quiere analizar es un arco de círculo. Por favor, vaya a la opción "
        "En Elementos finitos 'Parámetros para estimar el factor de seguridad' y dé el valor del radio de la "
        "superficie potencial de falla.");
  const Entero método = p.ParámetrosIniciales.MétodoDeCálculo;
  return método == 2 || método == 4;
}

// The force form in rock first rewrites the strata's cohesion and friction from GSI.
void ReescribirEstratosDeRoca(Proyecto& p) {
  if (p.TipoDeMaterial != "R") return;
  for (long s = 1; s <= p.NúmeroEstratos; ++s) {
    const double gsi = p.Estrato.Parámetro_GSI.Leer(s);
    if (!p.Estrato.Cohesión.Existe(s) || !p.Estrato.Fricción.Existe(s)) continue;
    p.Estrato.Cohesión[s] = p.Estrato.C_Simple.Leer(s) * 0.013 * std::exp(0.026 * gsi);
    p.Estrato.Fricción[s] = 0.424 * gsi - 0.0016 * gsi * gsi + 16 * Ln(p.Estrato.m_intacta.Leer(s));
  }
}

const char* const kSinJanbu = "No es posible determinar el factor de seguridad a través del método de Janbu.";

}  // namespace

void FactorDeSeguridadDeslizamientoCálculoViscoplástico(Proyecto& p, Interfaz& ui) {
  MallaElementos& m = p.Malla;
  if (m.FSViscoplástico != 0 && m.NúmeroDeIteración > 2 &&
      !ui.Pregunta("El factor de seguridad ya se estimó considerando un comportamiento viscoplástico. ¿Desea volver a "
                   "calcularlo?"))
    return;
  if (m.FSViscoplástico != 0 && m.NúmeroDeIteración == 2 &&
      !ui.Pregunta("El factor de seguridad ya se estimó considerando un comportamiento plástico. ¿Desea volver a "
                   "calcularlo?"))
    return;
  if (!p.CálculoHecho || m.NúmeroDeIteración < 1) {
    ui.Mensaje("No se ha hecho ningún cálculo de esfuerzos considerando un comportamiento viscoplástico del material.",
               "No hay cálculos:");
    return;
  }
  if (!PuertasComunes(p, ui)) return;
  const Entero método = p.ParámetrosIniciales.MétodoDeCálculo;
  m.OrigenEsfuerzos = "CálculoViscoPlástico";
  DovelasSobreMalla d;
  if (!PrepararDovelasSobreMalla(p, d)) return;
  const long último = m.NúmeroDeIteración;
  if (método == 2) {
    const auto fv = FormaMomentos(p, d, FuenteEsfuerzos::Estática(m, último), false, &ui);
    if (!fv) return;
    const auto fe = FormaMomentos(p, d, FuenteEsfuerzos::Estática(m, 1), true, &ui);
    if (!fe) return;
    m.FSViscoplástico = *fv;
    m.FSElástico = *fe;
  } else {
    ReescribirEstratosDeRoca(p);
    const auto [fv, fe] = FormaFuerzas(p, d, FuenteEsfuerzos::Estática(m, último), FuenteEsfuerzos::Estática(m, 1));
    if (fv < 0) {
      ui.Mensaje(kSinJanbu, "Factor de seguridad:");
      return;
    }
    m.FSViscoplástico = fv;
    m.FSElástico = fe;
  }
  ui.Mensaje("Factor de seguridad con los esfuerzos del último paso: " + Formato(m.FSViscoplástico, "#0.000") +
                 "\nFactor de seguridad con los esfuerzos elásticos: " + Formato(m.FSElástico, "#0.000"),
             "Factor de seguridad:");
}

long PasoDelFactorSísmico(const Proyecto& p) {
  const DatosSísmicos& s = p.Sísmico;
  return s.RegistroSeleccionado >= 1 && s.RegistroSeleccionado <= s.PasosCalculados ? s.RegistroSeleccionado
                                                                                      : s.PasosCalculados;
}

std::optional<double> FactorSísmicoEnPaso(Proyecto& p, DovelasSobreMalla& d, long paso, Interfaz* ui) {
  const FuenteEsfuerzos f = FuenteEsfuerzos::Sísmica(p.Sísmico, paso);
  if (p.ParámetrosIniciales.MétodoDeCálculo == 2) return FormaMomentos(p, d, f, false, ui);
  const double F = FormaFuerzas(p, d, f, f).first;
  if (F < 0) {
    if (ui) ui->Mensaje(kSinJanbu, "Factor de seguridad:");
    return std::nullopt;
  }
  return F;
}

void FactorDeSeguridadDeslizamientoAnálisisSísmico(Proyecto& p, Interfaz& ui) {
  MallaElementos& m = p.Malla;
  DatosSísmicos& s = p.Sísmico;
  if (m.FSSísmico != 0 &&
      !ui.Pregunta("El factor de seguridad ya se estimó de los resultados de análisis sísmico. ¿Desea volver a calcularlo?"))
    return;
  if (!s.ResultadosSísmicos || s.PasosCalculados < 1) {
    ui.Mensaje("No se ha hecho ningún cálculo de esfuerzos considerando análisis sísmico", "No hay cálculos:");
    return;
  }
  if (!PuertasComunes(p, ui)) return;
  m.OrigenEsfuerzos = "AnálisisSísmico";
  DovelasSobreMalla d;
  if (!PrepararDovelasSobreMalla(p, d)) return;
  if (p.ParámetrosIniciales.MétodoDeCálculo == 4) ReescribirEstratosDeRoca(p);
  const long paso = PasoDelFactorSísmico(p);
  const auto F = FactorSísmicoEnPaso(p, d, paso, &ui);
  if (!F) return;
  m.FSSísmico = *F;
  // The smallest factor found so far over the steps where it was computed, and its step.
  if (s.FactorSísmicoMínimo == 0 || *F < s.FactorSísmicoMínimo) {
    s.FactorSísmicoMínimo = *F;
    s.PasoFactorSísmico = static_cast<Entero>(paso);
  }
  const std::string elegido =
      s.RegistroSeleccionado == paso ? "" : " (no se eligió un registro en la pantalla de resultados: se usó el último calculado)";
  ui.Mensaje("Factor de seguridad con los esfuerzos del registro " + std::to_string(paso) + ", a los " +
                 Formato(s.TiempoRegistro.Leer(paso), "#0.000") + " seg: " + Formato(*F, "#0.00") + elegido,
             "Factor de seguridad:");
}

std::vector<std::pair<long, double>> FactoresSísmicosPorPaso(Proyecto& p) {
  std::vector<std::pair<long, double>> v;
  DovelasSobreMalla d;
  const Entero método = p.ParámetrosIniciales.MétodoDeCálculo;
  if (!p.Sísmico.ResultadosSísmicos || (método != 2 && método != 4) || !PrepararDovelasSobreMalla(p, d)) return v;
  if (método == 4) ReescribirEstratosDeRoca(p);
  for (long t = 1; t <= p.Sísmico.PasosCalculados; ++t) {
    // A step whose slices fail their check or whose sums vanish has no factor; the others keep theirs.
    try {
      const auto F = FactorSísmicoEnPaso(p, d, t, nullptr);
      if (F && std::isfinite(*F)) v.push_back({t, *F});
    } catch (const FalloAritmético&) {
    }
  }
  return v;
}

}  // namespace lomaterra
