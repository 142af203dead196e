#include "equilibrio/estratos/hoek_brown.h"

#include <cmath>

#include "proyecto/fallos.h"

namespace lomaterra {

ConstantesMacizo ConstantesHoekBrown(double mi, double GSI, double D) {
  const char* dónde = "las constantes m y s del macizo";
  ConstantesMacizo c;
  c.m = Finito(mi * std::exp(Div(GSI - 100, 28 - 14 * D, dónde)), dónde);
  c.s = Finito(std::exp(Div(GSI - 100, 9 - 3 * D, dónde)), dónde);
  return c;
}

ConstantesMacizo EstimaciónInicial(double mi, double GSI) {
  return ConstantesHoekBrown(mi, GSI, 0);
}

double ExponenteHoekBrown(double GSI) {
  return 0.5 + (std::exp(-GSI / 15) - std::exp(-20.0 / 3)) * (1.0 / 6);
}

double ResistenciaGlobalMacizo(double m, double s, double a, double σc) {
  const char* dónde = "la resistencia global del macizo";
  const double numerador = ((4 * s + m) - (m - 8 * s) * a) * Pot(m / 4 + s, a - 1, dónde);
  return Finito(Div(numerador, 2 * (1 + a) * (2 + a), dónde) * σc, dónde);
}

double MóduloDeformaciónMacizo(double σc, double GSI, double D) {
  const char* dónde = "el módulo de deformación del macizo";
  const double base = (1 - D / 2) * std::pow(10.0, (GSI - 10) / 40) * 1000 * 100;
  if (σc < 10000) return Finito(base * Raíz(σc / 10000, dónde), dónde);
  return Finito(base, dónde);
}

double EsfuerzoConfinamientoMáximo(double resistencia, double H, double pesoUnitario, bool túnel) {
  const char* dónde = "el esfuerzo de confinamiento máximo";
  const double relación = Div(resistencia, H * pesoUnitario, dónde);
  if (túnel) return Finito(0.47 * resistencia * Pot(relación, -0.94, dónde), dónde);
  return Finito(0.72 * resistencia * Pot(relación, -0.91, dónde), dónde);
}

CohesiónFricción EquivalenteEmpírico(double mi, double σc, double GSI) {
  const double lnmi = Ln(mi, "el logaritmo de mi (mi debe ser mayor que cero)");
  CohesiónFricción r;
  r.cohesión = Finito((0.0058 + 0.0004 * mi) * σc * std::exp((0.0455 - 0.0073 * lnmi) * GSI),
                      "la cohesión equivalente");
  r.fricción = 0.424 * GSI - 0.0016 * GSI * GSI - 6 + 9 * lnmi;
  if (!(r.fricción > 0)) r.fricción = 0;
  return r;
}

double SenoFricciónEquivalente(double m, double a, double A) {
  const double q = 6 * a * m * A;
  return Div(q, q + 2 * (a + 1) * (a + 2), "el seno de la fricción equivalente");
}

CohesiónFricción EquivalenteMacizo(double m, double s, double a, double σc, double r) {
  const char* dónde = "la cohesión equivalente del macizo";
  const double A = Pot(r * m + s, a - 1, dónde);
  const double raíz = Raíz(1 + Div(6 * a * m, (a + 1) * (a + 2), dónde) * A, dónde);
  CohesiónFricción cf;
  cf.cohesión = Finito(
      Div(((1 - a) * m * r + (2 * a + 1) * s) * σc * A, raíz * (a + 1) * (a + 2), dónde), dónde);
  cf.fricción = ArcoSenoSerie(SenoFricciónEquivalente(m, a, A)) * 180 / kPiRocas;
  return cf;
}

double ArcoSenoSerie(double z) {
  // term i = (2i)! / (4^i (i!)^2 (2i + 1)) z^(2i+1). The coefficient c_i = (2i)! / (4^i (i!)^2)
  // goes from c_{i-1} by the factor (2i)(2i − 1) / (4 i²), and the power by z².
  double coeficiente = 1, potencia = z, suma = z;
  const double z2 = z * z;
  for (int i = 1; i <= kTérminosArcoSeno; ++i) {
    coeficiente *= (2.0 * i) * (2.0 * i - 1) / (4.0 * i * i);
    potencia *= z2;
    suma += coeficiente * potencia / (2.0 * i + 1);
  }
  return Finito(suma, "la serie del arco seno");
}

double ResistenciaCorteMacizo(double m, double s, double σc, double fricciónGrados) {
  const char* dónde = "la resistencia al corte del macizo";
  const double f = fricciónGrados * kPiRocas / 180;
  const double sf = std::sin(f);
  const double P = Div(1.0, 2 * sf * sf, "la resistencia al corte del macizo (fricción nula)") + sf;
  const double Q = (Div(s, m, dónde) + 3 * m / 16) * σc;
  const double B = σc * m / 8;
  const double L = P * B - Q;
  return Finito(Raíz(Div(16.0, m * m, dónde) * (Div(L * m, σc, dónde) + s) + 3, dónde) * B, dónde);
}

EstadoHoekBrown RelacionesHoekBrown(double σ3, double u, double m, double s, double a, double σc) {
  const char* dónde = "la ley de Hoek y Brown en la base de una dovela";
  EstadoHoekBrown e;
  const double dw = Div(m, σc, dónde);
  e.w = (σ3 - u) * dw + s;
  e.L = Pot(e.w, 1 - a, dónde);
  const double σca = Div(σc, a, dónde);
  const double den = Div(2, a, dónde) * e.L + m;
  e.N = Finito(Pot(e.L, Div(1, 1 - a, dónde), dónde) * Div(σca, den, dónde), dónde);
  e.R = Raíz(Div(m, Div(e.L, a, dónde), dónde) + 1, dónde);
  e.tf = e.R * e.N;
  e.sn = e.N + σ3 - u;
  // L^(1/(1−a)) is w itself, so N = w·σc / (2L + a·m).
  const double dL = (1 - a) * Div(e.L, e.w, dónde) * dw;
  const double q = 2 * e.L + a * m;
  const double dN = σc * Div(dw * q - e.w * 2 * dL, q * q, dónde);
  const double dR = Div(-a * m * dL, 2 * e.R * e.L * e.L, dónde);
  e.dtf = Finito(dR * e.N + e.R * dN, dónde);
  e.dsn = Finito(dN + 1, dónde);
  return e;
}

AjusteEnsayo AjustarEnsayos(const std::vector<double>& σ1, const std::vector<double>& σ3, double σc,
                            bool rocaIntacta) {
  const char* dónde = "el ajuste por mínimos cuadrados de los ensayos";
  const double N = static_cast<double>(σ3.size());
  double Sx = 0, Sy = 0, Sxy = 0, Sxx = 0;
  for (std::size_t j = 0; j < σ3.size(); ++j) {
    const double x = σ3[j], y = (σ1[j] - σ3[j]) * (σ1[j] - σ3[j]);
    Sx += x;
    Sy += y;
    Sxy += x * y;
    Sxx += x * x;
  }
  const double denominador = Sxx - Sx * Sx / N;
  if (denominador == 0)
    throw FalloAritmético(
        "división por cero en " + std::string(dónde) +
        ": todos los ensayos del estrato tienen el mismo sigma 3, y con un solo sigma 3 no se "
        "puede trazar la recta");
  AjusteEnsayo r;
  r.m = Finito(Div(1, σc, dónde) * (Sxy - Sy * Sx / N) / denominador, dónde);
  if (rocaIntacta) {
    r.s = 1;
    return r;
  }
  r.s = Finito(Div(1, σc * σc, dónde) * (Sy / N - σc * r.m * Sx / N), dónde);
  if (r.s < 0.00001) {
    r.s = 0;
    r.m = Finito(Div(1, σc, dónde) * Div(Sy, Sx, dónde), dónde);
  }
  return r;
}

}  // namespace lomaterra
