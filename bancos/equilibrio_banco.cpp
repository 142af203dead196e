// Speed of the slice pipeline and of a limit-equilibrium method on a layered slope, by the number
// of slices asked for. Run: cmake --preset bancos && cmake --build --preset bancos &&
// ./build/bancos/bancos/banco_equilibrio
#include <benchmark/benchmark.h>

#include "equilibrio/dovelas.h"
#include "equilibrio/fellenius.h"
#include "pantallas/interfaz_guionada.h"
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

// A slope 10 m high over two strata, a phreatic line and a polyline failure surface.
Proyecto Talud(double dovelas) {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  Línea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{70, 35}, {50, 35}, {30, 25}, {20, 25}});
  Línea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{52, 35}, {45, 28}, {35, 24}, {25, 25}});
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
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.PuntoInicial[1] = 1;
  p.TramoFalla.PuntoFinal[1] = 4;
  p.TramoFalla.TipoUnión[1] = "L";
  p.GeometríaFallaDefinida = true;
  p.ParámetrosIniciales.MétodoDeCálculo = 3;
  p.ParámetrosIniciales.NúmeroDovelas = dovelas;
  p.ParámetrosInicialesDados = true;
  return p;
}

void BM_Etapas(benchmark::State& estado) {
  Proyecto p = Talud(static_cast<double>(estado.range(0)));
  InterfazGuionada ui;
  for (auto _ : estado) {
    EjecutarEtapas(p, ui);
    ui.Olvidar();
    benchmark::DoNotOptimize(p.NúmeroBordes);
  }
}
BENCHMARK(BM_Etapas)->Arg(10)->Arg(50)->Arg(200);

void BM_Fellenius(benchmark::State& estado) {
  Proyecto p = Talud(static_cast<double>(estado.range(0)));
  InterfazGuionada ui;
  ui.PorDefecto(true);  // every question: run the stages again
  for (auto _ : estado) {
    p.NúmeroIteraciones = 0;
    p.HistoriaIteraciones.Redimensionar(0);
    MétodoFellenius(p, ui);
    ui.Olvidar();
  }
}
BENCHMARK(BM_Fellenius)->Arg(10)->Arg(50)->Arg(200);

}  // namespace
}  // namespace lomaterra
