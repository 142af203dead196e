#include "sismico/amortiguamiento.h"

#include <cmath>

#include "proyecto/fallos.h"

namespace lomaterra {

ConstantesRayleigh CalcularConstantesRayleigh(double w1, double w2, double z) {
  if (w1 == w2) w2 = w1 + 0.1;
  const double d = w2 * w2 - w1 * w1;
  return {Div(2 * w1 * w2 * z * (w2 - w1), d, "las constantes de Rayleigh"),
          Div(2 * z * (w2 - w1), d, "las constantes de Rayleigh")};
}

double RelaciónAmortiguamientoSuelo(double cu, double ip, double ocr, double c, double fricción) {
  const double D = 0.333 * (0.586 * 1.0 * 1.0 - 1.547 + 1.0);  // the modulus ratio held at 1
  const bool plástico = (cu == 0 && fricción > 0 && c >= 0 && ocr == 1 && ip > 0) || ocr > 1 ||
                        (ocr == 1 && cu > 0 && ip > 0);
  if (plástico) return D * (std::exp(-0.0145 * std::pow(ip, 1.3)) + 1.0) / 2.0;
  if (ocr == 0 && cu == 0 && fricción > 0 && c >= 0 && ip == 0) return D;
  return 0;
}

double RelaciónAmortiguamientoRoca(double d, double G, double w) {
  return Div(w * 0.5 * d, std::sqrt(G * G + std::pow(std::pow(w, 1.4) * d, 2.0)),
             "la relación de amortiguamiento de la roca");
}

void MatrizAmortiguamientoRayleigh(const std::vector<MatricesElemento>& elementos, double w1,
                                   double w2, long gradosTotales, const std::vector<long>& libres,
                                   std::vector<double>& global, std::vector<double>& condensada) {
  const auto N = static_cast<std::size_t>(gradosTotales);
  global.assign(N * N, 0.0);
  for (const MatricesElemento& e : elementos) {
    const ConstantesRayleigh c = CalcularConstantesRayleigh(w1, w2, e.relación);
    const std::size_t g = e.grados.size();
    for (std::size_t i = 0; i < g; ++i)
      for (std::size_t j = 0; j < g; ++j) {
        const auto fila = static_cast<std::size_t>(e.grados[i] - 1), col = static_cast<std::size_t>(e.grados[j] - 1);
        global[fila * N + col] += c.a1 * e.K[i * g + j] + c.a0 * e.M[i * g + j];
      }
  }
  const std::size_t n = libres.size();
  condensada.assign(n * n, 0.0);
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = 0; j < n; ++j)
      condensada[i * n + j] = global[static_cast<std::size_t>(libres[i] - 1) * N + static_cast<std::size_t>(libres[j] - 1)];
}

}  // namespace lomaterra
