#include "pantallas/resultados.h"

#include "equilibrio/puertas.h"
#include "equilibrio/referencia.h"
#include "pantallas/anclajes.h"
#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "salida/graficos.h"
#include "salida/informe.h"
#include "salida/resumen.h"

namespace lomaterra {

const char* const kTítuloSinResultados = "Resultados del cálculo";
const char* const kSinResultados =
    "No hay resultados de un cálculo por equilibrio límite. Vaya al menú 'Equilibrio límite' y "
    "ordene "
    "'Calcular factor de seguridad'.";

bool PuertaResultados(const Proyecto& p, Interfaz& ui) {
  if (HayResultados(p)) return true;
  ui.Mensaje(kSinResultados, kTítuloSinResultados);
  return false;
}

namespace {

ListaPantalla Lista(const std::string& nombre, const TablaDeTexto& t) {
  ListaPantalla l;
  l.nombre = nombre;
  l.columnas = t.columnas;
  l.filas = t.filas;
  return l;
}

// The principal stresses come only from the methods in rock; the message names the method that
// made the calculation at hand.
bool PuertaPrincipales(const Proyecto& p, Interfaz& ui) {
  if (HayEsfuerzosPrincipales(p)) return true;
  ui.Mensaje("Este cálculo, hecho por el método de " + NombreDelMétodo(p) +
                 (p.TipoDeMaterial == "R" ? " en rocas" : " en suelos") +
                 ", no da los esfuerzos principales. Los calculan los métodos para rocas "
                 "(Leshchinsky - Hoek - Brown y Janbu en rocas); para los demás gráficos los "
                 "resultados de este cálculo están disponibles.",
             "Esfuerzos principales");
  return false;
}

void MostrarGráfico(Proyecto& p, Interfaz& ui, const std::string& nombre, bool principales) {
  if (!PuertaTipoDeAnálisis(p, ui)) return;
  if (!PuertaResultados(p, ui)) return;
  if (principales && !PuertaPrincipales(p, ui)) return;
  ui.MostrarFigura(FiguraGráfico(p, nombre));
}

void AbrirResultados(Proyecto& p, Interfaz& ui, bool roca) {
  if (!PuertaTipoDeAnálisis(p, ui)) return;
  if (roca && p.TipoDeMaterial == "S") {
    ui.Mensaje("Ud ha seleccionado la opción 'suelos' en los parámetros iniciales  ",
               "Esta presentación es para roca:");
    return;
  }
  if (!roca && p.TipoDeMaterial == "R") {
    ui.Mensaje("Ud ha seleccionado la opción 'ROCA' en los parámetros iniciales  ",
               "Esta presentación es para SUELOS:");
    return;
  }
  if (!PuertaResultados(p, ui)) return;
  PantallaResultados pantalla(p, roca);
  ui.Abrir(pantalla);
}

// The two reference figures as read-only fields beside the method's own factor, or one field
// that says why there are none.
void AñadirCamposDeReferencia(std::vector<Campo>& campos, const FactoresReferencia& f) {
  if (!f.hay) {
    campos.push_back({"TextoFactoresReferencia", "Cifras de referencia", f.motivo, "", true});
    return;
  }
  const std::string ayuda =
      "Cifra aparte: momentos resistente y motor respecto del centro del arco; no cambia el "
      "factor del método.";
  campos.push_back({"TextoFelleniusReferencia", kRótuloFelleniusReferencia,
                    Formato(f.fellenius, "#0.000"), ayuda, true});
  campos.push_back({"TextoBishopReferencia", kRótuloBishopReferencia,
                    f.hayBishop ? Formato(f.bishop, "#0.000") : "sin valor (" + f.motivoBishop + ")",
                    f.notaBishop.empty() ? ayuda : f.notaBishop, true});
}

}  // namespace

PantallaResultados::PantallaResultados(Proyecto& p, bool roca) : p_(p), roca_(roca) {
  nombre = "ResultadosEquilibrioLímite";
  título = roca ? "Resultados del cálculo para rocas" : "Resultados del cálculo para suelos";
  botones = {
      {"BotónCopiar", "Copiar",
       [this](Interfaz& ui) { ui.CopiarAlPortapapeles(TextoParaCopiar()); }},
      {"BotónSección", "Sección con esfuerzos...",
       [this](Interfaz& ui) {
         ui.MostrarFigura(FiguraGráfico(p_, "GráficoGeometríaAdaptadaEscalaEsfuerzos"));
       }},
      {"BotónAnclajes", "Anclajes...",
       [this](Interfaz& ui) {
         AbrirAnclajes(p_, ui, roca_);
         Activar(ui);
       }},
      {"BotónImprimir", "Imprimir...",
       [this](Interfaz& ui) { ui.Imprimir(InformeDeResultados(p_)); }},
      {"BotónCerrar", "Cerrar", [this](Interfaz&) { cerrada = true; }},
  };
}

void PantallaResultados::Activar(Interfaz&) {
  const auto& a = p_.Anclajes;
  campos = {
      {"TextoMétodo", "Método", NombreDelMétodo(p_), "Método del último cálculo", true},
      {"TextoFactorDeSeguridad", "Factor de seguridad",
       Formato(FactorDeSeguridadFinal(p_), "#0.000"), "Factor de seguridad de la última iteración",
       true},
  };
  AñadirCamposDeReferencia(campos, FactoresDeReferencia(p_));
  campos.insert(campos.end(), {
      {"TextoNúmeroDovelas", "Número de dovelas", std::to_string(NúmeroDeDovelas(p_)), "", true},
      {"TextoNúmeroIteraciones", "Número de iteraciones", std::to_string(p_.NúmeroIteraciones), "",
       true},
  });
  if (a.SeparaciónAnclajesActivo > 0 || a.SeparaciónAnclajesPasivo > 0) {
    campos.push_back({"TextoSeparaciónAnclajesActivo", "Separación de anclajes activos (m)",
                      Formato(a.SeparaciónAnclajesActivo, "#0.00"),
                      "Para el factor de seguridad " + Formato(a.FSConAnclaje, "#0.000"), true});
    campos.push_back({"TextoSeparaciónAnclajesPasivo", "Separación de anclajes pasivos (m)",
                      Formato(a.SeparaciónAnclajesPasivo, "#0.00"),
                      "Para el factor de seguridad " + Formato(a.FSConAnclaje, "#0.000"), true});
  }
  listas = {Lista("ListaIteraciones", TablaHistoriaIteraciones(p_)),
            Lista("ListaDovelas", TablaResultadosDovelas(p_)), Lista("ListaSumas", TablaSumas(p_))};
}

std::string PantallaResultados::TextoParaCopiar() const {
  std::string r = "Método\t" + NombreDelMétodo(p_) + "\n";
  r += "Factor de seguridad\t" + Formato(FactorDeSeguridadFinal(p_), "#0.000") + "\n\n";
  r += TextoTabulado(TablaResultadosDovelas(p_));
  r += "\n";
  r += TextoTabulado(TablaSumas(p_));
  // The reference figures on a single arc come last, apart from the method's own results.
  r += "\n";
  for (const auto& línea : LíneasDeReferencia(FactoresDeReferencia(p_))) r += línea + "\n";
  return r;
}

void ResultadosCálculoSuelos(Proyecto& p, Interfaz& ui) {
  AbrirResultados(p, ui, false);
}
void ResultadosCálculoRocas(Proyecto& p, Interfaz& ui) {
  AbrirResultados(p, ui, true);
}

void GráficoEsfuerzoPrincipalMenor(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoEsfuerzoPrincipalMenor", true);
}
void GráficoEsfuerzoPrincipalMayor(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoEsfuerzoPrincipalMayor", true);
}
void GráficoEsfuerzoNormalesTotales(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoEsfuerzoNormalesTotales", false);
}
void GráficoEsfuerzoNormalesEfectivos(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoEsfuerzoNormalesEfectivos", false);
}
void GráficoEsfuerzosTangencialesMovilizados(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoEsfuerzosTangencialesMovilizados", false);
}
void GráficoResistenciaAlCorteVsEsfuerzoNormal(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoResistenciaAlCorteVsEsfuerzoNormal", false);
}
void GráficoEsfuerzosNormalesTotalesEfectivosTangenciales(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoEsfuerzosNormalesTotalesEfectivosTangenciales", false);
}
void GráficoDeEsfuerzosPrincipales(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoDeEsfuerzosPrincipales", true);
}
void GráficoGeometríaAdaptadaEscalaEsfuerzos(Proyecto& p, Interfaz& ui) {
  MostrarGráfico(p, ui, "GráficoGeometríaAdaptadaEscalaEsfuerzos", false);
}

void GráficoGeometría(Proyecto& p, Interfaz& ui) {
  if (!PuertaTipoDeAnálisis(p, ui)) return;
  if (p.NúmeroPuntosTalud < 2) {
    ui.Mensaje(
        "No hay coordenadas del talud para dibujar. Vaya al menú 'Coordenadas' y entre las del "
        "talud.",
        "Geometría del talud");
    return;
  }
  ui.MostrarFigura(FiguraGráfico(p, "GráficoGeometría"));
}

void ImprimirInformaciónDadaAlPrograma(Proyecto& p, Interfaz& ui) {
  if (!p.InformaciónDada) {
    ui.Mensaje("Debe dar la información del proyecto. Entre al menú 'Archivo'",
               "Información requerida");
    return;
  }
  ui.Imprimir(InformeDeDatos(p));
}

void ImprimirResultadosAnálisisMétodosEquilibrioLímites(Proyecto& p, Interfaz& ui) {
  if (!PuertaTipoDeAnálisis(p, ui)) return;
  if (!PuertaResultados(p, ui)) return;
  ui.Imprimir(InformeDeResultados(p));
}

}  // namespace lomaterra
