// The screens of limit equilibrium. The data screens: the project information (Form15), the soil
// strata (Form5), the rock strata, the stretches of the failure surface (Form6), the loads (Form7,
// Form8), and the constants screen with the short one of finite elements; each check in its order
// and word for word, what Aceptar stores, what Cancelar asks. Then the screens the methods open
// while they iterate: form9 asks its two questions after a step, Form13 corrects the stresses that
// broke the strength law, Form17 the heights of the lateral forces; and the two override screens
// of the slices, Form18 and Form34, with their gates.
#include <gtest/gtest.h>

#include <cmath>

#include "apoyo/proyectos.h"
#include "equilibrio/constantes.h"
#include "equilibrio/form13.h"
#include "equilibrio/form17.h"
#include "equilibrio/form18.h"
#include "equilibrio/form9.h"
#include "pantallas/comun_pantallas.h"
#include "pantallas/constantes_elementos.h"
#include "pantallas/estratos_roca.h"
#include "pantallas/form15.h"
#include "pantallas/form34.h"
#include "pantallas/form5.h"
#include "pantallas/form6.h"
#include "pantallas/form7.h"
#include "pantallas/form8.h"
#include "proyecto/comandos.h"
#include "proyecto/fallos.h"

namespace lomaterra {
namespace {

using pruebas::Cajas;
using pruebas::Pulsar;
using pruebas::Textos;

// ---- Project information

struct Información : ::testing::Test {
  Proyecto p;
  InterfazGuionada ui;
  Form15 pantalla{p};
  void SetUp() override { ReiniciarProyecto(p); }
  // Opens the screen, fills every box with the letter given and presses Aceptar.
  void Aceptar(const char* letra, const std::string& respuestas = "") {
    ui.Responder(respuestas);
    pruebas::Activar(pantalla, ui);
    pruebas::Escribir(pantalla, {{"TextoProgresivaInicial", "1+001.00"},
                                 {"TextoProgresivaFinal", "1+250.00"},
                                 {"TextoFechaProyecto", "30 / 12/ 1999"},
                                 {"TextoIngResponsable", "M. Pérez"},
                                 {"TextoEmpresa", "Geotecnia del Sur"},
                                 {"TextoDeAnálisis", letra}});
    pantalla.Pulsar("BotónAceptar", ui);
  }
};

TEST_F(Información, CadaCampoEnSuOrdenConSuTítuloYLaLetraAlFinal) {
  // The box of the company keeps the title of the field before it.
  const std::vector<Apunte> casos = {
      {"mensaje", "Progresiva inicial", "Debe dar la progresiva de la forma 1+001.00 ", ""},
      {"mensaje", "Progresiva final", "Debe dar la progresiva de la forma 1+001.00", ""},
      {"mensaje", "Fecha del proyecto", "Debe dar la fecha de la forma 30 / 12/ 1999", ""},
      {"mensaje", "Nombre del Ing.", "Nombre de la persona responsable.", ""},
      {"mensaje", "Progresiva final",
       "Debe dar un nombre para la Empresa encargada del proyecto", ""},
  };
  const char* campos[] = {"TextoProgresivaInicial", "TextoProgresivaFinal", "TextoFechaProyecto",
                          "TextoIngResponsable", "TextoEmpresa"};
  for (std::size_t k = 0; k < casos.size(); ++k) {
    Aceptar("x");  // the letter is checked last
    ui.Olvidar();
    for (std::size_t j = k; j < casos.size(); ++j) pantalla.texto(campos[j]) = "  ";
    pantalla.Pulsar("BotónAceptar", ui);
    EXPECT_EQ(ui.Transcripción(), std::vector<Apunte>{casos[k]});
  }
  for (const char* mala : {"", "x", "TF", "s"}) {
    ui.Olvidar();
    Aceptar(mala);
    EXPECT_EQ(ui.Textos(), Textos{kMensajeLetraDeAnálisis}) << mala;
  }
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_FALSE(p.InformaciónDada);
  Aceptar(" t ");
  EXPECT_EQ(p.TipoDeAnálisis, "T");
  EXPECT_EQ(p.InformaciónProyecto.Empresa + p.InformaciónProyecto.FechaProyecto,
            "Geotecnia del Sur30 / 12/ 1999");
  EXPECT_TRUE(pantalla.cerrada && p.InformaciónDada && p.Ventana.EntradaCoordenadasAbierta);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Información, CambioDeTipoDeAnálisisConservaDatosYBorraLoCalculado) {
  p.TipoDeAnálisis = "T";
  p.ParámetrosInicialesDados = true;
  p.CálculoHecho = true;
  p.NúmeroPuntosTalud = 4;
  Aceptar("F", "S");
  EXPECT_EQ(ui.Transcripción(),
            (std::vector<Apunte>{{"pregunta", "", kPreguntaCambioAElementosFinitos, "S"}}));
  EXPECT_EQ(p.TipoDeAnálisis, "F");
  EXPECT_FALSE(p.ParámetrosInicialesDados || p.CálculoHecho);
  EXPECT_EQ(p.NúmeroPuntosTalud, 4);
  EXPECT_TRUE(pantalla.cerrada && p.InformaciónDada);
  // Back from finite elements the question says the contrary.
  p.Sísmico.CálculoSísmicoHecho = true;
  ui.Olvidar();
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.texto("TextoDeAnálisis"), "F");  // the letter kept by the project
  Aceptar("T", "S");
  EXPECT_EQ(ui.Textos(), Textos{kPreguntaCambioAEquilibrioLímite});
  EXPECT_EQ(p.TipoDeAnálisis, "T");
  EXPECT_FALSE(p.Sísmico.CálculoSísmicoHecho);
}

TEST_F(Información, UnNoAlCambioNoPierdeNadaYVuelveALaLetraAnterior) {
  p.TipoDeAnálisis = "T";
  p.CálculoHecho = true;
  p.ParámetrosInicialesDados = true;
  Aceptar("F", "N");
  EXPECT_EQ(pantalla.texto("TextoDeAnálisis") + p.TipoDeAnálisis, "TT");
  EXPECT_TRUE(p.CálculoHecho && p.ParámetrosInicialesDados);
  EXPECT_FALSE(pantalla.cerrada || p.InformaciónDada);
  EXPECT_TRUE(p.InformaciónProyecto.Empresa.empty());
  // Accepting again with the former letter goes through without a question.
  ui.Olvidar();
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada && p.CálculoHecho);
  EXPECT_TRUE(ui.Transcripción().empty());
}

// ---- Soil strata

struct Estratos : ::testing::Test {
  Proyecto p;
  InterfazGuionada ui;
  Form5 pantalla{p};
  void SetUp() override {
    p.NúmeroEstratos = 2;
    pruebas::Activar(pantalla, ui);
  }
  // Cohesion, friction, moist and saturated weights, type, B, cv, time, on row `fila`.
  void Modificar(int fila, const std::vector<const char*>& v) {
    pantalla.lista("ListaEstratos").seleccionada = fila;
    pantalla.lista("ListaEstratos").alSeleccionar(ui);
    const char* cajas[] = {"TextoCohesión", "TextoFricción", "TextoPesoUnitarioHúmedo",
                           "TextoPesoUnitarioSaturado", "TextoTipoEstrato",
                           "TextoParámetroPresión", "TextoCoeficienteConsolidaciónVertical",
                           "TextoTiempoDeConstrucción"};
    for (std::size_t i = 0; i < v.size(); ++i) pantalla.texto(cajas[i]) = v[i];
    pantalla.Pulsar("BotónModificar", ui);
  }
  const Textos& Fila(int i) { return pantalla.lista("ListaEstratos").filas[i - 1]; }
};

