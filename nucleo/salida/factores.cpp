#include "salida/factores.h"

#include "equilibrio/referencia.h"
#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/resumen.h"

namespace lomaterra {

std::string LíneaDeFactores(const Proyecto& p) {
  if (!HayResultados(p)) return "";
  std::string r = "Factor de seguridad (" + NombreDelMétodo(p) +
                  "): " + Formato(FactorDeSeguridadFinal(p), "#0.000");
  const FactoresReferencia f = FactoresDeReferencia(p);
  if (!f.hay) return r + "  ·  " + f.motivo;
  r += "  ·  " + std::string(kRótuloFelleniusReferencia) + ": " + Formato(f.fellenius, "#0.000");
  r += "  ·  " + std::string(kRótuloBishopReferencia) + ": " +
       (f.hayBishop ? Formato(f.bishop, "#0.000") : "sin valor");
  return r;
}

}  // namespace lomaterra
