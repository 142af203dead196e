// A project saved by Save as and opened again by Open: the window's name, title and flags, and
// the coordinates back in their tables and in the panel.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
#include "pantallas/comandos_archivo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

// A small soil project that passes every check but the calculation.
Proyecto ProyectoPequeño() {
  Proyecto p;
  ReiniciarProyecto(p);
  p.InformaciónDada = true;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.Ventana.TextoProyecto = "Talud de prueba";
  p.Ventana.ListaCoordenadas = {{30, 10}, {20, 10}, {0, 0}};
  GuardarPanelCoordenadas(p, 1, 1);
  p.NúmeroEstratos = 1;
  p.Ventana.ListaCoordenadas = {{30, 4}, {0, -3}};
  GuardarPanelCoordenadas(p, 4, 1);
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.Cohesión[1] = 2;
  p.Estrato.Fricción[1] = 30;
  p.Estrato.PesoUnitarioHúmedo[1] = 1.8;
  p.Estrato.PesoUnitarioSaturado[1] = 2;
  p.EstratosCaracterizados = true;
  p.NúmeroEstratosCaracterizados = 1;
  CargarPanelCoordenadas(p, 1, 1);
  p.DatosGuardados = false;
  return p;
}

TEST(ArchivoIdaYVuelta, GuardarComoYAbrir) {
  Proyecto p = ProyectoPequeño();
  const std::string ruta = pruebas::CarpetaTemporal() + "/ida.cod";
  InterfazGuionada ui("S");  // save now and calculate later
  ui.ArchivosElegidos({ruta});
  MenúArchivoGuardarComo(p, ui);
  ASSERT_TRUE(std::filesystem::exists(ruta));
  EXPECT_TRUE(p.DatosGuardados);
  EXPECT_EQ(p.Ventana.NombreArchivo, ruta);
  EXPECT_EQ(p.Ventana.Título, "ida.cod - Lomaterra");

  ArchivoNuevo(p, ui);  // saved: no question
  ASSERT_EQ(p.NúmeroPuntosTalud, 0);
  ui.Olvidar();
  ui.ArchivosElegidos({ruta});
  MenúArchivoAbrir(p, ui);
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{});
  EXPECT_EQ(p.Ventana.Título, "ida.cod - Lomaterra");
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_TRUE(p.InformaciónDada);
  EXPECT_EQ(p.Ventana.TextoProyecto, "Talud de prueba");
  ASSERT_EQ(p.NúmeroPuntosTalud, 3);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[2], 20);
  ASSERT_EQ(p.NúmeroEstratos, 1);
  EXPECT_EQ(p.PuntosEstrato[1], 2);
  EXPECT_DOUBLE_EQ(p.YEstrato(1, 2), -3);
  EXPECT_DOUBLE_EQ(p.Estrato.Fricción[1], 30);
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 3u);
  EXPECT_EQ(p.Ventana.ListaEstrato, (std::vector<std::string>{"Seleccione el estrato", "1"}));
}

TEST(ArchivoIdaYVuelta, UnGuardadoFallidoNoSePresentaComoGuardado) {
  Proyecto p = ProyectoPequeño();
  const std::string ruta = pruebas::CarpetaTemporal() + "/no/hay/carpeta/fallo.cod";
  InterfazGuionada ui("S");
  ui.ArchivosElegidos({ruta});
  MenúArchivoGuardarComo(p, ui);
  EXPECT_FALSE(std::filesystem::exists(ruta));
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_EQ(p.Ventana.NombreArchivo, "");
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  ASSERT_EQ(ui.Textos().size(), 2u);  // the calculation question, then why the file was not written
}

}  // namespace
}  // namespace lomaterra
