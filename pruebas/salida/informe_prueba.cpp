// The division of a report into pages, and the two reports as data.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pantallas/interfaz_guionada.h"
#include "salida/caso_salida.h"
#include "salida/informe.h"

namespace lomaterra {
namespace {

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
  const auto páginas = Paginar(inf, {20, 80, 8});
  ASSERT_EQ(páginas.size(), 2u);
  EXPECT_EQ(páginas[0].elementos.back().tipo, E::Espacio);
  // The heading goes with its figure to the next page.
  ASSERT_EQ(páginas[1].elementos.size(), 3u);
  EXPECT_EQ(páginas[1].elementos[0].texto, "Sección");
  EXPECT_EQ(páginas[1].elementos[1].tipo, E::Figura);
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
}

TEST(Paginar, UnSaltoDePáginaEmpiezaOtraSoloSiLaActualTieneAlgo) {
  Informe inf;
  inf.SaltoDePágina();
  inf.Párrafo("uno");
  inf.SaltoDePágina();
  inf.SaltoDePágina();
  inf.Párrafo("dos");
  EXPECT_EQ(Paginar(inf, {20, 80, 8}).size(), 2u);
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
  EXPECT_EQ(títulos(datos), (std::vector<std::string>{
                                "Proyecto", "Coordenadas del talud, presa o túnel",
                                "Coordenadas de la superficie de falla",
                                "Uniones entre los puntos de la superficie de falla",
                                "Coordenadas del nivel freático", "Límite inferior del estrato 1",
                                "Estratos", "Cargas uniformemente distribuidas", "Cargas puntuales",
                                "Parámetros de cálculo", "figura: GráficoGeometría"}));
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

TEST(Informes, LaInterfazGuionadaApuntaFigurasCopiasEImpresiones) {
  InterfazGuionada ui;
  Figura f;
  f.nombre = "GráficoGeometría";
  f.título = "Geometría del talud";
  ui.MostrarFigura(f);
  ui.CopiarAlPortapapeles("a\tb\n");
  Informe inf;
  inf.título = "Información dada al programa";
  ui.Imprimir(inf);
  std::vector<std::string> líneas;
  for (const auto& a : ui.Transcripción()) líneas.push_back(InterfazGuionada::Línea(a));
  EXPECT_EQ(líneas, (std::vector<std::string>{"[figura] Geometría del talud | GráficoGeometría",
                                              "[portapapeles] 4 caracteres",
                                              "[imprimir] Información dada al programa"}));
  EXPECT_EQ(ui.Transcripción()[1].texto, "a\tb\n");
}

}  // namespace
}  // namespace lomaterra
