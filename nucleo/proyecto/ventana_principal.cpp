// The buttons of the coordinate panel and the stratum selector of the main window.
#include "proyecto/ventana_principal.h"

#include <cstddef>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

// Row (0-based) before which a new point stands so that X keeps descending. Among equal
// abscissas the order of Y rises when X is 0 or above and falls below 0; a point equal in X and Y
// to others goes after all of them.
std::size_t LugarDelPunto(const std::vector<PuntoPanel>& lista, const PuntoPanel& nuevo) {
  for (std::size_t i = 0; i < lista.size(); ++i) {
    const PuntoPanel& fila = lista[i];
    if (fila.X < nuevo.X) return i;
    if (fila.X == nuevo.X) {
      if (nuevo.X >= 0 && fila.Y > nuevo.Y) return i;
      if (nuevo.X < 0 && fila.Y < nuevo.Y) return i;
    }
  }
  return lista.size();
}

}  // namespace

void PanelAgregar(Proyecto& p, Interfaz& ui) {
  EstadoVentana& v = p.Ventana;
  if (!EsNúmero(v.TextoX)) {
    ui.Mensaje("Debe introducir un número en x");
    return;
  }
  if (!EsNúmero(v.TextoY)) {
    ui.Mensaje("Debe introducir un número en y");
    return;
  }
  const PuntoPanel nuevo{ANúmero(v.TextoX), ANúmero(v.TextoY)};
  const std::size_t lugar = LugarDelPunto(v.ListaCoordenadas, nuevo);
  v.ListaCoordenadas.insert(v.ListaCoordenadas.begin() + static_cast<std::ptrdiff_t>(lugar), nuevo);
  v.FilaSeleccionada = 0;
  v.TextoX.clear();
  v.TextoY.clear();
  p.DatosGuardados = false;
  p.ListaGuardada = false;
}

void PanelBorrar(Proyecto& p, Interfaz&) {
  EstadoVentana& v = p.Ventana;
  const int n = static_cast<int>(v.ListaCoordenadas.size());
  if (v.FilaSeleccionada < 1 || v.FilaSeleccionada > n) return;
  v.ListaCoordenadas.erase(v.ListaCoordenadas.begin() + (v.FilaSeleccionada - 1));
  v.FilaSeleccionada = 0;
  p.DatosGuardados = false;
}

void PanelModificar(Proyecto& p, Interfaz& ui) {
  EstadoVentana& v = p.Ventana;
  const int n = static_cast<int>(v.ListaCoordenadas.size());
  if (v.FilaSeleccionada < 1 || v.FilaSeleccionada > n) {
    ui.Mensaje("Ud no ha seleccionado ninguna fila para modificar valores ya agregados.");
    return;
  }
  // The row leaves the list and waits in the boxes, at full precision, for a new Agregar.
  const PuntoPanel punto = v.ListaCoordenadas[static_cast<std::size_t>(v.FilaSeleccionada - 1)];
  v.ListaCoordenadas.erase(v.ListaCoordenadas.begin() + (v.FilaSeleccionada - 1));
  v.FilaSeleccionada = 0;
  v.TextoX = NúmeroATexto(punto.X);
  v.TextoY = NúmeroATexto(punto.Y);
  p.DatosGuardados = false;
}

void PanelElegirEstrato(Proyecto& p, Interfaz&, int fila) {
  EstadoVentana& v = p.Ventana;
  if (fila < 1 || fila > p.NúmeroEstratos) {
    v.EstratoSeleccionado = 0;
    return;
  }
  // The table in work is written back before the chosen stratum comes into the panel.
  GuardarPanelCoordenadas(p, v.TipoPanel, v.EstratoPanel);
  CargarPanelCoordenadas(p, 4, fila);
  v.EstratoSeleccionado = fila;
}

std::vector<std::pair<std::string, std::string>> FilasCoordenadas(const EstadoVentana& v) {
  std::vector<std::pair<std::string, std::string>> filas;
  filas.reserve(v.ListaCoordenadas.size());
  for (const PuntoPanel& q : v.ListaCoordenadas)
    filas.emplace_back(Formato(q.X, "#0.00"), Formato(q.Y, "#0.00"));
  return filas;
}

void CambiarTextoProyecto(Proyecto& p, const std::string& texto) {
  if (p.Ventana.TextoProyecto != texto) p.DatosGuardados = false;
  p.Ventana.TextoProyecto = texto;
}

}  // namespace lomaterra
