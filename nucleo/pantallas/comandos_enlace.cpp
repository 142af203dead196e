// Binds each menu entry to the command that the core runs for it. One line a command.
#include "pantallas/comandos_archivo.h"
#include "pantallas/comandos_coordenadas.h"
#include "proyecto/comandos.h"

namespace lomaterra {

void EnlazarComandos(std::map<std::string, Acción>& a) {
  a["ArchivoNuevo"] = ArchivoNuevo;
  a["MenúArchivoAbrir"] = MenúArchivoAbrir;
  a["MenúArchivoGuardar"] = MenúArchivoGuardar;
  a["MenúArchivoGuardarComo"] = MenúArchivoGuardarComo;
  a["MenúArchivoSalir"] = MenúArchivoSalir;
  a["MenúAyudaContenido"] = MenúAyudaContenido;
  a["MenúAyudaAcercaDe"] = MenúAyudaAcercaDe;
  a["MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo"] = MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo;
  a["MenúCoordenadasTalud"] = MenúCoordenadasTalud;
  a["MenúCoordenadasFalla"] = MenúCoordenadasFalla;
  a["MenúCoordenadasFreático"] = MenúCoordenadasFreático;
  a["MenúCoordenadasEstratos"] = MenúCoordenadasEstratos;
  a["MenúInsertarEstrato"] = MenúInsertarEstrato;
  a["MenúEliminarEstrato"] = MenúEliminarEstrato;
  a["MenúEliminarNivelFreático"] = MenúEliminarNivelFreático;
}

}  // namespace lomaterra
