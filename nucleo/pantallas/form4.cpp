#include "pantallas/form4.h"

#include <string>

#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

Form4::Form4(Proyecto& p) : p_(p) {
  nombre = "Form4";
  título = "Insertar estrato";
  nota = "Indique dónde va el nuevo estrato. El estrato 1 es el superior.";
  listas.push_back({"ListaEntre", {"Lugar del nuevo estrato"}, {}, 0, {}});
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { CerrarSinCambios(ui); }});
}

// Rows: "antes del primero", one "entre" row for each pair of neighbouring strata, then
// "después del último". Row r (1-based) gives the new stratum the number r.
int Form4::PosiciónDeFila(int fila, int estratos) {
  if (fila < 1 || fila > estratos + 1) return 0;
  return fila;
}

void Form4::Activar(Interfaz&) {
  Posición = 0;
  ListaPantalla& l = lista("ListaEntre");
  l.filas.clear();
  l.seleccionada = 0;
  const int n = p_.NúmeroEstratos;
  l.filas.push_back({"antes del primero"});
  for (int s = 1; s < n; ++s)
    l.filas.push_back(
        {"entre el estrato " + std::to_string(s) + " y el estrato " + std::to_string(s + 1)});
  l.filas.push_back({"después del último"});
}

void Form4::Aceptar(Interfaz& ui) {
  const int posición = PosiciónDeFila(lista("ListaEntre").seleccionada, p_.NúmeroEstratos);
  if (posición == 0) {
    ui.Mensaje("Seleccione en la lista el lugar del nuevo estrato.", "Insertar estrato");
    return;
  }
  Posición = posición;
  cerrada = true;
}

void Form4::CerrarSinCambios(Interfaz&) {
  Posición = 0;
  cerrada = true;
}

}  // namespace lomaterra
