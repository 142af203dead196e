#include <gtest/gtest.h>

#include "proyecto/compat.h"
#include "proyecto/fallos.h"

namespace lomaterra {
namespace {

TEST(Formato, PatronesDeLasPantallas) {
  EXPECT_EQ(Formato(3.14159, "#0.00"), "3.14");
  EXPECT_EQ(Formato(2.675, "#0.00"), "2.68");     // the decimal value the user reads
  EXPECT_EQ(Formato(-0.125, "#0.00"), "-0.13");   // halves away from zero
  EXPECT_EQ(Formato(0.0, "#0.00"), "0.00");
  EXPECT_EQ(Formato(-0.001, "#0.00"), "0.00");    // no negative zero on screen
  EXPECT_EQ(Formato(1.5, "#0.000000000"), "1.500000000");
  EXPECT_EQ(Formato(12.345, "#0.00 ton"), "12.35 ton");
  EXPECT_EQ(Formato(-7.0, "#0.00 ton.m"), "-7.00 ton.m");
  EXPECT_EQ(Formato(41.5, "#"), "42");
  EXPECT_EQ(Formato(0.25, "#"), "");
  EXPECT_EQ(Formato(0.5, "#.00"), ".50");
  EXPECT_EQ(Formato(99.995, "#0.00"), "100.00");
  EXPECT_EQ(Formato(1234567.891, "#0.0000"), "1234567.8910");
  EXPECT_EQ(Formato(1e-12, "#0.0000000"), "0.0000000");
}

TEST(RedondeoPar, MitadesAlPar) {
  EXPECT_EQ(RedondeoPar(2.5), 2.0);
  EXPECT_EQ(RedondeoPar(3.5), 4.0);
  EXPECT_EQ(RedondeoPar(-2.5), -2.0);
  EXPECT_EQ(RedondeoPar(2.4999), 2.0);
  EXPECT_EQ(EnteroCorto(32767.4), 32767);
  EXPECT_THROW(EnteroCorto(40000.0), FalloAritmético);
}

TEST(EsNúmero, FormasAceptadasYRechazadas) {
  for (const char* s : {"1", " 2.5 ", "-.25", ".5", "+3", "1E-05", "2.5E+20", "1e3", "7.", "1D2"})
    EXPECT_TRUE(EsNúmero(s)) << s;
  for (const char* s : {"", " ", "abc", "1,5", "1.2.3", "e5", "1E", "--1", ".", "1 2"})
    EXPECT_FALSE(EsNúmero(s)) << s;
  EXPECT_DOUBLE_EQ(ANúmero("-.25"), -0.25);
  EXPECT_DOUBLE_EQ(ANúmero("2.5E+20"), 2.5e20);
  EXPECT_DOUBLE_EQ(ANúmero("texto"), 0.0);
}

TEST(Mayúsculas, LetrasConAcento) {
  EXPECT_EQ(Mayúsculas("s"), "S");
  EXPECT_EQ(Mayúsculas("año técnico"), "AÑO TÉCNICO");
}

TEST(Fallos, OperacionesComprobadas) {
  EXPECT_THROW(Div(1.0, 0.0), FalloAritmético);
  EXPECT_THROW(Raíz(-1e-9), FalloAritmético);
  EXPECT_THROW(Ln(0.0), FalloAritmético);
  EXPECT_THROW(Pot(10.0, 400.0), FalloAritmético);
  EXPECT_DOUBLE_EQ(Raíz(9.0), 3.0);
}

}  // namespace
}  // namespace lomaterra
