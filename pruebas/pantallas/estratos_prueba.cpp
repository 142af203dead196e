#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pantallas/form5.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

class Estratos : public ::testing::Test {
 protected:
  Proyecto p;
  InterfazGuionada ui;
  Form5 pantalla{p};

  void SetUp() override {
    p.NúmeroEstratos = 2;
    p.TipoDeMaterial = "";
    pantalla.cerrada = false;
    pantalla.Activar(ui);
  }
  void Elegir(int fila) {
    pantalla.lista("ListaEstratos").seleccionada = fila;
    pantalla.lista("ListaEstratos").alSeleccionar(ui);
  }
  void Escribir(const char* c, const char* f, const char* h, const char* s, const char* tipo,
                const char* b, const char* cv, const char* t) {
    pantalla.texto("TextoCohesión") = c;
    pantalla.texto("TextoFricción") = f;
    pantalla.texto("TextoPesoUnitarioHúmedo") = h;
    pantalla.texto("TextoPesoUnitarioSaturado") = s;
    pantalla.texto("TextoTipoEstrato") = tipo;
    pantalla.texto("TextoParámetroPresión") = b;
    pantalla.texto("TextoCoeficienteConsolidaciónVertical") = cv;
    pantalla.texto("TextoTiempoDeConstrucción") = t;
  }
  void Modificar() { pantalla.Pulsar("BotónModificar", ui); }
};

TEST_F(Estratos, ModificarCompruebaEnSuOrden) {
  struct Caso {
    std::vector<const char*> valores;
    const char* texto;
  };
  const char* kTipo =
      "Para el tipo de estrato debe introducir una 'A para Terraplenes y rellenos artificiales' o una "
      "'B para estratos naturales'";
  // Each case spoils one box and every box after it, so only the order picks the message.
  const std::vector<Caso> casos = {
      {{"c", "f", "h", "s", "Z", "b", "cv", "t"}, "Debe introducir un número en la cohesión"},
      {{"2", "f", "h", "s", "Z", "b", "cv", "t"}, "Debe introducir un número en la fricción"},
      {{"2", "30", "h", "s", "Z", "b", "cv", "t"}, "Debe introducir un número en el peso unitario húmedo"},
      {{"2", "30", "1.8", "s", "Z", "b", "cv", "t"}, "Debe introducir un número en el peso unitario saturado"},
      {{"2", "30", "1.8", "2", "Z", "b", "cv", "t"}, kTipo},
      {{"2", "30", "1.8", "2", "a", "b", "cv", "t"}, "Debe introducir un número en el parámetro de presión intersticial"},
      {{"2", "30", "1.8", "2", "a", "0.5", "cv", "t"}, "Debe introducir un número para el coeficiente de consolidación vertical"},
      {{"2", "30", "1.8", "2", "a", "0.5", "0", "t"}, "Debe introducir un número para el tiempo de construcción"},
      {{"2", "30", "1.8", "1.7", "a", "0.5", "0", "6"},
       "El peso unitario saturado es menor que el peso unitario húmedo. Por favor corriga. Si no está "
       "saturado debe ser igual al peso unitario húmedo."},
  };
  Elegir(1);
  for (const auto& c : casos) {
    const auto& v = c.valores;
    Escribir(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]);
    ui.Olvidar();
    Modificar();
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{c.texto});
    EXPECT_EQ(pantalla.lista("ListaEstratos").filas[0][1], "") << "row refused";
  }
}

TEST_F(Estratos, ConfirmaciónDelPesoSaturado) {
  const std::string igual =
      "El peso unitario saturado es igual que el peso unitario húmedo. Observe bien los valores antes de "
      "salir de esta pantalla. ¿Es correcto el valor dado para peso unitario saturado?";
  const std::string mayor =
      "El peso unitario saturado es mayor que el peso unitario húmedo. Observe bien los valores antes de "
      "salir de esta pantalla. ¿Es correcto el valor dado para peso unitario saturado?";
  ui.Responder("NS");
  Elegir(1);
  Escribir("2", "30", "1.8", "1.8", "B", "0", "0", "0");
  Modificar();  // No: the row stays empty
  EXPECT_EQ(pantalla.lista("ListaEstratos").filas[0][3], "");
  Elegir(2);
  Escribir("0", "25", "1.7", "1.95", "a", "0.3", "0.0012345", "6");
  Modificar();  // Yes
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{igual, mayor}));
  const auto& fila = pantalla.lista("ListaEstratos").filas[1];
  EXPECT_EQ(fila, (std::vector<std::string>{"2", "0.00", "25.00", "1.70", "1.95", "A", "0.30", "0.0012345", "6.00"}));
}

