// The menu "Coordenadas" and the coordinate panel of the main window: gates of entry, where a new
// point stands, a panel always written back when the user leaves it, inserting and deleting
// strata and the phreatic line, and the side file of slope, strata and phreatic line. Then the
// finite-element screens: the mesh screens with their checks word for word, the order they
// keep and what they store; the side files of nodes and elements; the seismic result screen on a
// run filled by hand, its refusals, the refill of a chosen step and the click on a node.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "apoyo/apoyo.h"
#include "apoyo/sismo_apoyo.h"
#include "pantallas/archivo_lateral.h"
#include "pantallas/comandos_coordenadas.h"
#include "pantallas/comun_pantallas.h"
#include "pantallas/form4.h"
#include "pantallas/malla.h"
#include "pantallas/resultados_sismicos.h"
#include "proyecto/comandos.h"
#include "proyecto/ventana_principal.h"

namespace lomaterra {
namespace {

using pruebas::Renglones;
using pruebas::Textos;
using Puntos = std::vector<std::pair<double, double>>;

// Rows 1..n of a column, to compare a whole column at once.
template <class T>
std::vector<double> Filas(const Tabla<T>& t) {
  std::vector<double> r;
  for (long i = 1; i <= t.Tamaño(); ++i) r.push_back(static_cast<double>(t.Leer(i)));
  return r;
}

const std::string kInsertado =
    "[mensaje] Insertar estrato | YA SE INSERTÓ EL ESTRATO: Ahora vaya inmediatamente al menú "
    "'Parámetros y Cargas' y dé las 'Características Geomecánicas' del estrato insertado. Si "
    "trabaja con elementos finitos, vaya también al menú 'Elementos finitos' y dé los 'Parámetros "
    "de los estratos' y los 'Parámetros de los estratos para el cálculo sísmico' del estrato "
    "insertado.";

struct Coordenadas : ::testing::Test {
  void SetUp() override {
    ReiniciarProyecto(p);
    p.InformaciónDada = true;
  }
  Puntos DelPanel() const {
    Puntos r;
    for (const auto& q : p.Ventana.ListaCoordenadas) r.push_back({q.X, q.Y});
    return r;
  }
  void Agregar(const std::string& x, const std::string& y) {
    p.Ventana.TextoX = x;
    p.Ventana.TextoY = y;
    PanelAgregar(p, ui);
  }
  void AgregarTodos(const Puntos& puntos) {
    for (const auto& [x, y] : puntos) Agregar(std::to_string(x), std::to_string(y));
  }
  // Two characterised soil strata: stratum 1 with 2 points and cohesion 1.5, stratum 2 with 3
  // points and cohesion 2.5.
  void DosEstratosDeSuelo() {
    p.TipoDeMaterial = "S";
    p.NúmeroEstratos = 2;
    p.Ventana.ListaCoordenadas = {{40, 8}, {0, 6}};
    GuardarPanelCoordenadas(p, 4, 1);
    p.Ventana.ListaCoordenadas = {{40, 3}, {20, 2}, {0, 1}};
    GuardarPanelCoordenadas(p, 4, 2);
    p.Estrato.RedimensionarConservando(2);
    p.Estrato.Cohesión[1] = 1.5;
    p.Estrato.Cohesión[2] = 2.5;
    p.Estrato.TipoEstrato[1] = 1;
    p.EstratosCaracterizados = true;
    p.NúmeroEstratosCaracterizados = 2;
    p.Ventana.ReconstruirListaEstrato(2);
    CargarPanelCoordenadas(p, 1, 1);
  }
  // Form4 answers with row `fila` of ListaEntre and Aceptar.
  static void ElegirEnForm4(InterfazGuionada& i, int fila) {
    i.GuionPantalla("Form4", [fila](Pantalla& f, Interfaz& u) {
      f.lista("ListaEntre").seleccionada = fila;
      f.Pulsar("BotónAceptar", u);
    });
  }
  Proyecto p;
  InterfazGuionada ui;
};

TEST_F(Coordenadas, SinInformaciónDelProyectoNingúnComandoDeEntradaAbre) {
  p.InformaciónDada = false;
  p.Ventana.TipoPanel = 3;
  p.Ventana.ListaCoordenadas = {{5, 5}};
  for (Acción comando : {MenúCoordenadasTalud, MenúCoordenadasFalla, MenúCoordenadasFreático,
                         MenúCoordenadasEstratos, MenúInsertarEstrato,
                         MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo}) {
    InterfazGuionada i("SSSS");
    comando(p, i);
    EXPECT_EQ(Renglones(i), Textos{"[mensaje] Información requerida | Debe dar la información "
                                   "del proyecto. Entre al menú 'Archivo'"});
    EXPECT_EQ(p.Ventana.TipoPanel, 3);
    EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 1u);
    EXPECT_EQ(p.NúmeroPuntosFreático + p.NúmeroEstratos, 0);
  }
}

// X descends; on equal X the order of Y rises when X >= 0 (zero too) and falls when X < 0; an
// equal point joins its equals.
TEST_F(Coordenadas, OrdenDeLosPuntosAgregados) {
  AgregarTodos({{0, 3}, {0, 1}, {-5, 5}, {-5, 8}, {20, 0}, {10, 5}, {10, 2}, {-1, 0}, {10, 5}});
  EXPECT_EQ(DelPanel(), (Puntos{{20, 0}, {10, 2}, {10, 5}, {10, 5}, {0, 1}, {0, 3}, {-1, 0},
                                {-5, 8}, {-5, 5}}));
  EXPECT_TRUE(ui.Transcripción().empty());
}

TEST_F(Coordenadas, BotonesDelPanel) {
  Agregar("uno", "2");
  Agregar("1", "");
  Agregar("", "x");
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
  ASSERT_TRUE(p.DatosGuardados && p.ListaGuardada);
  Agregar("12.5", "-3");  // a point added marks the data and empties the boxes
  EXPECT_FALSE(p.DatosGuardados || p.ListaGuardada);
  EXPECT_EQ(p.Ventana.TextoX + p.Ventana.TextoY, "");
  AgregarTodos({{9, 1}, {6, 2}});
  PanelModificar(p, ui);  // no row selected
  EXPECT_EQ(ui.Textos(),
            (Textos{"Debe introducir un número en x", "Debe introducir un número en y",
                    "Debe introducir un número en x",
                    "Ud no ha seleccionado ninguna fila para modificar valores ya agregados."}));
  ui.Olvidar();
  p.Ventana.FilaSeleccionada = 3;
  PanelModificar(p, ui);  // the row goes to the boxes
  EXPECT_EQ(p.Ventana.TextoX + ";" + p.Ventana.TextoY, "6;2");
  EXPECT_EQ(DelPanel(), (Puntos{{12.5, -3}, {9, 1}}));
  p.Ventana.TextoX = "15";  // the user changes X and adds it again: it moves to its new place
  PanelAgregar(p, ui);
  EXPECT_EQ(DelPanel(), (Puntos{{15, 2}, {12.5, -3}, {9, 1}}));
  EXPECT_TRUE(ui.Transcripción().empty());
  p.Ventana.FilaSeleccionada = 0;
  PanelBorrar(p, ui);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 3u);
  p.Ventana.FilaSeleccionada = 2;
  PanelBorrar(p, ui);  // only the selected row
  EXPECT_EQ(DelPanel(), (Puntos{{15, 2}, {9, 1}}));
  EXPECT_EQ(p.Ventana.FilaSeleccionada, 0);
}

