// The two screens of the variational iteration: form9 shows a step and asks its two questions;
// Form13 lets the user correct the stresses that broke the strength law.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "equilibrio/form13.h"
#include "equilibrio/form9.h"
#include "proyecto/comandos.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

struct Form9Prueba : ::testing::Test {
  Proyecto p;
  Form9 pantalla{p};
  void SetUp() override {
    p.HistoriaIteraciones.Redimensionar(100);
    p.NúmeroIteraciones = 3;
    p.HistoriaIteraciones.Multiplicador1[3] = 39.3498123456789;
    p.HistoriaIteraciones.Multiplicador2[3] = 56.30846;
    p.HistoriaIteraciones.FactorDeSeguridad[3] = 0.98722564512;
    p.SumaFuerzasHorizontales = 0.004;
    p.SumaFuerzasVerticales = -12.345;
    p.SumaMomentos = 1234.5678;
  }
};

TEST_F(Form9Prueba, MuestraElPasoConSusFormatos) {
  InterfazGuionada ui("N");
  ui.Abrir(pantalla);
  EXPECT_EQ(pantalla.título, "Resultados de las iteraciones");
  EXPECT_EQ(pantalla.nota, "RESULTADOS DE LAS ITERACIONES:");
  EXPECT_EQ(pantalla.texto("TextoNúmeroIteraciones"), "3");
  EXPECT_EQ(pantalla.texto("TextoMultiplicador1"), "39.349812346");
  EXPECT_EQ(pantalla.texto("TextoMultiplicador2"), "56.308460000");
  EXPECT_EQ(pantalla.texto("TextoDelFactorDeSeguridad"), "0.987225645");
  EXPECT_EQ(pantalla.texto("TextoDeLaSumaDeFuerzasHorizontales"), "0.00 ton");
  EXPECT_EQ(pantalla.texto("TextoDeLaSumaDeFuerzasVerticales"), "-12.35 ton");
  EXPECT_EQ(pantalla.texto("TextoDeLaSumaDeMomentos"), "1234.57 ton.m");
}

struct CasoForm9 {
  const char* respuestas;
  bool aceptada, salir;
  std::vector<std::string> textos;
};

class Form9Respuestas : public Form9Prueba, public ::testing::WithParamInterface<CasoForm9> {};

TEST_P(Form9Respuestas, LasDosPreguntasFijanLasBanderas) {
  p.SoluciónAceptada = p.SalirDelCálculo = true;  // left from a step before
  InterfazGuionada ui(GetParam().respuestas);
  ui.Abrir(pantalla);
  EXPECT_EQ(ui.Textos(), GetParam().textos);
  EXPECT_EQ(p.SoluciónAceptada, GetParam().aceptada);
  EXPECT_EQ(p.SalirDelCálculo, GetParam().salir);
  EXPECT_TRUE(pantalla.cerrada);
}

INSTANTIATE_TEST_SUITE_P(
    Form9, Form9Respuestas,
    ::testing::Values(
        CasoForm9{"S", true, false, {"¿Considera que es la solución?"}},
        CasoForm9{
            "NS", false, true, {"¿Considera que es la solución?", "¿Desea salir del cálculo?"}},
        CasoForm9{
            "NN", false, false, {"¿Considera que es la solución?", "¿Desea salir del cálculo?"}}),
    [](const auto& i) { return std::string("Respuestas") + i.param.respuestas; });