TEST_F(Estratos, EstratoNaturalTomaTiempoCero) {
  for (const char* tiempo : {"4", "-2"}) {  // any time but zero, also below it
    ui.Olvidar();
    ui.Responder("S");
    Elegir(1);
    Escribir("2", "30", "1.8", "2", "b", "0", "0", tiempo);
    Modificar();
    ASSERT_FALSE(ui.Textos().empty()) << tiempo;
    EXPECT_EQ(ui.Textos()[0], "Si el estrato es natural, entonces el Tiempo de construcción es cero") << tiempo;
    EXPECT_EQ(pantalla.lista("ListaEstratos").filas[0][8], "0.00") << tiempo;
  }
}

TEST_F(Estratos, AceptarPideLaLetraSYTodasLasFilas) {
  ui.PorDefecto(true);
  Elegir(1);
  Escribir("2.125", "30", "1.8", "2", "B", "0", "0", "0");
  Modificar();
  ui.Olvidar();
  pantalla.Pulsar("BotónAceptar", ui);
  pantalla.texto("TextoSueloRoca") = "s";
  pantalla.Pulsar("BotónAceptar", ui);
  const auto& t = ui.Transcripción();
  ASSERT_EQ(t.size(), 2u);
  EXPECT_EQ(t[0].texto, "Para el análisis en suelos, ud debe introducir  la letra  'S'");
  EXPECT_EQ(t[1].título, "Características de los estratos");
  EXPECT_EQ(t[1].texto, "Faltan datos. Debe introducir las características para todos y cada uno de los estratos");
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_TRUE(p.TipoDeMaterial.empty());

  Elegir(2);
  Escribir("0", "34", "1.9", "2.1", "A", "0.2", "0.001", "3");
  Modificar();
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.TipoDeMaterial, "S");
  EXPECT_TRUE(p.EstratosCaracterizados);
  EXPECT_EQ(p.NúmeroEstratosCaracterizados, 2);
  EXPECT_TRUE(p.CaracterísticasSueloCompletas);
  EXPECT_FALSE(p.DatosGuardados);
  const auto& e = p.Estrato;
  EXPECT_DOUBLE_EQ(e.Cohesión[1], 2.125);  // the value typed, not the two decimals shown
  EXPECT_EQ(e.TipoEstrato[1], 0);
  EXPECT_EQ(e.TipoEstrato[2], 1);
  EXPECT_DOUBLE_EQ(e.PesoUnitarioSaturado[2], 2.1);
  EXPECT_DOUBLE_EQ(e.ParámetroPresión[2], 0.2);
  EXPECT_DOUBLE_EQ(e.CoeficienteConsolidaciónVertical[2], 0.001);
  EXPECT_DOUBLE_EQ(e.TiempoDeConstrucción[2], 3);
}

TEST_F(Estratos, CancelarPregunta) {
  ui.Responder("NS");
  pantalla.Pulsar("BotónCancelar", ui);
  EXPECT_FALSE(pantalla.cerrada);
  pantalla.Pulsar("BotónCancelar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>(2, "No desea archivar las características de los estratos?")));
}

TEST(EstratosComando, SinEstratosRemiteAInsertar) {
  Proyecto p;
  InterfazGuionada ui;
  CaracterísticasGeomecánicasSuelos(p, ui);
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{
                             "Actualmente no hay estratos. Seleccione primero una de las opciones: \nInsertar estrato"});
}

TEST(EstratosComando, UnProyectoDeSueloMuestraSusFilasYUnEstratoInsertadoVacío) {
  Proyecto p;
  p.NúmeroEstratos = 2;
  p.TipoDeMaterial = "S";
  p.Estrato.RedimensionarConservando(2);
  p.Estrato.Cohesión[1] = 1.5;
  p.Estrato.PesoUnitarioHúmedo[1] = 1.8;
  InterfazGuionada ui;
  Form5 f(p);
  f.cerrada = false;
  f.Activar(ui);
  EXPECT_EQ(f.lista("ListaEstratos").filas[0][1], "1.50");
  EXPECT_EQ(f.lista("ListaEstratos").filas[1][1], "");
  EXPECT_EQ(f.texto("TextoSueloRoca"), "S");
}

}  // namespace
}  // namespace lomaterra
