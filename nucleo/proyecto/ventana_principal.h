// The main window's own state, without a toolkit: the coordinate panel's working copy, what the
// panel holds, the stratum selector, the title, the description and the status line.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lomaterra {

struct PuntoPanel {
  double X = 0, Y = 0;
};

struct EstadoVentana {
  // Coordinate panel: the working copy of one coordinate table, as entered.
  std::vector<PuntoPanel> ListaCoordenadas;
  int FilaSeleccionada = 0;  // 1-based, 0 none
  std::string TextoX, TextoY;
  int TipoPanel = 1;     // 1 surface, 2 failure surface, 3 phreatic line, 4 stratum
  int EstratoPanel = 1;  // stratum whose lower line is in the panel
  std::string EtiquetaCoordenadas = "Coordenadas Talud-Presa-Túnel";
  // Stratum selector: first row "Seleccione el estrato", then the stratum numbers.
  std::vector<std::string> ListaEstrato{"Seleccione el estrato"};
  int EstratoSeleccionado = 0;  // row of ListaEstrato, 0 the prompt

  std::string Título = "[Nuevo proyecto] - Lomaterra";
  std::string TextoProyecto;
  std::string NombreArchivo;
  std::string TextoEstado;
  bool EntradaCoordenadasAbierta = false;  // the project information has opened coordinate entry
  bool SalirDelPrograma = false;           // set by the exit command; the window closes

  // Rebuilds ListaEstrato with the numbers 1..n.
  void ReconstruirListaEstrato(int n);
};

// Captions of the panel by kind.
const char* EtiquetaPanel(int tipo);

struct Proyecto;
class Interfaz;

// The buttons of the coordinate panel. The view copies TextoX, TextoY and FilaSeleccionada into
// the state before calling them and shows the state again afterwards.
void PanelAgregar(Proyecto& p, Interfaz& ui);    // BotónAgregar
void PanelBorrar(Proyecto& p, Interfaz& ui);     // BotónBorrar
void PanelModificar(Proyecto& p, Interfaz& ui);  // BotónModificar
// A stratum chosen in ListaEstrato (row 0 is the prompt).
void PanelElegirEstrato(Proyecto& p, Interfaz& ui, int fila);
// The rows of ListaCoordenadas as the list view shows them: X and Y in "#0.00".
std::vector<std::pair<std::string, std::string>> FilasCoordenadas(const EstadoVentana& v);
// TextoProyecto edited by the user.
void CambiarTextoProyecto(Proyecto& p, const std::string& texto);

}  // namespace lomaterra
