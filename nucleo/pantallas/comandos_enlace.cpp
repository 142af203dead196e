// Binds each menu entry to the command that the core runs for it. One line a command.
#include "proyecto/comandos.h"

#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/instantaneos.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "equilibrio/leshchinsky_rocas.h"
#include "pantallas/busqueda.h"
#include "pantallas/comandos_archivo.h"
#include "pantallas/comandos_coordenadas.h"
#include "equilibrio/constantes.h"
#include "pantallas/constantes_elementos.h"
#include "pantallas/form15.h"
#include "equilibrio/form18.h"
#include "pantallas/form34.h"
#include "pantallas/form5.h"
#include "pantallas/form6.h"
#include "pantallas/form7.h"
#include "pantallas/form8.h"
#include "pantallas/estratos_roca.h"
#include "pantallas/malla.h"
#include "elementos/refinamiento.h"
#include "pantallas/resultados.h"
#include "pantallas/comandos_sismicos.h"
#include "pantallas/resultados_sismicos.h"
#include "pantallas/resultados_esfuerzos.h"
#include "elementos/plastico.h"
#include "elementos/seguridad_esfuerzos.h"
#include "elementos/viscoplastico.h"
#include "salida/malla_resultados.h"

namespace lomaterra {

void EnlazarComandos(std::map<std::string, Acción>& a) {
  a["ArchivoNuevo"] = ArchivoNuevo;
  a["MenúArchivoAbrir"] = MenúArchivoAbrir;
  a["MenúArchivoGuardar"] = MenúArchivoGuardar;
  a["MenúArchivoGuardarComo"] = MenúArchivoGuardarComo;
  a["MenúArchivoSalir"] = MenúArchivoSalir;
  a["MenúAyudaContenido"] = MenúAyudaContenido;
  a["MenúAyudaAcercaDe"] = MenúAyudaAcercaDe;
  a["MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo"] = MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo;
  a["MenúCoordenadasTalud"] = MenúCoordenadasTalud;
  a["MenúCoordenadasFalla"] = MenúCoordenadasFalla;
  a["MenúCoordenadasFreático"] = MenúCoordenadasFreático;
  a["MenúCoordenadasEstratos"] = MenúCoordenadasEstratos;
  a["MenúInsertarEstrato"] = MenúInsertarEstrato;
  a["MenúEliminarEstrato"] = MenúEliminarEstrato;
  a["MenúEliminarNivelFreático"] = MenúEliminarNivelFreático;
  a["MenúInformación"] = MenúInformación;
  a["CaracterísticasGeomecánicasSuelos"] = CaracterísticasGeomecánicasSuelos;
  a["ParámetrosCaracterizaciónRocaSinLaboratorio"] = ParámetrosCaracterizaciónRocaSinLaboratorio;
  a["ParámetrosDeCaracterizaciónRocaConLaboratorio"] = ParámetrosDeCaracterizaciónRocaConLaboratorio;
  a["MénuGeometríaEntrePuntosSuperficieFalla"] = MénuGeometríaEntrePuntosSuperficieFalla;
  a["CargasUniformes"] = CargasUniformes;
  a["CargasPuntuales"] = CargasPuntuales;
  a["MenúArchivoConstantes"] = MenúArchivoConstantes;
  a["ParámetrosInicialesDeCálculoElementosFinitos"] = ParámetrosInicialesDeCálculoElementosFinitos;
  a["CaracterísticasElásticas"] = CaracterísticasElásticas;
  a["MenúCoordenadasNodos"] = MenúCoordenadasNodos;
  a["NodosParaCadaElemento"] = NodosParaCadaElemento;
  a["CaracterizaciónElementos"] = CaracterizaciónElementos;
  a["NodosConRestricción"] = NodosConRestricción;
  a["CargasUniformesSobreElementos"] = CargasUniformesSobreElementos;
  a["IncrementeNúmeroDeElementos"] = IncrementeNúmeroDeElementos;
  a["PresionesDePoros"] = PresionesDePoros;
  a["GráficoGeometríaTaludEstratos"] = GráficoGeometríaTaludEstratos;
  a["ElementoConSuNúmeroCorrespondiente"] = GráficoGeometríaTaludEstratos;
  a["MétodoFellenius"] = MétodoFellenius;
  a["MétodoBishop"] = MétodoBishop;
  a["MétodoJanbu"] = MétodoJanbu;
  a["MétodoJanbuEnRocas"] = MétodoJanbuEnRocas;
  a["BúsquedaCírculoCrítico"] = BúsquedaCírculoCrítico;
  a["ProcesoIterativoEnSuelos"] = ProcesoIterativoEnSuelos;
  a["CálculoParámetrosInstantáneos"] = CálculoParámetrosInstantáneos;
  a["ProcesoIterativoEnRocas"] = ProcesoIterativoEnRocas;
  a["CambioParámetrosResistenciaPresiónPoros"] = CambioParámetrosResistenciaPresiónPoros;
  a["PresionesDePorosEquilibrioLímite"] = PresionesDePorosEquilibrioLímite;
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
  EnlazarComandosSísmicos(a);
  EnlazarComandosResultadosSísmicos(a);
  a["CálculoEsfuerzosComportamientoViscoplástico"] = [](Proyecto& p, Interfaz& ui) { CálculoEsfuerzosComportamientoViscoplástico(p, ui); };
  a["CálculoEsfuerzosComportamientoPlástico"] = [](Proyecto& p, Interfaz& ui) { CálculoEsfuerzosComportamientoPlástico(p, ui); };
  a["FactorDeSeguridadDeslizamientoCálculoViscoplástico"] = FactorDeSeguridadDeslizamientoCálculoViscoplástico;
  a["ResultadosDeEsfuerzosDesplazamientosElásticosViscoplásticos"] = ResultadosDeEsfuerzosDesplazamientosElásticosViscoplásticos;
  a["ResultadosDeEsfuerzosDesplazamientosElásticosPásticos"] = ResultadosDeEsfuerzosDesplazamientosElásticosPásticos;
  a["ImprimirResultadosAnálisisElementosFinitosViscoplásticoPLástico"] = ImprimirResultadosAnálisisElementosFinitosViscoplásticoPLástico;
  for (const std::string& n : NombresDeFigurasDeMalla())
    a[n] = [n](Proyecto& p, Interfaz& ui) { MostrarFiguraDeMalla(p, ui, n); };
}

}  // namespace lomaterra
