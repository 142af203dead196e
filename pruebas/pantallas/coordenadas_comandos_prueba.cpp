// The commands of the menu "Coordenadas": gates of entry, inserting and deleting strata, deleting
// the phreatic line. Transcripts word for word.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "apoyo/guion.h"
#include "pantallas/comandos_coordenadas.h"
#include "pantallas/form4.h"
#include "proyecto/ventana_principal.h"
#include "proyecto/comandos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

using pruebas::Renglones;

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

class Coordenadas : public ::testing::Test {
 protected:
  void SetUp() override {
    ReiniciarProyecto(p);
    p.InformaciónDada = true;
  }
  // A stratum s whose lower line is given by its points, stored through the panel.
  void DarEstrato(int s, std::vector<PuntoPanel> puntos) {
    p.Ventana.ListaCoordenadas = std::move(puntos);
    GuardarPanelCoordenadas(p, 4, s);
  }
  // Two characterised soil strata: stratum 1 with 2 points and cohesion 1.5, stratum 2 with 3
  // points and cohesion 2.5.
  void DosEstratosDeSuelo() {
    p.TipoDeMaterial = "S";
    p.NúmeroEstratos = 2;
    DarEstrato(1, {{40, 8}, {0, 6}});
    DarEstrato(2, {{40, 3}, {20, 2}, {0, 1}});
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
  const std::vector<std::pair<const char*, Acción>> comandos = {
      {"MenúCoordenadasTalud", MenúCoordenadasTalud},
      {"MenúCoordenadasFalla", MenúCoordenadasFalla},
      {"MenúCoordenadasFreático", MenúCoordenadasFreático},
      {"MenúCoordenadasEstratos", MenúCoordenadasEstratos},
      {"MenúInsertarEstrato", MenúInsertarEstrato},
      {"MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo",
       MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo},
  };
  p.InformaciónDada = false;
  p.Ventana.TipoPanel = 3;
  p.Ventana.ListaCoordenadas = {{5, 5}};
  for (const auto& [nombre, comando] : comandos) {
    SCOPED_TRACE(nombre);
    InterfazGuionada i("SSSS");
    comando(p, i);
    EXPECT_EQ(
        Renglones(i),
        std::vector<std::string>{
            "[mensaje] Información requerida | Debe dar la información del proyecto. Entre al "
            "menú 'Archivo'"});
    EXPECT_EQ(p.Ventana.TipoPanel, 3);
    EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 1u);
    EXPECT_EQ(p.NúmeroPuntosFreático, 0);
    EXPECT_EQ(p.NúmeroEstratos, 0);
  }
}

TEST_F(Coordenadas, TodosLosComandosEstánEnElMenú) {
  const auto árbol = ÁrbolDeMenús();
  for (const char* n :
       {"MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo", "MenúCoordenadasTalud",
        "MenúCoordenadasFalla", "MenúCoordenadasFreático", "MenúCoordenadasEstratos",
        "MenúInsertarEstrato", "MenúEliminarEstrato", "MenúEliminarNivelFreático", "ArchivoNuevo",
        "MenúArchivoAbrir", "MenúArchivoGuardar", "MenúArchivoGuardarComo", "MenúArchivoSalir",
        "MenúAyudaContenido", "MenúAyudaAcercaDe", "MenúInformación", "CaracterísticasGeomecánicasSuelos",
        "MénuGeometríaEntrePuntosSuperficieFalla", "CargasUniformes", "CargasPuntuales",
        "MenúArchivoConstantes", "ParámetrosInicialesDeCálculoElementosFinitos"}) {
    const EntradaMenú* e = BuscarEntrada(árbol, n);
    ASSERT_NE(e, nullptr) << n;
    EXPECT_TRUE(e->Habilitada()) << n;
  }
}

TEST_F(Coordenadas, EstratosSinNingunoPideInsertarPrimero) {
  MenúCoordenadasEstratos(p, ui);
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Actualmente no hay estratos. Seleccione primero "
                                                  "una de las opciones: \nInsertar estrato"});
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
}

TEST_F(Coordenadas, InsertarSeNiegaMientrasFalteInformaciónDeUnEstratoInsertado) {
  struct Caso {
    bool Proyecto::*bandera;
    const char* texto;
  };
  const Caso casos[] = {
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
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.texto);
    p.*c.bandera = false;
    InterfazGuionada i;
    ElegirEnForm4(i, 1);
    MenúInsertarEstrato(p, i);
    EXPECT_EQ(Renglones(i), std::vector<std::string>{
                             std::string("[mensaje] Información por dar:: | ") + c.texto});
    EXPECT_EQ(p.NúmeroEstratos, 2);
    p.*c.bandera = true;
  }
}

