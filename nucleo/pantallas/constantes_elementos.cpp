#include "pantallas/constantes_elementos.h"

#include <cmath>
#include <string>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

PantallaConstantesElementos::PantallaConstantesElementos(Proyecto& p) : p_(p) {
  nombre = "ConstantesElementos";
  título = "Parámetros para estimar el factor de seguridad";
  campos = {
      {"TextoMétodoDeCálculo", "Método de cálculo:  ", "", "<2> Bishop, <4> Janbu"},
      {"TextoFSInicial", "Factor de seguridad inicial FS:", "", ""},
      {"TextoRadioCírculoFalla", "Radio del círculo (m):", "", ""},
      {"TextoDeLaCuerda", "Cuerda del arco de círculo (m):", "", "", true},
      {"TextoNúmeroDovelas", "Número de dovelas en el análisis:", "", ""},
  };
  botones.push_back({"BotónAceptar", "Aceptar", [this](Interfaz& ui) { Aceptar(ui); }});
  botones.push_back({"BotónCancelar", "Cancelar", [this](Interfaz& ui) { Cancelar(ui); }});
}

void PantallaConstantesElementos::Activar(Interfaz&) {
  for (auto& c : campos) c.valor.clear();
  const auto& pi = p_.ParámetrosIniciales;
  if (p_.ParámetrosInicialesDados) {
    texto("TextoMétodoDeCálculo") = std::to_string(pi.MétodoDeCálculo);
    texto("TextoFSInicial") = NúmeroATexto(pi.FSInicial);
    texto("TextoRadioCírculoFalla") = Formato(pi.Radio, "#0.00");
    texto("TextoNúmeroDovelas") = NúmeroATexto(pi.NúmeroDovelas);
  } else {
    texto("TextoFSInicial") = " ";
  }
}

void PantallaConstantesElementos::Aceptar(Interfaz& ui) {
  if (p_.TipoDeAnálisis == "T") {
    ui.Mensaje("Ud. eligió trabajar por métodos de equilibrio límite y no por elementos finitos.");
    return;
  }
  if (!EsNúmero(texto("TextoMétodoDeCálculo"))) {
    ui.Mensaje("Debe introducir el número  <2> o <4> dependiendo del método de cálculo que Ud. considere");
    return;
  }
  const double método = ANúmero(texto("TextoMétodoDeCálculo"));
  if (método != 2 && método != 4) {
    ui.Mensaje("Ud. debe seleccionar el número  <2> o <4> dependiendo del método de cálculo que Ud. considere");
    return;
  }
  const double fs = ANúmero(texto("TextoFSInicial"));
  if (!(fs > 0)) {
    ui.Mensaje("Debe dar un factor de seguridad mayor que cero y razonable");
    return;
  }
  const bool arco = p_.SuperficieCircular();
  double radio = 0, cuerda = 0;
  if (!arco) {
    // A notice only: a surface that is not one arc needs no radius.
    ui.Mensaje(
        "Ud. está considerando que la superficie potencial de falla (SPF) es un arco de círculo, por "
        "lo que puede obviar dar la ordenada y abscisa del centro de rotación.");
  } else {
    radio = ANúmero(texto("TextoRadioCírculoFalla"));
    if (!(radio > 0)) {
      ui.Mensaje(
          "Debe introducir un número mayor que cero para el radio del arco de círculo de falla y "
          "razonable para el cálculo");
      return;
    }
    if (!EsNúmero(texto("TextoRadioCírculoFalla"))) {
      ui.Mensaje("Introduzca un valor razonable para el radio");
      return;
    }
    const auto& f = p_.CoordenadasFalla;
    const double dx = f.X.Leer(1) - f.X.Leer(2), dy = f.Y.Leer(1) - f.Y.Leer(2);
    cuerda = std::sqrt(dx * dx + dy * dy);
    if (radio < cuerda / 2) {
      texto("TextoDeLaCuerda") = Formato(cuerda, "#0.00");
      ui.Mensaje(
          "El radio del arco del círculo debe ser mayor que el valor de la mitad de la cuerda, la "
          "cual está definida por los puntos 1 y 2 de la superficie potencial de falla.");
      return;
    }
  }
  if (!EsNúmero(texto("TextoNúmeroDovelas"))) {
    ui.Mensaje("Debe introducir un número para la cantidad de dovelas a tomar en consideración en el análisis");
    return;
  }
  const double dovelas = ANúmero(texto("TextoNúmeroDovelas"));
  if (!(dovelas > 2) || dovelas - std::floor(dovelas) > 0) {
    ui.Mensaje("Debe dar un número razonable de dovelas y que sea entero");
    return;
  }
  auto& pi = p_.ParámetrosIniciales;
  pi.FSInicial = fs;
  pi.MétodoDeCálculo = static_cast<Entero>(método);
  pi.NúmeroDovelas = dovelas;
  if (arco) {
    // The radius checked above is the one the slices on the stress field take.
    pi.Radio = radio;
    pi.Cuerda = cuerda;
  }
  p_.DatosGuardados = false;
  p_.ParámetrosInicialesDados = true;
  cerrada = true;
}

void PantallaConstantesElementos::Cancelar(Interfaz&) { cerrada = true; }

void ParámetrosInicialesDeCálculoElementosFinitos(Proyecto& p, Interfaz& ui) {
  PantallaConstantesElementos f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
