// The project file: write and read back, the conditional items, the tidy-ups of the writer, the
// derivations of the reader, older number forms, damaged files.
#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <locale>
#include <sstream>

#include "apoyo/apoyo.h"
#include "apoyo/proyectos.h"
#include "proyecto/archivo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

namespace fs = std::filesystem;

void EscribirBytes(const std::string& ruta, const std::string& bytes) {
  std::ofstream f(ruta, std::ios::binary);
  f << bytes;
}

// Lines of a file as it stands, without their CR LF.
std::vector<std::string> Líneas(const std::string& bytes) {
  std::vector<std::string> r;
  std::size_t i = 0;
  while (i < bytes.size()) {
    const auto fin = bytes.find("\r\n", i);
    if (fin == std::string::npos) { r.push_back(bytes.substr(i)); break; }
    r.push_back(bytes.substr(i, fin - i));
    i = fin + 2;
  }
  return r;
}

// A layered soil slope with every part of the format that a soil project uses.
Proyecto ProyectoSuelo(bool conResultados) {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.Ventana.TextoProyecto = "Talud de la vía, abscisa K2+350";
  p.InformaciónProyecto = {"K2+300", "K2+400", "12/03/2025", "Ing. Núñez", "Geotecnia Andina"};
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 2;
  pi.Multiplicador1 = 0.25; pi.Multiplicador2 = -1.5; pi.FSInicial = 1.35; pi.EsfuerzoInicialCresta = 2.75;
  pi.Radio = 26.5; pi.ReferenciaMomentoX = 0; pi.ReferenciaMomentoY = 0;
  pi.CoeficienteSísmicoHorizontal = 0.15; pi.CoeficienteSísmicoVertical = 0.05; pi.NúmeroDovelas = 12;
  pi.VaríaRadio = true;
  pruebas::PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{60, 20}, {40, 20}, {20, 10}, {0, 10}});
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{45, 20}, {15, 10}});
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.PuntoInicial[1] = 1; p.TramoFalla.PuntoFinal[1] = 2; p.TramoFalla.TipoUnión[1] = "C";
  pruebas::PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{60, 16}, {30, 12.5}, {0, 9.75}});
  p.NúmeroEstratos = 2;
  p.NúmeroEstratosCaracterizados = 2;
  p.PuntosEstrato.Redimensionar(2);
  p.PuntosEstrato[1] = 3; p.PuntosEstrato[2] = 2;
  p.XEstrato.Redimensionar(2, 3); p.YEstrato.Redimensionar(2, 3);
  const double xs[2][3] = {{60, 35, 28}, {60, 0, 0}}, ys[2][3] = {{14, 14, 14}, {-5, -5, 0}};
  for (int s = 1; s <= 2; ++s)
    for (int j = 1; j <= p.PuntosEstrato[s]; ++j) { p.XEstrato(s, j) = xs[s - 1][j - 1]; p.YEstrato(s, j) = ys[s - 1][j - 1]; }
  p.Estrato.RedimensionarConservando(2);
  p.Estrato.Cohesión[1] = 1.5; p.Estrato.Fricción[1] = 28; p.Estrato.PesoUnitarioHúmedo[1] = 1.85; p.Estrato.PesoUnitarioSaturado[1] = 2.05;
  p.Estrato.TipoEstrato[1] = 1; p.Estrato.ParámetroPresión[1] = 0.3; p.Estrato.CoeficienteConsolidaciónVertical[1] = 0.002; p.Estrato.TiempoDeConstrucción[1] = 4;
  p.Estrato.Cohesión[2] = 3.2; p.Estrato.Fricción[2] = 22.5; p.Estrato.PesoUnitarioHúmedo[2] = 1.75; p.Estrato.PesoUnitarioSaturado[2] = 1.95;
  p.NúmeroCargasUniformes = 1;
  p.CargaUniforme.Redimensionar(1);
  p.CargaUniforme.xo[1] = 41; p.CargaUniforme.yo[1] = 20; p.CargaUniforme.xf[1] = 45; p.CargaUniforme.yf[1] = 20;
  p.CargaUniforme.qx[1] = 0.5; p.CargaUniforme.qy[1] = 2;
  p.NúmeroCargasPuntuales = 1;
  p.CargaPuntual.Redimensionar(1);
  p.CargaPuntual.Xpuntual[1] = 43; p.CargaPuntual.Ypuntual[1] = 20; p.CargaPuntual.Px[1] = -0.75; p.CargaPuntual.Py[1] = 5;
  p.GrietaTracción = {45, 20, 45, 17.5, 45, 18.5, 0.5};
  p.SumaTangenciales = 35.125; p.SumaNormalesTotales = 170.5; p.SumaNormalesEfectivos = 120.25;
  p.SumaPrincipalesMayores = 0; p.SumaPrincipalesMenores = 0;
  p.Anclajes = {1.6, 15, 0.032, 18000, 4, 2.5, 3};
  if (conResultados) {
    p.CálculoHecho = true;
    p.NúmeroBordes = 4;
    auto& d = p.TablaDovelas;
    for (Tabla<double>* t : {&d.Ancho, &d.XMedio, &d.YTalud, &d.YBase, &d.PresiónPoros, &d.FricciónBase, &d.CohesiónBase,
                             &d.PesoUnitarioMedio, &d.EsfuerzoNormalTotal, &d.EsfuerzoNormalEfectivo, &d.EsfuerzoTangencial})
      t->Redimensionar(3);
    for (long i = 1; i <= 3; ++i) {
      d.Ancho[i] = 10; d.XMedio[i] = 45 - 10 * i + 5; d.YTalud[i] = 20 - 2.5 * i; d.YBase[i] = 15 - 2 * i;
      d.PresiónPoros[i] = 0.125 * i; d.FricciónBase[i] = 28 - i; d.CohesiónBase[i] = 1.5 + i;
      d.PesoUnitarioMedio[i] = 1.8 + 0.01 * i; d.EsfuerzoNormalTotal[i] = 10.5 * i; d.EsfuerzoNormalEfectivo[i] = 10 * i;
      d.EsfuerzoTangencial[i] = -1.0 / 8 * i;
    }
    p.NúmeroIteraciones = 3;
    p.HistoriaIteraciones.Redimensionar(3);
    p.HistoriaIteraciones.FactorDeSeguridad[1] = 1.2;
    p.HistoriaIteraciones.FactorDeSeguridad[3] = 1.4375;
  }
  // The panel holds the surface, as after a file was opened: the writer stores it first.
  CargarPanelCoordenadas(p, 1, 1);
  return p;
}

