#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pantallas/form7.h"
#include "pantallas/form8.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

using Textos = std::vector<std::string>;

void Escribir(Pantalla& f, const std::vector<const char*>& cajas, const std::vector<const char*>& valores) {
  for (std::size_t i = 0; i < cajas.size(); ++i) f.texto(cajas[i]) = valores[i];
}

const std::vector<const char*> kUniformes = {"TextoAbscisaInicial", "TextoOrdenadaInicial", "TextoAbscisaFinal",
                                             "TextoOrdenadaFinal", "TextoCargaQx", "TextoCargaQy"};
const std::vector<const char*> kPuntuales = {"TextoAbscisaCarga", "TextoOrdenadaCarga", "TextoCargaPx", "TextoCargaPy"};

class Uniformes : public ::testing::Test {
 protected:
  Proyecto p;
  InterfazGuionada ui;
  Form7 pantalla{p};
  void SetUp() override {
    pantalla.cerrada = false;
    pantalla.Activar(ui);
  }
  Textos Pulsar(const char* botón, std::vector<const char*> valores) {
    Escribir(pantalla, kUniformes, valores);
    ui.Olvidar();
    pantalla.Pulsar(botón, ui);
    return ui.Textos();
  }
};

TEST_F(Uniformes, ComprobacionesEnSuOrden) {
  const std::vector<std::pair<std::vector<const char*>, std::string>> casos = {
      {{"a", "a", "a", "a", "a", "a"}, "Debe introducir un número para la abscisa inicial"},
      {{"10", "a", "a", "a", "a", "a"}, "Debe introducir un número para la ordenada inicial"},
      {{"10", "2", "a", "a", "a", "a"}, "Debe introducir un número para la abscisa final"},
      {{"10", "2", "20", "a", "a", "a"}, "Debe introducir un número para la ordenada final"},
      {{"10", "2", "20", "5", "", "a"}, "Debe introducir un número para la carga 'qx'. Si no existe el valor es cero"},
      {{"10", "2", "20", "5", "0", "a"}, "Debe introducir un número para la carga 'qy'. Si no existe el valor es cero"},
      {{"20", "2", "20", "5", "0", "3"}, "El valor de la abscisa inicial tiene que ser menor la abscisa final"},
  };
  for (const auto& [valores, texto] : casos) EXPECT_EQ(Pulsar("BotónAgregar", valores), Textos{texto});
  EXPECT_TRUE(pantalla.Filas().empty());
}

TEST_F(Uniformes, AgregarModificarBorrarYAceptar) {
  EXPECT_TRUE(Pulsar("BotónAgregar", {"10", "2", "20", "5", "0", "3"}).empty());
  EXPECT_TRUE(Pulsar("BotónAgregar", {"30", "6", "45", "9.5", "-1", "2.25"}).empty());
  EXPECT_EQ(Pulsar("BotónModificar", {"10", "2", "20", "5", "0", "4"}),
            Textos{"Ud no ha seleccionado ninguna fila para modificar valores ya agregados."});
  auto& l = pantalla.lista("ListaCargasUniformes");
  l.seleccionada = 1;
  l.alSeleccionar(ui);
  EXPECT_EQ(pantalla.texto("TextoCargaQy"), "3");
  EXPECT_EQ(Pulsar("BotónModificar", {"10", "2", "5", "5", "0", "4"}),
            Textos{"El valor de la abscisa inicial tiene que ser menor la abscisa final"});
  EXPECT_TRUE(Pulsar("BotónModificar", {"10", "2", "20", "5", "0", "4"}).empty());
  EXPECT_EQ(l.filas[0], (std::vector<std::string>{"10.00", "2.00", "20.00", "5.00", "0.00", "4.00"}));
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.NúmeroCargasUniformes, 2);
  EXPECT_TRUE(p.CargasUniformesDadas);
  EXPECT_DOUBLE_EQ(p.CargaUniforme.qy[1], 4);
  EXPECT_DOUBLE_EQ(p.CargaUniforme.yf[2], 9.5);
  EXPECT_DOUBLE_EQ(p.CargaUniforme.qy[2], 2.25);
  EXPECT_FALSE(p.DatosGuardados);

  // Opened again it shows what was stored; deleting every row and accepting clears the flag.
  pantalla.cerrada = false;
  pantalla.Activar(ui);
  ASSERT_EQ(l.filas.size(), 2u);
  for (int i = 0; i < 2; ++i) {
    l.seleccionada = 1;
    pantalla.Pulsar("BotónBorrar", ui);
  }
  EXPECT_TRUE(l.filas.empty());
  ui.Olvidar();
  pantalla.Pulsar("BotónBorrar", ui);
  EXPECT_EQ(ui.Textos(), Textos{"Ud no ha seleccionado ninguna fila para borrar."});
  pantalla.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(p.NúmeroCargasUniformes, 0);
  EXPECT_FALSE(p.CargasUniformesDadas);
}

