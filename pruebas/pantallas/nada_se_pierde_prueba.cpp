// Nothing the user has is lost through the project file: every state a method leaves reads back
// byte for byte, a damaged file changes nothing, a save keeps what the file was. And the
// floating-point net sees only the calculation's arithmetic: a port whose boxes, screens and status
// line raise division by zero, invalid and overflow (a toolkit repainting while a box waits)
// leaves every method on every sample as the scripted port does, in a project that earlier samples
// went through in the same run as in a fresh one.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cfloat>
#include <filesystem>
#include <fstream>

#include "apoyo/apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "pantallas/archivo_lateral.h"
#include "pantallas/comandos_archivo.h"
#include "pantallas/comun_pantallas.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "proyecto/compat.h"
#include "proyecto/secuencial.h"

namespace lomaterra {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Muestras() {
  std::vector<std::string> r;
  for (const auto& e : fs::directory_iterator(LOMATERRA_EJEMPLOS)) r.push_back(e.path());
  std::sort(r.begin(), r.end());
  return r;
}

struct NadaSePierde : ::testing::Test {
  std::string carpeta = pruebas::CarpetaTemporal();
  std::string ruta = carpeta + "/proyecto.cod";
  InterfazGuionada ui;

  static void Escribir(const std::string& r, const std::string& bytes) {
    std::ofstream(r, std::ios::binary) << bytes;
  }
  Proyecto Ejemplo(const std::string& nombre) {
    Proyecto p;
    const bool ruta = nombre.find('/') != std::string::npos;
    EXPECT_TRUE(LeerProyecto(p, ruta ? nombre : pruebas::RutaEjemplo(nombre), ui));
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
  std::vector<std::string> archivos = Muestras();
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
  // The bytes read and what the explanation names; none at all reads the folder itself.
  const std::pair<std::string, std::string> casos[] = {
      {bytes.substr(0, t) + "\"X\"" + bytes.substr(t + 3), "Línea 7"},  // unknown kind
      {insertado, "Línea"},
      {bytes + "1,2\r\n", "sobran datos"},
      {"", "es una carpeta"},
  };
  for (const auto& [contenido, detalle] : casos) {
    SCOPED_TRACE(detalle);
    const bool carpetaMisma = contenido.empty();
    if (!carpetaMisma) Escribir(carpeta + "/dañado.cod", contenido);
    Proyecto p = bueno;
    p.InformaciónProyecto.Empresa = "abierta";
    ui.Olvidar();
    EXPECT_FALSE(LeerProyecto(p, carpetaMisma ? carpeta : carpeta + "/dañado.cod", ui));
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Error leyendo archivo"});
    EXPECT_NE(ui.ÚltimoDetalle().find(detalle), std::string::npos) << ui.ÚltimoDetalle();
    EXPECT_EQ(p.InformaciónProyecto.Empresa, "abierta");
  }
}

TEST_F(NadaSePierde, GuardarConservaPermisosEnlaceYArchivosAjenos) {
  Proyecto p = Ejemplo("talud_homogeneo.cod");
  const std::string destino = carpeta + "/destino.cod", enlace = carpeta + "/enlace.cod";
  const auto permisos = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  Escribir(destino, "viejo");
  Escribir(destino + ".tmp~", "de otro");
  fs::permissions(destino, permisos);
  fs::remove(enlace);
  fs::create_symlink("destino.cod", enlace);
  ASSERT_TRUE(GuardarProyecto(p, enlace, ui));
  EXPECT_TRUE(fs::is_symlink(enlace));
  EXPECT_NE(pruebas::LeerArchivo(destino), "viejo");
  EXPECT_EQ(fs::status(destino).permissions() & fs::perms::all, permisos);
  EXPECT_EQ(pruebas::LeerArchivo(destino + ".tmp~"), "de otro");
}

TEST_F(NadaSePierde, TramoConPuntoInexistenteYArchivoLateralDesmedido) {
  for (double punto : {1e15, 1e300, -3.0}) {
    Proyecto p = Ejemplo("falla_polinomica.cod");
    p.TramoFalla.PuntoFinal[1] = punto;  // the "P" stretch
    ui.Olvidar();
    ASSERT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Fallo);
    EXPECT_NE(ui.Textos().back().find("no es un punto de la superficie"), std::string::npos);
  }
  // 24 bytes that declare 32,767 strata of 32,767 points each: nothing that size is allocated.
  Escribir(ruta, "0\r\n0\r\n32767\r\n32767\r\n1,1\r\n");
  Proyecto p;
  EXPECT_FALSE(LeerArchivoTaludEstratosNF(p, ruta).error.empty());
  EXPECT_LE(p.XEstrato.Filas() * p.XEstrato.Columnas(), 100);
}

void Ensuciar() {
  volatile double cero = 0.0, grande = 1e308, r = cero / cero;
  r = 1.0 / cero;
  r = grande * 10.0;
  (void)r;
  std::feraiseexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
}

class InterfazRuidosa : public InterfazGuionada {
 public:
  using InterfazGuionada::InterfazGuionada;

 protected:
  void HacerMensaje(const std::string& t, const std::string& tít) override { Ensuciar(); InterfazGuionada::HacerMensaje(t, tít); }
  bool HacerPregunta(const std::string& t, const std::string& tít) override { Ensuciar(); return InterfazGuionada::HacerPregunta(t, tít); }
  void HacerEstado(const std::string& t) override { InterfazGuionada::HacerEstado(t); Ensuciar(); }
  void HacerAbrir(Pantalla& s) override { Ensuciar(); InterfazGuionada::HacerAbrir(s); Ensuciar(); }
};

// Each method with its number as the constants screen sets it; drawdown No then Yes to all, and
// the iteration screens answered No, No (go on), then Yes at the second iteration.
TEST(PuertoRuidoso, CadaMétodoYCadaMuestraComoConElPuertoGuionado) {
  const std::pair<Acción, Entero> métodos[] = {{MétodoFellenius, 3}, {MétodoBishop, 2},
                                               {MétodoJanbu, 4}, {ProcesoIterativoEnSuelos, 1}};
  auto correr = [](Proyecto& p, InterfazGuionada& ui, const std::string& muestra, const auto& m) {
    InterfazGuionada abrir;
    AbrirArchivoDeProyecto(p, abrir, muestra);
    p.ParámetrosIniciales.MétodoDeCálculo = m.second;
    EjecutarComando(m.first, p, ui);
    return pruebas::Renglones(ui);
  };
  Proyecto compartido;  // one program run through every sample
  for (const auto& muestra : Muestras())
    for (const auto& m : métodos)
      for (const char* respuestas : {"N", "NNNS", "NSNNS"}) {
        SCOPED_TRACE(muestra + " " + std::to_string(m.second) + " " + respuestas);
        Proyecto nuevo;
        InterfazGuionada guion(respuestas, true);
        InterfazRuidosa ruido(respuestas, true);
        EXPECT_EQ(correr(compartido, ruido, muestra, m), correr(nuevo, guion, muestra, m));
        EXPECT_EQ(compartido.HistoriaIteraciones.FactorDeSeguridad.Leer(compartido.NúmeroIteraciones),
                  nuevo.HistoriaIteraciones.FactorDeSeguridad.Leer(nuevo.NúmeroIteraciones));
      }
}

}  // namespace
}  // namespace lomaterra
