// The floating-point net sees only the calculation's own arithmetic: a port whose boxes, screens
// and status line raise division by zero, invalid operation and overflow (as a toolkit repainting
// while a box waits may do) leaves every method on every sample exactly as the scripted port does.
// And a project opened after others computes as it does in a fresh program.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <filesystem>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
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

// Raises the three flags the net tests, by real arithmetic and then explicitly.
void Ensuciar() {
  volatile double cero = 0.0, enorme = 1e308;
  volatile double r = cero / cero;
  r = 1.0 / cero;
  r = enorme * 10.0;
  (void)r;
  std::feraiseexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
}

class InterfazRuidosa : public InterfazGuionada {
 public:
  using InterfazGuionada::InterfazGuionada;

 protected:
  void HacerMensaje(const std::string& t, const std::string& tít) override {
    Ensuciar();
    InterfazGuionada::HacerMensaje(t, tít);
  }
  bool HacerPregunta(const std::string& t, const std::string& tít) override {
    Ensuciar();
    const bool r = InterfazGuionada::HacerPregunta(t, tít);
    Ensuciar();
    return r;
  }
  void HacerEstado(const std::string& t) override {
    InterfazGuionada::HacerEstado(t);
    Ensuciar();
  }
  void HacerAbrir(Pantalla& pantalla) override {
    Ensuciar();
    InterfazGuionada::HacerAbrir(pantalla);
    Ensuciar();
  }
  bool HacerProgreso(double f, const std::string& t) override {
    Ensuciar();
    return InterfazGuionada::HacerProgreso(f, t);
  }
};

struct Método {
  const char* nombre;
  Acción acción;
};
const Método kMétodos[] = {{"Fellenius", MétodoFellenius},
                           {"Bishop", MétodoBishop},
                           {"Janbu", MétodoJanbu},
                           {"Leshchinsky", ProcesoIterativoEnSuelos}};

// Drawdown No, then Yes to everything; the same with the iteration screen answered No, No (go on)
// and Yes at the second iteration; and every question answered No.
struct Guion {
  const char* respuestas;
  bool porDefecto;
};
const Guion kGuiones[] = {{"N", true}, {"NNNS", true}, {"NSNNS", true}, {"", false}};

std::vector<std::string> Muestras() {
  std::vector<std::string> r;
  for (const auto& e : std::filesystem::directory_iterator(LOMATERRA_EJEMPLOS))
    if (e.path().extension() == ".cod") r.push_back(e.path().string());
  std::sort(r.begin(), r.end());
  return r;
}

struct Corrida {
  std::vector<Apunte> transcripción;
  double fs = 0;
  int iteraciones = 0;
};

template <class Puerto>
Corrida Correr(Proyecto& p, const std::string& muestra, const Método& m, const Guion& g) {
  Puerto abrir;
  AbrirArchivoDeProyecto(p, abrir, muestra);
  Puerto ui(g.respuestas, g.porDefecto);
  EjecutarComando(m.acción, p, ui);
  Corrida c;
  c.transcripción = ui.Transcripción();
  c.iteraciones = p.NúmeroIteraciones;
  if (p.NúmeroIteraciones >= 1) c.fs = p.HistoriaIteraciones.FactorDeSeguridad.Leer(p.NúmeroIteraciones);
  return c;
}

TEST(PuertoRuidoso, CadaMétodoTerminaComoConElPuertoGuionado) {
  const auto muestras = Muestras();
  ASSERT_GE(muestras.size(), 5u);
  for (const auto& muestra : muestras)
    for (const Método& m : kMétodos)
      for (const Guion& g : kGuiones) {
        SCOPED_TRACE(muestra + " " + m.nombre + " " + g.respuestas);
        Proyecto limpio, ruidoso;
        const Corrida a = Correr<InterfazGuionada>(limpio, muestra, m, g);
        const Corrida b = Correr<InterfazRuidosa>(ruidoso, muestra, m, g);
        EXPECT_EQ(b.transcripción, a.transcripción);
        EXPECT_EQ(b.fs, a.fs);
        EXPECT_EQ(b.iteraciones, a.iteraciones);
      }
}

// One program run: every sample opened in turn in the same project, every method run on each,
// gives what each sample gives in a fresh program.
TEST(PuertoRuidoso, UnProyectoAbiertoDespuésDeOtrosCalculaComoRecienAbierto) {
  const Guion g{"NNNS", true};
  Proyecto compartido;
  for (const auto& muestra : Muestras())
    for (const Método& m : kMétodos) {
      SCOPED_TRACE(muestra + " " + m.nombre);
      Proyecto nuevo;
      const Corrida a = Correr<InterfazGuionada>(nuevo, muestra, m, g);
      const Corrida b = Correr<InterfazRuidosa>(compartido, muestra, m, g);
      EXPECT_EQ(b.transcripción, a.transcripción);
      EXPECT_EQ(b.fs, a.fs);
    }
}

}  // namespace
}  // namespace lomaterra
