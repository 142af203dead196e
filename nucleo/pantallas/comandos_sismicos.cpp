#include "pantallas/comandos_sismicos.h"

#include "pantallas/estratos_sismicos.h"
#include "pantallas/frecuencias.h"
#include "pantallas/grados_libertad.h"
#include "pantallas/registro_sismico.h"
#include "sismico/formas_modales.h"

namespace lomaterra {

void EnlazarComandosSísmicos(std::map<std::string, Acción>& a) {
  a["InputDeRegistrosSísmico"] = InputDeRegistrosSísmico;
  a["GráficaDeRegistroSísmico"] = GráficaDeRegistroSísmico;
  a["GradosDeLibertad"] = GradosDeLibertad;
  a["DeterminaciónDeLasFrecuencias"] = DeterminaciónDeLasFrecuencias;
  a["CálculoDeLoVectoresDeFormaModales"] = CálculoDeLoVectoresDeFormaModales;
  a["CaracterísticasDeLosEstratosParaElCálculoSísmico"] = CaracterísticasDeLosEstratosParaElCálculoSísmico;
}

}  // namespace lomaterra
