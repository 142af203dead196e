// Nothing the user has is lost through the project file: every state a method leaves reads back
// byte for byte, a damaged file changes nothing, a save keeps what the file was.
#include <gtest/gtest.h>

#include <cfloat>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "pantallas/archivo_lateral.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "proyecto/secuencial.h"

namespace lomaterra {
namespace {

namespace fs = std::filesystem;

struct NadaSePierde : ::testing::Test {
  std::string carpeta = pruebas::CarpetaTemporal();
  std::string ruta = carpeta + "/proyecto.cod";
  InterfazGuionada ui;

  static void Escribir(const std::string& r, const std::string& bytes) { std::ofstream(r, std::ios::binary) << bytes; }
  Proyecto Ejemplo(const std::string& nombre) {
    Proyecto p;
    EXPECT_TRUE(LeerProyecto(p, nombre.find('/') == std::string::npos ? pruebas::RutaEjemplo(nombre) : nombre, ui));
    return p;
  }
  // Save, open, save: the two files must be the same bytes.
  void IdaYVuelta(Proyecto& p, const std::string& qué) {
    SCOPED_TRACE(qué);
    ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
    const std::string primero = pruebas::LeerArchivo(ruta);
    Proyecto q = Ejemplo(ruta);
    ASSERT_TRUE(GuardarProyecto(q, ruta, ui));
    EXPECT_EQ(pruebas::LeerArchivo(ruta), primero);
  }
};

TEST_F(NadaSePierde, GuardarAbrirGuardarTrasCadaMétodo) {
  std::vector<std::string> archivos;
  for (const auto& e : fs::directory_iterator(LOMATERRA_EJEMPLOS)) archivos.push_back(e.path().string());
  for (const auto& e : fs::directory_iterator(LOMATERRA_DATOS))
    if (e.path().extension() == ".cod") archivos.push_back(e.path().string());
  using Método = void (*)(Proyecto&, Interfaz&);
  const Método métodos[] = {ProcesoIterativoEnSuelos, MétodoBishop, MétodoFellenius, MétodoJanbu};
  for (const auto& a : archivos) {
    for (int m = 1; m <= 5; ++m) {
      Proyecto p = Ejemplo(a);
      p.ParámetrosIniciales.MétodoDeCálculo = static_cast<Entero>(m == 5 ? 4 : m);
      p.CálculoHecho = false;
      // Method 5 is Janbu stopped after one pass: no convergence, slices and heights in memory.
      if (m == 5) MétodoJanbuConLímite(p, ui, 1);
      else EjecutarComando(métodos[m - 1], p, ui);
      IdaYVuelta(p, a + " método " + std::to_string(m));
    }
  }
}

TEST_F(NadaSePierde, NúmeroExtremoYTextosQueNoCaben) {
  Proyecto p = Ejemplo("talud_homogeneo.cod");
  p.Anclajes.FSConAnclaje = DBL_MAX;  // 15 digits rounded up would read back past it
  p.Anclajes.DiámetroAnclajes = -DBL_MAX;
  IdaYVuelta(p, "DBL_MAX");
  EXPECT_TRUE(EsNúmero(RealParaArchivo(DBL_MAX)));

  p.InformaciónProyecto.Empresa = "Ingeniería π";
  ui.Olvidar();
  const auto antes = fs::last_write_time(ruta);
  EXPECT_FALSE(GuardarProyecto(p, ruta, ui));  // the question takes the default No
  ASSERT_EQ(ui.Textos().size(), 1u);
  EXPECT_NE(ui.Textos()[0].find("«Empresa»: π"), std::string::npos);
  EXPECT_EQ(fs::last_write_time(ruta), antes);

  // One stray Windows-1252 byte leaves the UTF-8 of the other lines as it is.
  EXPECT_EQ(DecodificarTexto("\"Peñón\"\r\n\"a\x96z\"\r\n"), "\"Peñón\"\r\n\"a–z\"\r\n");
}

TEST_F(NadaSePierde, ArchivoDañadoNoCambiaNada) {
  Proyecto bueno = Ejemplo("talud_homogeneo.cod");
  ASSERT_TRUE(GuardarProyecto(bueno, ruta, ui));
  const std::string bytes = pruebas::LeerArchivo(ruta);
  const auto t = bytes.find("\"T\"");
  std::string insertado = bytes;
  for (int i = 0; i < 50; ++i) insertado.insert(bytes.find("\r\n", bytes.size() / 2) + 2, "0\r\n");
  struct Caso { const char* qué; std::string contenido; std::string detalle; };
  const Caso casos[] = {
      {"tipo desconocido", bytes.substr(0, t) + "\"X\"" + bytes.substr(t + 3), "Línea 7"},
      {"líneas insertadas", insertado, "Línea"},
      {"datos sobrantes", bytes + "1,2\r\n", "sobran datos"},
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.qué);
    Escribir(carpeta + "/dañado.cod", c.contenido);
    Proyecto p = bueno;
    p.InformaciónProyecto.Empresa = "abierta";
    ui.Olvidar();
    EXPECT_FALSE(LeerProyecto(p, carpeta + "/dañado.cod", ui));
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Error leyendo archivo"});
    EXPECT_NE(ui.ÚltimoDetalle().find(c.detalle), std::string::npos) << ui.ÚltimoDetalle();
    EXPECT_EQ(p.InformaciónProyecto.Empresa, "abierta");
  }
  Proyecto p;
  EXPECT_FALSE(LeerProyecto(p, carpeta, ui));
  EXPECT_NE(ui.ÚltimoDetalle().find("es una carpeta"), std::string::npos);
}

TEST_F(NadaSePierde, GuardarConservaPermisosEnlaceYArchivosAjenos) {
  Proyecto p = Ejemplo("talud_homogeneo.cod");
  const std::string destino = carpeta + "/destino.cod", enlace = carpeta + "/enlace.cod";
  Escribir(destino, "viejo");
  Escribir(destino + ".tmp~", "de otro");
  fs::permissions(destino, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  fs::remove(enlace);
  fs::create_symlink("destino.cod", enlace);
  ASSERT_TRUE(GuardarProyecto(p, enlace, ui));
  EXPECT_TRUE(fs::is_symlink(enlace));
  EXPECT_NE(pruebas::LeerArchivo(destino), "viejo");
  EXPECT_EQ(fs::status(destino).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  EXPECT_EQ(pruebas::LeerArchivo(destino + ".tmp~"), "de otro");
}

TEST_F(NadaSePierde, TramoConPuntoInexistenteTerminaEnseguida) {
  for (double punto : {1e15, 1e300, -3.0}) {
    Proyecto p = Ejemplo("falla_polinomica.cod");
    p.TramoFalla.PuntoFinal[1] = punto;  // the "P" stretch
    ui.Olvidar();
    ASSERT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Fallo);
    EXPECT_NE(ui.Textos().back().find("no es un punto de la superficie"), std::string::npos);
  }
}

TEST_F(NadaSePierde, ArchivoLateralNoDimensionaLoQueNoTiene) {
  // 24 bytes that declare 32,767 strata of 32,767 points each.
  const std::string r = carpeta + "/lateral.cod";
  Escribir(r, "0\r\n0\r\n32767\r\n32767\r\n1,1\r\n");
  Proyecto p;
  const LecturaLateral l = LeerArchivoTaludEstratosNF(p, r);
  EXPECT_FALSE(l.error.empty());
  EXPECT_LE(p.XEstrato.Filas() * p.XEstrato.Columnas(), 100);
}

}  // namespace
}  // namespace lomaterra
