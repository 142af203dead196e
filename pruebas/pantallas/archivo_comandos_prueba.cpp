// The menu "Archivo" of the main window: New, Open, the checks before a save and their order,
// Save handing over to Save as, the overwrite question, Exit, and the menu "Ayuda".
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apoyo/apoyo.h"
#include "apoyo/guion.h"
#include "pantallas/comandos_archivo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

// The scripted interface, also noting the filter and the selected index of each file dialog.
class InterfazConFiltros : public InterfazGuionada {
 public:
  using InterfazGuionada::InterfazGuionada;
  std::optional<std::string> HacerElegirArchivoAbrir(const std::string& filtro, int índice) override {
    filtros.emplace_back(filtro, índice);
    return InterfazGuionada::HacerElegirArchivoAbrir(filtro, índice);
  }
  std::optional<std::string> HacerElegirArchivoGuardar(const std::string& filtro, int índice) override {
    filtros.emplace_back(filtro, índice);
    return InterfazGuionada::HacerElegirArchivoGuardar(filtro, índice);
  }
  std::vector<std::pair<std::string, int>> filtros;
};

using pruebas::Renglones;

const std::string kFiltro = "Todos los archivos (*.*)|*.*|Archivos de coordenadas (*.cod)|*.cod";

// Questions of the chain as they stand in the transcript, without the answer.
const std::string kSísmico =
    "[pregunta]  | Existe  datos o registros para análisis sísmicos. Por tanto para el análisis "
    "por los métodos de equilibrio límite, se recomienda que Guarde la información en otro archivo "
    "con otro nombre para no perder esa información si así lo considera. ¿Desea continuar?. -> ";
const std::string kSinCálculo =
    "[pregunta]  | Ud. no ha realizado el cálculo, ¿Desea guardar y luego calcular? -> ";
const std::string kDiálogoCancelado = "[archivo] Guardar como | ";

class Archivo : public ::testing::Test {
 protected:
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
  InterfazConFiltros ui;
};

TEST_F(Archivo, LasCuatroComprobacionesQueTerminanElGuardado) {
  struct Caso {
    std::function<void(Proyecto&)> falta;
    std::string línea;
  };
  const Caso casos[] = {
      {[](Proyecto& q) { q.InformaciónDada = false; },
       "[mensaje] Información del proyecto | Si desea guardar información, comience por dar La "
       "información del proyecto en el menú archivo."},
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
    for (std::size_t j = k; j < std::size(casos); ++j) casos[j].falta(q);
    for (auto comando : {MenúArchivoGuardar, MenúArchivoGuardarComo}) {
      InterfazConFiltros i("SSSS");
      comando(q, i);
      EXPECT_EQ(Renglones(i), std::vector<std::string>{casos[k].línea});
      EXPECT_TRUE(i.filtros.empty());
    }
  }
}

TEST_F(Archivo, PreguntaSísmicaYDeCálculoEnEquilibrioLímite) {
  struct Caso {
    const char* nombre;
    bool sismo, calculado;
    const char* respuestas;
    std::vector<std::string> líneas;
    bool sismoBorrado;
  };
  const Caso casos[] = {
      {"SismoNo", true, true, "N", {kSísmico + "N"}, false},
      {"SismoSíCalculado", true, true, "S", {kSísmico + "S", kDiálogoCancelado}, true},
      {"SinCálculoNo", false, false, "N", {kSinCálculo + "N"}, false},
      {"SinCálculoSí", false, false, "S", {kSinCálculo + "S", kDiálogoCancelado}, false},
      {"SismoSíSinCálculoNo", true, false, "SN", {kSísmico + "S", kSinCálculo + "N"}, true},
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.nombre);
    Proyecto q = p;
    q.CálculoHecho = c.calculado;
    q.Sísmico.FrecuenciasDadas = c.sismo;
    q.Sísmico.SismoCalculado = c.sismo;
    q.Sísmico.PasosSísmicos = c.sismo ? 40 : 0;
    InterfazConFiltros i(c.respuestas);
    MenúArchivoGuardarComo(q, i);
    EXPECT_EQ(Renglones(i), c.líneas);
    if (c.sismoBorrado) {
      EXPECT_FALSE(q.Sísmico.FrecuenciasDadas);
      EXPECT_FALSE(q.Sísmico.SismoCalculado);
      EXPECT_EQ(q.Sísmico.PasosSísmicos, 0);
    } else {
      EXPECT_EQ(q.Sísmico.FrecuenciasDadas, c.sismo);
    }
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
  EXPECT_EQ(Renglones(ui), (std::vector<std::string>{kSísmico + "S", kSinCálculo + "S",
                                                  kSinCálculo + "S", kDiálogoCancelado}));
  EXPECT_EQ(ui.filtros, (std::vector<std::pair<std::string, int>>{{kFiltro, 2}}));
  EXPECT_FALSE(p.DatosGuardados);  // the dialog was cancelled
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");

  // A No in the second pass ends the command before the dialog.
  InterfazConFiltros i("SN");
  MenúArchivoGuardar(p, i);
  EXPECT_EQ(Renglones(i), (std::vector<std::string>{kSinCálculo + "S", kSinCálculo + "N"}));
  EXPECT_TRUE(i.filtros.empty());
}

