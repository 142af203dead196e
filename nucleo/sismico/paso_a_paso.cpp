#include "sismico/paso_a_paso.h"

#include <cmath>
#include <cstddef>

#include "sismico/amortiguamiento.h"
#include "sismico/modulo_degradado.h"

namespace lomaterra {

void AmortiguamientoDelPaso(const std::vector<double>& masa, const std::vector<double>& rigidez,
                            long n, const std::vector<double>& relaciónPorGrado, double w1,
                            double w2, std::vector<double>& amortiguamiento) {
  if (w2 == w1) w2 = w1 + 0.1;
  amortiguamiento.assign(static_cast<std::size_t>(n * n), 0.0);
  for (long i = 0; i < n; ++i) {
    const ConstantesRayleigh c = CalcularConstantesRayleigh(w1, w2, relaciónPorGrado[i]);
    for (long j = 0; j < n; ++j)
      amortiguamiento[i * n + j] = c.a0 * masa[i * n + j] + c.a1 * rigidez[i * n + j];
  }
}

long PasoAPaso(const DatosPasoAPaso& d, EstadoPasoAPaso& e, const FunciónInversa& inversa) {
  const long n = d.n;
  const double dt = d.dt;
  const std::vector<double>& M = *d.masa;
  const std::vector<double>& P = *d.carga;
  if (d.primero) {
    e.efectiva = *d.condensada;
  } else {
    const std::vector<double>& K = *d.rigidez;
    const std::vector<double>& C = *d.amortiguamiento;
    e.efectiva = K;
    for (long i = 0; i < n; ++i)
      e.efectiva[i * n + i] = K[i * n + i] + 4 / (dt * dt) * M[i * n + i] + 2 / dt * C[i * n + i];
  }
  const long fallo = inversa(e.efectiva, n, e.inversa);
  if (fallo != 0) return fallo;

  e.u.resize(n), e.v.resize(n), e.a.resize(n);
  e.du.resize(n), e.dv.resize(n), e.da.resize(n);
  for (long i = 0; i < n; ++i) {
    double dP;
    if (d.primero) {
      dP = P[i];
    } else {
      const double mii = M[i * n + i], cii = (*d.amortiguamiento)[i * n + i];
      dP = P[i] - e.cargaAnterior[i] - std::fabs((4 / dt * e.v[i] + 2 * e.a[i]) * mii) -
           std::fabs((dt / 2 * e.a[i] + 3 * e.v[i]) * cii);
    }
    const double du = dP * e.inversa[i * n + i];
    e.du[i] = du;
    if (d.primero) {
      e.dv[i] = 2 / dt * du;
      e.da[i] = 4 / (dt * dt) * du;
      e.u[i] = du, e.v[i] = e.dv[i], e.a[i] = e.da[i];
    } else {
      e.dv[i] = 2 / dt * du - 2 * e.v[i];
      e.da[i] = 4 / (dt * dt) * du - 4 / dt * e.v[i] - 2 * e.a[i];
      e.u[i] += du, e.v[i] += e.dv[i], e.a[i] += e.da[i];
    }
    if (CortarDesplazamiento(e.u[i])) e.corte = true;
  }
  e.cargaAnterior = P;
  return 0;
}

void EscalarRigidez(const std::vector<double>& condensada, long n,
                    const std::vector<MóduloDeGrado>& porGrado, std::vector<double>& rigidez) {
  rigidez.resize(static_cast<std::size_t>(n * n));
  for (long i = 0; i < n; ++i) {
    const MóduloDeGrado& g = porGrado[i];
    for (long j = 0; j < n; ++j)
      rigidez[i * n + j] = (g.x + g.G) * condensada[i * n + j] / (g.x + g.Gmax);
  }
}

}  // namespace lomaterra
