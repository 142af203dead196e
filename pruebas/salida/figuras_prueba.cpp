// Figures as data: the section holds every stored point of every table, the charts hold the slice
// columns, the arc of the circular surface stands on its circle.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "apoyo/apoyo.h"
#include "equilibrio/fellenius.h"
#include "pantallas/resultados.h"
#include "proyecto/comandos.h"
#include "proyecto/archivo.h"
#include "pantallas/interfaz_guionada.h"
#include "salida/caso_salida.h"
#include "salida/resumen.h"
#include "salida/graficos.h"
#include "salida/malla_resultados.h"
#include "salida/seccion.h"

namespace lomaterra {
namespace {

bool Contiene(const Figura& f, double x, double y) {
  auto igual = [&](const PuntoFigura& q) {
    return std::abs(q.x - x) < 1e-9 && std::abs(q.y - y) < 1e-9;
  };
  for (const auto& t : f.trazos)
    for (const auto& q : t.puntos)
      if (igual(q)) return true;
  for (const auto& m : f.marcas)
    if (igual(m.punto)) return true;
  for (const auto& a : f.flechas)
    if (igual(a.hasta)) return true;
  return false;
}

const Trazo* Buscar(const Figura& f, const std::string& nombre) {
  for (const auto& t : f.trazos)
    if (t.nombre == nombre) return &t;
  return nullptr;
}

class Figuras : public ::testing::Test {
 protected:
  Proyecto p = pruebas::CasoTresDovelas();
};

TEST_F(Figuras, LaSecciónContieneCadaPuntoGuardadoYLasCargasComoFlechas) {
  // A crack whose lower point is the first point of the failure surface, with water in it.
  p.GrietaTracción = {25, 12, 25, 10, 25, 11, 0.5};
  const Figura f = FiguraSección(p);
  EXPECT_EQ(f.tipo, Figura::Tipo::Dibujo);
  auto tabla = [&](const TablaXY& t, long n, const char* qué) {
    for (long i = 1; i <= n; ++i) EXPECT_TRUE(Contiene(f, t.X[i], t.Y[i])) << qué << " " << i;
  };
  tabla(p.CoordenadasTalud, p.NúmeroPuntosTalud, "talud");
  tabla(p.CoordenadasFalla, p.NúmeroPuntosFalla, "falla");
  tabla(p.CoordenadasFreático, p.NúmeroPuntosFreático, "freático");
  for (long s = 1; s <= p.NúmeroEstratos; ++s)
    for (long j = 1; j <= p.PuntosEstrato[s]; ++j)
      EXPECT_TRUE(Contiene(f, p.XEstrato(s, j), p.YEstrato(s, j))) << "estrato";
  const auto& d = p.TablaDovelas;
  // Each slice has its two edges drawn from the failure surface up to the surface.
  for (long i = 1; i <= p.NúmeroBordes; ++i) {
    EXPECT_TRUE(Contiene(f, d.BordeX[i], d.BordeYFalla[i])) << "borde en la falla " << i;
    EXPECT_TRUE(Contiene(f, d.BordeX[i], d.BordeYTalud[i])) << "borde en el talud " << i;
    EXPECT_NE(Buscar(f, "borde " + std::to_string(i)), nullptr);
  }
  // Both ends of the uniform load, the point load, the crack and its water level.
  for (const auto& [x, y] : pruebas::Puntos{{21, 10}, {28, 10}, {22, 10}, {25, 12}, {25, 11}})
    EXPECT_TRUE(Contiene(f, x, y)) << x << " " << y;
  ASSERT_NE(Buscar(f, "agua en la grieta"), nullptr);
  // The loads are arrows that push the slope.
  int uniformes = 0, puntuales = 0;
  for (const auto& a : f.flechas) {
    if (a.nombre == "carga uniforme 1") {
      ++uniformes;
      // qy = 2 pushes down: the head is below the tail, on the crest (Y = 10).
      EXPECT_LT(a.hasta.y, a.desde.y);
      EXPECT_DOUBLE_EQ(a.hasta.y, 10);
      EXPECT_GE(a.hasta.x, 21);
      EXPECT_LE(a.hasta.x, 28);
    }
    if (a.nombre == "carga puntual 1") {
      ++puntuales;
      EXPECT_DOUBLE_EQ(a.hasta.x, 22);
      EXPECT_DOUBLE_EQ(a.desde.x, 22);
      EXPECT_GT(a.desde.y, a.hasta.y);
    }
  }
  EXPECT_GE(uniformes, 2);
  EXPECT_EQ(puntuales, 1);
  // Loads whose flag has been cleared (a New keeps the counts) are not drawn.
  p.CargasUniformesDadas = false;
  p.CargasPuntualesDadas = false;
  for (const auto& a : FiguraSección(p).flechas)
    EXPECT_EQ(a.nombre.rfind("carga", 0), std::string::npos) << a.nombre;
}

TEST_F(Figuras, ElArcoCircularPasaPorSusPuntosConElCentroSobreLaCuerda) {
  // P1 = (20, 10), P2 = (0, 0), R = 15: half chord √125, distance from the middle (10, 5) to the
  // centre √(225 − 125) = 10 along the upward normal (−1, 2)/√5: centre (10 − 2√5, 5 + 4√5).
  pruebas::PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {0, 0}});
  p.TramoFalla.PuntoFinal[1] = 2;
  p.TramoFalla.TipoUnión[1] = "C";
  p.ParámetrosIniciales.Radio = 15;
  p.NúmeroBordes = 0;  // no slices yet: the arc is drawn from its centre
  double xc, yc, r;
  ASSERT_TRUE(CentroDeArcoDeFalla(p, xc, yc, r));
  EXPECT_NEAR(xc, 10 - 2 * std::sqrt(5.0), 1e-9);
  EXPECT_NEAR(yc, 5 + 4 * std::sqrt(5.0), 1e-9);
  const Figura f = FiguraSección(p);
  const Trazo* falla = Buscar(f, "falla");
  ASSERT_NE(falla, nullptr);
  ASSERT_GT(falla->puntos.size(), 10u);
  for (const auto& q : falla->puntos) {
    EXPECT_NEAR(std::hypot(q.x - xc, q.y - yc), 15, 1e-9);
    EXPECT_LT(q.y, yc);  // the lower side of the circle
  }
  EXPECT_TRUE(Contiene(f, xc, yc));  // the centre is marked
  bool rótulo = false;
  for (const auto& t : f.rótulos) rótulo |= t.texto == "R = 15.00 m";
  EXPECT_TRUE(rótulo);
  // A stored centre that is not on this circle (the constants screen keeps its own) is not drawn.
  p.ParámetrosIniciales.CentroX = 3, p.ParámetrosIniciales.CentroY = 30;
  ASSERT_TRUE(CentroDeArcoDeFalla(p, xc, yc, r));
  EXPECT_NEAR(xc, 10 - 2 * std::sqrt(5.0), 1e-9);
  // A radius shorter than half the chord (√125 = 11.18) is raised by 0.5 m steps to 11.5; there
  // the centre still stands below point 1, and it rises with the radius until R = 12.5, where
  // sin γ = 3/5: centre (7.5, 10), level with point 1. The status line says so.
  p.ParámetrosIniciales.Radio = 5;
  ASSERT_TRUE(CentroDeArcoDeFalla(p, xc, yc, r));
  EXPECT_DOUBLE_EQ(r, 12.5);
  EXPECT_NEAR(xc, 7.5, 1e-9);
  EXPECT_NEAR(yc, 10, 1e-9);
  EXPECT_NE(AvisoDelArco(p).find("menor que la mitad de la cuerda"), std::string::npos);
}