TEST_F(Estratos, ModificarCompruebaEnSuOrden) {
  // Each case spoils one box and every box after it, so only the order picks the message.
  const std::pair<std::vector<const char*>, const char*> casos[] = {
      {{"c", "f", "h", "s", "Z", "b", "cv", "t"}, "Debe introducir un número en la cohesión"},
      {{"2", "f", "h", "s", "Z", "b", "cv", "t"}, "Debe introducir un número en la fricción"},
      {{"2", "30", "h", "s", "Z", "b", "cv", "t"},
       "Debe introducir un número en el peso unitario húmedo"},
      {{"2", "30", "1.8", "s", "Z", "b", "cv", "t"},
       "Debe introducir un número en el peso unitario saturado"},
      {{"2", "30", "1.8", "2", "Z", "b", "cv", "t"},
       "Para el tipo de estrato debe introducir una 'A para Terraplenes y rellenos artificiales' o "
       "una 'B para estratos naturales'"},
      {{"2", "30", "1.8", "2", "a", "b", "cv", "t"},
       "Debe introducir un número en el parámetro de presión intersticial"},
      {{"2", "30", "1.8", "2", "a", "0.5", "cv", "t"},
       "Debe introducir un número para el coeficiente de consolidación vertical"},
      {{"2", "30", "1.8", "2", "a", "0.5", "0", "t"},
       "Debe introducir un número para el tiempo de construcción"},
      {{"2", "30", "1.8", "1.7", "a", "0.5", "0", "6"},
       "El peso unitario saturado es menor que el peso unitario húmedo. Por favor corriga. Si no "
       "está saturado debe ser igual al peso unitario húmedo."},
  };
  for (const auto& [valores, texto] : casos) {
    ui.Olvidar();
    Modificar(1, valores);
    EXPECT_EQ(ui.Textos(), Textos{texto});
    EXPECT_EQ(Fila(1)[1], "") << "row refused";
  }
}

TEST_F(Estratos, ConfirmaciónDelPesoSaturadoYTiempoDeUnEstratoNatural) {
  const std::string cola = " que el peso unitario húmedo. Observe bien los valores antes de salir "
                           "de esta pantalla. ¿Es correcto el valor dado para peso unitario "
                           "saturado?";
  ui.Responder("NS");
  Modificar(1, {"2", "30", "1.8", "1.8", "B", "0", "0", "0"});  // No: the row stays empty
  EXPECT_EQ(Fila(1)[3], "");
  Modificar(2, {"0", "25", "1.7", "1.95", "a", "0.3", "0.0012345", "6"});  // Yes
  EXPECT_EQ(ui.Textos(), (Textos{"El peso unitario saturado es igual" + cola,
                                 "El peso unitario saturado es mayor" + cola}));
  EXPECT_EQ(Fila(2), (Textos{"2", "0.00", "25.00", "1.70", "1.95", "A", "0.30", "0.0012345",
                             "6.00"}));
  for (const char* tiempo : {"4", "-2"}) {  // any time but zero, also below it
    ui.Olvidar();
    ui.Responder("S");
    Modificar(1, {"2", "30", "1.8", "2", "b", "0", "0", tiempo});
    ASSERT_FALSE(ui.Textos().empty()) << tiempo;
    EXPECT_EQ(ui.Textos()[0],
              "Si el estrato es natural, entonces el Tiempo de construcción es cero") << tiempo;
    EXPECT_EQ(Fila(1)[8], "0.00") << tiempo;
  }
}

TEST_F(Estratos, AceptarPideLaLetraSYTodasLasFilas) {
  ui.PorDefecto(true);
  Modificar(1, {"2.125", "30", "1.8", "2", "B", "0", "0", "0"});
  ui.Olvidar();
  pantalla.Pulsar("BotónAceptar", ui);
  pantalla.texto("TextoSueloRoca") = "s";
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Transcripción(),
            (std::vector<Apunte>{
                {"mensaje", "", "Para el análisis en suelos, ud debe introducir  la letra  'S'",
                 ""},
                {"mensaje", "Características de los estratos",
                 "Faltan datos. Debe introducir las características para todos y cada uno de los "
                 "estratos", ""}}));
  EXPECT_TRUE(!pantalla.cerrada && p.TipoDeMaterial.empty());
  Modificar(2, {"0", "34", "1.9", "2.1", "A", "0.2", "0.001", "3"});
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(p.TipoDeMaterial, "S");
  EXPECT_TRUE(pantalla.cerrada && p.EstratosCaracterizados && p.CaracterísticasSueloCompletas);
  EXPECT_EQ(p.NúmeroEstratosCaracterizados, 2);
  EXPECT_FALSE(p.DatosGuardados);
  const auto& e = p.Estrato;
  // The value typed, not the two decimals shown; type A is 1, B is 0.
  EXPECT_EQ((std::vector<double>{e.Cohesión[1], e.TipoEstrato[1] * 1.0, e.TipoEstrato[2] * 1.0,
                                 e.PesoUnitarioSaturado[2], e.ParámetroPresión[2],
                                 e.CoeficienteConsolidaciónVertical[2],
                                 e.TiempoDeConstrucción[2]}),
            (std::vector<double>{2.125, 0, 1, 2.1, 0.2, 0.001, 3}));
  // Opened again on a soil project it shows the rows and the letter.
  pruebas::Activar(pantalla, ui);
  EXPECT_EQ(Fila(2)[2], "34.00");
  EXPECT_EQ(pantalla.texto("TextoSueloRoca"), "S");
}

