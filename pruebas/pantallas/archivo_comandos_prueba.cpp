// The menu "Archivo" of the main window: New, Open, the checks before a save and their order,
// Save handing over to Save as, the overwrite question, a save that fails, Exit, and "Ayuda".
//
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
#include "proyecto/secuencial.h"

namespace lomaterra {
namespace {

using pruebas::Renglones;
using pruebas::Textos;

std::string P(const std::string& texto, const char* r) {
  return "[pregunta]  | " + texto + " -> " + r;
}
// Questions of the chain, word for word.
const std::string kSísmico =
    "Existe  datos o registros para análisis sísmicos. Por tanto para el análisis por los métodos "
    "de equilibrio límite, se recomienda que Guarde la información en otro archivo con otro nombre "
    "para no perder esa información si así lo considera. ¿Desea continuar?.";
const std::string kSinCálculo = "Ud. no ha realizado el cálculo, ¿Desea guardar y luego calcular?";
const std::string kNoGuardado = "No ha guardado los datos actuales, ¿desea guardarlos?";
const std::string kAbrirOtro =
    "No ha guardado los datos actuales, ¿desea continuar y abrir otro archivo?";
const std::string kDiálogoCancelado = "[archivo] Guardar como | ";
const std::string kSinInformación =
    "[mensaje] Información del proyecto | Si desea guardar información, comience por dar La "
    "información del proyecto en el menú archivo.";

struct Archivo : ::testing::Test {
  // A limit-equilibrium project that passes the first four checks and has been calculated.
  void SetUp() override {
    ReiniciarProyecto(p);
    p.InformaciónDada = true;
    p.TipoDeAnálisis = "T";
    p.TipoDeMaterial = "S";
    p.NúmeroPuntosTalud = 2;
    p.CoordenadasTalud.Redimensionar(2);
    p.NúmeroEstratos = 1;
    p.EstratosCaracterizados = true;
    p.CálculoHecho = true;
    p.DatosGuardados = false;
    p.ListaGuardada = false;
  }
  Proyecto p;
  InterfazGuionada ui;
};

TEST_F(Archivo, LasCuatroComprobacionesQueTerminanElGuardado) {
  const std::pair<std::function<void(Proyecto&)>, std::string> casos[] = {
      {[](Proyecto& q) { q.InformaciónDada = false; }, kSinInformación},
      {[](Proyecto& q) { q.NúmeroPuntosTalud = 0; },
       "[mensaje] Coordenadas Talud-Presa-Túnel | Si desea guardar información, debe dar primero "
       "las coordenas del talud o las coordenadas de la superficie de la Presa ó coordenadas del "
       "borde de la carga de roca en el túnel. Vaya al menú coordenadas."},
      {[](Proyecto& q) { q.NúmeroEstratos = 0; },
       "[mensaje] Estratos e Insertar estrato | Si desea guardar información, debe insertar "
       "primero el número de estratos que definen la litología del problema y luego  dar sus "
       "coordenadas. Vaya al menú coordenadas."},
      {[](Proyecto& q) { q.EstratosCaracterizados = false; },
       "[mensaje] Caracteríticas Geomecánicas de los estratos | Ud. no ha dado las características "
       "geomecánicas de los estratos. Vaya al menú Parámetros y Cargas"},
  };
  // Each check stands before the ones below it: with all four failing only the first speaks.
  for (std::size_t k = 0; k < std::size(casos); ++k) {
    SCOPED_TRACE(k);
    Proyecto q = p;
    for (std::size_t j = k; j < std::size(casos); ++j) casos[j].first(q);
    for (auto comando : {MenúArchivoGuardar, MenúArchivoGuardarComo}) {
      InterfazGuionada i("SSSS");
      comando(q, i);
      EXPECT_EQ(Renglones(i), Textos{casos[k].second});
    }
  }
}

TEST_F(Archivo, PreguntaSísmicaYDeCálculoEnEquilibrioLímite) {
  // Seismic data, calculation done, the answers and what the command says.
  const std::tuple<bool, bool, const char*, Textos> casos[] = {
      {true, true, "N", {P(kSísmico, "N")}},
      {true, true, "S", {P(kSísmico, "S"), kDiálogoCancelado}},
      {false, false, "N", {P(kSinCálculo, "N")}},
      {false, false, "S", {P(kSinCálculo, "S"), kDiálogoCancelado}},
      {true, false, "SN", {P(kSísmico, "S"), P(kSinCálculo, "N")}},
  };
  for (const auto& [sismo, calculado, respuestas, líneas] : casos) {
    Proyecto q = p;
    q.CálculoHecho = calculado;
    q.Sísmico.FrecuenciasDadas = q.Sísmico.SismoCalculado = sismo;
    q.Sísmico.PasosSísmicos = sismo ? 40 : 0;
    InterfazGuionada i(respuestas);
    MenúArchivoGuardarComo(q, i);
    EXPECT_EQ(Renglones(i), líneas);
    // A Yes to the seismic question really drops the seismic data.
    const bool queda = sismo && respuestas[0] == 'N';
    EXPECT_EQ(q.Sísmico.FrecuenciasDadas, queda);
    EXPECT_EQ(q.Sísmico.SismoCalculado, queda);
    EXPECT_EQ(q.Sísmico.PasosSísmicos, queda ? 40 : 0);
    EXPECT_FALSE(q.DatosGuardados);  // nothing written
  }
}

TEST_F(Archivo, GuardarPasaLasComprobacionesDosVecesYSiempreMuestraElDiálogo) {
  p.CálculoHecho = false;
  p.Sísmico.RegistroDado = true;
  p.Ventana.NombreArchivo = "/proyectos/presa.cod";  // a name already known changes nothing
  ui.Responder("SSS");
  MenúArchivoGuardar(p, ui);
  // The seismic data were dropped by the first Yes, so the second pass asks only about the
  // calculation.
  EXPECT_EQ(Renglones(ui), (Textos{P(kSísmico, "S"), P(kSinCálculo, "S"), P(kSinCálculo, "S"),
                                   kDiálogoCancelado}));
  EXPECT_FALSE(p.DatosGuardados);  // the dialog was cancelled
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  // A No in the second pass ends the command before the dialog.
  InterfazGuionada i("SN");
  MenúArchivoGuardar(p, i);
  EXPECT_EQ(Renglones(i), (Textos{P(kSinCálculo, "S"), P(kSinCálculo, "N")}));
}

TEST_F(Archivo, GuardarComoPreguntaSoloPorUnArchivoExistenteYNoPresentaUnFalloComoGuardado) {
  const std::string ruta = pruebas::CarpetaTemporal() + "/talud.cod";
  std::ofstream(ruta) << "contenido anterior\n";
  ui.ArchivosElegidos({ruta});
  ui.Responder("N");
  MenúArchivoGuardarComo(p, ui);
  EXPECT_EQ(Renglones(ui), (Textos{"[archivo] Guardar como | " + ruta,
                                   P("El archivo ya existe. ¿Desea sobreescribirlo?", "N")}));
  EXPECT_EQ(pruebas::LeerArchivo(ruta), "contenido anterior\n");
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_EQ(p.Ventana.NombreArchivo, "");
  // A file that does not exist yet is not asked about.
  const std::string nuevo = pruebas::CarpetaTemporal() + "/nuevo.cod";
  InterfazGuionada i;
  i.ArchivosElegidos({nuevo});
  MenúArchivoGuardarComo(p, i);
  for (const auto& a : i.Transcripción()) EXPECT_NE(a.tipo, "pregunta") << a.texto;
  // A file that cannot be written is not presented as saved: it says why.
  const std::string fallo = pruebas::CarpetaTemporal() + "/no/hay/carpeta/fallo.cod";
  InterfazGuionada j;
  j.ArchivosElegidos({fallo});
  p.DatosGuardados = false;
  MenúArchivoGuardarComo(p, j);
  EXPECT_FALSE(std::filesystem::exists(fallo));
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_EQ(p.Ventana.NombreArchivo, nuevo);  // the name and title of the last file written
  EXPECT_EQ(p.Ventana.Título, "nuevo.cod - Lomaterra");
  EXPECT_EQ(j.Textos().size(), 1u);
}

TEST_F(Archivo, GuardarComoNuevoYAbrirDevuelvenElProyecto) {
  AbrirArchivoDeProyecto(p, ui, pruebas::RutaEjemplo("talud_homogeneo.cod"));
  const Entero puntos = p.NúmeroPuntosTalud;
  const std::string ruta = pruebas::CarpetaTemporal() + "/ida.cod";
  ui = InterfazGuionada("SSS");
  ui.ArchivosElegidos({ruta});
  MenúArchivoGuardarComo(p, ui);
  ui.Olvidar();
  ArchivoNuevo(p, ui);  // saved: no question
  ASSERT_EQ(p.NúmeroPuntosTalud, 0);
  p.Ventana.TipoPanel = 3;
  ui.ArchivosElegidos({ruta});
  MenúArchivoAbrir(p, ui);
  EXPECT_EQ(Renglones(ui), Textos{"[archivo] Abrir | " + ruta});
  EXPECT_EQ(p.Ventana.Título, "ida.cod - Lomaterra");
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_EQ(p.NúmeroPuntosTalud, puntos);
  EXPECT_EQ(p.Ventana.TipoPanel, 1);  // the panel shows the surface again
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), static_cast<std::size_t>(puntos));
}

