#include "equilibrio/busqueda.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <thread>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kPi = 4.0 * std::atan(1.0);

// A line with ascending abscissas.
struct Polilínea {
  std::vector<double> x, y;
  bool Vacía() const { return x.size() < 2; }
  bool Dentro(double v) const { return !Vacía() && v >= x.front() && v <= x.back(); }
};

// Ordinate at v, level beyond the ends; `j` is a cursor that follows an ascending walk.
inline double Ordenada(const Polilínea& l, double v, std::size_t& j) {
  const std::size_t n = l.x.size();
  if (v <= l.x[0]) return l.y[0];
  if (v >= l.x[n - 1]) return l.y[n - 1];
  if (j + 1 >= n) j = 0;
  while (j > 0 && l.x[j] > v) --j;
  while (j + 2 < n && l.x[j + 1] < v) ++j;
  const double dx = l.x[j + 1] - l.x[j];
  return dx > 0 ? l.y[j] + (v - l.x[j]) * (l.y[j + 1] - l.y[j]) / dx : l.y[j + 1];
}

Polilínea LeerLínea(const TablaXY& t, long n, bool espejo) {
  Polilínea l;
  for (long k = 1; k <= n; ++k) {
    l.x.push_back(espejo ? -t.X.Leer(k) : t.X.Leer(k));
    l.y.push_back(t.Y.Leer(k));
  }
  std::vector<std::size_t> orden(l.x.size());
  std::iota(orden.begin(), orden.end(), 0);
  std::stable_sort(orden.begin(), orden.end(), [&](std::size_t a, std::size_t b) { return l.x[a] < l.x[b]; });
  Polilínea r;
  for (std::size_t k : orden) {
    r.x.push_back(l.x[k]);
    r.y.push_back(l.y[k]);
  }
  return r;
}

}  // namespace

struct SecciónBúsqueda {
  bool espejo = false;  // abscissas negated so that the crest lies towards greater X
  Polilínea suelo, freático;
  std::vector<Polilínea> estratos;  // lower line of each stratum, from the top
  std::vector<double> c, t, γh, γs;
  double kh = 0, kv = 0;
  bool desembalse = false;
  struct Uniforme {
    double xo, xf, qy;
  };
  struct Puntual {
    double x, py;
  };
  std::vector<Uniforme> uniformes;
  std::vector<Puntual> puntuales;
};

void SecciónBúsquedaBorrar::operator()(SecciónBúsqueda* s) const { delete s; }

// Per slice, ascending in X while the slices are made; the Janbu pass reads them backwards.
struct EspacioEvaluación {
  std::vector<double> W, Q, sa, ca, ta, b, u, c, t, D, h, xm;
  std::vector<double> xe, ybe, yte;  // edges
  std::vector<double> A, A0, D0, na, dE, E, T, dT, ht, αt;
};

void EspacioEvaluaciónBorrar::operator()(EspacioEvaluación* e) const { delete e; }

EspacioPreparado NuevoEspacio(int dovelas) {
  EspacioPreparado e(new EspacioEvaluación);
  const std::size_t n = static_cast<std::size_t>(std::max(dovelas, 1)) + 2;
  for (auto* v : {&e->W, &e->Q, &e->sa, &e->ca, &e->ta, &e->b, &e->u, &e->c, &e->t, &e->D, &e->h,
                  &e->xm, &e->xe, &e->ybe, &e->yte, &e->A, &e->A0, &e->D0, &e->na, &e->dE, &e->E,
                  &e->T, &e->dT, &e->ht, &e->αt})
    v->assign(n, 0.0);
  return e;
}

