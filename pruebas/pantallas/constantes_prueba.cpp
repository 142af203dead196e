#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/constantes.h"
#include "pantallas/constantes_elementos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

// A soil slope on limit equilibrium whose failure surface is one arc from (20, 6) down to (10, 0).
Proyecto ProyectoDeArco() {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  pruebas::PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{100, 30}, {70, 30}, {40, 10}});
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 6}, {10, 0}});
  pruebas::PonerTramos(p, {{1, 2, "C"}});
  return p;
}

// The surface turned into two straight segments through three points.
void HacerPoligonal(Proyecto& p) {
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 6}, {15, 1}, {10, 0}});
  pruebas::PonerTramos(p, {{1, 2, "L"}, {2, 3, "L"}});
}

class Constantes : public ::testing::Test {
 protected:
  Proyecto p = ProyectoDeArco();
  InterfazGuionada ui;
  PantallaConstantes pantalla{p};

  // Opens the screen and writes a valid Bishop entry with no crack.
  void Abrir() {
    pantalla.cerrada = false;
    pantalla.Activar(ui);
    ASSERT_FALSE(pantalla.cerrada);
    ui.Olvidar();
    Escribir({{"MétodoDeCálculo", "2"}, {"DefiniciónDeParámetrosInstantáneos", "0"},
              {"MultiplicadorLagrange1", " "}, {"MultiplicadorLagrange2", " "}, {"FSInicial", "1.5"},
              {"EsfuerzoInicialCresta", ""}, {"RadioCírculoFalla", "10"}, {"VaríaElRadio", "n"},
              {"NúmeroDovelas", "10"}, {"CoeficienteSísmicoHorizontal", "0"},
              {"CoeficienteSísmicoVertical", "0"}, {"AbscisaPrimerPuntoGrieta", "0"},
              {"OrdenadaPrimerPuntoGrieta", "0"}, {"AbscisaSegundoPuntoGrieta", "0"},
              {"OrdenadaSegundoPuntoGrieta", "0"}, {"AbscisaNivelFreáticoGrieta", "0"},
              {"OrdenadaNivelFreáticoGrieta", "0"}});
  }
  // Boxes by their names without the prefix "Texto".
  void Escribir(const std::vector<std::pair<const char*, const char*>>& cajas) {
    for (const auto& [c, v] : cajas) pantalla.texto(std::string("Texto") + c) = v;
  }
  void Aceptar() { pantalla.Pulsar("BotónAceptar", ui); }
};

// Each refusal of Aceptar, in the order of the checks, with its words and title; the screen stays
// open and nothing reaches the project.
struct Rechazo {
  const char* caso;
  std::vector<std::pair<const char*, const char*>> cambios;
  std::string respuestas;  // answers to the questions on the way
  std::string título;
  std::string texto;
};

const char* const kGrieta = "Debe introducir un número 'incluyendo el cero' cuando no exista.";
const char* const kOrdenadas =
    "La ordenada del segundo punto de la grieta debe ser menor que la ordenada del nivel freático";
const char* const kAbscisas =
    "La abscisa del segundo punto de la grieta debe ser menor o aproximadamente igual que la abscisa "
    "del N.F en la grieta";