TEST_F(Coordenadas, SalirDelPanelPorOtroComandoOEligiendoOtroEstratoNoLoPierde) {
  MenúCoordenadasTalud(p, ui);
  AgregarTodos({{30, 10}, {20, 10}, {0, 0}});
  MenúCoordenadasFalla(p, ui);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas de la superficie de falla");
  AgregarTodos({{25, 10}, {5, 0}});
  MenúCoordenadasFreático(p, ui);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas del nivel freático");
  AgregarTodos({{30, 8}, {0, -1}});
  MenúInsertarEstrato(p, ui);  // first stratum: the phreatic line is stored on the way
  AgregarTodos({{30, 2}, {0, -4}});
  const std::pair<Acción, Puntos> vueltas[] = {
      {MenúCoordenadasTalud, {{30, 10}, {20, 10}, {0, 0}}},
      {MenúCoordenadasFalla, {{25, 10}, {5, 0}}},
      {MenúCoordenadasFreático, {{30, 8}, {0, -1}}},
      {MenúCoordenadasEstratos, {{30, 2}, {0, -4}}}};
  for (std::size_t k = 0; k < std::size(vueltas); ++k) {
    vueltas[k].first(p, ui);
    EXPECT_EQ(p.Ventana.TipoPanel, static_cast<int>(k) + 1);
    EXPECT_EQ(DelPanel(), vueltas[k].second);
  }
  EXPECT_EQ((std::vector<Entero>{p.NúmeroPuntosTalud, p.NúmeroPuntosFalla, p.NúmeroPuntosFreático,
                                 p.PuntosEstrato[1]}),
            (std::vector<Entero>{3, 2, 2, 2}));
  // The list view shows each point with two decimals.
  using Filas = std::vector<std::pair<std::string, std::string>>;
  EXPECT_EQ(FilasCoordenadas(p.Ventana), (Filas{{"30.00", "2.00"}, {"0.00", "-4.00"}}));
  // Choosing another stratum stores the one shown and loads the one chosen.
  InterfazGuionada después;
  ElegirEnForm4(después, 2);  // after the last
  MenúInsertarEstrato(p, después);
  AgregarTodos({{10, -5}});
  PanelElegirEstrato(p, ui, 1);
  EXPECT_EQ(p.Ventana.EstratoPanel + p.Ventana.EstratoSeleccionado, 2);
  EXPECT_EQ(DelPanel(), (Puntos{{30, 2}, {0, -4}}));
  PanelElegirEstrato(p, ui, 2);
  PanelElegirEstrato(p, ui, 0);  // the prompt row changes nothing
  EXPECT_EQ(p.Ventana.EstratoPanel, 2);
  EXPECT_EQ(DelPanel(), (Puntos{{10, -5}}));
}

