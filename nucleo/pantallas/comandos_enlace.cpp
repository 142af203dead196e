// Binds each menu entry to the command that the core runs for it. One line a command.
#include "proyecto/comandos.h"

#include "pantallas/resultados.h"

namespace lomaterra {

void EnlazarComandos(std::map<std::string, Acción>& a) {
  // a["MétodoFellenius"] = MétodoFellenius;
  a["ResultadosCálculoRocas"] = ResultadosCálculoRocas;
  a["ResultadosCálculoSuelos"] = ResultadosCálculoSuelos;
  a["GráficoEsfuerzoPrincipalMenor"] = GráficoEsfuerzoPrincipalMenor;
  a["GráficoEsfuerzoPrincipalMayor"] = GráficoEsfuerzoPrincipalMayor;
  a["GráficoEsfuerzoNormalesTotales"] = GráficoEsfuerzoNormalesTotales;
  a["GráficoEsfuerzoNormalesEfectivos"] = GráficoEsfuerzoNormalesEfectivos;
  a["GráficoEsfuerzosTangencialesMovilizados"] = GráficoEsfuerzosTangencialesMovilizados;
  a["GráficoResistenciaAlCorteVsEsfuerzoNormal"] = GráficoResistenciaAlCorteVsEsfuerzoNormal;
  a["GráficoEsfuerzosNormalesTotalesEfectivosTangenciales"] = GráficoEsfuerzosNormalesTotalesEfectivosTangenciales;
  a["GráficoDeEsfuerzosPrincipales"] = GráficoDeEsfuerzosPrincipales;
  a["GráficoGeometríaAdaptadaEscalaEsfuerzos"] = GráficoGeometríaAdaptadaEscalaEsfuerzos;
  a["GráficoGeometría"] = GráficoGeometría;
  a["ImprimirInformaciónDadaAlPrograma"] = ImprimirInformaciónDadaAlPrograma;
  a["ImprimirResultadosAnálisisMétodosEquilibrioLímites"] = ImprimirResultadosAnálisisMétodosEquilibrioLímites;
}

}  // namespace lomaterra
