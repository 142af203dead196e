// The finite-element screens: the mesh screens with their checks word for word, the order they
// keep and what they store; the side files of nodes and elements; the seismic result screen on a
// run filled by hand, its refusals, the refill of a chosen step and the click on a node.
#include <gtest/gtest.h>

#include <array>
#include <fstream>

#include "apoyo/apoyo.h"
#include "apoyo/sismo_apoyo.h"
#include "pantallas/comun_pantallas.h"
#include "pantallas/malla.h"
#include "pantallas/resultados_sismicos.h"

namespace lomaterra {
namespace {

using pruebas::Pulsar;
using pruebas::Textos;

Proyecto ConNodos(int n) {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  p.TipoDeMaterial = "S";
  p.NúmeroEstratos = 2;
  PantallaNodos s(p);
  InterfazGuionada ui;
  s.Activar(ui);
  for (int i = 1; i <= n; ++i)
    Pulsar(s, {{"Texto_Nodo", std::to_string(i).c_str()}, {"TextoX_Nodo", "1.5"}, {"TextoY_Nodo", "2"}, {"TextoZ_Nodo", "0"}}, "BotónAgregar");
  s.Aceptar(ui);
  return p;
}

TEST(PantallaNodos, ComprobacionesYOrden) {
  Proyecto p;
  PantallaNodos s(p);
  InterfazGuionada ui;
  pruebas::Activar(s, ui);
  const std::array<const char*, 5> casos[] = {
      {"a", "1", "1", "1", "Debe introducir un número entero"},
      {"1", "", "1", "1", "Debe introducir un número en x"},
      {"1", "1", "b", "1", "Debe introducir un número en y"},
      {"1", "1", "1", "", "Debe introducir un número en z"}};
  for (const auto& [nodo, x, y, z, mensaje] : casos)
    EXPECT_EQ(Pulsar(s, {{"Texto_Nodo", nodo}, {"TextoX_Nodo", x}, {"TextoY_Nodo", y},
                         {"TextoZ_Nodo", z}}, "BotónAgregar"),
              Textos{mensaje});
  // 2, 1, 4 in any order: kept descending; the second may repeat the first; the third may not.
  for (const char* n : {"2", "1", "4"})
    EXPECT_TRUE(Pulsar(s, {{"Texto_Nodo", n}, {"TextoX_Nodo", "1"}, {"TextoY_Nodo", "1"}, {"TextoZ_Nodo", "0"}}, "BotónAgregar").empty());
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo", "1"}}, "BotónAgregar"), std::vector<std::string>{"Ya existe un nodo con el mismo número."});
  const auto& l = s.lista("ListaCoordenadasNodos");
  ASSERT_EQ(l.filas.size(), 3u);
  EXPECT_EQ(l.filas[0][0] + l.filas[1][0] + l.filas[2][0], "421");
  EXPECT_EQ(l.filas[0][1], "1.00");
  EXPECT_EQ(Pulsar(s, {}, "BotónAceptar"),
            std::vector<std::string>{"La numeración que ud tiene asignada a los nodos no es continua. La numeración a "
                   "los nodos debe ser: 1,2,3,4...."});
  EXPECT_FALSE(s.cerrada);
  EXPECT_FALSE(p.Malla.NodosDefinidos);
  Proyecto q;
  PantallaNodos vacía(q);
  vacía.Activar(ui);
  vacía.Aceptar(ui);
  EXPECT_TRUE(vacía.cerrada);
  EXPECT_FALSE(q.Malla.NodosDefinidos);
}

TEST(PantallaElementos, SeisNodosConLadosRectosYCurvos) {
  Proyecto p = ConNodos(7);
  ASSERT_TRUE(p.Malla.NodosDefinidos);
  ASSERT_EQ(p.Malla.Nodo.NúmeroDeNodo[1], 7);
  PantallaElementos s(p);
  InterfazGuionada ui;
  s.Activar(ui);
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "1"}}, "BotónAgregar"), std::vector<std::string>{"Debe insertar el primer elemento"});
  s.NuevoElemento(ui);
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "x"}}, "BotónAgregar"),
            Textos{"Debe introducir el número asignado al nodo"});
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "9"}}, "BotónAgregar"),
            Textos{"Debe introducir un número que identifique un nodo dado"});
  // Six nodes, side 1-2 straight: the fourth repeats the first.
  for (const char* n : {"1", "2", "3", "1", "5", "6"}) Pulsar(s, {{"Texto_Nodo_Elemento", n}}, "BotónAgregar");
  EXPECT_EQ(Pulsar(s, {{"Texto_Nodo_Elemento", "7"}}, "BotónAgregar"),
            std::vector<std::string>{"Ud ha seleccionado trabajar con elementos triangulares y está asignando más de seis "
                   "nodos al elemento que tiene al frente."});
  EXPECT_EQ(Pulsar(s, {{"TextoNúmeroPuntosIntegración", "2"}}, "Modificar").size(), 1u);
  EXPECT_EQ(Pulsar(s, {{"TextoNúmeroPuntosIntegración", "3"}, {"TextoLadoUnoDOs", "no"}, {"TextoLadoDOsTres", "tal vez"}}, "Modificar"),
            std::vector<std::string>{"Si existe nodo intermedio en el lado 2 - 3, escriba 'SI' de lo contrario escriba  'NO'"});
  EXPECT_TRUE(Pulsar(s, {{"TextoLadoUnoDOs", "no"}, {"TextoLadoDOsTres", "si"}, {"TextoLadoTresUno", "SI"}}, "Modificar").empty());
  EXPECT_TRUE(Pulsar(s, {}, "BotónAceptar").empty());
  ASSERT_TRUE(s.cerrada);
  EXPECT_TRUE(p.Malla.ElementosDefinidos);
  EXPECT_EQ(p.Malla.Elemento.NodosPorElemento[1], 6);
  EXPECT_EQ(p.Malla.Elemento.Lado12[1], 2);
  EXPECT_EQ(p.Malla.Elemento.XElemento(1, 4), 1.5);
  // The centre is the plain mean of the six entries: every node of ConNodos lies at (1.5, 2).
  EXPECT_EQ(p.Malla.Elemento.XCentroElemento[1], 1.5);
  // The fourth node equal to the second on a straight side 1-2 is refused at Aceptar.
  PantallaElementos t(p);
  pruebas::Activar(t, ui);
  t.lista("ListaNodosElementos").seleccionada = 4;
  EXPECT_TRUE(Pulsar(t, {{"Texto_Nodo_Elemento", "2"}}, "BotónModificar").empty());
  EXPECT_EQ(Pulsar(t, {}, "BotónAceptar"),
            Textos{"El elemento triangular es de orden cuadrático(definidos por seis nodos). "
                   "Cuando el Lado 1-2 es recto, el cuarto nodo insertado debe ser igual al número "
                   "que identifica el primer nodo insertado. El elemento identificado con el "
                   "número que está al final de este mensaje no cumple con esta exigencia: 1"});
  EXPECT_FALSE(t.cerrada);
}

