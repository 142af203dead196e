#include "equilibrio/form18.h"

#include <cmath>

#include "equilibrio/puertas.h"
#include "proyecto/valores_posibles.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {
std::size_t Z(long i) {
  return static_cast<std::size_t>(i);
}
const char* const kLista = "ListaParámetrosDeResistencia";
}  // namespace

Form18::Form18(Proyecto& p) : p_(p) {
  nombre = "Form18";
  título = "Cambio de la presión de poros y parámetros de resistencia";
  listas = {{kLista, {"Dovela", "Cohesión", "Fricción", "Presión de poros"}, {}, 0, {}}};
  listas[0].alSeleccionar = [this](Interfaz&) {
    const auto& l = lista(kLista);
    if (l.seleccionada < 1 || l.seleccionada > static_cast<int>(l.filas.size())) return;
    const auto& f = l.filas[Z(l.seleccionada - 1)];
    texto("TextoCambioCohesión") = f[1];
    texto("TextoCambioFricción") = f[2];
    texto("TextoCambioPresiónPoros") = f[3];
  };
  campos = {
      {"TextoCambioCohesión", "Cohesión (ton/m2):", "",
       "Nueva cohesión de la dovela seleccionada."},
      {"TextoCambioFricción", "Fricción (grados):", "",
       "Nuevo ángulo de fricción de la dovela seleccionada."},
      {"TextoCambioPresiónPoros", "Presión de poros (ton/m2):", "",
       "Nueva presión de poros en la base de la dovela seleccionada."},
  };
  botones = {
      {"Modificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
      {"BotónAceptar", "&Aceptar", [this](Interfaz& ui) { Aceptar(ui); }},
      {"BotónCancelar", "&Cancelar", [this](Interfaz& ui) { Cancelar(ui); }},
  };
}

void Form18::Llenar() {
  const long n = p_.NúmeroBordes - 1;
  const auto& d = p_.TablaDovelas;
  cohesión_.assign(Z(n + 1), 0.0);
  fricción_.assign(Z(n + 1), 0.0);
  presión_.assign(Z(n + 1), 0.0);
  auto& l = lista(kLista);
  l.filas.clear();
  l.seleccionada = 0;
  for (long i = 1; i <= n; ++i) {
    cohesión_[Z(i)] = d.CohesiónBase.Leer(i);
    fricción_[Z(i)] = d.FricciónBase.Leer(i);
    presión_[Z(i)] = d.PresiónPoros.Leer(i);
    l.filas.push_back({Formato(i, "#"), Formato(cohesión_[Z(i)], "#0.00"),
                       Formato(fricción_[Z(i)], "#0.00"), Formato(presión_[Z(i)], "#0.00")});
  }
  for (auto& c : campos) c.valor.clear();
}

void Form18::Activar(Interfaz& ui) {
  cambiosAceptados = false;
  if (p_.ParámetrosIniciales.ParámetrosInstantáneos == 0) {
    ui.Mensaje("Ud. debe seleccionar en PARAMETROS INICIALES LA OPCION PARAMETROS INSTANTANEOS",
               "Parámetros instantáneos");
    cerrada = true;
    return;
  }
  if (p_.NúmeroBordes < 2) {
    ui.Mensaje(
        "Todavía no hay dovelas. Ordene al programa hacer la estimación del factor de seguridad. "
        "Luego puede entrar a esta sesión y modificar los parámetros de resistencia y las "
        "presiones "
        "de poros.");
    cerrada = true;
    return;
  }
  Llenar();
}

void Form18::Modificar(Interfaz& ui) {
  auto& l = lista(kLista);
  if (l.seleccionada < 1 || l.seleccionada > static_cast<int>(l.filas.size())) {
    ui.Mensaje("Seleccione en la lista la dovela cuyos valores desea modificar.");
    return;
  }
  if (!EsNúmero(texto("TextoCambioCohesión"))) {
    ui.Mensaje("Debe introducir un número para la cohesión");
    return;
  }
  if (!EsNúmero(texto("TextoCambioFricción"))) {
    ui.Mensaje("Debe introducir un número para la fricción");
    return;
  }
  if (!EsNúmero(texto("TextoCambioPresiónPoros"))) {
    ui.Mensaje("Debe introducir un número para la presión de poros");
    return;
  }
  if (!CohesiónYFricciónPosibles(ui, ANúmero(texto("TextoCambioCohesión")),
                                 ANúmero(texto("TextoCambioFricción"))))
    return;
  const std::size_t i = Z(l.seleccionada);
  cohesión_[i] = ANúmero(texto("TextoCambioCohesión"));
  fricción_[i] = ANúmero(texto("TextoCambioFricción"));
  presión_[i] = ANúmero(texto("TextoCambioPresiónPoros"));
  auto& f = l.filas[i - 1];
  f[1] = Formato(cohesión_[i], "#0.00");
  f[2] = Formato(fricción_[i], "#0.00");
  f[3] = Formato(presión_[i], "#0.00");
}

void Form18::Aceptar(Interfaz& ui) {
  if (!ui.Pregunta("Si Ud. modificó algun valor de la tabla eso afectará el cálculo oroginal. "
                   "¿Acepta los cambios?"))
    return;
  auto& d = p_.TablaDovelas;
  const long n = static_cast<long>(cohesión_.size()) - 1;
  // The three columns go back as they stand in the list, and nothing else: the tangent of the
  // friction is rebuilt by the method that reads the letter of the instantaneous parameters.
  for (auto* c : {&d.CohesiónBase, &d.FricciónBase, &d.PresiónPoros})
    if (c->Tamaño() < n) c->RedimensionarConservando(n);
  for (long i = 1; i <= n; ++i) {
    d.CohesiónBase[i] = cohesión_[Z(i)];
    d.FricciónBase[i] = fricción_[Z(i)];
    d.PresiónPoros[i] = presión_[Z(i)];
  }
  p_.DatosGuardados = false;
  cambiosAceptados = true;
  cerrada = true;
}

void Form18::Cancelar(Interfaz& ui) {
  if (!cambiosAceptados && !ui.Pregunta("No desea cambiar algunos valores de los parámetros de "
                                        "resistencia en las dovelas o presión de poros?"))
    return;
  cerrada = true;
}

void CambioParámetrosResistenciaPresiónPoros(Proyecto& p, Interfaz& ui) {
  if (!PuertaTipoDeAnálisis(p, ui)) return;
  const Entero caso = p.ParámetrosIniciales.ParámetrosInstantáneos;
  if (caso != 1 && caso != 2 && caso != 3) {
    ui.Mensaje("Seleccione en la PANTALLA PARAMETROS INICIALES la opción PARAMETROS INSTANTANEOS ",
               "PARAMETROS INSTANTANEOS");
    return;
  }
  Form18 pantalla(p);
  ui.Abrir(pantalla);
}

}  // namespace lomaterra
