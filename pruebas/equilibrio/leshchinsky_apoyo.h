// The three equilibrium sums of a Leshchinsky-Huang run, step by step, and its end rule: the run
// stops at the first step whose horizontal and vertical sums are within 0.001 and whose moment
// sum is within 0.009.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

#include "apoyo/interfaz_espia.h"
#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

struct SumasPorPaso {
  std::vector<std::array<double, 3>> pasos;

  // The sums stand in the project when the step screen opens.
  void Espiar(InterfazEspía& ui, const Proyecto& p) {
    ui.alAbrir = [this, &p](Pantalla& s) {
      if (s.nombre == "form9")
        pasos.push_back({p.SumaFuerzasHorizontales, p.SumaFuerzasVerticales, p.SumaMomentos});
    };
  }
  static bool Pasa(const std::array<double, 3>& s) {
    return std::fabs(s[0]) <= 0.001 && std::fabs(s[1]) <= 0.001 && std::fabs(s[2]) <= 0.009;
  }
  void ComprobarFin() const {
    ASSERT_FALSE(pasos.empty());
    EXPECT_TRUE(Pasa(pasos.back()));
    for (std::size_t k = 0; k + 1 < pasos.size(); ++k)
      EXPECT_FALSE(Pasa(pasos[k])) << "el paso " << k + 1 << " ya cumplía y la corrida siguió";
  }
};

}  // namespace lomaterra::pruebas