// A rock slope; `instantáneos` orders the instantaneous parameters.
Proyecto ProyectoRoca(bool conResultados, bool instantáneos) {
  Proyecto p = ProyectoSuelo(false);
  p.TipoDeMaterial = "R";
  p.Roca.TipoDeObra = "O";
  p.Roca.FactorPerturbación = 0.7;
  p.Roca.AlturaH = 35;
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 1;
  pi.EsfuerzoInicialCresta = 0;
  pi.UsaParámetrosInstantáneos = instantáneos;
  pi.ParámetrosInstantáneos = instantáneos ? 2 : 0;
  p.Estrato.BorrarSuelo();
  p.Estrato.RedimensionarConservando(2);
  for (long s = 1; s <= 2; ++s) {
    p.Estrato.m_intacta[s] = 10 + s; p.Estrato.Parámetro_GSI[s] = 45 + 5 * s; p.Estrato.m_macizo[s] = 1.25 * s;
    p.Estrato.s_macizo[s] = 0.0039 * s; p.Estrato.C_Simple[s] = 450 + s; p.Estrato.PesoUnitarioHúmedo[s] = 2.5;
    p.Estrato.PesoUnitarioSaturado[s] = 2.6;
  }
  p.Roca.EnsayosDados = true;
  p.Roca.PuntosEnsayo.Redimensionar(2);
  p.Roca.PuntosEnsayo[1] = 3; p.Roca.PuntosEnsayo[2] = 1;
  p.Roca.EnsayoSigma1.Redimensionar(2, 3); p.Roca.EnsayoSigma3.Redimensionar(2, 3);
  for (long j = 1; j <= 3; ++j) { p.Roca.EnsayoSigma1(1, j) = 100 + 40 * j; p.Roca.EnsayoSigma3(1, j) = 5 * j; }
  p.Roca.EnsayoSigma1(2, 1) = 210.5; p.Roca.EnsayoSigma3(2, 1) = 12.25;
  p.SumaPrincipalesMayores = 402.5; p.SumaPrincipalesMenores = -12.125;
  if (conResultados) {
    p.CálculoHecho = true;
    p.NúmeroBordes = 3;
    auto& d = p.TablaDovelas;
    for (Tabla<double>* t : {&d.Ancho, &d.XMedio, &d.YTalud, &d.YBase, &d.PresiónPoros, &d.m_Base, &d.s_Base, &d.FricciónBase,
                             &d.CohesiónBase, &d.a_Base, &d.PesoUnitarioMedio, &d.EsfuerzoNormalTotal,
                             &d.EsfuerzoNormalEfectivo, &d.EsfuerzoTangencial, &d.EsfuerzoPrincipalMayor, &d.EsfuerzoPrincipalMenor})
      t->Redimensionar(2);
    for (long i = 1; i <= 2; ++i) {
      d.Ancho[i] = 15; d.XMedio[i] = 37.5 - 15 * (i - 1); d.YTalud[i] = 18 - 6 * i; d.YBase[i] = 12 - 4 * i;
      d.PresiónPoros[i] = 0.5 * i; d.m_Base[i] = 1.25; d.s_Base[i] = 0.0039; d.FricciónBase[i] = 40 + i;
      d.CohesiónBase[i] = 12.5 * i; d.a_Base[i] = 0.505; d.PesoUnitarioMedio[i] = 2.55; d.EsfuerzoNormalTotal[i] = 30.5 * i;
      d.EsfuerzoNormalEfectivo[i] = 30 * i; d.EsfuerzoTangencial[i] = 9.75 * i; d.EsfuerzoPrincipalMayor[i] = 60 + i;
      d.EsfuerzoPrincipalMenor[i] = -0.5 * i;
    }
    p.NúmeroIteraciones = 7;
    p.HistoriaIteraciones.Redimensionar(7);
    p.HistoriaIteraciones.Multiplicador1[7] = 0.125;
    p.HistoriaIteraciones.Multiplicador2[7] = -2.5;
    p.HistoriaIteraciones.FactorDeSeguridad[7] = 2.0625;
  }
  return p;
}

