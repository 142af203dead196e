// A Bishop stopped inside its radius search (No at a guard, no convergence, a fault) leaves the
// project as the finished run before it: saved again, the file is the same byte for byte.
#include <gtest/gtest.h>

#include "apoyo/apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/dovelas.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "proyecto/fallos.h"

namespace lomaterra {
namespace {

TEST(BishopDetenido, CadaSalidaDejaElProyectoComoEstaba) {
  struct Salida {
    void (*alBuscar)(Proyecto&);  // done to the slices of the first radius of the search
    int pasadas;
    const char* respuestas;  // drawdown, recalculate, first time, then the guard
  } salidas[] = {
      {[](Proyecto& p) { for (long i = 1; i < p.NúmeroBordes; ++i) p.TablaDovelas.PresiónPoros[i] = 1e4; },
       kLímitePasadas, "NSSN"},
      // One pass: the first iteration starts on its own factor and settles; the first radius of
      // the search starts far from it and does not.
      {[](Proyecto& p) { p.ParámetrosIniciales.FSInicial = 1e3; }, 1, "NSS"},
      {[](Proyecto&) { throw FalloAritmético("división por cero"); }, kLímitePasadas, "NSS"},
  };
  for (const Salida& s : salidas) {
    Proyecto p;
    InterfazGuionada ui("N", true);
    ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("bishop_radio_variable.cod"), ui));
    ASSERT_EQ(EjecutarComando(MétodoBishop, p, ui), FinDeComando::Normal);
    p.ParámetrosIniciales.FSInicial = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
    const std::string ruta = pruebas::CarpetaTemporal() + "/bishop.cod";
    ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
    const std::string antes = pruebas::LeerArchivo(ruta);
    int etapas = 0;
    OpcionesBishop o{[&](Proyecto& q, Interfaz& u) {
                       EjecutarEtapas(q, u);
                       if (++etapas == 1) s.alBuscar(q);
                     },
                     s.pasadas};
    InterfazGuionada detenida(s.respuestas);
    EjecutarComando([&](Proyecto& q, Interfaz& u) { MétodoBishopConOpciones(q, u, o); }, p, detenida);
    EXPECT_EQ(etapas, 1) << s.respuestas;
    for (const std::string& t : detenida.Textos()) EXPECT_EQ(t.find("Se finalizó"), std::string::npos);
    ASSERT_TRUE(GuardarProyecto(p, ruta, ui));
    EXPECT_EQ(pruebas::LeerArchivo(ruta), antes) << s.respuestas;
  }
}

}  // namespace
}  // namespace lomaterra
