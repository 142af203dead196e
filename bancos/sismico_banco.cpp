// The explicit inverse of the mode shapes on about 1,000 free degrees: the plain Gauss-Jordan
// triple loop against the blocked elimination, on one thread and on all; and the 11-decimal
// rounding of the whole inverse. Two inversions and two roundings make one mode.
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "pantallas/interfaz_guionada.h"
#include "sismico/formas_modales.h"
#include "sismico/inversa_explicita.h"

namespace {

using namespace lomaterra;

// K - w² M of a mesh: diagonally heavy, about one entry in three non-zero off the diagonal once
// the elimination has filled it in.
std::vector<double> Matriz(long n) {
  std::mt19937 azar(11);
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<double> a(static_cast<std::size_t>(n * n));
  for (long i = 0; i < n; ++i)
    for (long j = 0; j < n; ++j)
      a[static_cast<std::size_t>(i * n + j)] = i == j ? 3.0 * n : (azar() % 3 == 0 ? 0.0 : 1e3 * u(azar));
  return a;
}

void BM_InversaSimple(benchmark::State& s) {
  const long n = s.range(0);
  const auto a = Matriz(n);
  std::vector<double> inv;
  for (auto _ : s) benchmark::DoNotOptimize(InversaGaussJordanSimple(a, n, inv));
}
BENCHMARK(BM_InversaSimple)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(2);

void BM_InversaPorBloques(benchmark::State& s) {
  const long n = s.range(0);
  const auto a = Matriz(n);
  std::vector<double> inv;
  for (auto _ : s) benchmark::DoNotOptimize(InversaGaussJordanPorBloques(a, n, inv, static_cast<int>(s.range(1))));
}
BENCHMARK(BM_InversaPorBloques)->Args({1000, 1})->Args({1000, 0})->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Redondeo(benchmark::State& s) {
  const long n = s.range(0);
  std::vector<double> inv;
  InversaGaussJordanPorBloques(Matriz(n), n, inv);
  for (auto _ : s) {
    std::vector<double> copia = inv;
    Redondear11(copia);
    benchmark::DoNotOptimize(copia.data());
  }
}
BENCHMARK(BM_Redondeo)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();

// Every mode of a chain of n masses and springs, answering Yes to the time question.
void BM_TodosLosModos(benchmark::State& s) {
  const long n = s.range(0);
  std::vector<double> K(static_cast<std::size_t>(n * n)), M(K.size()), w(static_cast<std::size_t>(n));
  for (long i = 0; i < n; ++i) {
    K[static_cast<std::size_t>(i * n + i)] = i + 1 < n ? 2000 : 1000;
    if (i + 1 < n) K[static_cast<std::size_t>(i * n + i + 1)] = K[static_cast<std::size_t>((i + 1) * n + i)] = -1000;
    M[static_cast<std::size_t>(i * n + i)] = 1;
    w[static_cast<std::size_t>(i)] = 1 + i;
  }
  for (auto _ : s) {
    InterfazGuionada ui("S");
    FormasModales r;
    benchmark::DoNotOptimize(CalcularFormasModales(K, M, n, w, r, ui));
  }
}
BENCHMARK(BM_TodosLosModos)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

}  // namespace
