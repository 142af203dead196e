#include "elementos/rigidez.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kMensajeDiagonalCeroRigidez =
    "Estoy en el sub-programa (ElementoTriangularSismico), llamado cuando se calculan los grados de "
    "libertad. Luego de calcular la matriz de rigideces se encentró que un valor de la diagonal de la "
    "matriz de rigideces tiene un valor CERO. Revise un poco las coordenadas de los nodos de manera "
    "que no existan nodos con valores iguales.";

namespace {

const char* const kEstratosEnElTalud =
    "Existe un elemento, donde todas las ordenadas de los estratos para esa ubicación (abscisa "
    "promedio) del elemento, coinciden con la superficie del talud. Revise coordenadas de los puntos "
    "que definen los elementos, así como las coordenadas de los estratos y del talud. El programa "
    "Finalizará.";

template <typename FX, typename FY>
std::optional<double> Ordenada(FX X, FY Y, long n, double x) {
  for (long j = 1; j < n; ++j) {
    if (X(j) >= x && x > X(j + 1)) {
      const double m = (Y(j) - Y(j + 1)) / (X(j) - (X(j + 1) - 0.01));
      return (x - X(j)) * m + Y(j);
    }
  }
  return std::nullopt;
}

// The slope, phreatic and strata ordinates at an element's mean abscissa.
struct Columna {
  double ys = 0, yw = 0;
  bool freático = false;  // the project has a phreatic line of more than one point
};

Columna LeerColumna(const Proyecto& p, double x) {
  Columna c;
  c.ys = LeerOrdenada(p.CoordenadasTalud, p.NúmeroPuntosTalud, x).value_or(0.0);
  c.yw = -1e30;
  if (p.NúmeroPuntosFreático > 1) {
    c.freático = true;
    c.yw = LeerOrdenada(p.CoordenadasFreático, p.NúmeroPuntosFreático, x).value_or(c.ys);
  }
  return c;
}

// Weight of a column of soil from top down to bottom, split at the phreatic ordinate.
double PesoColumna(double arriba, double abajo, double yw, double húmedo, double saturado) {
  if (arriba <= abajo) return 0;
  const double seco = std::max(0.0, arriba - std::max(abajo, yw));
  const double sumergido = (arriba - abajo) - seco;
  return seco * húmedo + sumergido * saturado;
}

double Material(const Proyecto& p, long e) { return p.Malla.Elemento.MaterialDeElemento.Leer(e); }

GeometríaElemento Geometría(const Proyecto& p, long e) {
  const TablaElemento& t = p.Malla.Elemento;
  GeometríaElemento g;
  g.nodos = t.NodosPorElemento.Leer(e) == 6 ? 6 : 3;
  for (int k = 1; k <= g.nodos; ++k) {
    g.x[static_cast<std::size_t>(k)] = t.XElemento.Leer(e, k);
    g.y[static_cast<std::size_t>(k)] = t.YElemento.Leer(e, k);
  }
  g.lado = {0, t.Lado12.Leer(e), t.Lado23.Leer(e), t.Lado31.Leer(e)};
  if (g.nodos == 3) g.lado = {0, 2, 2, 2};
  return g;
}

long NodoEn(const Proyecto& p, long e, int k) { return std::lround(p.Malla.Elemento.NúmeroElemento.Leer(e, k)); }

// A listed position that repeats a corner (a straight side of a six-node element).
bool Repetida(const GeometríaElemento& g, int k) { return k > 3 && g.lado[static_cast<std::size_t>(k - 3)] == 2; }

// The mid-side position between two corners, 0 when they are not neighbours.
int PosiciónMedia(int a, int b) {
  if (a > b) std::swap(a, b);
  if (a == 1 && b == 2) return 4;
  if (a == 2 && b == 3) return 5;
  if (a == 1 && b == 3) return 6;
  return 0;
}

}  // namespace

std::optional<double> LeerOrdenada(const TablaXY& línea, long n, double x) {
  return Ordenada([&](long j) { return línea.X.Leer(j); }, [&](long j) { return línea.Y.Leer(j); }, n, x);
}

