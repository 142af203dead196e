// The commands of the menu "Presentación del cálculo de esfuerzos" (result screens and charts) and
// the printing of the data and of the limit-equilibrium results.
#pragma once

#include <string>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

void ResultadosCálculoSuelos(Proyecto& p, Interfaz& ui);
void ResultadosCálculoRocas(Proyecto& p, Interfaz& ui);

void GráficoEsfuerzoPrincipalMenor(Proyecto& p, Interfaz& ui);
void GráficoEsfuerzoPrincipalMayor(Proyecto& p, Interfaz& ui);
void GráficoEsfuerzoNormalesTotales(Proyecto& p, Interfaz& ui);
void GráficoEsfuerzoNormalesEfectivos(Proyecto& p, Interfaz& ui);
void GráficoEsfuerzosTangencialesMovilizados(Proyecto& p, Interfaz& ui);
void GráficoResistenciaAlCorteVsEsfuerzoNormal(Proyecto& p, Interfaz& ui);
void GráficoEsfuerzosNormalesTotalesEfectivosTangenciales(Proyecto& p, Interfaz& ui);
void GráficoDeEsfuerzosPrincipales(Proyecto& p, Interfaz& ui);
void GráficoGeometríaAdaptadaEscalaEsfuerzos(Proyecto& p, Interfaz& ui);
void GráficoGeometría(Proyecto& p, Interfaz& ui);

void ImprimirInformaciónDadaAlPrograma(Proyecto& p, Interfaz& ui);
void ImprimirResultadosAnálisisMétodosEquilibrioLímites(Proyecto& p, Interfaz& ui);

// The gate of every presentation of results: a limit-equilibrium calculation must have left its
// results. False (after its message) ends the command.
bool PuertaResultados(const Proyecto& p, Interfaz& ui);

// The result screen of the last limit-equilibrium calculation.
class PantallaResultados : public Pantalla {
 public:
  PantallaResultados(Proyecto& p, bool roca);
  void Activar(Interfaz& ui) override;
  // The text that the button "Copiar" puts on the clipboard.
  std::string TextoParaCopiar() const;

 private:
  Proyecto& p_;
  bool roca_;
};

extern const char* const kTítuloSinResultados;
extern const char* const kSinResultados;

}  // namespace lomaterra
