// The menu tree of the main window against the command registry: every entry, in order, under
// its parent, with its caption and control name, enabled only when it has a command.
#include <gtest/gtest.h>

#include <QSet>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <string>
#include <vector>

#include "proyecto/proyecto.h"
#include "ventana_apoyo.h"
#include "ventana_principal_qt.h"

namespace lomaterra {
namespace {

class MenúsPrueba : public ::testing::Test {
 protected:
  void SetUp() override {
    pruebas::Aplicación();
    ReiniciarProyecto(p);
  }
  // The control names of the entries of a menu (or of the bar), in the order they are shown.
  static std::vector<std::string> Nombres(const QList<QAction*>& acciones) {
    std::vector<std::string> r;
    for (QAction* a : acciones)
      if (!a->isSeparator()) r.push_back(S(a->objectName()));
    return r;
  }
  Proyecto p;
};

TEST_F(MenúsPrueba, CadaEntradaDelRegistroEstáEnSuMenúEnOrdenConSuTextoYSuNombre) {
  const auto árbol = ÁrbolDeMenús();
  VentanaPrincipalQt ventana(p, árbol);
  std::map<std::string, std::vector<std::string>> esperados;  // parent -> children in order
  for (const EntradaMenú& e : árbol) {
    esperados[e.padre].push_back(e.nombre);
    SCOPED_TRACE(e.nombre);
    QAction* a = nullptr;
    if (e.EsSubmenú) {
      QMenu* m = ventana.findChild<QMenu*>(Q(e.nombre));
      ASSERT_NE(m, nullptr);
      EXPECT_EQ(S(m->title()), e.texto);
      a = m->menuAction();
    } else {
      for (QAction* c : ventana.findChildren<QAction*>(Q(e.nombre)))
        if (!c->menu()) a = c;
      ASSERT_NE(a, nullptr);
      EXPECT_EQ(S(a->text()), e.texto);
    }
    EXPECT_EQ(S(a->objectName()), e.nombre);
    EXPECT_EQ(a->isEnabled(), e.Habilitada());
  }
  EXPECT_EQ(Nombres(ventana.menuBar()->actions()), esperados[""]);
  for (const auto& [padre, hijos] : esperados) {
    if (padre.empty()) continue;
    SCOPED_TRACE(padre);
    QMenu* m = ventana.findChild<QMenu*>(Q(padre));
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(Nombres(m->actions()), hijos);
  }
}

TEST_F(MenúsPrueba, LaBarraYAlgunosTextosSonLosDelPrograma) {
  VentanaPrincipalQt ventana(p);
  std::vector<std::string> barra;
  for (QAction* a : ventana.menuBar()->actions()) barra.push_back(S(a->text()));
  const std::vector<std::string> esperada = {"&Archivo",
                                             "&Coordenadas",
                                             "&Parámatros_y_Cargas",
                                             "&Equilibrio límite",
                                             "P&resentación del cálculo de esfuerzos",
                                             "E&lementos finitos",
                                             "A&yuda"};
  EXPECT_EQ(barra, esperada);
  // Alt and a letter opens one menu of the bar only.
  QSet<QChar> letras;
  for (QAction* a : ventana.menuBar()->actions()) {
    const int y = a->text().indexOf('&');
    ASSERT_GE(y, 0) << S(a->text());
    EXPECT_FALSE(letras.contains(a->text().at(y + 1).toLower())) << S(a->text());
    letras.insert(a->text().at(y + 1).toLower());
  }
  struct Caso {
    const char* nombre;
    const char* texto;
  };
  // Captions as the program has them, blanks and spelling included.
  const Caso casos[] = {
      {"MenúArchivoGuardarComo", "G&uardar como..."},
      {"ImprimirResultadosAnálisisSísmico", "&Imprimir los resultados de análisis sísmico    "},
      {"MenúInsertarEstrato", "Inser&tar estrato..."},
      {"ProcesoIterativoEnSuelos", "&Dov Leshchinsky and Ching-Chuan Huang "},
      {"EsfuerzosSigmaXVsAbscisas", "&Esfuerzsos sigma X versus  abscisas "},
      {"MenúAyudaAcercaDe", "&Acerca de..."},
  };
  for (const Caso& c : casos) {
    QAction* a = ventana.findChild<QAction*>(QString::fromUtf8(c.nombre));
    ASSERT_NE(a, nullptr) << c.nombre;
    EXPECT_EQ(S(a->text()), c.texto);
  }
  // Fellenius is under Calcular > Suelos of Equilibrio límite.
  QMenu* suelos = ventana.findChild<QMenu*>(QString::fromUtf8("CálculoEnSuelos"));
  ASSERT_NE(suelos, nullptr);
  EXPECT_EQ(Nombres(suelos->actions()),
            (std::vector<std::string>{"ProcesoIterativoEnSuelos", "MétodoBishop", "MétodoFellenius",
                                      "MétodoJanbu"}));
}

TEST_F(MenúsPrueba, UnaEntradaSinComandoQuedaDeshabilitadaYNoHaceNada) {
  int llamadas = 0;
  std::vector<EntradaMenú> árbol = {
      {"MenúPrueba", "&Prueba", "", {}, true},
      {"ConComando", "&Con comando", "MenúPrueba", [&](Proyecto&, Interfaz&) { ++llamadas; }},
      {"SinComando", "&Sin comando", "MenúPrueba", {}},
  };
  VentanaPrincipalQt ventana(p, árbol);
  QAction* con = ventana.findChild<QAction*>("ConComando");
  QAction* sin = ventana.findChild<QAction*>("SinComando");
  ASSERT_TRUE(con && sin);
  EXPECT_TRUE(con->isEnabled());
  EXPECT_FALSE(sin->isEnabled());
  sin->trigger();  // a disabled action does not fire
  EXPECT_EQ(llamadas, 0);
  EXPECT_FALSE(ventana.EjecutarMenú("SinComando"));
  con->trigger();
  EXPECT_EQ(llamadas, 1);
}

}  // namespace
}  // namespace lomaterra