std::optional<double> LeerOrdenadaEstrato(const Proyecto& p, long s, double x) {
  return Ordenada([&](long j) { return p.XEstrato.Leer(s, j); }, [&](long j) { return p.YEstrato.Leer(s, j); },
                  p.PuntosEstrato.Leer(s), x);
}

bool EsfuerzoVerticalEfectivoElemento(Proyecto& p, long e, Interfaz& ui) {
  MallaElementos& m = p.Malla;
  const double x = m.Elemento.XCentroElemento.Leer(e);
  const Columna c = LeerColumna(p, x);
  double y = m.Elemento.YCentroElemento.Leer(e);
  if (y >= c.ys) {
    y = c.ys - 0.1;
    m.Elemento.YCentroElemento[e] = y;
  }
  double suma = 0, arriba = c.ys;
  for (long s = 1; s <= p.NúmeroEstratos; ++s) {
    const double ya = LeerOrdenadaEstrato(p, s, x).value_or(c.ys);
    if (ya == c.ys) {
      if (s < p.NúmeroEstratos) continue;
      ui.Mensaje(kEstratosEnElTalud);
      m.FalloInversa = true;
      return false;
    }
    const double abajo = std::max(ya, y);
    suma += PesoColumna(arriba, abajo, c.yw, p.Estrato.PesoUnitarioHúmedo.Leer(s), p.Estrato.PesoUnitarioSaturado.Leer(s));
    if (y >= ya) break;
    arriba = ya;
  }
  if (c.freático && c.yw > c.ys && !p.DesembalseRápido) suma += c.yw - c.ys;
  double sv = suma - m.PresiónPorosElemento.Leer(e);
  if (sv <= 0) sv = 0.0001;
  m.EsfuerzoVerticalEfectivo[e] = sv;
  return true;
}

void PresiónPorosDeElemento(Proyecto& p, long e) {
  MallaElementos& m = p.Malla;
  const double x = m.Elemento.XCentroElemento.Leer(e);
  const double y = m.Elemento.YCentroElemento.Leer(e);
  const Columna c = LeerColumna(p, x);
  double L = 0, arriba = c.ys;
  long estrato = 0;
  for (long s = 1; s <= p.NúmeroEstratos; ++s) {
    const double ya = LeerOrdenadaEstrato(p, s, x).value_or(c.ys);
    if (ya == c.ys && s < p.NúmeroEstratos) continue;
    const double abajo = std::max(ya, y);
    if (p.Estrato.TipoEstrato.Leer(s) == 1 && arriba > abajo) L += (arriba - abajo) * p.Estrato.PesoUnitarioHúmedo.Leer(s);
    estrato = s;
    if (y >= ya) break;
    arriba = ya;
  }
  if (c.freático && c.yw > c.ys && !p.DesembalseRápido) L += c.yw - c.ys;
  // The time factor is held at zero, so the degree of consolidation U is zero as well.
  const double Tv = 0.0;
  double U = 100 * std::sqrt(4 * Tv / 3.1415);
  if (U > 60) U = 100 - std::pow(10.0, (1.781 - Tv) / 0.933);
  if (c.yw > y) {
    const double exceso = L * p.Estrato.ParámetroPresión.Leer(estrato) - L * U / 100;
    m.PresiónPorosElemento[e] = (c.yw - y) + exceso;
  }
}

std::vector<long> PerfilDeLaMalla(const Proyecto& p) {
  const MallaElementos& m = p.Malla;
  const long nd = 2L * m.NúmeroDeNodos;
  std::vector<long> primera(static_cast<std::size_t>(nd + 1));
  for (long j = 0; j <= nd; ++j) primera[static_cast<std::size_t>(j)] = j;
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    const int nodos = m.Elemento.NodosPorElemento.Leer(e) == 6 ? 6 : 3;
    long menor = nd + 1;
    for (int k = 1; k <= nodos; ++k) {
      const long n = NodoEn(p, e, k);
      if (n >= 1 && n <= m.NúmeroDeNodos) menor = std::min(menor, 2 * n - 1);
    }
    for (int k = 1; k <= nodos; ++k) {
      const long n = NodoEn(p, e, k);
      if (n < 1 || n > m.NúmeroDeNodos) continue;
      for (long d : {2 * n - 1, 2 * n}) primera[static_cast<std::size_t>(d)] = std::min(primera[static_cast<std::size_t>(d)], menor);
    }
  }
  return primera;
}

