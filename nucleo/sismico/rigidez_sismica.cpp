#include "sismico/rigidez_sismica.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "elementos/rigidez.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "sismico/frecuencias.h"

namespace lomaterra {

const char* const kMensajeDiagonalCeroCondensada =
    "Observe el número del recuadro inferior a la derecha de la pantalla. En esa fila y columna de la "
    "diagonal la matriz de correspondiente a los grados de libertad tiene un valor CERO. El Número de "
    "grado de libertad está indicado en el recuadro. VARIE LAS COORDENADAS DE LOS ELEMENTOS";

namespace {

long NodoEn(const Proyecto& p, long e, int k) { return std::lround(p.Malla.Elemento.NúmeroElemento.Leer(e, k)); }

int NodosDe(const Proyecto& p, long e) { return p.Malla.Elemento.NodosPorElemento.Leer(e) == 6 ? 6 : 3; }

// Side code of the side whose mid slot is k (4, 5, 6); a three-node element has none.
double LadoDe(const Proyecto& p, long e, int k) {
  if (NodosDe(p, e) == 3) return 2;
  const TablaElemento& t = p.Malla.Elemento;
  return k == 4 ? t.Lado12.Leer(e) : k == 5 ? t.Lado23.Leer(e) : t.Lado31.Leer(e);
}

// A listed position that holds a real node: a corner, or the mid slot of a curved side.
bool Real(const Proyecto& p, long e, int k) { return k <= 3 || LadoDe(p, e, k) == 1; }

// Unit weight at the element by its place against the phreatic line, as the static assembly has it.
double PesoDelElemento(const Proyecto& p, long e) {
  const long mat = std::lround(p.Malla.Elemento.MaterialDeElemento.Leer(e));
  const double xc = p.Malla.Elemento.XCentroElemento.Leer(e), yc = p.Malla.Elemento.YCentroElemento.Leer(e);
  if (p.NúmeroPuntosFreático == 0) return p.Estrato.PesoUnitarioHúmedo.Leer(mat);
  if (p.NúmeroPuntosFreático == 1) return 0;
  const auto yw = LeerOrdenada(p.CoordenadasFreático, p.NúmeroPuntosFreático, xc);
  const bool más_allá = xc <= p.CoordenadasFreático.X.Leer(p.NúmeroPuntosFreático);
  return (más_allá || (yw && yc <= *yw)) ? p.Estrato.PesoUnitarioSaturado.Leer(mat) : p.Estrato.PesoUnitarioHúmedo.Leer(mat);
}

// Area by the shoelace formula over the corners and the real mid-side nodes in perimeter order.
double ÁreaDelElemento(const Proyecto& p, long e) {
  const TablaElemento& t = p.Malla.Elemento;
  const int orden6[6] = {1, 4, 2, 5, 3, 6};
  std::vector<int> perímetro;
  for (int k : orden6)
    if (k <= NodosDe(p, e) && Real(p, e, k)) perímetro.push_back(k);
  double doble = 0;
  for (std::size_t i = 0; i < perímetro.size(); ++i) {
    const int a = perímetro[i], b = perímetro[(i + 1) % perímetro.size()];
    doble += t.XElemento.Leer(e, a) * t.YElemento.Leer(e, b) - t.XElemento.Leer(e, b) * t.YElemento.Leer(e, a);
  }
  return std::abs(doble) / 2;
}

// The reservoir thrust on the element's side that lies on the upstream face.
void EmpujeEmbalse(const Proyecto& p, long e, std::vector<double>& embalse) {
  const TablaElemento& t = p.Malla.Elemento;
  const double xc = t.XCentroElemento.Leer(e);
  const auto ywl = LeerOrdenada(p.CoordenadasFreático, p.NúmeroPuntosFreático, xc);
  const double yw = ywl.value_or(0.0);
  const double ys = LeerOrdenada(p.CoordenadasTalud, p.NúmeroPuntosTalud, xc).value_or(0.0);
  if (!(ys > 0 && yw > ys)) return;
  int esquinas[2] = {0, 0}, hallados = 0;
  double h = 0;
  for (int k = 1; k <= 3 && hallados < 2; ++k) {
    const double x = t.XElemento.Leer(e, k), y = t.YElemento.Leer(e, k);
    const double hk = LeerOrdenada(p.CoordenadasTalud, p.NúmeroPuntosTalud, x).value_or(0.0);
    if (std::abs(y - hk) <= 30 && hk >= y && yw != y) {
      h += ((yw - hk) / (yw - y)) * (yw - hk);
      esquinas[hallados++] = k;
    }
  }
  if (hallados < 2) return;
  h /= 2;
  const int a = esquinas[0], b = esquinas[1];
  const double dx = std::abs(t.XElemento.Leer(e, a) - t.XElemento.Leer(e, b));
  const double dy = std::abs(t.YElemento.Leer(e, a) - t.YElemento.Leer(e, b));
  const int lo = std::min(a, b), hi = std::max(a, b);
  const int medio = (lo == 1 && hi == 2) ? 4 : (lo == 2 && hi == 3) ? 5 : 6;
  const bool conMedio = NodosDe(p, e) == 6 && LadoDe(p, e, medio) == 1;
  const double parte = 1.0 / (conMedio ? 3 : 2);
  std::vector<int> nodos = {a, b};
  if (conMedio) nodos.push_back(medio);
  for (int k : nodos) {
    const long n = NodoEn(p, e, k);
    if (n < 1 || 2 * n > static_cast<long>(embalse.size()) - 1) continue;
    embalse[static_cast<std::size_t>(2 * n - 1)] -= parte * p.Malla.EspesorAnálisis * dy * h;
    embalse[static_cast<std::size_t>(2 * n)] -= parte * p.Malla.EspesorAnálisis * dx * h;
  }
}

}  // namespace

bool ElementoTriangularSismico(Proyecto& p, Interfaz& ui, MatricesSísmicas& s) {
  MallaElementos& m = p.Malla;
  const long NE = m.NúmeroDeElementos, nd = 2L * m.NúmeroDeNodos;
  CálculoElementos c;
  c.tipo = TipoAlmacén::Denso;
  c.sísmico = true;
  m.FalloInversa = false;
  if (!Elementotriangular(p, ui, c)) return false;

  s = MatricesSísmicas{};
  s.grados = nd;
  s.MatrizRigidezGlobal.assign(static_cast<std::size_t>(nd * nd), 0.0);
  s.MatrizMasaGlobal.assign(static_cast<std::size_t>(nd * nd), 0.0);
  for (long i = 1; i <= nd; ++i)
    for (long j = 1; j <= nd; ++j) s.MatrizRigidezGlobal[s.Pos(i, j)] = c.MatrizRigidez->Valor(i, j);
  s.VectorCargasGlobal.assign(static_cast<std::size_t>(nd + 1), 0.0);
  for (long d = 1; d <= nd; ++d) s.VectorCargasGlobal[static_cast<std::size_t>(d)] = m.VectorDeCargas.Leer(d);
  s.CargaAguaPoros.assign(static_cast<std::size_t>(nd + 1), 0.0);
  s.CargaEmbalse = s.EsfuerzoEfectivoNodal = s.CargaAguaPoros;

  const bool suelo = p.TipoDeMaterial == "S";
  const double t = m.EspesorAnálisis;
  for (long e = 1; e <= NE; ++e) {
    const int nodos = NodosDe(p, e);
    const long mat = std::lround(m.Elemento.MaterialDeElemento.Leer(e));
    // The element's stiffness from the points the assembly left.
    MatrizElemento ke;
    const PuntosIntegración pi = PuntosDelTriángulo(nodos);
    for (int g = 1; g <= pi.n; ++g)
      SumarRigidezPunto(c.B(e, g), c.MatricesD[static_cast<std::size_t>(e - 1)], pi.Peso[static_cast<std::size_t>(g)], t,
                        nodos, ke);
    // Its degrees: a position repeated later in the list gives way to the later one.
    std::vector<int> columnas;
    std::vector<long> grados;
    for (int i = 1; i <= 2 * nodos; ++i) {
      const long n = NodoEn(p, e, (i + 1) / 2);
      const long d = i % 2 ? 2 * n - 1 : 2 * n;
      bool repetida = false;
      for (int j = i + 1; j <= 2 * nodos; ++j) {
        const long nj = NodoEn(p, e, (j + 1) / 2);
        if ((j % 2 ? 2 * nj - 1 : 2 * nj) == d) repetida = true;
      }
      if (repetida || n < 1 || n > m.NúmeroDeNodos) continue;
      columnas.push_back(i);
      grados.push_back(d);
    }
    // Lumped mass: A / c · g / 10 · t on both degrees of every real node.
    double curvos = 0;
    if (nodos == 6)
      for (int k = 4; k <= 6; ++k) curvos += LadoDe(p, e, k) == 1 ? 1 : 0;
    const double cc = 3 + curvos;
    const double masa = ÁreaDelElemento(p, e) * (1 / cc) * PesoDelElemento(p, e) * (1.0 / 10) * t;
    MatricesElemento me;
    me.grados = grados;
    const std::size_t g = grados.size();
    me.K.assign(g * g, 0.0);
    me.M.assign(g * g, 0.0);
    for (std::size_t a = 0; a < g; ++a) {
      for (std::size_t b = 0; b < g; ++b)
        me.K[a * g + b] = ke.k[columnas[a]][columnas[b]];
      const int k = (columnas[a] + 1) / 2;
      if (Real(p, e, k)) me.M[a * g + a] = masa;
    }
    for (std::size_t a = 0; a < g; ++a)
      s.MatrizMasaGlobal[s.Pos(grados[a], grados[a])] += me.M[a * g + a];
    s.Elementos.push_back(std::move(me));

    if (!suelo) continue;
    // Effective stress offered to the nodes from the last listed position down.
    const double sv = m.EsfuerzoVerticalEfectivo.Leer(e), k0 = p.Estrato.CoeficienteKo.Leer(mat);
    std::vector<long> vistos;
    for (int k = nodos; k >= 1; --k) {
      const long n = NodoEn(p, e, k);
      if (n < 1 || n > m.NúmeroDeNodos || std::find(vistos.begin(), vistos.end(), n) != vistos.end()) continue;
      vistos.push_back(n);
      double& x = s.EsfuerzoEfectivoNodal[static_cast<std::size_t>(2 * n - 1)];
      if (std::abs(k0 * sv) > std::abs(x) || (x == 0 && s.EsfuerzoEfectivoNodal[static_cast<std::size_t>(2 * n)] == 0)) {
        x = k0 * sv;
        s.EsfuerzoEfectivoNodal[static_cast<std::size_t>(2 * n)] = sv;
      }
    }
    // Pore water: spans of the element, each node keeps the largest value met.
    const double u = m.PresiónPorosElemento.Leer(e);
    if (u > 0) {
      double xmin = 1e30, xmax = -1e30, ymin = 1e30, ymax = -1e30;
      for (int k = 1; k <= nodos; ++k) {
        xmin = std::min(xmin, m.Elemento.XElemento.Leer(e, k));
        xmax = std::max(xmax, m.Elemento.XElemento.Leer(e, k));
        ymin = std::min(ymin, m.Elemento.YElemento.Leer(e, k));
        ymax = std::max(ymax, m.Elemento.YElemento.Leer(e, k));
      }
      for (int k = 1; k <= nodos; ++k) {
        const long n = NodoEn(p, e, k);
        if (!Real(p, e, k) || n < 1 || n > m.NúmeroDeNodos) continue;
        double& x = s.CargaAguaPoros[static_cast<std::size_t>(2 * n - 1)];
        double& y = s.CargaAguaPoros[static_cast<std::size_t>(2 * n)];
        x = std::max(x, (1 / cc) * t * (ymax - ymin) * u);
        y = std::max(y, (1 / cc) * t * (xmax - xmin) * u);
      }
    }
    if (m.AnálisisPresas && p.NúmeroPuntosFreático > 1) EmpujeEmbalse(p, e, s.CargaEmbalse);
  }
  ui.Mensaje("Se calculó la matriz de rigideces y pasará a determinar los grados de libertad");
  return true;
}

std::vector<long> GradosLibres(const Proyecto& p) {
  const MallaElementos& m = p.Malla;
  const TablaNodoConRestricción& r = m.NodoConRestricción;
  // The first restriction row of a node decides each of its directions.
  auto dirección = [&](long n, bool enX) -> std::string {
    for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i)
      if (std::lround(r.NodoRestringido.Leer(i)) == n) return enX ? r.RestricciónX.Leer(i) : r.RestricciónY.Leer(i);
    return "S";
  };
  std::vector<long> libres;
  for (long fila = m.NúmeroDeNodos; fila >= 1; --fila) {
    const long n = m.Nodo.NúmeroDeNodo.Leer(fila);
    if (dirección(n, true) != "N") libres.push_back(2 * n - 1);
    if (dirección(n, false) != "N") libres.push_back(2 * n);
  }
  return libres;
}

