// Placeholder until the main window's commands land.
#include "pantallas/ventana_principal.h"

#include "proyecto/proyecto.h"

namespace lomaterra {

void PanelAgregar(Proyecto&, Interfaz&) {}
void PanelBorrar(Proyecto&, Interfaz&) {}
void PanelModificar(Proyecto&, Interfaz&) {}
void PanelElegirEstrato(Proyecto&, Interfaz&, int) {}
void CambiarTextoProyecto(Proyecto& p, const std::string& texto) {
  if (p.Ventana.TextoProyecto != texto) p.DatosGuardados = false;
  p.Ventana.TextoProyecto = texto;
}

}  // namespace lomaterra
