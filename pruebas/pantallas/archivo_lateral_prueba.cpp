// The side file of slope, strata and phreatic line: its two questions, its fixed folder, a full
// read, a count of 0, a missing file and a bad line.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
#include "pantallas/archivo_lateral.h"
#include "pantallas/comandos_coordenadas.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

const std::string kPreguntaCarpeta =
    "Existe una carpeta ya creada en c:\\ con el nombre CarpetaTaludEstratoNF?. Esa carpeta "
    "contiene un archivo con nombre 'taludestratosNF.cod', con el total de las coordenadas que "
    "definen la geometría de la superficie del talud, la geometría de los estratos y del nivel "
    "freático.?";
const std::string kPreguntaYaExisten =
    "Ya existen coordenadas de la superficie del talud y número de estratos. Desea cargar la "
    "geometría del talud, de los estratos y nivel freático, a partir de un archivo ya creado.?";

class ArchivoLateral : public ::testing::Test {
 protected:
  void SetUp() override {
    base = pruebas::CarpetaTemporal();
    ::setenv("LOMATERRA_CARPETA_BASE", base.c_str(), 1);
    ReiniciarProyecto(p);
    p.InformaciónDada = true;
  }
  void TearDown() override { ::unsetenv("LOMATERRA_CARPETA_BASE"); }
  // Writes the side file in its folder, lines ended by CR LF.
  void Escribir(const std::vector<std::string>& líneas) {
    std::filesystem::create_directories(base + "/CarpetaTaludEstratoNF");
    std::ofstream f(base + "/CarpetaTaludEstratoNF/taludestratosNF.cod", std::ios::binary);
    for (const auto& l : líneas) f << l << "\r\n";
  }
  std::string base;
  Proyecto p;
  InterfazGuionada ui;
};

TEST_F(ArchivoLateral, LaCarpetaCuelgaDeLaBaseDada) {
  EXPECT_EQ(RutaArchivoTaludEstratosNF(), base + "/CarpetaTaludEstratoNF/taludestratosNF.cod");
  ::unsetenv("LOMATERRA_CARPETA_BASE");
  const char* casa = std::getenv("HOME");
  if (casa != nullptr && *casa != '\0') {
    EXPECT_EQ(RutaArchivoTaludEstratosNF(),
              std::string(casa) + "/CarpetaTaludEstratoNF/taludestratosNF.cod");
  }
}

TEST_F(ArchivoLateral, LecturaCompletaConUnNivelFreáticoDeCeroPuntos) {
  Escribir(
      {"3", "40,10", "20,10", "0,0", "0", "2", "2", "40,6", "0,-2", "3", "40,2.5", "20,1", "0,-5"});
  p.Ventana.TipoPanel = 2;  // the panel was elsewhere
  ui.Responder("S");
  MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(p, ui);
  // An empty project: only the question of the folder.
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].texto, kPreguntaCarpeta);
  ASSERT_EQ(p.NúmeroPuntosTalud, 3);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[2], 20);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.Y[3], 0);
  EXPECT_EQ(p.NúmeroPuntosFreático, 0);
  ASSERT_EQ(p.NúmeroEstratos, 2);
  EXPECT_EQ(p.PuntosEstrato[1], 2);
  EXPECT_EQ(p.PuntosEstrato[2], 3);
  EXPECT_DOUBLE_EQ(p.YEstrato(1, 2), -2);
  EXPECT_DOUBLE_EQ(p.YEstrato(2, 1), 2.5);
  EXPECT_DOUBLE_EQ(p.XEstrato(2, 3), 0);
  EXPECT_EQ(p.Ventana.ListaEstrato, (std::vector<std::string>{"Seleccione el estrato", "1", "2"}));
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 3u);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(ArchivoLateral, ConTaludYaDadoPreguntaPrimero) {
  Escribir({"2", "9,1", "0,0", "1", "9,0.5", "0"});
  p.Ventana.ListaCoordenadas = {{50, 5}, {30, 1}};  // the surface, still only in the panel
  ui.Responder("N");
  MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(p, ui);
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{kPreguntaYaExisten});
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[1], 50);  // stored from the panel, not read

  ui.Olvidar();
  ui.Responder("SN");  // yes, load; no, there is no folder
  MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(p, ui);
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{kPreguntaYaExisten, kPreguntaCarpeta}));
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[1], 50);

  ui.Olvidar();
  ui.Responder("SS");
  MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(p, ui);
  EXPECT_EQ(ui.Textos().size(), 2u);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[1], 9);
  EXPECT_EQ(p.NúmeroPuntosFreático, 1);
  EXPECT_EQ(p.NúmeroEstratos, 0);
}

TEST_F(ArchivoLateral, SinArchivoNadaCambia) {
  p.Ventana.ListaCoordenadas = {{50, 5}, {30, 1}};
  ui.Responder("SS");
  MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(p, ui);
  const std::string ruta = base + "/CarpetaTaludEstratoNF/taludestratosNF.cod";
  ASSERT_EQ(ui.Transcripción().size(), 3u);
  EXPECT_EQ(ui.Transcripción()[2].texto,
            "No se encontró el archivo " + ruta + ". Las coordenadas no se han cambiado.");
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[2], 30);
}

TEST_F(ArchivoLateral, UnaLíneaMalaTerminaLaLecturaYConservaLoLeído) {
  Escribir({"2", "40,10", "0,0", "3", "40,8", "veinte,7", "0,6", "1", "2", "40,1", "0,0"});
  ui.Responder("S");
  MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 2u);
  const std::string& texto = ui.Transcripción()[1].texto;
  EXPECT_EQ(texto.rfind("Error leyendo el archivo " + base, 0), 0u) << texto;
  EXPECT_NE(texto.find("en las coordenadas del nivel freático"), std::string::npos) << texto;
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);
  EXPECT_EQ(p.NúmeroPuntosFreático, 1);  // the one full record before the bad line
  EXPECT_DOUBLE_EQ(p.CoordenadasFreático.Y[1], 8);
  EXPECT_EQ(p.NúmeroEstratos, 0);
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 2u);
}

TEST_F(ArchivoLateral, ArchivoCortoYCuentaNegativa) {
  struct Caso {
    std::vector<std::string> líneas;
    Entero talud, estratos, puntosÚltimo;
  };
  const Caso casos[] = {
      {{"1", "5,5", "0", "2", "1", "5,1"}, 1, 1, 1},         // ends before stratum 2's count
      {{"1", "5,5", "0", "1", "3", "5,1", "4,0"}, 1, 1, 2},  // ends inside stratum 1
      {{"-2", "5,5"}, 0, 0, 0},
  };
  for (const Caso& c : casos) {
    Proyecto q;
    ReiniciarProyecto(q);
    Escribir(c.líneas);
    const LecturaLateral r = LeerArchivoTaludEstratosNF(q, RutaArchivoTaludEstratosNF());
    EXPECT_TRUE(r.abierto);
    EXPECT_FALSE(r.error.empty());
    EXPECT_EQ(q.NúmeroPuntosTalud, c.talud);
    EXPECT_EQ(q.NúmeroEstratos, c.estratos);
    EXPECT_EQ(q.PuntosEstrato.Leer(q.NúmeroEstratos), c.puntosÚltimo);
  }
}

}  // namespace
}  // namespace lomaterra
