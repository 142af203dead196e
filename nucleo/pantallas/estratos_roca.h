// "Características de los estratos en macizos rocosos": one row a stratum with the Hoek-Brown
// data of the field (mi, GSI, m, s, unit weights, unconfined strength of the intact rock) and the
// columns that the finite-element analysis uses (wave velocities, Poisson, viscosity); Aceptar
// turns each row into the constants of the mass and into an equivalent cohesion and friction.
// And the laboratory screen that fits m and s of each stratum to pairs of principal stresses.
#pragma once

#include <string>
#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class PantallaEstratosRoca : public Pantalla {
 public:
  explicit PantallaEstratosRoca(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);  // a row chosen in CaracterísticasEstratosEnRoca
  void Modificar(Interfaz& ui);    // BotónModificar: the boxes into the chosen row
  void Aceptar(Interfaz& ui);      // BotónAceptar: the whole list into the strata
  void Cancelar(Interfaz& ui);     // BotónCancelar

  // The eleven columns of a row as entered, in the order of the list.
  struct Fila {
    bool completa = false;
    double mi = 0, GSI = 0, m = 0, s = 0, húmedo = 0, saturado = 0, σc = 0;
    double velocidadCorte = 0, velocidadLongitudinal = 0, poisson = 0, viscosidad = 0;
  };
  const std::vector<Fila>& Filas() const { return filas_; }

 private:
  void Mostrar();
  bool ElementosFinitos() const;
  Proyecto& p_;
  std::vector<Fila> filas_;
};

class PantallaEnsayosRoca : public Pantalla {
 public:
  explicit PantallaEnsayosRoca(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void SeleccionarEstrato(Interfaz& ui);  // ListaDeEstratos: its pairs come to the front
  void Agregar(Interfaz& ui);             // BotónAgregar: one pair, kept ordered by sigma 3
  void Eliminar(Interfaz& ui);            // BotónEliminar: the chosen pair goes
  void Aceptar(Interfaz& ui);             // BotónAceptar: the fit of every stratum
  void Cancelar(Interfaz& ui);            // BotónCancelar

 private:
  struct Par {
    double σ1 = 0, σ3 = 0;
  };
  void Mostrar();
  Proyecto& p_;
  std::vector<std::vector<Par>> pares_;  // per stratum
  int alFrente_ = 0;                     // stratum whose pairs are shown, 0 none
};

// Menu commands ParámetrosCaracterizaciónRocaSinLaboratorio and
// ParámetrosDeCaracterizaciónRocaConLaboratorio.
void ParámetrosCaracterizaciónRocaSinLaboratorio(Proyecto& p, Interfaz& ui);
void ParámetrosDeCaracterizaciónRocaConLaboratorio(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
