// The sample projects of ejemplos/: each file is what the writer gives for its project built in
// code, and each opens without a message.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "apoyo/apoyo.h"
#include "lote/ejemplos.h"
#include "proyecto/archivo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra::pruebas {
namespace {

// Writes the samples into ejemplos/ (run by hand after a change).
TEST(Ejemplos, DISABLED_GenerarEjemplos) {
  for (const Ejemplo& e : Ejemplos()) {
    Proyecto p = e.construir();
    InterfazGuionada ui;
    ASSERT_TRUE(GuardarProyecto(p, RutaEjemplo(e.archivo), ui)) << e.archivo;
  }
}

TEST(Ejemplos, CadaArchivoEsElDeSuProyecto) {
  const std::string carpeta = CarpetaTemporal();
  for (const Ejemplo& e : Ejemplos()) {
    SCOPED_TRACE(e.archivo);
    ASSERT_TRUE(std::filesystem::exists(RutaEjemplo(e.archivo)));
    Proyecto p = e.construir();
    InterfazGuionada ui;
    ASSERT_TRUE(GuardarProyecto(p, carpeta + "/" + e.archivo, ui));
    EXPECT_EQ(pruebas::LeerArchivo(carpeta + "/" + e.archivo), pruebas::LeerArchivo(RutaEjemplo(e.archivo)));

    Proyecto q;
    EXPECT_TRUE(LeerProyecto(q, RutaEjemplo(e.archivo), ui));
    EXPECT_TRUE(ui.Transcripción().empty());
    EXPECT_EQ(q.TipoDeAnálisis, "T");
    EXPECT_EQ(q.TipoDeMaterial, p.TipoDeMaterial);
    EXPECT_EQ(q.ParámetrosIniciales.MétodoDeCálculo, p.ParámetrosIniciales.MétodoDeCálculo);
    EXPECT_TRUE(q.ParámetrosInicialesDados && q.EstratosCaracterizados && q.GeometríaFallaDefinida);
    // Every failure surface starts at the crest side and ends at the toe side, inside the slope.
    ASSERT_GE(q.NúmeroPuntosFalla, 2);
    EXPECT_GT(q.CoordenadasFalla.X[1], q.CoordenadasFalla.X[q.NúmeroPuntosFalla]);
  }
}

TEST(Ejemplos, LaGrietaDelEstratificadoEmpiezaDondeLaFallaYElFreático) {
  // What the methods ask of a crack: its foot is point 1 of the failure surface and its water
  // level point 1 of the phreatic line; the thrust is half the square of the water depth.
  const Proyecto p = TaludEstratificado();
  const auto& g = p.GrietaTracción;
  EXPECT_EQ(g.AbscisaSegundoPunto, p.CoordenadasFalla.X[1]);
  EXPECT_EQ(g.OrdenadaSegundoPunto, p.CoordenadasFalla.Y[1]);
  EXPECT_EQ(g.AbscisaNF, p.CoordenadasFreático.X[1]);
  EXPECT_EQ(g.OrdenadaNF, p.CoordenadasFreático.Y[1]);
  EXPECT_DOUBLE_EQ(g.EmpujeGrieta, 1.125);
}

}  // namespace
}  // namespace lomaterra::pruebas
