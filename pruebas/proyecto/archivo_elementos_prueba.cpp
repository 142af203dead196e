// Body "F": a project of elements with every block of the body filled survives a save and an
// open with every table equal, and a second save gives the same bytes.
#include <gtest/gtest.h>

#include "apoyo/apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"

namespace lomaterra {
namespace {

Proyecto ProyectoElementos(const std::string& material, bool sísmico) {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  p.TipoDeMaterial = material;
  p.InformaciónDada = true;
  p.Ventana.TextoProyecto = "Talud de prueba";
  p.NúmeroPuntosTalud = 2;
  p.CoordenadasTalud.Redimensionar(2);
  p.CoordenadasTalud.X[1] = 20, p.CoordenadasTalud.Y[1] = 10.5, p.CoordenadasTalud.X[2] = -1, p.CoordenadasTalud.Y[2] = 10.25;
  p.NúmeroPuntosFreático = 2;
  p.CoordenadasFreático = p.CoordenadasTalud;
  p.CoordenadasFreático.Y[1] = 8;
  p.NúmeroEstratos = 2;
  p.PuntosEstrato.Redimensionar(2);
  p.PuntosEstrato[1] = 2;
  p.PuntosEstrato[2] = 1;
  p.XEstrato.Redimensionar(2, 2);
  p.YEstrato.Redimensionar(2, 2);
  p.XEstrato(1, 1) = 20, p.YEstrato(1, 1) = 5, p.XEstrato(1, 2) = -1, p.YEstrato(1, 2) = 4.5;
  p.XEstrato(2, 1) = 7, p.YEstrato(2, 1) = -3;
  p.NúmeroEstratosCaracterizados = 2;
  p.Estrato.RedimensionarConservando(2);
  for (long s = 1; s <= 2; ++s) {
    p.Estrato.Cohesión[s] = 1.5 * s;
    p.Estrato.Fricción[s] = 28 + s;
    p.Estrato.PesoUnitarioHúmedo[s] = 1.7;
    p.Estrato.PesoUnitarioSaturado[s] = 1.9;
    if (material == "S") {
      p.Estrato.TipoEstrato[s] = static_cast<Entero>(s - 1);
      p.Estrato.ParámetroPresión[s] = 0.1 * s;
      p.Estrato.Viscosidad[s] = 0.01;
      p.Estrato.CoeficienteKo[s] = 0.5;
    } else {
      p.Estrato.m_intacta[s] = 10;
      p.Estrato.Poisson[s] = 0.25;
      p.Estrato.CoeficienteKo[s] = 0.25 / 0.75;
      p.Estrato.ModuloMacizo[s] = 50000;
      p.Estrato.Viscosidad[s] = 0.02;
    }
  }
  p.EstratosCaracterizados = true;
  MallaElementos& m = p.Malla;
  m.NodosDefinidos = true;
  m.NúmeroDeNodos = 6;
  m.Nodo.Redimensionar(6);
  for (long f = 1; f <= 6; ++f) {
    m.Nodo.NúmeroDeNodo[f] = static_cast<Entero>(7 - f);
    m.Nodo.XNodo[f] = 0.5 * static_cast<double>(f) + 0.001;
    m.Nodo.YNodo[f] = static_cast<double>(f % 3) + 0.002;
    m.Nodo.ZNodo[f] = 0.125;
  }
  m.NúmeroDeElementos = 2;
  m.NúmeroAnteriorDeElementos = 2;
  m.ElementosDefinidos = true;
  m.Elemento.Redimensionar(2);
  const int nodos[3] = {0, 3, 6};
  for (long e = 1; e <= 2; ++e) {
    m.Elemento.NodosPorElemento[e] = static_cast<Entero>(nodos[e]);
    m.Elemento.PuntosIntegración[e] = e == 1 ? 1 : 3;
    m.Elemento.Lado12[e] = 2;
    m.Elemento.Lado23[e] = e == 1 ? 2 : 1;
    m.Elemento.Lado31[e] = 2;
    m.Elemento.MaterialDeElemento[e] = static_cast<double>(e);
    for (int k = 1; k <= nodos[e]; ++k) {
      m.Elemento.NodoDeElemento(e, k) = m.Elemento.NúmeroElemento(e, k) = static_cast<double>(k);
      m.Elemento.XElemento(e, k) = 0.5 * k;
      m.Elemento.YElemento(e, k) = -0.25 * k;
    }
    m.Elemento.XCentroElemento[e] = 0.375 + static_cast<double>(e);
    m.Elemento.YCentroElemento[e] = -0.625;
  }
  m.CaracterísticasElásticasDadas = true;
  if (material == "S") {
    m.MóduloElasticidad.Redimensionar(2);
    m.CoeficientePoisson.Redimensionar(2);
    m.MóduloElasticidad[1] = 1500, m.MóduloElasticidad[2] = 3000.5;
    m.CoeficientePoisson[1] = 0.3, m.CoeficientePoisson[2] = 0.35;
  }
  m.IntervaloDeTiempo = 0.01;
  m.EspesorAnálisis = 1;
  m.MaterialesAsignados = true;
  m.NodosRestringidosDefinidos = true;
  m.NúmeroNodosConRestricción = 2;
  m.NodoConRestricción.Redimensionar(2);
  for (long i = 1; i <= 2; ++i) {
    m.NodoConRestricción.NodoRestringido[i] = static_cast<double>(i);
    m.NodoConRestricción.RestricciónX[i] = "N";
    m.NodoConRestricción.RestricciónY[i] = i == 1 ? "N" : "S";
    m.NodoConRestricción.RestricciónZ[i] = "N";
    m.NodoConRestricción.ResorteY[i] = i == 1 ? 0 : 25000;
  }
  m.CargasUniformesDefinidas = true;
  m.NúmeroCargasUniformes = 1;
  m.CargaUniforme.Redimensionar(1);
  m.CargaUniforme.ElementoDeCarga[1] = 2, m.CargaUniforme.CargaQx[1] = 0.5, m.CargaUniforme.CargaQy[1] = 12.75;
  m.CargaUniforme.NodoUnoCarga[1] = 2, m.CargaUniforme.NodoDosCarga[1] = 3;
  p.ParámetrosIniciales.CoeficienteSísmicoHorizontal = 0.15;
  p.NúmeroPuntosFalla = 3;
  p.CoordenadasFalla.Redimensionar(3);
  for (long i = 1; i <= 3; ++i) p.CoordenadasFalla.X[i] = 10 - i, p.CoordenadasFalla.Y[i] = 5 + i;
  // A stress result of three steps: only the first and the last are written.
  p.CálculoHecho = true;
  m.NúmeroDeIteración = 3;
  for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor, &m.EsfuerzoPrincipalMenor})
    t->Redimensionar(2, 3);
  m.Desplazamientos.Redimensionar(12, 3);
  for (long e = 1; e <= 2; ++e)
    for (long i : {1L, 3L}) {
      m.EsfuerzoX(e, i) = -10.0 * static_cast<double>(e + i);
      m.EsfuerzoY(e, i) = -20.0 * static_cast<double>(e);
      m.EsfuerzoXY(e, i) = 5.0;
    }
  for (long d = 1; d <= 12; ++d) m.Desplazamientos(d, 1) = 0.01 * static_cast<double>(d), m.Desplazamientos(d, 3) = -0.02;
  m.FSMínimo = 1.25, m.FSPromedio = 1.5, m.DesplazamientosHechos = true;
  m.ProfundidadFreático.Redimensionar(2);
  m.ProfundidadFreático[2] = 3.5;
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.PuntoInicial[1] = 1, p.TramoFalla.PuntoFinal[1] = 3, p.TramoFalla.TipoUnión[1] = "C";
  p.ParámetrosInicialesDados = true;
  p.ParámetrosIniciales.MétodoDeCálculo = 2;
  p.ParámetrosIniciales.FSInicial = 1.3;
  p.NúmeroCargasPuntuales = 1;
  p.CargaPuntual.Redimensionar(1);
  p.CargaPuntual.Xpuntual[1] = 3;
  p.CargaPuntual.Py[1] = 4;
  p.CargasPuntualesDadas = true;
  if (sísmico) {
    DatosSísmicos& s = p.Sísmico;
    p.CálculoHecho = false;
    s.ParámetrosSísmicosDados = s.RegistroDado = s.SismoIntegrado = true;
    s.ParámetroSísmico.Redimensionar(2, 7);
    s.ParámetroSísmico(2, 7) = 150;
    s.NúmeroPuntosRegistro = 2;
    s.Registro.Redimensionar(2, 3);
    s.Registro(2, 1) = 0.02, s.Registro(2, 2) = 0.1, s.Registro(2, 3) = -0.05;
    s.SismoCalculado = s.CálculoSísmicoHecho = true;
    s.HistoriaNodos.assign(2 * 6 * 6, 0.5);
    s.HistoriaElementos4.assign(2 * 2 * 4, -1.5);
    s.HistoriaElementos3.assign(2 * 2 * 3, 2.25);
    s.FactorSísmicoMínimo = 1.1, s.PasoFactorSísmico = 2, s.ElementoFactorSísmico = 1;
    s.MatricesSísmicasDadas = s.FrecuenciasDadas = s.FormasModalesDadas = true;
    s.GradosDeLibertad = 3, s.AnchoBanda1 = 2, s.AnchoBanda2 = 1;
    for (int i = 0; i < 27; ++i) s.MatricesCondensadas.push_back(i * 0.5);
    s.Banda1 = {1, 2};
    s.Banda2 = {3};
    s.Frecuencia = {4.5, 9, 13.5};
    for (int i = 0; i < 9; ++i) s.FormasModales.push_back(0.25 * i - 1);
  }
  return p;
}

