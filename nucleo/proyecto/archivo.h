// The project file: one writer and one reader, each walking the whole order of the format.
#pragma once

#include <string>

#include "proyecto/proyecto.h"

namespace lomaterra {

class Interfaz;

// Writes the project to `archivo`. Returns false when nothing was written (a refusal shown to
// the user, or a write that failed and left the previous file as it was).
bool GuardarProyecto(Proyecto& p, const std::string& archivo, Interfaz& ui);
// Resets the project and reads `archivo`. On a failure shows "Error leyendo archivo", keeps what
// was read and returns false.
bool LeerProyecto(Proyecto& p, const std::string& archivo, Interfaz& ui);

// The text with each CR and each LF replaced by one blank.
std::string LimpiarSaltos(const std::string& texto);
// Largest value of rows 1..n of a table of integers (0 for none).
Entero MayorDeLista(const Tabla<Entero>& lista, long n);

}  // namespace lomaterra