TEST_F(Estratos, CancelarPreguntaYSinEstratosRemiteAInsertar) {
  ui.Responder("NS");
  pantalla.Pulsar("BotónCancelar", ui);
  EXPECT_FALSE(pantalla.cerrada);
  pantalla.Pulsar("BotónCancelar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  Proyecto vacío;
  CaracterísticasGeomecánicasSuelos(vacío, ui);
  EXPECT_EQ(ui.Textos(), (Textos{"No desea archivar las características de los estratos?",
                                 "No desea archivar las características de los estratos?",
                                 "Actualmente no hay estratos. Seleccione primero una de las "
                                 "opciones: \nInsertar estrato"}));
}

// ---- Rock strata

struct EstratosRoca : ::testing::Test {
  Proyecto p;
  InterfazGuionada ui{"", true};
  PantallaEstratosRoca pantalla{p};
  void Abrir(const char* análisis, Entero estratos = 1) {
    p = Proyecto{};
    p.NúmeroEstratos = estratos;
    p.TipoDeAnálisis = análisis;
    pruebas::Activar(pantalla, ui);
    Elegir(1);
    ui.Olvidar();
  }
  void Elegir(int fila) {
    auto& l = pantalla.lista("CaracterísticasEstratosEnRoca");
    l.seleccionada = fila;
    l.alSeleccionar(ui);
  }
  // mi, GSI, m, s, moist, saturated, σc, Cs, Cp, Poisson, viscosity; then Modificar.
  void Fila(const std::vector<const char*>& v) {
    const char* cajas[] = {"TextoMIntacta", "TextoGSI", "TextoMMacizo", "TextoSMacizo",
                           "TextoPesoUnitarioHúmedo", "TextoPesoUnitarioSaturado",
                           "TextoCompresiónSimple", "TextoVelocidadCorte",
                           "TextoVelocidadLongitudinal", "TextoPoisson", "TextoViscosidad"};
    for (std::size_t i = 0; i < v.size(); ++i) pantalla.texto(cajas[i]) = v[i];
    pantalla.Pulsar("BotónModificar", ui);
  }
  std::string Último() { return ui.Transcripción().empty() ? "" : ui.Transcripción().back().texto; }
};

TEST_F(EstratosRoca, ComprobacionesEnSuOrden) {
  // The kind of analysis, the boxes of the row for Modificar, other boxes then Aceptar.
  using Caso = std::tuple<const char*, std::vector<const char*>, Cajas, const char*>;
  // clang-format off
  const std::vector<const char*> buena{"10", "50", "0", "0", "2.5", "2.6", "100", "", "", "", ""};
  const std::vector<const char*> buenaF{"10", "50", "0", "0", "2.5", "2.6", "100", "800", "1500", "0.25", "0"};
  const Cajas ningunas;
  const std::vector<Caso> casos = {
      {"T", {"10", "x"}, {}, "Debe introducir un número para el índice de calidad de la roca"},
      {"T", {"10", "101"}, ningunas, "Debe introducir el valor apropiado del índice de calidad de la roca GSI"},
      {"T", {"x", "50", "x"}, {}, "Debe introducir un número para este parámetro"},
      {"T", {"10", "50", "x", "x"}, {}, "Debe introducir un número para el parámetro 'm'"},
      {"T", {"10", "50", "0", "x", "x"}, {}, "Debe introducir un número para el parámetro 's'"},
      {"T", {"10", "50", "0", "0", "x", "x"}, ningunas, "Debe introducir un número en el peso unitario húmedo"},
      {"T", {"10", "50", "0", "0", "2", "x", "x"}, ningunas, "Debe introducir un número en el peso unitario saturado"},
      {"T", {"10", "50", "0", "0", "2", "2", "x"}, ningunas, "Debe introducir un número para la resistencia a la compresión simple"},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "x", "1500"}, ningunas, "Debe dar el valor de la velocidad de la onda de corte."},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "1600", "1500"}, ningunas, "La velocidad de la onda de corte es menor que la velocidad de la onda longitudinal."},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "800", "1500", "x", "x"}, ningunas, "Debe dar el valor del coeficiente de poisson."},
      {"F", {"10", "50", "0", "0", "2", "2", "100", "800", "1500", "0.2", "x"}, ningunas, "Debe introducir un número para la viscosidad de la roca, incluyendo el cero."},
      {"T", buena, {{"TextoSueloRoca", "S"}}, "Ud va hacer un análisis en ROCA y debe introducir la letra  'R'"},
      {"F", buenaF, {{"TextoSueloRoca", "r"}, {"TextoTipoDeObra", "X"}}, "Presione la letra 'O' para  Túneles y  la letra 'S' para taludes."},
      {"T", buena, {{"TextoSueloRoca", "R"}, {"TextoFactorPerturbación", "x"}}, "Debe introducir un el valor apropiado para el factor de corrección por perturbación de la roca, el cual varía entre 0 y 1"},
      {"T", buena, {{"TextoSueloRoca", "R"}, {"TextoFactorPerturbación", "1.2"}}, "El factor de perturbación debe estar entre cero y uno, y es parámetro requerido en las estimaciones de esfuerzos."},
      {"T", buena, {{"TextoSueloRoca", "R"}, {"TextoAlturaH", "x"}}, "Debe introducir un valor apropiado para la altura del talud o profundidad del túnel"},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEstadoPlano", "1"}}, "Debe introducir el número  <2>: Deformación plana."},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "x"}}, "Debe dar un número entero para tomar en cuenta el espesor donde va hacer el análisis"},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "0"}}, "Debe dar un valor de espesor considerado para el análisis por deformación plana (1 m es común)."},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "3"}}, "Debe introducir el número <1> o <2> "},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "1"}, {"TextoEspesorDeSedimentos", "x"}}, "Debe dar un número para el espesor de sedimentos del sitio de análisis estimado por el geologo."},
      {"F", buenaF, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "O"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "1"}, {"TextoAlturaH", "0"}}, "El valor de esta altura es requerida. Debe dar el valor de la altura del talud o carga de roca sobre techo del túnel."},
      {"F", {"10", "50", "0", "0", "2.5", "2.6", "100", "0", "0", "0", "0"}, {{"TextoSueloRoca", "R"}, {"TextoTipoDeObra", "S"}, {"TextoEspesorConsiderado", "1"}, {"TextoMétodoModuloCortante", "1"}, {"TextoAlturaH", "30"}}, "Faltan datos. Debe introducir las características para todos los estratos:  Las velocidades de la onda, coeficiente de poisson,  en caso de análisis sísmico. En el caso de análisis sismico la viscosidad puede ser cero."},
  };
  // clang-format on
  for (const auto& [análisis, fila, cajas, texto] : casos) {
    Abrir(análisis);
    Fila(fila);
    if (!cajas.empty()) {
      ASSERT_TRUE(ui.Transcripción().empty()) << texto << ": " << Último();
      pruebas::Escribir(pantalla, cajas);
      pantalla.Pulsar("BotónAceptar", ui);
    }
    EXPECT_EQ(Último(), texto);
    EXPECT_FALSE(pantalla.cerrada) << texto;
    EXPECT_EQ(p.TipoDeMaterial, "") << texto;
  }
}

TEST_F(EstratosRoca, FaltaUnaFilaYLuegoAcepta) {
  Abrir("T", 2);
  Fila({"10", "50", "0", "0", "2.5", "2.6", "100"});
  pruebas::Escribir(pantalla, {{"TextoSueloRoca", "R"}, {"TextoFactorPerturbación", "0.5"},
                               {"TextoAlturaH", "0"}});
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(Último(), "Faltan datos. Debe introducir las características para todos y cada uno de "
                      "los estratos");
  EXPECT_FALSE(p.CaracterísticasRocaCompletas);
  Elegir(2);
  Fila({"10", "50", "0", "0", "2.5", "2.6", "100"});
  pantalla.Pulsar("BotónAceptar", ui);
  ASSERT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.TipoDeMaterial, "R");
  EXPECT_TRUE(p.CaracterísticasRocaCompletas);
  // With D = 0.5: m = 10·e^(−50/21), s = e^(−50/7.5).
  EXPECT_NEAR(p.Estrato.m_macizo[2], 10 * std::exp(-50.0 / 21), 1e-12);
  EXPECT_NEAR(p.Estrato.s_macizo[2], std::exp(-50.0 / 7.5), 1e-15);
  // H = 0: the empirical line, c = 0.0098·100·e^((0.0455 − 0.0073 ln 10)·50) = 4.114,
  // φ = 0.424·50 − 0.0016·2500 − 6 + 9 ln 10 = 31.92.
  EXPECT_NEAR(p.Estrato.Cohesión[1], 4.1139, 1e-4);
  EXPECT_NEAR(p.Estrato.Fricción[1], 31.9233, 1e-4);
}

