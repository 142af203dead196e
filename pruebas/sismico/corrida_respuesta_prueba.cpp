// The response runs on two linear triangles over a 4 m square with its base held: nodes 2 and 4
// free, degrees in the order 2x, 2y, 4x, 4y. Gates, questions and end of run word for word; the
// crafted cases put a diagonal stiffness k and masses 2 in place of the assembled ones, so that
// the first step of the step-by-step run is the static u = -2 · 9.81 · a / k.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <functional>

#include "apoyo/apoyo.h"
#include "elementos/malla_apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "sismico/respuesta.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {
namespace {

const char* const kAviso =
    "UD DEBE ESPERAR POR FAVOR, MIENTRAS SE REALIZA LAS ESTIMACIONES DE ESFUERZOS Y DESPLAZAMIENTOS. PRESIONE "
    "ACEPTAR PARA CONTINUAR";

Proyecto Listo() {
  Proyecto p;
  pruebas::ProyectoUnEstrato(p, 4, 4, 2000, 0.3, 1.8);
  pruebas::MallaRejilla(p, 1, 1, 4, 4);
  MallaElementos& m = p.Malla;
  auto& r = m.NodoConRestricción;
  r.Redimensionar(m.NúmeroNodosConRestricción = 2);
  for (long i : {1, 2}) r.NodoRestringido[i] = 2 * i - 1, r.RestricciónX[i] = r.RestricciónY[i] = "N";
  m.NodosRestringidosDefinidos = p.EstratosCaracterizados = true;
  p.Estrato.Cohesión[1] = 2, p.Estrato.Fricción[1] = 30;
  DatosSísmicos& s = p.Sísmico;
  s.ParámetrosSísmicosDados = s.RegistroDado = true;
  s.MétodoGmax = 1;
  for (auto* t : {&s.VelocidadOndaCorte, &s.OCR, &s.ResistenciaNoDrenada, &s.ÍndicePlástico}) t->Redimensionar(1);
  s.VelocidadOndaCorte[1] = 100, s.OCR[1] = 1;
  s.Determinante.Redimensionar(1);  // a stored zero: the run makes it 1
  s.NúmeroPuntosRegistro = 3;
  for (auto* t : {&s.TiempoRegistro, &s.AceleraciónHorizontal, &s.AceleraciónVertical}) t->Redimensionar(3);
  s.TiempoRegistro[2] = 0.01, s.TiempoRegistro[3] = 0.02;
  s.AceleraciónHorizontal[1] = 0.2, s.AceleraciónVertical[1] = -0.1, s.AceleraciónHorizontal[2] = 0.1;
  InterfazGuionada ui;
  EXPECT_TRUE(DeterminarGradosDeLibertad(p, ui, MatricesSísmicasEnMemoria(p)));
  s.MatrizFormasModales.Redimensionar(4, 4);
  s.Frecuencia.Redimensionar(4);
  for (long i = 1; i <= 4; ++i) s.MatrizFormasModales(i, i) = 1, s.Frecuencia[i] = 10.0 * i;
  s.FormasModalesDadas = s.FrecuenciasDadas = true;
  s.ModoDeCálculo = s.ModoElegido = 1;
  return p;
}

void Diagonal(Proyecto& p, double k) {
  DatosSísmicos& s = p.Sísmico;
  for (long i = 1; i <= 4; ++i)
    for (long j = 1; j <= 4; ++j)
      s.MatrizRigidezCondensada(i, j) = i == j ? k * (i % 2 ? 1 : 2) : 0, s.MatrizMasaCondensada(i, j) = i == j ? 2 : 0;
  MatricesSísmicasEnMemoria(p).VectorCargasCondensado.assign(5, 0.0);
}

OpcionesRespuesta Reloj() {  // 30 s for the first step
  auto t = std::make_shared<double>(-30);
  return {{}, [t] { return *t += 30; }};
}

TEST(CorridaRespuesta, PuertasEnOrden) {
  const std::vector<std::pair<std::function<void(Proyecto&)>, std::string>> puertas = {
      {[](Proyecto& p) { p.TipoDeAnálisis = "T"; }, "Ud. no está trabajando con elementos finitos"},
      {[](Proyecto& p) { p.EstratosCaracterizados = false; }, "Seleccione la opción Coordenadas y Luego Caracteríticas de los estratos"},
      {[](Proyecto& p) { p.Malla.CaracterísticasElásticasDadas = false; }, "Seleccione la opción características elásticas de los estratos y dé sus valores"},
      {[](Proyecto& p) { p.Sísmico.ParámetrosSísmicosDados = false; }, "Seleccione la opción características sísmicas de los estratos y dé sus valores"},
      {[](Proyecto& p) { p.Malla.NodosDefinidos = false; }, "Seleccione la opción coordenadas de los nodos y dé sus valores"},
      {[](Proyecto& p) { p.Malla.MaterialesAsignados = false; }, "Seleccione la opción caracterización de los elementos y dé sus valores"},
      {[](Proyecto& p) { p.Malla.NodosRestringidosDefinidos = false; }, "Seleccione la opción nodos con restricción y dé sus valores"},
      {[](Proyecto& p) { p.Sísmico.GradosDeLibertadEstimados = false; }, "Vaya a la opción Determinar grados de libertad."},
      {[](Proyecto& p) { p.Sísmico.FormasModalesDadas = false; }, "Ud no ha determinado los vectores de forma modales. Vaya a la Opción DETERMINACION DE LOS VECTORES DE FORMA MODALES"},
      {[](Proyecto& p) { p.Sísmico.ModoDeCálculo = 0.5; }, "En la pantalla de frecuencias naturales ud debe seleccionar el modo de vibración para el cual va a realizar las estimaciones de los desplazamientos y esfuerzos."},
      {[](Proyecto& p) { p.Sísmico.FrecuenciasDadas = false; }, "Vaya a la opción DETERMINACION DE LAS FRECUENCIAS NATURALES"},
      {[](Proyecto& p) { p.Malla.ConfirmarElementos = false; }, "Confirme primero el número de elementos para el cálculo"},
      {[](Proyecto& p) { p.ParámetrosSísmicosCompletos = false; }, "Vaya a la opción características de los estratos para el cálculo sísmico"},
      {[](Proyecto& p) { p.Sísmico.RegistroDado = false; }, "No existe ningún registro sísmico"},
      {[](Proyecto& p) { p.Malla.DesplazamientosHechos = true; }, "Existe  resultados de estimaciones realizadas considerando comportamiento elasto-viscoplástico ó comportamiento plástico.  Por tanto, esa información  se borrará (ningún archivo se borra, solo lo cargado en memoria) ya que se va hacer estimaciones para determinado registro sísimico.  ¿Desea continuar?."},
  };
  Proyecto listo = Listo();
  // Each gate with every later one failing too: the earlier one speaks, alone.
  for (std::size_t k = 0; k < puertas.size(); ++k) {
    Proyecto p = listo;
    for (std::size_t j = k; j < puertas.size(); ++j) puertas[j].first(p);
    InterfazGuionada ui("N");
    MétodoIntegralDuhamel(p, ui);
    EXPECT_EQ(ui.Textos(), std::vector<std::string>{puertas[k].second}) << k;
  }
  // All open: the notice, the estimate of 30 s × 2 steps left, the end; a second run asks first.
  InterfazGuionada ui;
  MétodoIntegralDuhamel(listo, ui, Reloj());
  EXPECT_EQ(ui.Textos(), (std::vector<std::string>{kAviso,
      "El número indicado al final de este mensaje, corresponde al tiempo en minutos que tardará el programa en estimar los valores de desplazamientos y esfuerzos para el registro sísmico en análisis: 1.00",
      "Se finalizó el cálculo de esfuerzos y desplazamientos a partir de la Integral de Duhamel."}));
  EXPECT_EQ(listo.Sísmico.Determinante[1], 1);
  EXPECT_EQ(listo.Sísmico.PasosCalculados, 3);
  EXPECT_EQ(listo.Sísmico.TiempoRegistro[1], 0.0001);
  InterfazGuionada otra("N");
  MétodoIntegralDuhamel(listo, otra);
  EXPECT_EQ(otra.Textos(), std::vector<std::string>{" Ya se realizó el cálculo sísmico. ¿Ud. desea volver a calcular?"});
}

TEST(CorridaRespuesta, CorteYReglaDel75ConSusPreguntas) {
  const char* const k75 = "El 75% de los nodos, tienen desplazamientos mayores a 50 cm. Por tanto, se considera que la masa de suelo o roca, que se está analizando ha perdido totalmente su resistencia al corte.  Para los siguientes registros sísmicos, los esfuerzos y desplazamientos comenzarán a ser muy elevados, indicando el colapsado total. Sin embargo:  ¿Desea que el programa continúe calculando esfuerzos y desplazamientos.?.";
  const char* const kCorte = "Los desplazamientos comienzan a tener valores elevados (mayores a 10^4).  ¿Desea salir del cálculo para ir a la opción de Resultados tabulados o gráficas?.";
  const char* const kFin = "Se finalizó el cálculo de esfuerzos y desplazamientos a partir de la ecuación de movimiemto método paso a paso.";
  // k = 1e-6: u = -3.924e6 m, cut to -10000 (-1e6 cm). k = 1: u = -3.924 and 0.981 m, all four
  // degrees beyond 0.5 m, more than Int(0.75 · 4) = 3.
  const struct { double k, u; const char* respuestas; std::vector<std::string> tras; long pasos; bool corte; } casos[] = {
      {1e-6, -1e6, "S", {kCorte, kFin}, 1, true},
      {1e-6, -1e6, "NN", {kCorte, "El programa le asignará a estos desplazamientos valores de -10000 ó +10000", k75, "Vaya a la opción de Resultados tabulados o gráficas.", kFin}, 1, true},
      {1, -392.4, "N", {k75, "Vaya a la opción de Resultados tabulados o gráficas.", kFin}, 1, false},
  };
  for (const auto& c : casos) {
    Proyecto p = Listo();
    Diagonal(p, c.k);
    InterfazGuionada ui(c.respuestas);
    MétodoPasoAPasoEcMovimientoSinDesacoplar(p, ui);
    std::vector<std::string> t = ui.Textos();
    t.erase(t.begin());  // the notice
    EXPECT_EQ(t, c.tras) << c.respuestas;
    const DatosSísmicos& s = p.Sísmico;
    EXPECT_EQ(s.PasosCalculados, c.pasos);
    EXPECT_EQ(s.CorteAlcanzado, c.corte);
    EXPECT_DOUBLE_EQ(s.DesplazamientoSísmico(1, 3), c.u);
    EXPECT_TRUE(s.ResultadosSísmicos);
  }
}

TEST(CorridaRespuesta, CancelarDejaLosPasosHechosEnCentímetrosYSuMáximo) {
  Proyecto p = Listo();
  Diagonal(p, 100);
  InterfazGuionada ui;
  ui.CancelarProgresoTras(0);
  p.Malla.FSSísmico = p.Sísmico.FactorSísmicoMínimo = 1.3;  // a factor of a former run
  MétodoPasoAPasoEcMovimientoSinDesacoplar(p, ui);
  const DatosSísmicos& s = p.Sísmico;
  EXPECT_EQ(p.Malla.FSSísmico + s.FactorSísmicoMínimo, 0);
  // u(2x) = -2 · 9.81 · 0.2 / 100 m = -3.924 cm; u(2y) = 2 · 9.81 · 0.1 / 200 m = 0.981 cm.
  EXPECT_EQ(s.PasosCalculados, 1);
  EXPECT_TRUE(s.CálculoInterrumpido);
  EXPECT_NEAR(s.DesplazamientoSísmico(1, 3), -3.924, 1e-12);
  EXPECT_NEAR(s.DesplazamientoSísmico(1, 4), 0.981, 1e-12);
  EXPECT_NEAR(s.DesplazamientoMáximo, -3.924, 1e-12);
  EXPECT_EQ(s.NodoMáximo, 2);
  EXPECT_EQ(s.PasoMáximo, 1);
  EXPECT_EQ(s.DesplazamientoSísmico(2, 3), 0);
  EXPECT_EQ(ui.Textos().size(), 2u);  // the notice and the estimate, no end message
}

TEST(CorridaRespuesta, ArchivoDeUnaCorridaIdaYVuelta) {
  Proyecto p = Listo();
  InterfazGuionada ui;
  MétodoIntegralDuhamel(p, ui);
  const std::string carpeta = pruebas::CarpetaTemporal(), uno = carpeta + "/uno.cod", dos = carpeta + "/dos.cod";
  ASSERT_TRUE(GuardarProyecto(p, uno, ui));
  Proyecto q = p;  // holds this run's element matrices until the read resets it
  ASSERT_TRUE(LeerProyecto(q, uno, ui));
  const DatosSísmicos &a = p.Sísmico, &b = q.Sísmico;
  EXPECT_TRUE(b.ResultadosSísmicos);
  EXPECT_EQ(b.PasosCalculados, 3);
  // The file keeps 15 significant digits.
  for (auto t : {&DatosSísmicos::DesplazamientoSísmico, &DatosSísmicos::VelocidadSísmica, &DatosSísmicos::AceleraciónSísmica,
                 &DatosSísmicos::EsfuerzoX, &DatosSísmicos::EsfuerzoXY, &DatosSísmicos::EsfuerzoMenor, &DatosSísmicos::MóduloCortanteActual}) {
    ASSERT_EQ((b.*t).Filas(), (a.*t).Filas());
    ASSERT_EQ((b.*t).Columnas(), (a.*t).Columnas());
    for (long i = 1; i <= (a.*t).Filas(); ++i)
      for (long j = 1; j <= (a.*t).Columnas(); ++j) EXPECT_NEAR((b.*t)(i, j), (a.*t)(i, j), 1e-13 * (1 + std::abs((a.*t)(i, j))));
  }
  EXPECT_NEAR(b.DesplazamientoMáximo, a.DesplazamientoMáximo, 1e-12);
  EXPECT_EQ(b.PasoMáximo, a.PasoMáximo);
  EXPECT_EQ(q.Sísmico.MatricesEnMemoria, nullptr);  // an opened project holds no other's element matrices
  ASSERT_TRUE(GuardarProyecto(q, dos, ui));
  EXPECT_EQ(pruebas::LeerArchivo(dos), pruebas::LeerArchivo(uno));
}

TEST(CorridaRespuesta, DesacopladoSeCorrePorSuNombreEnLote) {
  const std::string salida = pruebas::CarpetaTemporal() + "/lote.txt";
  const std::string orden = std::string("\"") + LOMATERRA_LOTE + "\" \"" + pruebas::RutaEjemplo("talud_homogeneo.cod") +
                            "\" PasoAPasoDesacoplado > \"" + salida + "\"";
  EXPECT_EQ(std::system(orden.c_str()), 0);
  EXPECT_NE(pruebas::LeerArchivo(salida).find("Ud. no está trabajando con elementos finitos"), std::string::npos);
}

}  // namespace
}  // namespace lomaterra