class ArchivoProyecto : public ::testing::Test {
 protected:
  std::string carpeta = pruebas::CarpetaTemporal();
  std::string ruta = carpeta + "/proyecto.cod";
  InterfazGuionada ui;
  Proyecto p_;

  // Saves, rereads into a fresh project and checks that nothing was said on the way and that the
  // project read saves to the same bytes: every item the file carries came back.
  Proyecto IdaYVuelta(Proyecto& p) {
    EXPECT_TRUE(GuardarProyecto(p, ruta, ui));
    Proyecto q;
    EXPECT_TRUE(LeerProyecto(q, ruta, ui));
    EXPECT_TRUE(ui.Transcripción().empty()) << InterfazGuionada::Línea(ui.Transcripción().front());
    const std::string otra = carpeta + "/otra.cod";
    EXPECT_TRUE(GuardarProyecto(q, otra, ui));
    EXPECT_EQ(pruebas::LeerArchivo(otra), pruebas::LeerArchivo(ruta));
    // Only the last row of the history travels; the rows before it read 0.
    for (long r = 1; r < q.NúmeroIteraciones; ++r)
      EXPECT_EQ(q.HistoriaIteraciones.FactorDeSeguridad.Leer(r), 0.0) << "fila previa " << r;
    return q;
  }
};

// ----- Round trips

TEST_F(ArchivoProyecto, SueloConResultadosIdaYVuelta) {
  // The history keeps its last row only, also when that row is the first.
  for (Entero k : {3, 1}) {
    Proyecto p = ProyectoSuelo(true);
    p.NúmeroIteraciones = k;
    Proyecto q = IdaYVuelta(p);
    EXPECT_EQ(q.HistoriaIteraciones.FactorDeSeguridad.Leer(k), k == 1 ? 1.2 : 1.4375) << k;
    EXPECT_TRUE(q.ParámetrosIniciales.VaríaRadio);
  }
}

TEST_F(ArchivoProyecto, SueloSinResultadosIdaYVuelta) {
  Proyecto p = ProyectoSuelo(false);
  p.ParámetrosIniciales.MétodoDeCálculo = 3;
  // A polyline of three stretches instead of the arc.
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{45, 20}, {35, 12}, {25, 9}, {15, 10}});
  p.NúmeroTramosFalla = 3;
  p.TramoFalla.Redimensionar(3);
  for (long i = 1; i <= 3; ++i) { p.TramoFalla.PuntoInicial[i] = i; p.TramoFalla.PuntoFinal[i] = i + 1; p.TramoFalla.TipoUnión[i] = "L"; }
  // A Fellenius run leaves slices and sums but no CálculoHecho: no slice results are written.
  p.NúmeroBordes = 5;
  Proyecto q = IdaYVuelta(p);
  EXPECT_EQ(q.NúmeroBordes, 0);
  EXPECT_FALSE(q.CálculoHecho);
}

