#include "equilibrio/form13.h"

#include "proyecto/compat.h"
#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

std::size_t Z(long i) {
  return static_cast<std::size_t>(i);
}

const char* const kCompararSuelo =
    "Compare la columna '3' con la '4' para observar en cuales dovelas no le chequea el valor del "
    "esfuerzo normal total, el cual es determinante en la resistencia al esfuerzo de tensión del "
    "suelo. Ud. puede modificar los valores si lo desea tomando en consideración que cada uno debe "
    "ser mayor que el valor presentado en la cuarta columna, de lo contrario cancele y modifique "
    "los "
    "multiplicadores de Lagrange y el factor de seguridad en la opción Parámetros Iniciales.";
const char* const kCompararRoca =
    "Compare la columna '3' con la '4' para observar en cuales dovelas no le chequea el valor del "
    "esfuerzo normal total, el cual es determinante en la resistencia al esfuerzo de tensión de la "
    "roca. Ud. puede modificar los valores si lo desea tomando en consideración que cada uno debe "
    "ser mayor que el valor presentado en la cuarta columna, de lo contrario cancele y modifique "
    "los "
    "multiplicadores de Lagrange y el factor de seguridad en la opción Parámetros Iniciales.";
const char* const kCompararSigma3 =
    "Compare la columna '3' con la '4' para observar en cuales dovelas no le chequea el valor de "
    "esfuerzo principal menor sigma '3', el cual es determinante en la resistencia al corte de la "
    "roca. Ud. puede modificar los valores si lo desea tomando en consideración que cada uno debe "
    "ser mayor que el valor presentado en la cuarta columna, de lo contrario cancele y modifique "
    "los "
    "multiplicadores de Lagrange y el factor de seguridad en la opción Parámetros Iniciales.";
const char* const kFallidaSuelo =
    "Observe en la parte inferior en cuál dovela no le chequea el valor del esfuerzo normal total, "
    "el cual es determinante en la resistencia al esfuerzo de tensión del suelo. Ud. puede "
    "modificar el valor si lo desea tomando en consideración que el mismo debe ser mayor que el "
    "valor presentado en la cuarta columna, de lo contrario cancele y modifica los multiplicadores "
    "de Lagrange y el factor de seguridad en la opción Parámetros Iniciales.";
const char* const kFallidaRoca =
    "Observe en la parte inferior en cuál dovela no le chequea el valor del esfuerzo normal total, "
    "el cual es determinante en la resistencia al esfuerzo de tensión de la roca. Ud. puede "
    "modificar el valor si lo desea tomando en consideración que el mismo debe ser mayor que el "
    "valor presentado en la cuarta columna, de lo contrario cancele y modifica los multiplicadores "
    "de Lagrange y el factor de seguridad en la opción Parámetros Iniciales.";
const char* const kFallidaSigma3 =
    "Observe en la parte inferior en cuál dovela no chequeó un valor de esfuerzo principal menor "
    "sigma '3', el cual es determinante en la resistencia al corte de la roca. Ud. puede modificar "
    "el valor si lo desea tomando en consideración que el mismo debe ser mayor que el valor "
    "presentado en la cuarta columna,de lo contrario cancele y modifique los multiplicadores de "
    "Lagrange y el factor de seguridad en la opción Parámetros Iniciales.";

}  // namespace

