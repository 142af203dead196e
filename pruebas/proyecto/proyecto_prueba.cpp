// The project state: tables, the reset and its survivals, the coordinate panel's store and load.
#include <gtest/gtest.h>

#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

TEST(Tabla, FilaCeroExisteYElRestoSeComprueba) {
  Tabla<double> t;
  EXPECT_EQ(t.Tamaño(), 0);
  EXPECT_EQ(t[0], 0.0);
  t.Redimensionar(3);
  t[3] = 7.5;
  t.RedimensionarConservando(5);
  EXPECT_EQ(t[3], 7.5);
  EXPECT_EQ(t[5], 0.0);
  EXPECT_THROW(t[6], FalloAritmético);
  EXPECT_THROW(t[-1], FalloAritmético);
  EXPECT_EQ(t.Leer(99), 0.0);
  t.Redimensionar(5);
  EXPECT_EQ(t[3], 0.0);  // erase
}

TEST(Tabla2, ConservaAlCrecer) {
  Tabla2<double> t;
  t.Redimensionar(2, 3);
  t(2, 3) = 4.0;
  t(1, 1) = 1.0;
  t.RedimensionarConservando(3, 5);
  EXPECT_EQ(t(2, 3), 4.0);
  EXPECT_EQ(t(1, 1), 1.0);
  EXPECT_EQ(t(3, 5), 0.0);
  EXPECT_THROW(t(4, 1), FalloAritmético);
}

class Reinicio : public ::testing::Test {
 protected:
  void SetUp() override {
    p.TipoDeAnálisis = "T";
    p.TipoDeMaterial = "R";
    p.ParámetrosIniciales.MétodoDeCálculo = 2;
    p.ParámetrosIniciales.Multiplicador1 = 12;
    p.ParámetrosIniciales.FSInicial = 1.3;
    p.ParámetrosIniciales.Radio = 20;
    p.ParámetrosIniciales.NúmeroDovelas = 10;
    p.ParámetrosIniciales.CoeficienteSísmicoHorizontal = 0.1;
    p.ParámetrosIniciales.CentroX = 5;
    p.ParámetrosIniciales.VaríaRadio = true;
    p.ParámetrosIniciales.LetraVaríaRadio = "S";
    p.ParámetrosIniciales.UsaParámetrosInstantáneos = true;
    p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos = "S";
    p.NúmeroCargasUniformes = 2;
    p.CargaUniforme.Redimensionar(2);
    p.CargaUniforme.qy[2] = 3;
    p.CargasUniformesDadas = true;
    p.NúmeroPuntosTalud = 2;
    p.CoordenadasTalud.Redimensionar(2);
    p.CálculoHecho = p.InformaciónDada = p.EstratosCaracterizados = true;
    p.EtapaPoros = p.EtapaDovelas = true;
    p.NúmeroBordes = 11;
    p.PresionesExistentes = p.DesembalseRápido = true;
    p.GrietaTracción.EmpujeGrieta = 4.5;
    p.DatosGuardados = false;
    p.CaracterísticasSueloCompletas = false;
    p.Ventana.Título = "x.cod - Lomaterra";
    p.Ventana.TextoProyecto = "descripción";
    p.Ventana.TipoPanel = 3;
    p.Ventana.ListaCoordenadas = {{1, 2}};
    p.Malla.NodosDefinidos = true;
    p.Sísmico.RegistroDado = true;
  }
  Proyecto p;
};

