// The project file: one writer and one reader, each walking the whole order of the format.
#pragma once

#include <string>

#include "proyecto/proyecto.h"

namespace lomaterra {

class Interfaz;

// Writes the project to `archivo`. Returns false when nothing was written (a refusal shown to
// the user, a text the user chose not to save with changed characters, or a write that failed and
// left the previous file as it was).
bool GuardarProyecto(Proyecto& p, const std::string& archivo, Interfaz& ui);
// Reads `archivo` into a reset copy of the project and, when the whole file was read as the
// format states (a known analysis kind, every count within what the file holds, nothing left
// over), puts it in place. On a failure shows "Error leyendo archivo" with the reason and the line
// as its detail, leaves the project as it was and returns false.
bool LeerProyecto(Proyecto& p, const std::string& archivo, Interfaz& ui);

// The text with each CR and each LF replaced by one blank.
std::string LimpiarSaltos(const std::string& texto);
// Largest value of rows 1..n of a table of integers (0 for none).
Entero MayorDeLista(const Tabla<Entero>& lista, long n);

}  // namespace lomaterra