struct CasoGráfico {
  const char* nombre;
  std::vector<Tabla<double> TablaDeDovelas::*> columnas;
};

TEST_F(Figuras, CadaSerieDeUnGráficoEsUnaColumnaDeLasDovelasEnAbscisaCreciente) {
  using D = TablaDeDovelas;
  // Principal stresses as a rock method would leave them.
  auto& d = p.TablaDovelas;
  d.EsfuerzoPrincipalMayor.Redimensionar(3);
  d.EsfuerzoPrincipalMenor.Redimensionar(3);
  const double s1[] = {0, 14, 30, 21}, s3[] = {0, 2, 5, 3.5};
  for (long i = 1; i <= 3; ++i) {
    d.EsfuerzoPrincipalMayor[i] = s1[i];
    d.EsfuerzoPrincipalMenor[i] = s3[i];
  }
  const std::vector<CasoGráfico> casos{
      {"GráficoEsfuerzoPrincipalMenor", {&D::EsfuerzoPrincipalMenor}},
      {"GráficoEsfuerzoPrincipalMayor", {&D::EsfuerzoPrincipalMayor}},
      {"GráficoEsfuerzoNormalesTotales", {&D::EsfuerzoNormalTotal}},
      {"GráficoEsfuerzoNormalesEfectivos", {&D::EsfuerzoNormalEfectivo}},
      {"GráficoEsfuerzosTangencialesMovilizados", {&D::EsfuerzoTangencial}},
      {"GráficoEsfuerzosNormalesTotalesEfectivosTangenciales",
       {&D::EsfuerzoNormalTotal, &D::EsfuerzoNormalEfectivo, &D::EsfuerzoTangencial}},
      {"GráficoDeEsfuerzosPrincipales", {&D::EsfuerzoPrincipalMayor, &D::EsfuerzoPrincipalMenor}},
  };
  // Slice middles: X = 22.5, 17.5, 11.5; ascending X takes the slices 3, 2, 1.
  const long orden[] = {3, 2, 1};
  for (const auto& c : casos) {
    const Figura f = FiguraGráfico(p, c.nombre);
    SCOPED_TRACE(c.nombre);
    EXPECT_EQ(f.tipo, Figura::Tipo::Gráfico);
    EXPECT_FALSE(f.título.empty());
    EXPECT_EQ(f.ejeX, "Abscisa X del centro de la base (m)");
    EXPECT_NE(f.ejeY.find("(ton/m2)"), std::string::npos);
    ASSERT_EQ(f.trazos.size(), c.columnas.size());
    for (std::size_t k = 0; k < c.columnas.size(); ++k) {
      const auto& serie = f.trazos[k];
      EXPECT_FALSE(serie.leyenda.empty());
      ASSERT_EQ(serie.puntos.size(), 3u);
      for (std::size_t j = 0; j < 3; ++j) {
        EXPECT_DOUBLE_EQ(serie.puntos[j].x, d.XMedio[orden[j]]);
        EXPECT_DOUBLE_EQ(serie.puntos[j].y, (d.*(c.columnas[k]))[orden[j]]);
      }
    }
  }
}

