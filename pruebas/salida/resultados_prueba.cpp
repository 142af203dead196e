// The presentation commands: their gates word for word, the result screen and its clipboard text,
// the anchor screens against a hand calculation, the print commands through the port, and the
// reports as data divided into pages.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "apoyo/guion.h"
#include "pantallas/anclajes.h"
#include "pantallas/resultados.h"
#include "proyecto/comandos.h"
#include "pantallas/interfaz_guionada.h"
#include "salida/caso_salida.h"
#include "salida/diseno_anclajes.h"
#include "salida/graficos.h"
#include "salida/informe.h"

namespace lomaterra {
namespace {

// Runs a command by its menu name, as the menu does.
void Ejecutar(const std::string& nombre, Proyecto& p, Interfaz& ui) {
  const auto árbol = ÁrbolDeMenús();
  const EntradaMenú* e = BuscarEntrada(árbol, nombre);
  ASSERT_NE(e, nullptr) << nombre;
  ASSERT_TRUE(static_cast<bool>(e->acción)) << nombre << " no está enlazada";
  EjecutarComando(e->acción, p, ui);
}

const std::vector<std::string> kÓrdenesDeResultados{
    "ResultadosCálculoSuelos",
    "GráficoEsfuerzoPrincipalMenor",
    "GráficoEsfuerzoPrincipalMayor",
    "GráficoEsfuerzoNormalesTotales",
    "GráficoEsfuerzoNormalesEfectivos",
    "GráficoEsfuerzosTangencialesMovilizados",
    "GráficoResistenciaAlCorteVsEsfuerzoNormal",
    "GráficoEsfuerzosNormalesTotalesEfectivosTangenciales",
    "GráficoDeEsfuerzosPrincipales",
    "GráficoGeometríaAdaptadaEscalaEsfuerzos",
    "ImprimirResultadosAnálisisMétodosEquilibrioLímites",
};

class Presentación : public ::testing::Test {
 protected:
  Proyecto p = pruebas::CasoTresDovelas();
  InterfazGuionada ui;
};

// Each gate of the presentation commands, word for word: after the change to the three-slice
// case, every command listed answers with just that line.
TEST_F(Presentación, CadaPuertaDeLasÓrdenesConSusPalabras) {
  auto todas = kÓrdenesDeResultados;
  todas.insert(todas.end(), {"ResultadosCálculoRocas", "GráficoGeometría"});
  const std::vector<std::string> principales = {
      "GráficoEsfuerzoPrincipalMenor", "GráficoEsfuerzoPrincipalMayor", "GráficoDeEsfuerzosPrincipales"};
  struct Caso {
    std::function<void(Proyecto&)> cambio;
    std::vector<std::string> órdenes;
    std::string línea;
  };
  const std::vector<Caso> casos = {
      {[](Proyecto& q) { q.TipoDeAnálisis = ""; }, todas,
       "[mensaje]  | Seleccione en la pantalla principal la opción <T> ó <F>"},
      {[](Proyecto& q) { q.TipoDeAnálisis = "F"; }, todas,
       "[mensaje]  | Ud. está trabajando con elementos finitos"},
      {[](Proyecto& q) { q.TipoDeMaterial = "S"; }, {"ResultadosCálculoRocas"},
       "[mensaje] Esta presentación es para roca: | Ud ha seleccionado la opción 'suelos' en los "
       "parámetros iniciales  "},
      {[](Proyecto& q) { q.TipoDeMaterial = "R"; }, {"ResultadosCálculoSuelos"},
       "[mensaje] Esta presentación es para SUELOS: | Ud ha seleccionado la opción 'ROCA' en los "
       "parámetros iniciales  "},
      {[](Proyecto& q) { q.NúmeroIteraciones = 0; }, kÓrdenesDeResultados,
       "[mensaje] Resultados del cálculo | No hay resultados de un cálculo por equilibrio límite. "
       "Vaya al menú 'Equilibrio límite' y ordene 'Calcular factor de seguridad'."},
      {[](Proyecto&) {}, principales,
       "[mensaje] Esfuerzos principales | Este cálculo, hecho por el método de Bishop A. W. en "
       "suelos, no da los esfuerzos principales. Los calculan los métodos para rocas (Leshchinsky "
       "- Hoek - Brown y Janbu en rocas); para los demás gráficos los resultados de este cálculo "
       "están disponibles."},
      // The geometry needs the slope, not a calculation.
      {[](Proyecto& q) { q.NúmeroIteraciones = 0; }, {"GráficoGeometría"},
       "[figura] Geometría del talud | GráficoGeometría"},
      {[](Proyecto& q) { q.NúmeroPuntosTalud = 0; }, {"GráficoGeometría"},
       "[mensaje] Geometría del talud | No hay coordenadas del talud para dibujar. Vaya al menú "
       "'Coordenadas' y entre las del talud."},
      {[](Proyecto&) {}, {"ImprimirInformaciónDadaAlPrograma"},
       "[imprimir] Información dada al programa"},
      {[](Proyecto&) {}, {"ImprimirResultadosAnálisisMétodosEquilibrioLímites"},
       "[imprimir] Resultados del análisis por equilibrio límite"},
      {[](Proyecto& q) { q.InformaciónDada = false; }, {"ImprimirInformaciónDadaAlPrograma"},
       "[mensaje] Información requerida | Debe dar la información del proyecto. Entre al menú "
       "'Archivo'"},
  };
  for (const Caso& c : casos)
    for (const auto& o : c.órdenes) {
      Proyecto q = pruebas::CasoTresDovelas();
      c.cambio(q);
      InterfazGuionada i;
      Ejecutar(o, q, i);
      EXPECT_EQ(pruebas::Renglones(i), std::vector<std::string>{c.línea}) << o;
    }
}

// Each chart command shows its own figure through the port (its title is the figure's).
TEST_F(Presentación, CadaGráficoSeMuestraPorElPuerto) {
  p.TablaDovelas.EsfuerzoPrincipalMayor.Redimensionar(3);
  p.TablaDovelas.EsfuerzoPrincipalMenor.Redimensionar(3);
  p.TablaDovelas.EsfuerzoPrincipalMayor[2] = 10;
  for (const auto& orden : NombresDeGráficos()) {
    ui.Olvidar();
    Ejecutar(orden, p, ui);
    EXPECT_EQ(pruebas::Renglones(ui), std::vector<std::string>{"[figura] " +
                                                               FiguraGráfico(p, orden).título +
                                                               " | " + orden});
  }
}

TEST_F(Presentación, LaPantallaDeResultadosMuestraMétodoFactorHistoriaDovelasYSumas) {
  std::string copiado;
  ui.GuionPantalla("ResultadosEquilibrioLímite", [&](Pantalla& pantalla, Interfaz& i) {
    EXPECT_EQ(pantalla.título, "Resultados del cálculo para suelos");
    EXPECT_EQ(pantalla.texto("TextoMétodo"), "Bishop A. W.");
    EXPECT_EQ(pantalla.texto("TextoFactorDeSeguridad"), "1.500");
    EXPECT_EQ(pantalla.texto("TextoNúmeroDovelas"), "3");
    const auto& h = pantalla.lista("ListaIteraciones");
    EXPECT_EQ(h.columnas, (std::vector<std::string>{"Iteración", "Factor de seguridad"}));
    ASSERT_EQ(h.filas.size(), 3u);
    EXPECT_EQ(h.filas[2], (std::vector<std::string>{"3", "1.500"}));
    const auto& d = pantalla.lista("ListaDovelas");
    ASSERT_EQ(d.filas.size(), 3u);
    // Every caption carries its unit; the stresses of slice 2 as they were filled.
    auto columna = [&](const std::string& título) {
      for (std::size_t j = 0; j < d.columnas.size(); ++j)
        if (d.columnas[j] == título) return static_cast<long>(j);
      ADD_FAILURE() << "falta la columna " << título;
      return 0L;
    };
    EXPECT_EQ(d.filas[1][columna("Esfuerzo normal total σ (ton/m2)")], "12.00");
    EXPECT_EQ(d.filas[1][columna("Esfuerzo normal efectivo σ' (ton/m2)")], "9.00");
    EXPECT_EQ(d.filas[1][columna("Esfuerzo tangencial movilizado τ (ton/m2)")],
              "4.46");  // (1.5 + 9/√3)/1.5 = 4.464
    EXPECT_EQ(d.filas[1][columna("Presión de poros u (ton/m2)")], "3.00");
    EXPECT_EQ(d.filas[1][columna("Ángulo base (°)")], "38.66");   // atan(4/5)
    EXPECT_EQ(d.filas[2][columna("Longitud base (m)")], "7.28");  // √53
    // A soil calculation without principal stresses shows none.
    for (const auto& c : d.columnas) {
      EXPECT_TRUE(c == "Dovela" || c.find('(') != std::string::npos) << c;
      EXPECT_EQ(c.find("principal"), std::string::npos) << c;
    }
    const auto& s = pantalla.lista("ListaSumas");
    ASSERT_EQ(s.filas.size(), 3u);
    EXPECT_EQ(s.filas[0],
              (std::vector<std::string>{"Suma de esfuerzos tangenciales (ton/m2)", "10.51"}));
    EXPECT_EQ(s.filas[1],
              (std::vector<std::string>{"Suma de esfuerzos normales totales (ton/m2)", "25.00"}));
    pantalla.Pulsar("BotónCopiar", i);
    pantalla.Pulsar("BotónCerrar", i);
  });
  Ejecutar("ResultadosCálculoSuelos", p, ui);
  for (const auto& a : ui.Transcripción())
    if (a.tipo == "portapapeles") copiado = a.texto;
  // Tab-separated: the method, the factor, a blank line, the slice table with its captions.
  const std::string inicio = "Método\tBishop A. W.\nFactor de seguridad\t1.500\n\nDovela\t";
  ASSERT_EQ(copiado.rfind(inicio + "X medio (m)\tAncho (m)\t", 0), 0u) << copiado;
  EXPECT_NE(copiado.find("\n2\t17.50\t5.00\t"), std::string::npos);
  EXPECT_NE(copiado.find("Suma de esfuerzos normales efectivos (ton/m2)\t19.50\n"),
            std::string::npos);
}

TEST_F(Presentación, EnRocaSeMuestranLosParámetrosDelMacizoLosPrincipalesYLosMultiplicadores) {
  p.TipoDeMaterial = "R";
  p.ParámetrosIniciales.MétodoDeCálculo = 1;
  auto& d = p.TablaDovelas;
  for (auto* t : {&d.m_Base, &d.s_Base, &d.a_Base, &d.C_SimpleBase, &d.EsfuerzoPrincipalMayor,
                  &d.EsfuerzoPrincipalMenor})
    t->Redimensionar(3);
  for (long i = 1; i <= 3; ++i) {
    d.EsfuerzoPrincipalMayor[i] = 20 + i;
    d.EsfuerzoPrincipalMenor[i] = i;
  }
  p.SumaPrincipalesMayores = 66;
  p.SumaPrincipalesMenores = 6;
  p.HistoriaIteraciones.Multiplicador1[3] = 0.25;
  p.HistoriaIteraciones.Multiplicador2[3] = -0.5;
  ui.GuionPantalla("ResultadosEquilibrioLímite", [&](Pantalla& s, Interfaz&) {
    EXPECT_EQ(s.título, "Resultados del cálculo para rocas");
    EXPECT_EQ(s.texto("TextoMétodo"), "Dov Leshchinsky - Ching y Hoek - Brown (m, s)");
    const auto& h = s.lista("ListaIteraciones");
    EXPECT_EQ(h.columnas, (std::vector<std::string>{"Iteración", "Multiplicador µ1",
                                                    "Multiplicador µ2", "Factor de seguridad"}));
    EXPECT_EQ(h.filas.back(), (std::vector<std::string>{"3", "0.250000", "-0.500000", "1.500"}));
    const auto& c = s.lista("ListaDovelas").columnas;
    for (const char* t :
         {"m macizo", "s macizo", "a macizo", "σci (kg/cm2)",
          "Esfuerzo principal mayor σ1 (ton/m2)", "Esfuerzo principal menor σ3 (ton/m2)"})
      EXPECT_NE(std::find(c.begin(), c.end(), t), c.end()) << t;
    // Without instantaneous parameters the rock shows no cohesion and friction of its own.
    EXPECT_EQ(std::find(c.begin(), c.end(), "Cohesión c (ton/m2)"), c.end());
    const auto& sumas = s.lista("ListaSumas").filas;
    ASSERT_GE(sumas.size(), 5u);
    EXPECT_EQ(sumas[3], (std::vector<std::string>{"Suma de esfuerzos principales mayores (ton/m2)",
                                                  "66.00"}));
    EXPECT_EQ(sumas[4],
              (std::vector<std::string>{"Suma de esfuerzos principales menores (ton/m2)", "6.00"}));
  });
  Ejecutar("ResultadosCálculoRocas", p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].tipo, "pantalla");
}

// Hand calculation of the anchors for the three slices.
//   bases: l1 = l2 = √41 = 6.4031, l3 = √53 = 7.2801 m
//   τ = (1.5 + σ'/√3)/1.5 = 2.5396, 4.4641, 3.5019 ton/m2
//   D = Σ τ l = 70.339 ton/m; R = 1.5 D = 105.509 ton/m
//   chord from (25, 10) to (8, 0): ψ = atan(10/17) = 30.466°; θ = 20°: ψ + θ = 50.466°
//   F' = 2: F'D − R = 35.170; T activo = 35.170 / (2 cos 50.466° + sin 50.466°/√3) = 20.467 ton/m
//                           T pasivo = 35.170 / (cos 50.466° + sin 50.466°/√3) = 32.510 ton/m
//   one anchor, 4 strands of 15.2 mm at 19000 kg/cm2: area 1.81458 cm2,
//   P = 0.6 × 4 × 1.81458 × 19000 / 1000 = 82.745 ton
//   spacing: 82.745 / 20.467 = 4.043 m (active), 82.745 / 32.510 = 2.545 m (passive)
TEST(Anclajes, ElCálculoCoincideConElCálculoAMano) {
  Proyecto p = pruebas::CasoTresDovelas();
  DatosAnclajes a;
  a.FSConAnclaje = 2;
  a.InclinaciónAnclajes = 20;
  a.DiámetroAnclajes = 15.2;
  a.EsfuerzoRoturaAnclaje = 19000;
  a.NúmeroGuayas = 4;
  const CálculoAnclajes r = CalcularAnclajes(p, a);
  ASSERT_TRUE(r.válido) << r.error;
  EXPECT_NEAR(r.TanFricciónMedia, 0.57735, 1e-5);
  const std::pair<double, double> valores[] = {
      {r.FuerzaMovilizada, 70.339}, {r.ResistenciaDisponible, 105.509},
      {r.InclinaciónFalla, 30.466}, {r.FuerzaActivo, 20.467},     {r.FuerzaPasivo, 32.510},
      {r.CargaPorAnclaje, 82.745},  {r.SeparaciónActivo, 4.043}, {r.SeparaciónPasivo, 2.545}};
  for (std::size_t k = 0; k < std::size(valores); ++k)
    EXPECT_NEAR(valores[k].first, valores[k].second, 1e-3) << k;
}

class PantallaDeAnclajes : public ::testing::Test {
 protected:
  Proyecto p = pruebas::CasoTresDovelas();
  InterfazGuionada ui;
  void Llenar(Pantalla& s, const std::string& fs, const std::string& inclinación = "20") {
    s.texto("TextoFSConAnclaje") = fs;
    s.texto("TextoInclinaciónAnclajes") = inclinación;
    s.texto("TextoDiámetroAnclajes") = "15.2";
    s.texto("TextoEsfuerzoRoturaAnclaje") = "19000";
    s.texto("TextoNúmeroGuayas") = "4";
  }
};

TEST_F(PantallaDeAnclajes, AceptarGuardaLosDatosYLasSeparaciones) {
  ui.GuionPantalla("Form12", [&](Pantalla& s, Interfaz& i) {
    Llenar(s, "2");
    s.Pulsar("BotónCalcular", i);
    EXPECT_EQ(s.texto("TextoSeparaciónAnclajesActivo"), "4.04");
    EXPECT_EQ(s.texto("TextoSeparaciónAnclajesPasivo"), "2.55");
    EXPECT_FALSE(s.lista("ListaCálculoAnclajes").filas.empty());
    EXPECT_EQ(p.Anclajes.FSConAnclaje, 0);  // nothing is stored before Aceptar
    s.Pulsar("BotónAceptar", i);
  });
  p.DatosGuardados = true;
  AbrirAnclajes(p, ui, false);
  EXPECT_EQ(p.Anclajes.FSConAnclaje, 2);
  EXPECT_EQ(p.Anclajes.InclinaciónAnclajes, 20);
  EXPECT_EQ(p.Anclajes.NúmeroGuayas, 4);
  EXPECT_NEAR(p.Anclajes.SeparaciónAnclajesActivo, 4.043, 1e-3);
  EXPECT_NEAR(p.Anclajes.SeparaciónAnclajesPasivo, 2.545, 1e-3);
  EXPECT_FALSE(p.DatosGuardados);
  EXPECT_TRUE(ui.Textos().empty());
}

TEST_F(PantallaDeAnclajes, LasComprobacionesHablanEnOrdenYNoGuardanNada) {
  struct Caso {
    std::string fs, inclinación, mensaje;
  };
  const std::vector<Caso> casos{
      {"dos", "20", "Debe introducir un número en Factor de seguridad buscado"},
      {"2", "", "Debe introducir un número en Inclinación de los anclajes bajo la horizontal (°)"},
      {"0", "20", "El factor de seguridad buscado debe ser mayor que cero."},
      {"2", "95",
       "La inclinación de los anclajes debe estar entre 0 y 90 grados bajo la horizontal."},
      {"1.2", "20",
       "El factor de seguridad del cálculo (1.500) ya alcanza el factor buscado: no se necesitan "
       "anclajes."},
  };
  for (const auto& c : casos) {
    ui.Olvidar();
    ui.GuionPantalla("Form14", [&](Pantalla& s, Interfaz& i) {
      Llenar(s, c.fs, c.inclinación);
      s.Pulsar("BotónAceptar", i);
      EXPECT_FALSE(s.cerrada);  // the screen stays open for a correction
      s.Pulsar("BotónCancelar", i);
    });
    AbrirAnclajes(p, ui, true);
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{c.mensaje});
    EXPECT_EQ(p.Anclajes.FSConAnclaje, 0);
    EXPECT_EQ(p.Anclajes.SeparaciónAnclajesActivo, 0);
  }
}