TEST_F(Archivo, SoloUnArchivoExistentePreguntaYConNoNoSeToca) {
  const std::string ruta = pruebas::CarpetaTemporal() + "/talud.cod";
  { std::ofstream(ruta) << "contenido anterior\n"; }
  ui.ArchivosElegidos({ruta});
  ui.Responder("N");
  MenúArchivoGuardarComo(p, ui);
  EXPECT_EQ(Renglones(ui), (std::vector<std::string>{
                            "[archivo] Guardar como | " + ruta,
                            "[pregunta]  | El archivo ya existe. ¿Desea sobreescribirlo? -> N"}));
  std::ifstream f(ruta);
  std::string línea;
  std::getline(f, línea);
  EXPECT_EQ(línea, "contenido anterior");
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_EQ(p.Ventana.NombreArchivo, "");
  // A file that does not exist yet is not asked about.
  InterfazConFiltros i;
  i.ArchivosElegidos({pruebas::CarpetaTemporal() + "/nuevo.cod"});
  MenúArchivoGuardarComo(p, i);
  for (const auto& a : i.Transcripción()) EXPECT_NE(a.tipo, "pregunta") << a.texto;
}

TEST_F(Archivo, NuevoConNoDescartaLosDatos) {
  p.Ventana.TextoProyecto = "Talud de la vía";
  p.Ventana.NombreArchivo = "/proyectos/via.cod";
  p.Ventana.Título = "via.cod - Lomaterra";
  ui.Responder("N");
  ArchivoNuevo(p, ui);
  EXPECT_EQ(Renglones(ui),
            std::vector<std::string>{
                "[pregunta]  | No ha guardado los datos actuales, ¿desea guardarlos? -> N"});
  EXPECT_EQ(p.NúmeroPuntosTalud, 0);
  EXPECT_EQ(p.NúmeroEstratos, 0);
  EXPECT_FALSE(p.InformaciónDada);
  EXPECT_TRUE(p.DatosGuardados);
  EXPECT_EQ(p.Ventana.TextoProyecto, "");
  EXPECT_EQ(p.Ventana.NombreArchivo, "");
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(p.TipoDeAnálisis, "T");  // kept by the reset
}

TEST_F(Archivo, NuevoConSíGuardaPorElComandoGuardarYLuegoReinicia) {
  p.InformaciónDada = false;  // the save refuses: New goes on all the same
  ui.Responder("S");
  ArchivoNuevo(p, ui);
  EXPECT_EQ(
      Renglones(ui),
      (std::vector<std::string>{
          "[pregunta]  | No ha guardado los datos actuales, ¿desea guardarlos? -> S",
          "[mensaje] Información del proyecto | Si desea guardar información, comience por dar "
          "La información del proyecto en el menú archivo."}));
  EXPECT_EQ(p.NúmeroPuntosTalud, 0);

  InterfazConFiltros i;  // saved data: no question
  ArchivoNuevo(p, i);
  EXPECT_TRUE(i.Transcripción().empty());
}