TEST_F(Figuras, LaResistenciaAlCorteEsCMasSigmaEfectivoPorTanFi) {
  const Figura f = FiguraGráfico(p, "GráficoResistenciaAlCorteVsEsfuerzoNormal");
  EXPECT_EQ(f.ejeX, "Esfuerzo normal efectivo σ' (ton/m2)");
  EXPECT_EQ(f.ejeY, "Esfuerzo cortante τ (ton/m2)");
  const Trazo* r = Buscar(f, "resistencia");
  const Trazo* m = Buscar(f, "movilizado");
  ASSERT_TRUE(r && m && r->puntos.size() == 3 && m->puntos.size() == 3);
  ASSERT_EQ(f.trazos.size(), 3u);  // one envelope for the one material, then the two scatters
  EXPECT_EQ(r->leyenda, "Resistencia al corte c + σ' tan φ");
  EXPECT_EQ(m->leyenda, "Esfuerzo tangencial movilizado τ");
  EXPECT_TRUE(r->sinLínea && m->sinLínea);
  // σ' sorted: 4, 6.5, 9; c = 1.5, tan 30° = 1/√3; the mobilised shear is the strength over F
  // = 1.5.
  const double sn[] = {4, 6.5, 9};
  for (int k = 0; k < 3; ++k) {
    const double tf = 1.5 + sn[k] / std::sqrt(3.0);
    EXPECT_DOUBLE_EQ(r->puntos[k].x, sn[k]);
    EXPECT_NEAR(r->puntos[k].y, tf, 1e-12);
    EXPECT_NEAR(m->puntos[k].y, tf / 1.5, 1e-12);
  }
  // One Mohr-Coulomb line for the one material, from σ' = 0 to the largest σ'.
  const Trazo* e = Buscar(f, "envolvente 1");
  ASSERT_NE(e, nullptr);
  EXPECT_TRUE(e->puntos.size() == 2 && !e->sinLínea);  // a line from σ' = 0 to the largest
  EXPECT_EQ(e->leyenda, "c = 1.50 ton/m2, φ = 30.0°");
  EXPECT_NEAR(e->puntos.back().y, 1.5 + 9 / std::sqrt(3.0), 1e-12);
}

