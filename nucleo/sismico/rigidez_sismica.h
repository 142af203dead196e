// The seismic assembly of the mesh: stiffness with lumped masses and the seismic load vectors over
// all nodes (`ElementoTriangularSismico`), the numbering of the free degrees, the properties each
// free degree takes from its stratum, and the condensation to the free degrees
// (`CondensarMatrices`). Metres, tons and seconds.
#pragma once

#include <string>
#include <vector>

#include "elementos/elemento.h"
#include "sismico/amortiguamiento.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

extern const char* const kMensajeDiagonalCeroCondensada;

// Everything over the 2N degrees of the mesh (degree 2n-1 is node n along x, 2n along y). The
// square matrices are row-major and 0-based: entry (i, j) of degrees i, j is [(i-1)·2N + (j-1)].
// The vectors are 1-based (index 0 unused).
struct MatricesSísmicas {
  long grados = 0;  // 2N
  std::vector<double> MatrizRigidezGlobal, MatrizMasaGlobal;
  std::vector<double> VectorCargasGlobal, CargaAguaPoros, CargaEmbalse, EsfuerzoEfectivoNodal;
  std::vector<MatricesElemento> Elementos;  // stiffness and lumped mass of each element
  std::vector<PuntoB> MatrizB;  // B of each element and integration point: [(e - 1) * 3 + (g - 1)]
  // After the condensation: the free degrees (global numbers in the condensed order) and the
  // condensed loads.
  std::vector<long> Libres;
  std::vector<double> VectorCargasCondensado;
  double K(long i, long j) const { return MatrizRigidezGlobal[Pos(i, j)]; }
  double M(long i, long j) const { return MatrizMasaGlobal[Pos(i, j)]; }
  std::size_t Pos(long i, long j) const { return static_cast<std::size_t>((i - 1) * grados + (j - 1)); }
};

// Assembles stiffness, lumped mass and loads. False, with Malla.FalloInversa set, after one of the
// messages of the assembly.
bool ElementoTriangularSismico(Proyecto& p, Interfaz& ui, MatricesSísmicas& s);

// The free degrees in the condensed order: node table read from its last row (node 1) to its first,
// x before y, each direction restricted "N" left out. A node with no restriction row keeps both.
std::vector<long> GradosLibres(const Proyecto& p);

// Applies the restrictions to the diagonal, keeps the free degrees and copies stiffness, mass and
// loads to the condensed arrays of Proyecto::Sísmico; fills the per-degree properties. False
// after the message of a zero on the condensed diagonal; GradosDeLibertadEstimados stays false.
bool CondensarMatrices(Proyecto& p, Interfaz& ui, MatricesSísmicas& s);

// What each free degree takes from the stratum of the first element that holds its node: Young's
// modulus, Poisson ratio, moist unit weight, shear wave velocity and maximum shear modulus, in the
// order of `libres`.
void PropiedadesDeLosGrados(Proyecto& p, const std::vector<long>& libres);

// The matrices of the whole mesh of this project, kept in its state while the program runs (made
// empty the first time); and whether they are there and fit the condensed degrees of the project.
MatricesSísmicas& MatricesSísmicasEnMemoria(Proyecto& p);
bool MatricesEnMemoriaVigentes(const Proyecto& p);

// The command: `ElementoTriangularSismico`, then `CondensarMatrices`, with the closing message.
// The command's gates and questions stand before it.
bool DeterminarGradosDeLibertad(Proyecto& p, Interfaz& ui, MatricesSísmicas& s);

}  // namespace lomaterra
