// The record and strata screens of the seismic analysis, the record side file and its figure.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "pantallas/estratos_sismicos.h"
#include "pantallas/interfaz_guionada.h"
#include "pantallas/registro_sismico.h"
#include "proyecto/proyecto.h"
#include "salida/registro_sismico.h"

namespace lomaterra {
namespace {

const char* kVertical = "Debe introducir el valor de la componente de la aceleración vertical del sísmo, incluyendo el cero";
const char* kHorizontal = "Debe introducir el valor de la componente de la aceleración horizontal del sísmo, incluyendo el cero";
const char* kTiempo = "Debe introducir el tiempo correspondientes a las componentes dadas de aceleración";

struct Registro : ::testing::Test {
  Proyecto p;
  InterfazGuionada ui;
  FormRegistroSísmico f{p};
  void SetUp() override { f.cerrada = false; f.Activar(ui); }
  void Fila(const char* t, const char* h, const char* v) {
    f.texto("Texto_Tiempo") = t;
    f.texto("Texto_Componente_Horizontal") = h;
    f.texto("Texto_Componente_Vertical") = v;
    f.Pulsar("BotónAgregar", ui);
  }
  std::string Último() { return ui.Textos().empty() ? "" : ui.Textos().back(); }
};

TEST_F(Registro, AgregarCompruebaVerticalHorizontalYTiempoEnEseOrden) {
  const struct { const char *t, *h, *v, *mensaje; } casos[] = {
      {"x", "x", "x", kVertical}, {"x", "x", "0", kHorizontal}, {"x", "0.1", "0", kTiempo}};
  for (const auto& c : casos) {
    Fila(c.t, c.h, c.v);
    EXPECT_EQ(Último(), c.mensaje);
  }
  EXPECT_TRUE(f.lista("ListaDeRegistroSísmico").filas.empty());
  Fila("0", "0.1", "-0.05");
  Fila("0.02", "0.25", "0");
  ASSERT_EQ(f.lista("ListaDeRegistroSísmico").filas.size(), 2u);
  EXPECT_EQ(f.lista("ListaDeRegistroSísmico").filas[0],
            (std::vector<std::string>{"0.000", "0.100", "-0.050"}));
  f.Pulsar("BotónModificar", ui);
  EXPECT_EQ(Último(), "Ud no ha seleccionado ninguna fila para modificar valores ya agregados.");
}

TEST_F(Registro, UnRegistroMaloNoSeGuardaYUnoBuenoSí) {
  Fila("0", "0.1", "0");
  f.Pulsar("BotónAceptar", ui);  // one point only
  EXPECT_NE(Último().find("al menos dos puntos"), std::string::npos);
  Fila("0", "0.2", "0");  // a time that does not grow is refused at once
  EXPECT_NE(Último().find("no es mayor que el de la última fila"), std::string::npos);
  Fila("0.01", "0.2", "0");
  Fila("0.02", "-0.3", "0.1");
  f.lista("ListaDeRegistroSísmico").seleccionada = 2;  // spoil the order through Modificar
  f.lista("ListaDeRegistroSísmico").alSeleccionar(ui);
  f.texto("Texto_Tiempo") = "-1";
  f.Pulsar("BotónModificar", ui);
  f.Pulsar("BotónAceptar", ui);
  EXPECT_NE(Último().find("deben crecer"), std::string::npos);
  EXPECT_FALSE(f.cerrada);
  EXPECT_EQ(p.Sísmico.NúmeroPuntosRegistro, 0);
  EXPECT_FALSE(p.Sísmico.RegistroDado);
  f.Pulsar("BotónBorrar", ui);  // the spoilt row goes
  f.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(f.cerrada);
  ASSERT_EQ(p.Sísmico.NúmeroPuntosRegistro, 2);
  EXPECT_TRUE(p.Sísmico.RegistroDado);
  const Figura g = FiguraRegistroSísmico(p);
  ASSERT_EQ(g.trazos.size(), 2u);
  EXPECT_EQ(g.trazos[0].puntos.size(), 2u);
  EXPECT_DOUBLE_EQ(g.trazos[0].puntos[1].y, -0.3);
}

TEST(ArchivoRegistro, SoloUnArchivoCompletoYOrdenadoCambiaElRegistro) {
  const auto base = std::filesystem::temp_directory_path() / "lomaterra_registro_prueba";
  std::filesystem::create_directories(base / "CarpetaRegistroSismico");
  setenv("LOMATERRA_CARPETA_BASE", base.c_str(), 1);
  const struct { const char *contenido, *error; int puntos; } casos[] = {
      {"3\r\n0,0.1,0\r\n0.02,-0.2,0.05\r\n0.04,0,0\r\n", "", 3},
      {"1\r\n0,0.1,0\r\n", "al menos dos puntos", 0},
      {"2\r\n0,0.1,0\r\n0,0.2,0\r\n", "deben crecer", 0},
      {"2\r\n0,0.1,0\r\n0.02,abc,0\r\n", "en el punto 2", 0},
      {"3\r\n0,0.1,0\r\n0.02,0.1,0\r\n", "en el punto 3", 0}};
  for (const auto& c : casos) {
    std::ofstream(base / "CarpetaRegistroSismico" / "registrosismico.cod") << c.contenido;
    Proyecto p;
    InterfazGuionada ui("S");
    InputDeRegistrosSísmico(p, ui);
    EXPECT_EQ(p.Sísmico.NúmeroPuntosRegistro, c.puntos) << c.contenido;
    const bool conError = std::string(c.error).size() > 0;
    bool hallado = false;
    for (const auto& t : ui.Textos()) hallado |= conError && t.find(c.error) != std::string::npos;
    EXPECT_EQ(hallado, conError) << c.contenido;
  }
  unsetenv("LOMATERRA_CARPETA_BASE");
}

TEST(EstratosSísmicos, ModificarYAceptarCompruebanEnSuOrden) {
  Proyecto p;
  p.NúmeroEstratos = 1;
  p.Estrato.Fricción.Redimensionar(1);
  p.Estrato.Fricción[1] = 30;
  InterfazGuionada ui;
  FormEstratosSísmicos f(p);
  f.Activar(ui);
  f.lista("CaracterísticasEstratos").seleccionada = 1;
  const char* cajas[] = {"TextoVelocidadOndaDeCorte", "TextoDistorsiónCortante", "TextoRelaciónDeVacíos",
                         "TextoResistenciaNoDrenada", "TextoIndicePlástico",
                         "TextoRelaciónDeSobreconsolidación", "TextoEstratoDeterminateEnLaEstabilidad"};
  const struct { std::vector<const char*> v; const char* mensaje; } casos[] = {
      {{"x", "x", "x", "x", "x", "x", "x"}, "Debe dar el valor de la velocidad de la onda de corte. Puede incluir el cero"},
      {{"200", "x", "x", "x", "x", "x", "x"}, "Debe dar un valor para la distorsión cortante"},
      {{"200", "0", "x", "x", "x", "x", "x"}, "El valor de la distorsión cortante debe ser mayor a cero."},
      {{"200", "1e-6", "x", "x", "x", "x", "x"}, "Debe dar un valor para la relación de vaciós. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "x", "x", "x", "x"}, "Debe dar un valor para la resistencia no drenada. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "5", "x", "x", "x"}, "Debe dar un valor para el indice plástico. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "5", "10", "x", "x"}, "Debe dar un valor para la relación de sobreconsolidación. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "5", "10", "0.5", "x"}, "Ud. Está diciendo que el suelo es plástico, entonces: OCR =1 para arcillas normalmente consolidadas y OCR > 1 para arcillas sobreconsolidadas."},
      {{"200", "1e-6", "0.6", "5", "0", "2", "x"}, "Ud. está diciendo que el suelo no es plástico y por consiguiente el OCR debe ser cero, al menos que ud. modifique los datos"},
      {{"200", "1e-6", "0.6", "5", "0", "0", "x"}, "Para el tipo de estrato debe introducir  'SI ó NO para indicar el material es o no es determinante en la estabilidad' "}};
  for (const auto& c : casos) {
    for (int i = 0; i < 7; ++i) f.texto(cajas[i]) = c.v[static_cast<std::size_t>(i)];
    f.Pulsar("Modificar", ui);
    EXPECT_EQ(ui.Textos().back(), c.mensaje);
  }
  f.texto(cajas[6]) = "no";
  f.Pulsar("Modificar", ui);
  f.Pulsar("BotónAceptar", ui);  // friction 30 and Cu 5: drainage unclear
  EXPECT_EQ(ui.Textos().back().rfind("Hay un estrato donde no se tiene claro, en que condicón de drenaje", 0), 0u);
  p.Estrato.Fricción[1] = 0;
  f.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos().back(), "Debe dar un número para el espesor de sedimentos del sitio de análisis estimado por el geologo.");
  f.texto("TextoEspesorDeSedimentos") = "25";
  f.texto("TextoMétodoGmax") = "4";
  f.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos().back(), "Debe introducir el número <1> o <2> o <3>");
  EXPECT_FALSE(p.Sísmico.ParámetrosSísmicosDados);
  f.texto("TextoMétodoGmax") = "2";
  f.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(p.Sísmico.ParámetrosSísmicosDados && p.Sísmico.HayNoDeterminantes);
  EXPECT_EQ(p.Sísmico.MétodoGmax, 2);
  EXPECT_DOUBLE_EQ(p.Sísmico.AlturaPresa, 25);
  EXPECT_EQ(f.lista("CaracterísticasEstratos").filas[0],
            (std::vector<std::string>{"1", "200.00", "0.000001", "0.60", "5.00", "0.00", "NO"}));
}

}  // namespace
}  // namespace lomaterra
