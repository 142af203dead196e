// Faults that end a command: arithmetic faults nobody foresaw and rows out of range.
#pragma once

#include <stdexcept>
#include <string>

namespace lomaterra {

// An unforeseen arithmetic fault. The command that meets it ends with a clear message and the
// project stays as it stood at that moment.
class FalloAritmético : public std::runtime_error {
 public:
  explicit FalloAritmético(const std::string& detalle) : std::runtime_error(detalle) {}
};

// Checked operations: they raise FalloAritmético where plain floating point would give an
// infinity or a NaN that could end up on the screen.
double Div(double a, double b, const char* dónde = "una división");
double Raíz(double x, const char* dónde = "una raíz cuadrada");
double Ln(double x, const char* dónde = "un logaritmo");
double Pot(double base, double exponente, const char* dónde = "una potencia");
// Throws when the value is not finite.
double Finito(double x, const char* dónde = "un cálculo");

// The net after each stage: raises FalloAritmético when the floating-point unit recorded a
// division by zero, an invalid operation or an overflow since the last Limpiar.
void LimpiarExcepcionesFlotantes();
void ComprobarExcepcionesFlotantes(const char* etapa);

}  // namespace lomaterra