TEST_F(Coordenadas, InsertarSeNiegaMientrasFalteInformaciónDeUnEstratoInsertado) {
  const std::pair<bool Proyecto::*, const char*> casos[] = {
      {&Proyecto::CaracterísticasSueloCompletas,
       "Falta darle al programa las Características geomecánicas (menú parámetros y cargas) de un "
       "estrato ya insertado para ser considerado como un suelo."},
      {&Proyecto::CaracterísticasRocaCompletas,
       "Falta darle al programa las Características geomecánicas (menú parámetros y cargas) de un "
       "estrato ya insertado para ser considerado como una roca."},
      {&Proyecto::ParámetrosEstratoCompletos,
       "Falta darle al programa los Parámetros de los estratos (menú elementos finitos) de un "
       "estrato ya insertado para el cálculo elástico, viscoplástico o plástico."},
      {&Proyecto::ParámetrosSísmicosCompletos,
       "Falta darle al programa los Parámetros de los estratos para el cálculo sísmico (menú "
       "elementos finitos) de un estrato ya insertado."},
  };
  DosEstratosDeSuelo();
  for (const auto& [bandera, texto] : casos) {
    p.*bandera = false;
    InterfazGuionada i;
    ElegirEnForm4(i, 1);
    MenúInsertarEstrato(p, i);
    EXPECT_EQ(Renglones(i), Textos{std::string("[mensaje] Información por dar:: | ") + texto});
    EXPECT_EQ(p.NúmeroEstratos, 2);
    p.*bandera = true;
  }
}

TEST_F(Coordenadas, PrimerEstratoSinPreguntarDónde) {
  MenúCoordenadasEstratos(p, ui);
  EXPECT_EQ(ui.Textos(), Textos{"Actualmente no hay estratos. Seleccione primero una de las "
                                "opciones: \nInsertar estrato"});
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  ui.Olvidar();
  p.TipoDeMaterial = "S";
  MenúInsertarEstrato(p, ui);
  EXPECT_EQ(Renglones(ui), Textos{kInsertado});  // no Form4
  EXPECT_EQ((std::vector<long>{p.NúmeroEstratos, p.PuntosEstrato.Leer(1), p.Ventana.TipoPanel,
                               p.Ventana.EstratoPanel}),
            (std::vector<long>{1, 0, 4, 1}));
  EXPECT_EQ(p.Ventana.ListaEstrato, (Textos{"Seleccione el estrato", "1"}));
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas del estrato");
  EXPECT_FALSE(p.CaracterísticasSueloCompletas || p.DatosGuardados);
  EXPECT_TRUE(p.CaracterísticasRocaCompletas);
}

TEST_F(Coordenadas, Form4OfreceAntesEntreYDespuésYCerradoNoInsertaNada) {
  DosEstratosDeSuelo();
  p.Ventana.ListaCoordenadas = {{1, 1}};  // a panel not yet stored stays as it is
  MenúInsertarEstrato(p, ui);             // no script: Form4 is closed with its exit button
  EXPECT_EQ(Renglones(ui), Textos{"[pantalla] Insertar estrato"});
  EXPECT_EQ(p.NúmeroEstratos, 2);
  EXPECT_TRUE(p.EstratosCaracterizados);
  EXPECT_EQ(DelPanel(), (Puntos{{1, 1}}));
  p.NúmeroEstratos = 3;
  Form4 f(p);
  f.Activar(ui);
  EXPECT_EQ(f.lista("ListaEntre").filas,
            (std::vector<Textos>{{"antes del primero"}, {"entre el estrato 1 y el estrato 2"},
                                 {"entre el estrato 2 y el estrato 3"}, {"después del último"}}));
  ui.Olvidar();
  f.Pulsar("BotónAceptar", ui);  // nothing chosen: it says so and stays open
  EXPECT_EQ(ui.Textos(), Textos{"Seleccione en la lista el lugar del nuevo estrato."});
  EXPECT_EQ(f.Posición, 0);
}

TEST_F(Coordenadas, InsertarEntreDosEstratosMueveTodasLasFilas) {
  DosEstratosDeSuelo();
  ElegirEnForm4(ui, 2);  // between stratum 1 and stratum 2: the new one is stratum 2
  MenúInsertarEstrato(p, ui);
  EXPECT_EQ(Renglones(ui), (Textos{"[pantalla] Insertar estrato", kInsertado}));
  ASSERT_EQ(p.NúmeroEstratos, 3);
  EXPECT_EQ(Filas(p.PuntosEstrato), (std::vector<double>{2, 0, 3}));
  EXPECT_EQ((std::vector<double>{p.XEstrato(1, 1), p.YEstrato(1, 2), p.YEstrato(2, 1),
                                 p.XEstrato(3, 2), p.YEstrato(3, 3)}),
            (std::vector<double>{40, 6, 0, 20, 1}));
  EXPECT_EQ(Filas(p.Estrato.Cohesión), (std::vector<double>{1.5, 0, 2.5}));
  EXPECT_EQ(Filas(p.Estrato.TipoEstrato), (std::vector<double>{1, 0, 0}));
  EXPECT_FALSE(p.EstratosCaracterizados || p.CaracterísticasSueloCompletas);
  EXPECT_EQ(p.Ventana.ListaEstrato.size() + p.Ventana.EstratoPanel, 6u);  // 4 rows, stratum 2
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
  // In rock, before the first and after the last.
  p = Proyecto{};
  SetUp();
  DosEstratosDeSuelo();
  p.TipoDeMaterial = "R";
  InterfazGuionada antes;
  ElegirEnForm4(antes, 1);
  MenúInsertarEstrato(p, antes);
  EXPECT_TRUE(p.CaracterísticasSueloCompletas && !p.CaracterísticasRocaCompletas);
  p.CaracterísticasRocaCompletas = true;  // the rock screen has been filled
  InterfazGuionada después;
  ElegirEnForm4(después, 4);  // after the last of three
  MenúInsertarEstrato(p, después);
  ASSERT_EQ(p.NúmeroEstratos, 4);
  EXPECT_EQ(Filas(p.PuntosEstrato), (std::vector<double>{0, 2, 3, 0}));
  EXPECT_EQ(Filas(p.Estrato.Cohesión), (std::vector<double>{0, 1.5, 2.5, 0}));
}

