#include "proyecto/comandos.h"

#include <cfenv>

#include "proyecto/fallos.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {

struct Fila {
  const char* nombre;
  const char* texto;
  const char* padre;
  bool submenú;
};

// The menu tree, in order. Entries that have no caption of their own carry a short fixed word.
const Fila kÁrbol[] = {
    {"MenúArchivo", "&Archivo", "", true},
    {"ArchivoNuevo", "&Nuevo", "MenúArchivo", false},
    {"MenúArchivoAbrir", "&Abrir...", "MenúArchivo", false},
    {"MenúArchivoGuardar", "&Guardar", "MenúArchivo", false},
    {"MenúArchivoGuardarComo", "G&uardar como...", "MenúArchivo", false},
    {"MenúInformación", "&Información del proyecto", "MenúArchivo", false},
    {"ImprimirInformaciónDadaAlPrograma", "&Imprimir la información dada al programa (parámetros geotecnicos, geometría, métodos)", "MenúArchivo", false},
    {"ImprimirResultadosAnálisisMétodosEquilibrioLímites", "&Imprimir los resultados de análisis realizados por métodos de equilibrio límites", "MenúArchivo", false},
    {"ImprimirResultadosAnálisisElementosFinitosViscoplásticoPLástico", "&Imprimir los resultados de análisis  de comportamiento  viscoplástico o plástico", "MenúArchivo", false},
    {"ImprimirResultadosAnálisisSísmico", "&Imprimir los resultados de análisis sísmico    ", "MenúArchivo", false},
    {"MenúArchivoSalir", "&Salir", "MenúArchivo", false},

    {"MenúCoordenadas", "&Coordenadas", "", true},
    {"MenúCoordenadasTalud_Estratos_Nivelfreático_DeArchivo", "&Entre aquí  si existe coordenadas de talud, de estratos y nivel freático.", "MenúCoordenadas", false},
    {"MenúCoordenadasTalud", "&Talud-Presa-Túnel", "MenúCoordenadas", false},
    {"MenúCoordenadasFalla", "&Superficie potencial de falla", "MenúCoordenadas", false},
    {"MénuGeometríaEntrePuntosSuperficieFalla", "&Geometría entre puntos de la superficie de falla", "MenúCoordenadas", false},
    {"MenúCoordenadasFreático", "&Nivel freático", "MenúCoordenadas", false},
    {"MenúCoordenadasEstratos", "&Estratos", "MenúCoordenadas", false},
    {"MenúInsertarEstrato", "Inser&tar estrato...", "MenúCoordenadas", false},
    {"MenúEliminarEstrato", "Elimina&r estrato", "MenúCoordenadas", false},
    {"MenúEliminarNivelFreático", "Eliminar &Nivel freático", "MenúCoordenadas", false},

    {"MenúParámetrosCargas", "&Parámatros_y_Cargas", "", true},
    {"MenúCaracterísticasEstratos", "&Características Geomecánicas", "MenúParámetrosCargas", true},
    {"CaracterísticasGeomecánicasSuelos", "&Suelos", "MenúCaracterísticasEstratos", false},
    {"CaracterísticasGeomecánicasRocas", "&Rocas", "MenúCaracterísticasEstratos", true},
    {"ParámetrosCaracterizaciónRocaSinLaboratorio", "&Sin datos de pruebas de laboratorio", "CaracterísticasGeomecánicasRocas", false},
    {"ParámetrosDeCaracterizaciónRocaConLaboratorio", "&Con datos de pruebas de laboratorio", "CaracterísticasGeomecánicasRocas", false},
    {"MenéCargas", "&Cargas", "MenúParámetrosCargas", true},
    {"CargasUniformes", "&Uniformemente distribuidas", "MenéCargas", false},
    {"CargasPuntuales", "&Puntuales", "MenéCargas", false},

    {"MenuEquilibrioLimite", "&Equilibrio límite", "", true},
    {"MenúArchivoConstantes", "Pará&metros de cálculo iniciales...", "MenuEquilibrioLimite", false},
    {"CambioParámetrosResistenciaPresiónPoros", "Cambio de parámetros de &Resistencia.... ", "MenuEquilibrioLimite", false},
    {"PresionesDePorosEquilibrioLímite", "&Presiones de poros controladas por el usuario", "MenuEquilibrioLimite", false},
    {"ArchivoCalcular", "&Calcular factor de seguridad", "MenuEquilibrioLimite", true},
    {"CálculoEnSuelos", "&Suelos", "ArchivoCalcular", true},
    {"ProcesoIterativoEnSuelos", "&Dov Leshchinsky and Ching-Chuan Huang ", "CálculoEnSuelos", false},
    {"MétodoBishop", "&Bishop A. W.", "CálculoEnSuelos", false},
    {"MétodoFellenius", "&Fellenius W.", "CálculoEnSuelos", false},
    {"MétodoJanbu", "&Janbu N.", "CálculoEnSuelos", false},
    {"CálculoEnRocas", "&Rocas", "ArchivoCalcular", true},
    {"ProcesoIterativoEnRocas", "&Dov Leshchinsky - Ching and Hoek - Brow (m,s)", "CálculoEnRocas", false},
    {"MétodoJanbuEnRocas", "&Método de Janbu aplicado a rocas ", "CálculoEnRocas", false},
    {"CálculoParámetrosInstantáneos", "&Suelos o Rocas  (parámetros instantáneos c,fi)", "ArchivoCalcular", false},
    {"BúsquedaCírculoCrítico", "&Búsqueda del círculo crítico...", "MenuEquilibrioLimite", false},

    {"MenúPresentación", "P&resentación del cálculo de esfuerzos", "", true},
    {"ResultadosCálculoRocas", "&Resultados cálculo  para rocas", "MenúPresentación", false},
    {"ResultadosCálculoSuelos", "&Resultados cálculo para suelos", "MenúPresentación", false},
    {"MenúGráfico", "&Gráfico", "MenúPresentación", true},
    {"GráficoEsfuerzoPrincipalMenor", "Esfuerzo principal &menor", "MenúGráfico", false},
    {"GráficoEsfuerzoPrincipalMayor", "Esfuerzo principal m&ayor", "MenúGráfico", false},
    {"GráficoEsfuerzoNormalesTotales", "Esfuerzos normales &totales", "MenúGráfico", false},
    {"GráficoEsfuerzoNormalesEfectivos", "Esfuerzos normales &efectivos", "MenúGráfico", false},
    {"GráficoEsfuerzosTangencialesMovilizados", "Esfuerzos ta&ngenciales movilizados", "MenúGráfico", false},
    {"GráficoResistenciaAlCorteVsEsfuerzoNormal", "&Resistencia al corte frente a los esfuerzos normales efectivos", "MenúGráfico", false},
    {"GráficoEsfuerzosNormalesTotalesEfectivosTangenciales", "Esfuerzos normales totales, efectivos y tangen&ciales", "MenúGráfico", false},
    {"GráficoDeEsfuerzosPrincipales", "Esfuerzos &principales a lo largo de las abscisas", "MenúGráfico", false},
    {"GráficoGeometríaAdaptadaEscalaEsfuerzos", "&Geometría del talud a la escala de los esfuerzos", "MenúGráfico", false},
    {"GráficoGeometría", "Geometría &del talud", "MenúGráfico", false},

    {"MénuElementosFinitos", "E&lementos finitos", "", true},
    {"CaracterísticasElásticas", "&Parámetros de los estratos", "MénuElementosFinitos", false},
    {"MenúCoordenadasNodos", "&Coordenadas de los nodos", "MénuElementosFinitos", false},
    {"NodosParaCadaElemento", "&Definición de los elementos", "MénuElementosFinitos", false},
    {"CaracterizaciónElementos", "&Caracterización de los elementos", "MénuElementosFinitos", false},
    {"NodosConRestricción", "&Nodos con restricción", "MénuElementosFinitos", false},
    {"CargasUniformesSobreElementos", "&Cargas uniformes sobre elementos", "MénuElementosFinitos", false},
    {"ParámetrosInicialesDeCálculoElementosFinitos", "&Parámetros para estimar factor de seguridad", "MénuElementosFinitos", false},
    {"IncrementeNúmeroDeElementos", "&Confirmando el número de elementos para el cálculo", "MénuElementosFinitos", false},
    {"PresionesDePoros", "&Presiones de poros controladas por el usuario", "MénuElementosFinitos", false},
    {"ElementosQueConformanElProblema", "&Gráficas", "MénuElementosFinitos", true},
    {"GráficoGeometríaTaludEstratos", "&Geometría del problema ", "ElementosQueConformanElProblema", false},
    {"GráficaDeRegistroSísmico", "&Registro sísmico", "ElementosQueConformanElProblema", false},
    {"ElementosNúmeroDelElemento", "&Identificación-Desplazamientos-Material", "ElementosQueConformanElProblema", true},
    {"ElementoConSuNúmeroCorrespondiente", "&Elemento con su número correspondiente", "ElementosNúmeroDelElemento", false},
    {"ElementoDesplazamientoDeLosNodos", "Elemento con desplazamiento de los nodos", "ElementosNúmeroDelElemento", false},
    {"ElementoConElNúmeroDelMaterial", "&Elemento con el número del material", "ElementosNúmeroDelElemento", false},
    {"MallaDeformada", "Malla &deformada sobre la original", "ElementosNúmeroDelElemento", false},
    {"ElementosFluyendo", "Elementos en &fluencia", "ElementosNúmeroDelElemento", false},
    {"DovelasSobreEsfuerzos", "&Dovelas del factor de seguridad sobre los esfuerzos", "ElementosNúmeroDelElemento", false},
    {"ElementoEsfuerzosSigmaXElásticos", "&Esfuerzos ", "ElementosQueConformanElProblema", true},
    {"EsfuerzosSigmaXVsElementos", "&Elementos con los valores de los esfuerzos sigma x", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosSigmaYVsElementos", "&Elementos con los valores de los esfuerzos sigma y", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosTauXYVsElementos", "&Elementos con los valores de los esfuerzos tau xy", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosSigma1VsElementos", "&Elementos con los valores de los esfuerzos  sigma 1", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosSigma3VsElementos", "&Elementos con los valores de los esfuerzos  sigma 3", "ElementoEsfuerzosSigmaXElásticos", false},
    {"FunciónFluenciaVsElementos", "Elementos con los valores de la &función de fluencia", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosSigmaXVsAbscisas", "&Esfuerzsos sigma X versus  abscisas ", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosSigmaYVsAbscisas", "&Esfuerzos sgma Y versus abscisas", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosTauXYVsAbscisas", "&Esfuerzos cortantes tau XY versus abscisas", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosSigma1VsAbscisas", "&Esfuerzos principal mayor versus abscisas", "ElementoEsfuerzosSigmaXElásticos", false},
    {"EsfuerzosSigma3VsAbscisas", "&Esfuerzos principal menor versus abscisas", "ElementoEsfuerzosSigmaXElásticos", false},
    {"DesplazamientosHorizontalesVerticales", "&Desplazamientos horizontales y verticales", "ElementosQueConformanElProblema", true},
    {"DesplazamientoHorizontalVsAbscisas", "&Desplazamiento horizontal versus abscisas", "DesplazamientosHorizontalesVerticales", false},
    {"DesplazamientoVerticalVsAbscisas", "&Desplazamiento vertical versus abscisas", "DesplazamientosHorizontalesVerticales", false},
    {"ComportamientoViscoplásticoPlástico", "&Comportamiento Viscoplástico y Plástico", "MénuElementosFinitos", true},
    {"CálculoEsfuerzosComportamientoViscoplástico", "&Calcular esfuerzos (Comportamiento elástico-viscoplástico)", "ComportamientoViscoplásticoPlástico", false},
    {"CálculoEsfuerzosComportamientoPlástico", "&Calcular esfuerzos  (Comportamiento  de plasticidad perfecta)", "ComportamientoViscoplásticoPlástico", false},
    {"FactorDeSeguridadDeslizamientoCálculoViscoplástico", "&Estimación del factor de seguridad al deslizamiento", "ComportamientoViscoplásticoPlástico", false},
    {"InputDeRegistrosSísmico", "&Input de registros sísmico", "MénuElementosFinitos", false},
    {"CaracterísticasDeLosEstratosParaElCálculoSísmico", "&Parámetros de los estratos para el cálculo sísmico", "MénuElementosFinitos", false},
    {"GradosDeLibertad", "&Estimación de los grados de libertad", "MénuElementosFinitos", false},
    {"DeterminaciónDeLasFrecuencias", "&Estimación de las frecuencias naturales", "MénuElementosFinitos", false},
    {"CálculoDeLoVectoresDeFormaModales", "&Estimación de los vectores de Forma Modales", "MénuElementosFinitos", false},
    {"CálculoSísmico", "&Cálculo sísmico - Desplazamientos y esfuerzos", "MénuElementosFinitos", true},
    {"MétodoIntegralDuhamel", "&Integral de Duhamel", "CálculoSísmico", false},
    {"MétodoPasoAPasoEcMovimientoSinDesacoplar", "&Método  integración paso a paso Ec Movimiento Sin Desacoplar", "CálculoSísmico", false},
    {"FactorDeSeguridadDeslizamientoAnálisisSísmico", "&Estimación del factor de seguridad al deslizamiento", "CálculoSísmico", false},
    {"ResultadosDelCálculoEsfuerzosDesplazamientos", "&Resultados del cálculo", "MénuElementosFinitos", true},
    {"ResultadosDeEsfuerzosDesplazamientosElásticosViscoplásticos", "&Esfuerzos y desplazamientos elásticos y viscoplásticos", "ResultadosDelCálculoEsfuerzosDesplazamientos", false},
    {"ResultadosDeEsfuerzosDesplazamientosElásticosPásticos", "&Esfuerzos y desplazamientos elasticos y plásticos (Plasticidad perfecta) ", "ResultadosDelCálculoEsfuerzosDesplazamientos", false},
    {"ResultadosDeEsfuerzosDesplazamientosPorSísmo", "&Esfuerzos y desplazamientos por sísmo", "ResultadosDelCálculoEsfuerzosDesplazamientos", false},
    {"GraficaDeRegistroSísmicoEstimadoDeAceleraciones", "&Registro sísmico estimado de aceleraciones ", "ResultadosDelCálculoEsfuerzosDesplazamientos", false},

    {"MenúAyuda", "A&yuda", "", true},
    {"MenúAyudaContenido", "&Contenido", "MenúAyuda", false},
    {"MenúAyudaAcercaDe", "&Acerca de...", "MenúAyuda", false},
};

}  // namespace

