// The seismic data of a project: the record, the strata parameters with the choice of the maximum
// shear modulus, the condensed matrices of the free degrees, the frequencies and the mode shapes.
// Kept apart from the mesh tables; the finite-element side fills the condensed matrices.
#pragma once

#include <cstdint>
#include <vector>

#include "proyecto/tabla.h"

namespace lomaterra {

struct DatosSísmicos {
  using Entero = std::int16_t;

  // Flags that the project file and the save chain read. `RegistroDado` is the record screen's
  // `RegistroSísmicoDefinido`; `ParámetrosSísmicosDados` the strata screen's
  // `EstratosSísmicosDefinidos`; `FormasModalesDadas` is `FormasModalesCalculadas`;
  // `FrecuenciasDadas` says that the list `Frecuencia` holds values (initial or final).
  bool RegistroDado = false, ParámetrosSísmicosDados = false, FormasModalesDadas = false,
       FrecuenciasDadas = false, SismoCalculado = false, CálculoSísmicoHecho = false;
  Entero PasosSísmicos = 0;
  Entero RegistroSeleccionado = 0;

  // The record: time in seconds, accelerations as fractions of g, rows 1..NúmeroPuntosRegistro.
  Entero NúmeroPuntosRegistro = 0;
  Tabla<double> TiempoRegistro, AceleraciónHorizontal, AceleraciónVertical;

  // One row a stratum. In the project file (body "F") these are `VelocidadCorte` and
  // `ParámetroSísmico2` to `ParámetroSísmico7`, in this order.
  Tabla<double> VelocidadOndaCorte, DistorsiónCortante, RelaciónVacíos, ResistenciaNoDrenada,
      ÍndicePlástico, OCR;
  Tabla<Entero> Determinante;  // 1 "SI", 2 "NO": the material decides the stability
  Entero MétodoGmax = 0;       // 1 wave velocity, 2 physical properties, 3 elastic properties
  double AlturaPresa = 0;      // height of the slope or dam, m
  bool HayNoDeterminantes = false;

  // The free degrees after condensation and their matrices (metres, tons, seconds).
  Entero NúmeroGradosLibertad = 0;
  Tabla2<double> MatrizRigidezCondensada, MatrizMasaCondensada, MatrizAmortiguamientoCondensada;
  bool GradosDeLibertadEstimados = false;

  // What each free degree takes, in the condensed order, from the stratum of the first element
  // that holds its node: Young's modulus, Poisson ratio, moist unit weight, shear wave velocity and
  // maximum shear modulus. Filled where the free degrees are numbered.
  Tabla<double> MóduloGrado, PoissonGrado, PesoGrado, VelocidadGrado, GmaxGrado;

  // Natural frequencies (rad/s) and mass-normalised mode shapes, column m is mode m.
  Tabla<double> Frecuencia;
  Entero NúmeroFrecuencias = 0;
  bool FrecuenciasIniciales = false, FrecuenciasDefinitivas = false;
  Tabla2<double> MatrizFormasModales;
  Entero ModosCalculados = 0;  // all, 100 or 2
  double ModoDeCálculo = 0;    // below 1 while none is chosen
  Entero ModoElegido = 0;

  // The response run as the project file carries it: the run's flags and figures, and the history
  // per record step (six values a node, four and three an element).
  bool SismoIntegrado = false, MatricesSísmicasDadas = false;
  double ResultadoSísmico1 = 0, ResultadoSísmico2 = 0, IntervaloTiempoSísmico = 0;
  Entero ModoSísmico = 0;
  std::vector<double> HistoriaNodos, HistoriaElementos4, HistoriaElementos3;
  double FactorSísmicoMínimo = 0;
  Entero PasoFactorSísmico = 0, ElementoFactorSísmico = 0;
  // The two band widths of the condensed matrices and their band values.
  Entero AnchoBanda1 = 0, AnchoBanda2 = 0;
  std::vector<double> Banda1, Banda2;

  void Limpiar() { *this = DatosSísmicos{}; }
};

}  // namespace lomaterra