TEST_F(Archivo, AbrirPreguntaSoloConDatosYListaSinGuardar) {
  ui.Responder("N");
  MenúArchivoAbrir(p, ui);
  EXPECT_EQ(Renglones(ui),
            std::vector<std::string>{"[pregunta]  | No ha guardado los datos actuales, ¿desea "
                                     "continuar y abrir otro archivo? -> N"});
  EXPECT_TRUE(ui.filtros.empty());
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);

  p.ListaGuardada = true;  // only the list saved: no question, the dialog at once
  InterfazConFiltros i;
  MenúArchivoAbrir(p, i);
  EXPECT_EQ(Renglones(i), std::vector<std::string>{"[archivo] Abrir | "});
  EXPECT_EQ(i.filtros, (std::vector<std::pair<std::string, int>>{{kFiltro, 2}}));
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);  // cancelled: nothing read
}

TEST_F(Archivo, AbrirUnArchivoIlegibleNoCambiaNada) {
  const std::string ruta = pruebas::CarpetaTemporal() + "/no-existe.cod";
  ui.Responder("S");
  ui.ArchivosElegidos({ruta});
  p.Ventana.TipoPanel = 3;
  MenúArchivoAbrir(p, ui);
  const auto l = Renglones(ui);
  ASSERT_EQ(l.size(), 3u);
  EXPECT_EQ(l[0],
            "[pregunta]  | No ha guardado los datos actuales, ¿desea continuar y abrir otro "
            "archivo? -> S");
  EXPECT_EQ(l[1], "[archivo] Abrir | " + ruta);
  EXPECT_EQ(ui.Transcripción()[2].texto, "Error leyendo archivo");
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(p.Ventana.TipoPanel, 3);
  EXPECT_EQ(p.NúmeroPuntosTalud, 2);  // the project open stays open
}

TEST_F(Archivo, SalirPreguntaSoloConDatosSinGuardar) {
  ui.Responder("N");
  MenúArchivoSalir(p, ui);
  EXPECT_EQ(Renglones(ui),
            std::vector<std::string>{
                "[pregunta]  | No ha guardado los datos actuales, ¿desea guardarlos? -> N"});
  EXPECT_TRUE(p.Ventana.SalirDelPrograma);

  Proyecto q;
  ReiniciarProyecto(q);
  InterfazConFiltros i;
  MenúArchivoSalir(q, i);
  EXPECT_TRUE(i.Transcripción().empty());
  EXPECT_TRUE(q.Ventana.SalirDelPrograma);
}

TEST_F(Archivo, AyudaYAcercaDe) {
  MenúAyudaContenido(p, ui);
  MenúAyudaAcercaDe(p, ui);
  const auto& t = ui.Transcripción();
  ASSERT_EQ(t.size(), 2u);
  EXPECT_EQ(t[0].tipo, "ayuda");
  EXPECT_EQ(t[0].texto, "AYUDALOMATERRA.HLP");
  EXPECT_EQ(t[1].título, "Acerca de Lomaterra");
  EXPECT_EQ(t[1].texto.rfind("Lomaterra 0.1.0", 0), 0u) << t[1].texto;
}

// The questions of a finite-element project, in their order.
class ArchivoElementosFinitos : public Archivo {
 protected:
  void SetUp() override {
    Archivo::SetUp();
    p.TipoDeAnálisis = "F";
    p.CálculoHecho = false;
  }
  static std::string P(const std::string& texto, const char* r) {
    return "[pregunta]  | " + texto + " -> " + r;
  }
};

const std::string kNodos =
    "No se ha dado las coordenadas de los nodos que definen los elementos finitos (Menú elementos "
    "finitos), ¿Desea guardar y luego dar las coordenadas?";
const std::string kElementos =
    "No se han definido los elementos finitos a través de los respectivos nodos (Menú elementos "
    "finitos), ¿Desea guardar y luego definir elementos?";
const std::string kElásticas =
    "No se ha dado las características elásticas  de los estratos (Menú elementos finitos, "
    "Parámetros de los estratos), ¿Desea guardar y luego dar esta información?";
const std::string kMateriales =
    "No se ha asignado a cada elemento el material que los caracteriza. (Menú elementos finitos, "
    "Caracterización de los elementos), ¿Desea guardar y luego dar esta información?";