TEST_F(EstratosRoca, FricciónNulaTerminaSinTocarLosEstratos) {
  // mi = 1, GSI = 5, H = 0: the empirical friction is 0 and the shear strength divides by it.
  Abrir("T");
  Fila({"1", "5", "0", "0", "2.5", "2.6", "100"});
  pruebas::Escribir(pantalla, {{"TextoSueloRoca", "R"}, {"TextoAlturaH", "0"}});
  try {
    pantalla.Pulsar("BotónAceptar", ui);
    FAIL() << "sin falla";
  } catch (const FalloAritmético& f) {
    EXPECT_NE(std::string(f.what()).find("estrato 1"), std::string::npos) << f.what();
  }
  EXPECT_EQ(p.TipoDeMaterial, "");
  EXPECT_EQ(p.Estrato.Fricción.Leer(1), 0);
  EXPECT_EQ(p.Estrato.m_macizo.Leer(1), 0);
}

// ---- Stretches of the failure surface

const char* const kAvisoCírculo =
    "Si selecciona círculos como superficies parciales de falla, es recomendable que los mismos "
    "estén entre los dos primeros puntos de la S.F o entre los dos últimos ptos de la S.F y "
    "seguidos o antecedidos por segmentos rectos.";

struct Tramos : ::testing::Test {
  Proyecto p;
  InterfazGuionada ui;
  Form6 pantalla{p};
  void Puntos(int n) {
    p.CoordenadasFalla.Redimensionar(n);
    for (int i = 1; i <= n; ++i) {
      p.CoordenadasFalla.X[i] = 10.0 * (n - i);
      p.CoordenadasFalla.Y[i] = 2.0 * (n - i);
    }
    p.NúmeroPuntosFalla = static_cast<Entero>(n);
    pruebas::Activar(pantalla, ui);
  }
  Textos Agregar(const char* inicial, const char* final_, const char* tipo) {
    return Pulsar(pantalla, {{"TextoPuntoInicial", inicial}, {"TextoPuntoFinal", final_},
                             {"TextoTipoUnión", tipo}}, "BotónAgregar");
  }
  std::size_t Filas() { return pantalla.lista("ListaTramos").filas.size(); }
};

TEST_F(Tramos, ComprobacionesDeAgregarEnSuOrden) {
  Puntos(5);
  const std::tuple<const char*, const char*, const char*, Textos> casos[] = {
      {"uno", "2", "Q",
       {"Debe introducir un número <1,2,3,4,..,n> sabiendo que la mayor abscisa de la primera "
        "coordenada de la superficie de falla es el pto No <1> y la menor abscisa de la superficie "
        "de falla, corresponde al pto <n>."}},
      {"1", "2", "Q",
       {"Para el tipo de superficie de falla entre puntos: Debe introducir  una 'L' para segmentos "
        "rectos entre dos puntos consecutivos, una 'C' para arcos de círculos entre dos puntos "
        "consecutivos y una 'P' para definir un polinomio entre tres o más puntos consecutivos."}},
      {"5", "6", "L",
       {"El valor del punto inicial tiene que ser menor que la cantidad de coordenadas de la "
        "superficie de falla"}},
      {"4", "6", "L",
       {"El valor del punto final tiene que ser como máximo igual a la cantidad de coordenadas de "
        "la superficie de falla"}},
      {"3", "3", "L", {"El valor del punto final, no puede ser menor o igual que el pto inicial"}},
      {"1.5", "3", "L", {"El número del punto inicial debe ser entero"}},
      {"1", "2.5", "L", {"El número del punto final debe ser entero"}},
      {"1", "2", "p", {"No puede seleccionar un polinomio entre dos puntos consecutivos"}},
      {"1", "3", "C",
       {kAvisoCírculo, "Debe seleccionar un círculo entre dos puntos consecutivos."}},
      {"1", "3", "L", {"Debe seleccionar un segmento recto entre dos puntos consecutivos."}},
      {"2", "3", "L", {"el valor inicial del primer punto tiene que ser igual a <1>"}},
  };
  for (const auto& [inicial, final_, tipo, textos] : casos)
    EXPECT_EQ(Agregar(inicial, final_, tipo), textos) << inicial << final_ << tipo;
  EXPECT_EQ(Filas(), 0u);
}

TEST_F(Tramos, ContinuidadEntreTramosBorrarYCancelar) {
  Puntos(6);
  EXPECT_TRUE(Agregar("1", "2", "L").empty());
  EXPECT_TRUE(Agregar("2", "4", "P").empty());
  EXPECT_EQ(Agregar("3", "4", "L"),
            Textos{"El punto inicial no tiene coincidencia con ningún punto final anterior"});
  EXPECT_EQ(Agregar("2", "3", "L"),
            Textos{"El punto inicial actual no puede ser diferente del punto final anterior"});
  EXPECT_EQ(Filas(), 2u);
  // Accepting before the last point is reached is refused.
  EXPECT_EQ(Pulsar(pantalla, {}, "BotónAceptar"),
            Textos{"El punto final debe ser igual a la cantidad de coordenadas de la superficie de "
                   "falla y además Ud. debe de agregar primero todos los puntos y luego si "
                   "<Aceptar> sus definiciones"});
  EXPECT_FALSE(p.GeometríaFallaDefinida);
  EXPECT_EQ(Agregar("4", "5", "c"), Textos{kAvisoCírculo});
  EXPECT_TRUE(Agregar("5", "6", "l").empty());
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.NúmeroTramosFalla, 4);
  EXPECT_EQ(p.TramoFalla.TipoUnión[2] + p.TramoFalla.TipoUnión[3] + p.TramoFalla.TipoUnión[4],
            "PCL");
  EXPECT_EQ(p.TramoFalla.PuntoFinal[2], 4);
  EXPECT_FALSE(p.SuperficieCircular() || p.DatosGuardados);
  // Borrar takes off the last stretch; Cancelar asks, and Yes keeps nothing.
  p.GeometríaFallaDefinida = false;
  p.NúmeroTramosFalla = 0;
  Puntos(3);
  Agregar("1", "2", "L");
  Agregar("2", "3", "L");
  pantalla.Pulsar("BotónBorrar", ui);
  EXPECT_EQ(Filas(), 1u);
  EXPECT_TRUE(Agregar("2", "3", "L").empty());
  EXPECT_EQ(Pulsar(pantalla, {}, "BotónCancelar", "S"),
            Textos{"No desea archivar los puntos de unión de la superficie de falla?"});
  EXPECT_TRUE(pantalla.cerrada && !p.GeometríaFallaDefinida && p.NúmeroTramosFalla == 0);
}