// ----- The division of a report into pages, and the two reports as data

using E = ElementoPágina::Tipo;

TablaDeTexto TablaDe(long filas) {
  TablaDeTexto t;
  t.título = "Puntos";
  t.columnas = {"Punto", "X (m)"};
  for (long i = 1; i <= filas; ++i) t.filas.push_back({std::to_string(i), "1.00"});
  return t;
}

int Usadas(const PáginaInforme& p) {
  int n = 0;
  for (const auto& e : p.elementos) n += e.líneas;
  return n;
}

TEST(Paginar, UnaTablaLargaSeParteRepitiendoSusTítulosYNingunaPáginaSeDesborda) {
  Informe inf;
  inf.Título("Informe");  // 3 lines
  inf.AñadirTabla(TablaDe(40));
  const MedidasPágina m{20, 80, 8};
  const auto páginas = Paginar(inf, m);
  // Page 1: title 3 + captions 2 + 15 rows = 20. Then 18 rows a page after the captions: 15 + 18
  // + 7.
  ASSERT_EQ(páginas.size(), 3u);
  long filas = 0;
  for (std::size_t k = 0; k < páginas.size(); ++k) {
    EXPECT_LE(Usadas(páginas[k]), 20);
    for (const auto& e : páginas[k].elementos) filas += e.tipo == E::FilaTabla;
  }
  EXPECT_EQ(filas, 40);
  EXPECT_EQ(páginas[1].elementos.front().tipo, E::EncabezadoTabla);
  EXPECT_EQ(páginas[1].elementos.front().texto, "Puntos (continuación)");
  EXPECT_EQ(páginas[1].elementos[1].fila, 15);  // the 16th row, zero-based
  EXPECT_EQ(páginas[2].elementos[1].fila, 33);
}

