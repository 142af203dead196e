// The whole road of a limit-equilibrium project done by hand in the window, offscreen: project
// information, the slope, a stratum and the failure surface typed in the panel, the strata
// characteristics, the stretches of the failure surface and the constants accepted on their
// screens, Fellenius from its menu, Save as, New and Open, with everything found as it was.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <cmath>
#include <string>

#include "apoyo/apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"
#include "ventana_apoyo.h"
#include "ventana_principal_qt.h"
#include "vista_pantalla.h"

namespace lomaterra {
namespace {

using pruebas::Hijo;

class Camino : public ::testing::Test {
 protected:
  void SetUp() override {
    pruebas::Aplicación();
    ReiniciarProyecto(p);
    ventana = std::make_unique<VentanaPrincipalQt>(p);
    ventana->interfaz().Sustituto(&guion);
    ventana->interfaz().AlMostrar([this](VistaPantalla& v) {
      auto r = guiones.find(S(v.objectName()));
      ASSERT_NE(r, guiones.end()) << S(v.objectName());
      r->second(v);
    });
  }
  void Menú(const char* nombre) {
    QAction* a = ventana->findChild<QAction*>(QString::fromUtf8(nombre));
    ASSERT_NE(a, nullptr) << nombre;
    ASSERT_TRUE(a->isEnabled()) << nombre;
    a->trigger();
  }
  static void Escribir(QWidget& w, const char* nombre, const char* valor) {
    auto* caja = Hijo<QLineEdit>(w, nombre);
    ASSERT_NE(caja, nullptr) << nombre;
    caja->setText(QString::fromUtf8(valor));
  }
  static void Pulsar(QWidget& w, const char* nombre) {
    auto* b = Hijo<QPushButton>(w, nombre);
    ASSERT_NE(b, nullptr) << nombre;
    b->click();
  }
  // Points typed in the coordinate panel of the main window.
  void Puntos(std::initializer_list<std::pair<const char*, const char*>> puntos) {
    for (const auto& [x, y] : puntos) {
      Escribir(*ventana, "TextoX", x);
      Escribir(*ventana, "TextoY", y);
      Pulsar(*ventana, "BotónAgregar");
    }
  }

