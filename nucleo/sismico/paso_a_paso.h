// Direct integration of the equations of motion, without decoupling, by the run's incremental
// scheme: the first step is the static solution under the first load; later steps take the
// effective stiffness K + (4/Dt²) M + (2/Dt) C on the diagonal, the load increment less the
// magnitudes of the inertia and damping terms of the previous step, and only the diagonal of the
// inverse of the effective stiffness. The stiffness follows the degraded modulus by scaling the
// condensed stiffness, not by a fresh assembly.
#pragma once

#include <functional>
#include <vector>

namespace lomaterra {

// Inverts an n by n row-major matrix; returns 0, or the 1-based row whose pivot was zero.
using FunciónInversa = std::function<long(const std::vector<double>&, long, std::vector<double>&)>;

// The damping matrix of a step (n by n, row-major): C(i,j) = a0 M(i,j) + a1 K(i,j), with a0 and a1
// of Rayleigh from w1, w2 (equal ones separated by 0.1) and the damping ratio of the element of
// degree i (relaciónPorGrado[i]).
void AmortiguamientoDelPaso(const std::vector<double>& masa, const std::vector<double>& rigidez,
                            long n, const std::vector<double>& relaciónPorGrado, double w1,
                            double w2, std::vector<double>& amortiguamiento);

struct EstadoPasoAPaso {
  std::vector<double> u, v, a;          // by free degree, at the last step done
  std::vector<double> du, dv, da;       // the increments of that step
  std::vector<double> cargaAnterior;    // P of the last step done
  std::vector<double> efectiva, inversa;  // work matrices, kept to avoid reallocation
  bool corte = false;                   // a displacement reached 10^4 in some step
};

struct DatosPasoAPaso {
  long n = 0;
  const std::vector<double>* masa = nullptr;       // n by n
  const std::vector<double>* rigidez = nullptr;    // current stiffness, n by n
  const std::vector<double>* condensada = nullptr; // condensed stiffness, n by n (first step)
  const std::vector<double>* amortiguamiento = nullptr;  // n by n (steps after the first)
  const std::vector<double>* carga = nullptr;      // P of this step, by degree
  double dt = 0;
  bool primero = false;
};

// One step. Returns 0, or the pivot row at fault of the inversion (the state is then unchanged).
long PasoAPaso(const DatosPasoAPaso& d, EstadoPasoAPaso& e, const FunciónInversa& inversa);

// The stiffness for the next step: K(i,j) = (x + G) Kc(i,j) / (x + Gmax), with x, G and Gmax those
// of the element of degree i.
struct MóduloDeGrado {
  double x = 0, G = 0, Gmax = 0;
};
void EscalarRigidez(const std::vector<double>& condensada, long n,
                    const std::vector<MóduloDeGrado>& porGrado, std::vector<double>& rigidez);

}  // namespace lomaterra
