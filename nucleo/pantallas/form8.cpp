#include "pantallas/form8.h"

#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

Form8::Form8(Proyecto& p)
    : PantallaDeCargas(
          p,
          {{"TextoAbscisaCarga", "Abscisa de aplicación (m):",
            "Debe introducir un número para la abscisa de aplicación de la carga puntual", "X"},
           {"TextoOrdenadaCarga", "Ordenada de aplicación (m):",
            "Debe introducir un número para la ordenada de aplicación de la carga puntual", "Y"},
           {"TextoCargaPx", "Carga Px (ton/m):",
            "Debe introducir un número para la carga puntual aplicada en dirección de las abscisas", "Px"},
           {"TextoCargaPy", "Carga Py (ton/m):",
            "Debe introducir un número para la carga puntual aplicada en dirección de las ordenadas", "Py"}},
          "ListaCargasPuntuales") {
  nombre = "Form8";
  título = "Caragas lineales";
  botones.push_back({"FavorLeer", "Favor leer", [this](Interfaz& ui) { Signos(ui); }});
}

void Form8::Signos(Interfaz& ui) {
  ui.Mensaje("'Px' es positiva cuando aplica compresión al talud y esta dirigida en dirección de las abscisas.");
  ui.Mensaje(
      "'Py' es positiva cuando aplica compresión al talud y está dirigida en la dirección de la "
      "gravedad (eje de las ordenadas).");
}

std::vector<std::vector<double>> Form8::Cargadas() const {
  std::vector<std::vector<double>> r;
  if (!p_.CargasPuntualesDadas) return r;
  const auto& c = p_.CargaPuntual;
  for (long i = 1; i <= p_.NúmeroCargasPuntuales; ++i)
    r.push_back({c.Xpuntual.Leer(i), c.Ypuntual.Leer(i), c.Px.Leer(i), c.Py.Leer(i)});
  return r;
}

void Form8::Guardar(const std::vector<std::vector<double>>& filas) {
  auto& c = p_.CargaPuntual;
  const long n = static_cast<long>(filas.size());
  c.Redimensionar(n);
  for (long i = 1; i <= n; ++i) {
    const auto& f = filas[static_cast<std::size_t>(i - 1)];
    c.Xpuntual[i] = f[0]; c.Ypuntual[i] = f[1]; c.Px[i] = f[2]; c.Py[i] = f[3];
  }
  p_.NúmeroCargasPuntuales = static_cast<Entero>(n);
  p_.CargasPuntualesDadas = n > 0;
}

void CargasPuntuales(Proyecto& p, Interfaz& ui) {
  Form8 f(p);
  ui.Abrir(f);
}

}  // namespace lomaterra