TEST(TramosComando, PideDosPuntosDeLaSuperficieDeFalla) {
  Proyecto p;
  InterfazGuionada ui;
  MénuGeometríaEntrePuntosSuperficieFalla(p, ui);
  // The points being entered in the panel of the failure surface count.
  p.Ventana.TipoPanel = 2;
  p.Ventana.ListaCoordenadas = {{20, 6}, {10, 0}};
  MénuGeometríaEntrePuntosSuperficieFalla(p, ui);
  EXPECT_EQ(p.NúmeroPuntosFalla, 2);
  EXPECT_EQ(pruebas::Renglones(ui),
            (Textos{"[mensaje] Coordenadas superficie de falla | Debe introducir coordenadas de la "
                    "superficie de falla",
                    "[pantalla] Definición del tipo de superficie de falla"}));
}

// ---- Loads

const std::vector<const char*> kUniformes = {"TextoAbscisaInicial", "TextoOrdenadaInicial",
                                             "TextoAbscisaFinal", "TextoOrdenadaFinal",
                                             "TextoCargaQx", "TextoCargaQy"};
const std::vector<const char*> kPuntuales = {"TextoAbscisaCarga", "TextoOrdenadaCarga",
                                             "TextoCargaPx", "TextoCargaPy"};

Textos PulsarCon(Pantalla& f, const std::vector<const char*>& cajas,
                 const std::vector<const char*>& valores, const char* botón) {
  for (std::size_t i = 0; i < cajas.size(); ++i) f.texto(cajas[i]) = valores[i];
  return Pulsar(f, {}, botón);
}

TEST(Cargas, UniformesComprobacionesEnSuOrdenYFilas) {
  Proyecto p;
  InterfazGuionada ui;
  Form7 f(p);
  pruebas::Activar(f, ui);
  const char* const kMenor = "El valor de la abscisa inicial tiene que ser menor la abscisa final";
  const std::pair<std::vector<const char*>, const char*> casos[] = {
      {{"a", "a", "a", "a", "a", "a"}, "Debe introducir un número para la abscisa inicial"},
      {{"10", "a", "a", "a", "a", "a"}, "Debe introducir un número para la ordenada inicial"},
      {{"10", "2", "a", "a", "a", "a"}, "Debe introducir un número para la abscisa final"},
      {{"10", "2", "20", "a", "a", "a"}, "Debe introducir un número para la ordenada final"},
      {{"10", "2", "20", "5", "", "a"},
       "Debe introducir un número para la carga 'qx'. Si no existe el valor es cero"},
      {{"10", "2", "20", "5", "0", "a"},
       "Debe introducir un número para la carga 'qy'. Si no existe el valor es cero"},
      {{"20", "2", "20", "5", "0", "3"}, kMenor},
  };
  for (const auto& [valores, texto] : casos)
    EXPECT_EQ(PulsarCon(f, kUniformes, valores, "BotónAgregar"), Textos{texto});
  EXPECT_TRUE(f.Filas().empty());
  EXPECT_TRUE(PulsarCon(f, kUniformes, {"10", "2", "20", "5", "0", "3"}, "BotónAgregar").empty());
  EXPECT_TRUE(
      PulsarCon(f, kUniformes, {"30", "6", "45", "9.5", "-1", "2.25"}, "BotónAgregar").empty());
  EXPECT_EQ(PulsarCon(f, kUniformes, {"10", "2", "20", "5", "0", "4"}, "BotónModificar"),
            Textos{"Ud no ha seleccionado ninguna fila para modificar valores ya agregados."});
  auto& l = f.lista("ListaCargasUniformes");
  l.seleccionada = 1;
  l.alSeleccionar(ui);
  EXPECT_EQ(f.texto("TextoCargaQy"), "3");
  EXPECT_EQ(PulsarCon(f, kUniformes, {"10", "2", "5", "5", "0", "4"}, "BotónModificar"),
            Textos{kMenor});
  EXPECT_TRUE(PulsarCon(f, kUniformes, {"10", "2", "20", "5", "0", "4"}, "BotónModificar").empty());
  EXPECT_EQ(l.filas[0], (Textos{"10.00", "2.00", "20.00", "5.00", "0.00", "4.00"}));
  f.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(f.cerrada && p.CargasUniformesDadas);
  EXPECT_EQ(p.NúmeroCargasUniformes, 2);
  EXPECT_EQ((std::vector<double>{p.CargaUniforme.qy[1], p.CargaUniforme.yf[2],
                                 p.CargaUniforme.qy[2]}),
            (std::vector<double>{4, 9.5, 2.25}));
  EXPECT_FALSE(p.DatosGuardados);
  // Opened again it shows what was stored; deleting every row and accepting clears the flag.
  pruebas::Activar(f, ui);
  ASSERT_EQ(l.filas.size(), 2u);
  for (int i = 0; i < 2; ++i) {
    l.seleccionada = 1;
    f.Pulsar("BotónBorrar", ui);
  }
  EXPECT_TRUE(l.filas.empty());
  EXPECT_EQ(Pulsar(f, {}, "BotónBorrar"),
            Textos{"Ud no ha seleccionado ninguna fila para borrar."});
  f.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(p.NúmeroCargasUniformes, 0);
  EXPECT_FALSE(p.CargasUniformesDadas);
  // The signs, and Cancelar.
  pruebas::Activar(f, ui);
  ui.Olvidar();
  f.Pulsar("Command1", ui);
  ui.Responder("S");
  f.Pulsar("BotónCancelar", ui);
  EXPECT_EQ(ui.Textos(), (Textos{"'qx' es positiva cuando aplique compresión al talud. Esta "
                                 "dirigida en dirección horizontal (eje de las abscisas).",
                                 "'qy' es positiva cuando aplique compresión al talud. Esta "
                                 "dirigida en dirección vertical  (eje de las ordenadas).",
                                 "No desea archivar las cargas dadas ?"}));
  EXPECT_TRUE(f.cerrada);
}

TEST(Cargas, PuntualesComprobacionesSignosYGuardado) {
  Proyecto p;
  InterfazGuionada ui;
  Form8 f(p);
  pruebas::Activar(f, ui);
  const std::pair<std::vector<const char*>, const char*> casos[] = {
      {{"x", "x", "x", "x"},
       "Debe introducir un número para la abscisa de aplicación de la carga puntual"},
      {{"12", "x", "x", "x"},
       "Debe introducir un número para la ordenada de aplicación de la carga puntual"},
      {{"12", "4", "x", "x"},
       "Debe introducir un número para la carga puntual aplicada en dirección de las abscisas"},
      {{"12", "4", "0", "x"},
       "Debe introducir un número para la carga puntual aplicada en dirección de las ordenadas"},
  };
  for (const auto& [valores, texto] : casos)
    EXPECT_EQ(PulsarCon(f, kPuntuales, valores, "BotónAgregar"), Textos{texto});
  EXPECT_TRUE(PulsarCon(f, kPuntuales, {"12", "4", "0", "7.5"}, "BotónAgregar").empty());
  f.Pulsar("FavorLeer", ui);
  EXPECT_EQ(ui.Textos(), (Textos{"'Px' es positiva cuando aplica compresión al talud y esta "
                                 "dirigida en dirección de las abscisas.",
                                 "'Py' es positiva cuando aplica compresión al talud y está "
                                 "dirigida en la dirección de la gravedad (eje de las "
                                 "ordenadas)."}));
  ui.Responder("N");
  f.Pulsar("BotónCancelar", ui);
  EXPECT_FALSE(f.cerrada || p.CargasPuntualesDadas);
  f.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(f.cerrada && p.CargasPuntualesDadas);
  EXPECT_EQ(p.NúmeroCargasPuntuales, 1);
  EXPECT_EQ((std::vector<double>{p.CargaPuntual.Xpuntual[1], p.CargaPuntual.Py[1]}),
            (std::vector<double>{12, 7.5}));
}

