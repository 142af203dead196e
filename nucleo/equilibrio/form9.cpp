#include "equilibrio/form9.h"

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kPreguntaSolución = "¿Considera que es la solución?";
const char* const kPreguntaSalir = "¿Desea salir del cálculo?";

Form9::Form9(Proyecto& p) : p_(p) {
  nombre = "form9";
  título = "Resultados de las iteraciones";
  nota = "RESULTADOS DE LAS ITERACIONES:";
  campos = {
      {"TextoNúmeroIteraciones", "Iteración:", "", "", true},
      {"TextoMultiplicador1", "Coeficiente de Lagrange µ1:", "", "", true},
      {"TextoMultiplicador2", "Coeficiente de Lagrange µ2:", "", "", true},
      {"TextoDelFactorDeSeguridad", "Factor de seguridad:", "", "", true},
      {"TextoDeLaSumaDeFuerzasHorizontales", "Suma de fuerzas horizontales:", "", "", true},
      {"TextoDeLaSumaDeFuerzasVerticales", "Suma de fuerzas verticales:", "", "", true},
      {"TextoDeLaSumaDeMomentos", "Suma de momentos:", "", "", true},
  };
}

void Form9::Activar(Interfaz& ui) {
  const long k = p_.NúmeroIteraciones;
  const auto& h = p_.HistoriaIteraciones;
  texto("TextoNúmeroIteraciones") = Formato(k, "#");
  texto("TextoMultiplicador1") = Formato(h.Multiplicador1.Leer(k), "#0.000000000");
  texto("TextoMultiplicador2") = Formato(h.Multiplicador2.Leer(k), "#0.000000000");
  texto("TextoDelFactorDeSeguridad") = Formato(h.FactorDeSeguridad.Leer(k), "#0.000000000");
  texto("TextoDeLaSumaDeFuerzasHorizontales") = Formato(p_.SumaFuerzasHorizontales, "#0.00 ton");
  texto("TextoDeLaSumaDeFuerzasVerticales") = Formato(p_.SumaFuerzasVerticales, "#0.00 ton");
  texto("TextoDeLaSumaDeMomentos") = Formato(p_.SumaMomentos, "#0.00 ton.m");
  // The step in one line on the status bar too, so that the numbers stay in sight behind the
  // questions whatever the front end.
  ui.Estado("Iteración " + texto("TextoNúmeroIteraciones") +
            ": FS = " + texto("TextoDelFactorDeSeguridad") + "; fuerzas horizontales " +
            texto("TextoDeLaSumaDeFuerzasHorizontales") + ", verticales " +
            texto("TextoDeLaSumaDeFuerzasVerticales") + "; momentos " +
            texto("TextoDeLaSumaDeMomentos"));
  p_.SoluciónAceptada = false;
  p_.SalirDelCálculo = false;
  if (ui.Pregunta(kPreguntaSolución, título))
    p_.SoluciónAceptada = true;
  else if (ui.Pregunta(kPreguntaSalir, título))
    p_.SalirDelCálculo = true;
  cerrada = true;
}

}  // namespace lomaterra
