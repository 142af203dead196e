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
  for (auto* t : {&d.BordeX, &d.BordeYFalla, &d.BordeYTalud, &d.BordeYFreático})
    t->Redimensionar(4);
  const double bx[] = {0, 25, 20, 15, 8}, bf[] = {0, 10, 6, 2, 0}, bt[] = {0, 10, 10, 35.0 / 6, 0};
  for (long i = 1; i <= 4; ++i) {
    d.BordeX[i] = bx[i];
    d.BordeYFalla[i] = bf[i];
    d.BordeYTalud[i] = bt[i];
  }
  for (auto* t :
       {&d.XMedio, &d.YBase, &d.YTalud, &d.YFreático, &d.Ancho, &d.CohesiónBase, &d.FricciónBase,
        &d.TanFricciónBase, &d.PesoUnitarioMedio, &d.PresiónPoros, &d.ÁnguloBase, &d.FuerzaNormal,
        &d.EsfuerzoNormalTotal, &d.EsfuerzoNormalEfectivo, &d.EsfuerzoTangencial})
    t->Redimensionar(3);
  const double sigma[] = {0, 5, 12, 8}, u[] = {0, 1, 3, 1.5};
  const double tan30 = std::tan(std::atan(1.0) / 45.0 * 30);
  for (long i = 1; i <= 3; ++i) {
    d.XMedio[i] = 0.5 * (bx[i] + bx[i + 1]);
    d.Ancho[i] = bx[i] - bx[i + 1];
    d.YBase[i] = 0.5 * (bf[i] + bf[i + 1]);
    d.YTalud[i] = 0.5 * (bt[i] + bt[i + 1]);
    d.YFreático[i] = d.YBase[i];
    d.CohesiónBase[i] = 1.5;
    d.FricciónBase[i] = 30;
    d.TanFricciónBase[i] = tan30;
    d.PesoUnitarioMedio[i] = 1.8;
    d.PresiónPoros[i] = u[i];
    d.EsfuerzoNormalTotal[i] = sigma[i];
    d.EsfuerzoNormalEfectivo[i] = sigma[i] - u[i];
    d.EsfuerzoTangencial[i] = (1.5 + (sigma[i] - u[i]) * tan30) / 1.5;
  }
  p.NúmeroIteraciones = 3;
  p.HistoriaIteraciones.Redimensionar(3);
  p.HistoriaIteraciones.FactorDeSeguridad[1] = 1.4;
  p.HistoriaIteraciones.FactorDeSeguridad[2] = 1.48;
  p.HistoriaIteraciones.FactorDeSeguridad[3] = 1.5;
  p.SumaNormalesTotales = 25;
  p.SumaNormalesEfectivos = 19.5;
  for (long i = 1; i <= 3; ++i) p.SumaTangenciales += d.EsfuerzoTangencial[i];
  p.CálculoHecho = true;
  return p;
}

}  // namespace lomaterra::pruebas
