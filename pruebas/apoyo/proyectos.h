// Short ways to fill a project in code: point lists, one-stretch surfaces, slice tables by hand.
#pragma once

#include <array>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

using Puntos = std::vector<std::pair<double, double>>;

// Rows 1..n of a point table and its count.
inline void PonerLínea(TablaXY& t, Entero& n, const Puntos& puntos) {
  n = static_cast<Entero>(puntos.size());
  t.Redimensionar(n);
  for (long k = 1; k <= n; ++k) {
    t.X[k] = puntos[static_cast<std::size_t>(k - 1)].first;
    t.Y[k] = puntos[static_cast<std::size_t>(k - 1)].second;
  }
}

// Rows 1..n of a column of the slice table.
inline void Fijar(Tabla<double>& t, std::vector<double> v) {
  t.Redimensionar(static_cast<long>(v.size()));
  for (std::size_t i = 0; i < v.size(); ++i) t[static_cast<long>(i) + 1] = v[i];
}

// Stretches of the failure surface: {first point, last point, letter}; the geometry is defined.
inline void PonerTramos(Proyecto& p, const std::vector<std::tuple<int, int, std::string>>& tramos) {
  p.NúmeroTramosFalla = static_cast<Entero>(tramos.size());
  p.TramoFalla.Redimensionar(p.NúmeroTramosFalla);
  for (long t = 1; t <= p.NúmeroTramosFalla; ++t) {
    const auto& [a, b, letra] = tramos[static_cast<std::size_t>(t - 1)];
    p.TramoFalla.PuntoInicial[t] = a;
    p.TramoFalla.PuntoFinal[t] = b;
    p.TramoFalla.TipoUnión[t] = letra;
  }
  p.GeometríaFallaDefinida = true;
}

// Uniform loads as rows {xo, xf, qx, qy} (at level 0) and point loads as rows {x, y, Px, Py}; the
// counts and the flags follow.
inline void CargasUniformes(Proyecto& p, std::vector<std::array<double, 4>> filas) {
  p.NúmeroCargasUniformes = static_cast<Entero>(filas.size());
  p.CargasUniformesDadas = true;
  p.CargaUniforme.Redimensionar(p.NúmeroCargasUniformes);
  for (long i = 1; i <= p.NúmeroCargasUniformes; ++i) {
    const auto& f = filas[static_cast<std::size_t>(i - 1)];
    p.CargaUniforme.xo[i] = f[0], p.CargaUniforme.xf[i] = f[1], p.CargaUniforme.qx[i] = f[2], p.CargaUniforme.qy[i] = f[3];
  }
}
inline void CargasPuntuales(Proyecto& p, std::vector<std::array<double, 4>> filas) {
  p.NúmeroCargasPuntuales = static_cast<Entero>(filas.size());
  p.CargasPuntualesDadas = true;
  p.CargaPuntual.Redimensionar(p.NúmeroCargasPuntuales);
  for (long i = 1; i <= p.NúmeroCargasPuntuales; ++i) {
    const auto& f = filas[static_cast<std::size_t>(i - 1)];
    p.CargaPuntual.Xpuntual[i] = f[0], p.CargaPuntual.Ypuntual[i] = f[1], p.CargaPuntual.Px[i] = f[2], p.CargaPuntual.Py[i] = f[3];
  }
}

// The surface as one stretch from point 1 to point 2, joined by `tipo` ("C" arc, "L" line).
inline void UnTramo(Proyecto& p, const char* tipo) {
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.PuntoInicial[1] = 1;
  p.TramoFalla.PuntoFinal[1] = 2;
  p.TramoFalla.TipoUnión[1] = tipo;
}

// The six stages marked done, so that a method works on the slices it is given.
inline void EtapasHechas(Proyecto& p) {
  p.EtapaIntersecciones = p.EtapaQuiebres = p.EtapaDovelas = p.EtapaGeometría = p.EtapaEstratos =
      p.EtapaPoros = true;
}

// Three slices of a soil project, edges at x = 4, 2, 0.8, -0.8:
//   middles x = 3, 1.4, 0 on the base y = 1, 0.2, 0; tan a = 0.75, 7/24, 0 (sin a = 0.6, 0.28, 0)
//   widths b = 2, 1.2, 1.6; heights h = 4, 3, 1; unit weight 2, so W = 16, 7.2, 3.2
//   u = 0, 0.5, 1; c = 2; tan phi = 0.5; water on the base, none over the ground.
inline void TresDovelasDeSuelo(Proyecto& p, Entero método) {
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.ParámetrosInicialesDados = true;
  p.ParámetrosIniciales.MétodoDeCálculo = método;
  p.ParámetrosIniciales.FSInicial = 1;
  EtapasHechas(p);
  auto& d = p.TablaDovelas;
  p.NúmeroBordes = 4;
  Fijar(d.BordeX, {4, 2, 0.8, -0.8});
  Fijar(d.XMedio, {3, 1.4, 0});
  Fijar(d.Ancho, {2, 1.2, 1.6});
  Fijar(d.YBase, {1, 0.2, 0});
  Fijar(d.YTalud, {5, 3.2, 1});
  Fijar(d.YFreático, {1, 0.2, 0});
  Fijar(d.PendienteBase, {0.75, 7.0 / 24.0, 0});
  Fijar(d.PesoUnitarioMedio, {2, 2, 2});
  Fijar(d.AlturaAguaSobreTalud, {0, 0, 0});
  Fijar(d.PresiónPoros, {0, 0.5, 1});
  Fijar(d.CohesiónBase, {2, 2, 2});
  Fijar(d.TanFricciónBase, {0.5, 0.5, 0.5});
}

}  // namespace lomaterra::pruebas
