// The words of the limit-equilibrium commands, typed once for every test that reads a transcript.
#pragma once

#include <string>
#include <vector>

#include "pantallas/interfaz_guionada.h"

namespace lomaterra::pruebas {

inline const std::string kDesembalse = "Está analizando desembalse rápido en presas de tierra?";
inline const std::string kPrimeraVez =
    "¿Es primera vez que está haciendo el cálculo o modificó las características geométricas o "
    "geomecánicas del problema o niveles freáticos?";
inline const std::string kRecalcular = "El cálculo ya está hecho, ¿Desea recalcular?";
inline const std::string kContinuarInstantáneos =
    "Ud. está calculando por el método de parámetros instantáneos. ¿Desea continuar el cálculo?";

// "Se finalizó el cálculo ..." of a method: "Fellenius", "Bishop", "Janbu" or "Leshchinsky and
// Ching-Chuan Huang".
inline std::string Final(const std::string& método) {
  return "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de " + método +
         " para suelos.";
}

inline Apunte Msj(std::string título, std::string texto) {
  return {"mensaje", std::move(título), std::move(texto), ""};
}
inline Apunte Preg(std::string texto, bool sí) {
  return {"pregunta", "", std::move(texto), sí ? "S" : "N"};
}

// The transcript as batch lines, without the status bar.
inline std::vector<std::string> Líneas(const std::vector<Apunte>& apuntes) {
  std::vector<std::string> r;
  for (const auto& a : apuntes)
    if (a.tipo != "estado") r.push_back(InterfazGuionada::Línea(a));
  return r;
}
inline std::vector<std::string> Líneas(const InterfazGuionada& ui) { return Líneas(ui.Transcripción()); }

}  // namespace lomaterra::pruebas
