// A Bishop with the radius search that stops half-way (a No at a guard, no convergence, a fault)
// leaves the project as the finished run before it left it: saved again, the file is the same
// byte for byte.
#include <gtest/gtest.h>

#include <string>

#include "apoyo/apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/dovelas.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "proyecto/fallos.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

std::string Guardado(Proyecto& p, const std::string& nombre) {
  InterfazGuionada ui;
  const std::string ruta = pruebas::CarpetaTemporal() + "/" + nombre;
  EXPECT_TRUE(GuardarProyecto(p, ruta, ui));
  return pruebas::LeerArchivo(ruta);
}

struct Salida {
  const char* nombre;
  // What the stages do on their second run, the first step of the search.
  void (*segundaEtapa)(Proyecto&);
  int límitePasadas;
  const char* respuestas;  // drawdown, recalculate, first time, then the guard
};

const Salida kSalidas[] = {
    // Pore pressure far above the weight: the effective-stress guard asks, the user says No.
    {"guarda",
     [](Proyecto& p) {
       for (long i = 1; i < p.NúmeroBordes; ++i) p.TablaDovelas.PresiónPoros[i] = 1e4;
     },
     kLímitePasadas, "NSSN"},
    // One pass only: the first iteration starts on the factor it converges to and passes; the
    // first radius of the search does not settle in one pass.
    {"sin convergencia", [](Proyecto&) {}, 1, "NSS"},
    {"falla", [](Proyecto&) { throw FalloAritmético("división por cero en una prueba"); },
     kLímitePasadas, "NSS"},
};

TEST(BishopDetenido, CadaSalidaDejaElProyectoComoEstaba) {
  for (const Salida& s : kSalidas) {
    SCOPED_TRACE(s.nombre);
    Proyecto p;
    {
      InterfazGuionada ui("N", true);
      ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("bishop_radio_variable.cod"), ui));
      ASSERT_EQ(EjecutarComando(MétodoBishop, p, ui), FinDeComando::Normal);
      ASSERT_TRUE(p.CálculoHecho);
      ASSERT_TRUE(p.ParámetrosIniciales.VaríaRadio);
    }
    p.ParámetrosIniciales.FSInicial = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
    const std::string antes = Guardado(p, "antes.cod");

    int etapas = 0;
    OpcionesBishop o;
    o.límitePasadas = s.límitePasadas;
    o.etapas = [&](Proyecto& q, Interfaz& u) {
      EjecutarEtapas(q, u);
      if (++etapas == 1) s.segundaEtapa(q);
    };
    // The injected stop comes at the first stage run of the search.
    InterfazGuionada ui(s.respuestas, false);
    EjecutarComando([&](Proyecto& q, Interfaz& u) { MétodoBishopConOpciones(q, u, o); }, p, ui);
    EXPECT_GE(etapas, 1);
    EXPECT_EQ(Guardado(p, "despues.cod"), antes);
  }
}

}  // namespace
}  // namespace lomaterra
