#include "sismico/paso_desacoplado.h"

#include <cmath>
#include <cstddef>

namespace lomaterra {

void PasoModalLinealAceleración(EstadoModal& e, bool primero, double w, double z, double dt,
                                double F, double fAnterior) {
  double L = F;
  if (!primero)
    L = F - fAnterior + (6 * z * w + 6 / dt) * e.v + (w * z * dt + 3) * e.a;
  const double dq = L / (6 / (dt * dt) + w * w + 6 * z * w / dt);
  if (primero) {
    e.q = dq, e.v = 3 / dt * dq, e.a = 6 / (dt * dt) * dq;
    return;
  }
  const double dv = 3 / dt * dq - 0.5 * dt * e.a - 3 * e.v;
  const double da = 6 / (dt * dt) * dq - 6 / dt * e.v - 3 * e.a;
  e.q += dq, e.v += dv, e.a += da;
}

double AceleraciónNodal(bool primero, double dt, double u, double uAnterior, double vAnterior,
                        double aAnterior) {
  if (primero) return 6 / (dt * dt) * u;
  return 4 / (dt * dt) * (u - uAnterior) - 4 / dt * vAnterior - aAnterior;
}

void PasoDesacoplado(const std::vector<double>& forma, long n, const std::vector<double>& F,
                     const std::vector<double>& z, double w, double dt, bool primero,
                     EstadoDesacoplado& e) {
  const auto N = static_cast<std::size_t>(n);
  e.modos.resize(N);
  e.u.resize(N), e.v.resize(N), e.a.resize(N);
  e.fAnterior.resize(N);
  for (std::size_t j = 0; j < N; ++j)
    PasoModalLinealAceleración(e.modos[j], primero, w, z[j], dt, F[j], e.fAnterior[j]);
  for (std::size_t i = 0; i < N; ++i) {
    double u = 0, v = 0;
    const double* fila = forma.data() + i * N;
    for (std::size_t j = 0; j < N; ++j) u += fila[j] * e.modos[j].q, v += fila[j] * e.modos[j].v;
    e.a[i] = AceleraciónNodal(primero, dt, u, e.u[i], e.v[i], e.a[i]);
    e.u[i] = u, e.v[i] = v;
    if (std::fabs(u) >= 1e5) e.límite = true;
  }
  e.fAnterior = F;
}

}  // namespace lomaterra
