// The command registry: every menu entry with its control name, caption and parent, and the
// function it runs. The desktop program builds its menu tree from it and lomaterra-lote calls
// commands by the same names.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace lomaterra {

struct Proyecto;
class Interfaz;

using Acción = std::function<void(Proyecto&, Interfaz&)>;

struct EntradaMenú {
  std::string nombre;  // control name
  std::string texto;   // caption, with & before the access key
  std::string padre;   // control name of the menu that holds it; empty on the menu bar
  Acción acción;       // empty for a menu that only opens a submenu, or an entry not yet built
  bool EsSubmenú = false;
  bool Habilitada() const { return EsSubmenú || static_cast<bool>(acción); }
};

// The whole menu tree in order, with the commands built so far bound to their entries.
std::vector<EntradaMenú> ÁrbolDeMenús();
const EntradaMenú* BuscarEntrada(const std::vector<EntradaMenú>& árbol, const std::string& nombre);

// Binds control names to commands: one line a command, filled by the areas of the core.
void EnlazarComandos(std::map<std::string, Acción>& acciones);

// Commands with no menu entry, reachable by their name only (lomaterra-lote runs them): bound by
// the core as the menu commands are, and gathered by ComandosSinMenú.
void EnlazarComandosSinMenú(std::map<std::string, Acción>& acciones);
std::map<std::string, Acción> ComandosSinMenú();

enum class FinDeComando { Normal, Fallo };

// Runs a command to its end. An unforeseen arithmetic fault ends it with a clear message, and the
// project stays as it stood at that moment.
FinDeComando EjecutarComando(const Acción& acción, Proyecto& p, Interfaz& ui);

// The message shown when a fault ends a command.
std::string TextoDeFallo(const std::string& detalle);
inline const char* TítuloDeFallo() { return "Error en el cálculo"; }

}  // namespace lomaterra
