// lomaterra-lote on the finite-element sample: the mesh commands by control name, and the JSON of
// the tables with the stiffness diagonal and the load vector.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {
namespace {

TEST(LoteMalla, RigidezEnJson) {
  const std::string json = CarpetaTemporal() + "/rigidez.json";
  ASSERT_EQ(Lote({RutaEjemplo("talud_elementos.cod"), "IncrementeNúmeroDeElementos", "--respuestas", "S",
                  "--rigidez-json", json}).estado, 0);
  // 256 triangles refined to 1024 over 33 × 17 nodes: 1122 degrees of freedom on the diagonal.
  const std::string texto = LeerArchivo(json);
  // One object a node, element and restriction (the 33 rows carried over), one for the whole and
  // one for the stiffness.
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '{'), 561 + 1024 + 33 + 2);
  const std::size_t diagonal = texto.find("\"diagonal\": [");
  ASSERT_NE(diagonal, std::string::npos);
  EXPECT_EQ(std::count(texto.begin() + static_cast<long>(diagonal), texto.begin() + static_cast<long>(texto.find(']', diagonal)), ','), 1121);
}

}  // namespace
}  // namespace lomaterra::pruebas
