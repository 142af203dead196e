// The ACADS referee problem EX1(a) as a project, for the tests of the methods.
#pragma once

#include "apoyo/apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"

namespace lomaterra::pruebas {

// A homogeneous slope 10 m high at 2:1, c' = 3 kPa, phi' = 19.6 deg, gamma = 20 kN/m3 (in tons),
// no water; ground from the crest (70, 35), (50, 35), (30, 25), (20, 25). Its critical circle has
// its centre near (29.7, 53.2) and radius 28.2 m; it meets the crest at x = 29.7 +
// sqrt(28.2^2 - 18.2^2) = 51.24 and the toe level at x = 29.7. Rigorous methods give 0.986 to
// 0.993. Read from its sample file, with the number of slices and the method given.
inline Proyecto EjemploACADS(double dovelas, Entero método) {
  Proyecto p;
  InterfazGuionada ui;
  LeerProyecto(p, RutaEjemplo("janbu_acads.cod"), ui);
  p.ParámetrosIniciales.NúmeroDovelas = dovelas;
  p.ParámetrosIniciales.MétodoDeCálculo = método;
  return p;
}

}  // namespace lomaterra::pruebas