SecciónPreparada PrepararSección(const Proyecto& p, std::string& motivo) {
  if (p.NúmeroPuntosTalud < 2) {
    motivo = "No hay coordenadas del talud. Vaya al menú 'Coordenadas' y entre las del talud.";
    return {};
  }
  if (p.NúmeroEstratos < 1 || !p.EstratosCaracterizados) {
    motivo = "Faltan los estratos o sus características geomecánicas. Vaya a los menús "
             "'Coordenadas' y 'Parámetros y cargas'.";
    return {};
  }
  SecciónPreparada s(new SecciónBúsqueda);
  // The crest lies on the side of greater X; a section drawn the other way is mirrored.
  {
    const Polilínea l = LeerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, false);
    s->espejo = l.y.front() > l.y.back();
  }
  s->suelo = LeerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, s->espejo);
  if (p.NúmeroPuntosFreático >= 2)
    s->freático = LeerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, s->espejo);
  for (long e = 1; e <= p.NúmeroEstratos; ++e) {
    TablaXY t;
    const long m = p.PuntosEstrato.Leer(e);
    t.Redimensionar(m);
    for (long j = 1; j <= m; ++j) {
      t.X[j] = p.XEstrato.Leer(e, j);
      t.Y[j] = p.YEstrato.Leer(e, j);
    }
    s->estratos.push_back(LeerLínea(t, m, s->espejo));
    s->c.push_back(p.Estrato.Cohesión.Leer(e));
    s->t.push_back(std::tan(kPi * p.Estrato.Fricción.Leer(e) / 180.0));
    s->γh.push_back(p.Estrato.PesoUnitarioHúmedo.Leer(e));
    s->γs.push_back(p.Estrato.PesoUnitarioSaturado.Leer(e));
  }
  const auto& pi = p.ParámetrosIniciales;
  s->kh = pi.CoeficienteSísmicoHorizontal;
  s->kv = pi.CoeficienteSísmicoVertical;
  s->desembalse = p.DesembalseRápido;
  for (long k = 1; k <= p.CargasUniformesVigentes(); ++k) {
    double a = p.CargaUniforme.xo.Leer(k), b = p.CargaUniforme.xf.Leer(k);
    if (s->espejo) std::tie(a, b) = std::pair(-b, -a);
    s->uniformes.push_back({a, b, p.CargaUniforme.qy.Leer(k)});
  }
  for (long k = 1; k <= p.CargasPuntualesVigentes(); ++k) {
    const double x = p.CargaPuntual.Xpuntual.Leer(k);
    s->puntuales.push_back({s->espejo ? -x : x, p.CargaPuntual.Py.Leer(k)});
  }
  return s;
}