TEST_F(Coordenadas, PrimerEstratoSinPreguntarDónde) {
  p.TipoDeMaterial = "S";
  MenúInsertarEstrato(p, ui);
  EXPECT_EQ(Renglones(ui), std::vector<std::string>{kInsertado});  // no Form4
  EXPECT_EQ(p.NúmeroEstratos, 1);
  EXPECT_EQ(p.PuntosEstrato.Leer(1), 0);
  EXPECT_EQ(p.Ventana.ListaEstrato, (std::vector<std::string>{"Seleccione el estrato", "1"}));
  EXPECT_EQ(p.Ventana.TipoPanel, 4);
  EXPECT_EQ(p.Ventana.EstratoPanel, 1);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas del estrato");
  EXPECT_FALSE(p.CaracterísticasSueloCompletas);
  EXPECT_TRUE(p.CaracterísticasRocaCompletas);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Coordenadas, Form4OfreceAntesEntreYDespués) {
  DosEstratosDeSuelo();
  p.NúmeroEstratos = 3;
  Form4 f(p);
  f.Activar(ui);
  std::vector<std::vector<std::string>> filas = {{"antes del primero"},
                                                 {"entre el estrato 1 y el estrato 2"},
                                                 {"entre el estrato 2 y el estrato 3"},
                                                 {"después del último"}};
  EXPECT_EQ(f.lista("ListaEntre").filas, filas);
  f.Pulsar("BotónAceptar", ui);  // nothing chosen: it says so and stays open
  EXPECT_EQ(ui.Textos(),
            std::vector<std::string>{"Seleccione en la lista el lugar del nuevo estrato."});
  EXPECT_EQ(f.Posición, 0);
}

TEST_F(Coordenadas, InsertarEntreDosEstratosMueveTodasLasFilas) {
  DosEstratosDeSuelo();
  ElegirEnForm4(ui, 2);  // between stratum 1 and stratum 2: the new one is stratum 2
  MenúInsertarEstrato(p, ui);
  EXPECT_EQ(Renglones(ui), (std::vector<std::string>{"[pantalla] Insertar estrato", kInsertado}));
  ASSERT_EQ(p.NúmeroEstratos, 3);
  EXPECT_EQ(Filas(p.PuntosEstrato), (std::vector<double>{2, 0, 3}));
  EXPECT_DOUBLE_EQ(p.XEstrato(1, 1), 40);
  EXPECT_DOUBLE_EQ(p.YEstrato(1, 2), 6);
  EXPECT_DOUBLE_EQ(p.YEstrato(2, 1), 0);
  EXPECT_DOUBLE_EQ(p.XEstrato(3, 2), 20);
  EXPECT_DOUBLE_EQ(p.YEstrato(3, 3), 1);
  EXPECT_EQ(Filas(p.Estrato.Cohesión), (std::vector<double>{1.5, 0, 2.5}));
  EXPECT_EQ(Filas(p.Estrato.TipoEstrato), (std::vector<double>{1, 0, 0}));
  EXPECT_FALSE(p.EstratosCaracterizados);
  EXPECT_FALSE(p.CaracterísticasSueloCompletas);
  EXPECT_EQ(p.Ventana.ListaEstrato.size(), 4u);
  EXPECT_EQ(p.Ventana.EstratoPanel, 2);
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());

  // Until the new stratum has its characteristics no other may be inserted.
  InterfazGuionada i;
  ElegirEnForm4(i, 1);
  MenúInsertarEstrato(p, i);
  ASSERT_EQ(i.Textos().size(), 1u);
  EXPECT_EQ(p.NúmeroEstratos, 3);
}

TEST_F(Coordenadas, InsertarAntesDelPrimeroYDespuésDelÚltimo) {
  DosEstratosDeSuelo();
  p.TipoDeMaterial = "R";
  ElegirEnForm4(ui, 1);
  MenúInsertarEstrato(p, ui);
  ASSERT_EQ(p.NúmeroEstratos, 3);
  EXPECT_EQ(Filas(p.PuntosEstrato), (std::vector<double>{0, 2, 3}));
  EXPECT_FALSE(p.CaracterísticasRocaCompletas);
  EXPECT_TRUE(p.CaracterísticasSueloCompletas);
  p.CaracterísticasRocaCompletas = true;  // the rock screen has been filled
  InterfazGuionada i;
  ElegirEnForm4(i, 4);  // after the last of three
  MenúInsertarEstrato(p, i);
  ASSERT_EQ(p.NúmeroEstratos, 4);
  EXPECT_EQ(Filas(p.PuntosEstrato), (std::vector<double>{0, 2, 3, 0}));
  EXPECT_EQ(Filas(p.Estrato.Cohesión), (std::vector<double>{0, 1.5, 2.5, 0}));
}

