// Body "F": projects of elements with every block of the body filled, written by this program
// (pruebas/datos/proyecto/elementos_*.cod: soil with a stress result of three steps, soil with a
// seismic run and its matrices, rock), read and saved again give the same bytes.
#include <gtest/gtest.h>

#include "apoyo/apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"

namespace lomaterra {
namespace {

TEST(CuerpoElementos, IdaYVueltaConTodasLasTablas) {
  const std::string guardado = pruebas::CarpetaTemporal() + "/uno.cod";
  for (const std::string nombre : {"suelo", "sismico", "roca"}) {
    SCOPED_TRACE(nombre);
    const std::string ruta = pruebas::RutaDatos("proyecto/elementos_" + nombre + ".cod");
    InterfazGuionada ui;
    Proyecto p;
    ASSERT_TRUE(LeerProyecto(p, ruta, ui));
    EXPECT_TRUE(ui.Textos().empty());
    const MallaElementos& m = p.Malla;
    EXPECT_TRUE(m.NodosDefinidos && m.ElementosDefinidos && m.MaterialesAsignados);
    EXPECT_TRUE(m.NodosRestringidosDefinidos && m.CargasUniformesDefinidas);
    EXPECT_TRUE(m.CaracterísticasElásticasDadas && m.DesplazamientosHechos);
    // Only the first and the last step of a stress result are written: three steps read back.
    // The principal stresses are derived: sigma x = sigma y = -20, tau = 5 on element 1, step 1
    // give centre -20, radius 5.
    if (nombre != "sismico") {
      EXPECT_EQ(m.NúmeroDeIteración, 3);
      EXPECT_DOUBLE_EQ(m.EsfuerzoPrincipalMayor(1, 1), -15);
      EXPECT_DOUBLE_EQ(m.EsfuerzoPrincipalMenor(1, 1), -25);
    }
    ASSERT_TRUE(GuardarProyecto(p, guardado, ui));
    EXPECT_EQ(pruebas::LeerArchivo(guardado), pruebas::LeerArchivo(ruta));
  }
}

}  // namespace
}  // namespace lomaterra