const std::vector<Rechazo> kRechazos = {
    {"método no numérico", {{"MétodoDeCálculo", "b"}}, "", "",
     "Debe introducir el número <1> o <2> o <3> o <4> dependiendo del método de cálculo que Ud. considere"},
    {"método fuera de 1..4", {{"MétodoDeCálculo", "5"}}, "", "",
     "Ud. debe seleccionar el número <1> o <2> o <3> o <4> dependiendo del método de cálculo que Ud. considere"},
    {"Leshchinsky sin primer multiplicador", {{"MétodoDeCálculo", "1"}}, "S", "",
     "Debe introducir un número para este primer multiplicador"},
    {"Leshchinsky sin segundo multiplicador",
     {{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"}}, "S", "",
     "Debe introducir un número para este segundo multiplicador"},
    {"Leshchinsky con factor no numérico",
     {{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"},
      {"MultiplicadorLagrange2", "40"}, {"FSInicial", "uno"}},
     "S", "", "Debe introducir un número para el factor de seguridad"},
    {"Leshchinsky con factor cero",
     {{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"},
      {"MultiplicadorLagrange2", "40"}, {"FSInicial", "0"}},
     "S", "", "Debe dar un factor de seguridad mayor que cero y razonable"},
    {"Leshchinsky en suelo sin esfuerzo inicial",
     {{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"},
      {"MultiplicadorLagrange2", "40"}},
     "S", "", "Debe introducir un número para el esfuerzo inicial, en el rango recomendado"},
    {"Janbu con factor en blanco", {{"MétodoDeCálculo", "4"}, {"FSInicial", " "}}, "", "",
     "Debe dar un factor de seguridad mayor que cero y razonable"},
    {"radio negativo", {{"RadioCírculoFalla", "-3"}}, "", "",
     "Debe introducir un número mayor que cero para el radio del arco de círculo de falla y razonable para el cálculo"},
    {"radio no numérico", {{"RadioCírculoFalla", "diez"}}, "", "",
     "Introduzca un valor razonable para el radio"},
    {"letra del radio", {{"VaríaElRadio", "x"}}, "", "",
     "Introduzca  una 'S' para variar el RADIO y 'N' para mantener su valor CONSTANTE"},
    {"sísmico horizontal", {{"CoeficienteSísmicoHorizontal", ""}}, "", "",
     "Debe introducir un número para el coeficiente sísmico horizontal 'incluyendo el cero'"},
    {"sísmico vertical", {{"CoeficienteSísmicoVertical", "a"}}, "", "",
     "Debe introducir un número para el coeficiente sísmico vertical 'incluyendo el cero'"},
    {"dovelas no numéricas", {{"NúmeroDovelas", "diez"}}, "", "",
     "Debe introducir un número para la cantidad de dovelas a tomar en consideración en el análisis"},
    {"dos dovelas", {{"NúmeroDovelas", "2"}}, "", "", "Debe dar un número razonable de dovelas y que sea entero"},
    {"dovelas fraccionarias", {{"NúmeroDovelas", "10.5"}}, "", "",
     "Debe dar un número razonable de dovelas y que sea entero"},
    {"abscisa del primer punto", {{"AbscisaPrimerPuntoGrieta", "a"}}, "", "Abscisa del primer pto de la grieta:", kGrieta},
    {"ordenada del primer punto", {{"OrdenadaPrimerPuntoGrieta", ""}}, "", "Ordenada del primer pto de la grieta:", kGrieta},
    {"abscisa del segundo punto", {{"AbscisaSegundoPuntoGrieta", "a"}}, "", "Abscisa del segundo pto de la grieta:", kGrieta},
    {"ordenada del segundo punto", {{"OrdenadaSegundoPuntoGrieta", "a"}}, "", "Ordenada del segundo pto de la grieta:", kGrieta},
    // The comparison of the two points comes before the water boxes are read.
    {"ordenadas de la grieta antes que el agua",
     {{"OrdenadaPrimerPuntoGrieta", "1"}, {"OrdenadaSegundoPuntoGrieta", "2"},
      {"AbscisaNivelFreáticoGrieta", "a"}},
     "", "Comparación de ordenadas:", kOrdenadas},
    {"abscisas de la grieta", {{"AbscisaPrimerPuntoGrieta", "1"}, {"AbscisaSegundoPuntoGrieta", "2"}}, "",
     "Comparación de abscisas:", kAbscisas},
    {"abscisa del agua", {{"AbscisaNivelFreáticoGrieta", "a"}}, "", "Abscisa del N.F en la grieta de tracción:", kGrieta},
    {"ordenada del agua", {{"OrdenadaNivelFreáticoGrieta", "a"}}, "", "Ordenada del N.F en la grieta de tracción:", kGrieta},
    {"agua bajo el segundo punto",
     {{"OrdenadaPrimerPuntoGrieta", "9"}, {"OrdenadaSegundoPuntoGrieta", "6"},
      {"OrdenadaNivelFreáticoGrieta", "5"}},
     "", "Comparación de ordenadas:", kOrdenadas},
    {"agua sobre el primer punto",
     {{"OrdenadaPrimerPuntoGrieta", "9"}, {"OrdenadaNivelFreáticoGrieta", "10"}}, "",
     "Comparación de ordenadas:",
     "La ordenada del nivel freático en la grieta debe ser menor o igual que la ordenada del primer punto de la grieta"},
    {"agua fuera de la grieta",
     {{"AbscisaPrimerPuntoGrieta", "20"}, {"OrdenadaPrimerPuntoGrieta", "9"},
      {"AbscisaSegundoPuntoGrieta", "20"}, {"OrdenadaSegundoPuntoGrieta", "6"},
      {"AbscisaNivelFreáticoGrieta", "19"}, {"OrdenadaNivelFreáticoGrieta", "8"}},
     "", "Comparación de abscisas:", kAbscisas},
};

TEST_F(Constantes, CadaComprobaciónEnSuOrdenDejaLaPantallaAbiertaYNadaGuardado) {
  for (const auto& r : kRechazos) {
    p = ProyectoDeArco();
    ui = InterfazGuionada(r.respuestas);
    Abrir();
    Escribir(r.cambios);
    Aceptar();
    const auto& t = ui.Transcripción();
    ASSERT_FALSE(t.empty()) << r.caso;
    EXPECT_EQ(t.back().tipo, "mensaje") << r.caso;
    EXPECT_EQ(t.back().título, r.título) << r.caso;
    EXPECT_EQ(t.back().texto, r.texto) << r.caso;
    EXPECT_FALSE(pantalla.cerrada) << r.caso;
    EXPECT_FALSE(p.ParámetrosInicialesDados) << r.caso;
    EXPECT_EQ(p.ParámetrosIniciales.MétodoDeCálculo, 0) << r.caso;
    EXPECT_EQ(p.ParámetrosIniciales.NúmeroDovelas, 0) << r.caso;
    EXPECT_EQ(p.GrietaTracción.OrdenadaPrimerPunto, 0) << r.caso;
    EXPECT_TRUE(p.DatosGuardados) << r.caso;
  }
}

TEST_F(Constantes, ElementosFinitosSeRechazaAntesDeTodo) {
  p.TipoDeAnálisis = "F";
  Abrir();
  pantalla.texto("TextoMétodoDeCálculo") = "b";
  Aceptar();
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{
                             "Ud. eligió trabajar por elementos finitos. La selección de estos Parámetros de "
                             "cálculo inicales, solamente es necesario cuando se trabaja por los métodos de "
                             "equilibrio límite."});
  EXPECT_FALSE(pantalla.cerrada);
}

TEST_F(Constantes, LeshchinskySinCohesiónYFricciónSugiereOtroMétodo) {
  ui.Responder("N");
  Abrir();
  pantalla.texto("TextoMétodoDeCálculo") = "1";
  Aceptar();
  const auto& t = ui.Transcripción();
  ASSERT_EQ(t.size(), 2u);
  EXPECT_EQ(t[0].tipo, "pregunta");
  EXPECT_EQ(t[0].texto,
            "Se ha indicado que el método de estimación del factor de seguridad, es el identificado con "
            "el númerto 1 (Leshchinsky). En este caso, sí el análisis lo va hacer en suelos, todos los "
            "materiales o estratos por donde pase la SPF, deben ser cohesivos - friccionantes (cohesión y "
            "fricción mayor a cero). Se cumple ésto en los parámetros de resistencia?.");
  EXPECT_EQ(t[1].texto, "Para este caso puede aplicar el método 4 (Janbu)  o el método 2 (Bishop).");
  EXPECT_FALSE(pantalla.cerrada);
}

TEST_F(Constantes, BishopSobreUnArcoGuardaTodoYCierra) {
  Abrir();
  // 7 is not a case of instantaneous parameters: taken as 0.
  Escribir({{"DefiniciónDeParámetrosInstantáneos", "7"}, {"CoeficienteSísmicoHorizontal", "0.15"},
            {"EsfuerzoInicialCresta", "-2.5"}});
  Aceptar();
  EXPECT_TRUE(ui.Textos().empty());
  EXPECT_TRUE(pantalla.cerrada);
  const auto& pi = p.ParámetrosIniciales;
  EXPECT_EQ(pi.MétodoDeCálculo, 2);
  EXPECT_EQ(pi.ParámetrosInstantáneos, 0);
  EXPECT_DOUBLE_EQ(pi.FSInicial, 1.5);
  EXPECT_DOUBLE_EQ(pi.NúmeroDovelas, 10);
  EXPECT_DOUBLE_EQ(pi.CoeficienteSísmicoHorizontal, 0.15);
  EXPECT_DOUBLE_EQ(pi.EsfuerzoInicialCresta, -2.5);
  EXPECT_EQ(pi.LetraVaríaRadio, "N");
  EXPECT_FALSE(pi.VaríaRadio);
  // A radius of 10 over a chord of sqrt(10² + 6²) = 11.662 needs no search:
  // a = atan(0.6) = 30.964°, arcsin(5.831 / 10) = 35.666°, v = 90° − 66.630° = 23.370°,
  // centre = (10 + 10 sin v, 0 + 10 cos v) = (13.966, 9.180), above the upper point (y = 6).
  EXPECT_DOUBLE_EQ(pi.Radio, 10);
  EXPECT_NEAR(pi.Cuerda, 11.6619, 1e-4);
  EXPECT_NEAR(pi.CentroX, 13.9663, 1e-3);
  EXPECT_NEAR(pi.CentroY, 9.1798, 1e-3);
  EXPECT_TRUE(p.ParámetrosInicialesDados);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Constantes, RadioBajoLaMitadDeLaCuerdaSubeDeMedioEnMedioMetro) {
  Abrir();
  pantalla.texto("TextoRadioCírculoFalla") = "2";
  Aceptar();
  EXPECT_TRUE(pantalla.cerrada);
  // Half the chord is 5.831: the radii 2 to 5.5 do not reach it. At R = 6,
  // arcsin(5.831/6) = 76.36°, centre height 6·sin(30.96° + 76.36°) = 5.728 < 6: still below.
  // At R = 6.5, arcsin(5.831/6.5) = 63.78°, height 6.5·sin(94.74°) = 6.478 ≥ 6: found.
  EXPECT_DOUBLE_EQ(p.ParámetrosIniciales.Radio, 6.5);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, 6.4778, 1e-3);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroX, 9.4630, 1e-3);
  EXPECT_EQ(pantalla.texto("TextoRadioCírculoFalla"), "2");  // the box keeps what was typed
  EXPECT_TRUE(ui.Textos().empty());

  ArcoDeConstantes a;
  ASSERT_TRUE(CentroDelArcoDeConstantes(20, 6, 10, 0, 6, a));
  EXPECT_DOUBLE_EQ(a.radio, 6.5);
  ASSERT_TRUE(CentroDelArcoDeConstantes(20, 6, 10, 0, 0, a));  // a zero radius is searched as well
  EXPECT_DOUBLE_EQ(a.radio, 6.5);
}

TEST_F(Constantes, VaríaElRadioSeGuardaEnSeguidaAunqueOtraComprobaciónFalle) {
  Abrir();
  pantalla.texto("TextoVaríaElRadio") = "s";
  pantalla.texto("TextoNúmeroDovelas") = "1";
  Aceptar();
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_TRUE(p.ParámetrosIniciales.VaríaRadio);
  EXPECT_EQ(p.ParámetrosIniciales.LetraVaríaRadio, "S");
  EXPECT_FALSE(p.ParámetrosInicialesDados);
}

TEST_F(Constantes, GrietaConAguaDaSuEmpuje) {
  Abrir();
  // Crack from (20, 9) down to the first point of the failure surface (20, 6), water at 8.
  Escribir({{"AbscisaPrimerPuntoGrieta", "20"}, {"OrdenadaPrimerPuntoGrieta", "9"},
            {"AbscisaSegundoPuntoGrieta", "20"}, {"OrdenadaSegundoPuntoGrieta", "6"},
            {"AbscisaNivelFreáticoGrieta", "20"}, {"OrdenadaNivelFreáticoGrieta", "8"}});
  Aceptar();
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_DOUBLE_EQ(p.GrietaTracción.EmpujeGrieta, 2.0);  // 0.5 · (8 − 6)²
  EXPECT_DOUBLE_EQ(p.GrietaTracción.OrdenadaPrimerPunto, 9);
}

TEST_F(Constantes, GrietaQueNoArrancaEnLaSuperficieDeFallaGuardaPeroNoCierra) {
  Abrir();
  Escribir({{"AbscisaPrimerPuntoGrieta", "20"}, {"OrdenadaPrimerPuntoGrieta", "9"},
            {"AbscisaSegundoPuntoGrieta", "20"}, {"OrdenadaSegundoPuntoGrieta", "6.001"}});  // exact
  Aceptar();
  const auto& t = ui.Transcripción();
  ASSERT_EQ(t.size(), 1u);
  EXPECT_EQ(t[0].título, "OJO PELAO con este mensaje:");
  EXPECT_EQ(t[0].texto,
            "Las coordenadas del segundo pto de la grieta deben ser exactamente iguales a las coordenadas "
            "del primer punto de la superficie de falla");
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_DOUBLE_EQ(p.GrietaTracción.OrdenadaSegundoPunto, 6.001);
  EXPECT_FALSE(p.ParámetrosInicialesDados);
}

struct Combinación {
  const char* material;
  const char* método;
  const char* instantáneos;
  const char* título;
  const char* texto;
};

TEST_F(Constantes, CombinacionesNoAplicablesGuardanYDejanLaPantallaAbierta) {
  const std::string cola =
      " no aplica  en la metodología de  Parámetros instantáneos caso <1>. En este caso aplique  el "
      "método de cálculo <1> de Leshchinsky, D. and Huang. Se considera que ud ya hizo previamente el "
      "análisis para material rocoso por los métodos de los mismos autores y Brown.";
  const std::string bishop = "El método de Cálculo de Bishop" + cola;
  const std::string janbu = "El método de Cálculo de Janbu" + cola;
  const std::vector<Combinación> casos = {
      {"R", "3", "0", "Para suelos:", "El método de Cálculo de Fellenius no aplica en Rocas."},
      {"R", "2", "2", "",
       "Al menos que seleccione la opción <3> para parámetros instantáneos, el método de Bishop no aplica "
       "para trabajar en ROCA."},
      {"S", "3", "2", "Párametros instantáneos:",
       "El método de Cálculo de Fellenius no aplica en este programa para ser usado en la metodología de  "
       "Parámetros instantáneos."},
      {"S", "2", "1", "Párametros instantáneos:", bishop.c_str()},
      {"S", "4", "1", "Párametros instantáneos:", janbu.c_str()},
  };
  for (const auto& c : casos) {
    p = ProyectoDeArco();
    p.TipoDeMaterial = c.material;
    ui = InterfazGuionada();
    Abrir();
    pantalla.texto("TextoMétodoDeCálculo") = c.método;
    pantalla.texto("TextoDefiniciónDeParámetrosInstantáneos") = c.instantáneos;
    Aceptar();
    ASSERT_EQ(ui.Transcripción().size(), 1u) << c.método << c.instantáneos;
    EXPECT_EQ(ui.Transcripción()[0].título, c.título);
    EXPECT_EQ(ui.Transcripción()[0].texto, c.texto);
    EXPECT_FALSE(pantalla.cerrada);
    EXPECT_EQ(p.ParámetrosIniciales.MétodoDeCálculo, std::stoi(c.método));
    EXPECT_EQ(p.ParámetrosIniciales.ParámetrosInstantáneos, std::stoi(c.instantáneos));
    EXPECT_FALSE(p.ParámetrosInicialesDados);
  }
}

TEST_F(Constantes, RocaGuardaEsfuerzoInicialCero) {
  p.TipoDeMaterial = "R";
  Abrir();
  pantalla.texto("TextoMétodoDeCálculo") = "4";
  pantalla.texto("TextoEsfuerzoInicialCresta") = "-7.5";
  Aceptar();
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.ParámetrosIniciales.EsfuerzoInicialCresta, 0);
}

TEST_F(Constantes, SuperficieQueNoEsArcoAnulaElRadioYTomaLaMitadDeLaDiferencia) {
  HacerPoligonal(p);
  p.ParámetrosIniciales.Radio = 12;
  Abrir();
  Aceptar();
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{
                             "La Superficie potencial de falla, no es un arco de círculo, por tanto el radio "
                             "no se considera en el análisis."});
  EXPECT_TRUE(pantalla.cerrada);
  const auto& pi = p.ParámetrosIniciales;
  EXPECT_EQ(pi.Radio, 0);
  // The surface goes from (100, 30) to (40, 10): half the difference is (30, 10), while the mean
  // would be (70, 20).
  EXPECT_DOUBLE_EQ(pi.ReferenciaMomentoX, 30);
  EXPECT_DOUBLE_EQ(pi.ReferenciaMomentoY, 10);
  EXPECT_DOUBLE_EQ(pi.CentroX, 30);
  EXPECT_DOUBLE_EQ(pi.CentroY, 10);
  EXPECT_FALSE(pi.VaríaRadio);  // the letter is asked only on the arc
}