TEST_F(ArchivoProyecto, RocaConResultadosIdaYVuelta) {
  for (bool instantáneos : {false, true}) {
    SCOPED_TRACE(instantáneos ? "con parámetros instantáneos" : "sin parámetros instantáneos");
    Proyecto p = ProyectoRoca(true, instantáneos);
    Proyecto q = IdaYVuelta(p);
    EXPECT_EQ(p.Roca.TipoDeObra, "S");  // forced by the writer
    EXPECT_EQ(q.ParámetrosIniciales.ParámetrosInstantáneosDisponibles, instantáneos);
    EXPECT_EQ(q.ParámetrosIniciales.LetraUsaParámetrosInstantáneos, instantáneos ? "S" : "N");
  }
}

TEST_F(ArchivoProyecto, RocaSinResultadosIdaYVuelta) {
  Proyecto p = ProyectoRoca(false, false);
  p.Roca.EnsayosDados = false;
  Proyecto q = IdaYVuelta(p);
  EXPECT_FALSE(q.Roca.EnsayosDados);
}

TEST_F(ArchivoProyecto, JanbuConCálculoGuardaAlturasDeEmpuje) {
  Proyecto p = ProyectoSuelo(true);
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  p.TablaDovelas.AlturaEmpuje.Redimensionar(4);
  for (long i = 1; i <= 3; ++i) p.TablaDovelas.AlturaEmpuje[i] = 1.5 * i;
  EXPECT_EQ(IdaYVuelta(p).TablaDovelas.AlturaEmpuje.Leer(3), 4.5);
}

// ----- The conditional items and the asymmetry

TEST_F(ArchivoProyecto, LetraDeVaríaRadioSoloConUnArcoYBishop) {
  // The letter follows the row of the stretch: with method 2 it is there, with method 1 the
  // count of the phreatic line follows at once. Both files read back whole.
  struct Caso { Entero método; Entero tramos; bool letra; };
  for (Caso c : {Caso{2, 1, true}, Caso{1, 1, false}, Caso{2, 0, false}}) {
    SCOPED_TRACE("método " + std::to_string(c.método) + ", tramos " + std::to_string(c.tramos));
    Proyecto p = ProyectoSuelo(false);
    p.ParámetrosIniciales.MétodoDeCálculo = c.método;
    p.NúmeroTramosFalla = c.tramos;
    IdaYVuelta(p);
    const auto líneas = Líneas(pruebas::LeerArchivo(ruta));
    // Head 8 lines; body: material, letter, method, ten reals, surface (1 + 4), failure (1 + 2).
    const std::size_t tramos = 8 + 3 + 10 + 5 + 3;
    ASSERT_GT(líneas.size(), tramos + 2);
    EXPECT_EQ(líneas[tramos], std::to_string(c.tramos));
    const std::size_t siguiente = tramos + 1 + static_cast<std::size_t>(c.tramos);
    if (c.tramos == 1) {
      EXPECT_EQ(líneas[tramos + 1], "1,2,\"C\"");
    }
    EXPECT_EQ(líneas[siguiente], c.letra ? "\"S\"" : "3");
  }
}

TEST_F(ArchivoProyecto, JanbuSinCálculoConDovelasSeReleeBien) {
  // A Janbu run that did not finish leaves slices and heights in memory with no calculation done:
  // the heights are written only with the slices, which the reader can count.
  Proyecto p = ProyectoSuelo(false);
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  p.NúmeroBordes = 3;
  p.TablaDovelas.AlturaEmpuje.Redimensionar(3);
  p.TablaDovelas.AlturaEmpuje[1] = 4.25;
  p.TablaDovelas.AlturaEmpuje[2] = 3.5;
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  const std::string bytes = pruebas::LeerArchivo(ruta);
  Proyecto q;
  ASSERT_TRUE(LeerProyecto(q, ruta, ui));
  EXPECT_EQ(q.SumaTangenciales, p.SumaTangenciales);
  EXPECT_EQ(q.Anclajes.SeparaciónAnclajesPasivo, p.Anclajes.SeparaciónAnclajesPasivo);
  EXPECT_TRUE(ui.Transcripción().empty());
  ASSERT_TRUE(GuardarProyecto(q, ruta, ui));
  EXPECT_EQ(pruebas::LeerArchivo(ruta), bytes);

  // With no slices in memory the two walks agree.
  p.NúmeroBordes = 0;
  ui.Olvidar();
  IdaYVuelta(p);
}

// ----- Texts

