// The search of the critical circle in lomaterra-lote: options from a JSON file, the grid and the
// circles in the JSON output, a clear refusal of an option it does not know.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>

#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {
namespace {

int Buscar(const std::string& opciones, std::string& json, std::string& salida) {
  const std::string carpeta = CarpetaTemporal();
  std::ofstream(carpeta + "/opciones.json") << opciones;
  const Corrida c = Lote({RutaEjemplo("talud_homogeneo.cod"), "BúsquedaCírculoCrítico", "--busqueda",
                          carpeta + "/opciones.json", "--json", carpeta + "/s.json"});
  json = LeerArchivo(carpeta + "/s.json");
  salida = c.salida + c.errores;
  return c.estado;
}

TEST(BúsquedaLote, OpcionesEnJsonYMallaEnLaSalida) {
  std::string json, salida;
  EXPECT_EQ(Buscar(R"({"divisionesX": 4, "divisionesY": 3, "método": "Janbu", "dovelas": 30})", json, salida), 0)
      << salida;
  EXPECT_NE(json.find("\"Búsqueda\": {\"hay\": true"), std::string::npos) << json;
  EXPECT_NE(json.find("\"método\": \"Janbu\""), std::string::npos);
  // Four rows of five centres.
  const auto malla = json.find("\"mínimoPorCentro\": [[");
  ASSERT_NE(malla, std::string::npos);
  const std::string resto = json.substr(malla, json.find("]]", malla) - malla);
  EXPECT_EQ(std::count(resto.begin(), resto.end(), '['), 5);
  EXPECT_NE(salida.find("[estado] Búsqueda del círculo crítico: "), std::string::npos);

  EXPECT_EQ(Buscar(R"({"radios": 3})", json, salida), 2);
  EXPECT_NE(salida.find("clave desconocida \"radios\""), std::string::npos) << salida;
}

}  // namespace
}  // namespace lomaterra::pruebas
