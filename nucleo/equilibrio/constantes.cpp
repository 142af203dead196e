#include "equilibrio/constantes.h"

#include <cmath>
#include <string>

#include "equilibrio/puertas.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

const char* const kMitadDeLaCuerda =
    "Debe cumplirse que el radio sea mayor que la Mitad de la cuerda del arco de círculo";
const char* const kNúmeroEnGrieta = "Debe introducir un número 'incluyendo el cero' cuando no exista.";
const char* const kOrdenadasGrieta =
    "La ordenada del segundo punto de la grieta debe ser menor que la ordenada del nivel freático";
const char* const kAbscisasGrieta =
    "La abscisa del segundo punto de la grieta debe ser menor o aproximadamente igual que la "
    "abscisa del N.F en la grieta";
const char* const kTítuloOrdenadas = "Comparación de ordenadas:";
const char* const kTítuloAbscisas = "Comparación de abscisas:";
const char* const kTítuloInstantáneos = "Párametros instantáneos:";
const char* const kFactorRazonable = "Debe dar un factor de seguridad mayor que cero y razonable";

}  // namespace

bool CentroDelArcoDeConstantes(double x1, double y1, double x2, double y2, double radio,
                               ArcoDeConstantes& arco) {
  const double pi = 4 * std::atan(1.0);
  const double cuerda = std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
  // Two equal abscissas are kept apart by 0.01, as everywhere in the program.
  const double dx = x1 - x2 == 0 ? 0.01 : x1 - x2;
  const double a = std::atan((y1 - y2) / dx);
  double r = radio;
  // 200000 steps of 0.5 m: a hundred kilometres, far beyond any slope.
  for (int paso = 0; paso < 200000; ++paso, r += 0.5) {
    if (!(r > 0)) continue;
    const double b = cuerda / (2 * r);
    if (b > 1) continue;  // the radius does not reach half the chord yet
    const double arcoseno = b < 1 ? std::atan(b / std::sqrt(1 - b * b)) : pi / 2;
    const double v = pi / 2 - a - arcoseno;
    const double cx = r * std::sin(v) + x2;
    const double cy = r * std::cos(v) + y2;
    if (cy < y1) continue;
    arco = {r, cuerda, cx, cy};
    return std::isfinite(cx) && std::isfinite(cy);
  }
  return false;
}

