// "Definición del tipo de superficie de falla": how consecutive points of the failure surface are
// joined (straight segment, arc of circle, polynomial), one row a stretch.
#pragma once

#include <string>
#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form6 : public Pantalla {
 public:
  explicit Form6(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Agregar(Interfaz& ui);   // BotónAgregar
  void Borrar(Interfaz& ui);    // BotónBorrar: the last stretch, so that the rest stays continuous
  void Aceptar(Interfaz& ui);   // BotónAceptar
  void Cancelar(Interfaz& ui);  // BotónCancelar

 private:
  struct Tramo {
    double inicial = 0, final_ = 0;
    std::string tipo;
  };
  void Mostrar();
  Proyecto& p_;
  std::vector<Tramo> tramos_;
};

// Menu command MénuGeometríaEntrePuntosSuperficieFalla.
void MénuGeometríaEntrePuntosSuperficieFalla(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
