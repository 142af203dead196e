#include "pantallas/form15.h"

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kPreguntaCambioAElementosFinitos =
    "Hay cálculos por el método de equilibrio límite. ¿Ud va a usar parte de la información dada "
    "al programa para trabajar por el método de elementos finitos?";
const char* const kPreguntaCambioAEquilibrioLímite =
    "Hay cálculos por el método de elementos finitos. ¿Ud va a usar parte de la información dada "
    "al programa para trabajar por el método de equilibrio límite?";
const char* const kMensajeLetraDeAnálisis =
    "Para el análisis debe introducir:  Una 'T' en el caso de ANÁLISIS POR EQUILIBRIO LÍMITE o "
    "una 'F' en el caso de ANÁLISIS POR ELEMENTOS FINITOS";

namespace {

// Each field with the title and text of the box that asks for it when it is left empty. The
// last box keeps the title of the field before it.
struct Pedido {
  const char* control;
  const char* etiqueta;
  const char* título;
  const char* texto;
};

constexpr Pedido kPedidos[] = {
    {"TextoProgresivaInicial", "Progresiva inicial:", "Progresiva inicial",
     "Debe dar la progresiva de la forma 1+001.00 "},
    {"TextoProgresivaFinal", "Progresiva final:", "Progresiva final",
     "Debe dar la progresiva de la forma 1+001.00"},
    {"TextoFechaProyecto", "Fecha del proyecto:", "Fecha del proyecto",
     "Debe dar la fecha de la forma 30 / 12/ 1999"},
    {"TextoIngResponsable", "Ing. responsable:", "Nombre del Ing.", "Nombre de la persona responsable."},
    {"TextoEmpresa", "Empresa:", "Progresiva final",
     "Debe dar un nombre para la Empresa encargada del proyecto"},
};

}  // namespace

Form15::Form15(Proyecto& p) : p_(p) {
  nombre = "Form15";
  título = "Información del proyecto";
  for (const auto& d : kPedidos) campos.push_back({d.control, d.etiqueta, "", d.texto});
  campos.push_back({"TextoDeAnálisis", "Tipo de análisis <T/F>:", "",
                    "'T' análisis por equilibrio límite, 'F' análisis por elementos finitos"});
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

void Form15::Activar(Interfaz&) {
  const auto& i = p_.InformaciónProyecto;
  texto("TextoProgresivaInicial") = i.ProgresivaInicial;
  texto("TextoProgresivaFinal") = i.ProgresivaFinal;
  texto("TextoFechaProyecto") = i.FechaProyecto;
  texto("TextoIngResponsable") = i.IngResponsable;
  texto("TextoEmpresa") = i.Empresa;
  texto("TextoDeAnálisis") = p_.TipoDeAnálisis;
}

void Form15::Aceptar(Interfaz& ui) {
  for (const auto& d : kPedidos)
    if (Recortar(texto(d.control)).empty()) {
      ui.Mensaje(d.texto, d.título);
      return;
    }
  const std::string letra = Mayúsculas(Recortar(texto("TextoDeAnálisis")));
  if (letra != "T" && letra != "F") {
    ui.Mensaje(kMensajeLetraDeAnálisis);
    return;
  }
  texto("TextoDeAnálisis") = letra;

  const std::string anterior = p_.TipoDeAnálisis;
  const bool cambio = !anterior.empty() && anterior != letra;
  if (cambio) {
    const bool conserva =
        ui.Pregunta(letra == "F" ? kPreguntaCambioAElementosFinitos : kPreguntaCambioAEquilibrioLímite);
    if (!conserva) {
      // Nothing is thrown away on a No: the former kind comes back into its box and the screen
      // stays open; a fresh project of the other kind starts from "Nuevo".
      texto("TextoDeAnálisis") = anterior;
      ui.Mensaje(
          "Se mantiene el tipo de análisis anterior. Si no va a usar la información actual, "
          "seleccione 'Nuevo' en el menú 'Archivo' y luego dé la información del proyecto.",
          "Información del proyecto");
      return;
    }
  }

  auto& i = p_.InformaciónProyecto;
  i.ProgresivaInicial = texto("TextoProgresivaInicial");
  i.ProgresivaFinal = texto("TextoProgresivaFinal");
  i.FechaProyecto = texto("TextoFechaProyecto");
  i.IngResponsable = texto("TextoIngResponsable");
  i.Empresa = texto("TextoEmpresa");
  p_.TipoDeAnálisis = letra;
  if (cambio) {
    // The data stay; what was calculated under the former kind no longer holds.
    if (anterior == "T") {
      p_.ParámetrosInicialesDados = false;
      p_.CálculoHecho = false;
      p_.ParámetrosIniciales.ParámetrosInstantáneosDisponibles = false;
      p_.ParámetrosInstantáneosCalculados = false;
    } else {
      p_.Malla.FSFinalElementos = 0;
      p_.Sísmico.SismoCalculado = false;
      p_.Sísmico.CálculoSísmicoHecho = false;
      p_.ParámetrosInicialesDados = false;
    }
  }
  p_.InformaciónDada = true;
  p_.Ventana.EntradaCoordenadasAbierta = true;
  p_.DatosGuardados = false;
  cerrada = true;
}

void Form15::Cancelar(Interfaz&) { cerrada = true; }

void MenúInformación(Proyecto& p, Interfaz& ui) {
  Form15 f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