std::vector<EntradaMenú> ÁrbolDeMenús() {
  std::map<std::string, Acción> acciones;
  EnlazarComandos(acciones);
  std::vector<EntradaMenú> árbol;
  for (const Fila& f : kÁrbol) {
    EntradaMenú e{f.nombre, f.texto, f.padre, {}, f.submenú};
    if (!f.submenú) {
      auto a = acciones.find(f.nombre);
      if (a != acciones.end()) e.acción = a->second;
    }
    árbol.push_back(std::move(e));
  }
  return árbol;
}

std::map<std::string, Acción> ComandosSinMenú() {
  std::map<std::string, Acción> acciones;
  EnlazarComandosSinMenú(acciones);
  return acciones;
}

const EntradaMenú* BuscarEntrada(const std::vector<EntradaMenú>& árbol, const std::string& nombre) {
  for (const auto& e : árbol)
    if (e.nombre == nombre) return &e;
  return nullptr;
}

std::string TextoDeFallo(const std::string& detalle) {
  return "Se produjo una falla aritmética no prevista (" + detalle +
         "). El comando terminó y los datos quedaron como estaban en ese momento; no se guardó "
         "ningún resultado nuevo. Revise los datos del problema.";
}

FinDeComando EjecutarComando(const Acción& acción, Proyecto& p, Interfaz& ui) {
  if (!acción) return FinDeComando::Normal;
  LimpiarExcepcionesFlotantes();
  try {
    acción(p, ui);
  } catch (const FalloAritmético& e) {
    ui.Mensaje(TextoDeFallo(e.what()), TítuloDeFallo());
    LimpiarExcepcionesFlotantes();
    return FinDeComando::Fallo;
  }
  LimpiarExcepcionesFlotantes();
  return FinDeComando::Normal;
}

}  // namespace lomaterra