TEST_F(ArchivoProyecto, DescripciónComillasYAcentos) {
  Proyecto p = ProyectoSuelo(false);
  p.Ventana.TextoProyecto = "Primera línea\r\nsegunda \"corte\"\nfin";
  p.InformaciónProyecto.Empresa = "Compañía Técnica Ñandú";
  ui.Responder("S");  // the double quotes are changed: save all the same
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  const std::string bytes = pruebas::LeerArchivo(ruta);
  // Windows-1252 on disk: one byte a letter, no UTF-8 pairs.
  EXPECT_NE(bytes.find("\"Compa\xF1\xED""a T\xE9""cnica \xD1""and\xFA\""), std::string::npos);
  EXPECT_EQ(bytes.find("\xC3"), std::string::npos);
  EXPECT_EQ(Líneas(bytes)[0], "\"Primera l\xEDnea  segunda 'corte' fin\"");
  Proyecto q;
  ASSERT_TRUE(LeerProyecto(q, ruta, ui));
  EXPECT_EQ(q.Ventana.TextoProyecto, "Primera línea  segunda 'corte' fin");
  EXPECT_EQ(q.InformaciónProyecto.Empresa, "Compañía Técnica Ñandú");
}

TEST(LimpiarSaltos, CadaCrYCadaLfUnBlanco) {
  EXPECT_EQ(LimpiarSaltos("a\r\nb\nc\rd"), "a  b c d");
  EXPECT_EQ(LimpiarSaltos(""), "");
}

TEST(MayorDeLista, SoloLasFilasContadas) {
  Tabla<Entero> t;
  t.Redimensionar(4);
  t[1] = 3; t[2] = 7; t[3] = 2; t[4] = 9;
  EXPECT_EQ(MayorDeLista(t, 3), 7);
  EXPECT_EQ(MayorDeLista(t, 0), 0);
  EXPECT_EQ(MayorDeLista(t, 6), 9);  // rows beyond the table read 0
}

// ----- Numbers

TEST_F(ArchivoProyecto, QuinceCifrasSignificativas) {
  Proyecto p = ProyectoSuelo(false);
  p.ParámetrosIniciales.FSInicial = 1.0 / 3.0;
  p.CoordenadasTalud.X[2] = 123456.789012345678;
  p.ParámetrosIniciales.Multiplicador1 = 6.02214076e23;
  p.ParámetrosIniciales.Multiplicador2 = -1.0e-12 / 7.0;
  CargarPanelCoordenadas(p, 1, 1);
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  const auto líneas = Líneas(pruebas::LeerArchivo(ruta));
  EXPECT_EQ(líneas[8 + 3 + 2], "0.333333333333333");
  EXPECT_EQ(líneas[8 + 3 + 10 + 2], "123456.789012346,20");
  Proyecto q;
  ASSERT_TRUE(LeerProyecto(q, ruta, ui));
  auto cerca = [](double a, double b) { return std::abs(a - b) <= 5e-15 * std::abs(b); };
  EXPECT_TRUE(cerca(q.ParámetrosIniciales.FSInicial, 1.0 / 3.0));
  EXPECT_TRUE(cerca(q.CoordenadasTalud.X[2], 123456.789012345678));
  EXPECT_TRUE(cerca(q.ParámetrosIniciales.Multiplicador1, 6.02214076e23));
  EXPECT_TRUE(cerca(q.ParámetrosIniciales.Multiplicador2, -1.0e-12 / 7.0));
}

// A locale whose decimal sign is a comma, for the streams of the program.
struct ComaDecimal : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST_F(ArchivoProyecto, PuntoDecimalBajoUnaConfiguraciónEspañola) {
  const std::locale antes = std::locale::global(std::locale(std::locale::classic(), new ComaDecimal));
  const std::string cAntes = std::setlocale(LC_ALL, nullptr);
  const bool español = std::setlocale(LC_ALL, "es_ES.UTF-8") != nullptr;
  Proyecto p = ProyectoSuelo(true);
  const bool guardado = GuardarProyecto(p, ruta, ui);
  Proyecto q;
  const bool leído = LeerProyecto(q, ruta, ui);
  std::setlocale(LC_ALL, cAntes.c_str());
  std::locale::global(antes);
  ASSERT_TRUE(guardado);
  ASSERT_TRUE(leído);
  const auto líneas = Líneas(pruebas::LeerArchivo(ruta));
  EXPECT_EQ(líneas[8 + 3 + 2], "1.35");
  EXPECT_EQ(líneas[8 + 3 + 10 + 3], "20,10");
  // What was read under that configuration saves, under the usual one, to the same bytes.
  ASSERT_TRUE(GuardarProyecto(q, carpeta + "/otra.cod", ui));
  EXPECT_EQ(pruebas::LeerArchivo(carpeta + "/otra.cod"), pruebas::LeerArchivo(ruta));
  if (!español) GTEST_SKIP() << "la configuración es_ES.UTF-8 no está instalada; se probó solo la de los flujos";
}