TEST(PantallasDeMalla, RestriccionesYCargas) {
  Proyecto p = ConNodos(3);
  p.Malla.NúmeroDeElementos = 1;
  p.Malla.Elemento.Redimensionar(1);
  p.Malla.Elemento.NodosPorElemento[1] = 3;
  for (int k = 1; k <= 3; ++k) p.Malla.Elemento.NodoDeElemento(1, k) = k;
  InterfazGuionada ui;
  PantallaRestricciones r(p);
  r.Activar(ui);
  const pruebas::Cajas fila = {{"TextoNodoRestringido", "2"}, {"TextoRestricciónX", "n"},
                               {"TextoRestricciónY", "S"},    {"TextoRestricciónZ", "N"},
                               {"TextoResorteX", "0"},        {"TextoResorteY", "5000"},
                               {"TextoResorteZ", "0"}};
  EXPECT_TRUE(Pulsar(r, fila, "BotónAgregar").empty());
  EXPECT_EQ(Pulsar(r, fila, "BotónAgregar"), std::vector<std::string>{"Ya existe un nodo con restricción con el mismo número."});
  EXPECT_EQ(r.Filas().size(), 2u);
  EXPECT_EQ(Pulsar(r, {{"TextoNodoRestringido", "8"}}, "BotónAgregar"),
            Textos{"Debe introducir un número que corresponda a determinado elemento"});
  EXPECT_EQ(Pulsar(r, {{"TextoNodoRestringido", "1"}, {"TextoRestricciónY", "X"}}, "BotónAgregar"),
            std::vector<std::string>{"Para la condición de restricción en <Y> debe introducir una 'S para condición con "
                   "desplazamiento' o una 'N para condición sin desplazamiento'"});
  EXPECT_EQ(Pulsar(r, {{"TextoRestricciónY", "s"}, {"TextoResorteY", ""}}, "BotónAgregar"),
            std::vector<std::string>{"Debe introducir un valor para la constante del resorte en dirección 'y' incluyendo el "
                   "cero cuando no exista desplazamiento en determinada dirección."});
  EXPECT_EQ(Pulsar(r, {}, "BotónAceptar", "N").size(), 1u);  // the question only
  EXPECT_TRUE(p.Malla.NodosRestringidosDefinidos);
  EXPECT_EQ(p.Malla.NodoConRestricción.RestricciónX[1], "N");
  EXPECT_EQ(p.Malla.NodoConRestricción.ResorteY[2], 5000);

  PantallaCargasElementos c(p);
  c.Activar(ui);
  EXPECT_EQ(Pulsar(c, {{"TextoCargaQx", "0"}, {"TextoCargaQy", "3"}, {"TextoNodoUno", "1"}, {"TextoNodoDos", "7"}}, "BotónAgregar"),
            Textos{"Debe introducir para el nodo dos donde actua la carga, un número de nodo que "
                   "corresponda al elemento que tiene en frente."});
  EXPECT_EQ(c.texto("TextoNodoDos"), "");
  EXPECT_EQ(Pulsar(c, {{"TextoCargaQx", ""}}, "BotónModificar"),
            Textos{"Ud no ha seleccionado ninguna fila para modificar valores ya agregados."});
  EXPECT_TRUE(Pulsar(c, {{"TextoCargaQx", "0"}, {"TextoNodoDos", "2"}}, "BotónAgregar").empty());
  c.Aceptar(ui);
  EXPECT_TRUE(p.Malla.CargasUniformesDefinidas);
  EXPECT_EQ(p.Malla.CargaUniforme.CargaQy[1], 3);
}

