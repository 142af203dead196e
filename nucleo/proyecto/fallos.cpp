#include "proyecto/fallos.h"

#include <cfenv>
#include <cmath>

namespace lomaterra {

namespace {
[[noreturn]] void Lanzar(const std::string& qué, const char* dónde) {
  throw FalloAritmético(qué + " en " + dónde);
}
}  // namespace

double Finito(double x, const char* dónde) {
  if (!std::isfinite(x)) Lanzar("un resultado no finito", dónde);
  return x;
}

double Div(double a, double b, const char* dónde) {
  if (b == 0.0) Lanzar("división por cero", dónde);
  const double r = a / b;
  if (!std::isfinite(r)) Lanzar("desbordamiento", dónde);
  return r;
}

double Raíz(double x, const char* dónde) {
  if (std::isnan(x) || x < 0.0) Lanzar("raíz cuadrada de un número negativo", dónde);
  return std::sqrt(x);
}

double Ln(double x, const char* dónde) {
  if (std::isnan(x) || x <= 0.0) Lanzar("logaritmo de un número no positivo", dónde);
  return std::log(x);
}

double Pot(double base, double exponente, const char* dónde) {
  const double r = std::pow(base, exponente);
  if (!std::isfinite(r)) Lanzar("potencia no definida o desbordada", dónde);
  return r;
}

void LimpiarExcepcionesFlotantes() { std::feclearexcept(FE_ALL_EXCEPT); }

void ComprobarExcepcionesFlotantes(const char* etapa) {
  if (std::fetestexcept(FE_DIVBYZERO)) Lanzar("división por cero", etapa);
  if (std::fetestexcept(FE_INVALID)) Lanzar("operación no válida", etapa);
  if (std::fetestexcept(FE_OVERFLOW)) Lanzar("desbordamiento", etapa);
}

}  // namespace lomaterra
