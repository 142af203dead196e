#include "pantallas/comandos_sismicos.h"

#include "pantallas/estratos_sismicos.h"
#include "pantallas/frecuencias.h"
#include "pantallas/grados_libertad.h"
#include "pantallas/registro_sismico.h"
#include "proyecto/interfaz.h"
#include "sismico/formas_modales.h"
#include "sismico/respuesta.h"

namespace lomaterra {

namespace {

// The response runs open the strata screen when the dam questions offer it.
OpcionesRespuesta ConPantallaDeEstratos() {
  OpcionesRespuesta o;
  o.abrirEstratos = [](Proyecto& p, Interfaz& ui) {
    FormEstratosSísmicos f(p);
    ui.Abrir(f);
  };
  return o;
}

}  // namespace

void EnlazarComandosSísmicos(std::map<std::string, Acción>& a) {
  a["InputDeRegistrosSísmico"] = InputDeRegistrosSísmico;
  a["GráficaDeRegistroSísmico"] = GráficaDeRegistroSísmico;
  a["GradosDeLibertad"] = GradosDeLibertad;
  a["DeterminaciónDeLasFrecuencias"] = DeterminaciónDeLasFrecuencias;
  a["CálculoDeLoVectoresDeFormaModales"] = CálculoDeLoVectoresDeFormaModales;
  a["CaracterísticasDeLosEstratosParaElCálculoSísmico"] = CaracterísticasDeLosEstratosParaElCálculoSísmico;
  a["MétodoIntegralDuhamel"] = [](Proyecto& p, Interfaz& ui) { MétodoIntegralDuhamel(p, ui, ConPantallaDeEstratos()); };
  a["MétodoPasoAPasoEcMovimientoSinDesacoplar"] = [](Proyecto& p, Interfaz& ui) {
    MétodoPasoAPasoEcMovimientoSinDesacoplar(p, ui, ConPantallaDeEstratos());
  };
}

void EnlazarComandosSinMenú(std::map<std::string, Acción>& a) {
  a["PasoAPasoDesacoplado"] = [](Proyecto& p, Interfaz& ui) { PasoAPasoDesacoplado(p, ui, ConPantallaDeEstratos()); };
}

}  // namespace lomaterra
