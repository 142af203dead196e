// The command line of lomaterra-lote: the project, the commands by their control names, and the
// options. New options (an output to PDF, a figure) are one row of the table in opciones.cpp and
// one field here.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lomaterra::lote {

struct Opciones {
  std::string proyecto;
  std::vector<std::string> comandos;
  std::string respuestas;  // "SNSN...": one letter a question, in order
  bool porDefecto = false; // the answer when the letters run out
  std::optional<std::string> json;
  std::optional<std::string> mallaJson;  // the mesh tables
  std::optional<std::string> rigidezJson;  // the mesh tables, the stiffness diagonal and the loads
  std::optional<std::string> guardar;
  std::optional<std::string> pdf;  // the results report
  std::optional<std::string> búsqueda;  // options of the command BúsquedaCírculoCrítico (JSON)
  std::vector<std::pair<std::string, std::string>> figuras;  // (menu control name, .png or .svg file)
  std::optional<std::string> modo;  // the mode typed on the frequencies screen
  std::optional<std::string> historias;  // NODOS:ELEMENTOS of the seismic time histories in the JSON
  bool ayuda = false;
};

// The usage text printed with --ayuda and after a usage error.
extern const char* const kUso;

// Reads the arguments after the program name. Returns an empty text when they are well formed,
// otherwise a Spanish message that says what is wrong.
std::string LeerArgumentos(const std::vector<std::string>& argumentos, Opciones& o);

}  // namespace lomaterra::lote