// ---- Constants of the calculation

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
  p.TipoDeAnálisis = "F";  // the gate of the analysis kind, its texts pinned with the methods
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

using Filas = std::vector<std::vector<std::string>>;

// ---- Screens opened while iterating

const std::string kSolución = "¿Considera que es la solución?";
const std::string kSalir = "¿Desea salir del cálculo?";

TEST(Form9, MuestraElPasoConSusFormatosYLasDosPreguntasFijanLasBanderas) {
  Proyecto p;
  p.HistoriaIteraciones.Redimensionar(100);
  p.NúmeroIteraciones = 3;
  p.HistoriaIteraciones.Multiplicador1[3] = 39.3498123456789;
  p.HistoriaIteraciones.Multiplicador2[3] = 56.30846;
  p.HistoriaIteraciones.FactorDeSeguridad[3] = 0.98722564512;
  p.SumaFuerzasHorizontales = 0.004;
  p.SumaFuerzasVerticales = -12.345;
  p.SumaMomentos = 1234.5678;
  const std::tuple<const char*, bool, bool, Textos> casos[] = {
      {"S", true, false, {kSolución}},
      {"NS", false, true, {kSolución, kSalir}},
      {"NN", false, false, {kSolución, kSalir}}};
  Form9 pantalla(p);
  for (const auto& [respuestas, aceptada, salir, textos] : casos) {
    p.SoluciónAceptada = p.SalirDelCálculo = true;  // left from a step before
    InterfazGuionada ui(respuestas);
    ui.Abrir(pantalla);
    EXPECT_EQ(ui.Textos(), textos);
    EXPECT_EQ(p.SoluciónAceptada, aceptada) << respuestas;
    EXPECT_EQ(p.SalirDelCálculo, salir) << respuestas;
    EXPECT_TRUE(pantalla.cerrada);
  }
  for (const auto& [caja, valor] : pruebas::Cajas{
           {"TextoNúmeroIteraciones", "3"}, {"TextoMultiplicador1", "39.349812346"},
           {"TextoMultiplicador2", "56.308460000"}, {"TextoDelFactorDeSeguridad", "0.987225645"},
           {"TextoDeLaSumaDeFuerzasHorizontales", "0.00 ton"},
           {"TextoDeLaSumaDeFuerzasVerticales", "-12.35 ton"},
           {"TextoDeLaSumaDeMomentos", "1234.57 ton.m"}})
    EXPECT_EQ(pantalla.texto(caja), valor) << caja;
}

// Four slices after step 2 of an iteration: c = 1, tanφ = 0.5 (limit −2 on the effective stress),
// pore pressure 0.5 under slice 2; slice 3 fails with σ = −2.5.
struct Form13Prueba : ::testing::Test {
  Proyecto p;
  Form13 pantalla{p};
  InterfazGuionada ui;
  void SetUp() override {
    p.TipoDeMaterial = "S";
    p.NúmeroBordes = 5;
    auto& d = p.TablaDovelas;
    pruebas::Fijar(d.CohesiónBase, {1, 1, 1, 1});
    pruebas::Fijar(d.TanFricciónBase, {0.5, 0.5, 0.5, 0.5});
    pruebas::Fijar(d.PresiónPoros, {0, 0.5, 0, 0});
    p.NúmeroIteraciones = 2;
    p.EsfuerzoIteración.Redimensionar(5, 100);
    const double antes[] = {0, -0.3, 1.0, 2.0, -1.0, 4.0};
    const double ahora[] = {0, -0.3, 1.234, 2.5, -2.5, 4.25};
    for (int j = 1; j <= 5; ++j) {
      p.EsfuerzoIteración(j, 1) = antes[j];
      p.EsfuerzoIteración(j, 2) = ahora[j];
    }
    p.DovelaFallida = 3;
  }
  ListaPantalla& lista() { return pantalla.lista("ListaValoresDeSigma3"); }
  void Cambiar(int fila, const std::string& valor) {
    lista().seleccionada = fila;
    pantalla.texto("TextoSigma3Actual") = valor;
    pantalla.Pulsar("Modificar", ui);
  }
};

TEST_F(Form13Prueba, MuestraLosEsfuerzosYLímitesElMaterialDecideElTítuloYFricciónNulaEsFalla) {
  pruebas::Activar(pantalla, ui);
  // Limits on the total stresses: −c/tanφ + u = −2, and −1.5 under the pore pressure of slice 2.
  EXPECT_EQ(lista().filas, (Filas{{"1", "1.00", "1.23", "-2.00"}, {"2", "2.00", "2.50", "-1.50"},
                                  {"3", "-1.00", "-2.50", "-2.00"},
                                  {"4", "4.00", "4.25", "-2.00"}}));
  EXPECT_EQ(pantalla.texto("TextoDovelaFallida"), "3");
  // The title follows the strength law: the normal stresses, or sigma 3 in rock.
  const std::string normales = "Resultados de los sigma normales en el proceso iterativo";
  EXPECT_EQ(pantalla.título, normales);
  p.TipoDeMaterial = "R";
  pantalla.leySigma3 = true;
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.título, "Resultados de los sigma3 en el proceso iterativo");
  pantalla.leySigma3 = false;
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.título, normales);
  // In soil a zero friction under a slice is an arithmetic fault that ends the command.
  p.TipoDeMaterial = "S";
  p.TablaDovelas.TanFricciónBase[4] = 0;
  EXPECT_THROW(pantalla.Activar(ui), FalloAritmético);
  const auto fin = EjecutarComando([this](Proyecto&, Interfaz& u) { u.Abrir(pantalla); }, p, ui);
  EXPECT_EQ(fin, FinDeComando::Fallo);
  EXPECT_FALSE(p.SigmaCorregidaDisponible);
}

TEST_F(Form13Prueba, ModificarYAceptarDejanLosValoresEnLaÚltimaFila) {
  ui.Abrir(pantalla);  // no script: closed with no change
  EXPECT_FALSE(p.SigmaCorregidaDisponible);
  pruebas::Activar(pantalla, ui);
  Cambiar(3, "abc");
  EXPECT_EQ(ui.Textos().back(), "Debe introducir un número para los sigma");
  Cambiar(3, "0");
  lista().filas[0][2] = "";  // an empty row blocks Aceptar
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(InterfazGuionada::Línea(ui.Transcripción().back()),
            "[mensaje] Valores de esfuerzos normales | Faltan datos. Debe introducir los valores "
            "deseados para todos y cada una de las dovelas");
  EXPECT_FALSE(pantalla.cerrada);
  lista().filas[0][2] = "1.23";
  // Slice 2 under pore pressure 0.5: −1.6 total is −2.1 effective, below −2.
  Cambiar(2, "-1.6");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_EQ(p.DovelaFallida, 2);
  EXPECT_EQ(pantalla.texto("TextoDovelaFallida"), "2");
  EXPECT_FALSE(p.SigmaCorregidaDisponible);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 2), -2.5);
  Cambiar(2, "-1.4");
  Cambiar(3, "-1.9");
  EXPECT_EQ(lista().filas[2][2], "-1.90");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada && p.SigmaCorregidaDisponible);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 2), -1.9);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(2, 2), 1.234);  // untouched rows keep every digit
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 1), -1.0);
}