TEST_F(Archivo, NuevoYSalirPreguntanSoloConDatosSinGuardar) {
  p.Ventana.TextoProyecto = "Talud de la vía";
  p.Ventana.NombreArchivo = "/proyectos/via.cod";
  p.Ventana.Título = "via.cod - Lomaterra";
  Proyecto q = p;
  ui.Responder("N");
  ArchivoNuevo(p, ui);
  EXPECT_EQ(Renglones(ui), Textos{P(kNoGuardado, "N")});
  EXPECT_EQ(p.NúmeroPuntosTalud, 0);  // reset, the data dropped
  EXPECT_TRUE(p.DatosGuardados);
  EXPECT_EQ(p.Ventana.NombreArchivo + p.Ventana.TextoProyecto, "");
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  InterfazGuionada nada;  // saved data: neither New nor Exit asks
  ArchivoNuevo(p, nada);
  MenúArchivoSalir(p, nada);
  EXPECT_TRUE(nada.Transcripción().empty());
  EXPECT_TRUE(p.Ventana.SalirDelPrograma);
  // Yes goes through the command Save (refused here); New goes on, Exit leaves all the same.
  q.InformaciónDada = false;
  InterfazGuionada sí("SS");
  ArchivoNuevo(q, sí);
  EXPECT_EQ(q.NúmeroPuntosTalud, 0);
  q.DatosGuardados = false;
  MenúArchivoSalir(q, sí);
  EXPECT_EQ(Renglones(sí), (Textos{P(kNoGuardado, "S"), kSinInformación, P(kNoGuardado, "S"),
                                   kSinInformación}));
  EXPECT_TRUE(q.Ventana.SalirDelPrograma);
}

