// The summary that lomaterra-lote prints after the commands and writes as JSON: the factor of
// safety, the counts, the sums and the slice table, under the names the project gives them.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "proyecto/proyecto.h"

namespace lomaterra::lote {

struct Resumen {
  std::optional<double> FactorDeSeguridad;  // last row of the history; none before a calculation
  // The multipliers of that row (the variational method fills them; the other methods leave 0).
  std::optional<double> Multiplicador1, Multiplicador2;
  long NúmeroIteraciones = 0;
  long NúmeroBordes = 0;
  // The reference figures on a single arc (Fellenius and Bishop with both sums as moments about
  // the centre); `referencia` holds the lines shown to people, or the one that says why none.
  std::optional<double> FelleniusReferencia, BishopReferencia;
  std::vector<std::string> referencia;
  std::vector<std::pair<std::string, double>> sumas;
  std::vector<std::string> columnas;              // names of the slice columns
  std::vector<std::vector<double>> dovelas;       // one row a slice, in the order of `columnas`
};

Resumen ResumirProyecto(const Proyecto& p);

// The summary as lines for people. `falla`, when not empty, says what failed in the run; it comes
// first, before any figure, so that no number is read as the result of a run that did not end.
std::string ResumenComoTexto(const Resumen& r, const std::string& falla = "");

// What a run produced, for the JSON file.
struct InformeLote {
  std::string proyecto;
  std::vector<std::string> comandos;
  std::vector<std::string> transcripción;  // the lines as printed
  bool fallo = false;                      // an unforeseen fault ended a command
  Resumen resumen;
  std::string búsqueda;  // the JSON value of the search of the critical circle, when it ran
  std::string elementos;  // the finite-element results as a JSON object, empty when none
  std::string modos;      // frequencies, periods and mode vectors as a JSON object, empty when none
};

// The JSON text: numbers at full precision, null where there is no number.
std::string InformeComoJson(const InformeLote& informe);

// A number for JSON: the shortest form that reads back the same; null when not finite.
std::string NúmeroJson(double x);
// A JSON string literal with its escapes.
std::string TextoJson(const std::string& s);

}  // namespace lomaterra::lote