const std::string kRestringidos =
    "No se ha definido los nodos con restricción de movimiento. (Menú elementos finitos, Nodos con "
    "restricción), ¿Desea guardar y luego dar esta información?";
const std::string kParámetrosSísmicos =
    "No se ha dado algunos parámetros de los estratos para el análisis sísmico (para análisis "
    "viscoplástico no es requerido). (Menú elementos finitos, Parámetros de los estratos para el "
    "cálculo sísmico), ¿Desea guardar y luego dar esta información?";
const std::string kRegistro =
    "No se ha dado los valores de las aceleraciones del registro sísmico (para análisis "
    "viscoplástico no es requerido). (Menú elementos finitos, Input de registro sísmico), ¿Desea "
    "guardar y luego dar esta información?";
const std::string kCálculoSísmico =
    "Ud. no ha realizado el cálculo sísmico, ¿Desea guardar y luego calcular?";
const std::string kViscoplástico =
    "Ud. no ha realizado el cálculo viscoplástico, ¿Desea guardar y luego calcular?";

TEST_F(ArchivoElementosFinitos, SueloSinNadaPreguntaTodoEnOrden) {
  MenúArchivoGuardarComo(p, ui);  // no answers given: No, and the first question ends it
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(Renglones(ui)[0], P(kNodos, "N"));

  InterfazConFiltros i("SSSSSSSSSS");
  MenúArchivoGuardarComo(p, i);
  auto l = Renglones(i);
  ASSERT_EQ(l.size(), 10u);
  // The question on the modal shapes, checked by its two ends.
  EXPECT_EQ(l[7].rfind("[pregunta]  | No se ha ordenado hacer el cálculo de los vectores de forma modales "
                       "normalizados, y en consecuencia las frecuencias naturales (para análisis "
                       "viscoplástico no es requerido).", 0), 0u);
  EXPECT_NE(l[7].find("¿Desea guardar y luego se estiman estos valores.? -> S"), std::string::npos);
  l.erase(l.begin() + 7);
  EXPECT_EQ(l, (std::vector<std::string>{P(kNodos, "S"), P(kElementos, "S"), P(kElásticas, "S"),
                                         P(kMateriales, "S"), P(kRestringidos, "S"),
                                         P(kParámetrosSísmicos, "S"), P(kRegistro, "S"),
                                         P(kViscoplástico, "S"), kDiálogoCancelado}));
}

TEST_F(ArchivoElementosFinitos, UnNoTerminaElGuardadoEnCadaPregunta) {
  for (int k = 1; k <= 9; ++k) {
    SCOPED_TRACE(k);
    InterfazConFiltros i(std::string(static_cast<std::size_t>(k - 1), 'S') + "N");
    MenúArchivoGuardarComo(p, i);
    EXPECT_EQ(i.Transcripción().size(), static_cast<std::size_t>(k));
    EXPECT_TRUE(i.filtros.empty());
  }
}

TEST_F(ArchivoElementosFinitos, RocaCompletaConSismoSinCalcular) {
  p.TipoDeMaterial = "R";  // no elastic nor seismic parameters are asked for rock
  p.Malla.NodosDefinidos = p.Malla.ElementosDefinidos = p.Malla.MaterialesAsignados = true;
  p.Malla.NodosRestringidosDefinidos = true;
  p.Sísmico.RegistroDado = p.Sísmico.FormasModalesDadas = true;
  ui.Responder("S");
  MenúArchivoGuardarComo(p, ui);
  // A Yes to the seismic calculation skips the viscoplastic one.
  EXPECT_EQ(Renglones(ui), (std::vector<std::string>{P(kCálculoSísmico, "S"), kDiálogoCancelado}));

  InterfazConFiltros i("N");
  MenúArchivoGuardarComo(p, i);
  EXPECT_EQ(Renglones(i), (std::vector<std::string>{P(kCálculoSísmico, "N")}));

  p.Sísmico.SismoCalculado = true;  // seismic done, viscoplastic not: no question at all
  p.Sísmico.CálculoSísmicoHecho = true;
  InterfazConFiltros j;
  MenúArchivoGuardarComo(p, j);
  EXPECT_EQ(Renglones(j), (std::vector<std::string>{kDiálogoCancelado}));
}

}  // namespace
}  // namespace lomaterra
