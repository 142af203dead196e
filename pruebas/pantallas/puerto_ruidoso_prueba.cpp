// The floating-point net sees only the calculation's arithmetic: a port whose boxes, screens and
// status line raise division by zero, invalid and overflow (a toolkit repainting while a box waits)
// leaves every method on every sample as the scripted port does, in a project that earlier samples
// went through in the same run as in a fresh one.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <filesystem>

#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "pantallas/comandos_archivo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/comandos.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

void Ensuciar() {
  volatile double cero = 0.0, grande = 1e308, r = cero / cero;
  r = 1.0 / cero;
  r = grande * 10.0;
  (void)r;
  std::feraiseexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
}

class InterfazRuidosa : public InterfazGuionada {
 public:
  using InterfazGuionada::InterfazGuionada;

 protected:
  void HacerMensaje(const std::string& t, const std::string& tít) override { Ensuciar(); InterfazGuionada::HacerMensaje(t, tít); }
  bool HacerPregunta(const std::string& t, const std::string& tít) override { Ensuciar(); return InterfazGuionada::HacerPregunta(t, tít); }
  void HacerEstado(const std::string& t) override { InterfazGuionada::HacerEstado(t); Ensuciar(); }
  void HacerAbrir(Pantalla& s) override { Ensuciar(); InterfazGuionada::HacerAbrir(s); Ensuciar(); }
};

// Each method with its number as the constants screen sets it; drawdown No then Yes to all, and
// the iteration screens answered No, No (go on), then Yes at the second iteration.
TEST(PuertoRuidoso, CadaMétodoYCadaMuestraComoConElPuertoGuionado) {
  const std::pair<Acción, Entero> métodos[] = {{MétodoFellenius, 3}, {MétodoBishop, 2},
                                               {MétodoJanbu, 4}, {ProcesoIterativoEnSuelos, 1}};
  std::vector<std::string> muestras;
  for (const auto& e : std::filesystem::directory_iterator(LOMATERRA_EJEMPLOS)) muestras.push_back(e.path());
  std::sort(muestras.begin(), muestras.end());
  auto correr = [](Proyecto& p, InterfazGuionada& ui, const std::string& muestra, const auto& m) {
    InterfazGuionada abrir;
    AbrirArchivoDeProyecto(p, abrir, muestra);
    p.ParámetrosIniciales.MétodoDeCálculo = m.second;
    EjecutarComando(m.first, p, ui);
    std::vector<std::string> r;
    for (const Apunte& a : ui.Transcripción()) r.push_back(InterfazGuionada::Línea(a));
    return r;
  };
  Proyecto compartido;  // one program run through every sample
  for (const auto& muestra : muestras)
    for (const auto& m : métodos)
      for (const char* respuestas : {"N", "NNNS", "NSNNS"}) {
        SCOPED_TRACE(muestra + " " + std::to_string(m.second) + " " + respuestas);
        Proyecto nuevo;
        InterfazGuionada guion(respuestas, true);
        InterfazRuidosa ruido(respuestas, true);
        EXPECT_EQ(correr(compartido, ruido, muestra, m), correr(nuevo, guion, muestra, m));
        EXPECT_EQ(compartido.HistoriaIteraciones.FactorDeSeguridad.Leer(compartido.NúmeroIteraciones),
                  nuevo.HistoriaIteraciones.FactorDeSeguridad.Leer(nuevo.NúmeroIteraciones));
      }
}

}  // namespace
}  // namespace lomaterra