void PropiedadesDeLosGrados(Proyecto& p, const std::vector<long>& libres) {
  const MallaElementos& m = p.Malla;
  DatosSísmicos& s = p.Sísmico;
  const bool suelo = p.TipoDeMaterial == "S";
  // Gmax by element, walking the elements in order: a soil of no case keeps the previous value.
  std::vector<double> gmax(static_cast<std::size_t>(m.NúmeroDeElementos + 1), 0.0);
  double anterior = 0;
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    const long mat = std::lround(m.Elemento.MaterialDeElemento.Leer(e));
    if (!suelo) {
      anterior = p.Estrato.ModuloMacizo.Leer(mat) / (2 * (1 + p.Estrato.Poisson.Leer(mat)));
    } else {
      SueloParaGmax d;
      d.e = s.RelaciónVacíos.Leer(mat);
      d.cu = s.ResistenciaNoDrenada.Leer(mat);
      d.ip = s.ÍndicePlástico.Leer(mat);
      d.ocr = s.OCR.Leer(mat);
      d.c = p.Estrato.Cohesión.Leer(mat);
      d.fricción = p.Estrato.Fricción.Leer(mat);
      d.k0 = p.Estrato.CoeficienteKo.Leer(mat);
      d.sv = m.EsfuerzoVerticalEfectivo.Leer(e);
      const Gmax g = GmaxPorPropiedadesFísicas(d);
      if (g.caso) anterior = g.valor;
    }
    gmax[static_cast<std::size_t>(e)] = anterior;
  }
  // The first element that holds each node.
  std::vector<long> primero(static_cast<std::size_t>(m.NúmeroDeNodos + 1), 0);
  for (long e = 1; e <= m.NúmeroDeElementos; ++e)
    for (int k = 1; k <= NodosDe(p, e); ++k) {
      const long n = NodoEn(p, e, k);
      if (n >= 1 && n <= m.NúmeroDeNodos && !primero[static_cast<std::size_t>(n)]) primero[static_cast<std::size_t>(n)] = e;
    }
  const long total = static_cast<long>(libres.size());
  for (Tabla<double>* t : {&s.MóduloGrado, &s.PoissonGrado, &s.PesoGrado, &s.VelocidadGrado, &s.GmaxGrado}) t->Redimensionar(total);
  for (long i = 1; i <= total; ++i) {
    const long n = (libres[static_cast<std::size_t>(i - 1)] + 1) / 2;
    const long e = primero[static_cast<std::size_t>(n)];
    if (e == 0) continue;
    const long mat = std::lround(m.Elemento.MaterialDeElemento.Leer(e));
    s.MóduloGrado[i] = suelo ? m.MóduloElasticidad.Leer(mat) : p.Estrato.ModuloMacizo.Leer(mat);
    s.PoissonGrado[i] = suelo ? m.CoeficientePoisson.Leer(mat) : p.Estrato.Poisson.Leer(mat);
    s.PesoGrado[i] = p.Estrato.PesoUnitarioHúmedo.Leer(mat);
    s.VelocidadGrado[i] = suelo ? s.VelocidadOndaCorte.Leer(mat) : p.Estrato.VelocidadCorte.Leer(mat);
    s.GmaxGrado[i] = gmax[static_cast<std::size_t>(e)];
  }
}

