// The ACADS referee problem EX1(a) as a project, for the tests of the methods.
#pragma once

#include <utility>
#include <vector>

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

// The ACADS referee problem EX1(a): a homogeneous slope 10 m high at 2:1, c' = 3 kPa,
// phi' = 19.6 deg, gamma = 20 kN/m3, no water. Ground from the crest: (70, 35), (50, 35),
// (30, 25), (20, 25). Its critical circle has its centre near (29.7, 53.2) and radius 28.2 m; it
// meets the crest at x = 29.7 + sqrt(28.2^2 - 18.2^2) = 51.24 and the toe level at x = 29.7.
// Rigorous methods give 0.986 to 0.993 for it.
inline Proyecto EjemploACADS(double dovelas, Entero método) {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.ParámetrosInicialesDados = true;
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = método;
  pi.FSInicial = 1;
  pi.NúmeroDovelas = dovelas;
  pi.Radio = 28.2;
  auto línea = [](TablaXY& t, Entero& n, std::vector<std::pair<double, double>> v) {
    n = static_cast<Entero>(v.size());
    t.Redimensionar(n);
    for (long k = 1; k <= n; ++k) {
      t.X[k] = v[static_cast<std::size_t>(k - 1)].first;
      t.Y[k] = v[static_cast<std::size_t>(k - 1)].second;
    }
  };
  línea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{70, 35}, {50, 35}, {30, 25}, {20, 25}});
  línea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{51.24, 35}, {29.7, 25}});
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.PuntoInicial[1] = 1;
  p.TramoFalla.PuntoFinal[1] = 2;
  p.TramoFalla.TipoUnión[1] = "C";
  p.GeometríaFallaDefinida = true;
  // One stratum whose lower line runs well below the circle.
  p.NúmeroEstratos = 1;
  p.PuntosEstrato.Redimensionar(1);
  p.PuntosEstrato[1] = 2;
  p.XEstrato.Redimensionar(1, 2);
  p.YEstrato.Redimensionar(1, 2);
  p.XEstrato(1, 1) = 70;
  p.YEstrato(1, 1) = 0;
  p.XEstrato(1, 2) = 20;
  p.YEstrato(1, 2) = 0;
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.Cohesión[1] = 3 / 9.81;
  p.Estrato.Fricción[1] = 19.6;
  p.Estrato.PesoUnitarioHúmedo[1] = 20 / 9.81;
  p.Estrato.PesoUnitarioSaturado[1] = 20 / 9.81;
  p.EstratosCaracterizados = true;
  return p;
}

}  // namespace lomaterra::pruebas