Form13::Form13(Proyecto& p) : p_(p) {
  nombre = "Form13";
  título = "Resultados de los sigma 3 en iteraciones";
  listas = {{"ListaValoresDeSigma3", {"Dovela", "Sig_ant", "Sig_act", "Sig_mín"}, {}, 0, {}}};
  listas[0].alSeleccionar = [this](Interfaz&) {
    const auto& l = lista("ListaValoresDeSigma3");
    if (l.seleccionada >= 1 && l.seleccionada <= static_cast<int>(l.filas.size()))
      texto("TextoSigma3Actual") = l.filas[Z(l.seleccionada - 1)][2];
  };
  campos = {
      {"TextoSigma3Actual", "Valor actual:", "",
       "Nuevo valor para la dovela seleccionada (ton/m2)."},
      {"TextoDovelaFallida", "Dovela que no chequea:", "", "", true},
  };
  botones = {
      {"Modificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
      {"BotónAceptar", "&Aceptar", [this](Interfaz& ui) { Aceptar(ui); }},
      {"BotónSalir", "&Salir", [this](Interfaz& ui) { Salir(ui); }},
  };
  ElegirLey();
}

std::string Form13::TextoDeApertura() const {
  const bool fallida = p_.DovelaFallida > 0;
  switch (ley_) {
    case Ley::Suelo:
      return fallida ? kFallidaSuelo : kCompararSuelo;
    case Ley::Roca:
      return fallida ? kFallidaRoca : kCompararRoca;
    case Ley::RocaSigma3:
      return fallida ? kFallidaSigma3 : kCompararSigma3;
  }
  return "";
}

void Form13::ElegirLey() {
  ley_ = p_.TipoDeMaterial == "R" ? (leySigma3 ? Ley::RocaSigma3 : Ley::Roca) : Ley::Suelo;
  título = ley_ == Ley::RocaSigma3 ? "Resultados de los sigma3 en el proceso iterativo"
                                   : "Resultados de los sigma normales en el proceso iterativo";
}

void Form13::Activar(Interfaz&) {
  ElegirLey();
  const std::string encabezado = ley_ == Ley::RocaSigma3
                                     ? "Chequeo de sigma '3'"
                                     : "Chequeo de los esfuerzo normal (total) a la SPF.";
  nota = encabezado + "\n" + TextoDeApertura();

  const long n = p_.NúmeroBordes - 1;
  const long k = p_.NúmeroIteraciones;
  const auto& d = p_.TablaDovelas;
  auto& l = lista("ListaValoresDeSigma3");
  l.filas.clear();
  l.seleccionada = 0;
  valores_.assign(Z(n + 1), 0.0);
  límites_.assign(Z(n + 1), 0.0);
  for (long i = 1; i <= n; ++i) {
    const double anterior = p_.EsfuerzoIteración.Leer(i + 1, k - 1);
    valores_[Z(i)] = p_.EsfuerzoIteración.Leer(i + 1, k);
    // In soil the effective stress may not fall below −c/tanφ: on the total stresses of the list
    // the limit is −c/tanφ plus the pore pressure. A friction of 0 ends the command here.
    if (ley_ == Ley::Suelo)
      límites_[Z(i)] =
          Div(-d.CohesiónBase[i], d.TanFricciónBase[i], "el límite del esfuerzo normal") +
          d.PresiónPoros.Leer(i);
    else
      límites_[Z(i)] = p_.LímiteEsfuerzo.Leer(i + 1);
    l.filas.push_back({Formato(i, "#"), Formato(anterior, "#0.00"),
                       Formato(valores_[Z(i)], "#0.00"), Formato(límites_[Z(i)], "#0.00")});
  }
  texto("TextoSigma3Actual").clear();
  texto("TextoDovelaFallida") = p_.DovelaFallida > 0 ? Formato(p_.DovelaFallida, "#") : "";
}

void Form13::Modificar(Interfaz& ui) {
  auto& l = lista("ListaValoresDeSigma3");
  if (l.seleccionada < 1 || l.seleccionada > static_cast<int>(l.filas.size())) {
    ui.Mensaje("Seleccione en la lista la dovela cuyo valor desea modificar.");
    return;
  }
  const std::string& t = texto("TextoSigma3Actual");
  if (!EsNúmero(t)) {
    ui.Mensaje("Debe introducir un número para los sigma");
    return;
  }
  const double v = ANúmero(t);
  valores_[Z(l.seleccionada)] = v;
  l.filas[Z(l.seleccionada - 1)][2] = Formato(v, "#0.00");
}

bool Form13::ValorDeFila(long i, double& valor) const {
  const auto& fila = listas[0].filas[Z(i - 1)];
  if (!EsNúmero(fila[2])) return false;
  // A value shown as it was filled keeps all its digits; a value typed into the list is read.
  valor = fila[2] == Formato(valores_[Z(i)], "#0.00") ? valores_[Z(i)] : ANúmero(fila[2]);
  return true;
}

bool Form13::Cumple(long i, double valor) const {
  if (ley_ == Ley::Suelo) {
    const auto& d = p_.TablaDovelas;
    const double mínimo =
        Div(-d.CohesiónBase[i], d.TanFricciónBase[i], "el límite del esfuerzo normal");
    return !(mínimo > valor - d.PresiónPoros.Leer(i));
  }
  return !(límites_[Z(i)] > valor);
}

void Form13::Aceptar(Interfaz& ui) {
  const auto& filas = lista("ListaValoresDeSigma3").filas;
  const long n = static_cast<long>(filas.size());
  std::vector<double> v(Z(n + 1), 0.0);
  for (long i = 1; i <= n; ++i) {
    const auto& f = filas[Z(i - 1)];
    if (Recortar(f[2]).empty() || Recortar(f[3]).empty() || !ValorDeFila(i, v[Z(i)])) {
      ui.Mensaje(
          "Faltan datos. Debe introducir los valores deseados para todos y cada una de las dovelas",
          ley_ == Ley::Suelo ? "Valores de esfuerzos normales" : "Valores de sigma3");
      return;
    }
  }
  for (long i = 1; i <= n; ++i) {
    if (!Cumple(i, v[Z(i)])) {
      p_.DovelaFallida = static_cast<Entero>(i);
      texto("TextoDovelaFallida") = Formato(i, "#");
      nota = nota.substr(0, nota.find('\n')) + "\n" + TextoDeApertura();
      return;
    }
  }
  const long k = p_.NúmeroIteraciones;
  for (long i = 1; i <= n; ++i) p_.EsfuerzoIteración(i + 1, k) = v[Z(i)];
  p_.SigmaCorregidaDisponible = true;
  cerrada = true;
}

void Form13::Salir(Interfaz& ui) {
  if (ui.Pregunta("Ud. desea utilizar los valores actuales de sigma para el cálculo?")) {
    Aceptar(ui);
    return;
  }
  cerrada = true;
}

}  // namespace lomaterra
