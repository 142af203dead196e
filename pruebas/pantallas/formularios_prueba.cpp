// The data screens of limit equilibrium: the project information (Form15), the soil strata
// (Form5), the rock strata, the stretches of the failure surface (Form6) and the loads (Form7,
// Form8). Each check in its order and word for word, what Aceptar stores, what Cancelar asks.
#include <gtest/gtest.h>

#include <cmath>

#include "pantallas/comun_pantallas.h"
#include "pantallas/estratos_roca.h"
#include "pantallas/form15.h"
#include "pantallas/form5.h"
#include "pantallas/form6.h"
#include "pantallas/form7.h"
#include "pantallas/form8.h"
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
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_TRUE(p.TipoDeMaterial.empty());
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
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_FALSE(p.GeometríaFallaDefinida);
  EXPECT_EQ(p.NúmeroTramosFalla, 0);
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
  EXPECT_FALSE(f.cerrada);
  EXPECT_FALSE(p.CargasPuntualesDadas);
  f.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(f.cerrada && p.CargasPuntualesDadas);
  EXPECT_EQ(p.NúmeroCargasPuntuales, 1);
  EXPECT_EQ((std::vector<double>{p.CargaPuntual.Xpuntual[1], p.CargaPuntual.Py[1]}),
            (std::vector<double>{12, 7.5}));
}

}  // namespace
}  // namespace lomaterra