TEST_F(Coordenadas, Form4CerradoNoInsertaNada) {
  DosEstratosDeSuelo();
  p.Ventana.ListaCoordenadas = {{1, 1}};  // a panel not yet stored stays as it is
  MenúInsertarEstrato(p, ui);             // no script: Form4 is closed with its exit button
  EXPECT_EQ(Renglones(ui), std::vector<std::string>{"[pantalla] Insertar estrato"});
  EXPECT_EQ(p.NúmeroEstratos, 2);
  EXPECT_TRUE(p.EstratosCaracterizados);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 1u);
}

TEST_F(Coordenadas, EliminarEstrato) {
  DosEstratosDeSuelo();
  // Not a stratum in the panel.
  MenúEliminarEstrato(p, ui);
  EXPECT_EQ(Renglones(ui),
            std::vector<std::string>{"[mensaje]  | Seleccione la opción coordenadas estrato"});
  // No to the question.
  ui.Olvidar();
  MenúCoordenadasEstratos(p, ui);
  ui.Responder("N");
  MenúEliminarEstrato(p, ui);
  EXPECT_EQ(Renglones(ui),
            std::vector<std::string>{
                "[pregunta]  | Desea eleminar el estrato que se muestra en pantalla? -> N"});
  EXPECT_EQ(p.NúmeroEstratos, 2);
  // No material yet: refused after the question.
  ui.Olvidar();
  p.TipoDeMaterial = "";
  ui.Responder("S");
  MenúEliminarEstrato(p, ui);
  EXPECT_EQ(
      Renglones(ui),
      (std::vector<std::string>{
          "[pregunta]  | Desea eleminar el estrato que se muestra en pantalla? -> S",
          "[mensaje]  | Por favor vaya a la opción PARAMETROS INICIALES DE CALCULO e indique si "
          "está trabajando en SUELO o ROCA"}));
  EXPECT_EQ(p.NúmeroEstratos, 2);
  // Yes: stratum 1 goes, stratum 2 closes up into its place and shows in the panel.
  p.TipoDeMaterial = "S";
  ui.Responder("S");
  MenúEliminarEstrato(p, ui);
  ASSERT_EQ(p.NúmeroEstratos, 1);
  EXPECT_EQ(p.PuntosEstrato[1], 3);
  EXPECT_DOUBLE_EQ(p.XEstrato(1, 2), 20);
  EXPECT_DOUBLE_EQ(p.Estrato.Cohesión[1], 2.5);
  EXPECT_EQ(p.Ventana.ListaEstrato, (std::vector<std::string>{"Seleccione el estrato", "1"}));
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 3u);
  EXPECT_FALSE(p.DatosGuardados);
  // The last one: the panel goes back to the surface.
  ui.Responder("S");
  MenúEliminarEstrato(p, ui);
  EXPECT_EQ(p.NúmeroEstratos, 0);
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
}

TEST_F(Coordenadas, EliminarNivelFreáticoEnSusTresCasos) {
  // Nothing stored and nothing in the panel.
  MenúEliminarNivelFreático(p, ui);
  EXPECT_EQ(ui.Textos(),
            std::vector<std::string>{"Seleccione la opción coordenadas nivel freático"});

  // Points in the panel of the phreatic line, none stored yet.
  ui.Olvidar();
  MenúCoordenadasFreático(p, ui);
  p.Ventana.ListaCoordenadas = {{10, 4}, {0, 2}};
  ui.Responder("NS");
  MenúEliminarNivelFreático(p, ui);
  EXPECT_EQ(p.Ventana.ListaCoordenadas.size(), 2u);
  MenúEliminarNivelFreático(p, ui);
  EXPECT_EQ(ui.Textos(),
            (std::vector<std::string>{"Desea eliminar todas las coordenadas y que serán las "
                                      "correspondientes al nivel freático?",
                                      "Desea eliminar todas las coordenadas y que serán las "
                                      "correspondientes al nivel freático?"}));
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
  EXPECT_EQ(ui.Textos(),
            (std::vector<std::string>{"Desea eleminar las coordenadas del nivel freático?",
                                      "Desea eleminar las coordenadas del nivel freático?"}));
  EXPECT_EQ(p.NúmeroPuntosFreático, 0);
  MenúCoordenadasFreático(p, ui);
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
}

}  // namespace
}  // namespace lomaterra