TEST_F(Figuras, LosDiagramasDeEsfuerzosSeDibujanAEscalaPerpendicularesALaBase) {
  const Figura f = FiguraGráfico(p, "GráficoGeometríaAdaptadaEscalaEsfuerzos");
  const Trazo* normal = Buscar(f, "diagrama σ'");
  ASSERT_NE(normal, nullptr);
  // The section is 30 m wide: the largest stress (σ' = 9) is drawn 0.15 × 30 = 4.5 m long, so
  // 1 m stands for 2 ton/m2. Slice 2 (base from (20, 6) to (15, 2), σ' = 9): its block ends 4.5 m
  // from the base along the outward normal (sin α, −cos α), α = atan(4/5).
  const double a = std::atan2(4.0, 5.0);
  const PuntoFigura esperado{20 + 4.5 * std::sin(a), 6 - 4.5 * std::cos(a)};
  bool hallado = false;
  for (const auto& q : normal->puntos)
    hallado |= std::abs(q.x - esperado.x) < 1e-9 && std::abs(q.y - esperado.y) < 1e-9;
  EXPECT_TRUE(hallado);
  ASSERT_EQ(f.notas.size(), 2u);
  EXPECT_EQ(f.notas[0], "Método: Bishop A. W.    Factor de seguridad: 1.500");
  EXPECT_EQ(f.notas[1],
            "Escala de esfuerzos: 1 m del dibujo representa 2.00 ton/m2; máximo 9.00 ton/m2");
  // A name that is not of the menu gives an empty figure.
  EXPECT_TRUE(FiguraGráfico(p, "GráficoInexistente").trazos.empty());
  EXPECT_EQ(NombresDeGráficos().size(), 10u);
}

// A project file keeps the slice middles, widths and stresses, not the edges: the output rebuilds
// them and everything can be shown and printed after Open without calculating again.
TEST(TrasAbrir, LasDovelasSeRehacenDeSusMediosYAnchos) {
  Proyecto guardado = pruebas::CasoTresDovelas();
  const std::string ruta = pruebas::CarpetaTemporal() + "/tres.cod";
  InterfazGuionada ui("S", true);
  // Saving stores the coordinate panel into the table in work first: the panel holds the surface.
  CargarPanelCoordenadas(guardado, 1, 1);
  ASSERT_TRUE(GuardarProyecto(guardado, ruta, ui));
  Proyecto p;
  ASSERT_TRUE(LeerProyecto(p, ruta, ui));
  ASSERT_EQ(p.TablaDovelas.BordeX.Tamaño(), 0);
  ASSERT_TRUE(HayResultados(p));
  const BordesDeDovelas b = Bordes(p);
  EXPECT_FALSE(b.guardados);
  // Edges: middle ± half width: 25, 20, 15, 8. The ends on the end points of the failure surface,
  // (25, 10) and (8, 0); the inner ones on the line between middles: at X = 20 between (22.5, 8)
  // and (17.5, 4) → 6; at X = 15 between (17.5, 4) and (11.5, 1) → 2.75. Surface from its table.
  const std::vector<double> x{0, 25, 20, 15, 8}, yf{0, 10, 6, 2.75, 0}, yt{0, 10, 10, 35.0 / 6, 0};
  for (std::size_t i = 1; i <= 4; ++i) {
    EXPECT_NEAR(b.x[i], x[i], 1e-9) << i;
    EXPECT_NEAR(b.yFalla[i], yf[i], 1e-9) << i;
    EXPECT_NEAR(b.yTalud[i], yt[i], 1e-9) << i;
  }
  const Figura f = FiguraSección(p);
  for (long i = 1; i <= 4; ++i) EXPECT_TRUE(Contiene(f, x[i], yt[i])) << i;
  // The failure surface keeps its own points, not the rebuilt edges.
  const Trazo* falla = Buscar(f, "falla");
  ASSERT_NE(falla, nullptr);
  EXPECT_EQ(falla->puntos.size(), 3u);
  EXPECT_FALSE(FiguraSecciónConEsfuerzos(p).trazos.empty());
}

// Fellenius on a circular surface: the result screen, the charts and the section read what the
// method left.
TEST(TrasFellenius, LaPantallaYLosGráficosLeenLoQueDejóElMétodo) {
  Proyecto p;  // 20 slices under a circle of radius 25
  InterfazGuionada corrida("N");
  ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("talud_homogeneo.cod"), corrida));
  ASSERT_EQ(EjecutarComando(MétodoFellenius, p, corrida), FinDeComando::Normal);
  ASSERT_TRUE(HayResultados(p));
  // Fellenius leaves CálculoHecho as it was; the screen and the charts show its results.
  EXPECT_FALSE(p.CálculoHecho);
  InterfazGuionada ui;
  long filas = 0;
  ui.GuionPantalla("ResultadosEquilibrioLímite", [&](Pantalla& s, Interfaz&) {
    EXPECT_EQ(s.texto("TextoMétodo"), "Fellenius W.");
    filas = static_cast<long>(s.lista("ListaDovelas").filas.size());
    // Fellenius fills the normal force: its column is shown.
    bool normal = false;
    for (const auto& c : s.lista("ListaDovelas").columnas) normal |= c == "Fuerza normal N (ton/m)";
    EXPECT_TRUE(normal);
  });
  ResultadosCálculoSuelos(p, ui);
  EXPECT_EQ(filas, 20);
  const Figura f = FiguraGráfico(p, "GráficoEsfuerzoNormalesEfectivos");
  ASSERT_EQ(f.trazos.size(), 1u);
  EXPECT_EQ(f.trazos[0].puntos.size(), 20u);
  // The section follows the slice edges, all of them on the arc.
  const Figura s = FiguraSección(p);
  for (const auto& t : s.trazos)
    if (t.nombre == "falla") {
      ASSERT_EQ(t.puntos.size(), 21u);
      for (const auto& q : t.puntos)
        EXPECT_NEAR(
            std::hypot(q.x - p.ParámetrosIniciales.CentroX, q.y - p.ParámetrosIniciales.CentroY),
            25, 1e-6);
    }
}


