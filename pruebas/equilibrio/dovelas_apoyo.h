// Projects of the slice tests, built in code.
#pragma once

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

using Puntos = std::vector<std::pair<double, double>>;

inline void PonerLínea(TablaXY& t, Entero& n, const Puntos& puntos) {
  n = static_cast<Entero>(puntos.size());
  t.Redimensionar(n);
  for (long k = 1; k <= n; ++k) {
    t.X[k] = puntos[static_cast<std::size_t>(k - 1)].first;
    t.Y[k] = puntos[static_cast<std::size_t>(k - 1)].second;
  }
}

struct DatosEstrato {
  double cohesión = 0, fricción = 0, húmedo = 1.8, saturado = 2.0;
  Entero tipo = 0;  // 1 fill
  double b = 0, cv = 0, tiempo = 0;
};

// Adds stratum s (the next one) with its lower line.
inline void AñadirEstrato(Proyecto& p, const Puntos& línea, const DatosEstrato& e) {
  const int s = ++p.NúmeroEstratos;
  long máximo = static_cast<long>(línea.size());
  for (int k = 1; k < s; ++k) máximo = std::max<long>(máximo, p.PuntosEstrato[k]);
  p.XEstrato.RedimensionarConservando(s, máximo);
  p.YEstrato.RedimensionarConservando(s, máximo);
  p.PuntosEstrato.RedimensionarConservando(s);
  p.PuntosEstrato[s] = static_cast<Entero>(línea.size());
  for (long j = 1; j <= static_cast<long>(línea.size()); ++j) {
    p.XEstrato(s, j) = línea[static_cast<std::size_t>(j - 1)].first;
    p.YEstrato(s, j) = línea[static_cast<std::size_t>(j - 1)].second;
  }
  p.Estrato.RedimensionarConservando(s);
  p.Estrato.Cohesión[s] = e.cohesión;
  p.Estrato.Fricción[s] = e.fricción;
  p.Estrato.PesoUnitarioHúmedo[s] = e.húmedo;
  p.Estrato.PesoUnitarioSaturado[s] = e.saturado;
  p.Estrato.TipoEstrato[s] = e.tipo;
  p.Estrato.ParámetroPresión[s] = e.b;
  p.Estrato.CoeficienteConsolidaciónVertical[s] = e.cv;
  p.Estrato.TiempoDeConstrucción[s] = e.tiempo;
  p.EstratosCaracterizados = true;
}

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

// A soil project for limit equilibrium with Fellenius chosen and the constants given.
inline Proyecto ProyectoDeSuelo(double dovelas) {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.InformaciónDada = true;
  p.ParámetrosInicialesDados = true;
  p.ParámetrosIniciales.MétodoDeCálculo = 3;
  p.ParámetrosIniciales.NúmeroDovelas = dovelas;
  p.ParámetrosIniciales.FSInicial = 1;
  return p;
}

}  // namespace lomaterra::pruebas
