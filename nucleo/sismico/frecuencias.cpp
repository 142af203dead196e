#include "sismico/frecuencias.h"

#include <cmath>

#include "proyecto/compat.h"

namespace lomaterra {

double CeroBesselJ0(long n) {
  const double p = 3.1415927;
  const double m = 4.0 * static_cast<double>(n) - 1.0;
  const double x2 = m * m * p * p;
  const double x4 = x2 * x2, x6 = x4 * x2, x8 = x4 * x4, x10 = x8 * x2;
  const double b = m * p / 4.0;
  return b * (1.0 + 2.0 / x2 - 62.0 / (3.0 * x4) + 15116.0 / (15.0 * x6) -
              12554474.0 / (105.0 * x8) + 8368654292.0 / (315.0 * x10));
}

double FactorKCasoC(double fricciónGrados) {
  const double x = (fricciónGrados - 25.0) / 0.15;
  if (x <= 0) return 16.0;
  return static_cast<double>(EnteroCorto(16.0 + 0.6 * x));
}

double FactorkPorIp(double ip) {
  if (ip <= 20) return 0.18;
  if (ip <= 40) return 0.18 + 0.12 * (ip - 20) / 20;
  if (ip <= 60) return 0.30 + 0.11 * (ip - 40) / 20;
  if (ip <= 80) return 0.41 + 0.07 * (ip - 60) / 20;
  if (ip < 100) return 0.48 + 0.02 * (ip - 80) / 20;
  return 0.5;
}

Gmax GmaxPorPropiedadesFísicas(const SueloParaGmax& s) {
  const double confinamiento = std::max(0.0, (s.k0 + 1.0) * s.sv / 2.0);
  const double fi = s.fricción * 3.141592654 / 180.0;
  const double vacíos2 = (2.97 - s.e) * (2.97 - s.e);
  auto casoDE = [&] {
    return vacíos2 / (1.0 + s.e) * 72.05832 * s.ocr * FactorkPorIp(s.ip) *
           std::sqrt(confinamiento * 204.857);
  };
  if (s.cu == 0 && fi > 0 && s.c >= 0 && s.ocr == 1 && s.ip > 0)
    return {'A', 0.704 * vacíos2 * (1230.0 / (1.0 + s.e)) * std::sqrt(confinamiento * 1.421)};
  if (s.ocr == 1 && s.cu > 0 && s.ip > 0) return {'B', s.cu * 1126.4 * 1.421};
  if (s.ocr == 0 && s.cu == 0 && fi > 0 && s.c >= 0 && s.ip == 0)
    return {'C', FactorKCasoC(s.fricción) * 4.882 * std::sqrt(confinamiento * 204.857)};
  if (s.cu == 0 && fi >= 0 && s.c >= 0 && s.ocr > 1 && s.ip > 0) return {'D', casoDE()};
  if (s.cu > 0 && fi == 0 && s.c >= 0 && s.ocr > 1 && s.ip > 0) return {'E', casoDE()};
  return {};
}

double MóduloCortante(int método, const PropiedadesGrado& g) {
  switch (método) {
    case 1: return g.vs * g.vs * g.peso / 9.81;
    case 2: return g.gmax;
    default: return g.E / (2.0 * (1.0 + g.poisson));
  }
}

std::string FrecuenciasInicialesEstimadas(const std::vector<PropiedadesGrado>& grados, int método,
                                          double altura, std::vector<double>& frecuencias) {
  if (!(altura > 0))
    return "La altura del talud o de la represa es " + Formato(altura, "#0.00") +
           " m: las frecuencias iniciales se dividen por ella y no se pueden estimar. Vaya al menú "
           "'Elementos finitos', a la sesión 'Parámetros de los estratos para el cálculo sísmico', y "
           "dé una altura mayor que cero.";
  const double divisor = 1.2 * std::pow(altura, 5.0 / 6.0);
  std::vector<double> w(grados.size());
  for (std::size_t n = 0; n < grados.size(); ++n) {
    const PropiedadesGrado& g = grados[n];
    if (!(g.peso > 0))
      return "El peso unitario del material del grado de libertad " + std::to_string(n + 1) +
             " es " + Formato(g.peso, "#0.00") +
             " ton/m3: las frecuencias iniciales se dividen por él y no se pueden estimar. Revise "
             "las características de los estratos.";
    if (método == 3 && g.poisson == -1.0)
      return "El coeficiente de Poisson del material del grado de libertad " +
             std::to_string(n + 1) +
             " es -1: el módulo cortante por las propiedades elásticas no se puede hallar. Revise "
             "los parámetros de los estratos.";
    const double G = MóduloCortante(método, g);
    if (!(G >= 0) || !std::isfinite(G))
      return "El módulo cortante del material del grado de libertad " + std::to_string(n + 1) +
             " resulta negativo: las frecuencias iniciales no se pueden estimar. Revise los "
             "parámetros de los estratos.";
    w[n] = std::sqrt(G * 9.81 / g.peso) * CeroBesselJ0(static_cast<long>(n) + 1) / divisor;
  }
  frecuencias = std::move(w);
  return {};
}

}  // namespace lomaterra