namespace {

// Crossings of the lower half of the circle with the ground, ascending; at most `máx`.
int Cruces(const Polilínea& g, double xc, double yc, double R, double* x, double* y, int máx) {
  int n = 0;
  const std::size_t m = g.x.size();
  for (std::size_t j = 0; j + 1 < m; ++j) {
    const double x1 = g.x[j], y1 = g.y[j], dx = g.x[j + 1] - x1, dy = g.y[j + 1] - y1;
    // A quick reject: the segment's box and the circle's box do not meet.
    if (std::max(x1, x1 + dx) < xc - R || std::min(x1, x1 + dx) > xc + R) continue;
    if (std::min(y1, y1 + dy) > yc) continue;
    const double fx = x1 - xc, fy = y1 - yc;
    const double a = dx * dx + dy * dy, b = 2 * (fx * dx + fy * dy), c = fx * fx + fy * fy - R * R;
    const double disc = b * b - 4 * a * c;
    if (a <= 0 || disc < 0) continue;
    const double r = std::sqrt(disc);
    const bool último = j + 2 == m;
    for (double tt : {(-b - r) / (2 * a), (-b + r) / (2 * a)}) {
      if (tt < 0 || tt > 1 || (tt == 1 && !último)) continue;
      const double py = y1 + tt * dy;
      if (py > yc) continue;
      if (n >= máx) return máx + 1;
      x[n] = x1 + tt * dx;
      y[n] = py;
      ++n;
    }
  }
  // Ascending, few values.
  for (int i = 1; i < n; ++i)
    for (int k = i; k > 0 && x[k] < x[k - 1]; --k) {
      std::swap(x[k], x[k - 1]);
      std::swap(y[k], y[k - 1]);
    }
  return n;
}

// Weight of the column between yb and yt at x, the strength at its base and the pore pressure.
// False when the base lies below every stratum line: the circle leaves the section.
inline bool Columna(const SecciónBúsqueda& s, double x, double yb, double yt, std::size_t* cur,
                    double& peso, double& c, double& t, double& u, double& aguaEncima,
                    double& yAgua) {
  const bool agua = !s.freático.Vacía();
  const double yw = agua ? Ordenada(s.freático, x, cur[0]) : -1e300;
  yAgua = yw;
  u = agua && yw > yb ? yw - yb : 0.0;
  aguaEncima = agua && yw > yt && !s.desembalse ? yw - yt : 0.0;
  peso = 0;
  double arriba = yt, líneaAnterior = yt;
  const std::size_t m = s.estratos.size();
  for (std::size_t e = 0; e < m; ++e) {
    const Polilínea& l = s.estratos[e];
    const double ls = l.Dentro(x) ? Ordenada(l, x, cur[1 + e]) : líneaAnterior;
    líneaAnterior = ls;
    if (ls >= arriba) continue;  // a line above the column: passed over
    const double abajo = std::max(ls, yb);
    if (abajo < arriba) {
      double seco = arriba - abajo, mojado = 0;
      if (yw >= arriba) {
        mojado = seco;
        seco = 0;
      } else if (yw > abajo) {
        mojado = yw - abajo;
        seco = arriba - yw;
      }
      peso += seco * s.γh[e] + mojado * s.γs[e];
    }
    arriba = abajo;
    if (ls < yb) {
      c = s.c[e];
      t = s.t[e];
      return true;
    }
  }
  return false;
}

double Bishop(const SecciónBúsqueda& s, int n, double R, EspacioEvaluación& e) {
  double motor = 0;
  for (int i = 0; i < n; ++i) motor += e.D[i];
  if (!(motor > 0)) return kNaN;
  double F = 1.0;
  for (int pasada = 0; pasada < 200; ++pasada) {
    double suma = 0;
    for (int i = 0; i < n; ++i) {
      const double m = e.ca[i] + e.sa[i] * e.t[i] / F;
      if (!(m > 0)) return kNaN;
      const double N = ((1 + s.kv) * e.W[i] + e.Q[i] + (e.t[i] * e.u[i] - e.c[i]) * e.ta[i] * e.b[i] / F) / m;
      const double l = e.b[i] / e.ca[i];
      suma += (N - e.u[i] * l) * e.t[i] + e.c[i] * l;
    }
    const double nuevo = R * suma / motor;
    if (!std::isfinite(nuevo) || !(nuevo > 0)) return kNaN;
    if (std::fabs(nuevo - F) < 1e-6) return nuevo;
    F = nuevo;
  }
  return kNaN;
}

// Janbu's force iteration on the slices read from the crest (index k = n - 1 - i of the ascending
// arrays), with the line of thrust at a third of the height of each edge and no screen.
double Janbu(const SecciónBúsqueda& s, int n, EspacioEvaluación& e) {
  auto S = [n](int i) { return static_cast<std::size_t>(n - i); };        // slice i = 1..n
  auto B = [n](int j) { return static_cast<std::size_t>(n + 1 - j); };    // edge j = 1..n+1
  std::vector<double>& A = e.A;
  double sumaD = 0;
  for (int i = 1; i <= n; ++i) {
    const std::size_t k = S(i);
    const double pendiente = (e.ybe[B(i)] - e.ybe[B(i + 1)]) / (e.xe[B(i)] - e.xe[B(i + 1)]);
    e.ta[k] = pendiente;
    const double V = (1 + s.kv) * e.W[k] + e.Q[k];
    e.A0[k] = A[k] = (V - e.u[k] * e.b[k]) * e.t[k] + e.c[k] * e.b[k];
    e.D0[k] = e.D[k] = pendiente * V + s.kh * e.W[k];
    sumaD += e.D[k];
    e.ht[static_cast<std::size_t>(i)] = (e.yte[B(i + 1)] - e.ybe[B(i + 1)]) / 3;
  }
  e.ht[static_cast<std::size_t>(n + 1)] = 0;
  if (!(sumaD > 0)) return kNaN;
  auto nα = [&](std::size_t k, double F) {
    const double ca2 = 1 / (1 + e.ta[k] * e.ta[k]);
    return ca2 * (1 + e.ta[k] * e.t[k] / F);
  };
  double F = 1.0;
  for (int pasada = 0;; ++pasada) {
    if (pasada >= 200) return kNaN;
    double num = 0;
    for (int i = 1; i <= n; ++i) {
      const std::size_t k = S(i);
      const double m = nα(k, F);
      if (!(m > 0)) return kNaN;
      num += A[k] / m;
    }
    const double nuevo = num / sumaD;
    if (!std::isfinite(nuevo) || !(nuevo > 0)) return kNaN;
    const bool fin = std::fabs(nuevo - F) <= 0.001;
    F = nuevo;
    if (fin) break;
  }
  auto ix = [](int i) { return static_cast<std::size_t>(i); };
  for (int pasada = 0; pasada < 200; ++pasada) {
    for (int i = 1; i < n; ++i) {
      const std::size_t k1 = S(i + 1);
      e.αt[ix(i)] = std::atan((e.ta[k1] * e.b[k1] + e.ht[ix(i)] - e.ht[ix(i + 1)]) / e.b[k1]);
    }
    double E = 0;
    for (int i = 1; i <= n; ++i) {
      const std::size_t k = S(i);
      e.dE[ix(i)] = e.D[k] - A[k] / (F * nα(k, F));
      E += e.dE[ix(i)];
      e.E[ix(i)] = E;
    }
    for (int i = 1; i < n; ++i) {
      const std::size_t k = S(i), k1 = S(i + 1);
      double T = -std::tan(e.αt[ix(i)]) * e.E[ix(i)] +
                 ((e.dE[ix(i + 1)] + e.dE[ix(i)]) / (e.b[k1] + e.b[k])) * e.ht[ix(i)];
      T -= e.h[k] * (s.kh * 0.5 * e.W[k]) / (e.b[k] + e.b[k]);
      T -= e.h[k1] * (s.kh * 0.5 * e.W[k1]) / (e.b[k1] + e.b[k1]);
      e.T[ix(i)] = T;
    }
    for (int i = 1; i <= n; ++i) {
      const double dT = i == 1 ? e.T[1] : (i == n ? -e.T[ix(n - 1)] : e.T[ix(i)] - e.T[ix(i - 1)]);
      const std::size_t k = S(i);
      e.D[k] = e.ta[k] * dT + e.D0[k];
      A[k] = dT * e.t[k] + e.A0[k];
    }
    double num = 0, den = 0;
    for (int i = 1; i <= n; ++i) {
      const std::size_t k = S(i);
      const double m = nα(k, F);
      if (!(m > 0)) return kNaN;
      num += A[k] / m;
      den += e.D[k];
    }
    const double nuevo = num / den;
    if (!std::isfinite(nuevo) || !(nuevo > 0)) return kNaN;
    if (std::fabs(nuevo - F) <= 0.001) return nuevo;
    F = nuevo;
  }
  return kNaN;
}

}  // namespace

