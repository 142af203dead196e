// An outside check of the assembled stiffness solve: the sample slope under its own weight with
// the base and both sides fixed, against CalculiX (CPE3 elements, *DLOAD GRAV). The deck, the
// command and the values it gave stand in pruebas/datos/calculix (scripts/calculix_talud.py). When
// ccx is installed the deck is run again and its values must be the stored ones.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "apoyo/apoyo.h"
#include "elementos/rigidez.h"
#include "elementos/solucion.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"

namespace lomaterra {
namespace {

using Tabla3 = std::map<long, std::pair<double, double>>;

Tabla3 LeerTabla(std::istream& in, bool dat) {
  Tabla3 t;
  std::string línea;
  bool dentro = !dat;
  while (std::getline(in, línea)) {
    if (dat && línea.find("displacements") != std::string::npos) {
      dentro = true;
      continue;
    }
    std::istringstream s(línea);
    long n;
    std::string ux, uy;
    if (dentro && (s >> n >> ux >> uy)) t[n] = {std::strtod(ux.c_str(), nullptr), std::strtod(uy.c_str(), nullptr)};
  }
  return t;
}

TEST(CalculiX, TaludConPesoPropioIgualQueCalculiX) {
  const std::string datos = pruebas::RutaDatos("calculix");
  std::ifstream guardado(datos + "/talud_desplazamientos.txt");
  const Tabla3 ccx = LeerTabla(guardado, false);
  ASSERT_EQ(ccx.size(), 153u);

  Proyecto p;
  InterfazGuionada ui;
  ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("talud_elementos.cod"), ui));
  auto& r = p.Malla.NodoConRestricción;
  for (long i = 1; i <= p.Malla.NúmeroNodosConRestricción; ++i) r.RestricciónX[i] = r.RestricciónY[i] = "N";
  p.Estrato.CoeficienteKo[1] = 0;
  CálculoElementos c;
  c.reloj = [] { return 0.0; };
  ASSERT_TRUE(Elementotriangular(p, ui, c));
  ASSERT_TRUE(ModificarYFactorizar(p, *c.MatrizRigidez, ui, kMensajeDiagonalCeroViscoplástico));
  const std::vector<double> u = DesplazamientosElásticos(p, *c.MatrizRigidez);
  double mayor = 0;
  for (const auto& [n, v] : ccx) mayor = std::max({mayor, std::abs(v.first), std::abs(v.second)});
  ASSERT_GT(mayor, 0.05);
  // CalculiX prints seven significant digits.
  for (const auto& [n, v] : ccx) {
    EXPECT_NEAR(u[static_cast<std::size_t>(2 * n - 1)], v.first, 2e-6 * mayor) << "nodo " << n;
    EXPECT_NEAR(u[static_cast<std::size_t>(2 * n)], v.second, 2e-6 * mayor) << "nodo " << n;
  }

  if (std::system("command -v ccx > /dev/null 2>&1") != 0) GTEST_SKIP() << "ccx no está instalado";
  const std::string carpeta = pruebas::CarpetaTemporal();
  std::filesystem::copy_file(datos + "/talud.inp", carpeta + "/talud.inp");
  ASSERT_EQ(std::system(("cd '" + carpeta + "' && ccx -i talud > salida.txt 2>&1").c_str()), 0);
  std::ifstream dat(carpeta + "/talud.dat");
  EXPECT_EQ(LeerTabla(dat, true), ccx);
}

}  // namespace
}  // namespace lomaterra
