// "Información del proyecto": the five strings of the project, the kind of analysis ("T" limit
// equilibrium, "F" finite elements), and the question when the kind changes.
#pragma once

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form15 : public Pantalla {
 public:
  explicit Form15(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Aceptar(Interfaz& ui);   // BotónAceptar
  void Cancelar(Interfaz& ui);  // BotónCancelar

 private:
  Proyecto& p_;
};

// The question asked when a project with a former kind of analysis is switched to the other.
extern const char* const kPreguntaCambioAElementosFinitos;  // from "T" to "F"
extern const char* const kPreguntaCambioAEquilibrioLímite;  // from "F" to "T"
extern const char* const kMensajeLetraDeAnálisis;

// Menu command MenúInformación.
void MenúInformación(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
