#include "elementos/form26.h"

#include <algorithm>

#include "proyecto/compat.h"
#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

namespace {
std::string N(double x) { return Formato(x, "#0.0000"); }
}  // namespace

PantallaEsfuerzos::PantallaEsfuerzos(Proyecto& p, long paso, std::string nombre_, std::string título_)
    : p_(p), paso_(paso) {
  nombre = std::move(nombre_);
  título = std::move(título_);
  nota = "Esfuerzos en ton/m², tracción positiva; desplazamientos en cm al terminar el cálculo (en m en la "
         "pantalla intermedia del primer paso).";
  campos = {{"TextoPaso", "Paso:", "", "", true},
            {"TextoFluenciaMáxima", "Función de fluencia máxima:", "", "", true},
            {"TextoElementoFluenciaMáxima", "Elemento (punto):", "", "", true},
            {"TextoFluenciaMínima", "Función de fluencia mínima:", "", "", true},
            {"TextoElementoFluenciaMínima", "Elemento (punto):", "", "", true},
            {"TextoFSElástico", "Factor de seguridad (esfuerzos elásticos):", "", "", true},
            {"TextoFSViscoplástico", "Factor de seguridad (último paso):", "", "", true}};
  listas = {{"ListaEsfuerzos",
             {"Elemento", "Sigma x", "Sigma y", "Tau xy", "Sigma 1", "Sigma 3", "F punto 1", "F punto 2", "F punto 3"},
             {}, 0, nullptr},
            {"ListaDesplazamientos", {"Nodo", "X", "Y", "Desplazamiento x", "Desplazamiento y"}, {}, 0, nullptr}};
  botones = {{"BotónPasoAnterior", "Paso anterior",
              [this](Interfaz&) {
                if (paso_ > 1) --paso_;
                Llenar();
              }},
             {"BotónPasoSiguiente", "Paso siguiente",
              [this](Interfaz&) {
                if (paso_ < p_.Malla.NúmeroDeIteración) ++paso_;
                Llenar();
              }},
             {"BotónCopiar", "Copiar", [this](Interfaz& ui) { ui.CopiarAlPortapapeles(TextoParaCopiar()); }},
             {"BotónSalir", "Salir", [this](Interfaz&) { cerrada = true; }}};
}

void PantallaEsfuerzos::Activar(Interfaz&) {
  cerrada = false;
  paso_ = std::clamp<long>(paso_, 1, std::max<long>(1, p_.Malla.NúmeroDeIteración));
  Llenar();
}

void PantallaEsfuerzos::Llenar() {
  const MallaElementos& m = p_.Malla;
  const long i = paso_;
  texto("TextoPaso") = std::to_string(i) + " de " + std::to_string(m.NúmeroDeIteración);
  texto("TextoFluenciaMáxima") = N(m.FluenciaMáxima);
  texto("TextoElementoFluenciaMáxima") =
      std::to_string(m.ElementoFluenciaMáxima) + " (" + std::to_string(m.PuntoFluenciaMáxima) + ")";
  texto("TextoFluenciaMínima") = N(m.FluenciaMínima);
  texto("TextoElementoFluenciaMínima") =
      std::to_string(m.ElementoFluenciaMínima) + " (" + std::to_string(m.PuntoFluenciaMínima) + ")";
  texto("TextoFSElástico") = m.FSElástico != 0 ? Formato(m.FSElástico, "#0.000") : "";
  texto("TextoFSViscoplástico") = m.FSViscoplástico != 0 ? Formato(m.FSViscoplástico, "#0.000") : "";
  auto& le = lista("ListaEsfuerzos").filas;
  le.clear();
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    std::vector<std::string> f = {std::to_string(e), N(m.EsfuerzoX.Leer(e, i)), N(m.EsfuerzoY.Leer(e, i)),
                                  N(m.EsfuerzoXY.Leer(e, i)), N(m.EsfuerzoPrincipalMayor.Leer(e, i)),
                                  N(m.EsfuerzoPrincipalMenor.Leer(e, i))};
    const int puntos = m.Elemento.NodosPorElemento.Leer(e) == 6 ? 3 : 1;
    for (int g = 1; g <= 3; ++g) f.push_back(g <= puntos ? N(m.FunciónFluencia.Leer((e - 1) * 3 + g, i)) : "");
    le.push_back(std::move(f));
  }
  auto& ld = lista("ListaDesplazamientos").filas;
  ld.clear();
  for (long fila = m.NúmeroDeNodos; fila >= 1; --fila) {
    const long n = m.Nodo.NúmeroDeNodo.Leer(fila);
    ld.push_back({std::to_string(n), N(m.Nodo.XNodo.Leer(fila)), N(m.Nodo.YNodo.Leer(fila)),
                  N(m.Desplazamientos.Leer(2 * n - 1, i)), N(m.Desplazamientos.Leer(2 * n, i))});
  }
}

std::string PantallaEsfuerzos::TextoParaCopiar() const {
  std::string t;
  for (const ListaPantalla& l : listas) {
    for (std::size_t k = 0; k < l.columnas.size(); ++k) t += (k ? "\t" : "") + l.columnas[k];
    t += "\n";
    for (const auto& f : l.filas) {
      for (std::size_t k = 0; k < f.size(); ++k) t += (k ? "\t" : "") + f[k];
      t += "\n";
    }
    t += "\n";
  }
  return t;
}

}  // namespace lomaterra