TEST_F(Form13Prueba, SalirPreguntaSiUsarLosValores) {
  ui.Responder("NS");
  for (const bool sí : {false, true}) {
    pruebas::Activar(pantalla, ui);
    Cambiar(3, "-1");
    pantalla.Pulsar("BotónSalir", ui);  // No: closes with nothing changed; Yes: through Aceptar
    EXPECT_TRUE(pantalla.cerrada);
    EXPECT_EQ(p.SigmaCorregidaDisponible, sí);
    EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 2), sí ? -1.0 : -2.5);
  }
  EXPECT_EQ(ui.Textos(),
            Textos(2, "Ud. desea utilizar los valores actuales de sigma para el cálculo?"));
}

struct Form17Prueba : ::testing::Test {
  Form17Prueba() : pantalla(p) {
    p.NúmeroBordes = 4;  // three slices
    pruebas::Fijar(p.InclinaciónEmpuje, {0.616296937, 0.30288487});
    pruebas::Fijar(p.TablaDovelas.AlturaEmpuje, {1, 0.5, 0, 0});
  }
  // Opens the screen answering No twice so that it stays open.
  void AbrirAbierta(InterfazGuionada& ui) {
    ui.Responder("NN");
    pruebas::Activar(pantalla, ui);
    ASSERT_FALSE(pantalla.cerrada);
    ui.Olvidar();
  }
  void Poner(InterfazGuionada& ui, int fila, const std::string& valor) {
    pantalla.lista("ListaValoresDEht").seleccionada = fila;
    pantalla.texto("TextoNuevoValorDeht") = valor;
    pantalla.Pulsar("Modificar", ui);
  }
  Proyecto p;
  Form17 pantalla;
};

TEST_F(Form17Prueba, MuestraLasAlturasYLasRespuestasAlAbrir) {
  // Closed, accepted, leaves; the second question is not put after a Yes to the first.
  const std::tuple<const char*, bool, bool, bool, Textos> casos[] = {
      {"S", true, true, false, {kSolución}},
      {"NS", true, false, true, {kSolución, kSalir}},
      {"NN", false, false, false, {kSolución, kSalir}}};
  for (const auto& [respuestas, cerrada, acepta, sale, textos] : casos) {
    p.AceptaSolución = p.SaleDelCálculo = false;
    InterfazGuionada ui(respuestas);
    pantalla.Activar(ui);
    EXPECT_EQ(ui.Textos(), textos);
    EXPECT_EQ((std::vector<bool>{pantalla.cerrada, p.AceptaSolución, p.SaleDelCálculo}),
              (std::vector<bool>{cerrada, acepta, sale})) << respuestas;
  }
  EXPECT_EQ(pantalla.lista("ListaValoresDEht").filas,
            (Filas{{"1", "0.6163", "1.00", ""}, {"2", "0.3029", "0.50", ""},
                   {"3", "0.0000", "0.00", ""}}));
  // In a batch run both questions get No and the screen left open closes keeping the heights.
  InterfazGuionada lote;
  lote.Abrir(pantalla);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_FALSE(p.AceptaSolución || p.SaleDelCálculo);
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[2], 0.5);
}

TEST_F(Form17Prueba, ModificarAceptarYSalir) {
  InterfazGuionada ui;
  AbrirAbierta(ui);
  pantalla.Pulsar("Modificar", ui);  // no row selected
  Poner(ui, 1, "abc");
  Poner(ui, 1, "1.234");
  EXPECT_EQ(pantalla.lista("ListaValoresDEht").filas[0][3], "1.23");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_FALSE(pantalla.cerrada);
  Poner(ui, 2, "0");
  Poner(ui, 3, "0");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(pruebas::Renglones(ui),
            (Textos{"[mensaje] Valores de ht | Seleccione en la lista la dovela cuyo ht desea "
                    "cambiar.",
                    "[mensaje] Valores de ht | Debe introducir un número para el nuevo valor de "
                    "ht.",
                    "[mensaje] Valores de ht | Faltan datos. Debe introducir los valores deseados "
                    "para todos y cada una de las dovelas",
                    "[mensaje] Valores de ht | Parece que Ud. va  a trabajar con ht que no pueden "
                    "ser correctos"}));
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[1], 1);  // nothing stored yet
  auto& l = pantalla.lista("ListaValoresDEht");
  l.seleccionada = 2;
  l.alSeleccionar(ui);  // the box takes the row's value
  EXPECT_EQ(pantalla.texto("TextoNuevoValorDeht"), "0");
  Poner(ui, 2, "0.75");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  const auto& h = p.TablaDovelas.AlturaEmpuje;  // the values typed, not the ones shown
  EXPECT_EQ((std::vector<double>{h[1], h[2], h[3]}), (std::vector<double>{1.234, 0.75, 0}));
  // A new value and Salir asks.
  AbrirAbierta(ui);
  Poner(ui, 1, "3");
  ui.Responder("S");
  pantalla.Pulsar("BotónSalir", ui);  // Yes: stays open for Aceptar
  EXPECT_FALSE(pantalla.cerrada);
  ui.Responder("N");
  pantalla.CerrarSinCambios(ui);  // the close box is the exit button: No closes, heights kept
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(ui.Textos(),
            Textos(2, "Ud. desea utilizar los nuevos valores  de ht para el cálculo?"));
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[1], 1.234);
  AbrirAbierta(ui);  // no new value: the exit closes without a question
  pantalla.Pulsar("BotónSalir", ui);
  EXPECT_TRUE(pantalla.cerrada && ui.Textos().empty());
}

// Three slices of a calculated project.
struct Sobrescritura : ::testing::Test {
  Proyecto p;
  void SetUp() override {
    p.TipoDeAnálisis = "T";
    p.TipoDeMaterial = "S";
    p.CálculoHecho = true;
    p.ParámetrosIniciales.ParámetrosInstantáneos = 3;
    p.NúmeroBordes = 4;
    auto& d = p.TablaDovelas;
    pruebas::Fijar(d.CohesiónBase, {0.3058, 0.3058 * 2, 0.3058 * 3});
    pruebas::Fijar(d.FricciónBase, {19.6, 19.6, 19.6});
    pruebas::Fijar(d.TanFricciónBase, {0.3561, 0.3561, 0.3561});
    pruebas::Fijar(d.PresiónPoros, {0.125, 0.25, 0.375});
    p.DatosGuardados = true;
  }
};

