#include "salida/formas_modales.h"

#include <algorithm>
#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {

namespace {

const Color kGris{160, 160, 160}, kAzul{20, 60, 200}, kNegro{0, 0, 0};
constexpr const char* kPrefijo = "FormaModal";

// Corners of element e, with the mid-side node of a curved side, from the given node positions.
std::vector<PuntoFigura> Contorno(const Proyecto& p, long e, const std::vector<PuntoFigura>& nodos) {
  const TablaElemento& t = p.Malla.Elemento;
  const int n = t.NodosPorElemento.Leer(e) == 6 ? 6 : 3;
  const int orden[6] = {1, 4, 2, 5, 3, 6};
  std::vector<PuntoFigura> v;
  for (int k : orden) {
    if (k > n) continue;
    if (k > 3 && (k == 4 ? t.Lado12.Leer(e) : k == 5 ? t.Lado23.Leer(e) : t.Lado31.Leer(e)) != 1) continue;
    const long nodo = std::lround(t.NúmeroElemento.Leer(e, k));
    if (nodo >= 1 && nodo < static_cast<long>(nodos.size())) v.push_back(nodos[static_cast<std::size_t>(nodo)]);
  }
  return v;
}

}  // namespace

bool EsFiguraFormaModal(const std::string& nombre) {
  const std::string pre = kPrefijo;
  if (nombre.compare(0, pre.size(), pre) != 0) return false;
  const std::string resto = nombre.substr(pre.size());
  return resto.size() <= 5 && std::all_of(resto.begin(), resto.end(), [](char c) { return c >= '0' && c <= '9'; }) &&
         (resto.empty() || std::stol(resto) >= 1);
}

long ModoDeFiguraFormaModal(const Proyecto& p, const std::string& nombre) {
  if (!EsFiguraFormaModal(nombre)) return 0;
  const std::string resto = nombre.substr(std::string(kPrefijo).size());
  if (!resto.empty()) return std::stol(resto);
  return p.Sísmico.ModoElegido >= 1 ? p.Sísmico.ModoElegido : 1;
}

std::string DefectoDeLaFormaModal(const Proyecto& p, long modo) {
  const DatosSísmicos& s = p.Sísmico;
  if (!s.FormasModalesDadas || s.MatrizFormasModales.Columnas() < 1)
    return "Los Vectores de Forma MOdales, no se han estimado. Por favor vaya a la opción: Determinación de "
           "los Vectores de Forma MOdales";
  const long n = s.MatrizFormasModales.Columnas();
  if (modo < 1 || modo > n)
    return "El modo " + std::to_string(modo) + " no existe: hay " + std::to_string(n) + " modos de vibración.";
  if (static_cast<long>(GradosLibres(p).size()) != s.MatrizFormasModales.Filas())
    return "Los nodos con restricción cambiaron después del cálculo de los vectores de forma modales: vuelva "
           "a estimar los grados de libertad y los vectores para dibujar las formas modales.";
  return "";
}

std::vector<PuntoFigura> DesplazamientosDelModo(const Proyecto& p, long modo) {
  const MallaElementos& m = p.Malla;
  std::vector<PuntoFigura> u(static_cast<std::size_t>(m.NúmeroDeNodos + 1));
  const std::vector<long> libres = GradosLibres(p);
  for (std::size_t i = 0; i < libres.size(); ++i) {
    const long g = libres[i], n = (g + 1) / 2;
    if (n < 1 || n > m.NúmeroDeNodos) continue;
    const double v = p.Sísmico.MatrizFormasModales.Leer(static_cast<long>(i + 1), modo);
    (g % 2 ? u[static_cast<std::size_t>(n)].x : u[static_cast<std::size_t>(n)].y) = v;
  }
  return u;
}

Figura FiguraFormaModal(const Proyecto& p, long modo, double aumento) {
  const MallaElementos& m = p.Malla;
  const DatosSísmicos& s = p.Sísmico;
  Figura f;
  f.nombre = kPrefijo + std::to_string(modo);
  f.título = "Forma modal del modo " + std::to_string(modo);
  f.ejeX = "Abscisa (m)";
  f.ejeY = "Ordenada (m)";
  std::vector<PuntoFigura> reposo(static_cast<std::size_t>(m.NúmeroDeNodos + 1));
  double x0 = 1e300, x1 = -1e300;
  for (long r = 1; r <= m.NúmeroDeNodos; ++r) {
    const long n = m.Nodo.NúmeroDeNodo.Leer(r);
    if (n < 1 || n > m.NúmeroDeNodos) continue;
    reposo[static_cast<std::size_t>(n)] = {m.Nodo.XNodo.Leer(r), m.Nodo.YNodo.Leer(r)};
    x0 = std::min(x0, m.Nodo.XNodo.Leer(r));
    x1 = std::max(x1, m.Nodo.XNodo.Leer(r));
  }
  const std::vector<PuntoFigura> u = DesplazamientosDelModo(p, modo);
  double mayor = 0;
  for (const PuntoFigura& d : u) mayor = std::max(mayor, std::hypot(d.x, d.y));
  const double ancho = x1 > x0 ? x1 - x0 : 1;
  const double a = aumento > 0 ? aumento : (mayor > 0 ? 0.1 * ancho / mayor : 1);
  std::vector<PuntoFigura> movidos = reposo;
  for (std::size_t n = 1; n < movidos.size(); ++n) movidos[n] = {reposo[n].x + a * u[n].x, reposo[n].y + a * u[n].y};

  for (int capa = 0; capa < 2; ++capa)
    for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
      Trazo t;
      t.puntos = Contorno(p, e, capa == 0 ? reposo : movidos);
      t.cerrado = true;
      t.color = capa == 0 ? kGris : kAzul;
      t.grosor = capa == 0 ? 0.6 : 1.2;
      t.discontinuo = capa == 0;
      t.nombre = (capa == 0 ? "reposo " : "modo ") + std::to_string(e);
      if (e == 1) t.leyenda = capa == 0 ? "Malla en reposo" : "Malla desplazada por el modo " + std::to_string(modo);
      f.trazos.push_back(std::move(t));
    }
  // The restricted nodes keep their place.
  for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i) {
    const auto& r = m.NodoConRestricción;
    const long n = std::lround(r.NodoRestringido.Leer(i));
    if (n < 1 || n > m.NúmeroDeNodos || (r.RestricciónX.Leer(i) != "N" && r.RestricciónY.Leer(i) != "N")) continue;
    f.marcas.push_back({reposo[static_cast<std::size_t>(n)], kNegro, "cuadrado", 4.0, "apoyo " + std::to_string(n)});
  }
  const double w = s.Frecuencia.Leer(modo);
  std::string línea = "Modo " + std::to_string(modo) + " de " + std::to_string(s.MatrizFormasModales.Columnas()) +
                      ": frecuencia " + Formato(w, "#0.00") + " rad/seg";
  if (w > 0) línea += ", período " + Formato(8.0 * std::atan(1.0) / w, "#0.0000") + " seg";
  f.notas.push_back(línea);
  f.notas.push_back("Escala: el mayor desplazamiento modal se dibuja como el 10% del ancho de la malla (aumento " +
                    Formato(a, "#0.00") + ")");
  return f;
}

}  // namespace lomaterra