TEST_F(Coordenadas, EliminarEstrato) {
  DosEstratosDeSuelo();
  MenúEliminarEstrato(p, ui);  // not a stratum in the panel
  MenúCoordenadasEstratos(p, ui);
  ui.Responder("NS");
  MenúEliminarEstrato(p, ui);  // No to the question
  EXPECT_EQ(p.NúmeroEstratos, 2);
  p.TipoDeMaterial = "";
  MenúEliminarEstrato(p, ui);  // no material yet: refused after the question
  const std::string pregunta =
      "[pregunta]  | Desea eleminar el estrato que se muestra en pantalla?";
  EXPECT_EQ(Renglones(ui),
            (Textos{"[mensaje]  | Seleccione la opción coordenadas estrato", pregunta + " -> N",
                    pregunta + " -> S",
                    "[mensaje]  | Por favor vaya a la opción PARAMETROS INICIALES DE CALCULO e "
                    "indique si está trabajando en SUELO o ROCA"}));
  EXPECT_EQ(p.NúmeroEstratos, 2);
  // Yes: stratum 1 goes, stratum 2 closes up into its place and shows in the panel.
  p.TipoDeMaterial = "S";
  ui.Responder("S");
  MenúEliminarEstrato(p, ui);
  ASSERT_EQ(p.NúmeroEstratos, 1);
  EXPECT_EQ(p.PuntosEstrato[1], 3);
  EXPECT_EQ((std::vector<double>{p.XEstrato(1, 2), p.Estrato.Cohesión[1]}),
            (std::vector<double>{20, 2.5}));
  EXPECT_EQ(p.Ventana.ListaEstrato, (Textos{"Seleccione el estrato", "1"}));
  EXPECT_EQ(DelPanel(), (Puntos{{40, 3}, {20, 2}, {0, 1}}));
  EXPECT_FALSE(p.DatosGuardados);
  ui.Responder("S");
  MenúEliminarEstrato(p, ui);  // the last one: the panel goes back to the surface
  EXPECT_EQ(p.NúmeroEstratos, 0);
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
}

TEST_F(Coordenadas, EliminarNivelFreáticoEnSusTresCasos) {
  MenúEliminarNivelFreático(p, ui);  // nothing stored and nothing in the panel
  EXPECT_EQ(ui.Textos(), Textos{"Seleccione la opción coordenadas nivel freático"});
  // Points in the panel of the phreatic line, none stored yet: No, then Yes.
  ui.Olvidar();
  MenúCoordenadasFreático(p, ui);
  p.Ventana.ListaCoordenadas = {{10, 4}, {0, 2}};
  ui.Responder("NS");
  MenúEliminarNivelFreático(p, ui);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 2u);
  MenúEliminarNivelFreático(p, ui);
  EXPECT_EQ(ui.Textos(), Textos(2, "Desea eliminar todas las coordenadas y que serán las "
                                   "correspondientes al nivel freático?"));
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
  // A line stored, the panel elsewhere.
  ui.Olvidar();
  p.Ventana.ListaCoordenadas = {{10, 4}, {0, 2}};
  MenúCoordenadasTalud(p, ui);
  ASSERT_EQ(p.NúmeroPuntosFreático, 2);
  ui.Responder("NS");
  MenúEliminarNivelFreático(p, ui);
  EXPECT_EQ(p.NúmeroPuntosFreático, 2);
  MenúEliminarNivelFreático(p, ui);
  EXPECT_EQ(ui.Textos(), Textos(2, "Desea eleminar las coordenadas del nivel freático?"));
  EXPECT_EQ(p.NúmeroPuntosFreático, 0);
  MenúCoordenadasFreático(p, ui);
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
}

// The side file, in a fixed folder under the base directory, lines ended by CR LF.
struct ArchivoLateral : Coordenadas {
  void SetUp() override {
    Coordenadas::SetUp();
    ::setenv("LOMATERRA_CARPETA_BASE", base.c_str(), 1);
  }
  void TearDown() override { ::unsetenv("LOMATERRA_CARPETA_BASE"); }
  void Escribir(const Textos& líneas) {
    std::filesystem::create_directories(base + "/CarpetaTaludEstratoNF");
    std::ofstream f(ruta, std::ios::binary);
    for (const auto& l : líneas) f << l << "\r\n";
  }
  void Leer(const std::string& respuestas) {
    ui = InterfazGuionada(respuestas);
    MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo(p, ui);
  }
  std::string base = pruebas::CarpetaTemporal();
  std::string ruta = base + "/CarpetaTaludEstratoNF/taludestratosNF.cod";
};

const std::string kPreguntaCarpeta =
    "Existe una carpeta ya creada en c:\\ con el nombre CarpetaTaludEstratoNF?. Esa carpeta "
    "contiene un archivo con nombre 'taludestratosNF.cod', con el total de las coordenadas que "
    "definen la geometría de la superficie del talud, la geometría de los estratos y del nivel "
    "freático.?";
const std::string kPreguntaYaExisten =
    "Ya existen coordenadas de la superficie del talud y número de estratos. Desea cargar la "
    "geometría del talud, de los estratos y nivel freático, a partir de un archivo ya creado.?";

