// lomaterra-lote run as a program: usage errors, projects that cannot be read, the transcript
// lines, the saved project and the JSON summary.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "lote/ejemplos.h"
#include "lote/lote_apoyo.h"
#include "proyecto/archivo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra::pruebas {
namespace {

const char* const kPrimeraLíneaUso = "Uso: lomaterra-lote PROYECTO.cod COMANDO [COMANDO ...]";

class Lotes : public ::testing::Test {
 protected:
  std::string carpeta = CarpetaTemporal();
  std::string homogéneo = RutaEjemplo("talud_homogeneo.cod");

  // A project saved from code into the temporary folder.
  std::string Guardar(Proyecto p, const std::string& nombre) {
    InterfazGuionada ui;
    const std::string ruta = carpeta + "/" + nombre;
    EXPECT_TRUE(GuardarProyecto(p, ruta, ui));
    return ruta;
  }
};

TEST_F(Lotes, UsoIncorrectoTerminaConDosSinCorrerNada) {
  const std::string guardado = carpeta + "/no_debe_existir.cod";
  const std::vector<std::vector<std::string>> casos = {
      {},
      {homogéneo},
      {homogéneo, "MétodoQueNoExiste"},
      {homogéneo, "MenúArchivo"},  // a menu, not a command
      {homogéneo, "MétodoFellenius", "--respuestas", "SX"},
      {homogéneo, "MétodoFellenius", "--por-defecto", "talvez"},
      {homogéneo, "MétodoFellenius", "--json"},
      {homogéneo, "MétodoFellenius", "--pdf", "x.txt"},  // the report is a .pdf
      {homogéneo, "MétodoFellenius", "--figura", "GráficoGeometría"},  // NOMBRE=ARCHIVO
      {homogéneo, "MétodoFellenius", "--figura", "NoEsUnaFigura=a.png"},
      {homogéneo, "MétodoFellenius", "--opción-inexistente", "x"},
      {homogéneo, "MétodoFellenius", "--guardar", guardado, "--guardar", guardado},
      {homogéneo, "MétodoQueNoExiste", "--guardar", guardado},
  };
  for (const auto& c : casos) {
    std::string traza;
    for (const auto& a : c) traza += a + " ";
    SCOPED_TRACE(traza);
    const Corrida r = Lote(c);
    EXPECT_EQ(r.estado, 2);
    EXPECT_EQ(r.salida, "");
    EXPECT_NE(r.errores.find(kPrimeraLíneaUso), std::string::npos) << r.errores;
  }
  EXPECT_FALSE(std::filesystem::exists(guardado));

  const Corrida desconocido = Lote({homogéneo, "MétodoQueNoExiste"});
  EXPECT_EQ(desconocido.errores.substr(0, desconocido.errores.find('\n')),
            "lomaterra-lote: Comando desconocido: MétodoQueNoExiste. Los comandos se nombran por el nombre de "
            "control del menú (por ejemplo MétodoFellenius).");
}

TEST_F(Lotes, AyudaSaleConCero) {
  const Corrida r = Lote({"--ayuda"});
  EXPECT_EQ(r.estado, 0);
  EXPECT_EQ(r.salida.rfind(kPrimeraLíneaUso, 0), 0u);
}

TEST_F(Lotes, ProyectoQueNoSePuedeLeer) {
  const std::string comando = "MétodoFellenius";
  const Corrida falta = Lote({carpeta + "/no_existe.cod", comando});
  EXPECT_EQ(falta.estado, 2);
  EXPECT_NE(falta.errores.find("no existe el archivo de proyecto"), std::string::npos);

  // A file that ends early: the reader's own box is printed, the commands do not run.
  const std::string entero = pruebas::LeerArchivo(homogéneo);
  const std::string truncado = carpeta + "/truncado.cod";
  std::ofstream(truncado, std::ios::binary) << entero.substr(0, entero.size() / 2);
  const Corrida t = Lote({truncado, comando});
  EXPECT_EQ(t.estado, 2);
  EXPECT_EQ(t.líneas, std::vector<std::string>{"[mensaje]  | Error leyendo archivo"});
  EXPECT_NE(t.errores.find("no se pudo leer el proyecto"), std::string::npos);

  // A finite-element project cut short after its head gives the same box.
  const std::string fe = carpeta + "/fe.cod";
  std::ofstream(fe, std::ios::binary) << "\"Presa\",\"\",\"\",\"\",\"\",\"\",\"F\",2\r\n\"S\"\r\n";
  const Corrida f = Lote({fe, comando});
  EXPECT_EQ(f.estado, 2);
  EXPECT_EQ(f.líneas, std::vector<std::string>{"[mensaje]  | Error leyendo archivo"});
}

TEST_F(Lotes, PantallaAbiertaSeCierraSinCambiosYSeGuarda) {
  const std::string copia = carpeta + "/copia.cod";
  const Corrida r = Lote({homogéneo, "MenúArchivoConstantes", "--guardar", copia});
  EXPECT_EQ(r.estado, 0) << r.errores;
  ASSERT_FALSE(r.líneas.empty());
  EXPECT_EQ(r.líneas[0], "[pantalla] Constantes de cálculo y grieta de tracción");
  EXPECT_EQ(r.líneas[1], "--- Resumen ---");
  // The screen closed with no change: the copy is the sample byte for byte.
  EXPECT_EQ(pruebas::LeerArchivo(copia), pruebas::LeerArchivo(homogéneo));
}

TEST_F(Lotes, GuardadoRechazadoSaleConUno) {
  // A limit-equilibrium project with no material: the writer refuses in its own words.
  Proyecto p = TaludHomogéneo();
  p.TipoDeMaterial = "X";
  const std::string ruta = Guardar(p, "sin_material.cod");
  std::string texto = pruebas::LeerArchivo(ruta);
  texto.replace(texto.find("\"X\""), 3, "\"\"");
  std::ofstream(ruta, std::ios::binary) << texto;
  const Corrida r = Lote({ruta, "MenúArchivoConstantes", "--guardar", carpeta + "/otro.cod"});
  EXPECT_EQ(r.estado, 1);
  // The writer's box is the last before the summary (the screen may have said its own first).
  const auto resumen = std::find(r.líneas.begin(), r.líneas.end(), "--- Resumen ---");
  ASSERT_NE(resumen, r.líneas.begin());
  EXPECT_EQ(*(resumen - 1), "[mensaje]  | Seleccione la opción parámetros iniciales e indique si es suelo <S> ó <R>");
  EXPECT_NE(r.errores.find("no se guardó el proyecto"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(carpeta + "/otro.cod"));
}

const char* const kDesembalse = "Está analizando desembalse rápido en presas de tierra?";

TEST_F(Lotes, TranscripciónPreguntasYMensajes) {
  const Corrida r = Lote({homogéneo, "MétodoFellenius"});
  EXPECT_EQ(r.estado, 0) << r.errores;
  ASSERT_GE(r.líneas.size(), 3u);
  EXPECT_EQ(r.líneas[0], std::string("[pregunta]  | ") + kDesembalse + " -> N");
  EXPECT_NE(r.líneas[1].find("Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Fellenius para suelos."),
            std::string::npos);
  EXPECT_EQ(r.líneas[1].rfind("[mensaje] ", 0), 0u);

  // The letters answer in order; the default answers after them. A second run on the same
  // slices asks whether the geometry changed.
  const Corrida s = Lote({homogéneo, "MétodoFellenius", "MétodoFellenius", "--respuestas", "S", "--por-defecto", "S"});
  EXPECT_EQ(s.estado, 0) << s.errores;
  std::vector<std::string> preguntas;
  for (const auto& l : s.líneas)
    if (l.rfind("[pregunta]", 0) == 0) preguntas.push_back(l);
  ASSERT_GE(preguntas.size(), 2u);
  EXPECT_EQ(preguntas[0], std::string("[pregunta]  | ") + kDesembalse + " -> S");
  EXPECT_EQ(preguntas[1], std::string("[pregunta]  | ") + kDesembalse + " -> S");
}

TEST_F(Lotes, OtroMétodoEsUnMensajeNoUnaFalla) {
  Proyecto p = TaludHomogéneo();
  p.ParámetrosIniciales.MétodoDeCálculo = 2;
  const std::string ruta = Guardar(p, "bishop.cod");
  const Corrida r = Lote({ruta, "MétodoFellenius"});
  EXPECT_EQ(r.estado, 0);
  ASSERT_GE(r.líneas.size(), 2u);
  EXPECT_EQ(r.líneas[0], std::string("[pregunta]  | ") + kDesembalse + " -> N");
  EXPECT_EQ(r.líneas[1], "[mensaje] No es el METODO: | Ud. no ha seleccionado este método de cálculo");
  EXPECT_EQ(r.líneas[2], "--- Resumen ---");
  EXPECT_EQ(r.líneas[3], "FactorDeSeguridad: (sin cálculo)");
}

TEST_F(Lotes, JsonVálidoConLaTablaDeDovelas) {
  const std::string json = carpeta + "/r.json";
  const Corrida r = Lote({homogéneo, "MétodoFellenius", "--json", json});
  ASSERT_EQ(r.estado, 0) << r.errores;
  ValorJson v;
  std::string error;
  ASSERT_TRUE(LeerJson(pruebas::LeerArchivo(json), v, error)) << error;
  ASSERT_EQ(v.tipo, ValorJson::Objeto);
  const ValorJson* fs = v.Campo("FactorDeSeguridad");
  ASSERT_TRUE(fs && fs->tipo == ValorJson::Número);
  EXPECT_GT(fs->número, 0);
  const ValorJson* bordes = v.Campo("NúmeroBordes");
  ASSERT_TRUE(bordes && bordes->tipo == ValorJson::Número);
  const ValorJson* dovelas = v.Campo("Dovelas");
  ASSERT_TRUE(dovelas && dovelas->tipo == ValorJson::Lista);
  EXPECT_EQ(static_cast<double>(dovelas->lista.size()), bordes->número - 1);
  ASSERT_FALSE(dovelas->lista.empty());
  for (const char* c : {"XMedio", "YBase", "YTalud", "Ancho", "PesoUnitarioMedio", "PresiónPoros", "ÁnguloBase",
                        "FuerzaNormal", "EsfuerzoNormalTotal", "EsfuerzoNormalEfectivo", "EsfuerzoTangencial"}) {
    const ValorJson* x = dovelas->lista.front().Campo(c);
    ASSERT_TRUE(x && x->tipo == ValorJson::Número) << c;
  }
  // The slices are contiguous: each width is the step between the middles' edges.
  double suma = 0;
  for (const auto& d : dovelas->lista) suma += d.Campo("Ancho")->número;
  EXPECT_NEAR(suma, 45.0 - 15.0, 1e-9);  // from the upper to the lower end of the arc
  for (const char* s : {"SumaTangenciales", "SumaNormalesTotales", "SumaNormalesEfectivos"})
    EXPECT_TRUE(v.Campo(s) && v.Campo(s)->tipo == ValorJson::Número) << s;
  // The transcript in the file is the one printed.
  const ValorJson* t = v.Campo("transcripción");
  ASSERT_TRUE(t && t->tipo == ValorJson::Lista);
  ASSERT_GE(r.líneas.size(), t->lista.size());
  for (std::size_t i = 0; i < t->lista.size(); ++i) EXPECT_EQ(t->lista[i].texto, r.líneas[i]);
}

TEST_F(Lotes, FallaNoPrevistaTerminaConUnoYNoSigue) {
  // An arc between points 2 and 3 whose chord descends: the edges above point 2 also belong to
  // it, and there the arc of radius about 13 m has no ordinate (the root of a negative number).
  Proyecto p = TaludHomogéneo();
  p.NúmeroPuntosFalla = 4;
  p.CoordenadasFalla.Redimensionar(4);
  const double x[] = {46, 38, 24, 12}, y[] = {20, 12, 7, 10};
  for (long i = 1; i <= 4; ++i) { p.CoordenadasFalla.X[i] = x[i - 1]; p.CoordenadasFalla.Y[i] = y[i - 1]; }
  p.NúmeroTramosFalla = 3;
  p.TramoFalla.Redimensionar(3);
  const char* tipos[] = {"L", "C", "L"};
  for (long i = 1; i <= 3; ++i) { p.TramoFalla.PuntoInicial[i] = i; p.TramoFalla.PuntoFinal[i] = i + 1; p.TramoFalla.TipoUnión[i] = tipos[i - 1]; }
  const std::string ruta = Guardar(p, "arco_fuera.cod");
  const std::string copia = carpeta + "/no_se_guarda.cod";
  const Corrida r = Lote({ruta, "MétodoFellenius", "MétodoFellenius", "--guardar", copia});
  EXPECT_EQ(r.estado, 1);
  ASSERT_GE(r.líneas.size(), 3u);
  EXPECT_EQ(r.líneas[0], std::string("[pregunta]  | ") + kDesembalse + " -> N");
  EXPECT_EQ(r.líneas[1].rfind("[mensaje] Error en el cálculo | Se produjo una falla aritmética no prevista (", 0), 0u);
  EXPECT_EQ(r.líneas[2], "--- Resumen ---");  // the second command did not run
  EXPECT_EQ(r.líneas[3].rfind("FALLA: el comando MétodoFellenius terminó en falla", 0), 0u);  // before any figure
  EXPECT_EQ(r.líneas[4], "FactorDeSeguridad: (sin cálculo)");
  EXPECT_NE(r.errores.find("MétodoFellenius terminó en falla; los comandos siguientes no se ejecutaron."), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(copia));
}

// ----- The JSON reader of these tests

TEST(LectorJson, AceptaLoVálidoYRechazaLoDemás) {
  ValorJson v;
  std::string e;
  EXPECT_TRUE(LeerJson(R"({"a": [1, -2.5e-3, true, null, "x\"\u00e1"], "b": {}})", v, e)) << e;
  EXPECT_EQ(v.Campo("a")->lista[4].texto, "x\"á");
  for (const char* malo : {"", "{", R"({"a": NaN})", R"({"a": 1,})", "[1 2]", R"({"a": 01})", "{} x", R"(["\x"])"})
    EXPECT_FALSE(LeerJson(malo, v, e)) << malo;
}

}  // namespace
}  // namespace lomaterra::pruebas