TEST_F(Sobrescritura, Form18RevisaLosNúmerosCambiaUnaDovelaYAceptaLasTresColumnas) {
  InterfazGuionada ui("S");
  ui.GuionPantalla("Form18", [](Pantalla& s, Interfaz& u) {
    auto& l = s.lista("ListaParámetrosDeResistencia");
    EXPECT_EQ(l.filas[0], (Textos{"1", "0.31", "19.60", "0.13"}));
    l.seleccionada = 2;
    l.alSeleccionar(u);
    EXPECT_EQ(s.texto("TextoCambioCohesión"), "0.61");
    const pruebas::Cajas cajas = {{"TextoCambioCohesión", "1.5"}, {"TextoCambioFricción", "30"},
                                  {"TextoCambioPresiónPoros", "0"}};
    for (const auto& [caja, valor] : cajas) {  // each box in its turn not a number
      pruebas::Escribir(s, cajas);
      s.texto(caja) = "x";
      s.Pulsar("Modificar", u);
    }
    pruebas::Escribir(s, cajas);
    s.Pulsar("Modificar", u);
    EXPECT_EQ(l.filas[1], (Textos{"2", "1.50", "30.00", "0.00"}));
    s.Pulsar("BotónAceptar", u);
  });
  CambioParámetrosResistenciaPresiónPoros(p, ui);
  EXPECT_EQ(ui.Textos(), (Textos{"Debe introducir un número para la cohesión",
                                 "Debe introducir un número para la fricción",
                                 "Debe introducir un número para la presión de poros",
                                 "Si Ud. modificó algun valor de la tabla eso afectará el "
                                 "cálculo oroginal. ¿Acepta los cambios?"}));
  // Only the three columns go back; the other slices keep every digit, not the two decimals.
  const auto& d = p.TablaDovelas;
  EXPECT_EQ((std::vector<double>{d.CohesiónBase[2], d.FricciónBase[2], d.PresiónPoros[2],
                                 d.TanFricciónBase[2], d.CohesiónBase[1], d.PresiónPoros[3]}),
            (std::vector<double>{1.5, 30, 0, 0.3561, 0.3058, 0.375}));
  EXPECT_FALSE(p.DatosGuardados);
}

// Cancelar asks; No keeps the screen open, Yes closes it with a changed row left out.
TEST_F(Sobrescritura, Form18YForm34CancelarPreguntaYNoCambiaNada) {
  struct Caso {
    void (*comando)(Proyecto&, Interfaz&);
    const char *pantalla, *lista;
    pruebas::Cajas cajas;
    std::string pregunta;
  } const casos[] = {
      {CambioParámetrosResistenciaPresiónPoros, "Form18", "ListaParámetrosDeResistencia",
       {{"TextoCambioCohesión", "2"}, {"TextoCambioFricción", "2"},
        {"TextoCambioPresiónPoros", "2"}},
       "No desea cambiar algunos valores de los parámetros de resistencia en las dovelas o presión "
       "de poros?"},
      {PresionesDePorosEquilibrioLímite, "Form34", "ListaDePresiónDePoros",
       {{"TextoPresiónDePoros", "9"}},
       "Si hizo algún cambio en las presiones de poros de los elementos, debe presionar el botón "
       "Aceptar para tomarlos en cuenta en los análisis. ¿No desea registrar ningún cambio?"}};
  for (const Caso& c : casos) {
    InterfazGuionada ui("NS");
    ui.GuionPantalla(c.pantalla, [&c](Pantalla& s, Interfaz& u) {
      s.lista(c.lista).seleccionada = 1;
      pruebas::Escribir(s, c.cajas);
      s.Pulsar("Modificar", u);
      s.Pulsar("BotónCancelar", u);  // No: stays open
      EXPECT_FALSE(s.cerrada);
      s.Pulsar("BotónCancelar", u);  // Yes
    });
    c.comando(p, ui);
    EXPECT_EQ(ui.Textos(), Textos(2, c.pregunta));
    EXPECT_DOUBLE_EQ(p.TablaDovelas.CohesiónBase[1], 0.3058);
    EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[1], 0.125);
    EXPECT_TRUE(p.DatosGuardados);
  }
}

TEST_F(Sobrescritura, Form18SinParámetrosInstantáneos) {
  p.ParámetrosIniciales.ParámetrosInstantáneos = 0;
  InterfazGuionada ui;
  CambioParámetrosResistenciaPresiónPoros(p, ui);
  Form18 pantalla(p);  // the screen itself, opened with case 0 from elsewhere, says so too
  ui.Abrir(pantalla);
  EXPECT_EQ(pruebas::Renglones(ui),
            (Textos{"[mensaje] PARAMETROS INSTANTANEOS | Seleccione en la PANTALLA PARAMETROS "
                    "INICIALES la opción PARAMETROS INSTANTANEOS ",
                    "[pantalla] Cambio de la presión de poros y parámetros de resistencia",
                    "[mensaje] Parámetros instantáneos | Ud. debe seleccionar en PARAMETROS "
                    "INICIALES LA OPCION PARAMETROS INSTANTANEOS"}));
}

TEST_F(Sobrescritura, Form34AceptaLasPresionesDeLasDovelasYRechazaConSuTexto) {
  p.PresionesExistentes = false;
  InterfazGuionada ui;
  ui.GuionPantalla("Form34", [](Pantalla& s, Interfaz& u) {
    auto& l = s.lista("ListaDePresiónDePoros");
    EXPECT_EQ(l.filas, (Filas{{"1", "0.13"}, {"2", "0.25"}, {"3", "0.38"}}));
    l.seleccionada = 3;
    s.texto("TextoPresiónDePoros") = "no";
    s.Pulsar("Modificar", u);
    s.texto("TextoPresiónDePoros") = "2.5";
    s.Pulsar("Modificar", u);
    s.Pulsar("BotónAceptar", u);
  });
  PresionesDePorosEquilibrioLímite(p, ui);
  EXPECT_EQ(ui.Textos(), Textos{"Debe introducir un número para la presión de poros"});
  EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[3], 2.5);
  EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[1], 0.125);
  EXPECT_TRUE(p.PresionesExistentes && !p.DatosGuardados);
  // The gates of the command, each with its text, change nothing.
  const std::tuple<const char*, bool, Entero, const char*> casos[] = {
      {"", true, 4, "Seleccione en la pantalla principal la opción <T> ó <F>"},
      {"F", true, 4,
       "Ud.está trabajando con elementos finitos y no por métodos de equilibrio límites."},
      {"T", false, 4,
       "Ud.está trabajando por métodos de equilibrio límites. Ordene hacer el cálculo por el "
       "método seleccionado en los parámetros iniciales y luego podrá modificar las presiones de "
       "poros de las dovelas para un recálculo."},
      {"T", true, 1,
       "Ordene al programa hacer la estimación del factor de seguridad. Luego puede entrar a esta "
       "sesión y modificar las presiones de poros y hacer un recálculo."}};
  for (const auto& [tipo, calculado, bordes, texto] : casos) {
    p.TipoDeAnálisis = tipo;
    p.CálculoHecho = calculado;
    p.NúmeroBordes = bordes;
    InterfazGuionada ui2;
    PresionesDePorosEquilibrioLímite(p, ui2);
    EXPECT_EQ(ui2.Textos(), Textos{texto});
    EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[3], 2.5);
  }
}

}  // namespace
}  // namespace lomaterra
