// The Duhamel integral of one modal equation, interval by interval, for a load per unit modal mass
// that varies linearly over each record interval. The integrals I1..I4 are those of
// exp(s τ) cos(wd τ), exp(s τ) sin(wd τ), τ exp(s τ) sin(wd τ) and τ exp(s τ) cos(wd τ), with the
// exponential taken over the interval Dt and the angle wd τ held at -3.14159/2 once it leaves
// [-1, 1]. The accumulation adds the integrals taken at the step's own time, not their differences
// over the interval: that is the run's behaviour and is kept.
#pragma once

namespace lomaterra {

struct IntegralesDuhamel {
  double I1 = 0, I2 = 0, I3 = 0, I4 = 0;
};
// w the frequency (rad/s), z the damping ratio, tiempo the step's time, dt the interval.
IntegralesDuhamel CalcularIntegralesDuhamel(double w, double z, double tiempo, double dt);

// The running sums of one modal degree.
struct EstadoDuhamel {
  double A = 0, B = 0;
};

struct RespuestaModal {
  double q = 0, qd = 0, qa = 0;  // displacement, velocity, acceleration
};

// Displacement, velocity and acceleration of the degree from its sums A and B at the step: masa is
// the degree's diagonal mass, F the step's modal load.
RespuestaModal RespuestaDuhamel(const EstadoDuhamel& e, double w, double z, double masa,
                                double tiempo, double dt, double F);

// One step of the degree: `primero` for the first step of the record (the sums start from its
// load); otherwise tiempoAnterior and fAnterior are the previous step's time and modal load.
RespuestaModal PasoDuhamel(EstadoDuhamel& e, bool primero, double w, double z, double masa,
                           double tiempo, double tiempoAnterior, double dt, double F,
                           double fAnterior);

}  // namespace lomaterra
