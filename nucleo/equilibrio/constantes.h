// The screen "Constantes de cálculo y grieta de tracción": method of calculation, instantaneous
// parameters, Lagrange multipliers, initial factor of safety, circular surface, slices, seismic
// coefficients and the tension crack.
#pragma once

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

inline constexpr const char* kNombrePantallaConstantes = "Constantes";

class PantallaConstantes : public Pantalla {
 public:
  explicit PantallaConstantes(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Aceptar(Interfaz& ui);   // BotónAceptar
  void Cancelar(Interfaz& ui);  // BotónCancelar

 private:
  void Llenar(Interfaz& ui);
  Proyecto& p_;
};

// The arc of this screen through the upper point (x1, y1) and the lower point (x2, y2) of the
// failure surface: from the radius typed, the angle v = π/2 − a − arcsin(cuerda / 2R) with a the
// inclination of the chord, and the centre at R·(sin v, cos v) from the lower point. While the
// centre stands below the upper point (or the radius does not reach half the chord) the radius
// grows by 0.5. False when no centre is found within a sane number of steps.
struct ArcoDeConstantes {
  double radio = 0, cuerda = 0, centroX = 0, centroY = 0;
};
bool CentroDelArcoDeConstantes(double x1, double y1, double x2, double y2, double radio,
                               ArcoDeConstantes& arco);

// The most slices a calculation takes: the constants screen refuses more.
inline constexpr int kMáximoDovelas = 5000;
// Leshchinsky-Huang in rock inverts its whole matrix at every step: it holds this many slices.
inline constexpr int kMáximoDovelasRocas = 400;

// Opens the constants screen modally (menu command MenúArchivoConstantes without its gate; also
// called by the centre of the arc when the radius is below half the chord).
void AbrirConstantesDeCálculo(Proyecto& p, Interfaz& ui);

// Menu command MenúArchivoConstantes: the analysis kind, the failure surface and its stretches.
void MenúArchivoConstantes(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
