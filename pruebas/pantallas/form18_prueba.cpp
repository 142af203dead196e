// The two override screens of the slices: Form18 (cohesion, friction, pore pressure) and Form34
// (pore pressure), with the gates of their menu commands.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "equilibrio/form18.h"
#include "pantallas/form34.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

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
    for (auto* c : {&d.CohesiónBase, &d.FricciónBase, &d.TanFricciónBase, &d.PresiónPoros})
      c->Redimensionar(3);
    for (int i = 1; i <= 3; ++i) {
      d.CohesiónBase[i] = 0.3058 * i;
      d.FricciónBase[i] = 19.6;
      d.TanFricciónBase[i] = 0.3561;
      d.PresiónPoros[i] = 0.125 * i;
    }
    p.DatosGuardados = true;
  }
};

TEST_F(Sobrescritura, Form18CambiaUnaDovelaYAceptaLasTresColumnas) {
  InterfazGuionada ui("S");
  ui.GuionPantalla("Form18", [](Pantalla& s, Interfaz& u) {
    auto& l = s.lista("ListaParámetrosDeResistencia");
    EXPECT_EQ(l.filas[0], (std::vector<std::string>{"1", "0.31", "19.60", "0.13"}));
    l.seleccionada = 2;
    l.alSeleccionar(u);
    EXPECT_EQ(s.texto("TextoCambioCohesión"), "0.61");
    s.texto("TextoCambioCohesión") = "1.5";
    s.texto("TextoCambioFricción") = "30";
    s.texto("TextoCambioPresiónPoros") = "0";
    s.Pulsar("Modificar", u);
    EXPECT_EQ(l.filas[1], (std::vector<std::string>{"2", "1.50", "30.00", "0.00"}));
    s.Pulsar("BotónAceptar", u);
  });
  CambioParámetrosResistenciaPresiónPoros(p, ui);
  EXPECT_EQ(ui.Textos(),
            (std::vector<std::string>{"Si Ud. modificó algun valor de la tabla eso afectará el "
                                      "cálculo oroginal. ¿Acepta los cambios?"}));
  const auto& d = p.TablaDovelas;
  EXPECT_DOUBLE_EQ(d.CohesiónBase[2], 1.5);
  EXPECT_DOUBLE_EQ(d.FricciónBase[2], 30);
  EXPECT_DOUBLE_EQ(d.PresiónPoros[2], 0);
  EXPECT_DOUBLE_EQ(d.TanFricciónBase[2], 0.3561);  // only the three columns go back
  // The other slices keep every digit, not the two decimals of the list.
  EXPECT_DOUBLE_EQ(d.CohesiónBase[1], 0.3058);
  EXPECT_DOUBLE_EQ(d.PresiónPoros[3], 0.375);
  EXPECT_DOUBLE_EQ(d.TanFricciónBase[1], 0.3561);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Sobrescritura, Form18RevisaLosNúmerosYCancelarNoCambiaNada) {
  InterfazGuionada ui("NS");
  ui.GuionPantalla("Form18", [](Pantalla& s, Interfaz& u) {
    s.lista("ListaParámetrosDeResistencia").seleccionada = 1;
    const char* campos[] = {"TextoCambioCohesión", "TextoCambioFricción",
                            "TextoCambioPresiónPoros"};
    for (const char* c : campos) s.texto(c) = "2";
    for (const char* c : campos) {
      s.texto(c) = "x";
      s.Pulsar("Modificar", u);
      s.texto(c) = "2";
    }
    s.Pulsar("Modificar", u);
    s.Pulsar("BotónCancelar", u);  // No: stays open
    EXPECT_FALSE(s.cerrada);
    s.Pulsar("BotónCancelar", u);  // Yes
  });
  CambioParámetrosResistenciaPresiónPoros(p, ui);
  EXPECT_EQ(ui.Textos(),
            (std::vector<std::string>{"Debe introducir un número para la cohesión",
                                      "Debe introducir un número para la fricción",
                                      "Debe introducir un número para la presión de poros",
                                      "No desea cambiar algunos valores de los parámetros de "
                                      "resistencia en las dovelas o presión de poros?",
                                      "No desea cambiar algunos valores de los parámetros de "
                                      "resistencia en las dovelas o presión de poros?"}));
  EXPECT_DOUBLE_EQ(p.TablaDovelas.CohesiónBase[1], 0.3058);
  EXPECT_TRUE(p.DatosGuardados);
}