TEST_F(Archivo, AbrirPreguntaSoloConDatosYListaSinGuardarYUnArchivoIlegibleNoCambiaNada) {
  ui.Responder("N");
  MenúArchivoAbrir(p, ui);
  EXPECT_EQ(Renglones(ui), Textos{P(kAbrirOtro, "N")});
  p.ListaGuardada = true;  // only the list saved: no question, the dialog at once
  InterfazGuionada i;
  MenúArchivoAbrir(p, i);
  EXPECT_EQ(Renglones(i), Textos{"[archivo] Abrir | "});
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);  // cancelled: nothing read

  const std::string ruta = pruebas::CarpetaTemporal() + "/no-existe.cod";
  p.ListaGuardada = false;
  p.Ventana.TipoPanel = 3;
  InterfazGuionada j("S");
  j.ArchivosElegidos({ruta});
  MenúArchivoAbrir(p, j);
  const auto l = Renglones(j);
  ASSERT_EQ(l.size(), 3u);
  EXPECT_EQ(l[0], P(kAbrirOtro, "S"));
  EXPECT_EQ(l[1], "[archivo] Abrir | " + ruta);
  EXPECT_EQ(j.Transcripción()[2].texto, "Error leyendo archivo");
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(p.Ventana.TipoPanel, 3);
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);  // the project open stays open
}

