// Assembly and factorisation of the stiffness of regular meshes: the skyline store on a mesh of
// 32,767 nodes (the largest count the 16-bit node numbers allow), and the skyline against the
// dense reference (the stated inversion of the whole matrix) on about 2,000 nodes.
// Run: cmake --preset bancos && cmake --build --preset bancos --target banco_elementos &&
// ./build/bancos/bancos/banco_elementos
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include "elementos/rigidez.h"
#include "elementos/solucion.h"
#include "elementos/viscoplastico.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

// A rectangle of soil, `columnas` × `filas` cells of 1 m, each cell two triangles: linear ones
// (grid of nodes one a cell corner) or six-node ones (a node also at each mid-side, all sides
// given as curved). Nodes are numbered up each vertical line, so the profile spans about two
// vertical lines; every node is offset by a fixed millimetre pattern. Base fixed, sides on
// rollers with stiff springs.
Proyecto Malla(long columnas, long filas, int nodos) {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  p.TipoDeMaterial = "S";
  const double ancho = static_cast<double>(columnas), alto = static_cast<double>(filas);
  p.NúmeroPuntosTalud = 2;
  p.CoordenadasTalud.Redimensionar(2);
  p.CoordenadasTalud.X[1] = ancho + 10;
  p.CoordenadasTalud.Y[1] = alto + 1;
  p.CoordenadasTalud.X[2] = -10;
  p.CoordenadasTalud.Y[2] = alto + 1;
  p.NúmeroEstratos = 1;
  p.PuntosEstrato.Redimensionar(1);
  p.PuntosEstrato[1] = 2;
  p.XEstrato.Redimensionar(1, 2);
  p.YEstrato.Redimensionar(1, 2);
  p.XEstrato(1, 1) = ancho + 10;
  p.YEstrato(1, 1) = -100;
  p.XEstrato(1, 2) = -10;
  p.YEstrato(1, 2) = -100;
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.PesoUnitarioHúmedo[1] = p.Estrato.PesoUnitarioSaturado[1] = 1.8;
  MallaElementos& m = p.Malla;
  m.MóduloElasticidad.Redimensionar(1);
  m.CoeficientePoisson.Redimensionar(1);
  m.MóduloElasticidad[1] = 2000;
  m.CoeficientePoisson[1] = 0.3;

  const long paso = nodos == 6 ? 2 : 1;  // node lines a cell
  const long nx = columnas * paso + 1, ny = filas * paso + 1;
  const long nn = nx * ny;
  m.NúmeroDeNodos = static_cast<Entero>(nn);
  m.Nodo.Redimensionar(nn);
  auto número = [&](long i, long j) { return 1 + i * ny + j; };
  auto x = [&](long i, long j) { return static_cast<double>(i) / static_cast<double>(paso) + 0.001 * static_cast<double>((3 * i + 5 * j) % 7 + 1); };
  auto y = [&](long i, long j) { return static_cast<double>(j) / static_cast<double>(paso) + 0.001 * static_cast<double>((5 * i + 3 * j) % 7 + 1); };
  for (long i = 0; i < nx; ++i)
    for (long j = 0; j < ny; ++j) {
      const long fila = nn - número(i, j) + 1;
      m.Nodo.NúmeroDeNodo[fila] = static_cast<Entero>(número(i, j));
      m.Nodo.XNodo[fila] = x(i, j);
      m.Nodo.YNodo[fila] = y(i, j);
    }
  const long ne = 2 * columnas * filas;
  m.NúmeroDeElementos = static_cast<Entero>(ne);
  m.Elemento.Redimensionar(ne);
  long e = 0;
  // Corners (and mid-sides) by grid index pairs.
  auto poner = [&](std::initializer_list<std::pair<long, long>> lista) {
    ++e;
    m.Elemento.NodosPorElemento[e] = static_cast<Entero>(nodos);
    m.Elemento.PuntosIntegración[e] = nodos == 6 ? 3 : 1;
    const double lado = nodos == 6 ? 1 : 2;
    m.Elemento.Lado12[e] = m.Elemento.Lado23[e] = m.Elemento.Lado31[e] = lado;
    m.Elemento.MaterialDeElemento[e] = 1;
    int k = 0;
    double sx = 0, sy = 0;
    for (const auto& [i, j] : lista) {
      ++k;
      m.Elemento.NodoDeElemento(e, k) = m.Elemento.NúmeroElemento(e, k) = static_cast<double>(número(i, j));
      m.Elemento.XElemento(e, k) = x(i, j);
      m.Elemento.YElemento(e, k) = y(i, j);
      sx += x(i, j);
      sy += y(i, j);
    }
    m.Elemento.XCentroElemento[e] = sx / k;
    m.Elemento.YCentroElemento[e] = sy / k;
  };
  for (long c = 0; c < columnas; ++c)
    for (long f = 0; f < filas; ++f) {
      const long i = c * paso, j = f * paso, h = paso;
      if (nodos == 6) {
        poner({{i, j}, {i + h, j}, {i + h, j + h}, {i + 1, j}, {i + h, j + 1}, {i + 1, j + 1}});
        poner({{i, j}, {i + h, j + h}, {i, j + h}, {i + 1, j + 1}, {i + 1, j + h}, {i, j + 1}});
      } else {
        poner({{i, j}, {i + 1, j}, {i + 1, j + 1}});
        poner({{i, j}, {i + 1, j + 1}, {i, j + 1}});
      }
    }
  auto& r = m.NodoConRestricción;
  r.Redimensionar(nx + 2 * (ny - 1));
  long filaR = 0;
  for (long i = 0; i < nx; ++i)
    for (long j = 0; j < ny; ++j) {
      if (j != 0 && i != 0 && i != nx - 1) continue;
      ++filaR;
      r.NodoRestringido[filaR] = static_cast<double>(número(i, j));
      r.RestricciónX[filaR] = "N";
      r.RestricciónY[filaR] = j == 0 ? "N" : "S";
      r.ResorteY[filaR] = j == 0 ? 0 : 1e5;
    }
  m.NúmeroNodosConRestricción = static_cast<std::int32_t>(filaR);
  return p;
}