TEST_F(Uniformes, SignosYCancelar) {
  pantalla.Pulsar("Command1", ui);
  ui.Responder("S");
  pantalla.Pulsar("BotónCancelar", ui);
  EXPECT_EQ(ui.Textos(), (Textos{"'qx' es positiva cuando aplique compresión al talud. Esta dirigida en dirección "
                                 "horizontal (eje de las abscisas).",
                                 "'qy' es positiva cuando aplique compresión al talud. Esta dirigida en dirección "
                                 "vertical  (eje de las ordenadas).",
                                 "No desea archivar las cargas dadas ?"}));
  EXPECT_TRUE(pantalla.cerrada);
}

TEST(Puntuales, ComprobacionesSignosYGuardado) {
  Proyecto p;
  InterfazGuionada ui;
  Form8 f(p);
  f.cerrada = false;
  f.Activar(ui);
  const std::vector<std::pair<std::vector<const char*>, std::string>> casos = {
      {{"x", "x", "x", "x"}, "Debe introducir un número para la abscisa de aplicación de la carga puntual"},
      {{"12", "x", "x", "x"}, "Debe introducir un número para la ordenada de aplicación de la carga puntual"},
      {{"12", "4", "x", "x"}, "Debe introducir un número para la carga puntual aplicada en dirección de las abscisas"},
      {{"12", "4", "0", "x"}, "Debe introducir un número para la carga puntual aplicada en dirección de las ordenadas"},
  };
  for (const auto& [valores, texto] : casos) {
    Escribir(f, kPuntuales, valores);
    ui.Olvidar();
    f.Pulsar("BotónAgregar", ui);
    EXPECT_EQ(ui.Textos(), Textos{texto});
  }
  Escribir(f, kPuntuales, {"12", "4", "0", "7.5"});
  f.Pulsar("BotónAgregar", ui);
  ui.Olvidar();
  f.Pulsar("FavorLeer", ui);
  EXPECT_EQ(ui.Textos(), (Textos{"'Px' es positiva cuando aplica compresión al talud y esta dirigida en dirección de "
                                 "las abscisas.",
                                 "'Py' es positiva cuando aplica compresión al talud y está dirigida en la dirección "
                                 "de la gravedad (eje de las ordenadas)."}));
  ui.Responder("N");
  f.Pulsar("BotónCancelar", ui);
  EXPECT_FALSE(f.cerrada);
  EXPECT_FALSE(p.CargasPuntualesDadas);
  f.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(f.cerrada);
  EXPECT_EQ(p.NúmeroCargasPuntuales, 1);
  EXPECT_TRUE(p.CargasPuntualesDadas);
  EXPECT_DOUBLE_EQ(p.CargaPuntual.Xpuntual[1], 12);
  EXPECT_DOUBLE_EQ(p.CargaPuntual.Py[1], 7.5);
}

}  // namespace
}  // namespace lomaterra