TEST_F(Constantes, ActivaciónRechazaSinMaterialOSinGeometría) {
  p.TipoDeMaterial.clear();
  AbrirConstantesDeCálculo(p, ui);
  p = ProyectoDeArco();
  p.GeometríaFallaDefinida = false;
  AbrirConstantesDeCálculo(p, ui);
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{
                             "Vaya a la opción 'Parámetros y Cargas' de las características del material.",
                             "Debe dar las coordenadas de la superficie potencial de falla y definir la "
                             "geoemetría entre sus puntos."}));
}

TEST_F(Constantes, ActivaciónLlenaDesdeElProyectoYAvisaDeLaCuerda) {
  p.ParámetrosInicialesDados = true;
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  p.ParámetrosIniciales.FSInicial = 1.25;
  p.ParámetrosIniciales.Radio = 5;
  p.ParámetrosIniciales.Cuerda = 12;
  p.ParámetrosIniciales.LetraVaríaRadio = "s";
  pantalla.cerrada = false;
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.texto("TextoMétodoDeCálculo"), "4");
  EXPECT_EQ(pantalla.texto("TextoFSInicial"), "1.25");
  EXPECT_EQ(pantalla.texto("TextoRadioCírculoFalla"), "5.00");
  EXPECT_EQ(pantalla.texto("TextoDeLaCuerda"), "12.00");
  EXPECT_EQ(pantalla.texto("TextoVaríaElRadio"), "S");
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{
                             "Debe cumplirse que el radio sea mayor que la Mitad de la cuerda del arco de círculo"});
}