// ----- Files written by hand or by older versions

TEST_F(ArchivoProyecto, ArchivoAntiguoConOtrasFormasDeNúmero) {
  ASSERT_TRUE(LeerProyecto(p_, pruebas::RutaDatos("antiguo_suelo.cod"), ui)) << InterfazGuionada::Línea(ui.Transcripción().front());
  EXPECT_TRUE(ui.Transcripción().empty());
  const auto& pi = p_.ParámetrosIniciales;
  EXPECT_EQ(p_.Ventana.TextoProyecto, "Terraplén antiguo, archivo escrito a mano");
  EXPECT_EQ(p_.InformaciónProyecto.IngResponsable, "Ing. Peña");  // Windows-1252 byte 0xF1
  EXPECT_EQ(pi.MétodoDeCálculo, 3);
  EXPECT_DOUBLE_EQ(pi.Multiplicador1, 0.5);
  EXPECT_DOUBLE_EQ(pi.Multiplicador2, -0.25);
  EXPECT_DOUBLE_EQ(pi.FSInicial, 1.5);
  EXPECT_DOUBLE_EQ(pi.EsfuerzoInicialCresta, 1e-5);
  EXPECT_DOUBLE_EQ(pi.Radio, 2.5e20);
  EXPECT_DOUBLE_EQ(pi.CoeficienteSísmicoHorizontal, 0.1);
  EXPECT_DOUBLE_EQ(pi.NúmeroDovelas, 10);
  ASSERT_EQ(p_.NúmeroPuntosTalud, 3);
  EXPECT_DOUBLE_EQ(p_.CoordenadasTalud.X[2], 20);
  EXPECT_DOUBLE_EQ(p_.CoordenadasTalud.Y[3], 5.5);
  ASSERT_EQ(p_.NúmeroTramosFalla, 1);
  EXPECT_EQ(p_.TramoFalla.TipoUnión[1], "L");
  EXPECT_EQ(p_.NúmeroEstratos, 1);
  EXPECT_DOUBLE_EQ(p_.Estrato.Cohesión[1], 2);
  EXPECT_DOUBLE_EQ(p_.Estrato.Fricción[1], 30);
  EXPECT_EQ(p_.Estrato.TipoEstrato[1], 1);
  EXPECT_DOUBLE_EQ(p_.XEstrato(1, 2), 0);
  EXPECT_DOUBLE_EQ(p_.YEstrato(1, 2), -.5);
  EXPECT_EQ(p_.NúmeroCargasPuntuales, 1);
  EXPECT_TRUE(p_.CargasPuntualesDadas);
  EXPECT_FALSE(p_.CargasUniformesDadas);
  EXPECT_DOUBLE_EQ(p_.CargaPuntual.Py[1], 3);
  EXPECT_DOUBLE_EQ(p_.GrietaTracción.EmpujeGrieta, .125);
  EXPECT_DOUBLE_EQ(p_.SumaNormalesEfectivos, -1.5e-3);
  EXPECT_DOUBLE_EQ(p_.Anclajes.SeparaciónAnclajesPasivo, 2);
}

// ----- Read-time derivations

TEST_F(ArchivoProyecto, LoQueLaLecturaDeduce) {
  Proyecto p = ProyectoSuelo(false);
  p.ParámetrosIniciales.ReferenciaMomentoX = 30;
  p.ParámetrosIniciales.ReferenciaMomentoY = 32.5;
  p.Sísmico.CálculoSísmicoHecho = true;
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  Proyecto q;
  q.Ventana.TipoPanel = 3;
  ASSERT_TRUE(LeerProyecto(q, ruta, ui));
  // One arc: the stored reference is kept and is also the centre.
  EXPECT_EQ(q.ParámetrosIniciales.CentroX, 30);
  EXPECT_EQ(q.ParámetrosIniciales.CentroY, 32.5);
  EXPECT_EQ(q.ParámetrosIniciales.ReferenciaMomentoX, 30);
  EXPECT_TRUE(q.Sísmico.SismoCalculado);
  EXPECT_TRUE(q.ParámetrosInicialesDados);
  EXPECT_TRUE(q.GeometríaFallaDefinida);
  EXPECT_TRUE(q.EstratosCaracterizados);
  EXPECT_TRUE(q.CargasUniformesDadas);
  EXPECT_TRUE(q.CargasPuntualesDadas);
  EXPECT_TRUE(q.InformaciónDada);
  EXPECT_TRUE(q.Ventana.EntradaCoordenadasAbierta);
  EXPECT_EQ(q.Ventana.ListaEstrato, (std::vector<std::string>{"Seleccione el estrato", "1", "2"}));
  EXPECT_EQ(q.Ventana.TipoPanel, 1);
  ASSERT_EQ(q.Ventana.ListaCoordenadas.size(), 4u);
  EXPECT_EQ(q.Ventana.ListaCoordenadas[2].X, 20);
  EXPECT_EQ(q.Ventana.EtiquetaCoordenadas, "Coordenadas Talud-Presa-Túnel");

  // Not one arc: the centre keeps the values, the references are cleared.
  p.TramoFalla.TipoUnión[1] = "L";
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  ASSERT_TRUE(LeerProyecto(q, ruta, ui));
  EXPECT_EQ(q.ParámetrosIniciales.CentroX, 30);
  EXPECT_EQ(q.ParámetrosIniciales.ReferenciaMomentoX, 0);
  EXPECT_EQ(q.ParámetrosIniciales.ReferenciaMomentoY, 0);
}

