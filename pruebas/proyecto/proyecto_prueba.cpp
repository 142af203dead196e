// The ground of the program: tables, the reset and its survivals, the coordinate panel, the
// number forms of the screens, the sequential items of the file, the scripted port and the
// command registry.
#include <gtest/gtest.h>

#include <set>

#include "apoyo/apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/proyecto.h"
#include "proyecto/secuencial.h"

namespace lomaterra {
namespace {

TEST(Tabla, FilaCeroExisteYElRestoSeCompruebaYElPanel) {
  Tabla<double> t;
  EXPECT_TRUE(t.Tamaño() == 0 && t[0] == 0.0);
  t.Redimensionar(3);
  t[3] = 7.5;
  t.RedimensionarConservando(5);
  EXPECT_TRUE(t[3] == 7.5 && t[5] == 0.0);
  EXPECT_THROW(t[6], FalloAritmético);
  EXPECT_THROW(t[-1], FalloAritmético);
  EXPECT_EQ(t.Leer(99), 0.0);
  t.Redimensionar(5);
  EXPECT_EQ(t[3], 0.0);  // erase
  Tabla2<double> d;
  d.Redimensionar(2, 3);
  d(2, 3) = 4.0, d(1, 1) = 1.0;
  d.RedimensionarConservando(3, 5);
  EXPECT_TRUE(d(2, 3) == 4.0 && d(1, 1) == 1.0 && d(3, 5) == 0.0);
  EXPECT_THROW(d(4, 1), FalloAritmético);
  Proyecto p;
  p.Ventana.ListaCoordenadas = {{10, 5}, {10, 3}, {10, 2}, {4, 0}};
  GuardarPanelCoordenadas(p, 1, 1);
  // A third equal abscissa goes 0.01 below the second: never two equal neighbours.
  ASSERT_EQ(p.NúmeroPuntosTalud, 4);
  const double x[] = {10, 9.99, 9.98, 4};
  for (long i = 1; i <= 4; ++i) EXPECT_DOUBLE_EQ(p.CoordenadasTalud.X[i], x[i - 1]) << i;
  // The panel keeps the values as entered.
  EXPECT_EQ(p.Ventana.ListaCoordenadas[1].X, 10.0);
  CargarPanelCoordenadas(p, 1, 1);
  EXPECT_DOUBLE_EQ(p.Ventana.ListaCoordenadas[1].X, 9.99);

  p.NúmeroEstratos = 2;
  p.Ventana.ListaCoordenadas = {{30, 8}, {0, 6}};
  GuardarPanelCoordenadas(p, 4, 2);
  p.Ventana.ListaCoordenadas = {{30, 9}, {20, 9}, {0, 7}};
  GuardarPanelCoordenadas(p, 4, 1);
  EXPECT_TRUE(p.PuntosEstrato[1] == 3 && p.PuntosEstrato[2] == 2);
  EXPECT_DOUBLE_EQ(p.YEstrato(2, 2), 6.0);
  CargarPanelCoordenadas(p, 4, 2);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas del estrato");
  ASSERT_EQ(p.Ventana.ListaCoordenadas.size(), 2u);
  EXPECT_DOUBLE_EQ(p.Ventana.ListaCoordenadas[0].Y, 8.0);
}

TEST(Reinicio, BorraLoQueDiceYConservaLoDemás) {
  // The soil slope of pruebas/datos/proyecto, calculated, with more flags up than a file sets.
  Proyecto p;
  InterfazGuionada ui;
  ASSERT_TRUE(LeerProyecto(p, pruebas::RutaDatos("proyecto/suelo.cod"), ui));
  auto& pi = p.ParámetrosIniciales;
  pi.CentroX = 5;
  pi.UsaParámetrosInstantáneos = true, pi.LetraUsaParámetrosInstantáneos = "S";
  p.EtapaPoros = p.EtapaDovelas = p.PresionesExistentes = p.DesembalseRápido = true;
  p.Malla.NodosDefinidos = p.Sísmico.RegistroDado = true;
  p.DatosGuardados = p.CaracterísticasSueloCompletas = false;
  p.Ventana.Título = "x.cod - Lomaterra", p.Ventana.TipoPanel = 3;
  ASSERT_TRUE(pi.VaríaRadio && pi.LetraVaríaRadio == "S" && p.CálculoHecho && p.InformaciónDada);
  ASSERT_TRUE(p.EstratosCaracterizados && p.CargasUniformesDadas && p.NúmeroBordes == 4);
  ASSERT_TRUE(p.GrietaTracción.EmpujeGrieta > 0 && !p.Ventana.TextoProyecto.empty());
  ReiniciarProyecto(p);
  // Kept: both letters, the constants of the calculation and the loads with their counts.
  EXPECT_EQ(p.TipoDeAnálisis + p.TipoDeMaterial, "TS");
  const std::vector<std::pair<double, double>> guardados = {
      {pi.MétodoDeCálculo, 2}, {pi.Multiplicador1, 0.25}, {pi.FSInicial, 1.35}, {pi.Radio, 26.5},
      {pi.NúmeroDovelas, 12}, {pi.CoeficienteSísmicoHorizontal, 0.15}, {pi.CentroX, 5},
      {p.NúmeroCargasUniformes, 1}, {p.CargaUniforme.qy[1], 2}};
  for (const auto& [valor, antes] : guardados) EXPECT_EQ(valor, antes);
  // Cleared. The letter is the same datum as the flag: the constants screen must not show "S"
  // after New.
  EXPECT_FALSE(p.CargasUniformesDadas || pi.VaríaRadio || pi.UsaParámetrosInstantáneos);
  EXPECT_EQ(pi.LetraVaríaRadio + pi.LetraUsaParámetrosInstantáneos, "NN");
  EXPECT_FALSE(p.CálculoHecho || p.InformaciónDada || p.EstratosCaracterizados);
  EXPECT_FALSE(p.EtapaPoros || p.EtapaDovelas || p.PresionesExistentes || p.DesembalseRápido);
  EXPECT_FALSE(p.Malla.NodosDefinidos || p.Sísmico.RegistroDado);
  EXPECT_TRUE(p.NúmeroPuntosTalud == 0 && p.NúmeroBordes == 0);
  EXPECT_EQ(p.GrietaTracción.EmpujeGrieta, 0);
  EXPECT_TRUE(p.DatosGuardados && p.ListaGuardada && p.CaracterísticasSueloCompletas);
  EXPECT_EQ(p.Ventana.Título, "[Nuevo proyecto] - Lomaterra");
  EXPECT_EQ(p.Ventana.TextoProyecto, "");
  EXPECT_EQ(p.Ventana.TipoPanel, 1);
  EXPECT_EQ(p.Ventana.EtiquetaCoordenadas, "Coordenadas Talud-Presa-Túnel");
  EXPECT_TRUE(p.Ventana.ListaCoordenadas.empty());
  EXPECT_EQ(p.Ventana.ListaEstrato, std::vector<std::string>{"Seleccione el estrato"});
}

TEST(Formato, PatronesDeLasPantallasYFormasDeNúmero) {
  // 2.675 is the decimal value the user reads; halves go away from zero; no negative zero.
  const struct { double x; const char *patrón, *texto; } casos[] = {
      {3.14159, "#0.00", "3.14"}, {2.675, "#0.00", "2.68"}, {-0.125, "#0.00", "-0.13"},
      {0.0, "#0.00", "0.00"}, {-0.001, "#0.00", "0.00"}, {1.5, "#0.000000000", "1.500000000"},
      {12.345, "#0.00 ton", "12.35 ton"}, {-7.0, "#0.00 ton.m", "-7.00 ton.m"}, {41.5, "#", "42"},
      {0.25, "#", ""}, {0.5, "#.00", ".50"}, {99.995, "#0.00", "100.00"},
      {1234567.891, "#0.0000", "1234567.8910"}, {1e-12, "#0.0000000", "0.0000000"}};
  for (const auto& c : casos) EXPECT_EQ(Formato(c.x, c.patrón), c.texto) << c.x;
  const std::pair<double, double> pares[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {2.4999, 2}};
  for (const auto& [x, r] : pares) EXPECT_EQ(RedondeoPar(x), r) << x;
  EXPECT_EQ(EnteroCorto(32767.4), 32767);
  EXPECT_THROW(EnteroCorto(40000.0), FalloAritmético);
  EXPECT_EQ(Mayúsculas("s") + Mayúsculas("año técnico"), "SAÑO TÉCNICO");
  EXPECT_THROW(Div(1.0, 0.0), FalloAritmético);
  EXPECT_THROW(Raíz(-1e-9), FalloAritmético);
  EXPECT_THROW(Ln(0.0), FalloAritmético);
  EXPECT_THROW(Pot(10.0, 400.0), FalloAritmético);
  EXPECT_DOUBLE_EQ(Raíz(9.0), 3.0);
  for (const char* s : {"1", " 2.5 ", "-.25", ".5", "+3", "1E-05", "2.5E+20", "1e3", "7.", "1D2"})
    EXPECT_TRUE(EsNúmero(s)) << s;
  for (const char* s : {"", " ", "abc", "1,5", "1.2.3", "e5", "1E", "--1", ".", "1 2"})
    EXPECT_FALSE(EsNúmero(s)) << s;
  EXPECT_DOUBLE_EQ(ANúmero("-.25"), -0.25);
  EXPECT_DOUBLE_EQ(ANúmero("2.5E+20"), 2.5e20);
  EXPECT_DOUBLE_EQ(ANúmero("texto"), 0.0);
}

TEST(Secuencial, EscribeLíneasCrLfLeeLoEscritoYCodifica) {
  EscritorSecuencial e;
  e.Texto("Talud \"norte\"").Real(0.1 + 0.2).Entero(-3).Fin();
  e.Real(1e-5).Real(2.5e20).Bandera(false).Letra(true).Fin();
  EXPECT_EQ(e.Contenido(), "\"Talud 'norte'\",0.3,-3\r\n1E-05,2.5E+20,2,\"S\"\r\n");
  LectorSecuencial l(e.Contenido());
  // Each item in its turn (&& keeps the order of the reads).
  EXPECT_TRUE(l.LeerTexto() == "Talud 'norte'" && l.LeerReal() == 0.3 && l.LeerEntero() == -3);
  EXPECT_TRUE(l.LeerReal() == 1e-5 && l.LeerReal() == 2.5e20);
  bool bandera = true, letra = false;
  l.LeerBandera(bandera);
  l.LeerLetra(letra);
  EXPECT_TRUE(!bandera && letra && l.AlFinal());
  EXPECT_THROW(l.LeerReal(), ErrorLectura);
  // Older forms and items split in other ways; an empty item between a line end and a comma.
  LectorSecuencial v(".5, -.25\n\"a,b\"\r\n7\n,8");
  EXPECT_TRUE(v.LeerReal() == 0.5 && v.LeerReal() == -0.25 && v.LeerTexto() == "a,b");
  EXPECT_TRUE(v.LeerEntero() == 7 && v.LeerTexto().empty() && v.LeerEntero() == 8);
  for (const char* malo : {"1.2.3", "\"5\""}) {
    LectorSecuencial m(malo);
    EXPECT_THROW(m.LeerReal(), ErrorLectura) << malo;
  }
  const std::string utf8 = "Presa Peñón – año";
  const std::string cp = CodificarWindows1252(utf8);
  EXPECT_EQ(cp, std::string("Presa Pe\xF1\xF3n \x96 a\xF1o"));
  EXPECT_TRUE(DecodificarTexto(cp) == utf8 && DecodificarTexto(utf8) == utf8);
  EXPECT_EQ(CodificarWindows1252("π"), "?");
}

class PantallaDePrueba : public Pantalla {
 public:
  PantallaDePrueba() {
    nombre = "FormPrueba";
    título = "Prueba";
  }
  void Activar(Interfaz&) override { activaciones++; }
  void CerrarSinCambios(Interfaz&) override { salidas++; cerrada = true; }
  int activaciones = 0, salidas = 0;
};

// Answers in order and then the default; a screen with no script closes by its way out (screens
// with a script are pressed through in the screen tests).
TEST(InterfazGuionada, RespondeEnOrdenCierraLaPantallaSinGuionYMenús) {
  InterfazGuionada ui("SN", true);
  EXPECT_TRUE(ui.Pregunta("a"));
  EXPECT_FALSE(ui.Pregunta("b", "T"));
  EXPECT_TRUE(ui.Pregunta("c"));
  ui.Mensaje("línea 1\nlínea 2", "Título");
  PantallaDePrueba f;
  ui.Abrir(f);
  EXPECT_TRUE(f.activaciones == 1 && f.salidas == 1);
  const auto& t = ui.Transcripción();
  ASSERT_EQ(t.size(), 5u);
  EXPECT_EQ(InterfazGuionada::Línea(t[1]), "[pregunta] T | b -> N");
  EXPECT_EQ(InterfazGuionada::Línea(t[3]), "[mensaje] Título | línea 1\\nlínea 2");
  EXPECT_EQ(InterfazGuionada::Línea(t[4]), "[pantalla] Prueba");
  const auto árbol = ÁrbolDeMenús();
  std::set<std::string> vistos;
  std::vector<std::string> arriba;
  for (const auto& e : árbol) {
    EXPECT_TRUE(vistos.insert(e.nombre).second) << e.nombre;
    EXPECT_FALSE(e.texto.empty()) << e.nombre;
    if (e.padre.empty()) {
      arriba.push_back(e.nombre);
      continue;
    }
    const EntradaMenú* padre = BuscarEntrada(árbol, e.padre);
    ASSERT_NE(padre, nullptr) << e.nombre;
    EXPECT_TRUE(padre->EsSubmenú && vistos.count(e.padre)) << e.nombre;
  }
  const std::vector<std::string> barra = {"MenúArchivo", "MenúCoordenadas", "MenúParámetrosCargas",
      "MenuEquilibrioLimite", "MenúPresentación", "MénuElementosFinitos", "MenúAyuda"};
  EXPECT_EQ(arriba, barra);
  EXPECT_EQ(BuscarEntrada(árbol, "MétodoFellenius")->padre, "CálculoEnSuelos");
  EXPECT_EQ(BuscarEntrada(árbol, "CálculoEnSuelos")->padre, "ArchivoCalcular");
  EXPECT_EQ(BuscarEntrada(árbol, "MenúArchivoGuardarComo")->texto, "G&uardar como...");
}

}  // namespace
}  // namespace lomaterra