TEST_F(Sobrescritura, Form18SinParámetrosInstantáneos) {
  p.ParámetrosIniciales.ParámetrosInstantáneos = 0;
  InterfazGuionada ui;
  CambioParámetrosResistenciaPresiónPoros(p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(InterfazGuionada::Línea(ui.Transcripción()[0]),
            "[mensaje] PARAMETROS INSTANTANEOS | Seleccione en la PANTALLA PARAMETROS INICIALES la "
            "opción PARAMETROS INSTANTANEOS ");
  // The screen itself, opened with case 0 from elsewhere, says so too.
  Form18 pantalla(p);
  ui.Olvidar();
  ui.Abrir(pantalla);
  EXPECT_EQ(InterfazGuionada::Línea(ui.Transcripción().back()),
            "[mensaje] Parámetros instantáneos | Ud. debe seleccionar en PARAMETROS INICIALES LA "
            "OPCION PARAMETROS INSTANTANEOS");
}

TEST_F(Sobrescritura, Form34AceptaLasPresionesDeLasDovelas) {
  p.PresionesExistentes = false;
  InterfazGuionada ui;
  ui.GuionPantalla("Form34", [](Pantalla& s, Interfaz& u) {
    auto& l = s.lista("ListaDePresiónDePoros");
    EXPECT_EQ(l.filas,
              (std::vector<std::vector<std::string>>{{"1", "0.13"}, {"2", "0.25"}, {"3", "0.38"}}));
    l.seleccionada = 3;
    s.texto("TextoPresiónDePoros") = "no";
    s.Pulsar("Modificar", u);
    s.texto("TextoPresiónDePoros") = "2.5";
    s.Pulsar("Modificar", u);
    s.Pulsar("BotónAceptar", u);
  });
  PresionesDePorosEquilibrioLímite(p, ui);
  EXPECT_EQ(ui.Textos(),
            (std::vector<std::string>{"Debe introducir un número para la presión de poros"}));
  EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[3], 2.5);
  EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[1], 0.125);
  EXPECT_TRUE(p.PresionesExistentes);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Sobrescritura, Form34CancelarPreguntaYNoRegistra) {
  InterfazGuionada ui("NS");
  ui.GuionPantalla("Form34", [](Pantalla& s, Interfaz& u) {
    s.lista("ListaDePresiónDePoros").seleccionada = 1;
    s.texto("TextoPresiónDePoros") = "9";
    s.Pulsar("Modificar", u);
    s.Pulsar("BotónCancelar", u);
    EXPECT_FALSE(s.cerrada);
    s.Pulsar("BotónCancelar", u);
  });
  PresionesDePorosEquilibrioLímite(p, ui);
  const std::string pregunta =
      "Si hizo algún cambio en las presiones de poros de los elementos, debe presionar el botón "
      "Aceptar para tomarlos en cuenta en los análisis. ¿No desea registrar ningún cambio?";
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{pregunta, pregunta}));
  EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[1], 0.125);
  EXPECT_TRUE(p.DatosGuardados);
}

TEST_F(Sobrescritura, Form34RechazaConSuTexto) {
  struct Caso {
    const char* tipo;
    bool calculado;
    int bordes;
    const char* texto;
  };
  const Caso casos[] = {
      {"", true, 4, "Seleccione en la pantalla principal la opción <T> ó <F>"},
      {"F", true, 4, "Ud.está trabajando con elementos finitos y no por métodos de equilibrio límites."},
      {"T", false, 4,
       "Ud.está trabajando por métodos de equilibrio límites. Ordene hacer el cálculo por el método "
       "seleccionado en los parámetros iniciales y luego podrá modificar las presiones de poros de "
       "las dovelas para un recálculo."},
      {"T", true, 1,
       "Ordene al programa hacer la estimación del factor de seguridad. Luego puede entrar a esta "
       "sesión y modificar las presiones de poros y hacer un recálculo."}};
  for (const Caso& c : casos) {
    p.TipoDeAnálisis = c.tipo;
    p.CálculoHecho = c.calculado;
    p.NúmeroBordes = static_cast<Entero>(c.bordes);
    InterfazGuionada ui;
    PresionesDePorosEquilibrioLímite(p, ui);
    EXPECT_EQ(ui.Textos(), (std::vector<std::string>{c.texto}));
    EXPECT_DOUBLE_EQ(p.TablaDovelas.PresiónPoros[1], 0.125);
  }
}

}  // namespace
}  // namespace lomaterra