bool Elementotriangular(Proyecto& p, Interfaz& ui, CálculoElementos& c) {
  MallaElementos& m = p.Malla;
  const TablaElemento& t = m.Elemento;
  const long NE = m.NúmeroDeElementos;
  const long nd = 2L * m.NúmeroDeNodos;
  const double espesor = m.EspesorAnálisis;
  const bool suelo = p.TipoDeMaterial == "S";

  // 1. The order of every element.
  for (long e = 1; e <= NE; ++e) {
    const int nodos = t.NodosPorElemento.Leer(e);
    const double puntos = t.PuntosIntegración.Leer(e);
    const char* error = nullptr;
    if (puntos == 1 && nodos != 3)
      error = "Un elemento triangular de orden lineal (definidos por tres nodos) debe tener 3 ptos de coordenadas.";
    else if (puntos == 3 && nodos != 6)
      error =
          "Un elemento triangular de orden cuadrático (cada lado curvo definido por tres nodos. Al menos uno de sus "
          "lados debe ser curvo) debe tener  6 ptos de coordenadas.";
    else if (nodos == 3 && puntos != 1)
      error = "El  elemento triangular es de orden lineal. Ud debe dar un solo punto de integración";
    else if (nodos == 6 && puntos != 3)
      error = "El elemento triangular es orden cuadrático. Ud debe dar tres puntos de integración";
    if (error) {
      ui.Mensaje(error);
      m.FalloInversa = true;
      return false;
    }
  }

  ui.Estado(c.sísmico ? "Se está en la estimación de la matriz de rigidez y de masas"
                      : "Se está en la estimación de la matriz de rigidez");
  m.CalculandoRigidez = true;
  struct AlSalir {
    Proyecto& p;
    Interfaz& ui;
    ~AlSalir() {
      p.Malla.CalculandoRigidez = false;
      ui.Estado("");
    }
  } alSalir{p, ui};

  // 2. Result tables at size.
  m.VectorDeCargas.Redimensionar(nd);
  m.EsfuerzoVerticalEfectivo.Redimensionar(NE);
  m.OrdenadaTaludElemento.Redimensionar(NE);
  m.OrdenadaFreáticoElemento.Redimensionar(NE);
  m.PresiónPorosElemento.RedimensionarConservando(NE);
  m.CotaMáximaTalud = -100000000;
  for (long i = 1; i <= p.NúmeroPuntosTalud; ++i) m.CotaMáximaTalud = std::max(m.CotaMáximaTalud, p.CoordenadasTalud.Y.Leer(i));
  c.MatrizB.assign(static_cast<std::size_t>(NE * 3), PuntoB{});
  c.MatricesD.assign(static_cast<std::size_t>(NE), MatrizD{});
  c.MatrizRigidez = CrearAlmacén(c.tipo);
  c.MatrizRigidez->Preparar(nd, PerfilDeLaMalla(p));
  AlmacénRigidez& K = *c.MatrizRigidez;

  // 3. Pore pressure from the phreatic line.
  if (p.NúmeroPuntosFreático >= 1) {
    const bool estimar =
        !m.PresiónPorosEstimada
            ? ui.Pregunta(" ¿La presión de poros será estimada a partir de las coordenadas del nivel freático?")
            : ui.Pregunta(
                  "La presión de poros ya fue estimada. ¿Desea recalcular de nuevo a partir de las coordenadas del "
                  "nivel freático?");
    if (estimar) {
      m.PresiónPorosElemento.Redimensionar(NE);
      for (long e = 1; e <= NE; ++e) PresiónPorosDeElemento(p, e);
      m.PresiónPorosEstimada = true;
    }
  }
  // 4.
  for (long e = 1; e <= NE; ++e)
    if (!EsfuerzoVerticalEfectivoElemento(p, e, ui)) return false;

  std::vector<double> peso(static_cast<std::size_t>(nd + 1), 0.0), lateral(peso), embalse(peso), poros(peso);
  std::vector<char> visitaLateral(static_cast<std::size_t>(m.NúmeroDeNodos + 1), 0), visitaPoros(visitaLateral),
      visitaEmbalse(visitaLateral), visitaPuntual(visitaLateral);
  Tabla<double>& carga = m.VectorDeCargas;
  auto reloj = c.reloj ? c.reloj : [] {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  };
  const double kh = p.ParámetrosIniciales.CoeficienteSísmicoHorizontal;
  const double kv = p.ParámetrosIniciales.CoeficienteSísmicoVertical;

  for (long e = 1; e <= NE; ++e) {
    // a. Clock; the nudged copy of the coordinates.
    const double t1 = reloj();
    const GeometríaElemento verdadera = Geometría(p, e);
    GeometríaElemento el = verdadera;
    for (int k = 1; k <= el.nodos; ++k) {
      const std::size_t a = static_cast<std::size_t>(k), b = static_cast<std::size_t>(k == el.nodos ? 1 : k + 1);
      if (el.x[a] == el.x[b]) el.x[a] += 0.1;
      if (el.y[a] == el.y[b]) el.y[a] += 0.1;
    }
    const long mat = std::lround(Material(p, e));
    const double xc = t.XCentroElemento.Leer(e), yc = t.YCentroElemento.Leer(e);
    // b, c. Body force.
    double yw = 0;
    double b1 = 0, b2 = 0;
    {
      const auto leída = LeerOrdenada(p.CoordenadasFreático, p.NúmeroPuntosFreático, xc);
      yw = leída.value_or(0.0);
      double g = 0;
      if (p.NúmeroPuntosFreático == 0) {
        g = p.Estrato.PesoUnitarioHúmedo.Leer(mat);
      } else if (p.NúmeroPuntosFreático > 1) {
        const bool más_allá = xc <= p.CoordenadasFreático.X.Leer(p.NúmeroPuntosFreático);
        g = (más_allá || (leída && yc <= yw)) ? p.Estrato.PesoUnitarioSaturado.Leer(mat)
                                               : p.Estrato.PesoUnitarioHúmedo.Leer(mat);
      }
      b1 = g * kh;
      b2 = -g * (1 + kv);
    }
    m.OrdenadaFreáticoElemento[e] = yw;
    // d. B, stiffness and body load of each point.
    const PuntosIntegración pi = PuntosDelTriángulo(el.nodos);
    const double E = suelo ? m.MóduloElasticidad.Leer(mat) : p.Estrato.ModuloMacizo.Leer(mat);
    const double nu = suelo ? m.CoeficientePoisson.Leer(mat) : p.Estrato.Poisson.Leer(mat);
    const MatrizD D = MatrizConstitutiva(E, nu);
    c.MatricesD[static_cast<std::size_t>(e - 1)] = D;
    MatrizElemento ke;
    std::array<double, 13> fe{};
    for (int g = 1; g <= pi.n; ++g) {
      PuntoB& B = c.B(e, g);
      if (!MatrizBTriangular(el, pi, g, B, &ui)) {
        m.FalloInversa = true;
        return false;
      }
      SumarRigidezPunto(B, D, pi.Peso[static_cast<std::size_t>(g)], espesor, el.nodos, ke);
      SumarPesoPunto(el, pi, g, B.detJ, b1, b2, espesor, fe);
    }
    // e. Work matrix by node number, by plain assignment in list order.
    const int columnas = 2 * el.nodos;
    std::array<long, 13> dof{};
    for (int k = 1; k <= el.nodos; ++k) {
      const long n = NodoEn(p, e, k);
      dof[static_cast<std::size_t>(2 * k - 1)] = 2 * n - 1;
      dof[static_cast<std::size_t>(2 * k)] = 2 * n;
    }
    // Last position of each degree of freedom in the list: the one whose values stand.
    std::array<int, 13> última{};
    for (int i = 1; i <= columnas; ++i) {
      última[static_cast<std::size_t>(i)] = i;
      for (int j = i + 1; j <= columnas; ++j)
        if (dof[static_cast<std::size_t>(j)] == dof[static_cast<std::size_t>(i)]) última[static_cast<std::size_t>(i)] = j;
    }
    for (int i = 1; i <= columnas; ++i) {
      const std::size_t I = static_cast<std::size_t>(i);
      if (dof[I] < 1 || dof[I] > nd) continue;
      if (última[I] != i) continue;  // a later position overwrites this one
      // f. Self weight, kept as a running total.
      peso[static_cast<std::size_t>(dof[I])] += fe[I];
    }
    // g. Uniform side loads.
    if (m.CargasUniformesDefinidas) {
      int esquina[2] = {0, 0};
      long fila[2] = {0, 0};
      int hallados = 0;
      for (int k = 1; k <= 3 && hallados < 2; ++k) {
        const double n = static_cast<double>(NodoEn(p, e, k));
        for (long r = 1; r <= m.NúmeroCargasUniformes; ++r) {
          if (std::lround(m.CargaUniforme.ElementoDeCarga.Leer(r)) != e) continue;
          if (m.CargaUniforme.NodoUnoCarga.Leer(r) == n || m.CargaUniforme.NodoDosCarga.Leer(r) == n) {
            esquina[hallados] = k;
            fila[hallados] = r;
            ++hallados;
            break;
          }
        }
      }
      if (hallados == 2) {
        const std::size_t a = static_cast<std::size_t>(esquina[0]), b = static_cast<std::size_t>(esquina[1]);
        const double dx = std::abs(el.x[a] - el.x[b]), dy = std::abs(el.y[a] - el.y[b]);
        const int medio = PosiciónMedia(esquina[0], esquina[1]);
        const double bb = (el.nodos == 6 && medio && el.lado[static_cast<std::size_t>(medio - 3)] == 1) ? 1 : 0;
        for (int h = 0; h < 2; ++h) {
          const long n = NodoEn(p, e, esquina[h]);
          carga[2 * n - 1] -= (1 / (bb + 2)) * espesor * dy * m.CargaUniforme.CargaQx.Leer(fila[h]);
          carga[2 * n] -= (1 / (bb + 2)) * espesor * dx * m.CargaUniforme.CargaQy.Leer(fila[h]);
        }
        if (bb == 1) {
          const long n = NodoEn(p, e, medio);
          const double qx = (m.CargaUniforme.CargaQx.Leer(fila[0]) + m.CargaUniforme.CargaQx.Leer(fila[1])) / 2;
          const double qy = (m.CargaUniforme.CargaQy.Leer(fila[0]) + m.CargaUniforme.CargaQy.Leer(fila[1])) / 2;
          carga[2 * n - 1] -= (1.0 / 3) * espesor * dy * qx;
          carga[2 * n] -= (1.0 / 3) * espesor * dx * qy;
        }
      }
    }
    // h. Extents.
    double xmax = -100000, xmin = 100000, ymax = -100000, ymin = 100000;
    for (int k = 1; k <= el.nodos; ++k) {
      const std::size_t K = static_cast<std::size_t>(k);
      xmax = std::max(xmax, el.x[K]);
      xmin = std::min(xmin, el.x[K]);
      ymax = std::max(ymax, el.y[K]);
      ymin = std::min(ymin, el.y[K]);
    }
    const double dxe = xmax - xmin, dye = ymax - ymin;
    const double curvo = (el.nodos == 6 && (el.lado[1] == 1 || el.lado[2] == 1 || el.lado[3] == 1)) ? 1 : 0;
    if (suelo) {
      // i. Lateral earth pressure.
      const double pl = (1 / (curvo + 3)) * espesor * dye * p.Estrato.CoeficienteKo.Leer(mat) * m.EsfuerzoVerticalEfectivo.Leer(e);
      // j. Pore pressure.
      const double u = m.PresiónPorosElemento.Leer(e);
      const double px = (1 / (curvo + 3)) * espesor * dye * u, py = (1 / (curvo + 3)) * espesor * dxe * u;
      for (int k = 1; k <= el.nodos; ++k) {
        if (Repetida(el, k)) continue;
        const long n = NodoEn(p, e, k);
        if (n < 1 || n > m.NúmeroDeNodos) continue;
        const std::size_t N = static_cast<std::size_t>(n);
        if (!visitaLateral[N]) {
          visitaLateral[N] = 1;
          lateral[static_cast<std::size_t>(2 * n - 1)] = -pl;
        }
        if (u > 0 && !visitaPoros[N]) {
          visitaPoros[N] = 1;
          poros[static_cast<std::size_t>(2 * n - 1)] = std::max(poros[static_cast<std::size_t>(2 * n - 1)], px);
          poros[static_cast<std::size_t>(2 * n)] = std::max(poros[static_cast<std::size_t>(2 * n)], py);
        }
      }
    }
    // The true coordinates from here on.
    el = verdadera;
    // k. Reservoir water.
    if (m.AnálisisPresas) {
      const double ys = LeerOrdenada(p.CoordenadasTalud, p.NúmeroPuntosTalud, xc).value_or(0.0);
      if (ys > 0 && yw > ys) {
        int esquinas[2] = {0, 0};
        int hallados = 0;
        double h = 0;
        for (int k = 1; k <= 3 && hallados < 2; ++k) {
          const std::size_t K = static_cast<std::size_t>(k);
          const double ysk = LeerOrdenada(p.CoordenadasTalud, p.NúmeroPuntosTalud, el.x[K]).value_or(0.0);
          const long n = NodoEn(p, e, k);
          if (n < 1 || n > m.NúmeroDeNodos) continue;
          if (std::abs(el.y[K] - ysk) <= 30 && !visitaEmbalse[static_cast<std::size_t>(n)] && ysk >= el.y[K]) {
            h += ((yw - ysk) / (yw - el.y[K])) * (yw - ysk);
            esquinas[hallados++] = k;
          }
        }
        if (hallados == 2) {
          h /= 2;
          const std::size_t a = static_cast<std::size_t>(esquinas[0]), b = static_cast<std::size_t>(esquinas[1]);
          const double dx = std::abs(el.x[a] - el.x[b]), dy = std::abs(el.y[a] - el.y[b]);
          const int medio = PosiciónMedia(esquinas[0], esquinas[1]);
          const double bb = (el.nodos == 6 && medio && el.lado[static_cast<std::size_t>(medio - 3)] == 1) ? 1 : 0;
          double fy = (1 / (bb + 2)) * espesor * dx * h, fx = (1 / (bb + 2)) * espesor * dy * h;
          if (p.DesembalseRápido) fx = fy = 0;
          for (int q = 0; q < 2; ++q) {
            const long n = NodoEn(p, e, esquinas[q]);
            visitaEmbalse[static_cast<std::size_t>(n)] = 1;
            embalse[static_cast<std::size_t>(2 * n - 1)] -= fx;
            embalse[static_cast<std::size_t>(2 * n)] -= fy;
          }
        }
      }
    }
    // l. Uniform loads on the slope face: the first row only.
    if (p.CargasUniformesVigentes() > 0) {
      const TablaCargaUniforme& cu = p.CargaUniforme;
      const double xo = cu.xo.Leer(1), yo = cu.yo.Leer(1), xf = cu.xf.Leer(1), yf = cu.yf.Leer(1);
      const double pendiente = xf == xo ? 0.0 : (yf - yo) / (xf - (xo - 0.01));
      int esquinas[2] = {0, 0};
      int hallados = 0;
      for (int k = 1; k <= 3 && hallados < 2; ++k) {
        const std::size_t K = static_cast<std::size_t>(k);
        const double y = (el.x[K] - xo) * pendiente + yo;
        if (std::abs(y - el.y[K]) <= 0.11) esquinas[hallados++] = k;
      }
      if (hallados == 2) {
        const std::size_t a = static_cast<std::size_t>(esquinas[0]), b = static_cast<std::size_t>(esquinas[1]);
        const double dx = std::abs(el.x[a] - el.x[b]), dy = std::abs(el.y[a] - el.y[b]);
        const int medio = PosiciónMedia(esquinas[0], esquinas[1]);
        const double bb = (el.nodos == 6 && medio && el.lado[static_cast<std::size_t>(medio - 3)] == 1) ? 1 : 0;
        for (int q = 0; q < 2; ++q) {
          const long n = NodoEn(p, e, esquinas[q]);
          carga[2 * n - 1] -= (1 / (bb + 2)) * espesor * dy * cu.qx.Leer(1);
          carga[2 * n] -= (1 / (bb + 2)) * espesor * dx * cu.qy.Leer(1);
        }
        if (bb == 1) {
          const long n = NodoEn(p, e, medio);
          carga[2 * n - 1] -= (1.0 / 3) * espesor * dy * cu.qx.Leer(1);
          carga[2 * n] -= (1.0 / 3) * espesor * dx * cu.qy.Leer(1);
        }
      }
    }
    // m. Point loads, once a node.
    for (int k = 1; k <= el.nodos; ++k) {
      if (Repetida(el, k)) continue;
      const long n = NodoEn(p, e, k);
      if (n < 1 || n > m.NúmeroDeNodos || visitaPuntual[static_cast<std::size_t>(n)]) continue;
      const std::size_t K = static_cast<std::size_t>(k);
      for (long q = 1; q <= p.CargasPuntualesVigentes(); ++q) {
        if (std::abs(el.x[K] - p.CargaPuntual.Xpuntual.Leer(q)) <= 0.01 &&
            std::abs(el.y[K] - p.CargaPuntual.Ypuntual.Leer(q)) <= 0.01) {
          visitaPuntual[static_cast<std::size_t>(n)] = 1;
          carga[2 * n - 1] -= p.CargaPuntual.Px.Leer(q);
          carga[2 * n] -= p.CargaPuntual.Py.Leer(q);
          break;
        }
      }
    }
    // n. The work matrix into the store: the last assignment of each pair stands.
    for (int i = 1; i <= columnas; ++i) {
      const std::size_t I = static_cast<std::size_t>(i);
      if (dof[I] < 1 || dof[I] > nd) continue;
      for (int j = 1; j <= columnas; ++j) {
        const std::size_t J = static_cast<std::size_t>(j);
        if (dof[J] < 1 || dof[J] > nd) continue;
        if (última[I] != i || última[J] != j) continue;
        K.Sumar(dof[I], dof[J], ke.k[I][J]);
      }
    }
    // o. Time estimate after the first element.
    if (e == 1) {
      const double minutos = (reloj() - t1) * static_cast<double>(NE - 1) / 60;
      ui.Mensaje(
          std::string(c.sísmico ? "El número indicado al final de este mensaje, corresponde al tiempo en minutos que "
                                 "tardará el programa en estimar la matriz de rigideces y de masas: "
                               : "El número indicado al final de este mensaje, corresponde al tiempo en minutos que "
                                 "tardará el programa en estimar la matriz de rigideces: ") +
          Formato(minutos, "#0.00"));
    }
  }

  // 6, 7. Self weight, then the combination with earth, reservoir and pore forces.
  for (long d = 1; d <= nd; ++d) {
    const std::size_t D = static_cast<std::size_t>(d);
    const double A = lateral[D], W = embalse[D], P = poros[D];
    const double Fd = carga[d] + peso[D];
    const double S = A + Fd + W;
    double final;
    if (S > 0) {
      if (!m.AnálisisPresas || p.DesembalseRápido) {
        final = -(A + Fd + P);
      } else {
        const double G = -(A + Fd + P);
        final = std::abs(W) < std::abs(G) ? G + W : 0;
      }
    } else if (!m.AnálisisPresas) {
      final = std::abs(P) <= std::abs(S) ? A + Fd : -P;
    } else if (p.DesembalseRápido) {
      final = A + Fd - P;
    } else {
      const double G = A + Fd - P;
      final = std::abs(W) < std::abs(G) ? G - W : 0;
    }
    carga[d] = final;
  }

  // 8. A zero on the diagonal.
  for (long d = 1; d <= nd; ++d) {
    if (K.Diagonal(d) == 0.0) {
      ui.Mensaje(kMensajeDiagonalCeroRigidez);
      m.FalloInversa = true;
      return false;
    }
  }
  return true;
}

}  // namespace lomaterra
