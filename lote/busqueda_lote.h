// The search of the critical circle in lomaterra-lote: its options from a JSON file (the keys are
// the fields of OpcionesBúsqueda; what is not given takes the default of the section), the lines
// printed, and the result with the grid of least factors for the JSON output.
#pragma once

#include <optional>
#include <string>

namespace lomaterra {
struct Proyecto;
class Interfaz;
}  // namespace lomaterra

namespace lomaterra::lote {

extern const char* const kComandoBúsqueda;  // "BúsquedaCírculoCrítico"

// Reads the options of `archivo` (none: the defaults), searches, prints the result, and with
// "usar": true writes the critical circle into the project. `json` receives the value of the key
// "Búsqueda" of the output. Returns an error text when the options cannot be read, else empty.
std::string CorrerBúsqueda(Proyecto& p, Interfaz& ui, const std::optional<std::string>& archivo,
                           std::string& json);

}  // namespace lomaterra::lote