PantallaConstantes::PantallaConstantes(Proyecto& p) : p_(p) {
  nombre = kNombrePantallaConstantes;
  título = "Constantes de cálculo y grieta de tracción";
  nota =
      "Métodos de cálculo: <1> Leshchinsky y Huang, <2> Bishop, <3> Fellenius, <4> Janbu. "
      "Parámetros instantáneos: <0> ninguno, <1>, <2> o <3>.";
  campos = {
      {"TextoMétodoDeCálculo", "Método de cálculo:  ", "", "<1> Leshchinsky y Huang, <2> Bishop, <3> Fellenius, <4> Janbu"},
      {"TextoDefiniciónDeParámetrosInstantáneos", "Parámetros instantáneos:", "",
       "(1): Los parámetros se calculan en cada punto por el método de BALMER. Este caso es válido "
       "solamente cuando el material es roca y debe aplicarse sí el método de cálculo  es 1."},
      {"TextoMultiplicadorLagrange1", "Coeficiente de Lagrange µ1:", "",
       " El valor puede ser aproximadamente igual a una abscisa que esté entre los ptos de "
       "intersección de la superficie de falla con el talud (puede darle otro valor )."},
      {"TextoMultiplicadorLagrange2", "Coeficente de lagrange µ2:", "",
       "Este valor puede ser el de una ordenada que debe estar por encima del mayor valor "
       "correspondiente a las ordenadas del  talud (puede darle otro valor)."},
      {"TextoFSInicial", "Factor de seguridad inicial FS:", "",
       "Este valor debe estar alrededor de  ' - cohesión / tangente ( ángulo de fricción )  y "
       "cero'.  Puede ser cero para el caso de rocas."},
      {"TextoEsfuerzoInicialCresta", "Esfuerzo inicial en la cresta del talud  (ton/m2):", "",
       "Valor que debe estar entre -c/tan(fi) y cero.  Donde: c  y fi: es la cohesión y  fircción "
       "del primer estrato."},
      {"TextoRadioCírculoFalla", "Radio del círculo (m):", "", ""},
      {"TextoDeLaCuerda", "Cuerda del arco de círculo (m):", "", "", true},
      {"TextoVaríaElRadio", "Varía el radio <S/N>:", "", ""},
      {"TextoNúmeroDovelas", "Número de dovelas en el análisis:", "", ""},
      {"TextoCoeficienteSísmicoHorizontal", "Coeficiente sísmico horizontal:", "",
       "De un número razonable de análisis. Su valor es positivo cuando actúa hacia afuera del talud."},
      {"TextoCoeficienteSísmicoVertical", "Coeficiente sísmico vertical:", "",
       "De un número razonable de análisis. Su valor es positivo en la dirección del Peso de la dovela."},
      {"TextoAbscisaPrimerPuntoGrieta", "Abscisa del primer punto (m):", "", ""},
      {"TextoOrdenadaPrimerPuntoGrieta", "Ordenada del primer punto (m):", "", ""},
      {"TextoAbscisaSegundoPuntoGrieta", "Abscisa del segundo punto (m):", "", ""},
      {"TextoOrdenadaSegundoPuntoGrieta", "Ordenada del segundo punto (m):", "", ""},
      {"TextoAbscisaNivelFreáticoGrieta", "Abscisa del N.F en la grieta  (m):", "", ""},
      {"TextoOrdenadaNivelFreáticoGrieta", "Ordenada del N.F en la grieta (m):", "", ""},
  };
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

// The boxes from the state, and the warning on a radius shorter than half the chord.
void PantallaConstantes::Llenar(Interfaz& ui) {
  const auto& pi = p_.ParámetrosIniciales;
  const auto& g = p_.GrietaTracción;
  texto("TextoMétodoDeCálculo") = std::to_string(pi.MétodoDeCálculo);
  texto("TextoDefiniciónDeParámetrosInstantáneos") = std::to_string(pi.ParámetrosInstantáneos);
  texto("TextoMultiplicadorLagrange1") = NúmeroATexto(pi.Multiplicador1);
  texto("TextoMultiplicadorLagrange2") = NúmeroATexto(pi.Multiplicador2);
  texto("TextoFSInicial") = NúmeroATexto(pi.FSInicial);
  texto("TextoEsfuerzoInicialCresta") = NúmeroATexto(pi.EsfuerzoInicialCresta);
  texto("TextoRadioCírculoFalla") = Formato(pi.Radio, "#0.00");
  texto("TextoNúmeroDovelas") = NúmeroATexto(pi.NúmeroDovelas);
  texto("TextoCoeficienteSísmicoHorizontal") = NúmeroATexto(pi.CoeficienteSísmicoHorizontal);
  texto("TextoCoeficienteSísmicoVertical") = NúmeroATexto(pi.CoeficienteSísmicoVertical);
  texto("TextoAbscisaPrimerPuntoGrieta") = NúmeroATexto(g.AbscisaPrimerPunto);
  texto("TextoOrdenadaPrimerPuntoGrieta") = NúmeroATexto(g.OrdenadaPrimerPunto);
  texto("TextoAbscisaSegundoPuntoGrieta") = NúmeroATexto(g.AbscisaSegundoPunto);
  texto("TextoOrdenadaSegundoPuntoGrieta") = NúmeroATexto(g.OrdenadaSegundoPunto);
  texto("TextoAbscisaNivelFreáticoGrieta") = NúmeroATexto(g.AbscisaNF);
  texto("TextoOrdenadaNivelFreáticoGrieta") = NúmeroATexto(g.OrdenadaNF);
  texto("TextoVaríaElRadio") = Mayúsculas(pi.LetraVaríaRadio);
  if (pi.Cuerda > 0 && pi.Cuerda / 2 > pi.Radio) {
    texto("TextoDeLaCuerda") = Formato(pi.Cuerda, "#0.00");
    ui.Mensaje(kMitadDeLaCuerda);
  }
}

void PantallaConstantes::Activar(Interfaz& ui) {
  if (p_.TipoDeMaterial.empty()) {
    ui.Mensaje("Vaya a la opción 'Parámetros y Cargas' de las características del material.");
    cerrada = true;
    return;
  }
  if (!p_.GeometríaFallaDefinida) {
    ui.Mensaje(
        "Debe dar las coordenadas de la superficie potencial de falla y definir la geoemetría entre "
        "sus puntos.");
    cerrada = true;
    return;
  }
  texto("TextoDeLaCuerda").clear();
  if (!p_.ParámetrosInicialesDados) {
    for (auto& c : campos) c.valor.clear();
    texto("TextoMultiplicadorLagrange1") = " ";
    texto("TextoMultiplicadorLagrange2") = " ";
    texto("TextoFSInicial") = " ";
  }
  // On limit-equilibrium work the boxes always show what the project holds.
  if (p_.ParámetrosInicialesDados || p_.TipoDeAnálisis == "T") Llenar(ui);
}

void PantallaConstantes::Aceptar(Interfaz& ui) {
  auto& pi = p_.ParámetrosIniciales;
  auto número = [this](const char* control) { return ANúmero(texto(control)); };
  auto esNúmero = [this](const char* control) { return EsNúmero(texto(control)); };

  // 1
  if (p_.TipoDeAnálisis == "F") {
    ui.Mensaje(
        "Ud. eligió trabajar por elementos finitos. La selección de estos Parámetros de cálculo "
        "inicales, solamente es necesario cuando se trabaja por los métodos de equilibrio límite.");
    return;
  }
  // 2
  if (!esNúmero("TextoMétodoDeCálculo")) {
    ui.Mensaje(
        "Debe introducir el número <1> o <2> o <3> o <4> dependiendo del método de cálculo que Ud. "
        "considere");
    return;
  }
  const double métodoLeído = número("TextoMétodoDeCálculo");
  if (métodoLeído != 1 && métodoLeído != 2 && métodoLeído != 3 && métodoLeído != 4) {
    ui.Mensaje(
        "Ud. debe seleccionar el número <1> o <2> o <3> o <4> dependiendo del método de cálculo que "
        "Ud. considere");
    return;
  }
  const Entero método = static_cast<Entero>(métodoLeído);
  // 3
  if (método == 1 &&
      !ui.Pregunta(
          "Se ha indicado que el método de estimación del factor de seguridad, es el identificado "
          "con el númerto 1 (Leshchinsky). En este caso, sí el análisis lo va hacer en suelos, "
          "todos los materiales o estratos por donde pase la SPF, deben ser cohesivos - "
          "friccionantes (cohesión y fricción mayor a cero). Se cumple ésto en los parámetros de "
          "resistencia?.")) {
    ui.Mensaje("Para este caso puede aplicar el método 4 (Janbu)  o el método 2 (Bishop).");
    return;
  }
  // 4
  Entero instantáneos = 0;
  if (esNúmero("TextoDefiniciónDeParámetrosInstantáneos")) {
    const double c = número("TextoDefiniciónDeParámetrosInstantáneos");
    if (c == 1 || c == 2 || c == 3) instantáneos = static_cast<Entero>(c);
  }
  // 5
  const double fs = número("TextoFSInicial");
  if (método == 1) {
    if (!esNúmero("TextoMultiplicadorLagrange1")) {
      ui.Mensaje("Debe introducir un número para este primer multiplicador");
      return;
    }
    if (!esNúmero("TextoMultiplicadorLagrange2")) {
      ui.Mensaje("Debe introducir un número para este segundo multiplicador");
      return;
    }
    if (!esNúmero("TextoFSInicial")) {
      ui.Mensaje("Debe introducir un número para el factor de seguridad");
      return;
    }
    if (!(fs > 0)) {
      ui.Mensaje(kFactorRazonable);
      return;
    }
    if (p_.TipoDeMaterial == "S" && !esNúmero("TextoEsfuerzoInicialCresta")) {
      ui.Mensaje("Debe introducir un número para el esfuerzo inicial, en el rango recomendado");
      return;
    }
  }
  // 6
  if ((método == 4 || método == 2) && !(fs > 0)) {
    ui.Mensaje(kFactorRazonable);
    return;
  }
  // 7
  const bool arco = p_.SuperficieCircular();
  const double radio = número("TextoRadioCírculoFalla");
  if (!arco && radio > 0) {
    ui.Mensaje(
        "La Superficie potencial de falla, no es un arco de círculo, por tanto el radio no se "
        "considera en el análisis.");
    pi.Radio = 0;
  }
  // 8
  if (arco) {
    if (radio < 0) {
      ui.Mensaje(
          "Debe introducir un número mayor que cero para el radio del arco de círculo de falla y "
          "razonable para el cálculo");
      return;
    }
    if (!esNúmero("TextoRadioCírculoFalla")) {
      ui.Mensaje("Introduzca un valor razonable para el radio");
      return;
    }
    const auto& f = p_.CoordenadasFalla;
    ArcoDeConstantes a;
    if (!CentroDelArcoDeConstantes(f.X.Leer(1), f.Y.Leer(1), f.X.Leer(2), f.Y.Leer(2), radio, a)) {
      ui.Mensaje(
          "No se encontró el centro del arco de círculo por encima del primer punto de la "
          "superficie de falla. Revise las coordenadas de la superficie de falla.");
      return;
    }
    pi.Radio = a.radio;
    pi.Cuerda = a.cuerda;
    pi.CentroX = a.centroX;
    pi.CentroY = a.centroY;
    if (pi.Cuerda > 0 && pi.Cuerda / 2 > radio && radio > pi.Radio) {
      texto("TextoDeLaCuerda") = Formato(pi.Cuerda, "#0.00");
      ui.Mensaje(kMitadDeLaCuerda);
    }
  }
  // 9
  if (arco && método == 2) {
    const std::string letra = Mayúsculas(Recortar(texto("TextoVaríaElRadio")));
    if (letra != "S" && letra != "N") {
      ui.Mensaje("Introduzca  una 'S' para variar el RADIO y 'N' para mantener su valor CONSTANTE");
      return;
    }
    texto("TextoVaríaElRadio") = letra;
    pi.LetraVaríaRadio = letra;
    pi.VaríaRadio = letra == "S";
  }
  // 10
  if (!esNúmero("TextoCoeficienteSísmicoHorizontal")) {
    ui.Mensaje("Debe introducir un número para el coeficiente sísmico horizontal 'incluyendo el cero'");
    return;
  }
  if (!esNúmero("TextoCoeficienteSísmicoVertical")) {
    ui.Mensaje("Debe introducir un número para el coeficiente sísmico vertical 'incluyendo el cero'");
    return;
  }
  // 11
  if (!esNúmero("TextoNúmeroDovelas")) {
    ui.Mensaje("Debe introducir un número para la cantidad de dovelas a tomar en consideración en el análisis");
    return;
  }
  const double dovelas = número("TextoNúmeroDovelas");
  if (!(dovelas > 2) || dovelas - std::floor(dovelas) > 0) {
    ui.Mensaje("Debe dar un número razonable de dovelas y que sea entero");
    return;
  }
  // 12, the two points of the crack
  struct CajaGrieta {
    const char* control;
    const char* título;
  };
  constexpr CajaGrieta kPuntos[] = {
      {"TextoAbscisaPrimerPuntoGrieta", "Abscisa del primer pto de la grieta:"},
      {"TextoOrdenadaPrimerPuntoGrieta", "Ordenada del primer pto de la grieta:"},
      {"TextoAbscisaSegundoPuntoGrieta", "Abscisa del segundo pto de la grieta:"},
      {"TextoOrdenadaSegundoPuntoGrieta", "Ordenada del segundo pto de la grieta:"}};
  constexpr CajaGrieta kAgua[] = {
      {"TextoAbscisaNivelFreáticoGrieta", "Abscisa del N.F en la grieta de tracción:"},
      {"TextoOrdenadaNivelFreáticoGrieta", "Ordenada del N.F en la grieta de tracción:"}};
  for (const auto& c : kPuntos)
    if (!esNúmero(c.control)) {
      ui.Mensaje(kNúmeroEnGrieta, c.título);
      return;
    }
  const double x1 = número("TextoAbscisaPrimerPuntoGrieta");
  const double y1 = número("TextoOrdenadaPrimerPuntoGrieta");
  const double x2 = número("TextoAbscisaSegundoPuntoGrieta");
  const double y2 = número("TextoOrdenadaSegundoPuntoGrieta");
  // 13
  if (y1 < y2) {
    ui.Mensaje(kOrdenadasGrieta, kTítuloOrdenadas);
    return;
  }
  if (x1 < x2) {
    ui.Mensaje(kAbscisasGrieta, kTítuloAbscisas);
    return;
  }
  // 12, the water in the crack
  for (const auto& c : kAgua)
    if (!esNúmero(c.control)) {
      ui.Mensaje(kNúmeroEnGrieta, c.título);
      return;
    }
  const double xnf = número("TextoAbscisaNivelFreáticoGrieta");
  const double ynf = número("TextoOrdenadaNivelFreáticoGrieta");
  // 14
  if (y2 > 0 && ynf > 0 && ynf < y2) {
    ui.Mensaje(kOrdenadasGrieta, kTítuloOrdenadas);
    return;
  }
  if (y1 > 0 && ynf > 0 && y1 < ynf) {
    ui.Mensaje(
        "La ordenada del nivel freático en la grieta debe ser menor o igual que la ordenada del "
        "primer punto de la grieta",
        kTítuloOrdenadas);
    return;
  }
  if (y1 > 0 && ynf > 0 && xnf != x2) {
    ui.Mensaje(kAbscisasGrieta, kTítuloAbscisas);
    return;
  }
  // What no calculation can hold, once the checks above have passed.
  if (dovelas > kMáximoDovelas) {
    ui.Mensaje("El número de dovelas no puede pasar de " + std::to_string(kMáximoDovelas) +
                   ": es lo que los métodos de cálculo pueden resolver. Dé un número de dovelas "
                   "entre 3 y " + std::to_string(kMáximoDovelas) + ".",
               "Número de dovelas");
    return;
  }
  // 15
  pi.Multiplicador1 = número("TextoMultiplicadorLagrange1");
  pi.Multiplicador2 = número("TextoMultiplicadorLagrange2");
  pi.FSInicial = fs;
  pi.MétodoDeCálculo = método;
  pi.EsfuerzoInicialCresta = p_.TipoDeMaterial == "S" ? número("TextoEsfuerzoInicialCresta") : 0.0;
  pi.NúmeroDovelas = dovelas;
  pi.CoeficienteSísmicoHorizontal = número("TextoCoeficienteSísmicoHorizontal");
  pi.CoeficienteSísmicoVertical = número("TextoCoeficienteSísmicoVertical");
  auto& g = p_.GrietaTracción;
  g.AbscisaPrimerPunto = x1;
  g.OrdenadaPrimerPunto = y1;
  g.AbscisaSegundoPunto = x2;
  g.OrdenadaSegundoPunto = y2;
  g.AbscisaNF = xnf;
  g.OrdenadaNF = ynf;
  pi.ParámetrosInstantáneos = instantáneos;
  // 16: the values stay stored, the screen stays open
  const bool roca = p_.TipoDeMaterial == "R";
  if (roca && método == 3) {
    ui.Mensaje("El método de Cálculo de Fellenius no aplica en Rocas.", "Para suelos:");
    return;
  }
  if (roca && método == 2 && instantáneos != 3) {
    ui.Mensaje(
        "Al menos que seleccione la opción <3> para parámetros instantáneos, el método de Bishop no "
        "aplica para trabajar en ROCA.");
    return;
  }
  if (método == 3 && instantáneos > 0) {
    ui.Mensaje(
        "El método de Cálculo de Fellenius no aplica en este programa para ser usado en la "
        "metodología de  Parámetros instantáneos.",
        kTítuloInstantáneos);
    return;
  }
  if (método == 2 && instantáneos == 1) {
    ui.Mensaje(
        "El método de Cálculo de Bishop no aplica  en la metodología de  Parámetros instantáneos "
        "caso <1>. En este caso aplique  el método de cálculo <1> de Leshchinsky, D. and Huang. Se "
        "considera que ud ya hizo previamente el análisis para material rocoso por los métodos de "
        "los mismos autores y Brown.",
        kTítuloInstantáneos);
    return;
  }
  if (método == 4 && instantáneos == 1) {
    ui.Mensaje(
        "El método de Cálculo de Janbu no aplica  en la metodología de  Parámetros instantáneos "
        "caso <1>. En este caso aplique  el método de cálculo <1> de Leshchinsky, D. and Huang. Se "
        "considera que ud ya hizo previamente el análisis para material rocoso por los métodos de "
        "los mismos autores y Brown.",
        kTítuloInstantáneos);
    return;
  }
  // 17: exact, the crack has to start on the first point of the failure surface
  if (y2 < y1 && (y2 != p_.CoordenadasFalla.Y.Leer(1) || x2 != p_.CoordenadasFalla.X.Leer(1))) {
    ui.Mensaje(
        "Las coordenadas del segundo pto de la grieta deben ser exactamente iguales a las "
        "coordenadas del primer punto de la superficie de falla",
        "OJO PELAO con este mensaje:");
    return;
  }
  // 18
  g.EmpujeGrieta = ynf > 0 ? (ynf - y2) * (ynf - y2) * 0.5 : 0.0;
  // 19: half the difference of the end points of the surface, not their mean
  if (!arco) {
    const auto& t = p_.CoordenadasTalud;
    const long último = p_.NúmeroPuntosTalud;
    pi.ReferenciaMomentoX = (t.X.Leer(1) - t.X.Leer(último)) / 2;
    pi.ReferenciaMomentoY = (t.Y.Leer(1) - t.Y.Leer(último)) / 2;
    pi.CentroX = pi.ReferenciaMomentoX;
    pi.CentroY = pi.ReferenciaMomentoY;
  }
  // 20
  p_.DatosGuardados = false;
  p_.ParámetrosInicialesDados = true;
  cerrada = true;
}

void PantallaConstantes::Cancelar(Interfaz&) { cerrada = true; }

void AbrirConstantesDeCálculo(Proyecto& p, Interfaz& ui) {
  PantallaConstantes f(p);
  ui.Abrir(f);
}

void MenúArchivoConstantes(Proyecto& p, Interfaz& ui) {
  if (!PuertaTipoDeAnálisis(p, ui)) return;
  if (p.NúmeroPuntosFalla <= 1 || !p.GeometríaFallaDefinida) {
    ui.Mensaje(
        "Debe introducir coordenadas de la superficie de falla y definir las uniones entre los "
        "puntos de la superficie de falla",
        "Coordenadas superficie de falla");
    return;
  }
  AbrirConstantesDeCálculo(p, ui);
}

}  // namespace lomaterra
