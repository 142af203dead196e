// The screens the methods open while they iterate: form9 shows a step and asks its two questions,
// Form13 corrects the stresses that broke the strength law, Form17 the heights of the lateral
// forces; and the two override screens of the slices, Form18 and Form34, with their gates.
#include <gtest/gtest.h>

#include "apoyo/proyectos.h"
#include "equilibrio/form13.h"
#include "equilibrio/form17.h"
#include "equilibrio/form18.h"
#include "equilibrio/form9.h"
#include "pantallas/comun_pantallas.h"
#include "pantallas/form34.h"
#include "proyecto/comandos.h"
#include "proyecto/fallos.h"

namespace lomaterra {
namespace {

using pruebas::Textos;
using Filas = std::vector<std::vector<std::string>>;

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
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_TRUE(p.SigmaCorregidaDisponible);
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

TEST_F(Form17Prueba, ModificarYAceptar) {
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
}

TEST_F(Form17Prueba, SalirConValoresNuevosPregunta) {
  InterfazGuionada ui;
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
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[1], 1);
  InterfazGuionada otra;  // no new value: the exit closes without a question
  AbrirAbierta(otra);
  pantalla.Pulsar("BotónSalir", otra);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_TRUE(otra.Textos().empty());
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
  EXPECT_TRUE(p.PresionesExistentes);
  EXPECT_FALSE(p.DatosGuardados);
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
