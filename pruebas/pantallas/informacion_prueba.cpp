#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pantallas/form15.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

class Información : public ::testing::Test {
 protected:
  Proyecto p;
  InterfazGuionada ui;
  Form15 pantalla{p};

  void SetUp() override { ReiniciarProyecto(p); }
  void Abrir() {
    pantalla.cerrada = false;
    pantalla.Activar(ui);
  }
  void Llenar(const std::string& letra) {
    pantalla.texto("TextoProgresivaInicial") = "1+001.00";
    pantalla.texto("TextoProgresivaFinal") = "1+250.00";
    pantalla.texto("TextoFechaProyecto") = "30 / 12/ 1999";
    pantalla.texto("TextoIngResponsable") = "M. Pérez";
    pantalla.texto("TextoEmpresa") = "Geotecnia del Sur";
    pantalla.texto("TextoDeAnálisis") = letra;
  }
  void Aceptar() { pantalla.Pulsar("BotónAceptar", ui); }
};

TEST_F(Información, CadaCampoVacíoEnSuOrdenConSuTítulo) {
  struct Caso {
    const char* campo;
    const char* título;
    const char* texto;
  };
  // The box of the company keeps the title of the field before it.
  const std::vector<Caso> casos = {
      {"TextoProgresivaInicial", "Progresiva inicial", "Debe dar la progresiva de la forma 1+001.00 "},
      {"TextoProgresivaFinal", "Progresiva final", "Debe dar la progresiva de la forma 1+001.00"},
      {"TextoFechaProyecto", "Fecha del proyecto", "Debe dar la fecha de la forma 30 / 12/ 1999"},
      {"TextoIngResponsable", "Nombre del Ing.", "Nombre de la persona responsable."},
      {"TextoEmpresa", "Progresiva final", "Debe dar un nombre para la Empresa encargada del proyecto"},
  };
  Abrir();
  Llenar("x");  // the letter is checked last
  for (auto it = casos.rbegin(); it != casos.rend(); ++it) {
    pantalla.texto(it->campo) = "  ";
    ui.Olvidar();
    Aceptar();
    ASSERT_EQ(ui.Transcripción().size(), 1u);
    EXPECT_EQ(ui.Transcripción()[0].título, it->título);
    EXPECT_EQ(ui.Transcripción()[0].texto, it->texto);
  }
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_FALSE(p.InformaciónDada);
}

TEST_F(Información, LetraDeAnálisisEnMayúsculaTOF) {
  Abrir();
  for (const char* mala : {"", "x", "TF", "s"}) {
    Llenar(mala);
    ui.Olvidar();
    Aceptar();
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{kMensajeLetraDeAnálisis}) << mala;
    EXPECT_FALSE(pantalla.cerrada);
  }
  EXPECT_EQ(std::string(kMensajeLetraDeAnálisis).rfind("Para el análisis debe introducir:  Una 'T' en el caso de ANÁLISIS POR EQUILIBRIO", 0), 0u);
  Llenar(" t ");
  Aceptar();
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.TipoDeAnálisis, "T");
  EXPECT_EQ(p.InformaciónProyecto.Empresa, "Geotecnia del Sur");
  EXPECT_EQ(p.InformaciónProyecto.FechaProyecto, "30 / 12/ 1999");
  EXPECT_TRUE(p.InformaciónDada);
  EXPECT_TRUE(p.Ventana.EntradaCoordenadasAbierta);
  EXPECT_FALSE(p.DatosGuardados);
}

TEST_F(Información, CambioDeEquilibrioAElementosConservaDatosYBorraLoCalculado) {
  p.TipoDeAnálisis = "T";
  p.ParámetrosInicialesDados = true;
  p.CálculoHecho = true;
  p.NúmeroPuntosTalud = 4;
  ui.Responder("S");
  Abrir();
  Llenar("F");
  Aceptar();
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].tipo, "pregunta");
  EXPECT_EQ(ui.Transcripción()[0].texto, kPreguntaCambioAElementosFinitos);
  EXPECT_EQ(std::string(kPreguntaCambioAElementosFinitos).rfind("Hay cálculos por el método de equilibrio límite. ¿Ud va a usar parte de la infor", 0), 0u);
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_EQ(p.TipoDeAnálisis, "F");
  EXPECT_FALSE(p.ParámetrosInicialesDados);
  EXPECT_FALSE(p.CálculoHecho);
  EXPECT_EQ(p.NúmeroPuntosTalud, 4);
  EXPECT_TRUE(p.InformaciónDada);
}

TEST_F(Información, CambioDeElementosAEquilibrioPreguntaLoContrario) {
  p.TipoDeAnálisis = "F";
  p.Sísmico.CálculoSísmicoHecho = true;
  ui.Responder("S");
  Abrir();
  EXPECT_EQ(pantalla.texto("TextoDeAnálisis"), "F");  // the letter kept by the project
  Llenar("T");
  Aceptar();
  ASSERT_EQ(ui.Textos().size(), 1u);
  EXPECT_EQ(ui.Textos()[0], kPreguntaCambioAEquilibrioLímite);
  EXPECT_EQ(std::string(kPreguntaCambioAEquilibrioLímite).rfind("Hay cálculos por el método de elementos finitos. ¿Ud va a usar parte de la infor", 0), 0u);
  EXPECT_EQ(p.TipoDeAnálisis, "T");
  EXPECT_FALSE(p.Sísmico.CálculoSísmicoHecho);
}

TEST_F(Información, UnNoAlCambioNoPierdeNadaYVuelveALaLetraAnterior) {
  p.TipoDeAnálisis = "T";
  p.CálculoHecho = true;
  p.ParámetrosInicialesDados = true;
  ui.Responder("N");
  Abrir();
  Llenar("F");
  Aceptar();
  EXPECT_FALSE(pantalla.cerrada);
  EXPECT_EQ(pantalla.texto("TextoDeAnálisis"), "T");
  EXPECT_EQ(p.TipoDeAnálisis, "T");
  EXPECT_TRUE(p.CálculoHecho);
  EXPECT_TRUE(p.ParámetrosInicialesDados);
  EXPECT_FALSE(p.InformaciónDada);
  EXPECT_TRUE(p.InformaciónProyecto.Empresa.empty());
  // Accepting again with the former letter goes through without a question.
  ui.Olvidar();
  Aceptar();
  EXPECT_TRUE(pantalla.cerrada);
  EXPECT_TRUE(ui.Transcripción().empty());
  EXPECT_TRUE(p.CálculoHecho);
}

TEST_F(Información, ElComandoAbreLaPantallaConLoGuardado) {
  p.InformaciónProyecto.IngResponsable = "Ana";
  std::string visto;
  ui.GuionPantalla("Form15", [&](Pantalla& f, Interfaz&) { visto = f.texto("TextoIngResponsable"); });
  MenúInformación(p, ui);
  EXPECT_EQ(visto, "Ana");
  EXPECT_FALSE(p.InformaciónDada);  // closed with no change
}

}  // namespace
}  // namespace lomaterra
