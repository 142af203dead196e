// The screen of heights of the lateral forces, driven without a window.
#include <gtest/gtest.h>

#include "equilibrio/form17.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

class Form17Prueba : public ::testing::Test {
 protected:
  Form17Prueba() : pantalla(p) {
    p.NúmeroBordes = 4;  // three slices
    p.InclinaciónEmpuje.Redimensionar(2);
    p.InclinaciónEmpuje[1] = 0.616296937;
    p.InclinaciónEmpuje[2] = 0.30288487;
    p.TablaDovelas.AlturaEmpuje.Redimensionar(4);
    p.TablaDovelas.AlturaEmpuje[1] = 1;
    p.TablaDovelas.AlturaEmpuje[2] = 0.5;
  }
  // Opens the screen answering No twice so that it stays open.
  void AbrirAbierta(InterfazGuionada& ui) {
    ui.Responder("NN");
    pantalla.cerrada = false;
    pantalla.Activar(ui);
    ASSERT_FALSE(pantalla.cerrada);
  }
  void Poner(InterfazGuionada& ui, int fila, const std::string& valor) {
    pantalla.lista("ListaValoresDEht").seleccionada = fila;
    pantalla.texto("TextoNuevoValorDeht") = valor;
    pantalla.Pulsar("Modificar", ui);
  }

  Proyecto p;
  Form17 pantalla;
};

TEST_F(Form17Prueba, MuestraLasAlturasYPreguntaAlAbrir) {
  InterfazGuionada ui;
  AbrirAbierta(ui);
  EXPECT_EQ(pantalla.título, "Opción para cambio de altura entre dovelas");
  const auto& l = pantalla.lista("ListaValoresDEht");
  EXPECT_EQ(l.columnas,
            (std::vector<std::string>{"Dovela", "alfa_t (radianes)", "  ht (m)", "Nuevo ht(m)"}));
  EXPECT_EQ(l.filas, (std::vector<std::vector<std::string>>{{"1", "0.6163", "1.00", ""},
                                                            {"2", "0.3029", "0.50", ""},
                                                            {"3", "0.0000", "0.00", ""}}));
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{"¿Considera que es la solución?",
                                                   "¿Desea salir del cálculo?"}));
  EXPECT_FALSE(p.AceptaSolución);
  EXPECT_FALSE(p.SaleDelCálculo);
  for (const char* b : {"Modificar", "BotónAceptar", "BotónSalir"})
    EXPECT_NO_THROW(pantalla.botón(b)) << b;
  EXPECT_NO_THROW(pantalla.campo("TextoNuevoValorDeht"));
}

TEST_F(Form17Prueba, LasRespuestasAlAbrir) {
  {
    InterfazGuionada ui("S");
    pantalla.Activar(ui);
    EXPECT_TRUE(pantalla.cerrada);
    EXPECT_TRUE(p.AceptaSolución);
    EXPECT_EQ(ui.Textos().size(), 1u);  // the second question is not put
  }
  p.AceptaSolución = false;
  {
    InterfazGuionada ui("NS");
    pantalla.Activar(ui);
    EXPECT_TRUE(pantalla.cerrada);
    EXPECT_TRUE(p.SaleDelCálculo);
    EXPECT_FALSE(p.AceptaSolución);
  }
}

TEST_F(Form17Prueba, ModificarYAceptar) {
  InterfazGuionada ui;
  AbrirAbierta(ui);
  ui.Olvidar();
  pantalla.Pulsar("Modificar", ui);  // no row selected
  Poner(ui, 1, "abc");
  EXPECT_EQ(ui.Textos(),
            (std::vector<std::string>{"Seleccione en la lista la dovela cuyo ht desea cambiar.",
                                      "Debe introducir un número para el nuevo valor de ht."}));
  ui.Olvidar();

  Poner(ui, 1, "1.234");
  EXPECT_EQ(pantalla.lista("ListaValoresDEht").filas[0][3], "1.23");
  pantalla.Pulsar("BotónAceptar", ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].título, "Valores de ht");
  EXPECT_EQ(
      ui.Transcripción()[0].texto,
      "Faltan datos. Debe introducir los valores deseados para todos y cada una de las dovelas");
  EXPECT_FALSE(pantalla.cerrada);

  ui.Olvidar();
  Poner(ui, 2, "0");
  Poner(ui, 3, "0");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{
                             "Parece que Ud. va  a trabajar con ht que no pueden ser correctos"}));
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[1], 1);  // nothing stored yet

  auto& l = pantalla.lista("ListaValoresDEht");
  l.seleccionada = 2;
  l.alSeleccionar(ui);  // the box takes the row's value
  EXPECT_EQ(pantalla.texto("TextoNuevoValorDeht"), "0");
  Poner(ui, 2, "0.75");
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[1], 1.234);  // the value typed, not the one shown
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[2], 0.75);
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[3], 0);
}

TEST_F(Form17Prueba, SalirConValoresNuevosPregunta) {
  const std::string pregunta = "Ud. desea utilizar los nuevos valores  de ht para el cálculo?";
  InterfazGuionada ui;
  AbrirAbierta(ui);
  Poner(ui, 1, "3");
  ui.Olvidar();
  ui.Responder("S");
  pantalla.Pulsar("BotónSalir", ui);  // Yes: stays open for Aceptar
  EXPECT_FALSE(pantalla.cerrada);
  ui.Responder("N");
  pantalla.CerrarSinCambios(ui);  // the close box is the exit button: No closes, heights kept
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{pregunta, pregunta}));
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[1], 1);

  InterfazGuionada otra;  // no new value: the exit closes without a question
  AbrirAbierta(otra);
  otra.Olvidar();
  pantalla.Pulsar("BotónSalir", otra);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_TRUE(otra.Textos().empty());
}

TEST_F(Form17Prueba, EnLoteSeCierraConservandoLasAlturas) {
  // The scripted interface answers No to both questions and closes the screen left open with its
  // exit button.
  InterfazGuionada ui;
  ui.Abrir(pantalla);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_FALSE(p.AceptaSolución);
  EXPECT_FALSE(p.SaleDelCálculo);
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje[2], 0.5);
}

}  // namespace
}  // namespace lomaterra
