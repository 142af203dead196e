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

  // Information box; título may be empty.
  virtual void Mensaje(const std::string& texto, const std::string& título = "") = 0;
  // Yes/No box: true for Yes.
  virtual bool Pregunta(const std::string& texto, const std::string& título = "") = 0;
  // Status line of the main window.
  virtual void Estado(const std::string& texto) = 0;
  // Shows the screen modally: returns when it is closed (pantalla.cerrada).
  virtual void Abrir(Pantalla& pantalla) = 0;

  // Common file dialogs. `filtro` is written in the original form
  // "Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod" and `índice` is the
  // 1-based filter selected. They return the chosen path, or nothing when cancelled.
  virtual std::optional<std::string> ElegirArchivoAbrir(const std::string& filtro, int índice) = 0;
  virtual std::optional<std::string> ElegirArchivoGuardar(const std::string& filtro, int índice) = 0;

  // The help viewer on a help file of the program.
  virtual void Ayuda(const std::string& archivo) { (void)archivo; }
  // The about box.
  virtual void AcercaDe(const std::string& título, const std::string& texto) { Mensaje(texto, título); }

  // Shows a drawing or a chart of the results in a window of its own, modally.
  virtual void MostrarFigura(const Figura& figura) { (void)figura; }
  // Puts text on the clipboard (tab-separated tables go straight into a spreadsheet).
  virtual void CopiarAlPortapapeles(const std::string& texto) { (void)texto; }
  // Prints a report: the printer dialog, then the pages.
  virtual void Imprimir(const Informe& informe) { (void)informe; }
};

// The file title of a path, as the file dialogs give it: the name without its folder.
std::string TítuloDeArchivo(const std::string& ruta);

}  // namespace lomaterra