double EvaluarCírculo(const SecciónBúsqueda& s, double xc, double yc, double R, int n,
                      MétodoBúsqueda método, double xSalidaMínima, double xSalidaMáxima,
                      EspacioEvaluación& e, CírculoEvaluado* salida) {
  if (!(R > 0) || n < 3 || static_cast<std::size_t>(n) + 2 > e.W.size()) return kNaN;
  if (s.espejo) {
    xc = -xc;
    std::tie(xSalidaMínima, xSalidaMáxima) = std::pair(-xSalidaMáxima, -xSalidaMínima);
  }
  // The sliding mass lies between the last two crossings, on the crest side; a dip of the arc
  // under the toe ground before them, or a touch, is left out.
  double cx[9], cy[9];
  const int nc = Cruces(s.suelo, xc, yc, R, cx, cy, 8);
  if (nc < 2 || nc > 8) return kNaN;
  if (nc > 2) {
    cx[0] = cx[nc - 2], cy[0] = cy[nc - 2];
    cx[1] = cx[nc - 1], cy[1] = cy[nc - 1];
  }
  const double xa = cx[0], xb = cx[1];
  if (xa < xSalidaMínima || xb > xSalidaMáxima || !(xb - xa > 1e-6)) return kNaN;
  std::size_t cs = 0;
  const double R2 = R * R;
  auto arco = [&](double x) { return yc - std::sqrt(std::max(0.0, R2 - (x - xc) * (x - xc))); };
  {
    const double xm = 0.5 * (xa + xb);
    if (!(arco(xm) < Ordenada(s.suelo, xm, cs))) return kNaN;
  }
  const double w = (xb - xa) / n;
  std::size_t cursores[64] = {};
  std::size_t* cur = cursores;
  std::vector<std::size_t> cursoresLargos;
  if (s.estratos.size() + 1 > 64) {
    cursoresLargos.assign(s.estratos.size() + 1, 0);
    cur = cursoresLargos.data();
  }
  cs = 0;
  for (int k = 0; k <= n; ++k) {
    const double x = k == n ? xb : xa + k * w;
    e.xe[static_cast<std::size_t>(k)] = x;
    const double yt = Ordenada(s.suelo, x, cs);
    e.yte[static_cast<std::size_t>(k)] = yt;
    e.ybe[static_cast<std::size_t>(k)] = k == 0 ? cy[0] : (k == n ? cy[1] : std::min(arco(x), yt));
  }
  cs = 0;
  for (int k = 0; k < n; ++k) {
    const std::size_t i = static_cast<std::size_t>(k);
    const double xm = xa + (k + 0.5) * w;
    const double yb = arco(xm), yt = Ordenada(s.suelo, xm, cs);
    const double h = std::max(0.0, yt - yb);
    double peso, c = 0, t = 0, u, encima, yw;
    if (!Columna(s, xm, yb, yb + h, cur, peso, c, t, u, encima, yw)) return kNaN;
    const double sn = (xm - xc) / R;
    const double cn = std::sqrt(std::max(0.0, 1 - sn * sn));
    if (!(cn > 1e-9)) return kNaN;
    const double W = (peso + encima) * w;
    double Q = 0, momentoCargas = 0;
    for (const auto& q : s.uniformes)
      if (q.xo <= xm && xm <= q.xf) {
        Q += q.qy * w;
        momentoCargas += q.qy * w * (xm - xc);
      }
    for (const auto& q : s.puntuales)
      if (xm - 0.5 * w <= q.x && q.x <= xm + 0.5 * w) {
        Q += q.py;
        momentoCargas += q.py * (q.x - xc);
      }
    const double H = encima > 0 ? yw - yb : h;
    e.W[i] = W;
    e.Q[i] = Q;
    e.sa[i] = sn;
    e.ca[i] = cn;
    e.ta[i] = sn / cn;
    e.b[i] = w;
    e.u[i] = u;
    e.c[i] = c;
    e.t[i] = t;
    e.h[i] = h;
    e.xm[i] = xm;
    e.D[i] = (2 * R * cn - H) * (s.kh * 0.5 * W) + (1 + s.kv) * W * R * sn + momentoCargas;
  }
  const double F = método == MétodoBúsqueda::Bishop ? Bishop(s, n, R, e) : Janbu(s, n, e);
  if (salida && std::isfinite(F)) {
    const double signo = s.espejo ? -1 : 1;
    salida->xc = signo * xc;
    salida->yc = yc;
    salida->radio = R;
    salida->factor = F;
    // The crest side is the side of greater X in the section's own terms.
    salida->xCresta = signo * xb;
    salida->yCresta = cy[1];
    salida->xPie = signo * xa;
    salida->yPie = cy[0];
  }
  return F;
}

