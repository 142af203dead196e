#include "equilibrio/form17.h"

#include <string>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {
const char* const kTítuloValores = "Valores de ht";
constexpr int kColumnaNuevo = 3;  // zero-based column "Nuevo ht(m)"
}  // namespace

Form17::Form17(Proyecto& p) : p_(p) {
  nombre = "Form17";
  título = "Opción para cambio de altura entre dovelas";
  campos = {
      {"TextoFactorDeSeguridad", "Factor de seguridad de esta iteración", "",
       "El factor de seguridad calculado con las alturas de la lista: léalo antes de decidir si "
       "es la solución",
       true},
      {"TextoNuevoValorDeht", "Nuevo valor de ht (m)", "",
       "Altura de aplicación de la fuerza lateral sobre la superficie de falla, para la dovela "
       "seleccionada en la lista"}};
  ListaPantalla lista;
  lista.nombre = "ListaValoresDEht";
  lista.columnas = {"Dovela", "alfa_t (radianes)", "  ht (m)", "Nuevo ht(m)"};
  // Selecting a row puts its height in the box, the new one when there is one.
  lista.alSeleccionar = [this](Interfaz&) {
    auto& l = this->lista("ListaValoresDEht");
    const int fila = l.seleccionada;
    if (fila < 1 || fila > static_cast<int>(l.filas.size())) return;
    const auto& nuevo = nuevos_[static_cast<std::size_t>(fila)];
    texto("TextoNuevoValorDeht") =
        NúmeroATexto(nuevo ? *nuevo : p_.TablaDovelas.AlturaEmpuje.Leer(fila));
  };
  listas.push_back(lista);
  botones = {{"Modificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
             {"BotónAceptar", "&Aceptar", [this](Interfaz& ui) { BotónAceptar(ui); }},
             {"BotónSalir", "&Salir", [this](Interfaz& ui) { BotónSalir(ui); }}};
}

void Form17::Activar(Interfaz& ui) {
  const long n = p_.NúmeroBordes - 1;
  auto& l = lista("ListaValoresDEht");
  l.filas.clear();
  l.seleccionada = 0;
  for (long i = 1; i <= n; ++i)
    l.filas.push_back({std::to_string(i), Formato(p_.InclinaciónEmpuje.Leer(i), "#0.0000"),
                       Formato(p_.TablaDovelas.AlturaEmpuje.Leer(i), "#0.00"), ""});
  nuevos_.assign(static_cast<std::size_t>(n > 0 ? n : 0) + 1, std::nullopt);
  hayNuevos_ = false;
  texto("TextoNuevoValorDeht").clear();
  // The factor of the pass just made, in view while the user decides.
  texto("TextoFactorDeSeguridad") =
      p_.NúmeroIteraciones >= 1
          ? Formato(p_.HistoriaIteraciones.FactorDeSeguridad.Leer(p_.NúmeroIteraciones),
                    "#0.000000000")
          : std::string();
  cerrada = false;

  if (ui.Pregunta("¿Considera que es la solución?")) {
    p_.AceptaSolución = true;
    cerrada = true;
    return;
  }
  if (ui.Pregunta("¿Desea salir del cálculo?")) {
    p_.SaleDelCálculo = true;
    cerrada = true;
  }
}

void Form17::Modificar(Interfaz& ui) {
  auto& l = lista("ListaValoresDEht");
  const int fila = l.seleccionada;
  if (fila < 1 || fila > static_cast<int>(l.filas.size())) {
    ui.Mensaje("Seleccione en la lista la dovela cuyo ht desea cambiar.", kTítuloValores);
    return;
  }
  const std::string& t = texto("TextoNuevoValorDeht");
  if (!EsNúmero(t)) {
    ui.Mensaje("Debe introducir un número para el nuevo valor de ht.", kTítuloValores);
    return;
  }
  const double v = ANúmero(t);
  nuevos_[static_cast<std::size_t>(fila)] = v;
  l.filas[static_cast<std::size_t>(fila - 1)][kColumnaNuevo] = Formato(v, "#0.00");
  hayNuevos_ = true;
}

void Form17::BotónAceptar(Interfaz& ui) {
  const std::size_t n = nuevos_.empty() ? 0 : nuevos_.size() - 1;
  for (std::size_t i = 1; i <= n; ++i)
    if (!nuevos_[i]) {
      ui.Mensaje(
          "Faltan datos. Debe introducir los valores deseados para todos y cada una de las dovelas",
          kTítuloValores);
      return;
    }
  for (std::size_t i = 1; i < n; ++i)
    if (*nuevos_[i] == 0 && *nuevos_[i + 1] == 0) {
      ui.Mensaje("Parece que Ud. va  a trabajar con ht que no pueden ser correctos",
                 kTítuloValores);
      return;
    }
  auto& ht = p_.TablaDovelas.AlturaEmpuje;
  if (ht.Tamaño() < static_cast<long>(n)) ht.RedimensionarConservando(static_cast<long>(n));
  for (std::size_t i = 1; i <= n; ++i) ht[static_cast<long>(i)] = *nuevos_[i];
  cerrada = true;
}

void Form17::BotónSalir(Interfaz& ui) {
  if (hayNuevos_ && ui.Pregunta("Ud. desea utilizar los nuevos valores  de ht para el cálculo?"))
    return;
  cerrada = true;
}

}  // namespace lomaterra
