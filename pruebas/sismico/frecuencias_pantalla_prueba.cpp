// The frequencies screen: the initial list, the choice of the mode and the rules that keep the
// last computed mode out of reach.
#include <gtest/gtest.h>

#include "pantallas/frecuencias.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

void Modos(Proyecto& p, long n, int calculados) {
  auto& s = p.Sísmico;
  s.NúmeroGradosLibertad = s.NúmeroFrecuencias = static_cast<Entero>(n);
  s.Frecuencia.Redimensionar(n);
  for (long i = 1; i <= n; ++i) s.Frecuencia[i] = 10.0 + i;
  s.MatrizFormasModales.Redimensionar(n, n);
  s.FormasModalesDadas = s.FrecuenciasDefinitivas = s.GradosDeLibertadEstimados = true;
  s.ModosCalculados = static_cast<Entero>(calculados);
}

TEST(PantallaFrecuencias, ElÚltimoModoCalculadoNoSePuedeElegir) {
  const struct { long n; int calculados; const char* modo; double queda; const char* aviso; } casos[] = {
      {5, 5, "3", 3, nullptr},
      {5, 5, "5", 4, "Ud ha indicado  como  Modo de Cálculo,  el correspondiente al último"},
      {120, 100, "100", 99, "correspondiente al número 100."},
      {120, 100, "110", 99, "un  Modo de Cálculo mayor al número 100."},
      {5, 2, "2", 1, "correspondiente al número 2."},
      {5, 2, "4", 1, "un Modo de Cálculo mayor al número 2."},
  };
  for (const auto& c : casos) {
    Proyecto p;
    Modos(p, c.n, c.calculados);
    InterfazGuionada ui;
    ResultadosDeLasFrecuenciasNaturales f(p);
    f.cerrada = false;
    f.Activar(ui);
    EXPECT_EQ(f.nota, "FRECUENCIAS ESTIMADAS  (rad/seg)  para cada MODO DE VIBRACIÖN");
    f.texto("TextoModoDeVibración") = c.modo;
    f.Pulsar("BotónAceptar", ui);
    EXPECT_TRUE(f.cerrada);
    EXPECT_EQ(p.Sísmico.ModoDeCálculo, c.queda) << c.modo;
    EXPECT_EQ(p.Sísmico.ModoElegido, static_cast<Entero>(c.queda));
    if (c.aviso) {
      ASSERT_EQ(ui.Textos().size(), 1u);
      EXPECT_NE(ui.Textos()[0].find(c.aviso), std::string::npos) << ui.Textos()[0];
    } else {
      EXPECT_TRUE(ui.Textos().empty());
    }
  }
}

TEST(PantallaFrecuencias, ListaInicialYModosDeducidosDeUnArchivo) {
  Proyecto p;
  auto& s = p.Sísmico;
  s.GradosDeLibertadEstimados = true;
  s.NúmeroGradosLibertad = 3;
  s.AlturaPresa = 64;  // H^(5/6) = 32
  s.MétodoGmax = 1;    // sqrt(G g / γ) = Vs
  for (auto* t : {&s.PesoGrado, &s.VelocidadGrado}) t->Redimensionar(3);
  for (long i = 1; i <= 3; ++i) s.PesoGrado[i] = 2, s.VelocidadGrado[i] = 38.4;
  InterfazGuionada ui;
  ResultadosDeLasFrecuenciasNaturales f(p);
  f.Activar(ui);
  ASSERT_TRUE(s.FrecuenciasIniciales);
  // 38.4 j(n) / (1.2 · 32) = j(n): the zeros of J0 by the series.
  EXPECT_EQ(f.lista("ResultadosDeLasFrecuenciasNaturales").filas[1][1], "5.52");
  f.lista("ResultadosDeLasFrecuenciasNaturales").seleccionada = 1;
  f.lista("ResultadosDeLasFrecuenciasNaturales").alSeleccionar(ui);
  EXPECT_EQ(ui.Textos().back(), "Los Vectores de Forma MOdales, no se han estimado. Por favor vaya a la opción: Determinación de los Vectores de Forma MOdales");
  // Read from a file the cap is not known: equal frequencies 2 and 3 say that two were computed.
  Modos(p, 5, 0);
  s.Frecuencia[3] = s.Frecuencia[2];
  InterfazGuionada no("N");
  f.Activar(no);
  f.texto("TextoModoDeVibración") = "2";
  f.Pulsar("BotónAceptar", no);
  EXPECT_EQ(s.ModosCalculados, 2);
  EXPECT_EQ(s.ModoDeCálculo, 1);
}

}  // namespace
}  // namespace lomaterra
