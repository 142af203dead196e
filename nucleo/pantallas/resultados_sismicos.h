// What the engineer sees after a seismic response run: the screen "Resultados del cálculo
// sísmico" (node and element results of one chosen step of the record), the screen of the charts
// of a node, an element and a step, the chart of the estimated accelerations of the chosen node
// and the printed report.
#pragma once

#include <map>
#include <string>

#include "proyecto/comandos.h"
#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

void ResultadosDeEsfuerzosDesplazamientosPorSísmo(Proyecto& p, Interfaz& ui);
void GraficaDeRegistroSísmicoEstimadoDeAceleraciones(Proyecto& p, Interfaz& ui);
void ImprimirResultadosAnálisisSísmico(Proyecto& p, Interfaz& ui);
void EnlazarComandosResultadosSísmicos(std::map<std::string, Acción>& a);

// The headings over the two lists of the result screen.
extern const char* const kEncabezadoNodosSísmicos;
extern const char* const kEncabezadoElementosSísmicos;

// False, after its message, when there is no seismic run to show.
bool HayResultadosSísmicos(const Proyecto& p, Interfaz& ui);
// True when the node is restricted in both directions (no displacement at all).
bool NodoSinDesplazamiento(const Proyecto& p, long nodo);

// The screen "Resultados del cálculo sísmico". The chosen step is `RegistroSeleccionado`; the
// node clicked in the list stays chosen for the acceleration chart while the program runs.
class PantallaResultadosSísmicos : public Pantalla {
 public:
  explicit PantallaResultadosSísmicos(Proyecto& p);
  void Activar(Interfaz& ui) override;
  // The row of the node list clicked (1-based), as the view reports it.
  void ClicEnNodo(long fila, Interfaz& ui);
  void ClicEnElemento(long fila);
  // The heading shown over the named list.
  std::string Encabezado(const std::string& lista) const;

 private:
  void Llenar(long paso);
  Proyecto& p_;
};

// The charts of one node, one element and one step, from the result screen's choice.
class PantallaGráficasSísmicas : public Pantalla {
 public:
  explicit PantallaGráficasSísmicas(Proyecto& p);
  void Activar(Interfaz& ui) override;

 private:
  bool LeerEntero(const std::string& campo, long& valor, Interfaz& ui);
  bool LeerNodo(long& n, Interfaz& ui);
  bool LeerElemento(long& e, Interfaz& ui);
  bool LeerPaso(long& k, Interfaz& ui);
  Proyecto& p_;
};

// The node chosen with a click on the result screen, kept while the program runs; 0 for none.
long& NodoElegidoSísmico();
long& ElementoElegidoSísmico();

}  // namespace lomaterra