// --- The search -------------------------------------------------------------------------------

std::string ComprobarOpcionesBúsqueda(const OpcionesBúsqueda& o) {
  auto finito = [](double v) { return std::isfinite(v); };
  if (!finito(o.x1) || !finito(o.y1) || !finito(o.x2) || !finito(o.y2))
    return "Las esquinas de la malla de centros deben ser números.";
  if (o.divisionesX < 0 || o.divisionesY < 0 || o.divisionesX > 1000 || o.divisionesY > 1000)
    return "Las divisiones de la malla de centros deben estar entre 0 y 1000.";
  if (o.dovelas < 3 || o.dovelas > 1000) return "El número de dovelas debe estar entre 3 y 1000.";
  if (o.cotasTangencia.empty()) {
    if (!finito(o.radioMínimo) || !finito(o.radioMáximo) || !(o.radioMínimo > 0) ||
        o.radioMáximo < o.radioMínimo)
      return "El radio mínimo debe ser positivo y no mayor que el radio máximo.";
    if (!(o.pasoRadio > 0)) return "El paso del radio debe ser positivo.";
    if ((o.radioMáximo - o.radioMínimo) / o.pasoRadio > 1000)
      return "Son más de 1000 radios por centro: aumente el paso del radio.";
  } else if (o.cotasTangencia.size() > 1000) {
    return "Son más de 1000 cotas de tangencia.";
  }
  if (!(o.xSalidaMínima < o.xSalidaMáxima))
    return "La abscisa mínima de salida debe ser menor que la máxima.";
  const double total = (o.divisionesX + 1.0) * (o.divisionesY + 1.0) *
                       (o.cotasTangencia.empty()
                            ? std::floor((o.radioMáximo - o.radioMínimo) / o.pasoRadio + 1e-9) + 1
                            : static_cast<double>(o.cotasTangencia.size()));
  if (total > 5e7) return "La búsqueda pasa de 50 millones de círculos: reduzca la malla o los radios.";
  return "";
}

