// The constants screen of limit equilibrium and the short one of finite elements: every refusal in
// the order of the checks, word for word, and what Aceptar stores.
#include <gtest/gtest.h>

#include "apoyo/proyectos.h"
#include "equilibrio/constantes.h"
#include "pantallas/comun_pantallas.h"
#include "pantallas/constantes_elementos.h"

namespace lomaterra {
namespace {

using pruebas::Cajas;
using pruebas::Textos;

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

struct Constantes : ::testing::Test {
  Proyecto p = ProyectoDeArco();
  InterfazGuionada ui;
  PantallaConstantes pantalla{p};

  // Opens the screen and writes a valid Bishop entry with no crack, then the changes, Aceptar.
  void Aceptar(const Cajas& cambios, const std::string& respuestas = "") {
    pruebas::Activar(pantalla, ui);
    ASSERT_FALSE(pantalla.cerrada);
    ui = InterfazGuionada(respuestas);
    Escribir({{"MétodoDeCálculo", "2"}, {"DefiniciónDeParámetrosInstantáneos", "0"},
              {"MultiplicadorLagrange1", " "}, {"MultiplicadorLagrange2", " "},
              {"FSInicial", "1.5"}, {"EsfuerzoInicialCresta", ""}, {"RadioCírculoFalla", "10"},
              {"VaríaElRadio", "n"}, {"NúmeroDovelas", "10"}, {"CoeficienteSísmicoHorizontal", "0"},
              {"CoeficienteSísmicoVertical", "0"}, {"AbscisaPrimerPuntoGrieta", "0"},
              {"OrdenadaPrimerPuntoGrieta", "0"}, {"AbscisaSegundoPuntoGrieta", "0"},
              {"OrdenadaSegundoPuntoGrieta", "0"}, {"AbscisaNivelFreáticoGrieta", "0"},
              {"OrdenadaNivelFreáticoGrieta", "0"}});
    Escribir(cambios);
    pantalla.Pulsar("BotónAceptar", ui);
  }
  // Boxes by their names without the prefix "Texto".
  void Escribir(const Cajas& cajas) {
    for (const auto& [c, v] : cajas) pantalla.texto(std::string("Texto") + c) = v;
  }
};

const char* const kGrieta = "Debe introducir un número 'incluyendo el cero' cuando no exista.";
const char* const kOrdenadas =
    "La ordenada del segundo punto de la grieta debe ser menor que la ordenada del nivel freático";
const char* const kAbscisas =
    "La abscisa del segundo punto de la grieta debe ser menor o aproximadamente igual que la "
    "abscisa del N.F en la grieta";
const char* const kFactor = "Debe dar un factor de seguridad mayor que cero y razonable";
const char* const kDovelas = "Debe dar un número razonable de dovelas y que sea entero";
const char* const kRadio =
    "Debe introducir un número mayor que cero para el radio del arco de círculo de falla y "
    "razonable para el cálculo";
const Cajas kLeshchinsky = {{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"},
                            {"MultiplicadorLagrange2", "40"}};

// Each refusal of Aceptar, in the order of the checks: the screen stays open, nothing is stored.
TEST_F(Constantes, CadaComprobaciónEnSuOrdenDejaLaPantallaAbiertaYNadaGuardado) {
  struct Rechazo {
    Cajas cambios;
    std::string título, texto;
    const char* análisis = "T";
  };
  const Cajas lesFS0 = {{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"},
                        {"MultiplicadorLagrange2", "40"}, {"FSInicial", "0"}};
  const Cajas lesFSx = {{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"},
                        {"MultiplicadorLagrange2", "40"}, {"FSInicial", "uno"}};
  const std::vector<Rechazo> rechazos = {
      // Finite elements are refused before any box is read.
      {{{"MétodoDeCálculo", "b"}}, "",
       "Ud. eligió trabajar por elementos finitos. La selección de estos Parámetros de cálculo "
       "inicales, solamente es necesario cuando se trabaja por los métodos de equilibrio límite.",
       "F"},
      {{{"MétodoDeCálculo", "b"}}, "",
       "Debe introducir el número <1> o <2> o <3> o <4> dependiendo del método de cálculo que Ud. "
       "considere"},
      {{{"MétodoDeCálculo", "5"}}, "",
       "Ud. debe seleccionar el número <1> o <2> o <3> o <4> dependiendo del método de cálculo que "
       "Ud. considere"},
      {{{"MétodoDeCálculo", "1"}}, "", "Debe introducir un número para este primer multiplicador"},
      {{{"MétodoDeCálculo", "1"}, {"MultiplicadorLagrange1", "15"}}, "",
       "Debe introducir un número para este segundo multiplicador"},
      {lesFSx, "", "Debe introducir un número para el factor de seguridad"},
      {lesFS0, "", kFactor},
      {kLeshchinsky, "",
       "Debe introducir un número para el esfuerzo inicial, en el rango recomendado"},
      {{{"MétodoDeCálculo", "4"}, {"FSInicial", " "}}, "", kFactor},
      {{{"RadioCírculoFalla", "-3"}}, "", kRadio},
      {{{"RadioCírculoFalla", "diez"}}, "", "Introduzca un valor razonable para el radio"},
      {{{"VaríaElRadio", "x"}}, "",
       "Introduzca  una 'S' para variar el RADIO y 'N' para mantener su valor CONSTANTE"},
      {{{"CoeficienteSísmicoHorizontal", ""}}, "",
       "Debe introducir un número para el coeficiente sísmico horizontal 'incluyendo el cero'"},
      {{{"CoeficienteSísmicoVertical", "a"}}, "",
       "Debe introducir un número para el coeficiente sísmico vertical 'incluyendo el cero'"},
      {{{"NúmeroDovelas", "diez"}}, "",
       "Debe introducir un número para la cantidad de dovelas a tomar en consideración en el "
       "análisis"},
      {{{"NúmeroDovelas", "2"}}, "", kDovelas},
      {{{"NúmeroDovelas", "10.5"}}, "", kDovelas},
      {{{"AbscisaPrimerPuntoGrieta", "a"}}, "Abscisa del primer pto de la grieta:", kGrieta},
      {{{"OrdenadaPrimerPuntoGrieta", ""}}, "Ordenada del primer pto de la grieta:", kGrieta},
      {{{"AbscisaSegundoPuntoGrieta", "a"}}, "Abscisa del segundo pto de la grieta:", kGrieta},
      {{{"OrdenadaSegundoPuntoGrieta", "a"}}, "Ordenada del segundo pto de la grieta:", kGrieta},
      // The comparison of the two points comes before the water boxes are read.
      {{{"OrdenadaPrimerPuntoGrieta", "1"}, {"OrdenadaSegundoPuntoGrieta", "2"},
        {"AbscisaNivelFreáticoGrieta", "a"}},
       "Comparación de ordenadas:", kOrdenadas},
      {{{"AbscisaPrimerPuntoGrieta", "1"}, {"AbscisaSegundoPuntoGrieta", "2"}},
       "Comparación de abscisas:", kAbscisas},
      {{{"AbscisaNivelFreáticoGrieta", "a"}}, "Abscisa del N.F en la grieta de tracción:", kGrieta},
      {{{"OrdenadaNivelFreáticoGrieta", "a"}}, "Ordenada del N.F en la grieta de tracción:",
       kGrieta},
      {{{"OrdenadaPrimerPuntoGrieta", "9"}, {"OrdenadaSegundoPuntoGrieta", "6"},
        {"OrdenadaNivelFreáticoGrieta", "5"}},
       "Comparación de ordenadas:", kOrdenadas},
      {{{"OrdenadaPrimerPuntoGrieta", "9"}, {"OrdenadaNivelFreáticoGrieta", "10"}},
       "Comparación de ordenadas:",
       "La ordenada del nivel freático en la grieta debe ser menor o igual que la ordenada del "
       "primer punto de la grieta"},
      {{{"AbscisaPrimerPuntoGrieta", "20"}, {"OrdenadaPrimerPuntoGrieta", "9"},
        {"AbscisaSegundoPuntoGrieta", "20"}, {"OrdenadaSegundoPuntoGrieta", "6"},
        {"AbscisaNivelFreáticoGrieta", "19"}, {"OrdenadaNivelFreáticoGrieta", "8"}},
       "Comparación de abscisas:", kAbscisas},
  };
  for (const auto& r : rechazos) {
    SCOPED_TRACE(r.texto);
    p = ProyectoDeArco();
    p.TipoDeAnálisis = r.análisis;
    Aceptar(r.cambios, "S");  // Yes to the question on the cohesive-frictional strata
    ASSERT_FALSE(ui.Transcripción().empty());
    EXPECT_EQ(ui.Transcripción().back(), (Apunte{"mensaje", r.título, r.texto, ""}));
    EXPECT_FALSE(pantalla.cerrada || p.ParámetrosInicialesDados || !p.DatosGuardados);
    EXPECT_EQ((std::vector<double>{1.0 * p.ParámetrosIniciales.MétodoDeCálculo,
                                   p.ParámetrosIniciales.NúmeroDovelas,
                                   p.GrietaTracción.OrdenadaPrimerPunto}),
              std::vector<double>(3, 0));
  }
  // A No on Leshchinsky suggests the other methods.
  p = ProyectoDeArco();
  Aceptar(kLeshchinsky, "N");
  EXPECT_EQ(ui.Textos(),
            (Textos{"Se ha indicado que el método de estimación del factor de seguridad, es el "
                    "identificado con el númerto 1 (Leshchinsky). En este caso, sí el análisis lo "
                    "va hacer en suelos, todos los materiales o estratos por donde pase la SPF, "
                    "deben ser cohesivos - friccionantes (cohesión y fricción mayor a cero). Se "
                    "cumple ésto en los parámetros de resistencia?.",
                    "Para este caso puede aplicar el método 4 (Janbu)  o el método 2 (Bishop)."}));
  EXPECT_FALSE(pantalla.cerrada);
}

TEST_F(Constantes, BishopSobreUnArcoConGrietaGuardaTodoYCierra) {
  // 7 is not a case of instantaneous parameters: taken as 0. Crack from (20, 9) down to the first
  // point of the failure surface (20, 6), water at 8.
  Aceptar({{"DefiniciónDeParámetrosInstantáneos", "7"}, {"CoeficienteSísmicoHorizontal", "0.15"},
           {"EsfuerzoInicialCresta", "-2.5"}, {"AbscisaPrimerPuntoGrieta", "20"},
           {"OrdenadaPrimerPuntoGrieta", "9"}, {"AbscisaSegundoPuntoGrieta", "20"},
           {"OrdenadaSegundoPuntoGrieta", "6"}, {"AbscisaNivelFreáticoGrieta", "20"},
           {"OrdenadaNivelFreáticoGrieta", "8"}});
  EXPECT_TRUE(ui.Textos().empty());
  EXPECT_TRUE(pantalla.cerrada && p.ParámetrosInicialesDados);
  const auto& pi = p.ParámetrosIniciales;
  EXPECT_EQ((std::vector<double>{1.0 * pi.MétodoDeCálculo, 1.0 * pi.ParámetrosInstantáneos,
                                 pi.FSInicial, pi.NúmeroDovelas, pi.CoeficienteSísmicoHorizontal,
                                 pi.EsfuerzoInicialCresta}),
            (std::vector<double>{2, 0, 1.5, 10, 0.15, -2.5}));
  EXPECT_EQ(pi.LetraVaríaRadio, "N");
  EXPECT_FALSE(pi.VaríaRadio);
  // A radius of 10 over a chord of sqrt(10² + 6²) = 11.662 needs no search:
  // a = atan(0.6) = 30.964°, arcsin(5.831 / 10) = 35.666°, v = 90° − 66.630° = 23.370°,
  // centre = (10 + 10 sin v, 0 + 10 cos v) = (13.966, 9.180), above the upper point (y = 6).
  EXPECT_DOUBLE_EQ(pi.Radio, 10);
  EXPECT_NEAR(pi.Cuerda, 11.6619, 1e-4);
  EXPECT_NEAR(pi.CentroX, 13.9663, 1e-3);
  EXPECT_NEAR(pi.CentroY, 9.1798, 1e-3);
  EXPECT_DOUBLE_EQ(p.GrietaTracción.EmpujeGrieta, 2.0);  // 0.5 · (8 − 6)²
  EXPECT_DOUBLE_EQ(p.GrietaTracción.OrdenadaPrimerPunto, 9);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Constantes, RadioBajoLaMitadDeLaCuerdaSubeDeMedioEnMedioMetro) {
  Aceptar({{"RadioCírculoFalla", "2"}});
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
  ASSERT_TRUE(CentroDelArcoDeConstantes(20, 6, 10, 0, 0, a));  // a zero radius is searched as well
  EXPECT_DOUBLE_EQ(a.radio, 6.5);
}

TEST_F(Constantes, VaríaElRadioSeGuardaEnSeguidaAunqueOtraComprobaciónFalle) {
  Aceptar({{"VaríaElRadio", "s"}, {"NúmeroDovelas", "1"}});
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_TRUE(p.ParámetrosIniciales.VaríaRadio);
  EXPECT_EQ(p.ParámetrosIniciales.LetraVaríaRadio, "S");
  EXPECT_FALSE(p.ParámetrosInicialesDados);
}

// Refusals after the values are stored: the screen stays open, the project is not marked given.
TEST_F(Constantes, CombinacionesNoAplicablesGuardanYDejanLaPantallaAbierta) {
  const std::string cola =
      " no aplica  en la metodología de  Parámetros instantáneos caso <1>. En este caso aplique  "
      "el método de cálculo <1> de Leshchinsky, D. and Huang. Se considera que ud ya hizo "
      "previamente el análisis para material rocoso por los métodos de los mismos autores y Brown.";
  const char* const instantáneos = "Párametros instantáneos:";
  // Material, method, instantaneous parameters, and the refusal.
  const std::tuple<const char*, const char*, const char*, const char*, std::string> casos[] = {
      {"R", "3", "0", "Para suelos:", "El método de Cálculo de Fellenius no aplica en Rocas."},
      {"R", "2", "2", "",
       "Al menos que seleccione la opción <3> para parámetros instantáneos, el método de Bishop no "
       "aplica para trabajar en ROCA."},
      {"S", "3", "2", instantáneos,
       "El método de Cálculo de Fellenius no aplica en este programa para ser usado en la "
       "metodología de  Parámetros instantáneos."},
      {"S", "2", "1", instantáneos, "El método de Cálculo de Bishop" + cola},
      {"S", "4", "1", instantáneos, "El método de Cálculo de Janbu" + cola},
  };
  for (const auto& [material, método, instantáneos, título, texto] : casos) {
    p = ProyectoDeArco();
    p.TipoDeMaterial = material;
    Aceptar({{"MétodoDeCálculo", método}, {"DefiniciónDeParámetrosInstantáneos", instantáneos}});
    EXPECT_EQ(ui.Transcripción(), (std::vector<Apunte>{{"mensaje", título, texto, ""}}));
    EXPECT_FALSE(pantalla.cerrada || p.ParámetrosInicialesDados);
    EXPECT_EQ(p.ParámetrosIniciales.MétodoDeCálculo, std::stoi(método));
    EXPECT_EQ(p.ParámetrosIniciales.ParámetrosInstantáneos, std::stoi(instantáneos));
  }
  p = ProyectoDeArco();  // the crack has to start exactly on the first point of the surface
  Aceptar({{"AbscisaPrimerPuntoGrieta", "20"}, {"OrdenadaPrimerPuntoGrieta", "9"},
           {"AbscisaSegundoPuntoGrieta", "20"}, {"OrdenadaSegundoPuntoGrieta", "6.001"}});
  EXPECT_EQ(ui.Transcripción(),
            (std::vector<Apunte>{{"mensaje", "OJO PELAO con este mensaje:",
                                  "Las coordenadas del segundo pto de la grieta deben ser "
                                  "exactamente iguales a las coordenadas del primer punto de la "
                                  "superficie de falla", ""}}));
  EXPECT_FALSE(pantalla.cerrada || p.ParámetrosInicialesDados);
  EXPECT_DOUBLE_EQ(p.GrietaTracción.OrdenadaSegundoPunto, 6.001);
}

TEST_F(Constantes, RocaGuardaEsfuerzoInicialCero) {
  p.TipoDeMaterial = "R";
  Aceptar({{"MétodoDeCálculo", "4"}, {"EsfuerzoInicialCresta", "-7.5"}});
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.ParámetrosIniciales.EsfuerzoInicialCresta, 0);
}

TEST_F(Constantes, SuperficieQueNoEsArcoAnulaElRadioYTomaLaMitadDeLaDiferencia) {
  HacerPoligonal(p);
  p.ParámetrosIniciales.Radio = 12;
  Aceptar({});
  EXPECT_EQ(ui.Textos(), Textos{"La Superficie potencial de falla, no es un arco de círculo, por "
                                "tanto el radio no se considera en el análisis."});
  EXPECT_TRUE(pantalla.cerrada);
  const auto& pi = p.ParámetrosIniciales;
  // The surface goes from (100, 30) to (40, 10): half the difference is (30, 10), while the mean
  // would be (70, 20). The radius is dropped.
  EXPECT_EQ((std::vector<double>{pi.Radio, pi.ReferenciaMomentoX, pi.ReferenciaMomentoY,
                                 pi.CentroX, pi.CentroY}),
            (std::vector<double>{0, 30, 10, 30, 10}));
  EXPECT_FALSE(pi.VaríaRadio);  // the letter is asked only on the arc
}

TEST_F(Constantes, ActivaciónRechazaSinMaterialOSinGeometríaYLlenaDesdeElProyecto) {
  p.TipoDeMaterial.clear();
  AbrirConstantesDeCálculo(p, ui);
  p = ProyectoDeArco();
  p.GeometríaFallaDefinida = false;
  AbrirConstantesDeCálculo(p, ui);
  p = ProyectoDeArco();
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 4;
  pi.FSInicial = 1.25;
  pi.Radio = 5;
  pi.Cuerda = 12;
  pi.LetraVaríaRadio = "s";
  p.ParámetrosInicialesDados = true;
  pruebas::Activar(pantalla, ui);
  EXPECT_EQ(ui.Textos(),
            (Textos{"Vaya a la opción 'Parámetros y Cargas' de las características del material.",
                    "Debe dar las coordenadas de la superficie potencial de falla y definir la "
                    "geoemetría entre sus puntos.",
                    "Debe cumplirse que el radio sea mayor que la Mitad de la cuerda del arco de "
                    "círculo"}));
  for (const auto& [caja, valor] : Cajas{{"TextoMétodoDeCálculo", "4"}, {"TextoFSInicial", "1.25"},
                                         {"TextoRadioCírculoFalla", "5.00"},
                                         {"TextoDeLaCuerda", "12.00"}, {"TextoVaríaElRadio", "S"}})
    EXPECT_EQ(pantalla.texto(caja), valor) << caja;
  // Not given and not limit equilibrium: blanks. On limit equilibrium the values always show.
  p.ParámetrosInicialesDados = false;
  p.TipoDeAnálisis = "F";
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.texto("TextoMétodoDeCálculo"), "");
  EXPECT_EQ(pantalla.texto("TextoFSInicial"), " ");
  EXPECT_EQ(pantalla.texto("TextoMultiplicadorLagrange1") + pantalla.texto("TextoNúmeroDovelas"),
            " ");
  p.TipoDeAnálisis = "T";
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.texto("TextoMétodoDeCálculo"), "4");
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
  p.GeometríaFallaDefinida = true;
  MenúArchivoConstantes(p, ui);
  const Apunte falla{"mensaje", "Coordenadas superficie de falla",
                     "Debe introducir coordenadas de la superficie de falla y definir las uniones "
                     "entre los puntos de la superficie de falla", ""};
  EXPECT_EQ(ui.Transcripción(),
            (std::vector<Apunte>{
                {"mensaje", "", "Seleccione en la pantalla principal la opción <T> ó <F>", ""},
                {"mensaje", "", "Ud. está trabajando con elementos finitos", ""}, falla, falla,
                {"pantalla", ui.Transcripción().back().título, kNombrePantallaConstantes, ""}}));
}

// The short screen of the finite-element side.
struct ConstantesElementos : ::testing::Test {
  Proyecto p = ProyectoDeArco();
  InterfazGuionada ui;
  PantallaConstantesElementos pantalla{p};
  void SetUp() override {
    p.TipoDeAnálisis = "F";
    pruebas::Activar(pantalla, ui);
    pruebas::Escribir(pantalla, {{"TextoMétodoDeCálculo", "4"}, {"TextoFSInicial", "1.3"},
                                 {"TextoRadioCírculoFalla", "8"}, {"TextoNúmeroDovelas", "20"}});
  }
};

TEST_F(ConstantesElementos, ComprobacionesEnOrdenYLoQueGuarda) {
  const std::tuple<const char*, const char*, const char*, const char*> casos[] = {
      {"T", "TextoMétodoDeCálculo", "4",
       "Ud. eligió trabajar por métodos de equilibrio límite y no por elementos finitos."},
      {"F", "TextoMétodoDeCálculo", "x",
       "Debe introducir el número  <2> o <4> dependiendo del método de cálculo que Ud. considere"},
      {"F", "TextoMétodoDeCálculo", "1",
       "Ud. debe seleccionar el número  <2> o <4> dependiendo del método de cálculo que Ud. "
       "considere"},
      {"F", "TextoFSInicial", " ", kFactor},
      {"F", "TextoRadioCírculoFalla", "0", kRadio},
      {"F", "TextoNúmeroDovelas", "2.5", kDovelas},
      {"F", "TextoNúmeroDovelas", "muchas",
       "Debe introducir un número para la cantidad de dovelas a tomar en consideración en el "
       "análisis"},
      {"F", "TextoRadioCírculoFalla", "5.5",  // half the chord is 5.831
       "El radio del arco del círculo debe ser mayor que el valor de la mitad de la cuerda, la "
       "cual está definida por los puntos 1 y 2 de la superficie potencial de falla."},
  };
  for (const auto& [análisis, campo, valor, texto] : casos) {
    SetUp();
    p.TipoDeAnálisis = análisis;
    EXPECT_EQ(pruebas::Pulsar(pantalla, {{campo, valor}}, "BotónAceptar"), Textos{texto});
    EXPECT_FALSE(pantalla.cerrada || p.ParámetrosInicialesDados);
  }
  EXPECT_EQ(pantalla.texto("TextoDeLaCuerda"), "11.66");
  SetUp();
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada && p.ParámetrosInicialesDados);
  const auto& pi = p.ParámetrosIniciales;
  EXPECT_EQ((std::vector<double>{1.0 * pi.MétodoDeCálculo, pi.FSInicial, pi.NúmeroDovelas,
                                 pi.Radio}),
            (std::vector<double>{4, 1.3, 20, 8}));
  EXPECT_FALSE(p.DatosGuardados);
  // On a surface that is not an arc it only warns.
  HacerPoligonal(p);
  EXPECT_EQ(pruebas::Pulsar(pantalla, {{"TextoRadioCírculoFalla", ""}}, "BotónAceptar"),
            Textos{"Ud. está considerando que la superficie potencial de falla (SPF) es un arco de "
                   "círculo, por lo que puede obviar dar la ordenada y abscisa del centro de "
                   "rotación."});
  EXPECT_TRUE(pantalla.cerrada);
}

}  // namespace
}  // namespace lomaterra
