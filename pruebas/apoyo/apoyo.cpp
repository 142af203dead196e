#include "apoyo/apoyo.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace lomaterra::pruebas {

std::string RutaDatos(const std::string& nombre) { return std::string(LOMATERRA_DATOS) + "/" + nombre; }
std::string RutaEjemplo(const std::string& nombre) { return std::string(LOMATERRA_EJEMPLOS) + "/" + nombre; }

std::string CarpetaTemporal() {
  static std::atomic<int> cuenta{0};
  auto ruta = std::filesystem::temp_directory_path() /
              ("lomaterra-" + std::to_string(::getpid()) + "-" + std::to_string(cuenta++));
  std::filesystem::remove_all(ruta);
  std::filesystem::create_directories(ruta);
  return ruta.string();
}

std::string LeerArchivo(const std::string& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(f)), {});
}

}  // namespace lomaterra::pruebas