OpcionesBúsqueda OpcionesPorDefecto(const Proyecto& p) {
  OpcionesBúsqueda o;
  double xMín = 0, xMáx = 0, yMín = 0, yMáx = 0;
  for (long k = 1; k <= p.NúmeroPuntosTalud; ++k) {
    const double x = p.CoordenadasTalud.X.Leer(k), y = p.CoordenadasTalud.Y.Leer(k);
    if (k == 1 || x < xMín) xMín = x;
    if (k == 1 || x > xMáx) xMáx = x;
    if (k == 1 || y < yMín) yMín = y;
    if (k == 1 || y > yMáx) yMáx = y;
  }
  const double ancho = std::max(xMáx - xMín, 1.0);
  const double alto = yMáx - yMín > 0.01 * ancho ? yMáx - yMín : 0.25 * ancho;
  auto redondo = [](double v) { return std::round(v * 100) / 100; };
  o.x1 = redondo(xMín + 0.1 * ancho);
  o.x2 = redondo(xMáx - 0.3 * ancho);
  o.y1 = redondo(yMáx + 0.2 * alto);
  o.y2 = redondo(yMáx + 2.5 * alto);
  o.radioMínimo = redondo(std::max(0.5 * alto, 0.5));
  o.radioMáximo = redondo(o.y2 - yMín + alto);
  o.pasoRadio = redondo(std::max((o.radioMáximo - o.radioMínimo) / 20, 0.01));
  o.xSalidaMínima = xMín;
  o.xSalidaMáxima = xMáx;
  return o;
}

