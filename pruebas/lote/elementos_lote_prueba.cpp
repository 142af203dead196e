// The finite-element block of lomaterra-lote's JSON after the viscoplastic analysis of the sample
// slope: one entry a step, each with every element and node, and extremes that are those of the
// last step's yield values.
#include <gtest/gtest.h>

#include <cmath>

#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {
namespace {

double Num(const ValorJson& v, const std::string& clave) {
  const ValorJson* c = v.Campo(clave);
  EXPECT_TRUE(c && c->tipo == ValorJson::Número) << clave;
  return c && c->tipo == ValorJson::Número ? c->número : NAN;
}

TEST(LoteElementos, ResultadosViscoplásticosEnJson) {
  // N: the mesh is kept as it stands (256 triangles, 17 x 9 nodes).
  const ValorJson v = LoteJson("talud_elementos.cod", "IncrementeNúmeroDeElementos CálculoEsfuerzosComportamientoViscoplástico --respuestas NN");
  const ValorJson* fe = v.Campo("ElementosFinitos");
  ASSERT_TRUE(fe && fe->tipo == ValorJson::Objeto);
  // The sample yields beyond convergence: the loop runs its four steps.
  EXPECT_EQ(Num(*fe, "NúmeroDeIteración"), 4);
  ASSERT_TRUE(fe->Campo("CálculoViscoplásticoHecho"));
  EXPECT_TRUE(fe->Campo("CálculoViscoplásticoHecho")->lógico);
  EXPECT_EQ(fe->Campo("FSElástico")->tipo, ValorJson::Nulo);
  const ValorJson* pasos = fe->Campo("Pasos");
  ASSERT_TRUE(pasos && pasos->lista.size() == 4);

  double tiempo = 0;
  for (std::size_t i = 0; i < pasos->lista.size(); ++i) {
    const ValorJson& paso = pasos->lista[i];
    EXPECT_EQ(Num(paso, "Paso"), static_cast<double>(i + 1));
    EXPECT_GT(Num(paso, "TiempoAcumulado"), tiempo);
    tiempo = Num(paso, "TiempoAcumulado");
    const auto& elementos = paso.Campo("Elementos")->lista;
    const auto& nodos = paso.Campo("Nodos")->lista;
    ASSERT_EQ(elementos.size(), 256u);
    ASSERT_EQ(nodos.size(), 153u);
    // The base (the first node of each of the 17 columns) is fixed both ways.
    for (std::size_t n = 0; n < nodos.size(); n += 9)
      EXPECT_EQ(Num(nodos[n], "DesplazamientoX") + std::abs(Num(nodos[n], "DesplazamientoY")), 0) << "nodo " << n + 1;

    double mayor = -INFINITY, menor = INFINITY, eMayor = 0, eMenor = 0;
    for (std::size_t e = 0; e < elementos.size(); ++e) {
      const ValorJson& el = elementos[e];
      EXPECT_EQ(Num(el, "Elemento"), static_cast<double>(e + 1));
      const auto& F = el.Campo("FunciónFluencia")->lista;
      ASSERT_EQ(F.size(), 1u);  // one point in a linear triangle
      if (F[0].número > mayor) mayor = F[0].número, eMayor = static_cast<double>(e + 1);
      if (F[0].número < menor) menor = F[0].número, eMenor = static_cast<double>(e + 1);
      if (i != 0 && i != 3) continue;
      // The principal stresses of the first and last steps: same trace and determinant.
      const double sx = Num(el, "EsfuerzoX"), sy = Num(el, "EsfuerzoY"), t = Num(el, "EsfuerzoXY");
      const double s1 = Num(el, "EsfuerzoPrincipalMayor"), s3 = Num(el, "EsfuerzoPrincipalMenor");
      const double escala = std::abs(sx) + std::abs(sy) + std::abs(t);
      EXPECT_GE(s1, s3);
      EXPECT_NEAR(s1 + s3, sx + sy, 1e-9 * escala) << "elemento " << e + 1;
      EXPECT_NEAR(s1 * s3, sx * sy - t * t, 1e-9 * escala * escala) << "elemento " << e + 1;
    }
    if (i + 1 < pasos->lista.size()) continue;
    EXPECT_EQ(Num(*fe, "FluenciaMáxima"), mayor);
    EXPECT_EQ(Num(*fe, "ElementoFluenciaMáxima"), eMayor);
    EXPECT_EQ(Num(*fe, "FluenciaMínima"), menor);
    EXPECT_EQ(Num(*fe, "ElementoFluenciaMínima"), eMenor);
  }
}

}  // namespace
}  // namespace lomaterra::pruebas