TEST_F(Reinicio, BorraLoQueDiceYConservaLoDemás) {
  ReiniciarProyecto(p);
  // Kept: both letters, the constants of the calculation and the loads with their counts.
  EXPECT_EQ(p.TipoDeAnálisis, "T");
  EXPECT_EQ(p.TipoDeMaterial, "R");
  EXPECT_EQ(p.ParámetrosIniciales.MétodoDeCálculo, 2);
  EXPECT_EQ(p.ParámetrosIniciales.Multiplicador1, 12);
  EXPECT_EQ(p.ParámetrosIniciales.FSInicial, 1.3);
  EXPECT_EQ(p.ParámetrosIniciales.Radio, 20);
  EXPECT_EQ(p.ParámetrosIniciales.NúmeroDovelas, 10);
  EXPECT_EQ(p.ParámetrosIniciales.CoeficienteSísmicoHorizontal, 0.1);
  EXPECT_EQ(p.ParámetrosIniciales.CentroX, 5);
  EXPECT_EQ(p.NúmeroCargasUniformes, 2);
  EXPECT_EQ(p.CargaUniforme.qy[2], 3);
  // Cleared.
  EXPECT_FALSE(p.CargasUniformesDadas);
  EXPECT_FALSE(p.ParámetrosIniciales.VaríaRadio);
  // The letter is the same datum as the flag: the constants screen must not show "S" after New.
  EXPECT_EQ(p.ParámetrosIniciales.LetraVaríaRadio, "N");
  EXPECT_FALSE(p.ParámetrosIniciales.UsaParámetrosInstantáneos);
  EXPECT_EQ(p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos, "N");
  EXPECT_EQ(p.NúmeroPuntosTalud, 0);
  EXPECT_FALSE(p.CálculoHecho || p.InformaciónDada || p.EstratosCaracterizados);
  EXPECT_FALSE(p.EtapaPoros || p.EtapaDovelas);
  EXPECT_EQ(p.NúmeroBordes, 0);
  EXPECT_FALSE(p.PresionesExistentes || p.DesembalseRápido);
  EXPECT_EQ(p.GrietaTracción.EmpujeGrieta, 0);
  EXPECT_TRUE(p.DatosGuardados && p.ListaGuardada);
  EXPECT_TRUE(p.CaracterísticasSueloCompletas);
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(p.Ventana.TextoProyecto, "");
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas Talud-Presa-Túnel");
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
  EXPECT_EQ(p.Ventana.ListaEstrato, std::vector<std::string>{"Seleccione el estrato"});
  EXPECT_FALSE(p.Malla.NodosDefinidos);
  EXPECT_FALSE(p.Sísmico.RegistroDado);
}

TEST(Panel, AbscisasIgualesSeGuardanUnCentésimoMásAbajo) {
  Proyecto p;
  p.Ventana.ListaCoordenadas = {{10, 5}, {10, 3}, {10, 2}, {4, 0}};
  GuardarPanelCoordenadas(p, 1, 1);
  ASSERT_EQ(p.NúmeroPuntosTalud, 4);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[1], 10.0);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[2], 9.99);
  // A third equal abscissa goes 0.01 below the second: never two equal neighbours.
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[3], 9.98);
  EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[4], 4.0);
  // The panel keeps the values as entered.
  EXPECT_EQ(p.Ventana.ListaCoordenadas[1].X, 10.0);
  CargarPanelCoordenadas(p, 1, 1);
  EXPECT_DOUBLE_EQ(p.Ventana.ListaCoordenadas[1].X, 9.99);
}

TEST(Panel, EstratosSeGuardanPorFilaYSeCarganConSuEtiqueta) {
  Proyecto p;
  p.NúmeroEstratos = 2;
  p.Ventana.ListaCoordenadas = {{30, 8}, {0, 6}};
  GuardarPanelCoordenadas(p, 4, 2);
  p.Ventana.ListaCoordenadas = {{30, 9}, {20, 9}, {0, 7}};
  GuardarPanelCoordenadas(p, 4, 1);
  EXPECT_EQ(p.PuntosEstrato[1], 3);
  EXPECT_EQ(p.PuntosEstrato[2], 2);
  EXPECT_DOUBLE_EQ(p.YEstrato(2, 2), 6.0);
  CargarPanelCoordenadas(p, 4, 2);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas del estrato");
  ASSERT_EQ(p.Ventana.ListaCoordenadas.size(), 2u);
  EXPECT_DOUBLE_EQ(p.Ventana.ListaCoordenadas[0].Y, 8.0);
}

}  // namespace
}  // namespace lomaterra