// ----- Tidy-ups of the writer that stay in memory

TEST_F(ArchivoProyecto, ElEscritorOrdenaElEstadoAntesDelCuerpo) {
  Proyecto p = ProyectoSuelo(true);
  auto& pi = p.ParámetrosIniciales;
  pi.CentroX = 11; pi.CentroY = 12; pi.ReferenciaMomentoX = 21; pi.ReferenciaMomentoY = 22;
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{45, 20}, {30, 11}, {15, 10}});
  p.NúmeroTramosFalla = 2;
  p.TramoFalla.Redimensionar(2);
  p.TramoFalla.PuntoInicial[1] = 1; p.TramoFalla.PuntoFinal[1] = 2; p.TramoFalla.TipoUnión[1] = "L";
  p.TramoFalla.PuntoInicial[2] = 2; p.TramoFalla.PuntoFinal[2] = 3; p.TramoFalla.TipoUnión[2] = "C";
  p.Estrato.m_macizo[1] = 3;
  p.TablaDovelas.m_Base.Redimensionar(3);
  p.TablaDovelas.EsfuerzoPrincipalMayor.Redimensionar(3);
  p.TablaDovelas.AlturaEmpuje.Redimensionar(4);
  p.Roca.PuntosEnsayo.Redimensionar(2);
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  // Several stretches, the first straight, no instantaneous parameters: no arc of its own; and
  // Bishop with no radius takes its centre from the reference point.
  EXPECT_EQ(pi.Radio, 0);
  EXPECT_EQ(pi.CentroX, 21);
  EXPECT_EQ(pi.CentroY, 22);
  // Calculated soil: the rock columns and the slice columns of rock go.
  EXPECT_EQ(p.Estrato.m_macizo.Tamaño(), 0);
  EXPECT_EQ(p.TablaDovelas.m_Base.Tamaño(), 0);
  EXPECT_EQ(p.TablaDovelas.EsfuerzoPrincipalMayor.Tamaño(), 0);
  EXPECT_EQ(p.Roca.PuntosEnsayo.Tamaño(), 0);
  EXPECT_EQ(p.TablaDovelas.AlturaEmpuje.Tamaño(), 0);  // not Janbu
  EXPECT_EQ(p.Estrato.ParámetroPresión[1], 0.3);

  // Calculated rock without instantaneous parameters: soil columns and the base strength go.
  Proyecto r = ProyectoRoca(true, false);
  r.Estrato.ParámetroPresión.Redimensionar(2);
  ASSERT_TRUE(GuardarProyecto(r, ruta, ui));
  EXPECT_EQ(r.Estrato.ParámetroPresión.Tamaño(), 0);
  EXPECT_EQ(r.TablaDovelas.FricciónBase.Tamaño(), 0);
  EXPECT_EQ(r.TablaDovelas.CohesiónBase.Tamaño(), 0);
  EXPECT_EQ(r.TablaDovelas.m_Base.Tamaño(), 2);
  EXPECT_EQ(r.Roca.TipoDeObra, "S");
}

TEST_F(ArchivoProyecto, ElPanelSeGuardaPrimero) {
  Proyecto p = ProyectoSuelo(false);
  CargarPanelCoordenadas(p, 3, 1);
  p.Ventana.ListaCoordenadas.push_back({-10, 9});  // a point added to the phreatic line
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  EXPECT_EQ(p.NúmeroPuntosFreático, 4);
  Proyecto q;
  ASSERT_TRUE(LeerProyecto(q, ruta, ui));
  ASSERT_EQ(q.NúmeroPuntosFreático, 4);
  EXPECT_EQ(q.CoordenadasFreático.X[4], -10);
}

// ----- Refusals and failures