  Proyecto p;
  InterfazGuionada guion;
  std::map<std::string, std::function<void(VistaPantalla&)>> guiones;
  std::unique_ptr<VentanaPrincipalQt> ventana;
};

TEST_F(Camino, DeLaInformaciónAlCálculoYDeVueltaDesdeElArchivo) {
  // The weight confirmation of the strata screen, the drawdown question, the save question on a
  // project not calculated (Fellenius leaves it so).
  guion.Responder("SNS");
  guiones["Form15"] = [](VistaPantalla& v) {
    Escribir(v, "TextoProgresivaInicial", "0+100.00");
    Escribir(v, "TextoProgresivaFinal", "0+160.00");
    Escribir(v, "TextoFechaProyecto", "22 / 11/ 2026");
    Escribir(v, "TextoIngResponsable", "Ing. Núñez");
    Escribir(v, "TextoEmpresa", "Geotecnia del Sur");
    Escribir(v, "TextoDeAnálisis", "t");
    Pulsar(v, "BotónAceptar");
  };
  guiones["Form5"] = [](VistaPantalla& v) {
    auto* lista = Hijo<QTableWidget>(v, "ListaEstratos");
    ASSERT_NE(lista, nullptr);
    ASSERT_EQ(lista->rowCount(), 1);
    lista->selectRow(0);
    Escribir(v, "TextoCohesión", "2.5");
    Escribir(v, "TextoFricción", "25");
    Escribir(v, "TextoPesoUnitarioHúmedo", "1.8");
    Escribir(v, "TextoPesoUnitarioSaturado", "2.0");
    Escribir(v, "TextoTipoEstrato", "B");
    Escribir(v, "TextoParámetroPresión", "0");
    Escribir(v, "TextoCoeficienteConsolidaciónVertical", "0");
    Escribir(v, "TextoTiempoDeConstrucción", "0");
    Pulsar(v, "BotónModificar");
    Escribir(v, "TextoSueloRoca", "s");
    Pulsar(v, "BotónAceptar");
  };
  guiones["Form6"] = [](VistaPantalla& v) {
    Escribir(v, "TextoPuntoInicial", "1");
    Escribir(v, "TextoPuntoFinal", "2");
    Escribir(v, "TextoTipoUnión", "c");
    Pulsar(v, "BotónAgregar");
    Pulsar(v, "BotónAceptar");
  };
  guiones["Constantes"] = [](VistaPantalla& v) {
    Escribir(v, "TextoMétodoDeCálculo", "3");
    Escribir(v, "TextoDefiniciónDeParámetrosInstantáneos", "0");
    Escribir(v, "TextoFSInicial", "1.5");
    Escribir(v, "TextoRadioCírculoFalla", "25");
    Escribir(v, "TextoVaríaElRadio", "N");
    Escribir(v, "TextoNúmeroDovelas", "20");
    for (const char* c : {"TextoMultiplicadorLagrange1", "TextoMultiplicadorLagrange2",
                          "TextoEsfuerzoInicialCresta", "TextoCoeficienteSísmicoHorizontal",
                          "TextoCoeficienteSísmicoVertical", "TextoAbscisaPrimerPuntoGrieta",
                          "TextoOrdenadaPrimerPuntoGrieta", "TextoAbscisaSegundoPuntoGrieta",
                          "TextoOrdenadaSegundoPuntoGrieta", "TextoAbscisaNivelFreáticoGrieta",
                          "TextoOrdenadaNivelFreáticoGrieta"})
      Escribir(v, c, "0");
    Pulsar(v, "BotónAceptar");
  };

  Menú("MenúInformación");
  ASSERT_TRUE(p.InformaciónDada);
  Menú("MenúCoordenadasTalud");
  Puntos({{"60", "20"}, {"40", "20"}, {"20", "10"}, {"0", "10"}});
  EXPECT_EQ(Hijo<QTableWidget>(*ventana, "ListaCoordenadas")->rowCount(), 4);
  Menú("MenúInsertarEstrato");
  ASSERT_EQ(p.NúmeroEstratos, 1);
  Puntos({{"60", "-10"}, {"0", "-10"}});
  Menú("MenúCoordenadasFalla");  // stores the stratum line, then shows the failure surface
  Puntos({{"45", "20"}, {"15", "10"}});
  Menú("CaracterísticasGeomecánicasSuelos");
  ASSERT_TRUE(p.EstratosCaracterizados);
  Menú("MénuGeometríaEntrePuntosSuperficieFalla");
  ASSERT_TRUE(p.GeometríaFallaDefinida);
  Menú("MenúArchivoConstantes");
  ASSERT_TRUE(p.ParámetrosInicialesDados);
  Menú("MétodoFellenius");
  ASSERT_FALSE(guion.Textos().empty());
  EXPECT_EQ(guion.Textos().back(),
            "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Fellenius "
            "para suelos.");
  // The same section as the sample talud_homogeneo.cod, whose ordinary-method factor worked by
  // hand is 2.359 (sum of c l + W cos a tan phi = 177.4 t/m over sum of W sin a = 75.2 t/m); on
  // the circular surface the program takes the driving side as moments, so it shows 2.359 / 25.
  ASSERT_EQ(p.NúmeroIteraciones, 1);
  const double fs = p.HistoriaIteraciones.FactorDeSeguridad[1];
  EXPECT_NEAR(fs * 25, 2.359, 0.06);

  const std::string ruta = pruebas::CarpetaTemporal() + "/camino.cod";
  guion.ArchivosElegidos({ruta, ruta});
  Menú("MenúArchivoGuardarComo");
  EXPECT_EQ(ventana->windowTitle(), "camino.cod - Lomaterra");
  EXPECT_TRUE(p.DatosGuardados);
  const Proyecto antes = p;

  Menú("ArchivoNuevo");
  EXPECT_EQ(ventana->windowTitle(), "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(p.NúmeroPuntosTalud, 0);
  Menú("MenúArchivoAbrir");
  EXPECT_EQ(ventana->windowTitle(), "camino.cod - Lomaterra");
  EXPECT_EQ(p.InformaciónProyecto.IngResponsable, "Ing. Núñez");
  EXPECT_EQ(p.CoordenadasTalud, antes.CoordenadasTalud);
  EXPECT_EQ(p.CoordenadasFalla, antes.CoordenadasFalla);
  EXPECT_EQ(p.XEstrato.Leer(1, 2), 0.0);
  EXPECT_EQ(p.YEstrato.Leer(1, 2), -10.0);
  EXPECT_EQ(p.Estrato.Fricción[1], 25.0);
  EXPECT_EQ(p.TramoFalla.TipoUnión[1], "C");
  EXPECT_EQ(p.ParámetrosIniciales.MétodoDeCálculo, 3);
  EXPECT_EQ(p.ParámetrosIniciales.Radio, antes.ParámetrosIniciales.Radio);
  EXPECT_EQ(p.ParámetrosIniciales.NúmeroDovelas, 20);
  EXPECT_EQ(Hijo<QTableWidget>(*ventana, "ListaCoordenadas")->rowCount(), 4);
  // A project whose only calculation was Fellenius is saved without slice results, and the first
  // calculation after opening it runs.
  EXPECT_FALSE(p.CálculoHecho);
  guion.Responder("N");
  Menú("MétodoFellenius");
  EXPECT_DOUBLE_EQ(p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones], fs);
}

}  // namespace
}  // namespace lomaterra