ResultadoBúsqueda BuscarCírculoCrítico(const Proyecto& p, const OpcionesBúsqueda& o, Interfaz* ui) {
  ResultadoBúsqueda r;
  r.mensaje = ComprobarOpcionesBúsqueda(o);
  if (!r.mensaje.empty()) return r;
  const SecciónPreparada s = PrepararSección(p, r.mensaje);
  if (!s) return r;

  r.columnas = o.divisionesX + 1;
  r.filas = o.divisionesY + 1;
  for (int i = 0; i < r.columnas; ++i)
    r.xCentro.push_back(o.divisionesX ? o.x1 + (o.x2 - o.x1) * i / o.divisionesX : o.x1);
  for (int j = 0; j < r.filas; ++j)
    r.yCentro.push_back(o.divisionesY ? o.y1 + (o.y2 - o.y1) * j / o.divisionesY : o.y1);
  const bool tangencia = !o.cotasTangencia.empty();
  const long radios = tangencia ? static_cast<long>(o.cotasTangencia.size())
                                : static_cast<long>(std::floor((o.radioMáximo - o.radioMínimo) / o.pasoRadio + 1e-9)) + 1;
  const long centros = static_cast<long>(r.columnas) * r.filas;
  r.círculos = centros * radios;
  auto radio = [&](double yc, long k) {
    return tangencia ? yc - o.cotasTangencia[static_cast<std::size_t>(k)] : o.radioMínimo + k * o.pasoRadio;
  };
  auto centro = [&](long c, double& xc, double& yc) {
    xc = r.xCentro[static_cast<std::size_t>(c % r.columnas)];
    yc = r.yCentro[static_cast<std::size_t>(c / r.columnas)];
  };

  std::vector<double> factores(static_cast<std::size_t>(r.círculos), kNaN);
  auto trabajar = [&](long desde, long hasta) {
    EspacioPreparado e = NuevoEspacio(o.dovelas);
    for (long c = desde; c < hasta; ++c) {
      double xc, yc;
      centro(c, xc, yc);
      for (long k = 0; k < radios; ++k)
        factores[static_cast<std::size_t>(c * radios + k)] =
            EvaluarCírculo(*s, xc, yc, radio(yc, k), o.dovelas, o.método, o.xSalidaMínima,
                           o.xSalidaMáxima, *e);
    }
  };

  const unsigned máquina = std::max(1u, std::thread::hardware_concurrency());
  const long hilos = std::clamp<long>(o.hilos > 0 ? o.hilos : static_cast<long>(máquina), 1, 256);
  // Lots of centres between two calls of the progress, about fifty in all.
  const long lote = std::max<long>(1, std::max<long>(centros / 50, 4 * hilos));
  for (long desde = 0; desde < centros; desde += lote) {
    const long hasta = std::min(centros, desde + lote);
    const long n = hasta - desde;
    const long partes = std::min(hilos, n);
    std::vector<std::thread> equipo;
    for (long h = 1; h < partes; ++h)
      equipo.emplace_back(trabajar, desde + n * h / partes, desde + n * (h + 1) / partes);
    trabajar(desde, desde + n / partes);
    for (auto& t : equipo) t.join();
    if (ui && !ui->Progreso(static_cast<double>(hasta) / centros,
                            "Búsqueda del círculo crítico: " + std::to_string(hasta * radios) +
                                " de " + std::to_string(r.círculos) + " círculos")) {
      r.cancelada = true;
      r.mensaje = "Búsqueda cancelada por el usuario. No se cambió nada del proyecto.";
      return r;
    }
  }

  r.mínimoPorCentro.assign(static_cast<std::size_t>(centros), kNaN);
  std::vector<long> válidos;
  for (long c = 0; c < centros; ++c)
    for (long k = 0; k < radios; ++k) {
      const double f = factores[static_cast<std::size_t>(c * radios + k)];
      if (!std::isfinite(f)) continue;
      válidos.push_back(c * radios + k);
      double& m = r.mínimoPorCentro[static_cast<std::size_t>(c)];
      if (!(m <= f)) m = f;
    }
  r.admisibles = static_cast<long>(válidos.size());
  if (válidos.empty()) {
    r.mensaje =
        "Ningún círculo de la malla es admisible: ninguno corta dos veces la superficie del "
        "terreno entre las abscisas de salida sin salirse de la sección. Cambie la malla de "
        "centros, los radios o las abscisas de salida.";
    return r;
  }
  const std::size_t diez = std::min<std::size_t>(10, válidos.size());
  std::partial_sort(válidos.begin(), válidos.begin() + static_cast<long>(diez), válidos.end(),
                    [&](long a, long b) {
                      const double fa = factores[static_cast<std::size_t>(a)];
                      const double fb = factores[static_cast<std::size_t>(b)];
                      return fa < fb || (fa == fb && a < b);
                    });
  EspacioPreparado e = NuevoEspacio(o.dovelas);
  for (std::size_t q = 0; q < diez; ++q) {
    const long índice = válidos[q];
    double xc, yc;
    centro(índice / radios, xc, yc);
    CírculoEvaluado c;
    EvaluarCírculo(*s, xc, yc, radio(yc, índice % radios), o.dovelas, o.método, o.xSalidaMínima,
                   o.xSalidaMáxima, *e, &c);
    r.menores.push_back(c);
  }
  r.hay = true;
  return r;
}

}  // namespace lomaterra
