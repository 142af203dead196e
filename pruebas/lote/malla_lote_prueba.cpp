// lomaterra-lote on the finite-element sample: the mesh commands by control name, and the JSON of
// the tables with the stiffness diagonal and the load vector.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "apoyo/apoyo.h"

namespace lomaterra::pruebas {
namespace {

TEST(LoteMalla, RigidezEnJson) {
  const std::string carpeta = CarpetaTemporal();
  const std::string json = carpeta + "/rigidez.json", copia = carpeta + "/refinado.cod";
  const std::string orden = std::string("'") + LOMATERRA_LOTE + "' '" + RutaEjemplo("talud_elementos.cod") +
                            "' IncrementeNúmeroDeElementos --respuestas S --rigidez-json '" + json + "' --guardar '" +
                            copia + "' > '" + carpeta + "/salida.txt' 2>&1";
  ASSERT_EQ(std::system(orden.c_str()), 0);
  const std::string texto = LeerArchivo(json);
  // 256 triangles refined to 1024 over 561 nodes: 1122 degrees of freedom on the diagonal.
  std::size_t elementos = 0;
  for (std::size_t i = texto.find("\"puntos\""); i != std::string::npos; i = texto.find("\"puntos\"", i + 1)) ++elementos;
  EXPECT_EQ(elementos, 1024u);
  const std::size_t diagonal = texto.find("\"diagonal\": [");
  ASSERT_NE(diagonal, std::string::npos);
  const std::size_t fin = texto.find(']', diagonal);
  EXPECT_EQ(std::count(texto.begin() + static_cast<long>(diagonal), texto.begin() + static_cast<long>(fin), ','), 1121);
  EXPECT_NE(texto.find("\"VectorDeCargas\""), std::string::npos);
  EXPECT_NE(LeerArchivo(carpeta + "/salida.txt").find("estimar la matriz de rigideces"), std::string::npos);
}

}  // namespace
}  // namespace lomaterra::pruebas
