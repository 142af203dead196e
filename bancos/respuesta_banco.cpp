// The per-step work of the three seismic runs, measured after a few steps and after many: each
// step carries only the last values of the run, so its time must not grow with the steps done.
// Duhamel and the decoupled run on 300 free degrees (all modes), the direct step-by-step run on
// 100 (it inverts the effective stiffness at every step).
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "sismico/duhamel.h"
#include "sismico/inversa_explicita.h"
#include "sismico/paso_a_paso.h"
#include "sismico/paso_desacoplado.h"

namespace {

using namespace lomaterra;

constexpr double kDt = 0.01;

double Carga(long j, long t) { return 0.3 * std::sin(0.05 * t + 0.1 * j); }

std::vector<double> Forma(long n) {
  std::vector<double> f(static_cast<std::size_t>(n * n));
  for (long i = 0; i < n; ++i)
    for (long j = 0; j < n; ++j) f[i * n + j] = std::sin((i + 1) * (j + 1) * 3.14159 / (n + 1));
  return f;
}

struct CorridaDuhamel {
  long n, t = 0;
  std::vector<double> forma, u, F;
  std::vector<EstadoDuhamel> modos;
  explicit CorridaDuhamel(long n_) : n(n_), forma(Forma(n_)), u(n_), F(n_), modos(n_) {}
  void Paso() {
    ++t;
    std::vector<double> q(n);
    for (long j = 0; j < n; ++j) {
      const double f = Carga(j, t);
      q[j] = PasoDuhamel(modos[j], t == 1, 12, 0.05, 10, t * kDt, (t - 1) * kDt, kDt, f, F[j]).q;
      F[j] = f;
    }
    for (long i = 0; i < n; ++i) {
      double s = 0;
      for (long j = 0; j < n; ++j) s += forma[i * n + j] * q[j];
      u[i] = s;
    }
  }
};

struct CorridaDesacoplada {
  long n, t = 0;
  std::vector<double> forma, z, F;
  EstadoDesacoplado e;
  explicit CorridaDesacoplada(long n_) : n(n_), forma(Forma(n_)), z(n_, 0.05), F(n_) {}
  void Paso() {
    ++t;
    for (long j = 0; j < n; ++j) F[j] = Carga(j, t);
    PasoDesacoplado(forma, n, F, z, 12, kDt, t == 1, e);
  }
};

struct CorridaDirecta {
  long n, t = 0;
  std::vector<double> K, M, Kc, C, P, z;
  std::vector<MóduloDeGrado> módulos;
  EstadoPasoAPaso e;
  explicit CorridaDirecta(long n_)
      : n(n_), K(n_ * n_), M(n_ * n_), P(n_), z(n_, 0.05), módulos(n_, {0.9, 900, 1000}) {
    for (long i = 0; i < n; ++i) {
      K[i * n + i] = 4000, M[i * n + i] = 10;
      if (i > 0) K[i * n + i - 1] = K[(i - 1) * n + i] = -1000;
    }
    Kc = K;
  }
  void Paso() {
    ++t;
    for (long i = 0; i < n; ++i) P[i] = 10 * Carga(i, t);
    if (t > 1) AmortiguamientoDelPaso(M, K, n, z, 12, 30, C);
    DatosPasoAPaso d{n, &M, &K, &Kc, &C, &P, kDt, t == 1};
    PasoAPaso(d, e, [](const std::vector<double>& a, long m, std::vector<double>& inv) {
      return InversaGaussJordanPorBloques(a, m, inv, 1);
    });
    EscalarRigidez(Kc, n, módulos, K);
  }
};

template <class Corrida>
void BM_PasoTrasHechos(benchmark::State& s) {
  Corrida c(s.range(0));
  for (long k = 0; k < s.range(1); ++k) c.Paso();
  for (auto _ : s) {
    c.Paso();
    benchmark::ClobberMemory();
  }
  s.counters["pasos_hechos"] = static_cast<double>(s.range(1));
}

BENCHMARK(BM_PasoTrasHechos<CorridaDuhamel>)->Args({300, 10})->Args({300, 2000})->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PasoTrasHechos<CorridaDesacoplada>)->Args({300, 10})->Args({300, 2000})->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PasoTrasHechos<CorridaDirecta>)->Args({100, 10})->Args({100, 1000})->Unit(benchmark::kMillisecond)->Iterations(50);

}  // namespace
