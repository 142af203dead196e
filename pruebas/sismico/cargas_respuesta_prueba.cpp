// The loads of a response run worked by hand: the branches of the load of a degree, the pore
// pressure and water thrust under shaking, and the modal loads of a two-degree case.
#include <gtest/gtest.h>

#include "sismico/cargas_sismicas.h"

namespace lomaterra {
namespace {

TEST(CargasRespuesta, RamasDeLaCargaDelGrado) {
  // W, Sp, Sd, F0, E -> P. |Sp| + Sd = 4 throughout.
  const struct { double W, Sp, Sd, F0, E, P; } casos[] = {
      {2, -3, 1, 1, -5, -7},    // 0 < |W| < 4: E + F0 + Sp
      {10, -3, 1, 1, -5, -6},   // D = 10 - 3 - 1 = 6 > |E|: -(Sp + W) + F0 = -7 + 1
      {10, -3, 1, 1, -8, -10},  // |E| > D: E + F0 + Sp
      {10, -3, 1, 1, 6, 0},     // |E| = D: nothing
      {0, -3, 1, 1, -5, -4},    // W = 0: E + F0
      {-10, -3, 1, 1, -5, 0},   // |W| large but W negative: nothing
      {4, -3, 1, 1, -5, 0},     // |W| = |Sp| + Sd: nothing
  };
  for (const auto& c : casos) EXPECT_DOUBLE_EQ(CargaDelGrado(c.W, c.Sp, c.Sd, c.F0, c.E), c.P) << c.W << " " << c.E;
}

TEST(CargasRespuesta, PresiónDePorosYEmpujeDelAgua) {
  EXPECT_DOUBLE_EQ(AceleraciónDominante(0.1, -0.2), -0.2);
  EXPECT_DOUBLE_EQ(AceleraciónDominante(0.2, -0.2), 0.2);  // equal magnitudes: the horizontal
  EXPECT_DOUBLE_EQ(PresiónPorosPrimerPaso(2, 0.2), 2 * 9.81 * 0.2);  // 0.2 g = 1.962 > 1
  EXPECT_DOUBLE_EQ(PresiónPorosPrimerPaso(2, 0.05), 2);               // 0.4905 <= 1
  EXPECT_NEAR(PresiónPorosPaso(3.924, 0.3, 0.2), 3.924 * (1 + 0.981), 1e-12);
  EXPECT_DOUBLE_EQ(EmpujeAguaPrimerPaso(5, -0.2), 0.2 * 5 * 9.81);
  EXPECT_DOUBLE_EQ(EmpujeAguaPrimerPaso(5, 0.1), 5);
  EXPECT_NEAR(EmpujeAguaPaso(9.81, 0.3, -0.2), 9.81 * 1.5, 1e-12);
}

TEST(CargasRespuesta, CargaModalDeDosGrados) {
  // Modes (1, 1) and (1, -1), masses 2 and 3: both modal masses are 5. P = (4, 1):
  // F1 = (4 + 1) / 5 = 1, F2 = (4 - 1) / 5 = 0.6.
  const std::vector<double> forma = {1, 1, 1, -1}, masas = {2, 3};
  const std::vector<double> modales = MasasModales(forma, masas, 2);
  EXPECT_DOUBLE_EQ(modales[0], 5);
  EXPECT_DOUBLE_EQ(modales[1], 5);
  std::vector<double> F;
  CargasModales(forma, modales, {4, 1}, 2, F);
  EXPECT_DOUBLE_EQ(F[0], 1);
  EXPECT_DOUBLE_EQ(F[1], 0.6);
}

}  // namespace
}  // namespace lomaterra
