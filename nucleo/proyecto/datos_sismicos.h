// The seismic data of a project: the record, the strata parameters with the choice of the maximum
// shear modulus, the condensed matrices of the free degrees, the frequencies and the mode shapes.
// Kept apart from the mesh tables; the finite-element side fills the condensed matrices.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "proyecto/tabla.h"

namespace lomaterra {

struct MatricesSísmicas;

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

  // The damping ratio of each element and, per free degree in the condensed order, the element
  // whose ratio it takes (the first element that holds its node). Built at the start of a run.
  Tabla<double> RelaciónAmortiguamiento;
  Tabla<long> ElementoDeGrado;
  // Degree numbers (2n-1, resp. 2n) of the nodes free in x, resp. y; filled only after a run.
  Tabla<long> ListaGradosX, ListaGradosY;
  Entero NúmeroGradosX = 0, NúmeroGradosY = 0;

  // The results of the last response run (Duhamel, step by step, or modal step by step), rows are
  // record steps 1..PasosCalculados. By node degree (column 2n-1 along x, 2n along y of node n,
  // over all nodes): displacements in metres during the run and centimetres after it, velocities
  // in m/s, accelerations in m/s². By element (column e): strains, stresses (t/m²), principal
  // stresses, the current shear modulus and Poisson ratio, the pore pressure under shaking.
  Tabla2<double> DesplazamientoSísmico, VelocidadSísmica, AceleraciónSísmica;
  Tabla2<double> DeformaciónX, DeformaciónY, DeformaciónXY, EsfuerzoX, EsfuerzoY, EsfuerzoXY,
      EsfuerzoMayor, EsfuerzoMenor, MóduloCortanteActual, PoissonActual, PresiónPorosSísmica;
  // The damping ratio of each element at each step, kept for the time histories.
  Tabla2<double> RelaciónAmortiguamientoActual;
  double DesplazamientoMáximo = 0;  // cm, largest magnitude over all steps and nodes
  long NodoMáximo = 0, PasoMáximo = 0;
  Tabla<double> DesplazamientoMáximoPorPaso;
  long PasosCalculados = 0;
  bool ResultadosSísmicos = false;
  // What ended or marked the run, for the result screens and the report: a displacement reached
  // the cut (10^4 m, or 10^5 m in the modal step by step), the 75% rule held, the user stopped it.
  bool CorteAlcanzado = false, ReglaDel75 = false, CálculoInterrumpido = false;
  char MétodoRespuesta = 0;  // 'D' Duhamel, 'P' step by step, 'M' modal step by step

  // The stiffness and mass of every element and the load vectors of the whole mesh from the last
  // assembly of this project. They live in memory only: a reset (New, Open) lets them go, so a
  // project never runs on the matrices of another. And whether the dam questions already offered
  // the strata screen.
  std::shared_ptr<MatricesSísmicas> MatricesEnMemoria;
  bool OfertaEstratosUsada = false;

  void Limpiar() { *this = DatosSísmicos{}; }
};

}  // namespace lomaterra
