// lomaterra-lote never writes over the project it reads, under its own name or another path.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "apoyo/apoyo.h"

namespace lomaterra::pruebas {
namespace {

namespace fs = std::filesystem;

int Lote(const std::string& argumentos, std::string& errores) {
  const std::string e = CarpetaTemporal() + "/errores_propio.txt";
  const int r = std::system(("'" + std::string(LOMATERRA_LOTE) + "' " + argumentos + " >/dev/null 2>'" + e + "'").c_str());
  errores = LeerArchivo(e);
  return WIFEXITED(r) ? WEXITSTATUS(r) : -1;
}

TEST(LotePropioProyecto, SalidaSobreElProyectoSeRechaza) {
  const std::string carpeta = CarpetaTemporal();
  const std::string proyecto = carpeta + "/propio.cod";
  fs::copy_file(RutaEjemplo("talud_homogeneo.cod"), proyecto, fs::copy_options::overwrite_existing);
  const std::string bytes = LeerArchivo(proyecto);
  fs::remove(carpeta + "/otro_nombre.cod");
  fs::create_symlink(proyecto, carpeta + "/otro_nombre.cod");
  const std::string casos[] = {"--json '" + proyecto + "'", "--guardar '" + carpeta + "/./propio.cod'",
                               "--guardar '" + carpeta + "/otro_nombre.cod'"};
  for (const auto& salida : casos) {
    SCOPED_TRACE(salida);
    std::string errores;
    EXPECT_EQ(Lote("'" + proyecto + "' MétodoFellenius " + salida, errores), 2);
    EXPECT_NE(errores.find("nombra el propio archivo de proyecto"), std::string::npos) << errores;
    EXPECT_EQ(LeerArchivo(proyecto), bytes);
  }
  std::string errores;
  EXPECT_EQ(Lote("'" + carpeta + "' MétodoFellenius", errores), 2);
  EXPECT_NE(errores.find("es una carpeta"), std::string::npos) << errores;
}

}  // namespace
}  // namespace lomaterra::pruebas
