// The scripted interface and the command registry.
#include <gtest/gtest.h>

#include <set>

#include "proyecto/comandos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

class PantallaDePrueba : public Pantalla {
 public:
  PantallaDePrueba() {
    nombre = "FormPrueba";
    título = "Prueba";
    campos.push_back({"TextoValor", "Valor:", "", ""});
    botones.push_back({"BotónAceptar", "&Aceptar", [this](Interfaz&) { aceptada = true; cerrada = true; }});
  }
  void Activar(Interfaz& ui) override { activaciones++; (void)ui; }
  void CerrarSinCambios(Interfaz&) override { salidas++; cerrada = true; }
  int activaciones = 0, salidas = 0;
  bool aceptada = false;
};

TEST(InterfazGuionada, RespondeEnOrdenYLuegoPorDefecto) {
  InterfazGuionada ui("SN", true);
  EXPECT_TRUE(ui.Pregunta("a"));
  EXPECT_FALSE(ui.Pregunta("b", "T"));
  EXPECT_TRUE(ui.Pregunta("c"));
  ui.Mensaje("línea 1\nlínea 2", "Título");
  ASSERT_EQ(ui.Transcripción().size(), 4u);
  EXPECT_EQ(InterfazGuionada::Línea(ui.Transcripción()[1]), "[pregunta] T | b -> N");
  EXPECT_EQ(InterfazGuionada::Línea(ui.Transcripción()[3]), "[mensaje] Título | línea 1\\nlínea 2");
}

TEST(InterfazGuionada, PantallaSinGuionSeCierraConSuSalida) {
  InterfazGuionada ui;
  PantallaDePrueba f;
  ui.Abrir(f);
  EXPECT_EQ(f.activaciones, 1);
  EXPECT_EQ(f.salidas, 1);
  EXPECT_FALSE(f.aceptada);
  EXPECT_EQ(InterfazGuionada::Línea(ui.Transcripción()[0]), "[pantalla] Prueba");
}

TEST(InterfazGuionada, ElGuionPulsaBotones) {
  InterfazGuionada ui;
  ui.GuionPantalla("FormPrueba", [](Pantalla& p, Interfaz& i) {
    p.texto("TextoValor") = "3";
    p.Pulsar("BotónAceptar", i);
  });
  PantallaDePrueba f;
  ui.Abrir(f);
  EXPECT_TRUE(f.aceptada);
  EXPECT_EQ(f.salidas, 0);
  EXPECT_EQ(f.campo("TextoValor").valor, "3");
}

TEST(Comandos, ÁrbolSinNombresRepetidosYConPadresAnteriores) {
  const auto árbol = ÁrbolDeMenús();
  std::set<std::string> vistos;
  for (const auto& e : árbol) {
    EXPECT_TRUE(vistos.insert(e.nombre).second) << e.nombre;
    if (!e.padre.empty()) {
      const EntradaMenú* padre = BuscarEntrada(árbol, e.padre);
      ASSERT_NE(padre, nullptr) << e.nombre;
      EXPECT_TRUE(padre->EsSubmenú) << e.nombre;
      EXPECT_TRUE(vistos.count(e.padre)) << e.nombre;
    }
    EXPECT_FALSE(e.texto.empty()) << e.nombre;
  }
  const char* barra[] = {"MenúArchivo", "MenúCoordenadas", "MenúParámetrosCargas", "MenuEquilibrioLimite",
                         "MenúPresentación", "MénuElementosFinitos", "MenúAyuda"};
  std::vector<std::string> arriba;
  for (const auto& e : árbol)
    if (e.padre.empty()) arriba.push_back(e.nombre);
  EXPECT_EQ(arriba, std::vector<std::string>(std::begin(barra), std::end(barra)));
  EXPECT_EQ(BuscarEntrada(árbol, "MétodoFellenius")->padre, "CálculoEnSuelos");
  EXPECT_EQ(BuscarEntrada(árbol, "CálculoEnSuelos")->padre, "ArchivoCalcular");
  EXPECT_EQ(BuscarEntrada(árbol, "MenúArchivoGuardarComo")->texto, "G&uardar como...");
}

TEST(Comandos, UnaFallaAritméticaTerminaElComandoConMensaje) {
  Proyecto p;
  InterfazGuionada ui;
  auto r = EjecutarComando([](Proyecto& q, Interfaz&) { q.NúmeroIteraciones = 3; q.TablaDovelas.XMedio[4] = 1; }, p, ui);
  EXPECT_EQ(r, FinDeComando::Fallo);
  EXPECT_EQ(p.NúmeroIteraciones, 3);  // as it stood at that moment
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].título, "Error en el cálculo");
  EXPECT_NE(ui.Transcripción()[0].texto.find("fila 4"), std::string::npos);
}

}  // namespace
}  // namespace lomaterra
