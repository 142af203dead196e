#include "salida/seccion.h"
#include "salida/malla.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/resumen.h"

namespace lomaterra {

namespace {

const double kPi = 4 * std::atan(1.0);

struct Caja {
  double x0 = std::numeric_limits<double>::max(), x1 = -std::numeric_limits<double>::max();
  double y0 = std::numeric_limits<double>::max(), y1 = -std::numeric_limits<double>::max();
  void Añadir(double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) return;
    x0 = std::min(x0, x);
    x1 = std::max(x1, x);
    y0 = std::min(y0, y);
    y1 = std::max(y1, y);
  }
  bool Vacía() const { return x1 < x0; }
};

void AñadirTabla(Caja& c, const TablaXY& t, long n) {
  for (long i = 1; i <= n; ++i) c.Añadir(t.X.Leer(i), t.Y.Leer(i));
}

Trazo Línea(const TablaXY& t, long n, Color color, double grosor, const std::string& nombre) {
  Trazo r;
  r.color = color;
  r.grosor = grosor;
  r.nombre = nombre;
  for (long i = 1; i <= n; ++i) r.puntos.push_back({t.X.Leer(i), t.Y.Leer(i)});
  return r;
}

std::string Num(double v) {
  return Formato(v, "#0.00");
}

// Arrows along a stretch of the surface for a uniform load.
void CargaUniformeEnFigura(Figura& f, const Proyecto& p, long k, double largo, bool leyenda) {
  const auto& c = p.CargaUniforme;
  const double xo = c.xo.Leer(k), yo = c.yo.Leer(k), xf = c.xf.Leer(k), yf = c.yf.Leer(k);
  const double qx = c.qx.Leer(k), qy = c.qy.Leer(k);
  const double q = std::hypot(qx, qy);
  // A positive qx pushes into the slope (towards the crest side), a positive qy pushes down.
  const double dx = q > 0 ? qx / q : 0, dy = q > 0 ? -qy / q : -1;
  Trazo colas;
  colas.color = colores::CargaUniforme;
  colas.grosor = 1.2;
  colas.nombre = "carga uniforme " + std::to_string(k);
  if (leyenda) colas.leyenda = "Carga uniforme";
  const double longitud = std::hypot(xf - xo, yf - yo);
  const int flechas = std::clamp(static_cast<int>(longitud / (0.6 * largo)) + 1, 2, 12);
  for (int j = 0; j < flechas; ++j) {
    const double t = static_cast<double>(j) / (flechas - 1);
    const PuntoFigura punta{xo + t * (xf - xo), yo + t * (yf - yo)};
    const PuntoFigura cola{punta.x - largo * dx, punta.y - largo * dy};
    f.flechas.push_back({cola, punta, colores::CargaUniforme, 1.2, colas.nombre});
    colas.puntos.push_back(cola);
  }
  f.trazos.push_back(colas);
  std::string texto = "q" + std::to_string(k) + ": ";
  if (qx != 0) texto += "qx = " + Num(qx) + "  ";
  texto += "qy = " + Num(qy) + " ton/m2";
  const auto& medio = colas.puntos[colas.puntos.size() / 2];
  f.rótulos.push_back(
      {{medio.x, medio.y + 0.15 * largo}, texto, colores::CargaUniforme, 8.0, "centro"});
}

void CargaPuntualEnFigura(Figura& f, const Proyecto& p, long k, double largo, bool leyenda) {
  const auto& c = p.CargaPuntual;
  const PuntoFigura punta{c.Xpuntual.Leer(k), c.Ypuntual.Leer(k)};
  const double px = c.Px.Leer(k), py = c.Py.Leer(k);
  const double q = std::hypot(px, py);
  const std::string nombre = "carga puntual " + std::to_string(k);
  f.marcas.push_back({punta, colores::CargaPuntual, "cuadrado", 5.0, nombre});
  if (q > 0) {
    const PuntoFigura cola{punta.x - 1.4 * largo * px / q, punta.y + 1.4 * largo * py / q};
    f.flechas.push_back({cola, punta, colores::CargaPuntual, 2.2, nombre});
    f.rótulos.push_back(
        {{cola.x, cola.y + 0.1 * largo},
         "P" + std::to_string(k) + ": Px = " + Num(px) + "  Py = " + Num(py) + " ton/m",
         colores::CargaPuntual,
         8.0,
         "centro"});
  }
  if (leyenda) {
    // A legend entry of its own: a short invisible stroke carries the caption.
    Trazo t;
    t.color = colores::CargaPuntual;
    t.grosor = 2.2;
    t.nombre = "leyenda cargas puntuales";
    t.leyenda = "Carga puntual";
    t.sinLínea = true;
    f.trazos.push_back(t);
  }
}

void GrietaEnFigura(Figura& f, const Proyecto& p, double largo) {
  const auto& g = p.GrietaTracción;
  const bool hayGrieta = g.OrdenadaPrimerPunto != g.OrdenadaSegundoPunto ||
                         g.AbscisaPrimerPunto != g.AbscisaSegundoPunto;
  if (!hayGrieta) return;
  Trazo t;
  t.color = colores::Grieta;
  t.grosor = 2.0;
  t.nombre = "grieta";
  t.leyenda = "Grieta de tracción";
  t.puntos = {{g.AbscisaPrimerPunto, g.OrdenadaPrimerPunto},
              {g.AbscisaSegundoPunto, g.OrdenadaSegundoPunto}};
  f.trazos.push_back(t);
  if (g.OrdenadaNF > 0 && g.OrdenadaNF > g.OrdenadaSegundoPunto) {
    // The water stands in the crack from its level down to the bottom of the crack.
    const double alto = g.OrdenadaPrimerPunto - g.OrdenadaSegundoPunto;
    const double t1 =
        alto != 0 ? std::clamp((g.OrdenadaNF - g.OrdenadaSegundoPunto) / alto, 0.0, 1.0) : 0.0;
    const PuntoFigura nivel{
        g.AbscisaSegundoPunto + t1 * (g.AbscisaPrimerPunto - g.AbscisaSegundoPunto),
        g.OrdenadaSegundoPunto + t1 * alto};
    Trazo agua;
    agua.color = colores::Agua;
    agua.grosor = 4.0;
    agua.nombre = "agua en la grieta";
    agua.leyenda = "Agua en la grieta";
    agua.puntos = {nivel, {g.AbscisaSegundoPunto, g.OrdenadaSegundoPunto}};
    f.trazos.push_back(agua);
    f.marcas.push_back({{g.AbscisaNF, g.OrdenadaNF},
                        colores::Agua,
                        "triángulo",
                        7.0,
                        "nivel del agua en la grieta"});
    // The thrust acts at a third of the water height, pushing the sliding mass out of the slope.
    const double yEmpuje = g.OrdenadaSegundoPunto + (nivel.y - g.OrdenadaSegundoPunto) / 3.0;
    const double xEmpuje = g.AbscisaSegundoPunto + (nivel.x - g.AbscisaSegundoPunto) / 3.0;
    f.flechas.push_back({{xEmpuje, yEmpuje},
                         {xEmpuje - largo, yEmpuje},
                         colores::Agua,
                         2.0,
                         "empuje en la grieta"});
    f.rótulos.push_back({{xEmpuje - largo, yEmpuje + 0.1 * largo},
                         "Empuje = " + Num(g.EmpujeGrieta) + " ton/m",
                         colores::Agua,
                         8.0,
                         "derecha"});
  }
}

Caja CajaDeSección(const Proyecto& p) {
  Caja c;
  AñadirTabla(c, p.CoordenadasTalud, p.NúmeroPuntosTalud);
  AñadirTabla(c, p.CoordenadasFalla, p.NúmeroPuntosFalla);
  AñadirTabla(c, p.CoordenadasFreático, p.NúmeroPuntosFreático);
  for (long s = 1; s <= p.NúmeroEstratos; ++s)
    for (long j = 1; j <= p.PuntosEstrato.Leer(s); ++j)
      c.Añadir(p.XEstrato.Leer(s, j), p.YEstrato.Leer(s, j));
  return c;
}

}  // namespace

