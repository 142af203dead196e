// A soil slope with three slices whose results are filled by hand, for the output tests.
//
//  Surface (30,10) (20,10) (8,0) (0,0); failure surface (25,10) (15,2) (8,0) joined by straight
//  stretches; one stratum whose lower line is Y = -5; phreatic line (30,4) (15,1.5) (0,0).
//  Edges at X = 25, 20, 15, 8: failure ordinates 10, 6, 2, 0; surface ordinates 10, 10, 35/6, 0.
//  Stresses by slice: σ = 5, 12, 8; u = 1, 3, 1.5; σ' = 4, 9, 6.5; c = 1.5 ton/m2, φ = 30°,
//  F = 1.5 and τ = (c + σ' tan φ) / F.
#pragma once

#include <cmath>

#include "apoyo/proyectos.h"
#include "equilibrio/dovelas_apoyo.h"
#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

inline Proyecto CasoTresDovelas() {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.InformaciónDada = true;
  p.InformaciónProyecto = {"K0+100", "K0+160", "21/11/2026", "Ing. Ana Pérez", "Geotecnia Andina"};
  p.Ventana.TextoProyecto = "Talud de prueba de la vía norte";
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 10}, {20, 10}, {8, 0}, {0, 0}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{25, 10}, {15, 2}, {8, 0}});
  PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{30, 4}, {15, 1.5}, {0, 0}});
  PonerTramos(p, {{1, 3, "L"}});
  AñadirEstrato(p, {{30, -5}, {0, -5}}, {.cohesión = 1.5, .fricción = 30});
  p.NúmeroEstratosCaracterizados = 1;
  CargasUniformes(p, {{21, 28, 0, 2}});
  p.CargaUniforme.yo[1] = p.CargaUniforme.yf[1] = 10;
  CargasPuntuales(p, {{22, 10, 0, 5}});
  p.ParámetrosInicialesDados = true;
  p.ParámetrosIniciales.MétodoDeCálculo = 2;
  p.ParámetrosIniciales.FSInicial = 1;
  p.ParámetrosIniciales.NúmeroDovelas = 3;

  auto& d = p.TablaDovelas;
  p.NúmeroBordes = 4;
  Fijar(d.BordeX, {25, 20, 15, 8});
  Fijar(d.BordeYFalla, {10, 6, 2, 0});
  Fijar(d.BordeYTalud, {10, 10, 35.0 / 6, 0});
  d.BordeYFreático.Redimensionar(4);
  Fijar(d.XMedio, {22.5, 17.5, 11.5});
  Fijar(d.Ancho, {5, 5, 7});
  Fijar(d.YBase, {8, 4, 1});
  Fijar(d.YFreático, {8, 4, 1});
  Fijar(d.YTalud, {10, (10 + 35.0 / 6) / 2, 35.0 / 12});
  Fijar(d.CohesiónBase, {1.5, 1.5, 1.5});
  Fijar(d.FricciónBase, {30, 30, 30});
  const double tan30 = std::tan(std::atan(1.0) / 45.0 * 30);
  Fijar(d.TanFricciónBase, {tan30, tan30, tan30});
  Fijar(d.PesoUnitarioMedio, {1.8, 1.8, 1.8});
  Fijar(d.PresiónPoros, {1, 3, 1.5});
  Fijar(d.EsfuerzoNormalTotal, {5, 12, 8});
  Fijar(d.EsfuerzoNormalEfectivo, {4, 9, 6.5});
  auto tau = [&](double efectivo) { return (1.5 + efectivo * tan30) / 1.5; };
  Fijar(d.EsfuerzoTangencial, {tau(4), tau(9), tau(6.5)});
  for (auto* t : {&d.ÁnguloBase, &d.FuerzaNormal}) t->Redimensionar(3);
  p.NúmeroIteraciones = 3;
  p.HistoriaIteraciones.Redimensionar(3);
  Fijar(p.HistoriaIteraciones.FactorDeSeguridad, {1.4, 1.48, 1.5});
  p.SumaNormalesTotales = 25;
  p.SumaNormalesEfectivos = 19.5;
  for (long i = 1; i <= 3; ++i) p.SumaTangenciales += d.EsfuerzoTangencial[i];
  p.CálculoHecho = true;
  return p;
}

}  // namespace lomaterra::pruebas
