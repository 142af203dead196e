#include "pantallas/resultados_esfuerzos.h"

#include "elementos/form26.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "salida/malla_resultados.h"

namespace lomaterra {

namespace {

const char* const kSinCálculo =
    "No se ha hecho ningún cálculo de esfuerzos considerando un comportamiento viscoplástico del material.";

bool HayEsfuerzos(const Proyecto& p, Interfaz& ui) {
  if (p.TipoDeAnálisis != "F") {
    ui.Mensaje("Ud. no está trabajando con elementos finitos");
    return false;
  }
  if (!p.CálculoHecho || p.Malla.NúmeroDeIteración < 1) {
    ui.Mensaje(kSinCálculo, "No hay cálculos:");
    return false;
  }
  return true;
}

}  // namespace

void ResultadosDeEsfuerzosDesplazamientosElásticosViscoplásticos(Proyecto& p, Interfaz& ui) {
  if (!HayEsfuerzos(p, ui)) return;
  Form26 f(p, p.Malla.NúmeroDeIteración);
  ui.Abrir(f);
}

void ResultadosDeEsfuerzosDesplazamientosElásticosPásticos(Proyecto& p, Interfaz& ui) {
  if (!HayEsfuerzos(p, ui)) return;
  Form29 f(p, p.Malla.NúmeroDeIteración);
  ui.Abrir(f);
}

void ImprimirResultadosAnálisisElementosFinitosViscoplásticoPLástico(Proyecto& p, Interfaz& ui) {
  if (!HayEsfuerzos(p, ui)) return;
  ui.Imprimir(InformeElementosFinitos(p));
}

void MostrarFiguraDeMalla(Proyecto& p, Interfaz& ui, const std::string& nombre) {
  if (FiguraDeMallaNecesitaResultados(nombre)) {
    if (!HayEsfuerzos(p, ui)) return;
  } else if (p.TipoDeAnálisis != "F") {
    ui.Mensaje("Ud. no está trabajando con elementos finitos");
    return;
  } else if (!p.Malla.ElementosDefinidos) {
    ui.Mensaje("Defina los elementos");
    return;
  }
  ui.MostrarFigura(FiguraDeMalla(p, nombre));
}

}  // namespace lomaterra
