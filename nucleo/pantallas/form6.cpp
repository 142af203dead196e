#include "pantallas/form6.h"

#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

Form6::Form6(Proyecto& p) : p_(p) {
  nombre = "Form6";
  título = "Definición del tipo de superficie de falla";
  nota =
      "Los puntos de la superficie de falla se numeran desde la mayor abscisa (pto <1>) hasta la "
      "menor abscisa (pto <n>).";
  campos = {
      {"TextoPuntoInicial", "Punto inicial:", "", "Número del punto donde empieza el tramo"},
      {"TextoPuntoFinal", "Punto final:", "", "Número del punto donde termina el tramo"},
      {"TextoTipoUnión", "Tipo de unión <L/C/P>:", "",
       "'L' segmento recto, 'C' arco de círculo, 'P' polinomio entre tres o más puntos"},
  };
  ListaPantalla l;
  l.nombre = "ListaTramos";
  l.columnas = {"Punto inicial", "Punto final", "Tipo"};
  listas.push_back(std::move(l));
  botones.push_back({"BotónAgregar", "Agregar", [this](Interfaz& ui) { Agregar(ui); }});
  botones.push_back({"BotónBorrar", "Borrar", [this](Interfaz& ui) { Borrar(ui); }});
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

void Form6::Mostrar() {
  auto& l = lista("ListaTramos");
  l.filas.clear();
  l.seleccionada = 0;
  for (const Tramo& t : tramos_)
    l.filas.push_back({Formato(t.inicial, "#"), Formato(t.final_, "#"), t.tipo});
}

void Form6::Activar(Interfaz&) {
  tramos_.clear();
  if (p_.GeometríaFallaDefinida)
    for (long i = 1; i <= p_.NúmeroTramosFalla; ++i)
      tramos_.push_back({p_.TramoFalla.PuntoInicial.Leer(i), p_.TramoFalla.PuntoFinal.Leer(i),
                         p_.TramoFalla.TipoUnión.Leer(i)});
  Mostrar();
  texto("TextoPuntoInicial").clear();
  texto("TextoPuntoFinal").clear();
  texto("TextoTipoUnión").clear();
}

void Form6::Agregar(Interfaz& ui) {
  if (!EsNúmero(texto("TextoPuntoInicial")) || !EsNúmero(texto("TextoPuntoFinal"))) {
    ui.Mensaje(
        "Debe introducir un número <1,2,3,4,..,n> sabiendo que la mayor abscisa de la primera "
        "coordenada de la superficie de falla es el pto No <1> y la menor abscisa de la superficie "
        "de falla, corresponde al pto <n>.");
    return;
  }
  const std::string tipo = Mayúsculas(Recortar(texto("TextoTipoUnión")));
  if (tipo != "L" && tipo != "C" && tipo != "P") {
    ui.Mensaje(
        "Para el tipo de superficie de falla entre puntos: Debe introducir  una 'L' para segmentos "
        "rectos entre dos puntos consecutivos, una 'C' para arcos de círculos entre dos puntos "
        "consecutivos y una 'P' para definir un polinomio entre tres o más puntos consecutivos.");
    return;
  }
  if (tipo == "C")
    ui.Mensaje(
        "Si selecciona círculos como superficies parciales de falla, es recomendable que los mismos "
        "estén entre los dos primeros puntos de la S.F o entre los dos últimos ptos de la S.F y "
        "seguidos o antecedidos por segmentos rectos.");
  const double inicial = ANúmero(texto("TextoPuntoInicial"));
  const double final_ = ANúmero(texto("TextoPuntoFinal"));
  const double n = p_.NúmeroPuntosFalla;
  if (inicial >= n) {
    ui.Mensaje("El valor del punto inicial tiene que ser menor que la cantidad de coordenadas de la superficie de falla");
    return;
  }
  if (final_ > n) {
    ui.Mensaje("El valor del punto final tiene que ser como máximo igual a la cantidad de coordenadas de la superficie de falla");
    return;
  }
  if (final_ <= inicial) {
    ui.Mensaje("El valor del punto final, no puede ser menor o igual que el pto inicial");
    return;
  }
  if (inicial != std::floor(inicial)) {
    ui.Mensaje("El número del punto inicial debe ser entero");
    return;
  }
  if (final_ != std::floor(final_)) {
    ui.Mensaje("El número del punto final debe ser entero");
    return;
  }
  const bool consecutivos = final_ - inicial == 1;
  if (tipo == "P" && consecutivos) {
    ui.Mensaje("No puede seleccionar un polinomio entre dos puntos consecutivos");
    return;
  }
  if (tipo == "C" && !consecutivos) {
    ui.Mensaje("Debe seleccionar un círculo entre dos puntos consecutivos.");
    return;
  }
  if (tipo == "L" && !consecutivos) {
    ui.Mensaje("Debe seleccionar un segmento recto entre dos puntos consecutivos.");
    return;
  }
  if (tramos_.empty()) {
    if (inicial != 1) {
      ui.Mensaje("el valor inicial del primer punto tiene que ser igual a <1>");
      return;
    }
  } else {
    bool coincide = false;
    for (const Tramo& t : tramos_)
      if (t.final_ == inicial) coincide = true;
    if (!coincide) {
      ui.Mensaje("El punto inicial no tiene coincidencia con ningún punto final anterior");
      return;
    }
    if (inicial != tramos_.back().final_) {
      ui.Mensaje("El punto inicial actual no puede ser diferente del punto final anterior");
      return;
    }
  }
  tramos_.push_back({inicial, final_, tipo});
  Mostrar();
  texto("TextoPuntoInicial") = Formato(final_, "#");
  texto("TextoPuntoFinal").clear();
  texto("TextoTipoUnión").clear();
}

void Form6::Borrar(Interfaz& ui) {
  if (tramos_.empty()) {
    ui.Mensaje("No hay tramos definidos para borrar.");
    return;
  }
  tramos_.pop_back();
  Mostrar();
}

void Form6::Aceptar(Interfaz& ui) {
  if (tramos_.empty() || tramos_.back().final_ != p_.NúmeroPuntosFalla) {
    ui.Mensaje(
        "El punto final debe ser igual a la cantidad de coordenadas de la superficie de falla y "
        "además Ud. debe de agregar primero todos los puntos y luego si <Aceptar> sus definiciones");
    return;
  }
  const long n = static_cast<long>(tramos_.size());
  p_.TramoFalla.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    const Tramo& t = tramos_[static_cast<std::size_t>(i - 1)];
    p_.TramoFalla.PuntoInicial[i] = t.inicial;
    p_.TramoFalla.PuntoFinal[i] = t.final_;
    p_.TramoFalla.TipoUnión[i] = t.tipo;
  }
  p_.NúmeroTramosFalla = static_cast<Entero>(n);
  p_.GeometríaFallaDefinida = true;
  p_.DatosGuardados = false;
  cerrada = true;
}

void Form6::Cancelar(Interfaz& ui) {
  if (ui.Pregunta("No desea archivar los puntos de unión de la superficie de falla?")) cerrada = true;
}

void MénuGeometríaEntrePuntosSuperficieFalla(Proyecto& p, Interfaz& ui) {
  // The failure surface being entered in the panel counts as it stands on the screen.
  if (p.Ventana.TipoPanel == 2) GuardarPanelCoordenadas(p, 2, p.Ventana.EstratoPanel);
  if (p.NúmeroPuntosFalla < 2) {
    ui.Mensaje("Debe introducir coordenadas de la superficie de falla", "Coordenadas superficie de falla");
    return;
  }
  Form6 f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
