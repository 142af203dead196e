// The first two stages of the slice pipeline (crossings of the failure surface with the strata and
// the list of breaks), the arcs of the failure surface, and the run of the six stages.
#include "equilibrio/dovelas.h"

#include <cmath>
#include <utility>
#include <vector>

#include "equilibrio/dovelas_interno.h"
#include "equilibrio/constantes.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"

namespace lomaterra {

namespace interno {

double Pendiente(double x1, double y1, double x2, double y2) {
  double den = x1 - x2;
  if (den == 0.0) den = x1 - (x2 - 0.01);
  return Div(y1 - y2, den, "la pendiente de un segmento");
}

double Lagrange(const TablaXY& puntos, long desde, long hasta, double x) {
  double suma = 0.0;
  for (long c = desde; c <= hasta; ++c) {
    double término = puntos.Y.Leer(c);
    for (long d = desde; d <= hasta; ++d) {
      if (d == c) continue;
      término *= Div(x - puntos.X.Leer(d), puntos.X.Leer(c) - puntos.X.Leer(d),
                     "el polinomio de la superficie de falla");
    }
    suma += término;
  }
  return suma;
}

int TramoDePunto(const Proyecto& p, long i) {
  for (int t = 1; t <= p.NúmeroTramosFalla; ++t)
    if (p.TramoFalla.PuntoInicial.Leer(t) <= i && i < p.TramoFalla.PuntoFinal.Leer(t)) return t;
  return 0;
}

double PendienteTramo(const Proyecto& p, int t) {
  const auto& f = p.CoordenadasFalla;
  const long a = static_cast<long>(p.TramoFalla.PuntoInicial.Leer(t));
  const long b = static_cast<long>(p.TramoFalla.PuntoFinal.Leer(t));
  return Pendiente(f.X.Leer(a), f.Y.Leer(a), f.X.Leer(b), f.Y.Leer(b));
}

long NúmeroDeDovelas(const Proyecto& p) { return p.NúmeroBordes > 1 ? p.NúmeroBordes - 1 : 0; }

}  // namespace interno

using namespace interno;

namespace {

const char* const kMensajeParalelas =
    "La pendiente de superficie potencial de falla coincide con la pendiente de un estrato. Varie "
    "en un mínimo la pendiente de la superficie de falla para evitar un error en cálculo de un "
    "parámetro. Si el programa continua calculando despues de este mensaje, no será correcto. "
    "Inicie de nuevo.";

// Root of what is left under the arc. A point that lies on the circle by construction may come
// out a hair outside it by rounding; that hair is read as the circle itself.
double RaízDelArco(double radio, double dx) {
  const double v = radio * radio - dx * dx;
  if (v < 0.0 && v > -1e-9 * (1.0 + radio * radio)) return 0.0;
  return Raíz(v, "la ordenada del arco de falla");
}

[[noreturn]] void ExcesoDePasos(const char* qué) {
  std::string texto = "la búsqueda ";
  texto += qué;
  texto += " no termina";
  throw FalloAritmético(texto);
}

// The arc of chord i meets the stratum line: a march from X[i+1] towards its bound, refined at
// each change of order of the two curves.
double IntersecciónArco(Proyecto& p, Interfaz& ui, long i, double mf, double ys0, double xs0,
                        double ms) {
  auto& t = p.Trabajo;
  auto& pi = p.ParámetrosIniciales;
  const auto& P = t.PuntosFalla;
  const bool varios = p.NúmeroTramosFalla > 1;
  const long último = t.NúmeroPuntosTrabajo;
  double m = mf;
  if (varios) {
    AjusteArcoEntrePuntos(p, ui, static_cast<int>(i), static_cast<int>(i + 1));
    if (i + 1 < último)
      m = Pendiente(P.X.Leer(i + 1), P.Y.Leer(i + 1), P.X.Leer(i + 2), P.Y.Leer(i + 2));
    else
      m = Pendiente(P.X.Leer(i - 1), P.Y.Leer(i - 1), P.X.Leer(i), P.Y.Leer(i));
  }
  const double cx = pi.CentroX, cy = pi.CentroY, r = t.RadioActual;
  const double xi = P.X.Leer(i);
  const double cota = (cy < P.Y.Leer(i) && m > 0) ? cx - r : xi;
  const bool superior = !varios && cy < P.Y.Leer(1);
  auto diferencia = [&](double x) {
    const double s = RaízDelArco(r, x - cx);
    const double yArco = superior ? cy + s : cy - s;
    return yArco - (ys0 + ms * (x - xs0));
  };
  const double másAllá = (i + 1 == último) ? xi : cota;

  double x = P.X.Leer(i + 1);
  const double sentido = cota >= x ? 1.0 : -1.0;
  double d = diferencia(x);
  if (std::fabs(d) <= 0.005) return x;
  double paso = 1.0;
  bool refinando = false;
  auto menor = [](double h) { return h > 0.5 ? 0.1 : (h > 0.05 ? 0.01 : 0.001); };
  for (long n = 0; n < kMáximoPasos; ++n) {
    if (std::fabs(x - cota) <= 0.001) return másAllá;
    double xn = x + sentido * paso;
    if ((sentido > 0 && xn > cota) || (sentido < 0 && xn < cota)) xn = cota;
    const double dn = diferencia(xn);
    if (std::fabs(dn) <= 0.005) return xn;
    if ((dn > 0) != (d > 0)) {
      // The curves changed order: back to the abscissa before with a finer step. At the finest
      // step the crossing lies within 0.001, and the nearer of the two abscissas is taken.
      if (paso <= 0.001) return std::fabs(dn) < std::fabs(d) ? xn : x;
      paso = menor(paso);
      refinando = true;
    } else {
      if (refinando) paso = menor(paso);
      x = xn;
      d = dn;
    }
  }
  ExcesoDePasos("de la intersección del arco de falla con un estrato");
}

// The polynomial of the stretch meets the stratum line: a march brackets the root, a secant
// closes on it.
double IntersecciónPolinomio(Proyecto& p, long i, double mf, double ys0, double xs0, double ms) {
  auto& t = p.Trabajo;
  const auto& P = t.PuntosFalla;
  const int tramo = TramoDePunto(p, i);
  const long desde = static_cast<long>(p.TramoFalla.PuntoInicial.Leer(tramo));
  const long hasta = static_cast<long>(p.TramoFalla.PuntoFinal.Leer(tramo));
  auto estrato = [&](double x) { return ys0 + ms * (x - xs0); };
  auto propio = [&](double x) { return Lagrange(P, desde, hasta, x) - estrato(x); };
  const double xi = P.X.Leer(i);
  double& marcha = p.ParámetrosIniciales.CentroX;  // the march runs on the centre's abscissa

  bool hallado = false;
  double a = 0, b = 0;
  marcha = P.X.Leer(i + 1);
  double fa = propio(marcha);
  if (fa == 0.0) return marcha;
  // Up to X[i] with step 1.0, clamped there.
  for (long n = 0; n < kMáximoPasos && marcha < xi; ++n) {
    const double xn = std::min(marcha + 1.0, xi);
    const double fb = propio(xn);
    if (fa * fb <= 0.0) {
      a = marcha, b = xn, hallado = true;
      break;
    }
    marcha = xn;
    fa = fb;
  }
  if (!hallado) {
    // From X[i] down with step 0.01, as far as the lower end of the stretch.
    const double inferior = P.X.Leer(hasta);
    marcha = xi;
    fa = propio(marcha);
    for (long n = 0; n < kMáximoPasos && marcha > inferior; ++n) {
      const double xn = std::max(marcha - 0.01, inferior);
      const double fb = propio(xn);
      if (fa * fb <= 0.0) {
        a = marcha, b = xn, hallado = true;
        break;
      }
      marcha = xn;
      fa = fb;
    }
  }
  if (!hallado) {
    // The curve of the stretch does not meet the stratum although its chord does: the crossing
    // of the chord stands for it.
    marcha = Div(xi * mf - xs0 * ms + ys0 - P.Y.Leer(i), mf - ms, "la intersección con un estrato");
    return marcha;
  }
  // The secant works on the polynomial of the first points of the surface.
  const long k = hasta - desde + 1;
  auto primeros = [&](double x) { return Lagrange(P, 1, k, x) - estrato(x); };
  for (long n = 0; n < 1000; ++n) {
    const double fb = primeros(b), fa2 = primeros(a);
    const double xn = b - Div((b - a) * fb, fb - fa2, "la intersección de un tramo polinómico");
    marcha = xn;
    if (std::fabs(xn - b) < 0.001) return xn;
    a = b;
    b = xn;
  }
  ExcesoDePasos("de la intersección de un tramo polinómico con un estrato");
}

}  // namespace

void CentroDelArco(Proyecto& p, Interfaz& ui) {
  auto& pi = p.ParámetrosIniciales;
  auto& t = p.Trabajo;
  const auto& f = p.CoordenadasFalla;
  const double x1 = f.X.Leer(1), y1 = f.Y.Leer(1), x2 = f.X.Leer(2), y2 = f.Y.Leer(2);
  pi.Cuerda = std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
  if (pi.Radio < pi.Cuerda / 2) {
    AbrirConstantesDeCálculo(p, ui);
    t.RadioActual = pi.Radio;  // the radius in use follows what the screen left
  }
  const double beta = std::atan(Div(y1 - y2, x1 - x2, "la inclinación de la cuerda del arco"));
  if (pi.ReferenciaMomentoY == 0.0) {
    // While the centre falls below the first point the radius grows by 0.5; both the given radius
    // and the radius in use grow, so that the angle is taken on the new radius.
    for (long n = 0;; ++n) {
      if (n >= kMáximoPasos) ExcesoDePasos("del centro del arco");
      const double c = Div(pi.Cuerda, 2 * t.RadioActual, "el ángulo del arco");
      const double theta = std::atan(Div(c, Raíz(1 - c * c, "el ángulo del arco"), "el ángulo del arco"));
      const double gamma = theta - beta;
      pi.CentroX = std::sin(gamma) * t.RadioActual + x2;
      pi.CentroY = std::cos(gamma) * t.RadioActual + y2;
      if (!(pi.CentroY < y1)) break;
      pi.Radio += 0.5;
      t.RadioActual += 0.5;
    }
  } else if (pi.ReferenciaMomentoY > 0) {
    pi.CentroX = pi.ReferenciaMomentoX;
    pi.CentroY = pi.ReferenciaMomentoY;
  }
}

void AjusteArcoEntrePuntos(Proyecto& p, Interfaz& ui, int pt, int qt) {
  const auto& f = p.CoordenadasFalla;
  const double xp = f.X.Leer(pt), yp = f.Y.Leer(pt), xq = f.X.Leer(qt), yq = f.Y.Leer(qt);
  const double a1 = std::atan(Pendiente(xp, yp, xq, yq));
  const double a2 = qt < p.NúmeroPuntosFalla
                        ? std::atan(Pendiente(xq, yq, f.X.Leer(qt + 1), f.Y.Leer(qt + 1)))
                        : std::atan(Pendiente(f.X.Leer(pt - 1), f.Y.Leer(pt - 1), xp, yp));
  const double cuerda = std::sqrt((xp - xq) * (xp - xq) + (yp - yq) * (yp - yq));
  const double r = Div(cuerda, 2 * std::sin(std::fabs(a1 - a2)), "el radio de un tramo circular");
  double xc = (xp + xq) / 2;
  double yc = (!(yq < yp) || xq < xp) ? 1.5 * std::fabs(yq) : 0.0;
  for (int pasada = 1; pasada <= 50; ++pasada) {
    // (Xk - xc)^2 + (Yk - yc)^2 = R^2 through p and q; Newton, the 2x2 system by Gauss-Jordan.
    double a11 = -2 * (xp - xc), a12 = -2 * (yp - yc), b1 = -((xp - xc) * (xp - xc) + (yp - yc) * (yp - yc) - r * r);
    double a21 = -2 * (xq - xc), a22 = -2 * (yq - yc), b2 = -((xq - xc) * (xq - xc) + (yq - yc) * (yq - yc) - r * r);
    if (a11 == 0.0) {
      ui.Mensaje("Determinante =0, Ordene la matriz");
      break;
    }
    a12 /= a11;
    b1 /= a11;
    a22 -= a21 * a12;
    b2 -= a21 * b1;
    if (a22 == 0.0) {
      ui.Mensaje("Determinante =0, Ordene la matriz");
      break;
    }
    const double dy = b2 / a22;
    const double dx = b1 - a12 * dy;
    xc += dx;
    yc += dy;
    if (std::fabs(dx) < 0.0001 && std::fabs(dy) < 0.0001) break;
  }
  p.ParámetrosIniciales.CentroX = Finito(xc, "el centro de un tramo circular");
  p.ParámetrosIniciales.CentroY = Finito(yc, "el centro de un tramo circular");
  p.Trabajo.RadioActual = r;
}

std::optional<double> IntersecciónEnTramo(Proyecto& p, Interfaz& ui, long i, int s, long j, double mf,
                                          double ms) {
  const auto& P = p.Trabajo.PuntosFalla;
  const double xs0 = p.XEstrato(s, j), ys0 = p.YEstrato(s, j);
  const std::string letra = p.Trabajo.TipoEnPunto.Leer(i);
  if (letra == "C") return IntersecciónArco(p, ui, i, mf, ys0, xs0, ms);
  if (letra == "P") return IntersecciónPolinomio(p, i, mf, ys0, xs0, ms);
  // "L", and a point that no stretch names.
  if (mf == ms) {
    ui.Mensaje(kMensajeParalelas);
    return std::nullopt;
  }
  return (P.X.Leer(i) * mf - xs0 * ms + ys0 - P.Y.Leer(i)) / (mf - ms);
}

void InterseccionesFallaEstratos(Proyecto& p, Interfaz& ui) {
  auto& t = p.Trabajo;
  auto& pi = p.ParámetrosIniciales;
  const auto& f = p.CoordenadasFalla;
  t.RadioActual = pi.Radio;
  if (p.SuperficieCircular()) {
    if (!t.RadioEnVariación) CentroDelArco(p, ui);
    // The arc is followed by chords shorter than 1 m.
    const double ancho = f.X.Leer(1) - f.X.Leer(2);
    long n = 1;
    while (ancho / n >= 1.0) {
      if (++n > 30000) throw FalloAritmético("la división del arco de falla en cuerdas");
    }
    const double paso = ancho / n;
    t.PuntosFalla.Redimensionar(n + 1);
    t.TipoEnPunto.Redimensionar(n + 1);
    t.PuntosFalla.X[1] = f.X.Leer(1);
    t.PuntosFalla.Y[1] = f.Y.Leer(1);
    for (long k = 2; k <= n + 1; ++k) {
      const double x = t.PuntosFalla.X[k - 1] - paso;
      t.PuntosFalla.X[k] = x;
      t.PuntosFalla.Y[k] = pi.CentroY - RaízDelArco(t.RadioActual, x - pi.CentroX);
    }
    const std::string arco(1, 'C');
    for (long k = 1; k <= n; ++k) t.TipoEnPunto[k] = arco;
    t.NúmeroPuntosTrabajo = static_cast<Entero>(n + 1);
  } else {
    const long n = p.NúmeroPuntosFalla;
    t.PuntosFalla.Redimensionar(n);
    t.TipoEnPunto.Redimensionar(n);
    for (long k = 1; k <= n; ++k) {
      t.PuntosFalla.X[k] = f.X.Leer(k);
      t.PuntosFalla.Y[k] = f.Y.Leer(k);
      const int tramo = TramoDePunto(p, k);
      if (tramo > 0) t.TipoEnPunto[k] = p.TramoFalla.TipoUnión.Leer(tramo);
    }
    t.NúmeroPuntosTrabajo = static_cast<Entero>(n);
  }

  std::vector<double> xs, mfs, mss;
  std::vector<Entero> estratos;
  const auto& P = t.PuntosFalla;
  for (int s = 1; s <= p.NúmeroEstratos; ++s) {
    const long puntos = p.PuntosEstrato.Leer(s);
    for (long j = 1; j < puntos; ++j) {
      const double xs1 = p.XEstrato(s, j), ys1 = p.YEstrato(s, j);
      const double xs2 = p.XEstrato(s, j + 1), ys2 = p.YEstrato(s, j + 1);
      for (long i = 1; i < t.NúmeroPuntosTrabajo; ++i) {
        const double x1 = P.X[i], y1 = P.Y[i], x2 = P.X[i + 1], y2 = P.Y[i + 1];
        const double mf = Pendiente(x1, y1, x2, y2);
        const double ms = Pendiente(xs1, ys1, xs2, ys2);
        if (std::fabs(mf - ms) <= 0.001) continue;
        const double divisor = mf == 0.0 ? 1.0 : mf;
        const double xa = x1 + (ys1 - y1) / divisor;
        const double xb = x2 + (ys2 - y2) / divisor;
        const double ya = ys1 + ms * (x1 - xs1);
        const double yb = ys2 + ms * (x2 - xs2);
        bool cruce = false;
        if (mf > 0) {
          cruce = xa <= xs1 && xb >= xs2 && ya <= y1 && yb >= y2;
        } else if (mf == 0) {
          if (ms > 0)
            cruce = ys1 >= y1 && ys2 <= y1 && xs1 >= x2 && xs2 <= x1;
          else if (ms < 0)
            cruce = ys1 <= y1 && ys2 >= y1 && xs1 >= x2 && xs2 <= x1;
        } else {
          // The two rows for a rising chord share ms = 0: either one that holds makes a crossing
          // (a level stratum is met by the second; a steeper falling one by the first).
          const bool fila4 = ms <= 0 && xa >= xs1 && xb <= xs2 && ya <= y1 && yb >= y2;
          const bool fila5 = ms >= 0 && xa <= xs1 && xb >= xs2 && ya >= y1 && yb <= y2;
          cruce = fila4 || fila5;
        }
        if (!cruce) continue;
        const double x = IntersecciónEnTramo(p, ui, i, s, j, mf, ms).value_or(0.0);
        // A crossing within 0.001 of the one before is the same crossing.
        if (!xs.empty() && std::fabs(x - xs.back()) < 0.001) continue;
        if (xs.size() >= 32000) throw FalloAritmético("el número de intersecciones");
        xs.push_back(x);
        mfs.push_back(mf);
        mss.push_back(ms);
        estratos.push_back(static_cast<Entero>(s));
      }
    }
  }
  const long n = static_cast<long>(xs.size());
  t.XIntersección.Redimensionar(n);
  t.EstratoCruce.Redimensionar(n);
  t.PendienteFallaCruce.Redimensionar(n);
  t.PendienteEstratoCruce.Redimensionar(n);
  for (long r = 1; r <= n; ++r) {
    t.XIntersección[r] = xs[r - 1];
    t.EstratoCruce[r] = estratos[r - 1];
    t.PendienteFallaCruce[r] = mfs[r - 1];
    t.PendienteEstratoCruce[r] = mss[r - 1];
  }
  t.NúmeroIntersecciones = static_cast<Entero>(n);
  p.EtapaIntersecciones = true;
}

void ListaDeQuiebres(Proyecto& p) {
  auto& t = p.Trabajo;
  const long n = t.NúmeroIntersecciones;
  // One pass of neighbour exchanges, the greater X first; rows further out of order stay so.
  for (long r = 1; r < n; ++r) {
    if (t.XIntersección[r] < t.XIntersección[r + 1]) {
      std::swap(t.XIntersección[r], t.XIntersección[r + 1]);
      std::swap(t.EstratoCruce[r], t.EstratoCruce[r + 1]);
      std::swap(t.PendienteFallaCruce[r], t.PendienteFallaCruce[r + 1]);
      std::swap(t.PendienteEstratoCruce[r], t.PendienteEstratoCruce[r + 1]);
    }
  }
  const auto& f = p.CoordenadasFalla;
  const long nf = p.NúmeroPuntosFalla;
  t.XMáximaFalla = f.X.Leer(1);
  for (long k = 1; k <= nf; ++k) t.XMáximaFalla = std::max(t.XMáximaFalla, f.X.Leer(k));
  t.XMínimaFalla = f.X.Leer(nf);
  t.YPrimerPuntoFalla = f.Y.Leer(1);
  t.YÚltimoPuntoFalla = f.Y.Leer(nf);

  std::vector<double> q;
  auto añadir = [&](double x) {
    q.push_back(x);
    if (x > t.XMáximaFalla) t.XMáximaFalla = x;
    if (x < t.XMínimaFalla) t.XMínimaFalla = x;
  };
  if (n == 0) {
    q = {t.XMáximaFalla, t.XMínimaFalla};
  } else {
    const auto& X = t.XIntersección;
    const auto& E = t.EstratoCruce;
    for (long r = 1; r <= n; ++r) {
      if (r == 1) {
        añadir(t.XMáximaFalla);
        añadir(X[1]);
      } else if (r < n) {
        const bool otroAntes = E[r] != E[r - 1], otroDespués = E[r] != E[r + 1];
        if (otroAntes && otroDespués)
          añadir(X[r]);
        else if (!otroAntes && X[r] != X[r - 1])
          añadir(X[r]);
        else if (otroAntes && !otroDespués && t.PendienteFallaCruce[r] != t.PendienteFallaCruce[r + 1] &&
                 std::fabs(t.PendienteEstratoCruce[r] - t.PendienteFallaCruce[r + 1]) >= 0.001)
          añadir(X[r]);
      } else if (E[r] != E[r - 1] || X[r] != X[r - 1]) {
        añadir(X[r]);
      }
      if (r == n && X[r] != t.XMínimaFalla) añadir(t.XMínimaFalla);
    }
  }
  const long nq = static_cast<long>(q.size());
  t.Quiebres.Redimensionar(nq);
  for (long k = 1; k <= nq; ++k) t.Quiebres[k] = q[k - 1];
  t.NúmeroQuiebres = static_cast<Entero>(nq);
  p.EtapaQuiebres = true;
}

void EjecutarEtapas(Proyecto& p, Interfaz& ui) {
  LimpiarExcepcionesFlotantes();
  InterseccionesFallaEstratos(p, ui);
  ComprobarExcepcionesFlotantes("las intersecciones de la superficie de falla con los estratos");
  ListaDeQuiebres(p);
  ComprobarExcepcionesFlotantes("la lista de quiebres");
  GeneraciónDeDovelas(p, ui);
  ComprobarExcepcionesFlotantes("la generación de dovelas");
  GeometríaDeDovelas(p);
  ComprobarExcepcionesFlotantes("la geometría de las dovelas");
  EstratosEnDovelas(p);
  ComprobarExcepcionesFlotantes("los estratos en las dovelas");
  PresiónYPesoEnDovelas(p, ui);
  ComprobarExcepcionesFlotantes("la presión de poros y el peso de las dovelas");
}

}  // namespace lomaterra
