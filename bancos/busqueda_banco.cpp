// Speed of the search of the critical circle on a slope 10 m high over two strata with a phreatic
// line: one circle of 50 slices by the lean evaluator (circles per second on one core), and the
// whole search of a 100 × 100 grid of centres with 10 radii each (100,000 circles) on 1 and 2
// threads. Run: cmake --preset bancos && cmake --build --preset bancos &&
// ./build/bancos/bancos/banco_busqueda
#include <benchmark/benchmark.h>

#include <cmath>

#include "equilibrio/busqueda.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

void Línea(TablaXY& t, Entero& n, std::initializer_list<std::pair<double, double>> puntos) {
  n = static_cast<Entero>(puntos.size());
  t.Redimensionar(n);
  long k = 1;
  for (const auto& [x, y] : puntos) {
    t.X[k] = x;
    t.Y[k++] = y;
  }
}

Proyecto Talud() {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  Línea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{70, 35}, {50, 35}, {30, 25}, {20, 25}});
  Línea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{70, 31}, {40, 27}, {20, 25}});
  p.NúmeroEstratos = 2;
  p.PuntosEstrato.Redimensionar(2);
  p.XEstrato.Redimensionar(2, 2);
  p.YEstrato.Redimensionar(2, 2);
  p.PuntosEstrato[1] = p.PuntosEstrato[2] = 2;
  p.XEstrato(1, 1) = 70; p.YEstrato(1, 1) = 29; p.XEstrato(1, 2) = 20; p.YEstrato(1, 2) = 25.5;
  p.XEstrato(2, 1) = 70; p.YEstrato(2, 1) = 10; p.XEstrato(2, 2) = 20; p.YEstrato(2, 2) = 10;
  p.Estrato.RedimensionarConservando(2);
  for (int s = 1; s <= 2; ++s) {
    p.Estrato.Cohesión[s] = 0.3 * s;
    p.Estrato.Fricción[s] = 20 + 5 * s;
    p.Estrato.PesoUnitarioHúmedo[s] = 1.8;
    p.Estrato.PesoUnitarioSaturado[s] = 2.0;
  }
  p.EstratosCaracterizados = true;
  return p;
}

// Circles around the critical one, visited in turn: centres on a 7 × 7 grid, 5 radii each whose
// lowest points lie between 0.5 and 2.5 m above the toe ground, so every one of them is evaluated.
void BM_EvaluarCírculo(benchmark::State& estado) {
  const Proyecto p = Talud();
  std::string motivo;
  const SecciónPreparada s = PrepararSección(p, motivo);
  EspacioPreparado e = NuevoEspacio(50);
  const MétodoBúsqueda método = estado.range(0) ? MétodoBúsqueda::Janbu : MétodoBúsqueda::Bishop;
  long k = 0, admisibles = 0;
  for (auto _ : estado) {
    const double xc = 27 + (k % 7), yc = 48 + (k / 7 % 7), R = yc - 25.5 - 0.5 * (k / 49 % 5);
    const double F = EvaluarCírculo(*s, xc, yc, R, 50, método, 20, 70, *e);
    admisibles += std::isfinite(F);
    benchmark::DoNotOptimize(F);
    ++k;
  }
  estado.SetItemsProcessed(estado.iterations());
  estado.counters["admisibles"] = static_cast<double>(admisibles) / static_cast<double>(k);
}
BENCHMARK(BM_EvaluarCírculo)->Arg(0)->Arg(1);

// The whole search: 100 × 100 centres, 10 radii each, 50 slices, reference Bishop.
void BM_Búsqueda100x100x10(benchmark::State& estado) {
  const Proyecto p = Talud();
  OpcionesBúsqueda o;
  o.x1 = 15, o.x2 = 45, o.divisionesX = 99;
  o.y1 = 40, o.y2 = 70, o.divisionesY = 99;
  o.radioMínimo = 15, o.radioMáximo = 42, o.pasoRadio = 3;
  o.dovelas = 50;
  o.xSalidaMínima = 20, o.xSalidaMáxima = 70;
  o.hilos = static_cast<int>(estado.range(0));
  long admisibles = 0;
  for (auto _ : estado) {
    const ResultadoBúsqueda r = BuscarCírculoCrítico(p, o, nullptr);
    admisibles = r.admisibles;
    benchmark::DoNotOptimize(r.menores.data());
  }
  estado.SetItemsProcessed(estado.iterations() * 100000);
  estado.counters["admisibles"] = static_cast<double>(admisibles);
}
BENCHMARK(BM_Búsqueda100x100x10)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace lomaterra