TEST_F(Constantes, ActivaciónSinParámetrosFueraDeEquilibrioLímiteDejaBlancos) {
  p.TipoDeAnálisis = "F";
  p.ParámetrosIniciales.MétodoDeCálculo = 3;
  pantalla.cerrada = false;
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.texto("TextoMétodoDeCálculo"), "");
  EXPECT_EQ(pantalla.texto("TextoFSInicial"), " ");
  EXPECT_EQ(pantalla.texto("TextoMultiplicadorLagrange1"), " ");
  EXPECT_EQ(pantalla.texto("TextoNúmeroDovelas"), "");
  // On limit-equilibrium work the values kept by the project show all the same.
  p.TipoDeAnálisis = "T";
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.texto("TextoMétodoDeCálculo"), "3");
}

TEST(MenúConstantes, PuertasDelComando) {
  Proyecto p = ProyectoDeArco();
  InterfazGuionada ui;
  p.TipoDeAnálisis.clear();
  MenúArchivoConstantes(p, ui);
  p.TipoDeAnálisis = "F";
  MenúArchivoConstantes(p, ui);
  p.TipoDeAnálisis = "T";
  p.NúmeroPuntosFalla = 1;
  MenúArchivoConstantes(p, ui);
  p.NúmeroPuntosFalla = 2;
  p.GeometríaFallaDefinida = false;
  MenúArchivoConstantes(p, ui);
  const auto& t = ui.Transcripción();
  ASSERT_EQ(t.size(), 4u);
  EXPECT_EQ(t[0].texto, "Seleccione en la pantalla principal la opción <T> ó <F>");
  EXPECT_EQ(t[1].texto, "Ud. está trabajando con elementos finitos");
  for (int i : {2, 3}) {
    EXPECT_EQ(t[i].título, "Coordenadas superficie de falla");
    EXPECT_EQ(t[i].texto,
              "Debe introducir coordenadas de la superficie de falla y definir las uniones entre los puntos "
              "de la superficie de falla");
  }
  p.GeometríaFallaDefinida = true;
  ui.Olvidar();
  MenúArchivoConstantes(p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].tipo, "pantalla");
  EXPECT_EQ(ui.Transcripción()[0].texto, kNombrePantallaConstantes);
}