TEST(Paginar, UnTítuloNoQuedaSoloAlPieYUnaFiguraQueNoCabeEmpiezaPágina) {
  Informe inf;
  inf.Párrafo(std::string(79, 'a') + " b");          // two lines and a space: 3
  for (int k = 0; k < 4; ++k) inf.Párrafo("línea");  // 2 lines each: 11 lines used
  inf.Subtítulo("Sección");                          // 11 + 2 + a figure of 8 = 21 > 20
  inf.AñadirFigura(Figura{});
  const auto uno = Paginar(inf, {20, 80, 8});
  ASSERT_EQ(uno.size(), 2u);
  EXPECT_EQ(uno[0].elementos.back().tipo, E::Espacio);
  // The heading goes with its figure to the next page.
  ASSERT_EQ(uno[1].elementos.size(), 3u);
  EXPECT_EQ(uno[1].elementos[0].texto, "Sección");
  EXPECT_EQ(uno[1].elementos[1].tipo, E::Figura);
  // A figure alone that does not fit starts a page too.
  Informe otro;
  for (int k = 0; k < 7; ++k) otro.Párrafo("línea");  // 14 lines
  otro.AñadirFigura(Figura{});                        // 14 + 8 > 20
  const auto dos = Paginar(otro, {20, 80, 8});
  ASSERT_EQ(dos.size(), 2u);
  EXPECT_EQ(dos[1].elementos.front().tipo, E::Figura);
  // A heading before a table keeps its captions and two rows: 16 + 2 + (1 + 1 + 2) > 20.
  Informe tercero;
  for (int k = 0; k < 8; ++k) tercero.Párrafo("línea");
  tercero.Subtítulo("Tarde");
  tercero.AñadirTabla(TablaDe(5));
  const auto tres = Paginar(tercero, {20, 80, 8});
  ASSERT_EQ(tres.size(), 2u);
  EXPECT_EQ(tres[1].elementos.front().texto, "Tarde");
  // A page break starts another page only when the current one has something.
  Informe saltos;
  saltos.SaltoDePágina();
  saltos.Párrafo("uno");
  saltos.SaltoDePágina();
  saltos.SaltoDePágina();
  saltos.Párrafo("dos");
  EXPECT_EQ(Paginar(saltos, {20, 80, 8}).size(), 2u);
  EXPECT_EQ(Paginar(Informe{}, {20, 80, 8}).size(), 1u);  // an empty report is one empty page
}

