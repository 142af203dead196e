#include "proyecto/tabla.h"

namespace lomaterra {

void FilaFueraDeRango(long fila, long tamaño) {
  throw FalloAritmético("acceso a la fila " + std::to_string(fila) + " de una tabla de " +
                        std::to_string(tamaño) + " filas");
}

}  // namespace lomaterra
