// A modal screen as plain data: its text boxes, lists and buttons, its checks and what it stores.
// The Qt views show it; a test or the batch runner presses its buttons directly.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace lomaterra {

class Interfaz;

struct Campo {
  std::string nombre;    // control name, e.g. "TextoFSInicial"
  std::string etiqueta;  // caption beside the box
  std::string valor;
  std::string ayuda;     // tip
  bool soloLectura = false;
};

struct ListaPantalla {
  std::string nombre;  // control name, e.g. "ListaValoresDEht"
  std::vector<std::string> columnas;
  std::vector<std::vector<std::string>> filas;
  int seleccionada = 0;  // 1-based, 0 none
  // Called after the user selects a row (the view sets `seleccionada` first).
  std::function<void(Interfaz&)> alSeleccionar;
};

struct BotónPantalla {
  std::string nombre;  // control name, e.g. "BotónAceptar"
  std::string texto;   // caption
  std::function<void(Interfaz&)> acción;
};

class Pantalla {
 public:
  virtual ~Pantalla() = default;

  std::string nombre;  // e.g. "Form17"
  std::string título;
  std::string nota;    // fixed text shown above the fields, may be empty
  std::vector<Campo> campos;
  std::vector<ListaPantalla> listas;
  std::vector<BotónPantalla> botones;
  bool cerrada = true;

  // Fills the screen anew from the project each time it is shown. A screen may close itself
  // here (a refusal or an answer given at once).
  virtual void Activar(Interfaz& ui) = 0;
  // What the window's close box does: by default the exit button with no change.
  virtual void CerrarSinCambios(Interfaz&) { cerrada = true; }

  Campo& campo(const std::string& n);
  const Campo& campo(const std::string& n) const;
  ListaPantalla& lista(const std::string& n);
  BotónPantalla& botón(const std::string& n);
  // Presses the named button; returns false when there is no such button.
  bool Pulsar(const std::string& n, Interfaz& ui);
  std::string& texto(const std::string& n) { return campo(n).valor; }
};

}  // namespace lomaterra