TEST_F(ArchivoLateral, LecturaCompletaConUnNivelFreáticoDeCeroPuntos) {
  EXPECT_EQ(RutaArchivoTaludEstratosNF(), ruta);
  Escribir({"3", "40,10", "20,10", "0,0", "0", "2", "2", "40,6", "0,-2", "3", "40,2.5", "20,1",
            "0,-5"});
  p.Ventana.TipoPanel = 2;  // the panel was elsewhere
  Leer("S");
  EXPECT_EQ(ui.Textos(), Textos{kPreguntaCarpeta});  // an empty project: only this question
  ASSERT_EQ(p.NúmeroPuntosTalud, 3);
  EXPECT_EQ(Filas(p.CoordenadasTalud.X), (std::vector<double>{40, 20, 0}));
  EXPECT_EQ(p.NúmeroPuntosFreático, 0);
  ASSERT_EQ(p.NúmeroEstratos, 2);
  EXPECT_EQ(Filas(p.PuntosEstrato), (std::vector<double>{2, 3}));
  EXPECT_EQ((std::vector<double>{p.YEstrato(1, 2), p.YEstrato(2, 1), p.XEstrato(2, 3)}),
            (std::vector<double>{-2, 2.5, 0}));
  EXPECT_EQ(p.Ventana.ListaEstrato, (Textos{"Seleccione el estrato", "1", "2"}));
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  EXPECT_EQ(DelPanel(), (Puntos{{40, 10}, {20, 10}, {0, 0}}));
  EXPECT_FALSE(p.DatosGuardados);
  // Without a base folder given the folder hangs from the user's home.
  ::unsetenv("LOMATERRA_CARPETA_BASE");
  const char* casa = std::getenv("HOME");
  if (casa != nullptr && *casa != '\0') {
    EXPECT_EQ(RutaArchivoTaludEstratosNF(),
              std::string(casa) + "/CarpetaTaludEstratoNF/taludestratosNF.cod");
  }
}

TEST_F(ArchivoLateral, ConTaludYaDadoPreguntaPrimeroYSinArchivoNadaCambia) {
  p.Ventana.ListaCoordenadas = {{50, 5}, {30, 1}};  // the surface, still only in the panel
  Leer("N");
  EXPECT_EQ(ui.Textos(), Textos{kPreguntaYaExisten});
  EXPECT_EQ(Filas(p.CoordenadasTalud.X), (std::vector<double>{50, 30}));  // stored, not read
  Leer("SN");  // yes, load; no, there is no folder
  EXPECT_EQ(ui.Textos(), (Textos{kPreguntaYaExisten, kPreguntaCarpeta}));
  Leer("SS");
  EXPECT_EQ(ui.Textos(), (Textos{kPreguntaYaExisten, kPreguntaCarpeta, "No se encontró el archivo "
                                 + ruta + ". Las coordenadas no se han cambiado."}));
  EXPECT_EQ(Filas(p.CoordenadasTalud.X), (std::vector<double>{50, 30}));
  Escribir({"2", "9,1", "0,0", "1", "9,0.5", "0"});
  Leer("SS");
  EXPECT_EQ(ui.Textos().size(), 2u);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[1], 9);
  EXPECT_EQ(p.NúmeroPuntosFreático, 1);
  EXPECT_EQ(p.NúmeroEstratos, 0);
}

TEST_F(ArchivoLateral, UnaLíneaMalaTerminaLaLecturaYConservaLoLeído) {
  Escribir({"2", "40,10", "0,0", "3", "40,8", "veinte,7", "0,6", "1", "2", "40,1", "0,0"});
  Leer("S");
  ASSERT_EQ(ui.Textos().size(), 2u);
  const std::string texto = ui.Textos()[1];
  EXPECT_EQ(texto.rfind("Error leyendo el archivo " + base, 0), 0u) << texto;
  EXPECT_NE(texto.find("en las coordenadas del nivel freático"), std::string::npos) << texto;
  // The one full record of the phreatic line before the bad line is kept; the panel is reloaded.
  EXPECT_EQ((std::vector<Entero>{p.NúmeroPuntosTalud, p.NúmeroPuntosFreático, p.NúmeroEstratos}),
            (std::vector<Entero>{2, 1, 0}));
  EXPECT_DOUBLE_EQ(p.CoordenadasFreático.Y[1], 8);
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  EXPECT_EQ(DelPanel(), (Puntos{{40, 10}, {0, 0}}));
  // Ends inside stratum 1 of 2: it and its two points read are kept. A negative count reads none.
  const std::pair<Textos, std::vector<Entero>> casos[] = {
      {{"1", "5,5", "0", "2", "3", "5,1", "4,0"}, {1, 1, 2}}, {{"-2", "5,5"}, {0, 0, 0}}};
  for (const auto& [líneas, esperado] : casos) {
    Proyecto q;
    Escribir(líneas);
    EXPECT_FALSE(LeerArchivoTaludEstratosNF(q, ruta).error.empty());
    EXPECT_EQ((std::vector<Entero>{q.NúmeroPuntosTalud, q.NúmeroEstratos, q.PuntosEstrato.Leer(1)}),
              esperado);
  }
}

using pruebas::Pulsar;

// ---- Finite-element mesh and seismic results

