// Stages three to five of the slice pipeline: the edges of the slices and the failure surface at
// them, the surface and the phreatic line over them, and the strata at their bases.
#include <cmath>
#include <vector>

#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_interno.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"

namespace lomaterra {

using namespace interno;

namespace interno {

int EstratoDeBase(const Proyecto& p, long i) {
  const auto& d = p.TablaDovelas;
  if (p.NúmeroEstratos < 1) return 0;
  const double yb = d.YBase[i];
  if (yb > d.YEstrato(1, i)) return 1;
  for (int s = 2; s <= p.NúmeroEstratos; ++s)
    if (d.YEstrato(s, i) < yb && yb <= d.YEstrato(s - 1, i)) return s;
  return 0;
}

}  // namespace interno

double OrdenadaDeFalla(Proyecto& p, Interfaz& ui, double m, int tramo, double x) {
  const auto& f = p.CoordenadasFalla;
  const long a = static_cast<long>(p.TramoFalla.PuntoInicial.Leer(tramo));
  const long b = static_cast<long>(p.TramoFalla.PuntoFinal.Leer(tramo));
  const std::string letra = p.TramoFalla.TipoUnión.Leer(tramo);
  if (letra == "C") {
    if (p.NúmeroTramosFalla > 1) AjusteArcoEntrePuntos(p, ui, static_cast<int>(a), static_cast<int>(b));
    const auto& pi = p.ParámetrosIniciales;
    const double r = p.Trabajo.RadioActual;
    const double xl = pi.CentroX - r;
    const double dx = x - pi.CentroX;
    double v = r * r - dx * dx;
    if (v < 0.0 && v > -1e-9 * (1.0 + r * r)) v = 0.0;  // a point of the circle rounded outside it
    const double s = Raíz(v, "la ordenada del arco de falla");
    if (m > 0 && pi.CentroY < f.Y.Leer(a)) return x >= xl ? pi.CentroY + s : pi.CentroY - s;
    if (m < 0 && pi.CentroY < f.Y.Leer(b)) return x >= xl ? pi.CentroY - s : pi.CentroY + s;
    return pi.CentroY - s;
  }
  if (letra == "P") return Lagrange(f, 1, b - a + 1, x);  // the polynomial of the first points
  return (x - f.X.Leer(a)) * m + f.Y.Leer(a);
}

void GeneraciónDeDovelas(Proyecto& p, Interfaz& ui) {
  auto& t = p.Trabajo;
  auto& d = p.TablaDovelas;
  const double w = Div(t.XMáximaFalla - t.XMínimaFalla, p.ParámetrosIniciales.NúmeroDovelas,
                       "el ancho de las dovelas");
  std::vector<double> bordes{t.Quiebres.Leer(1)}, medios;
  // An edge not below the one before, or whose slice would have its middle not below the middle
  // before, is taken back.
  auto añadir = [&](double x) {
    if (!(x < bordes.back())) return false;
    const double medio = (bordes.back() + x) / 2;
    if (!medios.empty() && !(medio < medios.back())) return false;
    if (bordes.size() >= 32000) throw FalloAritmético("el número de dovelas");
    bordes.push_back(x);
    medios.push_back(medio);
    return true;
  };
  for (long k = 1; k < t.NúmeroQuiebres; ++k) {
    const double a = t.Quiebres[k], b = t.Quiebres[k + 1];
    if (!(a > b)) continue;
    const double q = Div(a - b, w, "el ancho de las dovelas");
    if (q > 32000) throw FalloAritmético("el número de dovelas");
    const double m = std::floor(q), fr = q - m;
    if (q <= 1) {
      añadir(a - w * q);
      continue;
    }
    bool abandonado = false;
    for (long kk = 1; kk <= static_cast<long>(m); ++kk) {
      if (!añadir(a - kk * w)) {
        abandonado = true;
        break;
      }
    }
    if (!abandonado && fr > 0) añadir(bordes.back() - w * fr);
  }
  if (bordes.size() >= 2 && bordes[bordes.size() - 2] - bordes.back() < 0.001) {
    bordes.pop_back();
    medios.pop_back();
  }

  const long nb = static_cast<long>(bordes.size());
  const long nd = nb - 1;
  p.NúmeroBordes = static_cast<Entero>(nb);
  d.BordeX.Redimensionar(nb);
  d.BordeYFalla.Redimensionar(nb);
  d.XMedio.Redimensionar(nd);
  d.YBase.Redimensionar(nd);
  for (long e = 1; e <= nb; ++e) d.BordeX[e] = bordes[static_cast<std::size_t>(e - 1)];
  for (long i = 1; i <= nd; ++i) d.XMedio[i] = medios[static_cast<std::size_t>(i - 1)];

  // The columns that the later stages and the methods fill keep their rows; while the radius is
  // being varied those named below start again from zero.
  auto porDovela = [&](Tabla<double>& c) {
    if (t.RadioEnVariación)
      c.Redimensionar(nd);
    else
      c.RedimensionarConservando(nd);
  };
  for (Tabla<double>* c : {&d.Ancho, &d.YTalud, &d.PresiónPoros, &d.PesoUnitarioMedio, &d.ÁnguloBase,
                           &d.FuerzaNormal, &d.EsfuerzoTangencial, &d.EsfuerzoNormalTotal,
                           &d.EsfuerzoNormalEfectivo, &d.EsfuerzoPrincipalMayor, &d.EsfuerzoPrincipalMenor})
    porDovela(*c);
  d.AlturaEmpuje.RedimensionarConservando(nb);

  const auto& f = p.CoordenadasFalla;
  d.BordeYFalla[1] = f.Y.Leer(1);
  if (nb >= 1) d.BordeYFalla[nb] = f.Y.Leer(p.NúmeroPuntosFalla);
  for (long e = 2; e < nb; ++e) {
    const double x = d.BordeX[e];
    for (int tr = 1; tr <= p.NúmeroTramosFalla; ++tr) {
      const double m = PendienteTramo(p, tr);
      const double xi = f.X.Leer(static_cast<long>(p.TramoFalla.PuntoInicial.Leer(tr)));
      const double xf = f.X.Leer(static_cast<long>(p.TramoFalla.PuntoFinal.Leer(tr)));
      if ((xf <= x && x < xi) || (m > 0 && x > xi)) d.BordeYFalla[e] = OrdenadaDeFalla(p, ui, m, tr, x);
    }
  }
  for (long i = 1; i <= nd; ++i) {
    const double x = d.XMedio[i];
    for (int tr = 1; tr <= p.NúmeroTramosFalla; ++tr) {
      const double m = PendienteTramo(p, tr);
      const double xi = f.X.Leer(static_cast<long>(p.TramoFalla.PuntoInicial.Leer(tr)));
      const double xf = f.X.Leer(static_cast<long>(p.TramoFalla.PuntoFinal.Leer(tr)));
      if ((xf <= x && x < xi) || (m > 0 && x >= xi) || (m < 0 && x <= xf)) {
        d.YBase[i] = OrdenadaDeFalla(p, ui, m, tr, x);
        break;
      }
    }
  }
  p.EtapaDovelas = true;
}

namespace {

// Linear value on the first segment of a descending line with X[j+1] < x <= X[j].
bool EnLínea(const Tabla<double>& X, const Tabla<double>& Y, long puntos, double x, double& valor) {
  for (long j = 1; j < puntos; ++j) {
    if (X.Leer(j + 1) < x && x <= X.Leer(j)) {
      valor = (x - X.Leer(j)) * Pendiente(X.Leer(j), Y.Leer(j), X.Leer(j + 1), Y.Leer(j + 1)) + Y.Leer(j);
      return true;
    }
  }
  return false;
}

}  // namespace

void GeometríaDeDovelas(Proyecto& p) {
  auto& d = p.TablaDovelas;
  auto& T = p.CoordenadasTalud;
  const long nt = p.NúmeroPuntosTalud;
  const long nb = p.NúmeroBordes;
  const long nd = NúmeroDeDovelas(p);
  for (long j = 1; j < nt; ++j)
    if (T.X[j] == T.X[j + 1] && T.Y[j + 1] > T.Y[j]) std::swap(T.Y[j], T.Y[j + 1]);

  // The surface at the edges. Every matching segment writes, the last one stays; an edge within
  // 0.01 of the segment's first vertex takes the height of the vertex before it, so that a nearly
  // vertical step gives its upper end (before the first vertex that is row 0).
  d.BordeYTalud.Redimensionar(nb);
  for (long e = 1; e <= nb; ++e) {
    const double x = d.BordeX[e];
    for (long j = 1; j < nt; ++j) {
      if (T.X[j + 1] <= x && x <= T.X[j]) {
        const double m = Pendiente(T.X[j], T.Y[j], T.X[j + 1], T.Y[j + 1]);
        const double base = std::fabs(x - T.X[j]) <= 0.01 ? T.Y.Leer(j - 1) : T.Y[j];
        d.BordeYTalud[e] = (x - T.X[j]) * m + base;
      }
    }
  }
  d.Ancho.Redimensionar(nd);
  d.PendienteTalud.Redimensionar(nd);
  d.YTalud.Redimensionar(nd);
  for (long i = 1; i <= nd; ++i) {
    d.Ancho[i] = d.BordeX[i] - d.BordeX[i + 1];
    d.PendienteTalud[i] = Div(d.BordeYTalud[i] - d.BordeYTalud[i + 1], d.Ancho[i], "la pendiente del talud");
    double y = 0;
    if (EnLínea(T.X, T.Y, nt, d.XMedio[i], y)) d.YTalud[i] = y;
  }

  const auto& F = p.CoordenadasFreático;
  const long nf = p.NúmeroPuntosFreático;
  // A line of a single point is no line: neither column is written, they keep what they held.
  if (nf == 1) {
    d.YFreático.RedimensionarConservando(nd);
    d.BordeYFreático.RedimensionarConservando(nb);
  } else {
    d.YFreático.Redimensionar(nd);
    d.BordeYFreático.Redimensionar(nb);
  }
  if (nf >= 2) {
    const double último = F.X[nf];
    // Below the last point the phreatic line follows the surface; above the first point nothing is
    // written.
    auto freático = [&](double x, double talud, double& destino) {
      if (x < último) {
        destino = talud;
        return;
      }
      double y = 0;
      if (EnLínea(F.X, F.Y, nf, x, y)) destino = y;
    };
    for (long i = 1; i <= nd; ++i) freático(d.XMedio[i], d.YTalud[i], d.YFreático[i]);
    for (long e = 1; e <= nb; ++e) freático(d.BordeX[e], d.BordeYTalud[e], d.BordeYFreático[e]);
  } else if (nf == 0) {
    for (long i = 1; i <= nd; ++i) d.YFreático[i] = d.YBase[i];
  }
  p.EtapaGeometría = true;
}

void EstratosEnDovelas(Proyecto& p) {
  auto& d = p.TablaDovelas;
  const long nd = NúmeroDeDovelas(p);
  const int ne = p.NúmeroEstratos;
  d.YEstrato.Redimensionar(ne, nd);
  for (int s = 1; s <= ne; ++s) {
    const long puntos = p.PuntosEstrato.Leer(s);
    for (long i = 1; i <= nd; ++i) {
      const double x = d.XMedio[i];
      double y = 0;
      bool en = false;
      for (long j = 1; j < puntos && !en; ++j) {
        if (p.XEstrato(s, j + 1) < x && x <= p.XEstrato(s, j)) {
          y = (x - p.XEstrato(s, j)) *
                  Pendiente(p.XEstrato(s, j), p.YEstrato(s, j), p.XEstrato(s, j + 1), p.YEstrato(s, j + 1)) +
              p.YEstrato(s, j);
          en = true;
        }
      }
      // Outside its line a stratum has no thickness: it takes the line above (the surface for the
      // first).
      if (!en) y = s == 1 ? d.YTalud[i] : d.YEstrato(s - 1, i);
      d.YEstrato(s, i) = y;
    }
  }
  d.CohesiónBase.Redimensionar(nd);
  d.FricciónBase.Redimensionar(nd);
  d.TanFricciónBase.Redimensionar(nd);
  d.TipoEstratoBase.Redimensionar(nd);
  d.m_Base.Redimensionar(nd);
  d.s_Base.Redimensionar(nd);
  d.a_Base.Redimensionar(nd);
  d.C_SimpleBase.Redimensionar(nd);
  const double pi = 4 * std::atan(1.0);
  const auto& E = p.Estrato;
  for (long i = 1; i <= nd; ++i) {
    const int s = EstratoDeBase(p, i);
    if (s == 0) continue;
    d.CohesiónBase[i] = E.Cohesión.Leer(s);
    d.FricciónBase[i] = E.Fricción.Leer(s);
    d.TanFricciónBase[i] = std::tan(pi * E.Fricción.Leer(s) / 180);
    if (p.TipoDeMaterial == "R") {
      d.m_Base[i] = E.m_macizo.Leer(s);
      d.s_Base[i] = E.s_macizo.Leer(s);
      d.C_SimpleBase[i] = E.C_Simple.Leer(s);
      const double gsi = E.Parámetro_GSI.Leer(s);
      d.a_Base[i] = gsi >= 25 ? 0.0 : 0.65 - gsi / 200;
    } else {
      d.TipoEstratoBase[i] = E.TipoEstrato.Leer(s);
    }
  }
  p.EtapaEstratos = true;
}

}  // namespace lomaterra
