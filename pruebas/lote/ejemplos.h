// The sample projects of ejemplos/, built in code. The files in ejemplos/ are what GuardarProyecto
// writes for these projects; a test keeps the two the same.
#pragma once

#include <string>
#include <vector>

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

struct Ejemplo {
  std::string archivo;  // name in ejemplos/
  Proyecto (*construir)();
};

Proyecto TaludHomogéneo();
Proyecto TaludEstratificado();
Proyecto FallaMixtaC();
Proyecto FallaPolinómica();
Proyecto BishopRadioVariable();
Proyecto JanbuACADS();
Proyecto TaludRocaLeshchinsky();
Proyecto EnsayosDeRoca();
Proyecto InstantáneosTrasJanbu();

const std::vector<Ejemplo>& Ejemplos();

}  // namespace lomaterra::pruebas