// The short screen of the finite-element side.
class ConstantesElementos : public ::testing::Test {
 protected:
  Proyecto p = ProyectoDeArco();
  InterfazGuionada ui;
  PantallaConstantesElementos pantalla{p};
  void SetUp() override {
    p.TipoDeAnálisis = "F";
    pantalla.cerrada = false;
    pantalla.Activar(ui);
    pantalla.texto("TextoMétodoDeCálculo") = "4";
    pantalla.texto("TextoFSInicial") = "1.3";
    pantalla.texto("TextoRadioCírculoFalla") = "8";
    pantalla.texto("TextoNúmeroDovelas") = "20";
  }
};

TEST_F(ConstantesElementos, ComprobacionesEnOrden) {
  struct Caso {
    const char* campo;
    const char* valor;
    const char* texto;
  };
  const std::vector<Caso> casos = {
      {"TextoMétodoDeCálculo", "x", "Debe introducir el número  <2> o <4> dependiendo del método de cálculo que Ud. considere"},
      {"TextoMétodoDeCálculo", "1", "Ud. debe seleccionar el número  <2> o <4> dependiendo del método de cálculo que Ud. considere"},
      {"TextoFSInicial", " ", "Debe dar un factor de seguridad mayor que cero y razonable"},
      {"TextoRadioCírculoFalla", "0", "Debe introducir un número mayor que cero para el radio del arco de círculo de falla y razonable para el cálculo"},
      {"TextoNúmeroDovelas", "2.5", "Debe dar un número razonable de dovelas y que sea entero"},
      {"TextoNúmeroDovelas", "muchas", "Debe introducir un número para la cantidad de dovelas a tomar en consideración en el análisis"},
  };
  for (const auto& c : casos) {
    SetUp();
    ui.Olvidar();
    pantalla.texto(c.campo) = c.valor;
    pantalla.Pulsar("BotónAceptar", ui);
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{c.texto}) << c.campo << " " << c.valor;
    EXPECT_FALSE(pantalla.cerrada);
    EXPECT_FALSE(p.ParámetrosInicialesDados);
  }
}

