// Gates and questions that every limit-equilibrium command puts in the same words.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Analysis kind, initial parameters and the question on rapid drawdown. False ends the command.
bool PuertasIniciales(Proyecto& p, Interfaz& ui);
// The analysis kind alone: "T" passes, empty or "F" gets its message.
bool PuertaTipoDeAnálisis(Proyecto& p, Interfaz& ui);
// "El cálculo ya está hecho, ¿Desea recalcular?" when CálculoHecho; false ends the command.
bool PuertaRecalcular(Proyecto& p, Interfaz& ui);
// The crack must start at point 1 of the failure surface and its water at point 1 of the
// phreatic line. False ends the command.
bool PuertaGrieta(Proyecto& p, Interfaz& ui);
// Runs the six stages when a flag is false, or when all are set and the user answers Yes to the
// question on a first calculation or a changed geometry; `sinPregunta` keeps the slices as they
// are when all flags are set.
void PrepararDovelas(Proyecto& p, Interfaz& ui, bool sinPregunta = false);

extern const char* const kPreguntaPrimeraVez;
extern const char* const kPreguntaDesembalse;

}  // namespace lomaterra