bool CondensarMatrices(Proyecto& p, Interfaz& ui, MatricesSísmicas& s) {
  const MallaElementos& m = p.Malla;
  const TablaNodoConRestricción& r = m.NodoConRestricción;
  DatosSísmicos& d = p.Sísmico;
  d.GradosDeLibertadEstimados = false;
  // 1. The restrictions on the diagonal: the first row met for a diagonal decides it.
  std::vector<char> hecho(static_cast<std::size_t>(s.grados + 1), 0);
  for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i) {
    const long n = std::lround(r.NodoRestringido.Leer(i));
    if (n < 1 || 2 * n > s.grados) continue;
    for (int dir = 0; dir < 2; ++dir) {
      const long g = dir == 0 ? 2 * n - 1 : 2 * n;
      if (hecho[static_cast<std::size_t>(g)]) continue;
      const std::string letra = dir == 0 ? r.RestricciónX.Leer(i) : r.RestricciónY.Leer(i);
      const double resorte = dir == 0 ? r.ResorteX.Leer(i) : r.ResorteY.Leer(i);
      if (letra == "N") {
        s.MatrizRigidezGlobal[s.Pos(g, g)] = 1e18;
      } else if (letra == "S") {
        s.MatrizRigidezGlobal[s.Pos(g, g)] = resorte * 0.1;
      } else {
        continue;
      }
      hecho[static_cast<std::size_t>(g)] = 1;
    }
  }
  // 2, 3. The free degrees in their order.
  s.Libres = GradosLibres(p);
  const long n = static_cast<long>(s.Libres.size());
  d.MatrizRigidezCondensada.Redimensionar(n, n);
  d.MatrizMasaCondensada.Redimensionar(n, n);
  d.MatrizAmortiguamientoCondensada.Redimensionar(n, n);
  s.VectorCargasCondensado.assign(static_cast<std::size_t>(n + 1), 0.0);
  for (long i = 1; i <= n; ++i) {
    const long gi = s.Libres[static_cast<std::size_t>(i - 1)];
    s.VectorCargasCondensado[static_cast<std::size_t>(i)] = s.VectorCargasGlobal[static_cast<std::size_t>(gi)];
    for (long j = 1; j <= n; ++j) {
      const long gj = s.Libres[static_cast<std::size_t>(j - 1)];
      d.MatrizRigidezCondensada(i, j) = s.K(gi, gj);
      d.MatrizMasaCondensada(i, j) = s.M(gi, gj);
    }
  }
  d.NúmeroGradosLibertad = static_cast<DatosSísmicos::Entero>(n);
  // 4. A zero on the condensed diagonal.
  for (long i = 1; i <= n; ++i) {
    if (d.MatrizRigidezCondensada(i, i) == 0.0) {
      ui.Estado(std::to_string(i));
      ui.Mensaje(kMensajeDiagonalCeroCondensada);
      return false;
    }
  }
  PropiedadesDeLosGrados(p, s.Libres);
  // 5. After a response run, the degrees free along x and along y, nodes ascending.
  d.ListaGradosX.Borrar();
  d.ListaGradosY.Borrar();
  d.NúmeroGradosX = d.NúmeroGradosY = 0;
  if (d.ResultadosSísmicos) {
    std::vector<long> gx, gy;
    for (long g : s.Libres) (g % 2 ? gx : gy).push_back(g);
    for (auto [lista, número, grados] : {std::tuple{&d.ListaGradosX, &d.NúmeroGradosX, &gx},
                                         std::tuple{&d.ListaGradosY, &d.NúmeroGradosY, &gy}}) {
      lista->Redimensionar(static_cast<long>(grados->size()));
      for (std::size_t k = 0; k < grados->size(); ++k) (*lista)[static_cast<long>(k + 1)] = (*grados)[k];
      *número = static_cast<DatosSísmicos::Entero>(grados->size());
    }
  }
  d.GradosDeLibertadEstimados = true;
  d.MatricesSísmicasDadas = true;
  p.DatosGuardados = false;
  return true;
}

bool DeterminarGradosDeLibertad(Proyecto& p, Interfaz& ui, MatricesSísmicas& s) {
  bool hecho = ElementoTriangularSismico(p, ui, s) && CondensarMatrices(p, ui, s);
  if (hecho && p.Sísmico.NúmeroGradosLibertad > 0) {
    ui.Mensaje("Se ha determinado los grados de libertad");
  } else {
    ui.Mensaje("No se ha determinado los grados de libertad. Revise el programa");
    hecho = false;
  }
  return hecho;
}

}  // namespace lomaterra