TEST_F(ConstantesElementos, EquilibrioLímiteYRadioCorto) {
  p.TipoDeAnálisis = "T";
  pantalla.Pulsar("BotónAceptar", ui);
  p.TipoDeAnálisis = "F";
  pantalla.texto("TextoRadioCírculoFalla") = "5.5";  // half the chord is 5.831
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{
                             "Ud. eligió trabajar por métodos de equilibrio límite y no por elementos finitos.",
                             "El radio del arco del círculo debe ser mayor que el valor de la mitad de la cuerda, "
                             "la cual está definida por los puntos 1 y 2 de la superficie potencial de falla."}));
  EXPECT_EQ(pantalla.texto("TextoDeLaCuerda"), "11.66");
  EXPECT_FALSE(pantalla.cerrada);
}

TEST_F(ConstantesElementos, GuardaMétodoFactorDovelasYRadio) {
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.ParámetrosIniciales.MétodoDeCálculo, 4);
  EXPECT_DOUBLE_EQ(p.ParámetrosIniciales.FSInicial, 1.3);
  EXPECT_DOUBLE_EQ(p.ParámetrosIniciales.NúmeroDovelas, 20);
  EXPECT_DOUBLE_EQ(p.ParámetrosIniciales.Radio, 8);
  EXPECT_TRUE(p.ParámetrosInicialesDados);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(ConstantesElementos, SuperficieQueNoEsArcoSoloAvisa) {
  HacerPoligonal(p);
  pantalla.texto("TextoRadioCírculoFalla") = "";
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{
                             "Ud. está considerando que la superficie potencial de falla (SPF) es un arco de "
                             "círculo, por lo que puede obviar dar la ordenada y abscisa del centro de rotación."});
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.ParámetrosIniciales.MétodoDeCálculo, 4);
}

}  // namespace
}  // namespace lomaterra