TEST(ComandosDeMalla, PuertasYArchivosLaterales) {
  const std::tuple<void (*)(Proyecto&, Interfaz&), bool, const char*> casos[] = {
      {MenúCoordenadasNodos, false, "Ud. no está trabajando con elementos finitos"},
      {CaracterizaciónElementos, true, "Debe definir primero los elementos y número de estratos"},
      {NodosConRestricción, true, "Debe definir primero los elementos"},
      {PresionesDePoros, false,
       "Ud.está trabajando por métodos de equilibrio límites y no con elementos finitos."},
      {PresionesDePoros, true, "No se han definido los elementos finitos."},
  };
  for (const auto& [comando, elementosFinitos, texto] : casos) {
    Proyecto p;
    p.TipoDeAnálisis = elementosFinitos ? "F" : "T";
    InterfazGuionada ui;
    comando(p, ui);
    EXPECT_EQ(ui.Textos(), Textos{texto});
  }
  // Side files: four nodes, then two elements by their corners.
  const std::string carpeta = pruebas::CarpetaTemporal();
  std::ofstream(carpeta + "/coordenadas.cod") << "4\r\n4,1,1,0\r\n3,0,1,0\r\n2,1,0,0\r\n1,0.001,0.002,0\r\n";
  std::ofstream(carpeta + "/elementos.cod") << "2\r\n1,2,4\r\n1,4,3\r\n";
  Proyecto p;
  p.TipoDeAnálisis = "F";
  ASSERT_TRUE(LeerArchivoCoordenadasNodos(p, carpeta + "/coordenadas.cod").error.empty());
  ASSERT_TRUE(LeerArchivoElementos(p, carpeta + "/elementos.cod").error.empty());
  EXPECT_EQ(p.Malla.NúmeroDeNodos, 4);
  EXPECT_EQ(p.Malla.NúmeroDeElementos, 2);
  EXPECT_TRUE(p.Malla.ElementosDefinidos);
  EXPECT_EQ(p.Malla.Elemento.XElemento(2, 3), 0);
  EXPECT_EQ(p.Malla.Elemento.YElemento(1, 1), 0.002);
  EXPECT_EQ(p.Malla.Elemento.PuntosIntegración[1], 1);
  EXPECT_FALSE(LeerArchivoElementos(p, carpeta + "/no.cod").error.empty());
}