double TamañoDeSección(const Proyecto& p) {
  const Caja c = CajaDeSección(p);
  if (c.Vacía()) return 1.0;
  const double t = std::max(c.x1 - c.x0, c.y1 - c.y0);
  return t > 0 ? t : 1.0;
}

ArcoDeFalla ArcoDeLaSuperficie(const Proyecto& p) {
  ArcoDeFalla a;
  if (!p.SuperficieCircular() || p.NúmeroPuntosFalla < 2) return a;
  const auto& pi = p.ParámetrosIniciales;
  const double x1 = p.CoordenadasFalla.X.Leer(1), y1 = p.CoordenadasFalla.Y.Leer(1);
  const double x2 = p.CoordenadasFalla.X.Leer(2), y2 = p.CoordenadasFalla.Y.Leer(2);
  a.radioDado = a.radio = pi.Radio;
  a.cuerda = std::hypot(x1 - x2, y1 - y2);
  // A centre given as the reference of moments is the one the calculation takes.
  if (pi.ReferenciaMomentoY > 0) {
    a.centroX = pi.ReferenciaMomentoX;
    a.centroY = pi.ReferenciaMomentoY;
    if (a.radio <= 0) a.radio = std::hypot(x1 - a.centroX, y1 - a.centroY);
    a.hay = a.radio > 0;
    return a;
  }
  if (a.cuerda <= 0 || x1 == x2 || !(a.radio > 0 || a.cuerda > 0)) return a;
  // Below half the chord no arc passes through both points: the constants screen raises such a
  // radius in steps of 0.5 m before any calculation, and so does the drawing, saying so.
  if (a.radio < a.cuerda / 2) {
    a.radio = std::max(a.radio, 0.0);
    while (a.radio < a.cuerda / 2) a.radio += 0.5;
    a.elevado = true;
  }
  // The centre of the calculation: from the lower point at the angle of the chord and of the arc;
  // while it stands below the upper point the radius grows by 0.5 m.
  const double beta = std::atan((y1 - y2) / (x1 - x2));
  for (int paso = 0; paso < 200000; ++paso) {
    const double c = a.cuerda / (2 * a.radio);
    const double theta = c < 1 ? std::atan(c / std::sqrt(1 - c * c)) : kPi / 2;
    const double gamma = theta - beta;
    a.centroX = std::sin(gamma) * a.radio + x2;
    a.centroY = std::cos(gamma) * a.radio + y2;
    if (!(a.centroY < y1)) {
      a.hay = std::isfinite(a.centroX) && std::isfinite(a.centroY);
      return a;
    }
    a.radio += 0.5;
  }
  return a;
}