TEST(CuerpoElementos, IdaYVueltaConTodasLasTablas) {
  const std::string carpeta = pruebas::CarpetaTemporal();
  for (const auto& [material, sísmico] : {std::pair{"S", false}, std::pair{"S", true}, std::pair{"R", false}}) {
    SCOPED_TRACE(std::string(material) + (sísmico ? " sísmico" : ""));
    Proyecto p = ProyectoElementos(material, sísmico);
    InterfazGuionada ui;
    const std::string uno = carpeta + "/uno.cod", dos = carpeta + "/dos.cod";
    ASSERT_TRUE(GuardarProyecto(p, uno, ui));
    Proyecto q;
    ASSERT_TRUE(LeerProyecto(q, uno, ui));
    EXPECT_TRUE(ui.Textos().empty());
    const MallaElementos &a = p.Malla, &b = q.Malla;
    EXPECT_EQ(b.Nodo, a.Nodo);
    EXPECT_EQ(b.Elemento, a.Elemento);
    EXPECT_EQ(b.NodoConRestricción, a.NodoConRestricción);
    EXPECT_EQ(b.CargaUniforme, a.CargaUniforme);
    EXPECT_EQ(b.MóduloElasticidad, a.MóduloElasticidad);
    EXPECT_EQ(b.CoeficientePoisson, a.CoeficientePoisson);
    for (auto c : {&TablaEstrato::CoeficienteKo, &TablaEstrato::Viscosidad, &TablaEstrato::ModuloMacizo})
      EXPECT_EQ(q.Estrato.*c, p.Estrato.*c);
    if (!sísmico) {
      for (auto t : {&MallaElementos::EsfuerzoX, &MallaElementos::EsfuerzoY, &MallaElementos::EsfuerzoXY, &MallaElementos::Desplazamientos})
        EXPECT_EQ(b.*t, a.*t);
      EXPECT_EQ(b.NúmeroDeIteración, a.NúmeroDeIteración);
    }
    EXPECT_EQ(q.CoordenadasFalla, p.CoordenadasFalla);
    EXPECT_EQ(q.CargaPuntual.Py, p.CargaPuntual.Py);
    EXPECT_EQ(q.TramoFalla.TipoUnión, p.TramoFalla.TipoUnión);
    EXPECT_EQ(q.ParámetrosIniciales.FSInicial, 1.3);
    EXPECT_EQ(q.ParámetrosIniciales.CoeficienteSísmicoHorizontal, 0.15);
    EXPECT_EQ(b.NúmeroNodosConRestricción, 2);
    EXPECT_TRUE(b.NodosDefinidos && b.ElementosDefinidos && b.MaterialesAsignados && b.NodosRestringidosDefinidos &&
                b.CargasUniformesDefinidas && b.CaracterísticasElásticasDadas && b.DesplazamientosHechos);
    const DatosSísmicos &s = p.Sísmico, &t = q.Sísmico;
    EXPECT_EQ(t.Registro, s.Registro);
    for (auto v : {&DatosSísmicos::HistoriaNodos, &DatosSísmicos::HistoriaElementos4, &DatosSísmicos::MatricesCondensadas,
                   &DatosSísmicos::Banda1, &DatosSísmicos::Banda2, &DatosSísmicos::Frecuencia, &DatosSísmicos::FormasModales})
      EXPECT_EQ(t.*v, s.*v);
    EXPECT_EQ(t.ParámetroSísmico, s.ParámetroSísmico);
    if (!sísmico) {
      // sigma x = -20, sigma y = -20, tau = 5 on element 1, step 1: centre -20, radius 5.
      EXPECT_DOUBLE_EQ(b.EsfuerzoPrincipalMayor(1, 1), -15);
      EXPECT_DOUBLE_EQ(b.EsfuerzoPrincipalMenor(1, 1), -25);
    }
    ASSERT_TRUE(GuardarProyecto(q, dos, ui));
    EXPECT_EQ(pruebas::LeerArchivo(dos), pruebas::LeerArchivo(uno));
  }
}

}  // namespace
}  // namespace lomaterra
