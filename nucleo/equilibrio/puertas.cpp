#include "equilibrio/puertas.h"

#include "equilibrio/dovelas.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kPreguntaPrimeraVez =
    "¿Es primera vez que está haciendo el cálculo o modificó las características geométricas o "
    "geomecánicas del problema o niveles freáticos?";
const char* const kPreguntaDesembalse = "Está analizando desembalse rápido en presas de tierra?";

bool PuertaTipoDeAnálisis(Proyecto& p, Interfaz& ui) {
  if (p.TipoDeAnálisis.empty()) {
    ui.Mensaje("Seleccione en la pantalla principal la opción <T> ó <F>");
    return false;
  }
  if (p.TipoDeAnálisis == "F") {
    ui.Mensaje("Ud. está trabajando con elementos finitos");
    return false;
  }
  return true;
}

bool PuertasIniciales(Proyecto& p, Interfaz& ui) {
  if (!PuertaTipoDeAnálisis(p, ui)) return false;
  if (!p.ParámetrosInicialesDados) {
    ui.Mensaje("Faltan los parámetros iniciales de cálculo. Vaya a la opción Equilibrio límite.",
               "Parámetros iniciales:");
    return false;
  }
  p.DesembalseRápido = ui.Pregunta(kPreguntaDesembalse);
  return true;
}

bool PuertaRecalcular(Proyecto& p, Interfaz& ui) {
  if (p.CálculoHecho) return ui.Pregunta("El cálculo ya está hecho, ¿Desea recalcular?");
  return true;
}

bool PuertaGrieta(Proyecto& p, Interfaz& ui) {
  const auto& g = p.GrietaTracción;
  const char* título = "OJO PELAO con este mensaje:";
  if (g.OrdenadaSegundoPunto < g.OrdenadaPrimerPunto &&
      (g.AbscisaSegundoPunto != p.CoordenadasFalla.X.Leer(1) ||
       g.OrdenadaSegundoPunto != p.CoordenadasFalla.Y.Leer(1))) {
    ui.Mensaje(
        "Las coordenadas del segundo pto de la grieta deben ser exactamente iguales a las "
        "coordenadas del primer punto de la superficie de falla, por favor revise las coordenadas "
        "de la superficie de falla y las coordenadas de la grieta.",
        título);
    return false;
  }
  if (g.OrdenadaNF > 0 && (g.AbscisaNF != p.CoordenadasFreático.X.Leer(1) ||
                           g.OrdenadaNF != p.CoordenadasFreático.Y.Leer(1))) {
    ui.Mensaje(
        "Las coordenadas del N.F en la grieta deben ser exactamente iguales a la primera "
        "coordenada del N.F que Ud debe dar. Por favor revise las coordenadas del N.F y la "
        "coordenada del N.F en la grieta.",
        título);
    return false;
  }
  return true;
}

void PrepararDovelas(Proyecto& p, Interfaz& ui, bool sinPregunta) {
  if (!p.TodasLasEtapas()) {
    EjecutarEtapas(p, ui);
    return;
  }
  if (sinPregunta) return;
  if (ui.Pregunta(kPreguntaPrimeraVez)) EjecutarEtapas(p, ui);
}

}  // namespace lomaterra