const std::string kNoAnalizado =
    "Ese registro no existe o no fue analizado, debido a que los esfuerzos producidos por los "
    "registros anteriores, superaron la resistencia al cortante del suelo.";

TEST(ResultadosSísmicos, ElRegistroPedidoSeCompruebaEnOrden) {
  Proyecto sin;
  InterfazGuionada nada;
  ResultadosDeEsfuerzosDesplazamientosPorSísmo(sin, nada);  // no calculation: it says so
  EXPECT_EQ(nada.Transcripción(),
            (std::vector<Apunte>{{"mensaje", "No ha hecho el cálculo completo de esfuerzos:",
                                  "Realice el cálculo para ver resultados  ", ""}}));
  const std::pair<const char*, std::string> casos[] = {
      {"abc", "Debe introducir un valor numérico y entero"},
      {"1.5", "Ud. debe dar un número entero"},
      {"4", kNoAnalizado},  // the record has 4 points, 3 were computed
      {"0", kNoAnalizado},
      {" 2 ", ""}};
  for (const auto& [texto, mensaje] : casos) {
    Proyecto p = pruebas::SismoAMano();
    p.Malla.FSSísmico = 1.234;
    InterfazGuionada ui;
    PantallaResultadosSísmicos f(p);
    f.Activar(ui);
    EXPECT_EQ(f.texto("TextoTotalRegistrosSismicos"), "3");
    EXPECT_EQ(f.texto("TextoFactorSeguridadDeslizamiento"), "1.23");
    EXPECT_NE(f.nota.find("El cálculo se interrumpió (el usuario pulsó Cancelar o una falla del "
                          "cálculo lo terminó): se calcularon 3 de 4 registros."),
              std::string::npos);
    f.texto("Texto_Del_Registro_Que_Ud_Ver") = texto;
    f.Pulsar("BotónAceptar", ui);
    const auto& n = f.lista("ResultadosDeLosDesplazamientosSísmo").filas;
    if (!mensaje.empty()) {
      ASSERT_EQ(ui.Textos(), Textos{mensaje}) << texto;
      EXPECT_TRUE(n.empty());
      EXPECT_EQ(p.Sísmico.RegistroSeleccionado, 0);
      continue;
    }
    EXPECT_TRUE(ui.Textos().empty());
    EXPECT_EQ(p.Sísmico.RegistroSeleccionado, 2);
    // Nodes in table order (4, 3, 2, 1): node 3 is the second row, degrees 5 and 6.
    ASSERT_EQ(n.size(), 4u);
    EXPECT_EQ(n[1], (Textos{"3", "1.235", "0.000", "0.000", "-0.500", "0.250", "0.000"}));
    const auto& e = f.lista("ResultadosDeLosEsfuerzosSísmo").filas;
    ASSERT_EQ(e.size(), 2u);
    EXPECT_EQ(e[1], (Textos{"2", "0.000", "-20.000", "3.500", "0.000", "0.000", "0.000", "0.000"}));
  }
}

TEST(ResultadosSísmicos, ClicEnUnPuntoFijoOLibre) {
  Proyecto p = pruebas::SismoAMano();
  p.Sísmico.RegistroSeleccionado = 2;
  InterfazGuionada ui;
  PantallaResultadosSísmicos f(p);
  f.Activar(ui);
  NodoElegidoSísmico() = 0;
  f.ClicEnNodo(4, ui);  // node 1: "N" both ways
  f.ClicEnNodo(3, ui);  // node 2: fixed along x only, its chart opens
  ASSERT_EQ(ui.Transcripción().size(), 2u);
  EXPECT_EQ(ui.Transcripción()[0].texto,
            "El punto de coordenada seleccionado es un punto con restricción, sin desplazamiento "
            "en ninguna dirección");
  EXPECT_EQ(ui.Transcripción()[1].tipo, "figura");
  EXPECT_EQ(ui.Transcripción()[1].texto, "GraficaDeRegistroSísmicoEstimadoDeAceleraciones");
  EXPECT_EQ(NodoElegidoSísmico(), 2);
  EXPECT_EQ(f.texto("TextoPtoCoordenadaParaRegistro"), "2");
  NodoElegidoSísmico() = 0;
}

}  // namespace
}  // namespace lomaterra
