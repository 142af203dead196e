#include "sismico/modulo_degradado.h"

#include <cmath>
#include <cstddef>

namespace lomaterra {

double ExponenteIp(double ip) {
  if (ip == 0) return 0;
  if (ip <= 15) return 3.37e-6 * std::pow(ip, 1.404);
  if (ip <= 70) return 7e-7 * std::pow(ip, 1.976);
  return 2.7e-5 * std::pow(ip, 1.115);
}

double FactorK(double y, double ip) {
  return 0.5 * (1 + std::tanh(std::log(std::pow((ExponenteIp(ip) + 0.000102) / y, 0.492))));
}

double ExponenteM(double y, double ip) {
  return 0.272 * (1 - std::tanh(std::log(std::pow(0.000556 / y, 0.4)))) *
         std::exp(-0.0145 * std::pow(ip, 1.3));
}

double ResistenciaCorte(double c, double fricción, double cu, double sm) {
  const double phi = fricción * 3.14159265358979 / 180;
  if (fricción > 0) return c * std::cos(phi) + sm * std::sin(phi);
  if (cu > 0) return cu;
  return 0;
}

namespace {

double RazónAjuste(const SueloDegradable& s, double y) {
  double r = std::pow(10 * s.sm, ExponenteM(y, s.ip)) * FactorK(y, s.ip);
  if (r >= 1) r = 0.99;
  return r;
}

double Acotar(double x, double mínimo, double máximo) {
  return x < mínimo ? mínimo : (x > máximo ? máximo : x);
}

}  // namespace

void AjustarHipérbola(SueloDegradable& s, double txy) {
  s.yr = s.tauMáx / s.Gmax;
  const double y[] = {1e-6, 1e-5, 1e-4, 1e-3, std::pow(10.0, -2.5)};
  double sx = 0, sy = 0, sxx = 0, sxy = 0;
  for (double yi : y) {
    const double r = RazónAjuste(s, yi);
    const double X = std::log10(std::fabs(yi / s.yr * r)), Y = std::log10(1 / r - 1);
    sx += X, sy += Y, sxx += X * X, sxy += X * Y;
  }
  const double b1 = (5 * sxy - sx * sy) / (5 * sxx - sx * sx);
  s.R = std::fabs(b1) > 0.01 ? b1 + 1 : 1;
  const double t = std::pow(std::fabs(txy / s.tauMáx), s.R - 1);
  s.alfa = ((1 / RazónAjuste(s, 1e-4) - 1) / t + (1 / RazónAjuste(s, 1e-3) - 1) / t) / 2;
}

double DeformaciónDelPaso(const SueloDegradable& s, double txy, bool primero) {
  double y = 0, y0 = 0, t0 = 0;  // y is the stored strain, zero when the step starts
  if (primero) {
    y = (1 + s.alfa * std::pow(std::fabs(txy / s.tauMáx), s.R - 1)) * (txy / s.tauMáx) * s.yr;
  } else {
    const double e1 = (1 + s.alfa * std::pow(std::fabs(txy / (2 * s.tauMáx)), s.R - 1)) *
                          ((txy - t0) / (2 * s.tauMáx)) * (2 * s.yr) + y0;
    const double e2 = (1 + s.alfa * std::pow(std::fabs(txy / s.tauMáx), s.R - 1)) *
                      (txy / s.tauMáx) * s.yr;
    const double c1 = e1 == y ? -1 : 0, c2 = e2 == y ? -1 : 0;
    if (std::fabs(c2) <= std::fabs(c1)) {
      y = c2, y0 = 0, t0 = 0;
    } else {
      y = c1, y0 = c2, t0 = txy;
    }
  }
  if (y0 == 0) y = 1e-6;
  return y;
}

MóduloYAmortiguamiento MóduloSuelo(const SueloDegradable& s, double y) {
  const double K = std::fabs(y) <= 1e-6 ? 1 : FactorK(y, s.ip);
  const double m = std::fabs(y) >= 1e-1 ? 0.544 : ExponenteM(y, s.ip);
  MóduloYAmortiguamiento r;
  r.razón = std::pow(10 * s.sm, m) * K;
  r.G = r.razón * s.Gmax;
  if (r.G < 0.1 * s.Gmax) r.G = 0.1 * s.Gmax;
  if (r.G >= s.Gmax) r.G = s.Gmax, r.razón = 1;
  r.z = 0.333 * (0.586 * r.razón * r.razón - 1.547 * r.razón + 1);
  if (s.conIp) r.z *= (std::exp(-0.0145 * std::pow(s.ip, 1.3)) + 1) / 2;
  r.z = Acotar(r.z, 0.05, 0.333);
  return r;
}

MóduloYAmortiguamiento MóduloRoca(double Gmax, double txy, double gxy, double dt, double w) {
  MóduloYAmortiguamiento r;
  r.G = std::fabs(gxy) > 1e-6 ? std::fabs(txy) / std::fabs(gxy) : Gmax;
  r.G = Acotar(r.G, 0.1 * Gmax, Gmax);
  r.razón = r.G / Gmax;
  r.z = std::pow(dt * w, 1.005) * (1.0 / 7) * Gmax / (dt * w * Gmax + r.G);
  r.z = Acotar(r.z, 0.05, 0.333);
  return r;
}

double PoissonDelPaso(double ex, double ey, double nu) {
  const double a = std::fabs(ex), b = std::fabs(ey);
  if (a == b) return nu;
  const double q = a < b ? a / b : b / a;
  return q > 0.5 ? 0.49 : (q < 0.1 ? 0.1 : q);
}

bool CortarDesplazamiento(double& u) {
  if (std::fabs(u) < 1e4) return false;
  u = u > 0 ? 10000 : -10000;
  return true;
}

void AnotarDesplazados(const std::vector<double>& u, const std::vector<char>& determinanteUno,
                       GradosDesplazados& d) {
  d.listado.resize(u.size(), 0);
  for (std::size_t i = 0; i < u.size(); ++i)
    if ((u[i] > 0.5 || u[i] < -0.5) && determinanteUno[i] && !d.listado[i]) {
      d.listado[i] = 1;
      ++d.cuenta;
    }
}

bool ReglaDelSetentaYCinco(const GradosDesplazados& d, long n) {
  return d.cuenta > static_cast<long>(std::floor(0.75 * n));
}

}  // namespace lomaterra