TEST_F(ArchivoProyecto, SinMaterialNoSeEscribeNada) {
  Proyecto p = ProyectoSuelo(false);
  p.TipoDeMaterial.clear();
  EXPECT_FALSE(GuardarProyecto(p, ruta, ui));
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Seleccione la opción parámetros iniciales e indique si es suelo <S> ó <R>"});
  EXPECT_FALSE(fs::exists(ruta));
}

TEST_F(ArchivoProyecto, EscrituraFallidaLoDiceYNoTocaElArchivoAnterior) {
  Proyecto p = ProyectoSuelo(false);
  EXPECT_FALSE(GuardarProyecto(p, carpeta + "/no/existe.cod", ui));
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].título, "Guardar proyecto");
  EXPECT_NE(ui.Transcripción()[0].texto.find("No se pudo guardar el proyecto"), std::string::npos);
  // A folder in the place of the file: the old content (none) stays and nothing is left over.
  fs::create_directories(ruta);
  EXPECT_FALSE(GuardarProyecto(p, ruta, ui));
  EXPECT_TRUE(fs::is_directory(ruta));
  EXPECT_FALSE(fs::exists(ruta + ".tmp~"));
}

TEST_F(ArchivoProyecto, ArchivoTruncadoNoCambiaNada) {
  Proyecto p = ProyectoSuelo(true);
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  const std::string bytes = pruebas::LeerArchivo(ruta);
  // Cut inside the first stratum, after two of its three points: head, parameters, surface,
  // failure surface, its stretch and letter, phreatic line, strata line, count and 8 fields.
  const auto líneas = Líneas(bytes);
  std::string corto;
  for (std::size_t i = 0; i < 8 + 3 + 10 + 5 + 3 + 2 + 1 + 4 + 1 + 1 + 8 + 2; ++i) corto += líneas[i] + "\r\n";
  EscribirBytes(ruta, corto);
  // The project that was open stays as it was: nothing of the half read reaches it.
  Proyecto q = ProyectoSuelo(false);
  q.InformaciónProyecto.Empresa = "Otra";
  EXPECT_FALSE(LeerProyecto(q, ruta, ui));
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Error leyendo archivo"});
  EXPECT_EQ(q.InformaciónProyecto.Empresa, "Otra");
  EXPECT_EQ(q.NúmeroPuntosTalud, p.NúmeroPuntosTalud);
  EXPECT_EQ(q.NúmeroEstratos, p.NúmeroEstratos);
}

TEST_F(ArchivoProyecto, ArchivosQueNoSePuedenLeer) {
  struct Caso { const char* nombre; std::string contenido; };
  // A whole file but for one count, -1, with no rows after it: that count alone spoils the file.
  Proyecto p = ProyectoSuelo(false);
  p.ParámetrosIniciales.MétodoDeCálculo = 1;
  ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
  auto líneas = Líneas(pruebas::LeerArchivo(ruta));
  const std::size_t freático = 8 + 3 + 10 + 5 + 3 + 2;  // its count, then its three points
  ASSERT_EQ(líneas[freático], "3");
  líneas[freático] = "-1";
  líneas.erase(líneas.begin() + freático + 1, líneas.begin() + freático + 4);
  std::string cuentaMenosUno;
  for (const auto& l : líneas) cuentaMenosUno += l + "\r\n";
  const Caso casos[] = {
      {"cuenta -1 en un archivo entero", cuentaMenosUno},
      {"vacío", ""},
      {"número mal formado", "\"d\",\"\",\"\",\"\",\"\",\"\",\"T\",2\r\n\"S\"\r\n\"N\"\r\n3\r\n1,5\r\n"},
      {"cuenta negativa", "\"d\",\"\",\"\",\"\",\"\",\"\",\"T\",2,\"S\",\"N\",3,0,0,1,0,10,0,0,0,0,10,-2\r\n"},
      {"estrato con más puntos que el mayor", "\"d\",\"\",\"\",\"\",\"\",\"\",\"T\",2,\"S\",\"N\",3,0,0,1,0,10,0,0,0,0,10,0,0,0,0,1,1,1,2\r\n"},
      {"texto sin cerrar", "\"d,\"\",\"\"\r\n"},
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.nombre);
    EscribirBytes(ruta, c.contenido);
    Proyecto q;
    ui.Olvidar();
    EXPECT_FALSE(LeerProyecto(q, ruta, ui));
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Error leyendo archivo"});
  }
  ui.Olvidar();
  Proyecto q;
  EXPECT_FALSE(LeerProyecto(q, carpeta + "/no_existe.cod", ui));
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Error leyendo archivo"});
}

}  // namespace
}  // namespace lomaterra
