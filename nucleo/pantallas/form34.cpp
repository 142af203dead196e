#include "pantallas/form34.h"

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {
std::size_t Z(long i) {
  return static_cast<std::size_t>(i);
}
const char* const kLista = "ListaDePresiónDePoros";
}  // namespace

Form34::Form34(Proyecto& p, bool elementos) : p_(p), elementos_(elementos) {
  nombre = "Form34";
  título = "Presiones de poros controladas por el usuario";
  listas = {{kLista, {elementos ? "Elemento" : "Dovela", "Presión de poros"}, {}, 0, {}}};
  listas[0].alSeleccionar = [this](Interfaz&) {
    const auto& l = lista(kLista);
    if (l.seleccionada >= 1 && l.seleccionada <= static_cast<int>(l.filas.size()))
      texto("TextoPresiónDePoros") = l.filas[Z(l.seleccionada - 1)][1];
  };
  campos = {{"TextoPresiónDePoros", "Presión de poros (ton/m2):", "",
             "Nueva presión de poros en la base de la dovela seleccionada."}};
  botones = {
      {"Modificar", "&Modificar", [this](Interfaz& ui) { Modificar(ui); }},
      {"BotónAceptar", "&Aceptar", [this](Interfaz& ui) { Aceptar(ui); }},
      {"BotónCancelar", "&Cancelar", [this](Interfaz& ui) { Cancelar(ui); }},
  };
}

void Form34::Activar(Interfaz& ui) {
  const long n = elementos_ ? p_.Malla.NúmeroDeElementos : p_.NúmeroBordes - 1;
  if (n < 1 && elementos_) {
    ui.Mensaje("Defina elementos y luego puede asignar las presiones de poros.");
    cerrada = true;
    return;
  }
  if (n < 1) {
    ui.Mensaje(
        "Ordene al programa hacer la estimación del factor de seguridad. Luego puede entrar a esta "
        "sesión y modificar las presiones de poros y hacer un recálculo.");
    cerrada = true;
    return;
  }
  auto& l = lista(kLista);
  l.filas.clear();
  l.seleccionada = 0;
  presión_.assign(Z(n + 1), 0.0);
  for (long i = 1; i <= n; ++i) {
    presión_[Z(i)] = elementos_ ? p_.Malla.PresiónPorosElemento.Leer(i) : p_.TablaDovelas.PresiónPoros.Leer(i);
    l.filas.push_back({Formato(i, "#"), Formato(presión_[Z(i)], "#0.00")});
  }
  texto("TextoPresiónDePoros").clear();
}

void Form34::Modificar(Interfaz& ui) {
  auto& l = lista(kLista);
  if (l.seleccionada < 1 || l.seleccionada > static_cast<int>(l.filas.size())) {
    ui.Mensaje("Seleccione en la lista la dovela cuya presión de poros desea modificar.");
    return;
  }
  if (!EsNúmero(texto("TextoPresiónDePoros"))) {
    ui.Mensaje("Debe introducir un número para la presión de poros");
    return;
  }
  const std::size_t i = Z(l.seleccionada);
  presión_[i] = ANúmero(texto("TextoPresiónDePoros"));
  l.filas[i - 1][1] = Formato(presión_[i], "#0.00");
}

void Form34::Aceptar(Interfaz&) {
  auto& u = elementos_ ? p_.Malla.PresiónPorosElemento : p_.TablaDovelas.PresiónPoros;
  const long n = static_cast<long>(presión_.size()) - 1;
  if (u.Tamaño() < n) u.RedimensionarConservando(n);
  for (long i = 1; i <= n; ++i) u[i] = presión_[Z(i)];
  p_.PresionesExistentes = true;
  p_.DatosGuardados = false;
  cerrada = true;
}

void Form34::Cancelar(Interfaz& ui) {
  if (ui.Pregunta(
          "Si hizo algún cambio en las presiones de poros de los elementos, debe presionar el "
          "botón "
          "Aceptar para tomarlos en cuenta en los análisis. ¿No desea registrar ningún cambio?"))
    cerrada = true;
}

void PresionesDePorosEquilibrioLímite(Proyecto& p, Interfaz& ui) {
  if (p.TipoDeAnálisis.empty()) {
    ui.Mensaje("Seleccione en la pantalla principal la opción <T> ó <F>");
    return;
  }
  if (p.TipoDeAnálisis != "T") {
    ui.Mensaje("Ud.está trabajando con elementos finitos y no por métodos de equilibrio límites.");
    return;
  }
  if (!p.CálculoHecho) {
    ui.Mensaje(
        "Ud.está trabajando por métodos de equilibrio límites. Ordene hacer el cálculo por el "
        "método seleccionado en los parámetros iniciales y luego podrá modificar las presiones de "
        "poros de las dovelas para un recálculo.");
    return;
  }
  Form34 pantalla(p);
  ui.Abrir(pantalla);
}

}  // namespace lomaterra
