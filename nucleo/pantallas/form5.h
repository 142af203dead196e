// "Características de los estratos en suelos": one row a stratum with its cohesion, friction,
// unit weights, kind (fill or natural), pore-pressure parameter, consolidation and time of
// construction.
#pragma once

#include <string>
#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form5 : public Pantalla {
 public:
  explicit Form5(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);  // a row chosen in ListaEstratos: its values into the boxes
  void Modificar(Interfaz& ui);    // BotónModificar: the boxes into the chosen row
  void Aceptar(Interfaz& ui);      // BotónAceptar
  void Cancelar(Interfaz& ui);     // BotónCancelar

 private:
  // The values of one row as they were entered; the list shows them formatted.
  struct Fila {
    bool completa = false;
    double cohesión = 0, fricción = 0, húmedo = 0, saturado = 0;
    std::string tipo;
    double presión = 0, cv = 0, tiempo = 0;
  };
  void Mostrar();
  Proyecto& p_;
  std::vector<Fila> filas_;
};

extern const char* const kMensajeNoHayEstratos;

// Menu command CaracterísticasGeomecánicasSuelos.
void CaracterísticasGeomecánicasSuelos(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