// Four slices after step 2 of an iteration: c = 1, tanφ = 0.5 (limit −2 on the effective stress),
// pore pressure 0.5 under slice 2; slice 3 fails with σ = −2.5.
struct Form13Prueba : ::testing::Test {
  Proyecto p;
  Form13 pantalla{p};
  void SetUp() override {
    p.TipoDeMaterial = "S";
    p.NúmeroBordes = 5;
    auto& d = p.TablaDovelas;
    d.CohesiónBase.Redimensionar(4);
    d.TanFricciónBase.Redimensionar(4);
    d.PresiónPoros.Redimensionar(4);
    for (int i = 1; i <= 4; ++i) {
      d.CohesiónBase[i] = 1.0;
      d.TanFricciónBase[i] = 0.5;
    }
    d.PresiónPoros[2] = 0.5;
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
  void Abrir(Interfaz& ui) {
    pantalla.cerrada = false;
    pantalla.Activar(ui);
  }
  void Cambiar(Interfaz& ui, int fila, const std::string& valor) {
    lista().seleccionada = fila;
    pantalla.texto("TextoSigma3Actual") = valor;
    pantalla.Pulsar("Modificar", ui);
  }
};

TEST_F(Form13Prueba, EnSueloMuestraLosEsfuerzosNormalesYSusLímites) {
  InterfazGuionada ui;
  Abrir(ui);
  EXPECT_EQ(pantalla.título, "Resultados de los sigma normales en el proceso iterativo");
  EXPECT_EQ(
      pantalla.nota,
      "Chequeo de los esfuerzo normal (total) a la SPF.\nObserve en la parte inferior en cuál "
      "dovela no le chequea el valor del esfuerzo normal total, el cual es determinante en la "
      "resistencia al esfuerzo de tensión del suelo. Ud. puede modificar el valor si lo desea "
      "tomando en consideración que el mismo debe ser mayor que el valor presentado en la cuarta "
      "columna, de lo contrario cancele y modifica los multiplicadores de Lagrange y el factor de "
      "seguridad en la opción Parámetros Iniciales.");
  EXPECT_EQ(lista().columnas,
            (std::vector<std::string>{"Dovela", "Sig_ant", "Sig_act", "Sig_mín"}));
  // Limits on the total stresses: −c/tanφ + u = −2, and −1.5 under the pore pressure of slice 2.
  EXPECT_EQ(lista().filas, (std::vector<std::vector<std::string>>{{"1", "1.00", "1.23", "-2.00"},
                                                                  {"2", "2.00", "2.50", "-1.50"},
                                                                  {"3", "-1.00", "-2.50", "-2.00"},
                                                                  {"4", "4.00", "4.25", "-2.00"}}));
  EXPECT_EQ(pantalla.texto("TextoDovelaFallida"), "3");
}

TEST_F(Form13Prueba, ElMaterialDecideTítuloYTexto) {
  InterfazGuionada ui;
  p.DovelaFallida = 0;
  pantalla.Activar(ui);
  EXPECT_NE(pantalla.nota.find("\nCompare la columna '3' con la '4' para observar en cuales "
                               "dovelas no le chequea el valor"),
            std::string::npos);
  p.TipoDeMaterial = "R";
  pantalla.leySigma3 = true;
  p.DovelaFallida = 2;
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.título, "Resultados de los sigma3 en el proceso iterativo");
  EXPECT_EQ(pantalla.nota.substr(0, pantalla.nota.find('\n')), "Chequeo de sigma '3'");
  EXPECT_NE(pantalla.nota.find("no chequeó un valor de esfuerzo principal menor sigma '3'"),
            std::string::npos);
  pantalla.leySigma3 = false;
  pantalla.Activar(ui);
  EXPECT_EQ(pantalla.título, "Resultados de los sigma normales en el proceso iterativo");
  EXPECT_NE(pantalla.nota.find("tensión de la roca."), std::string::npos);
}

TEST_F(Form13Prueba, ModificarYAceptarDejanLosValoresEnLaÚltimaFila) {
  InterfazGuionada ui;
  ui.Abrir(pantalla);  // no script: closed with no change
  EXPECT_FALSE(p.SigmaCorregidaDisponible);
  Abrir(ui);
  Cambiar(ui, 3, "abc");
  EXPECT_EQ(ui.Textos().back(), "Debe introducir un número para los sigma");
  Cambiar(ui, 3, "-1.9");
  EXPECT_EQ(lista().filas[2][2], "-1.90");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_TRUE(p.SigmaCorregidaDisponible);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 2), -1.9);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(2, 2), 1.234);  // untouched rows keep every digit
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 1), -1.0);
}

TEST_F(Form13Prueba, UnaFilaQueNoCumpleDejaLaPantallaAbierta) {
  InterfazGuionada ui;
  Abrir(ui);
  Cambiar(ui, 3, "0");
  lista().filas[0][2] = "";  // an empty row blocks Aceptar
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(InterfazGuionada::Línea(ui.Transcripción().back()),
            "[mensaje] Valores de esfuerzos normales | Faltan datos. Debe introducir los valores deseados "
            "para todos y cada una de las dovelas");
  EXPECT_FALSE(pantalla.cerrada);
  lista().filas[0][2] = "1.23";
  // Slice 2 under pore pressure 0.5: −1.6 total is −2.1 effective, below −2.
  Cambiar(ui, 2, "-1.6");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_EQ(p.DovelaFallida, 2);
  EXPECT_EQ(pantalla.texto("TextoDovelaFallida"), "2");
  EXPECT_FALSE(p.SigmaCorregidaDisponible);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 2), -2.5);
  Cambiar(ui, 2, "-1.4");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_TRUE(p.SigmaCorregidaDisponible);
}

TEST_F(Form13Prueba, SalirPreguntaSiUsarLosValores) {
  InterfazGuionada ui("NS");
  Abrir(ui);
  Cambiar(ui, 3, "-1");
  pantalla.Pulsar("BotónSalir", ui);  // No: closes with nothing changed
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_FALSE(p.SigmaCorregidaDisponible);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 2), -2.5);
  Abrir(ui);
  Cambiar(ui, 3, "-1");
  pantalla.Pulsar("BotónSalir", ui);  // Yes: through Aceptar
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_TRUE(p.SigmaCorregidaDisponible);
  EXPECT_DOUBLE_EQ(p.EsfuerzoIteración(4, 2), -1.0);
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{
                             "Ud. desea utilizar los valores actuales de sigma para el cálculo?",
                             "Ud. desea utilizar los valores actuales de sigma para el cálculo?"}));
}

TEST_F(Form13Prueba, FricciónNulaEsUnaFallaAritmética) {
  p.TablaDovelas.TanFricciónBase[4] = 0;
  InterfazGuionada ui;
  EXPECT_THROW(pantalla.Activar(ui), FalloAritmético);
  const auto fin = EjecutarComando([this](Proyecto&, Interfaz& u) { u.Abrir(pantalla); }, p, ui);
  EXPECT_EQ(fin, FinDeComando::Fallo);
  EXPECT_FALSE(p.SigmaCorregidaDisponible);
}

}  // namespace
}  // namespace lomaterra
