// The response runs on two linear triangles over a 4 m square with its base held
// (pruebas/datos/sismico/respuesta.cod: one stratum, E 2000, nu 0.3, Vs 100 by method 1, a record
// of three points 0.01 s apart whose first is 0.2 g across, -0.1 g down): nodes 2 and 4
// free, degrees in the order 2x, 2y, 4x, 4y. Gates, questions and end of run word for word; the
// crafted cases put a diagonal stiffness k and masses 2 in place of the assembled ones, so that
// the first step of the step-by-step run is the static u = -2 · 9.81 · a / k. Then the record
// and strata screens that feed a run, the record side file and its figure.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>

#include "apoyo/apoyo.h"
#include "elementos/malla_apoyo.h"
#include "pantallas/estratos_sismicos.h"
#include "pantallas/interfaz_guionada.h"
#include "pantallas/registro_sismico.h"
#include "proyecto/archivo.h"
#include "salida/registro_sismico.h"
#include "sismico/respuesta.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {
namespace {

const char* const kAviso =
    "UD DEBE ESPERAR POR FAVOR, MIENTRAS SE REALIZA LAS ESTIMACIONES DE ESFUERZOS Y DESPLAZAMIENTOS. PRESIONE "
    "ACEPTAR PARA CONTINUAR";

Proyecto Listo() {
  Proyecto p;
  InterfazGuionada ui;
  EXPECT_TRUE(LeerProyecto(p, pruebas::RutaDatos("sismico/respuesta.cod"), ui));
  p.Malla.ConfirmarElementos = true;  // the number of elements is confirmed in each session
  DatosSísmicos& s = p.Sísmico;
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

TEST(CorridaRespuesta, PuertasArchivoCorteReglaDel75YCancelar) {
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
  const DatosSísmicos& a = listo.Sísmico;
  EXPECT_TRUE(a.Determinante[1] == 1 && a.PasosCalculados == 3 && a.TiempoRegistro[1] == 0.0001);
  InterfazGuionada otra("N");
  MétodoIntegralDuhamel(listo, otra);
  EXPECT_EQ(otra.Textos(), std::vector<std::string>{" Ya se realizó el cálculo sísmico. ¿Ud. desea volver a calcular?"});
  // The file of the run keeps its results to 15 significant digits.
  const std::string carpeta = pruebas::CarpetaTemporal(), uno = carpeta + "/uno.cod", dos = carpeta + "/dos.cod";
  ASSERT_TRUE(GuardarProyecto(listo, uno, ui));
  Proyecto q = listo;  // holds this run's element matrices until the read resets it
  ASSERT_TRUE(LeerProyecto(q, uno, ui));
  const DatosSísmicos& b = q.Sísmico;
  EXPECT_TRUE(b.ResultadosSísmicos && b.PasosCalculados == 3);
  for (auto t : {&DatosSísmicos::DesplazamientoSísmico, &DatosSísmicos::VelocidadSísmica, &DatosSísmicos::AceleraciónSísmica,
                 &DatosSísmicos::EsfuerzoX, &DatosSísmicos::EsfuerzoXY, &DatosSísmicos::EsfuerzoMenor, &DatosSísmicos::MóduloCortanteActual}) {
    ASSERT_EQ((b.*t).Filas(), (a.*t).Filas());
    ASSERT_EQ((b.*t).Columnas(), (a.*t).Columnas());
    for (long i = 1; i <= (a.*t).Filas(); ++i)
      for (long j = 1; j <= (a.*t).Columnas(); ++j) EXPECT_NEAR((b.*t)(i, j), (a.*t)(i, j), 1e-13 * (1 + std::abs((a.*t)(i, j))));
  }
  EXPECT_NEAR(b.DesplazamientoMáximo, a.DesplazamientoMáximo, 1e-12);
  EXPECT_EQ(b.PasoMáximo, a.PasoMáximo);
  EXPECT_EQ(b.MatricesEnMemoria, nullptr);  // an opened project holds no other's element matrices
  ASSERT_TRUE(GuardarProyecto(q, dos, ui));
  EXPECT_EQ(pruebas::LeerArchivo(dos), pruebas::LeerArchivo(uno));
  const char* const k75 = "El 75% de los nodos, tienen desplazamientos mayores a 50 cm. Por tanto, se considera que la masa de suelo o roca, que se está analizando ha perdido totalmente su resistencia al corte.  Para los siguientes registros sísmicos, los esfuerzos y desplazamientos comenzarán a ser muy elevados, indicando el colapsado total. Sin embargo:  ¿Desea que el programa continúe calculando esfuerzos y desplazamientos.?.";
  const char* const kCorte = "Los desplazamientos comienzan a tener valores elevados (mayores a 10^4).  ¿Desea salir del cálculo para ir a la opción de Resultados tabulados o gráficas?.";
  const char* const kFin = "Se finalizó el cálculo de esfuerzos y desplazamientos a partir de la ecuación de movimiemto método paso a paso.";
  // k = 1e-6: u = -3.924e6 m, cut to -10000 (-1e6 cm). k = 1: u = -3.924 and 0.981 m, all four
  // degrees beyond 0.5 m, more than Int(0.75 · 4) = 3.
  const char* const kIr = "Vaya a la opción de Resultados tabulados o gráficas.";
  const char* const kAsigna =
      "El programa le asignará a estos desplazamientos valores de -10000 ó +10000";
  using Textos = std::vector<std::string>;
  const struct { double k, u; const char* guion; Textos tras; bool corte; } casos[] = {
      {1e-6, -1e6, "S", {kCorte, kFin}, true},
      {1e-6, -1e6, "NN", {kCorte, kAsigna, k75, kIr, kFin}, true},
      {1, -392.4, "N", {k75, kIr, kFin}, false},
  };
  for (const auto& c : casos) {
    Proyecto p = Listo();
    Diagonal(p, c.k);
    InterfazGuionada ui(c.guion);
    MétodoPasoAPasoEcMovimientoSinDesacoplar(p, ui);
    std::vector<std::string> t = ui.Textos();
    t.erase(t.begin());  // the notice
    EXPECT_EQ(t, c.tras) << c.guion;
    const DatosSísmicos& s = p.Sísmico;
    EXPECT_TRUE(s.PasosCalculados == 1 && s.ResultadosSísmicos && s.CorteAlcanzado == c.corte);
    EXPECT_DOUBLE_EQ(s.DesplazamientoSísmico(1, 3), c.u);
  }
  Proyecto p = Listo();
  Diagonal(p, 100);
  InterfazGuionada cancela;
  cancela.CancelarProgresoTras(0);
  p.Malla.FSSísmico = p.Sísmico.FactorSísmicoMínimo = 1.3;  // a factor of a former run
  MétodoPasoAPasoEcMovimientoSinDesacoplar(p, cancela);
  const DatosSísmicos& s = p.Sísmico;
  EXPECT_EQ(p.Malla.FSSísmico + s.FactorSísmicoMínimo, 0);
  // u(2x) = -2 · 9.81 · 0.2 / 100 m = -3.924 cm; u(2y) = 2 · 9.81 · 0.1 / 200 m = 0.981 cm.
  EXPECT_TRUE(s.PasosCalculados == 1 && s.CálculoInterrumpido);
  EXPECT_EQ(s.DesplazamientoSísmico(2, 3), 0);
  for (const double u : {s.DesplazamientoSísmico(1, 3), s.DesplazamientoMáximo})
    EXPECT_NEAR(u, -3.924, 1e-12);
  EXPECT_NEAR(s.DesplazamientoSísmico(1, 4), 0.981, 1e-12);
  EXPECT_TRUE(s.NodoMáximo == 2 && s.PasoMáximo == 1);
  EXPECT_EQ(cancela.Textos().size(), 2u);  // the notice and the estimate, no end message
}

const char* kVertical = "Debe introducir el valor de la componente de la aceleración vertical del sísmo, incluyendo el cero";
const char* kHorizontal = "Debe introducir el valor de la componente de la aceleración horizontal del sísmo, incluyendo el cero";
const char* kTiempo = "Debe introducir el tiempo correspondientes a las componentes dadas de aceleración";

struct Registro : ::testing::Test {
  Proyecto p;
  InterfazGuionada ui;
  FormRegistroSísmico f{p};
  void SetUp() override { f.cerrada = false; f.Activar(ui); }
  void Fila(const char* t, const char* h, const char* v) {
    f.texto("Texto_Tiempo") = t;
    f.texto("Texto_Componente_Horizontal") = h;
    f.texto("Texto_Componente_Vertical") = v;
    f.Pulsar("BotónAgregar", ui);
  }
  std::string Último() { return ui.Textos().empty() ? "" : ui.Textos().back(); }
};

TEST_F(Registro, AgregarCompruebaVerticalHorizontalYTiempoEnEseOrden) {
  const struct { const char *t, *h, *v, *mensaje; } casos[] = {
      {"x", "x", "x", kVertical}, {"x", "x", "0", kHorizontal}, {"x", "0.1", "0", kTiempo}};
  for (const auto& c : casos) {
    Fila(c.t, c.h, c.v);
    EXPECT_EQ(Último(), c.mensaje);
  }
  EXPECT_TRUE(f.lista("ListaDeRegistroSísmico").filas.empty());
  Fila("0", "0.1", "-0.05");
  Fila("0.02", "0.25", "0");
  ASSERT_EQ(f.lista("ListaDeRegistroSísmico").filas.size(), 2u);
  EXPECT_EQ(f.lista("ListaDeRegistroSísmico").filas[0],
            (std::vector<std::string>{"0.000", "0.100", "-0.050"}));
  f.Pulsar("BotónModificar", ui);
  EXPECT_EQ(Último(), "Ud no ha seleccionado ninguna fila para modificar valores ya agregados.");
}

TEST_F(Registro, UnRegistroMaloNoSeGuardaYUnoBuenoSí) {
  Fila("0", "0.1", "0");
  f.Pulsar("BotónAceptar", ui);  // one point only
  EXPECT_NE(Último().find("al menos dos puntos"), std::string::npos);
  Fila("0", "0.2", "0");  // a time that does not grow is refused at once
  EXPECT_NE(Último().find("no es mayor que el de la última fila"), std::string::npos);
  Fila("0.01", "0.2", "0");
  Fila("0.02", "-0.3", "0.1");
  f.lista("ListaDeRegistroSísmico").seleccionada = 2;  // spoil the order through Modificar
  f.lista("ListaDeRegistroSísmico").alSeleccionar(ui);
  f.texto("Texto_Tiempo") = "-1";
  f.Pulsar("BotónModificar", ui);
  f.Pulsar("BotónAceptar", ui);
  EXPECT_NE(Último().find("deben crecer"), std::string::npos);
  EXPECT_FALSE(f.cerrada || p.Sísmico.NúmeroPuntosRegistro != 0 || p.Sísmico.RegistroDado);
  f.Pulsar("BotónBorrar", ui);  // the spoilt row goes
  f.Pulsar("BotónAceptar", ui);
  ASSERT_TRUE(f.cerrada && p.Sísmico.NúmeroPuntosRegistro == 2 && p.Sísmico.RegistroDado);
  const Figura g = FiguraRegistroSísmico(p);
  ASSERT_TRUE(g.trazos.size() == 2 && g.trazos[0].puntos.size() == 2);
  EXPECT_DOUBLE_EQ(g.trazos[0].puntos[1].y, -0.3);
}

TEST(ArchivoRegistro, SoloUnArchivoCompletoYOrdenadoCambiaElRegistroYEstratos) {
  const auto base = std::filesystem::temp_directory_path() / "lomaterra_registro_prueba";
  std::filesystem::create_directories(base / "CarpetaRegistroSismico");
  setenv("LOMATERRA_CARPETA_BASE", base.c_str(), 1);
  const struct { const char *contenido, *error; int puntos; } casos[] = {
      {"3\r\n0,0.1,0\r\n0.02,-0.2,0.05\r\n0.04,0,0\r\n", "", 3},
      {"1\r\n0,0.1,0\r\n", "al menos dos puntos", 0},
      {"2\r\n0,0.1,0\r\n0,0.2,0\r\n", "deben crecer", 0},
      {"2\r\n0,0.1,0\r\n0.02,abc,0\r\n", "en el punto 2", 0},
      {"3\r\n0,0.1,0\r\n0.02,0.1,0\r\n", "en el punto 3", 0}};
  for (const auto& c : casos) {
    std::ofstream(base / "CarpetaRegistroSismico" / "registrosismico.cod") << c.contenido;
    Proyecto p;
    InterfazGuionada ui("S");
    InputDeRegistrosSísmico(p, ui);
    EXPECT_EQ(p.Sísmico.NúmeroPuntosRegistro, c.puntos) << c.contenido;
    const bool conError = std::string(c.error).size() > 0;
    bool hallado = false;
    for (const auto& t : ui.Textos()) hallado |= conError && t.find(c.error) != std::string::npos;
    EXPECT_EQ(hallado, conError) << c.contenido;
  }
  unsetenv("LOMATERRA_CARPETA_BASE");
  Proyecto p;
  p.NúmeroEstratos = 1;
  p.Estrato.Fricción.Redimensionar(1);
  p.Estrato.Fricción[1] = 30;
  InterfazGuionada ui;
  FormEstratosSísmicos f(p);
  f.Activar(ui);
  f.lista("CaracterísticasEstratos").seleccionada = 1;
  const char* cajas[] = {"TextoVelocidadOndaDeCorte", "TextoDistorsiónCortante", "TextoRelaciónDeVacíos",
                         "TextoResistenciaNoDrenada", "TextoIndicePlástico",
                         "TextoRelaciónDeSobreconsolidación", "TextoEstratoDeterminateEnLaEstabilidad"};
  const struct { std::vector<const char*> v; const char* mensaje; } filas[] = {
      {{"x", "x", "x", "x", "x", "x", "x"}, "Debe dar el valor de la velocidad de la onda de corte. Puede incluir el cero"},
      {{"200", "x", "x", "x", "x", "x", "x"}, "Debe dar un valor para la distorsión cortante"},
      {{"200", "0", "x", "x", "x", "x", "x"}, "El valor de la distorsión cortante debe ser mayor a cero."},
      {{"200", "1e-6", "x", "x", "x", "x", "x"}, "Debe dar un valor para la relación de vaciós. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "x", "x", "x", "x"}, "Debe dar un valor para la resistencia no drenada. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "5", "x", "x", "x"}, "Debe dar un valor para el indice plástico. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "5", "10", "x", "x"}, "Debe dar un valor para la relación de sobreconsolidación. Puede incluir el cero"},
      {{"200", "1e-6", "0.6", "5", "10", "0.5", "x"}, "Ud. Está diciendo que el suelo es plástico, entonces: OCR =1 para arcillas normalmente consolidadas y OCR > 1 para arcillas sobreconsolidadas."},
      {{"200", "1e-6", "0.6", "5", "0", "2", "x"}, "Ud. está diciendo que el suelo no es plástico y por consiguiente el OCR debe ser cero, al menos que ud. modifique los datos"},
      {{"200", "1e-6", "0.6", "5", "0", "0", "x"}, "Para el tipo de estrato debe introducir  'SI ó NO para indicar el material es o no es determinante en la estabilidad' "}};
  for (const auto& c : filas) {
    for (int i = 0; i < 7; ++i) f.texto(cajas[i]) = c.v[static_cast<std::size_t>(i)];
    f.Pulsar("Modificar", ui);
    EXPECT_EQ(ui.Textos().back(), c.mensaje);
  }
  f.texto(cajas[6]) = "no";
  f.Pulsar("Modificar", ui);
  f.Pulsar("BotónAceptar", ui);  // friction 30 and Cu 5: drainage unclear
  EXPECT_EQ(ui.Textos().back().rfind("Hay un estrato donde no se tiene claro, en que condicón de drenaje", 0), 0u);
  p.Estrato.Fricción[1] = 0;
  f.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos().back(), "Debe dar un número para el espesor de sedimentos del sitio de análisis estimado por el geologo.");
  f.texto("TextoEspesorDeSedimentos") = "25";
  f.texto("TextoMétodoGmax") = "4";
  f.Pulsar("BotónAceptar", ui);
  EXPECT_EQ(ui.Textos().back(), "Debe introducir el número <1> o <2> o <3>");
  EXPECT_FALSE(p.Sísmico.ParámetrosSísmicosDados);
  f.texto("TextoMétodoGmax") = "2";
  f.Pulsar("BotónAceptar", ui);
  EXPECT_TRUE(p.Sísmico.ParámetrosSísmicosDados && p.Sísmico.HayNoDeterminantes);
  EXPECT_EQ(p.Sísmico.MétodoGmax, 2);
  EXPECT_DOUBLE_EQ(p.Sísmico.AlturaPresa, 25);
  EXPECT_EQ(f.lista("CaracterísticasEstratos").filas[0],
            (std::vector<std::string>{"1", "200.00", "0.000001", "0.60", "5.00", "0.00", "NO"}));
}

}  // namespace
}  // namespace lomaterra
