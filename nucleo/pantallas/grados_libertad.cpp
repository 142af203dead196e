#include "pantallas/grados_libertad.h"

#include "pantallas/estratos_sismicos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {

void GradosDeLibertad(Proyecto& p, Interfaz& ui) {
  MallaElementos& m = p.Malla;
  DatosSísmicos& s = p.Sísmico;
  if (p.TipoDeAnálisis != "F") {
    ui.Mensaje("Ud. no está trabajando con elementos finitos");
    return;
  }
  if (!m.RestriccionesTrasRefinar) {
    ui.Mensaje(
        "Vaya a la opción Nodos con restricción, e inserte los nuevos Nodos con está característica, debido al "
        "incremento de número de elementos.");
    return;
  }
  if (!s.RegistroDado) {
    ui.Mensaje(
        "Ud hizo click en la sesión 'Estimación de los grados de libertad', lo cual es requerido para un análisis "
        "sísmico. Sin embargo no ha dado al programa ninguna información de registro sísmico. Vaya a la sesión "
        "'Input de registros sísmico' para dar el registro respectivo.");
    return;
  }
  if (p.TipoDeMaterial == "S" && !s.ParámetrosSísmicosDados) {
    ui.Mensaje(
        "Ud hizo click en la sesión 'Estimación de los grados de libertad', lo cual es requerido para un análisis "
        "sísmico. Sin embargo no ha dado al programa ninguna información de los parámteros sísmico de los suelos'. "
        "Vaya a la sesión 'Parámetros de los estratos para el cálculo sísmico' para dar la información respectiva.");
    return;
  }
  if (!m.ConfirmarElementos) {
    ui.Mensaje("Confirme primero el número de elementos.");
    return;
  }
  if (s.GradosDeLibertadEstimados) {
    if (!ui.Pregunta("Ya se determinó los grados de libertad. ¿Desea volver hacerlo?.")) return;
    s.GradosDeLibertadEstimados = false;
  }
  if (p.NúmeroPuntosFreático > 0 && ui.Pregunta("¿Está haciendo análisis en  PRESAS?.")) {
    if (p.TipoDeMaterial == "S" &&
        ui.Pregunta("Ud puede indicar en la opción 'Parámetros de los estratos para cálculo sísmico',  los "
                    "materiales que  no son determinantes en la estabilidad de la presa. Desea revisar esta "
                    "opción?.")) {
      FormEstratosSísmicos f(p);
      ui.Abrir(f);
      s.OfertaEstratosUsada = true;
    }
    p.DesembalseRápido = ui.Pregunta(
        "¿Está haciendo análisis de DESEMBALSE RÁPIDO (sí la respuesta es NO, el análisis se hace para embalse "
        "lleno)?.");
    m.AnálisisPresas = true;
  }
  // Stresses and displacements of an earlier plastic or viscoplastic run leave memory.
  if (m.DesplazamientosHechos) {
    for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY, &m.EsfuerzoPrincipalMayor,
                              &m.EsfuerzoPrincipalMenor, &m.Desplazamientos})
      t->Borrar();
    m.DesplazamientosHechos = false;
  }
  DeterminarGradosDeLibertad(p, ui, MatricesSísmicasEnMemoria(p));
}

}  // namespace lomaterra
