// The one user-interface port: every message, question, status text, modal screen and common
// dialog of the system passes through it. No calculation writes to a console or touches a toolkit.
#pragma once

#include <optional>
#include <string>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Figura;
struct Informe;

class Interfaz {
 public:
  virtual ~Interfaz() = default;

  // Every call below keeps the floating-point flags of the calculation that made it: whatever
  // arithmetic the implementation does (a toolkit repainting while a box waits, a screen's own
  // buttons), the flags are as they were when the call returns, so the net at the end of a stage
  // sees only the calculation's arithmetic. Implementations override the protected Hacer... hooks.

  // Information box; título may be empty.
  void Mensaje(const std::string& texto, const std::string& título = "");
  // The same box with a longer explanation the user can unfold (why a file could not be read and
  // at which line). Where there is no room for it the box shows the text alone.
  void MensajeDetallado(const std::string& texto, const std::string& título, const std::string& detalle);
  // Yes/No box: true for Yes.
  bool Pregunta(const std::string& texto, const std::string& título = "");
  // Status line of the main window.
  void Estado(const std::string& texto);
  // Shows the screen modally: returns when it is closed (pantalla.cerrada).
  void Abrir(Pantalla& pantalla);

  // Common file dialogs. `filtro` is written in the original form
  // "Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod" and `índice` is the
  // 1-based filter selected. They return the chosen path, or nothing when cancelled.
  std::optional<std::string> ElegirArchivoAbrir(const std::string& filtro, int índice);
  std::optional<std::string> ElegirArchivoGuardar(const std::string& filtro, int índice);

  // The help viewer on a help file of the program.
  void Ayuda(const std::string& archivo);
  // The about box.
  void AcercaDe(const std::string& título, const std::string& texto);

  // Shows a drawing or a chart of the results in a window of its own, modally.
  void MostrarFigura(const Figura& figura);
  // Puts text on the clipboard (tab-separated tables go straight into a spreadsheet).
  void CopiarAlPortapapeles(const std::string& texto);
  // Prints a report: the printer dialog, then the pages.
  void Imprimir(const Informe& informe);

  // Progress of a long run: `fracción` from 0 to 1 and a line of text. Returns false when the
  // user pressed Cancelar; the run then stops as it would at a fault, keeping what it has.
  bool Progreso(double fracción, const std::string& texto);

 protected:
  virtual void HacerMensaje(const std::string& texto, const std::string& título) = 0;
  virtual void HacerMensajeDetallado(const std::string& texto, const std::string& título,
                                     const std::string& detalle) {
    (void)detalle;
    HacerMensaje(texto, título);
  }
  virtual bool HacerPregunta(const std::string& texto, const std::string& título) = 0;
  virtual void HacerEstado(const std::string& texto) = 0;
  virtual void HacerAbrir(Pantalla& pantalla) = 0;
  virtual std::optional<std::string> HacerElegirArchivoAbrir(const std::string& filtro, int índice) = 0;
  virtual std::optional<std::string> HacerElegirArchivoGuardar(const std::string& filtro, int índice) = 0;
  virtual void HacerAyuda(const std::string& archivo) { (void)archivo; }
  virtual void HacerAcercaDe(const std::string& título, const std::string& texto) { HacerMensaje(texto, título); }
  virtual void HacerMostrarFigura(const Figura& figura) { (void)figura; }
  virtual void HacerCopiarAlPortapapeles(const std::string& texto) { (void)texto; }
  virtual void HacerImprimir(const Informe& informe) { (void)informe; }
  virtual bool HacerProgreso(double fracción, const std::string& texto) {
    (void)fracción;
    (void)texto;
    return true;
  }
};

// The file title of a path, as the file dialogs give it: the name without its folder.
std::string TítuloDeArchivo(const std::string& ruta);

}  // namespace lomaterra
