// Anchors that bring the last limit-equilibrium result up to a target factor of safety.
//
// The sliding mass of the last calculation is replaced by its equivalent plane: the chord of the
// failure surface, of inclination ψ, with the mean friction of the bases tan φm (weighted by base
// length). Along the surface the calculation mobilised the shear force D = Σ τi li; the strength
// available is R = F D. An anchor force T per metre of slope, inclined θ below the horizontal and
// pulling the mass into the slope, has the components T sin(ψ + θ) normal to the plane and
// T cos(ψ + θ) along it, against the sliding:
//   active (tensioned) anchor:  F' = (R + T sin(ψ + θ) tan φm) / (D − T cos(ψ + θ))
//   passive (grouted, untensioned) anchor: F' = (R + T sin(ψ + θ) tan φm + T cos(ψ + θ)) / D
// (Hoek and Bray, Rock Slope Engineering, plane failure reinforced by tensioned bolts; Wyllie and
// Mah, 4th edition, for the passive anchor whose shear is mobilised by the movement). Solved for
// the force that reaches the target F':
//   T activo = (F' D − R) / (F' cos(ψ + θ) + sin(ψ + θ) tan φm)
//   T pasivo = (F' D − R) / (cos(ψ + θ) + sin(ψ + θ) tan φm)
// One anchor of n strands of diameter d and breaking stress fpu carries at most 0.6 of its
// breaking load (the design-load limit of the FHWA ground anchor manual):
//   P = 0.6 n (π d² / 4) fpu, and the spacing along the slope is P / T.
#pragma once

#include <string>
#include <vector>

namespace lomaterra {

struct Proyecto;
struct DatosAnclajes;

// The fraction of the breaking load that an anchor may carry in service.
inline constexpr double kFracciónCargaDeDiseño = 0.6;

struct CálculoAnclajes {
  bool válido = false;
  std::string error;                                       // why there is no result, in Spanish
  double FactorActual = 0;                                 // F of the last calculation
  double FuerzaMovilizada = 0;                             // D, ton/m
  double ResistenciaDisponible = 0;                        // R = F D, ton/m
  double InclinaciónFalla = 0;                             // ψ, degrees
  double TanFricciónMedia = 0;                             // tan φm
  double FuerzaActivo = 0, FuerzaPasivo = 0;               // T, ton/m
  double CargaPorAnclaje = 0;                              // P, ton
  double SeparaciónActivo = 0, SeparaciónPasivo = 0;       // m
  std::vector<std::pair<std::string, std::string>> pasos;  // how it got there: caption and value
};

// From the last calculation of `p` and the data of `datos` (FSConAnclaje, InclinaciónAnclajes in
// degrees below the horizontal, DiámetroAnclajes in mm, EsfuerzoRoturaAnclaje in kg/cm2,
// NúmeroGuayas).
CálculoAnclajes CalcularAnclajes(const Proyecto& p, const DatosAnclajes& datos);

}  // namespace lomaterra