std::string AvisoDelArco(const Proyecto& p) {
  const ArcoDeFalla a = ArcoDeLaSuperficie(p);
  if (!a.hay || !a.elevado) return "";
  return "El radio de " + Num(a.radioDado) + " m es menor que la mitad de la cuerda (" +
         Num(a.cuerda / 2) + " m): el arco se dibuja con un radio de " + Num(a.radio) +
         " m, como lo elevará la pantalla de parámetros de cálculo.";
}

bool CentroDeArcoDeFalla(const Proyecto& p, double& xc, double& yc, double& radio) {
  const ArcoDeFalla a = ArcoDeLaSuperficie(p);
  xc = a.centroX;
  yc = a.centroY;
  radio = a.radio;
  return a.hay;
}

Figura FiguraSección(const Proyecto& p) {
  Figura f;
  f.tipo = Figura::Tipo::Dibujo;
  f.nombre = "GráficoGeometría";
  f.título = "Geometría del talud";
  f.ejeX = "Abscisa X (m)";
  f.ejeY = "Ordenada Y (m)";
  if (!p.Ventana.TextoProyecto.empty()) f.notas.push_back(p.Ventana.TextoProyecto);
  const double largo = 0.06 * TamañoDeSección(p);

  // Strata first, so that the surface and the failure surface are drawn over them.
  for (long s = 1; s <= p.NúmeroEstratos; ++s) {
    const long m = p.PuntosEstrato.Leer(s);
    Trazo t;
    t.color = colores::Estrato;
    t.grosor = 1.2;
    t.nombre = "estrato " + std::to_string(s);
    if (s == 1) t.leyenda = "Límite inferior de estrato";
    for (long j = 1; j <= m; ++j)
      t.puntos.push_back({p.XEstrato.Leer(s, j), p.YEstrato.Leer(s, j)});
    if (!t.puntos.empty()) {
      // The name stands just above the middle of the line, inside the stratum it closes.
      const double xm = 0.5 * (t.puntos.front().x + t.puntos.back().x);
      double ym = t.puntos.front().y;
      for (std::size_t k = 1; k < t.puntos.size(); ++k) {
        const auto& a = t.puntos[k - 1];
        const auto& b = t.puntos[k];
        if ((a.x - xm) * (b.x - xm) <= 0 && a.x != b.x) {
          ym = a.y + (xm - a.x) * (b.y - a.y) / (b.x - a.x);
          break;
        }
      }
      f.rótulos.push_back({{xm, ym + 0.25 * largo},
                           "Estrato " + std::to_string(s),
                           colores::Estrato,
                           8.0,
                           "centro"});
    }
    f.trazos.push_back(std::move(t));
  }

  // Slices: their edges from the failure surface up to the surface.
  const long n = NúmeroDeDovelas(p);
  const auto& d = p.TablaDovelas;
  const BordesDeDovelas b = Bordes(p);
  const bool hayDovelas =
      n >= 1 && (b.guardados || (d.XMedio.Tamaño() >= n && d.Ancho.Tamaño() >= n &&
                                 d.YBase.Tamaño() >= n && d.YTalud.Tamaño() >= n));
  auto bx = [&](long i) { return b.x[static_cast<std::size_t>(i)]; };
  auto bf = [&](long i) { return b.yFalla[static_cast<std::size_t>(i)]; };
  auto bt = [&](long i) { return b.yTalud[static_cast<std::size_t>(i)]; };
  if (hayDovelas) {
    for (long i = 1; i <= n + 1; ++i) {
      Trazo t;
      t.color = colores::Dovela;
      t.grosor = 0.8;
      t.nombre = "borde " + std::to_string(i);
      if (i == 1) t.leyenda = "Dovelas";
      t.puntos = {{bx(i), bf(i)}, {bx(i), bt(i)}};
      f.trazos.push_back(std::move(t));
    }
    // Numbers in the slices that are tall enough to hold them.
    if (n <= 60)
      for (long i = 1; i <= n; ++i) {
        if (0.5 * (bt(i) + bt(i + 1) - bf(i) - bf(i + 1)) < 0.7 * largo) continue;
        const double x = 0.5 * (bx(i) + bx(i + 1));
        const double y = 0.25 * (bf(i) + bf(i + 1) + bt(i) + bt(i + 1));
        f.rótulos.push_back({{x, y}, std::to_string(i), colores::Dovela, 7.0, "centro"});
      }
  }

  if (p.TipoDeAnálisis == "F") AñadirMallaAFigura(f, p);

  if (p.NúmeroPuntosFreático > 0) {
    Trazo t =
        Línea(p.CoordenadasFreático, p.NúmeroPuntosFreático, colores::Freático, 1.6, "freático");
    t.discontinuo = true;
    t.leyenda = "Nivel freático";
    f.trazos.push_back(std::move(t));
  }

  if (p.NúmeroPuntosTalud > 0) {
    Trazo t = Línea(p.CoordenadasTalud, p.NúmeroPuntosTalud, colores::Talud, 2.4, "talud");
    t.leyenda = "Superficie del terreno";
    f.trazos.push_back(std::move(t));
  }

  // The failure surface: through the slice edges as the slice stages left them, else through its
  // points, along the arc when it is the circular surface.
  double xc = 0, yc = 0, radio = 0;
  const bool arco = CentroDeArcoDeFalla(p, xc, yc, radio);
  if (p.NúmeroPuntosFalla > 0) {
    Trazo t;
    t.color = colores::Falla;
    t.grosor = 2.2;
    t.nombre = "falla";
    t.leyenda = "Superficie de falla";
    if (hayDovelas && b.guardados) {
      for (long i = 1; i <= n + 1; ++i) t.puntos.push_back({bx(i), bf(i)});
    } else if (arco) {
      const double x1 = p.CoordenadasFalla.X.Leer(1), y1 = p.CoordenadasFalla.Y.Leer(1);
      const double x2 = p.CoordenadasFalla.X.Leer(2), y2 = p.CoordenadasFalla.Y.Leer(2);
      // Angles in [-3π/2, π/2): the lower half of the circle is then one run with no jump.
      auto ángulo = [&](double x, double y) {
        double a = std::atan2(y - yc, x - xc);
        if (a >= kPi / 2) a -= 2 * kPi;
        return a;
      };
      const double a1 = ángulo(x1, y1), a2 = ángulo(x2, y2);
      const int pasos = 72;
      t.puntos.push_back({x1, y1});
      for (int k = 1; k < pasos; ++k) {
        const double a = a1 + (a2 - a1) * k / pasos;
        t.puntos.push_back({xc + radio * std::cos(a), yc + radio * std::sin(a)});
      }
      t.puntos.push_back({x2, y2});
    } else {
      for (long i = 1; i <= p.NúmeroPuntosFalla; ++i)
        t.puntos.push_back({p.CoordenadasFalla.X.Leer(i), p.CoordenadasFalla.Y.Leer(i)});
    }
    f.trazos.push_back(std::move(t));
    for (long i = 1; i <= p.NúmeroPuntosFalla; ++i) {
      const PuntoFigura q{p.CoordenadasFalla.X.Leer(i), p.CoordenadasFalla.Y.Leer(i)};
      f.marcas.push_back(
          {q, colores::Falla, "círculo", 6.0, "punto de falla " + std::to_string(i)});
      f.rótulos.push_back(
          {{q.x, q.y - 0.3 * largo}, std::to_string(i), colores::Falla, 8.0, "centro"});
    }
  }

  if (arco) {
    const PuntoFigura centro{xc, yc};
    f.marcas.push_back({centro, colores::Centro, "cruz", 9.0, "centro"});
    for (long i = 1; i <= 2; ++i) {
      Trazo r;
      r.color = colores::Centro;
      r.grosor = 0.8;
      r.discontinuo = true;
      r.nombre = "radio " + std::to_string(i);
      r.puntos = {centro, {p.CoordenadasFalla.X.Leer(i), p.CoordenadasFalla.Y.Leer(i)}};
      f.trazos.push_back(std::move(r));
    }
    f.rótulos.push_back({{xc, yc + 0.25 * largo},
                         "Centro (" + Num(xc) + "; " + Num(yc) + ")",
                         colores::Centro,
                         8.0,
                         "centro"});
    const double xm = 0.5 * (xc + p.CoordenadasFalla.X.Leer(1)),
                 ym = 0.5 * (yc + p.CoordenadasFalla.Y.Leer(1));
    f.rótulos.push_back({{xm, ym}, "R = " + Num(radio) + " m", colores::Centro, 8.0, "izquierda"});
  }

  for (long k = 1;
       p.CargasUniformesDadas && k <= p.NúmeroCargasUniformes && k <= p.CargaUniforme.xo.Tamaño();
       ++k)
    CargaUniformeEnFigura(f, p, k, largo, k == 1);
  for (long k = 1; p.CargasPuntualesDadas && k <= p.NúmeroCargasPuntuales &&
                   k <= p.CargaPuntual.Xpuntual.Tamaño();
       ++k)
    CargaPuntualEnFigura(f, p, k, largo, k == 1);
  GrietaEnFigura(f, p, largo);
  return f;
}

}  // namespace lomaterra
