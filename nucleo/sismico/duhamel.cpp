#include "sismico/duhamel.h"

#include <cmath>

namespace lomaterra {
namespace {

struct Amortiguado {
  double wd, s, h, b;
};

Amortiguado Parámetros(double w, double z, double tiempo) {
  Amortiguado p;
  p.wd = w * std::sqrt(1 - z * z);
  p.s = w * z;
  p.h = p.s * p.s + p.wd * p.wd;
  p.b = tiempo * p.wd;
  if (p.b > 1 || p.b < -1) p.b = -3.14159 / 2;
  return p;
}

}  // namespace

IntegralesDuhamel CalcularIntegralesDuhamel(double w, double z, double tiempo, double dt) {
  const Amortiguado p = Parámetros(w, z, tiempo);
  const double a0 = std::exp(p.s * dt) / p.h;
  const double seno = std::sin(p.b), coseno = std::cos(p.b);
  IntegralesDuhamel i;
  i.I1 = (p.wd * seno + p.s * coseno) * a0;
  i.I2 = (p.s * seno - p.wd * coseno) * a0;
  i.I3 = (tiempo - p.s / p.h) * i.I2 + (p.wd / p.h) * i.I1;
  i.I4 = (tiempo - p.s / p.h) * i.I1 - (p.wd / p.h) * i.I2;
  return i;
}

RespuestaModal RespuestaDuhamel(const EstadoDuhamel& e, double w, double z, double masa,
                                double tiempo, double dt, double F) {
  const Amortiguado p = Parámetros(w, z, tiempo);
  const double c = std::exp(-p.s * dt) / (masa * p.wd);
  const double seno = std::sin(p.b), coseno = std::cos(p.b);
  RespuestaModal r;
  r.q = (e.A * seno - e.B * coseno) * c;
  r.qd = (coseno * (e.A * p.wd + p.s * e.B) + seno * (e.B * p.wd - p.s * e.A)) * c;
  r.qa = F - 2 * p.s * r.qd - w * w * r.q;
  return r;
}

RespuestaModal PasoDuhamel(EstadoDuhamel& e, bool primero, double w, double z, double masa,
                           double tiempo, double tiempoAnterior, double dt, double F,
                           double fAnterior) {
  const IntegralesDuhamel i = CalcularIntegralesDuhamel(w, z, tiempo, dt);
  if (primero) {
    e.A = i.I1 * F;
    e.B = i.I2 * F;
  } else {
    const double r = (F - fAnterior) / dt;
    const double q = fAnterior - tiempoAnterior * r;
    e.A += q * i.I1 + r * i.I4;
    e.B += q * i.I2 + r * i.I3;
  }
  return RespuestaDuhamel(e, w, z, masa, tiempo, dt, F);
}

}  // namespace lomaterra
