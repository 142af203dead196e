// The commands of the menus "Archivo" and "Ayuda" of the main window: New, Open, Save, Save as,
// Exit, the help file and the about box.
#pragma once

#include <string>

namespace lomaterra {

struct Proyecto;
class Interfaz;

void ArchivoNuevo(Proyecto& p, Interfaz& ui);
void MenúArchivoAbrir(Proyecto& p, Interfaz& ui);
void MenúArchivoGuardar(Proyecto& p, Interfaz& ui);
void MenúArchivoGuardarComo(Proyecto& p, Interfaz& ui);
void MenúArchivoSalir(Proyecto& p, Interfaz& ui);
void MenúAyudaContenido(Proyecto& p, Interfaz& ui);
void MenúAyudaAcercaDe(Proyecto& p, Interfaz& ui);

// Opens the project at `ruta` as Open does after its dialog: the desktop program calls it for a
// file named on its command line.
void AbrirArchivoDeProyecto(Proyecto& p, Interfaz& ui, const std::string& ruta);

// The checks that come before a save, in their order. False when one of them ends the command.
bool ComprobacionesAntesDeGuardar(Proyecto& p, Interfaz& ui);

// The filter of the file dialogs of a project; the second filter is the one selected.
inline constexpr const char* kFiltroProyectos =
    "Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod";
inline constexpr const char* kNombrePrograma = "Lomaterra";
inline constexpr const char* kVersiónPrograma = "0.1.0";

}  // namespace lomaterra