TEST(Texto, SePartePorPalabrasYCuentaCaracteresNoBytes) {
  EXPECT_EQ(Caracteres("Fricción φ (°)"), 14);
  EXPECT_EQ(PartirTexto("Esfuerzo normal efectivo σ' (ton/m2)", 10),
            (std::vector<std::string>{"Esfuerzo", "normal", "efectivo", "σ'", "(ton/m2)"}));
  EXPECT_EQ(PartirTexto("uno dos tres", 7), (std::vector<std::string>{"uno dos", "tres"}));
  EXPECT_EQ(PartirTexto("abcdefghij", 4), (std::vector<std::string>{"abcd", "efgh", "ij"}));
  EXPECT_EQ(PartirTexto("a\nb", 10), (std::vector<std::string>{"a", "b"}));
}

TEST(Informes, LosDatosYLosResultadosLlevanSusTablasYFiguras) {
  const Proyecto p = pruebas::CasoTresDovelas();
  auto títulos = [](const Informe& inf) {
    std::vector<std::string> r;
    for (const auto& b : inf.bloques)
      if (b.tipo == BloqueInforme::Tipo::Tabla)
        r.push_back(b.tabla.título);
      else if (b.tipo == BloqueInforme::Tipo::Figura)
        r.push_back("figura: " + b.figura.nombre);
    return r;
  };
  const Informe datos = InformeDeDatos(p);
  EXPECT_EQ(datos.encabezado[2],
            "Ingeniero responsable: Ing. Ana Pérez    Empresa: Geotecnia Andina");
  const auto d = títulos(datos);
  ASSERT_EQ(d.size(), 11u);  // every table of the data, then the section
  EXPECT_EQ(d[5], "Límite inferior del estrato 1");
  EXPECT_EQ(d.back(), "figura: GráficoGeometría");
  const Informe resultados = InformeDeResultados(p);
  EXPECT_EQ(títulos(resultados),
            (std::vector<std::string>{
                "Historia de las iteraciones", "Resultados en las dovelas (1 de 2)",
                "Resultados en las dovelas (2 de 2)", "Sumas de los esfuerzos en las bases",
                "figura: GráficoGeometríaAdaptadaEscalaEsfuerzos",
                "figura: GráficoEsfuerzosNormalesTotalesEfectivosTangenciales",
                "figura: GráficoResistenciaAlCorteVsEsfuerzoNormal"}));
  // Every part of the slice table begins with the slice number and keeps every row.
  for (const auto& b : resultados.bloques)
    if (b.tipo == BloqueInforme::Tipo::Tabla &&
        b.tabla.título.rfind("Resultados en las dovelas", 0) == 0) {
      EXPECT_EQ(b.tabla.columnas.front(), "Dovela");
      EXPECT_EQ(b.tabla.filas.size(), 3u);
    }
}

}  // namespace
}  // namespace lomaterra
