// A homogeneous slope cut by a circle, sliced by hand: the slice table that the six stages would
// leave for one stratum, no water and equal widths between the two crossings of the circle with
// the ground. Tests of the methods use it when they must not depend on the stages.
#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

struct TaludCircular {
  std::vector<std::pair<double, double>> suelo;  // descending X, crest first
  double xc = 0, yc = 0, R = 0;
  double c = 0, φ = 0, γ = 0;  // ton/m2, degrees, ton/m3

  double YSuelo(double x) const {
    for (std::size_t j = 0; j + 1 < suelo.size(); ++j) {
      const auto [x1, y1] = suelo[j];
      const auto [x2, y2] = suelo[j + 1];
      if (x <= x1 && x >= x2) return y1 + (x - x1) * (y2 - y1) / (x2 - x1);
    }
    return x > suelo.front().first ? suelo.front().second : suelo.back().second;
  }
  double YCírculo(double x) const {
    return yc - std::sqrt(std::max(0.0, R * R - (x - xc) * (x - xc)));
  }

  // Crossings of the lower arc with the ground by bisection: the crest side and the toe side.
  std::pair<double, double> Cruces() const {
    auto raíz = [&](double a, double b) {
      for (int k = 0; k < 200; ++k) {
        const double m = (a + b) / 2;
        const double fa = YSuelo(a) - YCírculo(a), fm = YSuelo(m) - YCírculo(m);
        if ((fa > 0) == (fm > 0))
          a = m;
        else
          b = m;
      }
      return (a + b) / 2;
    };
    return {raíz(xc + R - 1e-9, xc), raíz(xc - R + 1e-9, xc)};
  }

  // Fills the project: slices, strata columns and the flags of the six stages. With `desigualdad`
  // above 0 (below 1) the widths grow from the crest to the toe instead of being equal.
  void Llenar(Proyecto& p, int n, double desigualdad = 0) const {
    const auto [xa, xb] = Cruces();
    auto& d = p.TablaDovelas;
    p.NúmeroBordes = static_cast<Entero>(n + 1);
    for (auto* col : {&d.BordeX, &d.BordeYFalla, &d.BordeYTalud, &d.BordeYFreático})
      col->Redimensionar(n + 1);
    for (auto* col :
         {&d.XMedio, &d.YBase, &d.YTalud, &d.YFreático, &d.Ancho, &d.PendienteTalud,
          &d.PendienteBase, &d.CohesiónBase, &d.FricciónBase, &d.TanFricciónBase,
          &d.PesoUnitarioMedio, &d.PresiónPoros, &d.PresiónPorosMedia, &d.AlturaAguaSobreTalud})
      col->Redimensionar(n);
    d.TipoEstratoBase.Redimensionar(n);
    const double paso = (xa - xb) / n;
    for (int e = 1; e <= n + 1; ++e) {
      const double u = static_cast<double>(e - 1) / n;
      const double x = e == n + 1 ? xb : xa - (u - desigualdad * u * (1 - u)) * n * paso;
      d.BordeX[e] = x;
      d.BordeYFalla[e] = e == 1 || e == n + 1 ? YSuelo(x) : YCírculo(x);
      d.BordeYTalud[e] = YSuelo(x);
    }
    const double π = 4 * std::atan(1.0);
    for (int i = 1; i <= n; ++i) {
      const double x = (d.BordeX[i] + d.BordeX[i + 1]) / 2;
      d.XMedio[i] = x;
      d.YBase[i] = std::min(YCírculo(x), YSuelo(x));
      d.YTalud[i] = YSuelo(x);
      d.YFreático[i] = d.YBase[i];
      d.Ancho[i] = d.BordeX[i] - d.BordeX[i + 1];
      d.PendienteTalud[i] = (d.BordeYTalud[i] - d.BordeYTalud[i + 1]) / d.Ancho[i];
      d.PendienteBase[i] = (d.BordeYFalla[i] - d.BordeYFalla[i + 1]) / d.Ancho[i];
      d.CohesiónBase[i] = c;
      d.FricciónBase[i] = φ;
      d.TanFricciónBase[i] = std::tan(π * φ / 180);
      d.PesoUnitarioMedio[i] = γ;
    }
    p.EtapaIntersecciones = p.EtapaQuiebres = p.EtapaDovelas = true;
    p.EtapaGeometría = p.EtapaEstratos = p.EtapaPoros = true;
  }
};

// The referee problem EX1(a) of ACADS: c' = 3 kPa, φ' = 19.6°, γ = 20 kN/m3, in tons (÷ 9.81),
// ground (70,35)-(50,35)-(30,25)-(20,25), critical circle centre (29.7, 53.2), radius 28.2 m.
inline TaludCircular AcadsEx1a() {
  return {{{70, 35}, {50, 35}, {30, 25}, {20, 25}}, 29.7, 53.2, 28.2, 3 / 9.81, 19.6, 20 / 9.81};
}

// A project ready for method 1 in soil on the given slope: selectors, parameters and slices.
inline void ProyectoVariacional(Proyecto& p, const TaludCircular& t, int n, double µ1, double µ2,
                                double fs, double σcresta) {
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.ParámetrosInicialesDados = true;
  auto& par = p.ParámetrosIniciales;
  par.MétodoDeCálculo = 1;
  par.Multiplicador1 = µ1;
  par.Multiplicador2 = µ2;
  par.FSInicial = fs;
  par.EsfuerzoInicialCresta = σcresta;
  t.Llenar(p, n);
}

}  // namespace lomaterra::pruebas
