// The element stage of a response run: for every element at every step, strains and stresses
// from the node displacements through the B matrices of the assembly, the principal stresses, and
// the new shear modulus, damping ratio and Poisson ratio by the strain-dependent laws of soil and
// rock. The per-element data that do not change during the run are gathered once at its start.
#pragma once

#include <array>
#include <vector>

#include "elementos/elemento.h"
#include "sismico/modulo_degradado.h"

namespace lomaterra {

struct Proyecto;
struct MatricesSísmicas;

// What an element keeps for the whole run.
struct ElementoRespuesta {
  int nodos = 3, puntos = 1;
  std::array<PuntoB, 3> B{};
  std::array<long, 13> grado{};  // global degree of column c = 1..2·nodos; 0 for none
  bool roca = false;
  double E = 0, nu = 0;        // the stratum's Young's modulus and Poisson ratio
  double GmaxRoca = 0;         // rock: maximum shear modulus by the chosen method
  SueloDegradable suelo;       // soil: Gmax, strength, mean stress, Ip and the class
  double presiónPoros = 0;     // static pore pressure of the element
  bool determinanteUno = false;
};

// What changes from step to step.
struct EstadoElemento {
  double G = 0, nu = 0;  // modulus and Poisson ratio for the next step
  double razón = 0;      // current over maximum modulus, 0 before the first step
  SueloDegradable suelo; // with the fit of the first step
};

struct ResultadoEtapa {
  double ex = 0, ey = 0, exy = 0;        // strains, averaged over the integration points
  double sx = 0, sy = 0, sxy = 0;        // stresses, summed over the integration points
  double mayor = 0, menor = 0;           // principal stresses
  double G = 0, nu = 0, z = 0, razón = 0;  // new modulus, Poisson ratio, damping ratio, G/Gmax
};

// The principal stresses, larger first; equal normal stresses with no shear pass through. The
// angle 0.5 atan(2 txy / (sy - sx)) is formed as the run always did, so equal normal stresses with
// shear are a division by zero that ends the run.
void EsfuerzosPrincipales(double sx, double sy, double sxy, double& mayor, double& menor);

// The data of every element for a run on the project's mesh, with the B matrices of the assembly.
std::vector<ElementoRespuesta> PrepararElementosRespuesta(const Proyecto& p, const MatricesSísmicas& m);
// The state before the first step: the stratum's modulus E / (2 (1 + nu)) and Poisson ratio.
EstadoElemento EstadoInicial(const ElementoRespuesta& e);

// One element at one step. u holds the displacement of every global degree (1-based, metres);
// dt the step's interval and w the chosen mode's frequency (rock damping).
ResultadoEtapa EtapaDeElemento(const ElementoRespuesta& e, EstadoElemento& estado, const std::vector<double>& u,
                               bool primero, double dt, double w);

}  // namespace lomaterra