// The questions of a finite-element project, in their order.
TEST_F(Archivo, ElementosFinitosPreguntaTodoEnOrdenUnNoTerminaElGuardadoYUnSíSísmicoBasta) {
  p.TipoDeAnálisis = "F";
  p.CálculoHecho = false;
  const Textos preguntas = {
      "No se ha dado las coordenadas de los nodos que definen los elementos finitos (Menú "
      "elementos finitos), ¿Desea guardar y luego dar las coordenadas?",
      "No se han definido los elementos finitos a través de los respectivos nodos (Menú elementos "
      "finitos), ¿Desea guardar y luego definir elementos?",
      "No se ha dado las características elásticas  de los estratos (Menú elementos finitos, "
      "Parámetros de los estratos), ¿Desea guardar y luego dar esta información?",
      "No se ha asignado a cada elemento el material que los caracteriza. (Menú elementos "
      "finitos, Caracterización de los elementos), ¿Desea guardar y luego dar esta información?",
      "No se ha definido los nodos con restricción de movimiento. (Menú elementos finitos, Nodos "
      "con restricción), ¿Desea guardar y luego dar esta información?",
      "No se ha dado algunos parámetros de los estratos para el análisis sísmico (para análisis "
      "viscoplástico no es requerido). (Menú elementos finitos, Parámetros de los estratos para el "
      "cálculo sísmico), ¿Desea guardar y luego dar esta información?",
      "No se ha dado los valores de las aceleraciones del registro sísmico (para análisis "
      "viscoplástico no es requerido). (Menú elementos finitos, Input de registro sísmico), "
      "¿Desea guardar y luego dar esta información?",
      "No se ha ordenado hacer el cálculo de los vectores de forma modales normalizados, y en "
      "consecuencia las frecuencias naturales (para análisis viscoplástico no es requerido). "
      "(Menú elementos finitos, Estimación de las frecuencias naturales y Estimación de los "
      "vectores de Forma Modales), ¿Desea guardar y luego se estiman estos valores.?",
      "Ud. no ha realizado el cálculo viscoplástico, ¿Desea guardar y luego calcular?"};
  Textos todo;
  for (const auto& q : preguntas) todo.push_back(P(q, "S"));
  todo.push_back(kDiálogoCancelado);
  InterfazGuionada sí("SSSSSSSSSS");
  MenúArchivoGuardarComo(p, sí);
  EXPECT_EQ(Renglones(sí), todo);
  for (std::size_t k = 0; k < preguntas.size(); ++k) {  // a No at question k ends it there
    SCOPED_TRACE(k);
    InterfazGuionada i(std::string(k, 'S') + "N");
    MenúArchivoGuardarComo(p, i);
    EXPECT_EQ(Renglones(i).size(), k + 1);
    EXPECT_EQ(Renglones(i).back(), P(preguntas[k], "N"));
  }
  // Rock, complete, with seismic data not yet calculated.
  const std::string sísmico =
      "Ud. no ha realizado el cálculo sísmico, ¿Desea guardar y luego calcular?";
  p.TipoDeMaterial = "R";  // no elastic nor seismic parameters are asked for rock
  p.Malla.NodosDefinidos = p.Malla.ElementosDefinidos = p.Malla.MaterialesAsignados = true;
  p.Malla.NodosRestringidosDefinidos = true;
  p.Sísmico.RegistroDado = p.Sísmico.FormasModalesDadas = true;
  ui.Responder("S");
  MenúArchivoGuardarComo(p, ui);
  // A Yes to the seismic calculation skips the viscoplastic one.
  EXPECT_EQ(Renglones(ui), (Textos{P(sísmico, "S"), kDiálogoCancelado}));
  InterfazGuionada i("N");
  MenúArchivoGuardarComo(p, i);
  EXPECT_EQ(Renglones(i), (Textos{P(sísmico, "N")}));
  p.Sísmico.SismoCalculado = true;  // seismic done, viscoplastic not: no question at all
  p.Sísmico.CálculoSísmicoHecho = true;
  InterfazGuionada j;
  MenúArchivoGuardarComo(p, j);
  EXPECT_EQ(Renglones(j), (Textos{kDiálogoCancelado}));
}

namespace fs = std::filesystem;

// ---- Nothing is lost through the project file

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
  // The bytes read and what the explanation names; none at all reads the folder itself.
  const std::pair<std::string, std::string> casos[] = {
      {bytes.substr(0, t) + "\"X\"" + bytes.substr(t + 3), "Línea 7"},  // unknown kind
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