TEST(FigurasDeMalla, EscalaDeColores) {
  const std::pair<double, int> casos[] = {{-10, 0}, {-20, 0}, {10, 9},  {30, 9},
                                          {-3, 3},  {-2.1, 3}, {0, 5}, {9.99, 9}};
  for (const auto& [v, tramo] : casos) EXPECT_EQ(TramoDeEscala(v, -10, 10), tramo) << v;
  EXPECT_EQ(TramoDeEscala(4, 4, 4), kTramosEscala / 2);
  const Color frío = ColorDeTramo(0), caliente = ColorDeTramo(kTramosEscala - 1);
  EXPECT_GT(frío.b, frío.r);
  EXPECT_GT(caliente.r, caliente.b);
}

// The unit square cut by its diagonal: nodes 1 (0,0), 2 (1,0), 3 (1,1), 4 (0,1); node 3 moved by
// 2 cm to the right and 1 cm down.
Proyecto DosTriángulos() {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  MallaElementos& m = p.Malla;
  const double x[5] = {0, 0, 1, 1, 0}, y[5] = {0, 0, 0, 1, 1};
  m.NúmeroDeNodos = 4;
  m.Nodo.Redimensionar(4);  // stored from node 4 down to node 1
  for (long n = 1; n <= 4; ++n) m.Nodo.NúmeroDeNodo[5 - n] = static_cast<Entero>(n);
  pruebas::Fijar(m.Nodo.XNodo, {0, 1, 1, 0});
  pruebas::Fijar(m.Nodo.YNodo, {1, 1, 0, 0});
  m.NúmeroDeElementos = 2;
  m.Elemento.Redimensionar(2);
  const long nodos[3][4] = {{0}, {0, 1, 2, 3}, {0, 1, 3, 4}};
  for (long e = 1; e <= 2; ++e) {
    m.Elemento.NodosPorElemento[e] = 3;
    for (int k = 1; k <= 3; ++k) {
      m.Elemento.NúmeroElemento(e, k) = static_cast<double>(nodos[e][k]);
      m.Elemento.XElemento(e, k) = x[nodos[e][k]];
      m.Elemento.YElemento(e, k) = y[nodos[e][k]];
    }
  }
  m.NúmeroDeIteración = 1;
  m.Desplazamientos.Redimensionar(8, 1);
  m.Desplazamientos(5, 1) = 2;
  m.Desplazamientos(6, 1) = -1;
  p.CálculoHecho = true;
  return p;
}

// The largest displacement (2 cm) is drawn as a twentieth of the mesh (1 m): 0.05 m, so the
// magnification is 0.05 / 0.02 = 2.5 and node 3 stands at (1 + 2.5·0.02, 1 - 2.5·0.01).
TEST(FigurasDeMalla, MallaDeformadaAumentada) {
  const Proyecto p = DosTriángulos();
  EXPECT_DOUBLE_EQ(AumentoAutomático(p, 1), 2.5);
  const auto nodos = NodosDeformados(p, 1, 10);
  EXPECT_DOUBLE_EQ(nodos[3].x, 1.2);
  EXPECT_DOUBLE_EQ(nodos[3].y, 0.9);
  EXPECT_DOUBLE_EQ(nodos[1].x, 0.0);
  const Figura f = FiguraDeMalla(p, "MallaDeformada");
  int conNodo3 = 0;
  for (const Trazo& t : f.trazos)
    for (const PuntoFigura& q : t.puntos)
      conNodo3 += std::abs(q.x - 1.05) < 1e-12 && std::abs(q.y - 0.975) < 1e-12;
  EXPECT_EQ(conNodo3, 2);  // both deformed triangles share the moved corner
}

}  // namespace
}  // namespace lomaterra