Proyecto ConNodos(int n) {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  p.TipoDeMaterial = "S";
  p.NúmeroEstratos = 2;
  PantallaNodos s(p);
  InterfazGuionada ui;
  s.Activar(ui);
  for (int i = 1; i <= n; ++i)
    Pulsar(s, {{"Texto_Nodo", std::to_string(i).c_str()}, {"TextoX_Nodo", "1.5"}, {"TextoY_Nodo", "2"}, {"TextoZ_Nodo", "0"}}, "BotónAgregar");
  s.Aceptar(ui);
  return p;
}

TEST(PantallaNodos, ComprobacionesYOrden) {
  Proyecto p;
  PantallaNodos s(p);
  InterfazGuionada ui;
  pruebas::Activar(s, ui);
  const std::array<const char*, 5> casos[] = {
      {"a", "1", "1", "1", "Debe introducir un número entero"},
      {"1", "", "1", "1", "Debe introducir un número en x"},
      {"1", "1", "b", "1", "Debe introducir un número en y"},
      {"1", "1", "1", "", "Debe introducir un número en z"}};
  for (const auto& [nodo, x, y, z, mensaje] : casos)
    EXPECT_EQ(Pulsar(s, {{"Texto_Nodo", nodo}, {"TextoX_Nodo", x}, {"TextoY_Nodo", y},
                         {"TextoZ_Nodo", z}}, "BotónAgregar"),
              Textos{mensaje});
  // 2, 1, 4 in any order: kept descending; the second may repeat the first; the third may not.
  for (const char* n : {"2", "1", "4"})
    EXPECT_TRUE(Pulsar(s, {{"Texto_Nodo", n}, {"TextoX_Nodo", "1"}, {"TextoY_Nodo", "1"}, {"TextoZ_Nodo", "0"}}, "BotónAgregar").empty());
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo", "1"}}, "BotónAgregar"), std::vector<std::string>{"Ya existe un nodo con el mismo número."});
  const auto& l = s.lista("ListaCoordenadasNodos");
  ASSERT_EQ(l.filas.size(), 3u);
  EXPECT_EQ(l.filas[0][0] + l.filas[1][0] + l.filas[2][0], "421");
  EXPECT_EQ(l.filas[0][1], "1.00");
  EXPECT_EQ(Pulsar(s, {}, "BotónAceptar"),
            std::vector<std::string>{"La numeración que ud tiene asignada a los nodos no es continua. La numeración a "
                   "los nodos debe ser: 1,2,3,4...."});
  EXPECT_FALSE(s.cerrada || p.Malla.NodosDefinidos);
  Proyecto q;
  PantallaNodos vacía(q);
  vacía.Activar(ui);
  vacía.Aceptar(ui);
  EXPECT_TRUE(vacía.cerrada && !q.Malla.NodosDefinidos);
}

TEST(PantallaElementos, SeisNodosConLadosRectosYCurvos) {
  Proyecto p = ConNodos(7);
  ASSERT_TRUE(p.Malla.NodosDefinidos);
  ASSERT_EQ(p.Malla.Nodo.NúmeroDeNodo[1], 7);
  PantallaElementos s(p);
  InterfazGuionada ui;
  s.Activar(ui);
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "1"}}, "BotónAgregar"), std::vector<std::string>{"Debe insertar el primer elemento"});
  s.NuevoElemento(ui);
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "x"}}, "BotónAgregar"),
            Textos{"Debe introducir el número asignado al nodo"});
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "9"}}, "BotónAgregar"),
            Textos{"Debe introducir un número que identifique un nodo dado"});
  // Six nodes, side 1-2 straight: the fourth repeats the first.
  for (const char* n : {"1", "2", "3", "1", "5", "6"}) Pulsar(s, {{"Texto_Nodo_Elemento", n}}, "BotónAgregar");
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "7"}}, "BotónAgregar"),
            std::vector<std::string>{"Ud ha seleccionado trabajar con elementos triangulares y está asignando más de seis "
                   "nodos al elemento que tiene al frente."});
  EXPECT_EQ(Pulsar(s, {{"TextoNúmeroPuntosIntegración", "2"}}, "Modificar").size(), 1u);
  EXPECT_EQ(Pulsar(s, {{"TextoNúmeroPuntosIntegración", "3"}, {"TextoLadoUnoDOs", "no"}, {"TextoLadoDOsTres", "tal vez"}}, "Modificar"),
            std::vector<std::string>{"Si existe nodo intermedio en el lado 2 - 3, escriba 'SI' de lo contrario escriba  'NO'"});
  EXPECT_TRUE(Pulsar(s, {{"TextoLadoUnoDOs", "no"}, {"TextoLadoDOsTres", "si"}, {"TextoLadoTresUno", "SI"}}, "Modificar").empty());
  EXPECT_TRUE(Pulsar(s, {}, "BotónAceptar").empty());
  ASSERT_TRUE(s.cerrada);
  EXPECT_TRUE(p.Malla.ElementosDefinidos);
  EXPECT_EQ(p.Malla.Elemento.NodosPorElemento[1], 6);
  EXPECT_EQ(p.Malla.Elemento.Lado12[1], 2);
  EXPECT_EQ(p.Malla.Elemento.XElemento(1, 4), 1.5);
  // The centre is the plain mean of the six entries: every node of ConNodos lies at (1.5, 2).
  EXPECT_EQ(p.Malla.Elemento.XCentroElemento[1], 1.5);
  // The fourth node equal to the second on a straight side 1-2 is refused at Aceptar.
  PantallaElementos t(p);
  pruebas::Activar(t, ui);
  t.lista("ListaNodosElementos").seleccionada = 4;
  EXPECT_TRUE(Pulsar(t, {{"Texto_Nodo_Elemento", "2"}}, "BotónModificar").empty());
  EXPECT_EQ(Pulsar(t, {}, "BotónAceptar"),
            Textos{"El elemento triangular es de orden cuadrático(definidos por seis nodos). "
                   "Cuando el Lado 1-2 es recto, el cuarto nodo insertado debe ser igual al número "
                   "que identifica el primer nodo insertado. El elemento identificado con el "
                   "número que está al final de este mensaje no cumple con esta exigencia: 1"});
  EXPECT_FALSE(t.cerrada);
}

