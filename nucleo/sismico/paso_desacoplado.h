// The decoupled modal equations integrated step by step by the linear-acceleration method, and the
// node values recovered through the mode vectors. The work of a step depends on the number of
// degrees and modes only: each modal degree carries its last q, v, a and nothing more.
#pragma once

#include <vector>

namespace lomaterra {

struct EstadoModal {
  double q = 0, v = 0, a = 0;
};

// One modal degree at one step: w the frequency, z the damping ratio, F and fAnterior the modal
// loads per unit modal mass of this step and the previous one.
void PasoModalLinealAceleración(EstadoModal& e, bool primero, double w, double z, double dt,
                                double F, double fAnterior);

// Node acceleration from the displacement history: (6/Dt²) u at the first step, else
// (4/Dt²)(u - uAnterior) - (4/Dt) vAnterior - aAnterior.
double AceleraciónNodal(bool primero, double dt, double u, double uAnterior, double vAnterior,
                        double aAnterior);

struct EstadoDesacoplado {
  std::vector<EstadoModal> modos;  // by modal degree
  std::vector<double> u, v, a;     // by free degree, at the last step done
  std::vector<double> fAnterior;   // modal loads of the last step done
  bool límite = false;             // a displacement reached 10^5 in some step
};

// One step over every modal degree and free degree. forma is n by n row-major, forma[i * n + j] the
// component of degree i in mode j; F the modal loads of the step; z by modal degree; w the chosen
// mode's frequency for every equation.
void PasoDesacoplado(const std::vector<double>& forma, long n, const std::vector<double>& F,
                     const std::vector<double>& z, double w, double dt, bool primero,
                     EstadoDesacoplado& e);

}  // namespace lomaterra
