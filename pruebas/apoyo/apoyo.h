// Shared helpers of the tests: projects built in code and paths of the test data.
#pragma once

#include <string>

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

std::string RutaDatos(const std::string& nombre);
std::string RutaEjemplo(const std::string& nombre);
// A fresh temporary folder for one test.
std::string CarpetaTemporal();
// The whole file as bytes; empty when it cannot be read.
std::string LeerArchivo(const std::string& ruta);

}  // namespace lomaterra::pruebas