TEST(PantallasDeMalla, RestriccionesYCargas) {
  Proyecto p = ConNodos(3);
  p.Malla.NúmeroDeElementos = 1;
  p.Malla.Elemento.Redimensionar(1);
  p.Malla.Elemento.NodosPorElemento[1] = 3;
  for (int k = 1; k <= 3; ++k) p.Malla.Elemento.NodoDeElemento(1, k) = k;
  InterfazGuionada ui;
  PantallaRestricciones r(p);
  r.Activar(ui);
  const pruebas::Cajas fila = {{"TextoNodoRestringido", "2"}, {"TextoRestricciónX", "n"},
                               {"TextoRestricciónY", "S"},    {"TextoRestricciónZ", "N"},
                               {"TextoResorteX", "0"},        {"TextoResorteY", "5000"},
                               {"TextoResorteZ", "0"}};
  EXPECT_TRUE(Pulsar(r, fila, "BotónAgregar").empty());
  EXPECT_EQ(Pulsar(r, fila, "BotónAgregar"), std::vector<std::string>{"Ya existe un nodo con restricción con el mismo número."});
  EXPECT_EQ(r.Filas().size(), 2u);
  EXPECT_EQ(Pulsar(r, {{"TextoNodoRestringido", "8"}}, "BotónAgregar"),
            Textos{"Debe introducir un número que corresponda a determinado elemento"});
  EXPECT_EQ(Pulsar(r, {{"TextoNodoRestringido", "1"}, {"TextoRestricciónY", "X"}}, "BotónAgregar"),
            std::vector<std::string>{"Para la condición de restricción en <Y> debe introducir una 'S para condición con "
                   "desplazamiento' o una 'N para condición sin desplazamiento'"});
  EXPECT_EQ(Pulsar(r, {{"TextoRestricciónY", "s"}, {"TextoResorteY", ""}}, "BotónAgregar"),
            std::vector<std::string>{"Debe introducir un valor para la constante del resorte en dirección 'y' incluyendo el "
                   "cero cuando no exista desplazamiento en determinada dirección."});
  EXPECT_EQ(Pulsar(r, {}, "BotónAceptar", "N").size(), 1u);  // the question only
  EXPECT_TRUE(p.Malla.NodosRestringidosDefinidos);
  EXPECT_EQ(p.Malla.NodoConRestricción.RestricciónX[1], "N");
  EXPECT_EQ(p.Malla.NodoConRestricción.ResorteY[2], 5000);

  PantallaCargasElementos c(p);
  c.Activar(ui);
  EXPECT_EQ(Pulsar(c, {{"TextoCargaQx", "0"}, {"TextoCargaQy", "3"}, {"TextoNodoUno", "1"}, {"TextoNodoDos", "7"}}, "BotónAgregar"),
            Textos{"Debe introducir para el nodo dos donde actua la carga, un número de nodo que "
                   "corresponda al elemento que tiene en frente."});
  EXPECT_EQ(c.texto("TextoNodoDos"), "");
  EXPECT_EQ(Pulsar(c, {{"TextoCargaQx", ""}}, "BotónModificar"),
            Textos{"Ud no ha seleccionado ninguna fila para modificar valores ya agregados."});
  EXPECT_TRUE(Pulsar(c, {{"TextoCargaQx", "0"}, {"TextoNodoDos", "2"}}, "BotónAgregar").empty());
  c.Aceptar(ui);
  EXPECT_TRUE(p.Malla.CargasUniformesDefinidas);
  EXPECT_EQ(p.Malla.CargaUniforme.CargaQy[1], 3);
}