double MemoriaMáximaMiB() {
  rusage uso{};
  getrusage(RUSAGE_SELF, &uso);
  return static_cast<double>(uso.ru_maxrss) / 1024.0;
}

void Correr(benchmark::State& estado, long columnas, long filas, int nodos, TipoAlmacén tipo) {
  Proyecto base = Malla(columnas, filas, nodos);
  double memoria = 0;
  for (auto _ : estado) {
    estado.PauseTiming();
    Proyecto p = base;
    InterfazGuionada ui;
    CálculoElementos c;
    c.tipo = tipo;
    estado.ResumeTiming();
    if (!Elementotriangular(p, ui, c) || !ModificarYFactorizar(p, *c.MatrizRigidez, ui, kMensajeDiagonalCeroViscoplástico))
      estado.SkipWithError("la rigidez no se pudo factorizar");
    memoria = static_cast<double>(c.MatrizRigidez->Memoria());
    benchmark::DoNotOptimize(DesplazamientosElásticos(p, *c.MatrizRigidez));
  }
  estado.counters["nodos"] = static_cast<double>(base.Malla.NúmeroDeNodos);
  estado.counters["elementos"] = static_cast<double>(base.Malla.NúmeroDeElementos);
  estado.counters["matriz_MiB"] = memoria / (1024.0 * 1024.0);
  estado.counters["proceso_max_MiB"] = MemoriaMáximaMiB();
}

// 217 × 151 node lines = 32,767 nodes of six-node triangles (16,200 elements: the 16-bit element
// count rules out linear triangles at this many nodes).
void BM_PerfilNodos32767(benchmark::State& s) { Correr(s, 108, 75, 6, TipoAlmacén::Perfil); }
// About 2,000 nodes of linear triangles (45 × 45 = 2,025), both stores.
void BM_Perfil2025(benchmark::State& s) { Correr(s, 44, 44, 3, TipoAlmacén::Perfil); }
void BM_Denso2025(benchmark::State& s) { Correr(s, 44, 44, 3, TipoAlmacén::Denso); }

BENCHMARK(BM_Perfil2025)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_PerfilNodos32767)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_Denso2025)->Unit(benchmark::kMillisecond)->Iterations(1);


// The viscoplastic analysis whole (stiffness, factorisation and the four steps) on the same
// meshes with a weak soil that yields at every step, so that all four steps run.
void CorrerViscoplástico(benchmark::State& estado, long columnas, long filas, int nodos) {
  Proyecto base = Malla(columnas, filas, nodos);
  base.Estrato.Cohesión[1] = 0.5;
  base.Estrato.Fricción[1] = 10;
  base.Estrato.Viscosidad[1] = 1000;
  base.Malla.IntervaloDeTiempo = 0.01;
  long pasos = 0;
  for (auto _ : estado) {
    estado.PauseTiming();
    Proyecto p = base;
    InterfazGuionada ui;
    CálculoElementos c;
    estado.ResumeTiming();
    if (!Elementotriangular(p, ui, c) || !CálculoViscoplástico(p, ui, c)) estado.SkipWithError("el cálculo no terminó");
    pasos = p.Malla.NúmeroDeIteración;
  }
  estado.counters["nodos"] = static_cast<double>(base.Malla.NúmeroDeNodos);
  estado.counters["pasos"] = static_cast<double>(pasos);
}
void BM_Viscoplástico2025(benchmark::State& s) { CorrerViscoplástico(s, 44, 44, 3); }
void BM_Viscoplástico7921(benchmark::State& s) { CorrerViscoplástico(s, 88, 88, 3); }
void BM_ViscoplásticoNodos32767(benchmark::State& s) { CorrerViscoplástico(s, 108, 75, 6); }
BENCHMARK(BM_Viscoplástico2025)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_Viscoplástico7921)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_ViscoplásticoNodos32767)->Unit(benchmark::kMillisecond)->Iterations(1);
}  // namespace
}  // namespace lomaterra
