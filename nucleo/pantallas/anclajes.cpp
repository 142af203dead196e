#include "pantallas/anclajes.h"

#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"
#include "salida/diseno_anclajes.h"

namespace lomaterra {

namespace {

const char* kTítulo = "Anclajes";

struct CampoNumérico {
  const char* nombre;
  const char* etiqueta;
  double DatosAnclajes::*valor;
  double sugerido;  // shown while the project has no anchor data
  const char* ayuda;
};

const CampoNumérico kCampos[] = {
    {"TextoFSConAnclaje", "Factor de seguridad buscado", &DatosAnclajes::FSConAnclaje, 1.5,
     "Factor de seguridad que se quiere alcanzar con los anclajes"},
    {"TextoInclinaciónAnclajes", "Inclinación de los anclajes bajo la horizontal (°)",
     &DatosAnclajes::InclinaciónAnclajes, 15,
     "Ángulo del anclaje hacia abajo, medido desde la horizontal, entre 0 y 90"},
    {"TextoDiámetroAnclajes", "Diámetro de una guaya (mm)", &DatosAnclajes::DiámetroAnclajes, 15.2,
     "Diámetro nominal de un torón o guaya"},
    {"TextoEsfuerzoRoturaAnclaje", "Esfuerzo de rotura de una guaya (kg/cm2)",
     &DatosAnclajes::EsfuerzoRoturaAnclaje, 19000, "Esfuerzo de rotura del acero de la guaya"},
    {"TextoNúmeroGuayas", "Número de guayas por anclaje", &DatosAnclajes::NúmeroGuayas, 4,
     "Número entero de guayas de cada anclaje"},
};

}  // namespace

PantallaAnclajes::PantallaAnclajes(Proyecto& p, bool roca) : p_(p), roca_(roca) {
  nombre = roca ? "Form14" : "Form12";
  título = roca ? "Diseño de anclajes - rocas" : "Diseño de anclajes - suelos";
  nota =
      "La fuerza de anclaje por metro de talud que lleva el último cálculo al factor de seguridad "
      "buscado, "
      "sobre el plano equivalente a la superficie de falla (su cuerda). Anclaje activo (tensado): "
      "su "
      "componente a lo largo de la superficie reduce las fuerzas que mueven la masa. Anclaje "
      "pasivo (sin "
      "tensar): esa componente se suma a la resistencia. Cada anclaje trabaja al 60 % de su carga "
      "de rotura.";
  botones = {
      {"BotónCalcular", "Calcular", [this](Interfaz& ui) { Calcular(ui); }},
      {"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }},
      {"BotónCancelar", "Cancelar", [this](Interfaz&) { cerrada = true; }},
  };
}

void PantallaAnclajes::Activar(Interfaz&) {
  const auto& a = p_.Anclajes;
  const bool hayDatos = a.FSConAnclaje > 0;
  campos.clear();
  for (const auto& c : kCampos)
    campos.push_back(
        {c.nombre, c.etiqueta, NúmeroATexto(hayDatos ? a.*(c.valor) : c.sugerido), c.ayuda, false});
  auto separación = [&](double v) {
    return hayDatos && v > 0 ? Formato(v, "#0.00") : std::string();
  };
  campos.push_back({"TextoSeparaciónAnclajesActivo", "Separación de anclajes activos (m)",
                    separación(a.SeparaciónAnclajesActivo),
                    "Distancia entre anclajes activos a lo largo del talud", true});
  campos.push_back({"TextoSeparaciónAnclajesPasivo", "Separación de anclajes pasivos (m)",
                    separación(a.SeparaciónAnclajesPasivo),
                    "Distancia entre anclajes pasivos a lo largo del talud", true});
  ListaPantalla pasos;
  pasos.nombre = "ListaCálculoAnclajes";
  pasos.columnas = {"Paso del cálculo", "Valor"};
  listas = {pasos};
}

bool PantallaAnclajes::Calcular(Interfaz& ui) {
  DatosAnclajes d = p_.Anclajes;
  for (const auto& c : kCampos) {
    const std::string& t = texto(c.nombre);
    if (!EsNúmero(t)) {
      ui.Mensaje("Debe introducir un número en " + std::string(c.etiqueta), kTítulo);
      return false;
    }
    d.*(c.valor) = ANúmero(t);
  }
  if (!(d.FSConAnclaje > 0)) {
    ui.Mensaje("El factor de seguridad buscado debe ser mayor que cero.", kTítulo);
    return false;
  }
  if (d.InclinaciónAnclajes < 0 || d.InclinaciónAnclajes >= 90) {
    ui.Mensaje("La inclinación de los anclajes debe estar entre 0 y 90 grados bajo la horizontal.",
               kTítulo);
    return false;
  }
  if (!(d.DiámetroAnclajes > 0) || !(d.EsfuerzoRoturaAnclaje > 0)) {
    ui.Mensaje("El diámetro y el esfuerzo de rotura de la guaya deben ser mayores que cero.",
               kTítulo);
    return false;
  }
  if (d.NúmeroGuayas < 1 || d.NúmeroGuayas != std::floor(d.NúmeroGuayas)) {
    ui.Mensaje("El número de guayas debe ser un número entero mayor o igual que 1.", kTítulo);
    return false;
  }
  const CálculoAnclajes r = CalcularAnclajes(p_, d);
  auto& pasos = lista("ListaCálculoAnclajes");
  pasos.filas.clear();
  for (const auto& [t, v] : r.pasos) pasos.filas.push_back({t, v});
  if (!r.válido) {
    texto("TextoSeparaciónAnclajesActivo").clear();
    texto("TextoSeparaciónAnclajesPasivo").clear();
    ui.Mensaje(r.error, kTítulo);
    return false;
  }
  texto("TextoSeparaciónAnclajesActivo") = Formato(r.SeparaciónActivo, "#0.00");
  texto("TextoSeparaciónAnclajesPasivo") = Formato(r.SeparaciónPasivo, "#0.00");
  resultado_ = d;
  resultado_.SeparaciónAnclajesActivo = r.SeparaciónActivo;
  resultado_.SeparaciónAnclajesPasivo = r.SeparaciónPasivo;
  return true;
}

void PantallaAnclajes::Aceptar(Interfaz& ui) {
  if (!Calcular(ui)) return;
  p_.Anclajes = resultado_;
  p_.DatosGuardados = false;
  cerrada = true;
}

void AbrirAnclajes(Proyecto& p, Interfaz& ui, bool roca) {
  PantallaAnclajes pantalla(p, roca);
  ui.Abrir(pantalla);
}

}  // namespace lomaterra
