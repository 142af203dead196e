#include "sismico/inversa_explicita.h"

#include <algorithm>
#include <cmath>
#include <thread>

#include "proyecto/compat.h"

namespace lomaterra {

namespace {

constexpr long kBloque = 64;       // rows of a tile
constexpr long kColumnas = 512;    // columns of a tile

int Hilos(int pedidos) {
  if (pedidos > 0) return pedidos;
  const unsigned h = std::thread::hardware_concurrency();
  return h == 0 ? 1 : static_cast<int>(std::min(h, 8u));
}

// Runs f(desde, hasta) over [inicio, fin) split among the threads; small ranges stay on one.
template <class F>
void EnParalelo(long inicio, long fin, int hilos, long mínimo, F&& f) {
  const long total = fin - inicio;
  if (hilos <= 1 || total < 2 * mínimo) {
    if (total > 0) f(inicio, fin);
    return;
  }
  const long partes = std::min<long>(hilos, total / mínimo);
  std::vector<std::thread> otros;
  const long paso = (total + partes - 1) / partes;
  for (long p = 1; p < partes; ++p) {
    const long a = inicio + p * paso, b = std::min(fin, a + paso);
    if (a < b) otros.emplace_back([&f, a, b] { f(a, b); });
  }
  f(inicio, std::min(fin, inicio + paso));
  for (auto& t : otros) t.join();
}

// fila[c] -= factor * fuente[c] for c in [desde, hasta).
inline void Restar(double* __restrict fila, const double* __restrict fuente, double factor,
                   long desde, long hasta) {
  for (long c = desde; c < hasta; ++c) fila[c] -= factor * fuente[c];
}

using v2d = double __attribute__((vector_size(16)));

inline v2d Cargar(const double* p) {
  v2d v;
  __builtin_memcpy(&v, p, sizeof v);
  return v;
}
inline void Guardar(double* p, v2d v) { __builtin_memcpy(p, &v, sizeof v); }

// Two rows at once: f1[c] -= Σ a1[t] g[t][c] and f2[c] -= Σ a2[t] g[t][c], t in list order, for c
// in [c0, c1). Each entry receives its subtractions one by one in that order, so it comes out as
// the row operations of the plain form leave it; a factor of zero subtracts an exact zero.
void DosFilas(double* f1, double* f2, const double* a1, const double* a2, const double* const* g,
              long m, long c0, long c1) {
  long c = c0;
  for (; c + 8 <= c1; c += 8) {
    v2d x0 = Cargar(f1 + c), x1 = Cargar(f1 + c + 2), x2 = Cargar(f1 + c + 4), x3 = Cargar(f1 + c + 6);
    v2d y0 = Cargar(f2 + c), y1 = Cargar(f2 + c + 2), y2 = Cargar(f2 + c + 4), y3 = Cargar(f2 + c + 6);
    for (long t = 0; t < m; ++t) {
      const double* q = g[t] + c;
      const v2d p = {a1[t], a1[t]}, r = {a2[t], a2[t]};
      const v2d q0 = Cargar(q), q1 = Cargar(q + 2), q2 = Cargar(q + 4), q3 = Cargar(q + 6);
      x0 -= p * q0; x1 -= p * q1; x2 -= p * q2; x3 -= p * q3;
      y0 -= r * q0; y1 -= r * q1; y2 -= r * q2; y3 -= r * q3;
    }
    Guardar(f1 + c, x0); Guardar(f1 + c + 2, x1); Guardar(f1 + c + 4, x2); Guardar(f1 + c + 6, x3);
    Guardar(f2 + c, y0); Guardar(f2 + c + 2, y1); Guardar(f2 + c + 4, y2); Guardar(f2 + c + 6, y3);
  }
  for (; c < c1; ++c) {
    double x = f1[c], y = f2[c];
    for (long t = 0; t < m; ++t) {
      x -= a1[t] * g[t][c];
      y -= a2[t] * g[t][c];
    }
    f1[c] = x;
    f2[c] = y;
  }
}

// Rows [desde, hasta) of `destino` (stride n): row i -= Σ factor(i, fuente) * row `fuente` of
// `origen`, the sources taken in the order of `fuentes`, over columns [c0, c1) in tiles.
template <class Factor>
void Actualizar(double* destino, const double* origen, long n, long desde, long hasta,
                const std::vector<long>& fuentes, Factor factor, long c0, long c1) {
  const std::size_t kb = fuentes.size();
  std::vector<double> a1(kb), a2(kb);
  std::vector<const double*> g(kb);
  for (long t0 = c0; t0 < c1; t0 += kColumnas) {
    const long t1 = std::min(c1, t0 + kColumnas);
    for (long i = desde; i < hasta; i += 2) {
      const bool par = i + 1 < hasta;
      long m = 0;
      for (long k : fuentes) {
        const double p = factor(i, k), q = par ? factor(i + 1, k) : 0.0;
        if (p == 0 && q == 0) continue;
        a1[static_cast<std::size_t>(m)] = p;
        a2[static_cast<std::size_t>(m)] = q;
        g[static_cast<std::size_t>(m)] = origen + k * n;
        ++m;
      }
      if (m == 0) continue;
      double* f1 = destino + i * n;
      if (par) {
        DosFilas(f1, destino + (i + 1) * n, a1.data(), a2.data(), g.data(), m, t0, t1);
      } else {
        for (long t = 0; t < m; ++t) Restar(f1, g[static_cast<std::size_t>(t)], a1[static_cast<std::size_t>(t)], t0, t1);
      }
    }
  }
}

}  // namespace

long InversaGaussJordanSimple(const std::vector<double>& a, long n, std::vector<double>& inversa) {
  const long w = 2 * n;
  std::vector<double> m(static_cast<std::size_t>(n * w), 0.0);
  for (long i = 0; i < n; ++i) {
    std::copy(a.begin() + i * n, a.begin() + (i + 1) * n, m.begin() + i * w);
    m[static_cast<std::size_t>(i * w + n + i)] = 1.0;
  }
  for (long k = 0; k < n; ++k) {
    const double pivote = m[static_cast<std::size_t>(k * w + k)];
    if (pivote == 0) return k + 1;
    for (long i = k + 1; i < n; ++i) {
      const double e = m[static_cast<std::size_t>(i * w + k)];
      if (e == 0) continue;
      const double f = e / pivote;
      for (long c = 0; c < w; ++c) m[static_cast<std::size_t>(i * w + c)] -= f * m[static_cast<std::size_t>(k * w + c)];
    }
  }
  for (long k = n - 1; k >= 1; --k) {
    const double pivote = m[static_cast<std::size_t>(k * w + k)];
    for (long i = k - 1; i >= 0; --i) {
      const double e = m[static_cast<std::size_t>(i * w + k)];
      if (e == 0) continue;
      const double f = e / pivote;
      for (long c = 0; c < w; ++c) m[static_cast<std::size_t>(i * w + c)] -= f * m[static_cast<std::size_t>(k * w + c)];
    }
  }
  inversa.assign(static_cast<std::size_t>(n * n), 0.0);
  for (long i = 0; i < n; ++i) {
    const double d = m[static_cast<std::size_t>(i * w + i)];
    for (long c = 0; c < n; ++c)
      inversa[static_cast<std::size_t>(i * n + c)] = m[static_cast<std::size_t>(i * w + n + c)] / d;
  }
  return 0;
}

// The blocked form. The left half of [A | I] becomes U with the multipliers l(i,k) below it (the
// forward elimination of the plain form, whose entries receive their updates from k = 0, 1, ...
// in order); the right half is kept apart as R. Every entry of R receives, in the plain form, the
// forward updates R(i) -= l(i,k) R(k) for k rising and then the backward updates
// R(i) -= (U(i,k) / U(k,k)) R(k) for k falling; the tiles below keep both orders.
long InversaGaussJordanPorBloques(const std::vector<double>& a, long n, std::vector<double>& inversa,
                                  int hilosPedidos) {
  const int hilos = Hilos(hilosPedidos);
  std::vector<double> lu(a.begin(), a.begin() + n * n);
  double* const L = lu.data();
  auto fila = [&](long i) { return L + i * n; };

  // 1. Forward elimination of A (LU without exchanges), by panels of kBloque columns.
  for (long k0 = 0; k0 < n; k0 += kBloque) {
    const long k1 = std::min(n, k0 + kBloque);
    // The panel: columns k0..k1-1 of every row below.
    for (long k = k0; k < k1; ++k) {
      const double pivote = fila(k)[k];
      if (pivote == 0) return k + 1;
      EnParalelo(k + 1, n, hilos, 256, [&](long desde, long hasta) {
        for (long i = desde; i < hasta; ++i) {
          double* f = fila(i);
          if (f[k] == 0) continue;
          f[k] /= pivote;
          Restar(f, fila(k), f[k], k + 1, k1);
        }
      });
    }
    // The rows of the panel to the right of it.
    for (long k = k0; k < k1; ++k)
      for (long i = k + 1; i < k1; ++i)
        if (fila(i)[k] != 0) Restar(fila(i), fila(k), fila(i)[k], k1, n);
    // The trailing rows, tile by tile: the panel's updates in order of k.
    std::vector<long> fuentes;
    for (long k = k0; k < k1; ++k) fuentes.push_back(k);
    auto multiplicador = [&](long i, long k) { return fila(i)[k]; };
    EnParalelo(k1, n, hilos, 16, [&](long desde, long hasta) {
      Actualizar(L, L, n, desde, hasta, fuentes, multiplicador, k1, n);
    });
  }

  // 2. R = the forward elimination applied to I. Row k of R is final once the rows above it are;
  // only its columns 0..k can be non-zero.
  inversa.assign(static_cast<std::size_t>(n * n), 0.0);
  double* const R = inversa.data();
  auto filaR = [&](long i) { return R + i * n; };
  for (long i = 0; i < n; ++i) filaR(i)[i] = 1.0;
  for (long k0 = 0; k0 < n; k0 += kBloque) {
    const long k1 = std::min(n, k0 + kBloque);
    for (long k = k0; k < k1; ++k)
      for (long i = k + 1; i < k1; ++i)
        if (fila(i)[k] != 0) Restar(filaR(i), filaR(k), fila(i)[k], 0, k + 1);
    // Row k of R is zero past column k: a subtraction there takes away an exact zero.
    std::vector<long> fuentes;
    for (long k = k0; k < k1; ++k) fuentes.push_back(k);
    auto multiplicador = [&](long i, long k) { return fila(i)[k]; };
    EnParalelo(k1, n, hilos, 16, [&](long desde, long hasta) {
      Actualizar(R, R, n, desde, hasta, fuentes, multiplicador, 0, k1);
    });
  }

  // 3. Backward elimination: R(i) -= (U(i,k) / U(k,k)) R(k), k from the last row up. The factors
  // are taken from U as the plain form meets them (its entries above the diagonal do not change).
  for (long k1 = n; k1 > 0; k1 -= kBloque) {
    const long k0 = std::max(0L, k1 - kBloque);
    for (long k = k1 - 1; k > k0; --k)
      for (long i = k - 1; i >= k0; --i) {
        const double e = fila(i)[k];
        if (e != 0) Restar(filaR(i), filaR(k), e / fila(k)[k], 0, n);
      }
    std::vector<long> fuentes;
    for (long k = k1 - 1; k >= k0; --k) fuentes.push_back(k);
    auto factor = [&](long i, long k) {
      const double e = fila(i)[k];
      return e == 0 ? 0.0 : e / fila(k)[k];
    };
    EnParalelo(0, k0, hilos, 16, [&](long desde, long hasta) {
      Actualizar(R, R, n, desde, hasta, fuentes, factor, 0, n);
    });
  }
  // 4. Each row divided by its diagonal.
  for (long i = 0; i < n; ++i) {
    const double d = fila(i)[i];
    double* f = filaR(i);
    for (long c = 0; c < n; ++c) f[c] /= d;
  }
  return 0;
}

double Redondear11(double x) {
  // Below 0.01 the number's 15 significant digits reach past the 11th decimal by at most 10^-6 of
  // a unit there, and x * 10^11 carries less error than that: away from a half the product rounds
  // as the text would. Anywhere else the text itself decides.
  const double y = x * 1e11;
  if (std::fabs(x) < 1e-2) {
    const double a = std::fabs(y);
    const double parte = a - std::floor(a);
    if (std::fabs(parte - 0.5) > 1e-5) {
      const double r = std::floor(a + 0.5);
      return r == 0 ? 0.0 : std::copysign(r, y) / 1e11;
    }
  }
  if (!std::isfinite(x)) return x;
  return ANúmero(Formato(x, "#0.00000000000"));
}

void Redondear11(std::vector<double>& v, int hilos) {
  EnParalelo(0, static_cast<long>(v.size()), Hilos(hilos), 4096, [&](long desde, long hasta) {
    for (long i = desde; i < hasta; ++i) v[static_cast<std::size_t>(i)] = Redondear11(v[static_cast<std::size_t>(i)]);
  });
}

}  // namespace lomaterra
