// Speed of Leshchinsky-Huang on the homogeneous sample slope by the number of slices, up to the
// largest count a calculation accepts: the whole command (slices, first field, Newton steps) and
// one Newton system solved along its band. Run: cmake --preset bancos &&
// cmake --build --preset bancos && ./build/bancos/bancos/banco_leshchinsky
#include <benchmark/benchmark.h>

#include <vector>

#include "equilibrio/leshchinsky.h"
#include "equilibrio/puertas.h"
#include "equilibrio/sistema_bordeado.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "equilibrio/constantes.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

Proyecto Ejemplo(long dovelas) {
  Proyecto p;
  InterfazGuionada ui;
  LeerProyecto(p, LOMATERRA_EJEMPLOS "/leshchinsky_homogeneo.cod", ui);
  p.ParámetrosIniciales.NúmeroDovelas = static_cast<double>(dovelas);
  p.CálculoHecho = false;  // the sample keeps its results: start as a project not yet calculated
  return p;
}

void BM_LeshchinskyHuang(benchmark::State& estado) {
  const Proyecto inicial = Ejemplo(estado.range(0));
  for (auto _ : estado) {
    estado.PauseTiming();
    Proyecto p = inicial;
    InterfazGuionada ui;
    estado.ResumeTiming();
    ProcesoIterativoEnSuelos(p, ui);
    if (!p.CálculoHecho || p.NúmeroIteraciones < 2) estado.SkipWithError("el cálculo no terminó");
    benchmark::DoNotOptimize(p.SumaTangenciales);
  }
}
BENCHMARK(BM_LeshchinskyHuang)->Arg(1000)->Arg(kMáximoDovelas)->Unit(benchmark::kMillisecond);

void BM_PasoNewtonEnBanda(benchmark::State& estado) {
  Proyecto p = Ejemplo(estado.range(0));
  InterfazGuionada ui;
  PrepararDovelas(p, ui, true);
  const DatosVariacionales dv = LeerDatosVariacionales(p);
  FilaVariacional fila;
  fila.µ1 = p.ParámetrosIniciales.Multiplicador1;
  fila.µ2 = p.ParámetrosIniciales.Multiplicador2;
  fila.F = p.ParámetrosIniciales.FSInicial;
  fila.σ.assign(static_cast<std::size_t>(dv.n + 2), 0.1);
  SistemaBordeado J;
  std::vector<double> R, Δ;
  for (auto _ : estado) {
    SistemaNewton(dv, fila, J, R);
    ResolverBordeado(J, R, Δ);
    benchmark::DoNotOptimize(Δ.data());
  }
}
BENCHMARK(BM_PasoNewtonEnBanda)->Arg(1000)->Arg(kMáximoDovelas)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lomaterra
