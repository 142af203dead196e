// lomaterra-lote never writes over the project it reads, under its own name or another path.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {
namespace {

namespace fs = std::filesystem;

TEST(LotePropioProyecto, SalidaSobreElProyectoSeRechaza) {
  const std::string carpeta = CarpetaTemporal();
  const std::string proyecto = carpeta + "/propio.cod";
  fs::copy_file(RutaEjemplo("talud_homogeneo.cod"), proyecto, fs::copy_options::overwrite_existing);
  const std::string bytes = LeerArchivo(proyecto);
  fs::remove(carpeta + "/otro_nombre.cod");
  fs::create_symlink(proyecto, carpeta + "/otro_nombre.cod");
  const std::vector<std::vector<std::string>> casos = {
      {"--json", proyecto}, {"--guardar", carpeta + "/./propio.cod"}, {"--guardar", carpeta + "/otro_nombre.cod"}};
  for (const auto& salida : casos) {
    SCOPED_TRACE(salida[1]);
    const Corrida c = Lote({proyecto, "MétodoFellenius", salida[0], salida[1]});
    EXPECT_EQ(c.estado, 2);
    EXPECT_NE(c.errores.find("nombra el propio archivo de proyecto"), std::string::npos) << c.errores;
    EXPECT_EQ(LeerArchivo(proyecto), bytes);
  }
  const Corrida c = Lote({carpeta, "MétodoFellenius"});
  EXPECT_EQ(c.estado, 2);
  EXPECT_NE(c.errores.find("es una carpeta"), std::string::npos) << c.errores;
}

}  // namespace
}  // namespace lomaterra::pruebas