TEST(ComandosDeMalla, PuertasYArchivosLaterales) {
  const std::tuple<void (*)(Proyecto&, Interfaz&), bool, const char*> casos[] = {
      {MenúCoordenadasNodos, false, "Ud. no está trabajando con elementos finitos"},
      {CaracterizaciónElementos, true, "Debe definir primero los elementos y número de estratos"},
      {NodosConRestricción, true, "Debe definir primero los elementos"},
      {PresionesDePoros, false,
       "Ud.está trabajando por métodos de equilibrio límites y no con elementos finitos."},
      {PresionesDePoros, true, "No se han definido los elementos finitos."},
  };
  for (const auto& [comando, elementosFinitos, texto] : casos) {
    Proyecto p;
    p.TipoDeAnálisis = elementosFinitos ? "F" : "T";
    InterfazGuionada ui;
    comando(p, ui);
    EXPECT_EQ(ui.Textos(), Textos{texto});
  }
  // Side files: four nodes, then two elements by their corners.
  const std::string carpeta = pruebas::CarpetaTemporal();
  std::ofstream(carpeta + "/coordenadas.cod") << "4\r\n4,1,1,0\r\n3,0,1,0\r\n2,1,0,0\r\n1,0.001,0.002,0\r\n";
  std::ofstream(carpeta + "/elementos.cod") << "2\r\n1,2,4\r\n1,4,3\r\n";
  Proyecto p;
  p.TipoDeAnálisis = "F";
  ASSERT_TRUE(LeerArchivoCoordenadasNodos(p, carpeta + "/coordenadas.cod").error.empty());
  ASSERT_TRUE(LeerArchivoElementos(p, carpeta + "/elementos.cod").error.empty());
  EXPECT_EQ(p.Malla.NúmeroDeNodos, 4);
  EXPECT_EQ(p.Malla.NúmeroDeElementos, 2);
  EXPECT_TRUE(p.Malla.ElementosDefinidos);
  EXPECT_EQ(p.Malla.Elemento.XElemento(2, 3), 0);
  EXPECT_EQ(p.Malla.Elemento.YElemento(1, 1), 0.002);
  EXPECT_EQ(p.Malla.Elemento.PuntosIntegración[1], 1);
  EXPECT_FALSE(LeerArchivoElementos(p, carpeta + "/no.cod").error.empty());
}

const std::string kNoAnalizado =
    "Ese registro no existe o no fue analizado, debido a que los esfuerzos producidos por los "
    "registros anteriores, superaron la resistencia al cortante del suelo.";

TEST(ResultadosSísmicos, ElRegistroPedidoSeCompruebaEnOrden) {
  Proyecto sin;
  InterfazGuionada nada;
  ResultadosDeEsfuerzosDesplazamientosPorSísmo(sin, nada);  // no calculation: it says so
  EXPECT_EQ(nada.Transcripción(),
            (std::vector<Apunte>{{"mensaje", "No ha hecho el cálculo completo de esfuerzos:",
                                  "Realice el cálculo para ver resultados  ", ""}}));
  const std::pair<const char*, std::string> casos[] = {
      {"abc", "Debe introducir un valor numérico y entero"},
      {"1.5", "Ud. debe dar un número entero"},
      {"4", kNoAnalizado},  // the record has 4 points, 3 were computed
      {"0", kNoAnalizado},
      {" 2 ", ""}};
  for (const auto& [texto, mensaje] : casos) {
    Proyecto p = pruebas::SismoAMano();
    p.Malla.FSSísmico = 1.234;
    InterfazGuionada ui;
    PantallaResultadosSísmicos f(p);
    f.Activar(ui);
    EXPECT_EQ(f.texto("TextoTotalRegistrosSismicos"), "3");
    EXPECT_EQ(f.texto("TextoFactorSeguridadDeslizamiento"), "1.23");
    EXPECT_NE(f.nota.find("El cálculo se interrumpió (el usuario pulsó Cancelar o una falla del "
                          "cálculo lo terminó): se calcularon 3 de 4 registros."),
              std::string::npos);
    f.texto("Texto_Del_Registro_Que_Ud_Ver") = texto;
    f.Pulsar("BotónAceptar", ui);
    const auto& n = f.lista("ResultadosDeLosDesplazamientosSísmo").filas;
    if (!mensaje.empty()) {
      ASSERT_EQ(ui.Textos(), Textos{mensaje}) << texto;
      EXPECT_TRUE(n.empty());
      EXPECT_EQ(p.Sísmico.RegistroSeleccionado, 0);
      continue;
    }
    EXPECT_TRUE(ui.Textos().empty());
    EXPECT_EQ(p.Sísmico.RegistroSeleccionado, 2);
    // Nodes in table order (4, 3, 2, 1): node 3 is the second row, degrees 5 and 6.
    ASSERT_EQ(n.size(), 4u);
    EXPECT_EQ(n[1], (Textos{"3", "1.235", "0.000", "0.000", "-0.500", "0.250", "0.000"}));
    const auto& e = f.lista("ResultadosDeLosEsfuerzosSísmo").filas;
    ASSERT_EQ(e.size(), 2u);
    EXPECT_EQ(e[1], (Textos{"2", "0.000", "-20.000", "3.500", "0.000", "0.000", "0.000", "0.000"}));
  }
}

TEST(ResultadosSísmicos, ClicEnUnPuntoFijoOLibre) {
  Proyecto p = pruebas::SismoAMano();
  p.Sísmico.RegistroSeleccionado = 2;
  InterfazGuionada ui;
  PantallaResultadosSísmicos f(p);
  f.Activar(ui);
  NodoElegidoSísmico() = 0;
  f.ClicEnNodo(4, ui);  // node 1: "N" both ways
  f.ClicEnNodo(3, ui);  // node 2: fixed along x only, its chart opens
  ASSERT_EQ(ui.Transcripción().size(), 2u);
  EXPECT_EQ(ui.Transcripción()[0].texto,
            "El punto de coordenada seleccionado es un punto con restricción, sin desplazamiento "
            "en ninguna dirección");
  EXPECT_EQ(ui.Transcripción()[1].tipo, "figura");
  EXPECT_EQ(ui.Transcripción()[1].texto, "GraficaDeRegistroSísmicoEstimadoDeAceleraciones");
  EXPECT_EQ(NodoElegidoSísmico(), 2);
  EXPECT_EQ(f.texto("TextoPtoCoordenadaParaRegistro"), "2");
  NodoElegidoSísmico() = 0;
}

}  // namespace
}  // namespace lomaterra
