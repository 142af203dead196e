// An outside check of the assembled stiffness solve: the sample slope under its own weight with
// the base and both sides fixed, against CalculiX (CPE3 elements, *DLOAD GRAV). The deck, the
// command and the values it gave stand in pruebas/datos/calculix (scripts/calculix_talud.py). When
// ccx is installed the deck is run again and its values must be the stored ones.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "apoyo/apoyo.h"
#include "elementos/rigidez.h"
#include "elementos/solucion.h"
#include "elementos/viscoplastico.h"
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

// The elastic step of the stress analysis on the same slope on rollers: the sides slide vertically
// and the base horizontally, each held by a stiff spring (10^12 kg/cm), and the free direction of a
// roller keeps its own diagonal. A linear triangle has one stress, which CPE3 prints at each of
// its points; talud_esfuerzos.txt holds element, sxx, syy, sxy (ton/m2) of talud_rodillos.inp.
TEST(CalculiX, PasoElásticoDelTaludSobreRodillosIgualQueCalculiX) {
  const std::string datos = pruebas::RutaDatos("calculix");
  std::map<long, std::array<double, 3>> ccx;
  {
    std::ifstream in(datos + "/talud_esfuerzos.txt");
    long e;
    std::string a, b, c;
    while (in >> e >> a >> b >> c)
      ccx[e] = {std::strtod(a.c_str(), nullptr), std::strtod(b.c_str(), nullptr), std::strtod(c.c_str(), nullptr)};
  }
  ASSERT_EQ(ccx.size(), 256u);

  Proyecto p;
  InterfazGuionada ui;
  ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("talud_elementos.cod"), ui));
  p.Estrato.CoeficienteKo[1] = 0;
  CálculoElementos c;
  c.reloj = [] { return 0.0; };
  ASSERT_TRUE(Elementotriangular(p, ui, c));
  auto& r = p.Malla.NodoConRestricción;
  for (long i = 1; i <= p.Malla.NúmeroNodosConRestricción; ++i) {
    const long n = std::lround(r.NodoRestringido[i]), columna = (n - 1) / 9, fila = (n - 1) % 9;
    r.RestricciónX[i] = r.RestricciónY[i] = "S";
    r.ResorteX[i] = columna == 0 || columna == 16 ? 1e12 : 10 * c.MatrizRigidez->Diagonal(2 * n - 1);
    r.ResorteY[i] = fila == 0 ? 1e12 : 10 * c.MatrizRigidez->Diagonal(2 * n);
  }
  ASSERT_TRUE(CálculoViscoplástico(p, ui, c));

  // Stresses reach some tens of ton/m2. CalculiX prints seven significant digits (a half unit of
  // the last one is at most 5e-7 of the largest value) and a 10^12 kg/cm spring (10^11 ton/m)
  // against diagonals of some 10^4 ton/m gives way by about a part in 10^7: 2e-6 of the largest
  // stress holds both and nothing more.
  double mayor = 0;
  for (const auto& [e, s] : ccx) mayor = std::max({mayor, std::abs(s[0]), std::abs(s[1]), std::abs(s[2])});
  ASSERT_GT(mayor, 10.0);
  const MallaElementos& m = p.Malla;
  for (const auto& [e, s] : ccx) {
    EXPECT_NEAR(m.EsfuerzoX(e, 1), s[0], 2e-6 * mayor) << "elemento " << e;
    EXPECT_NEAR(m.EsfuerzoY(e, 1), s[1], 2e-6 * mayor) << "elemento " << e;
    EXPECT_NEAR(m.EsfuerzoXY(e, 1), s[2], 2e-6 * mayor) << "elemento " << e;
  }

  if (std::system("command -v ccx > /dev/null 2>&1") != 0) GTEST_SKIP() << "ccx no está instalado";
  const std::string carpeta = pruebas::CarpetaTemporal();
  std::filesystem::copy_file(datos + "/talud_rodillos.inp", carpeta + "/talud_rodillos.inp");
  ASSERT_EQ(std::system(("cd '" + carpeta + "' && ccx -i talud_rodillos > salida.txt 2>&1").c_str()), 0);
  std::ifstream dat(carpeta + "/talud_rodillos.dat"), guardado(datos + "/talud_rodillos.dat");
  std::string línea, otra;
  bool enEsfuerzos = false;
  while (std::getline(guardado, línea)) {
    ASSERT_TRUE(std::getline(dat, otra));
    enEsfuerzos = enEsfuerzos || línea.find("stresses") != std::string::npos;
    if (enEsfuerzos) {
      EXPECT_EQ(otra, línea);
    }
  }
}

}  // namespace
}  // namespace lomaterra
