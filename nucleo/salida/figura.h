// A figure as data: polylines, marks, labels and arrows in the units of the problem, with axes
// captions and a legend. The desktop program draws it (on screen, to PNG, SVG and PDF); tests
// read it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lomaterra {

struct Color {
  std::uint8_t r = 0, g = 0, b = 0;
  bool operator==(const Color&) const = default;
};

struct PuntoFigura {
  double x = 0, y = 0;
  bool operator==(const PuntoFigura&) const = default;
};

struct Trazo {
  std::vector<PuntoFigura> puntos;
  Color color;
  double grosor = 1.0;        // in pixels at screen scale
  bool discontinuo = false;
  bool cerrado = false;       // a polygon
  bool relleno = false;       // filled with `colorRelleno`
  Color colorRelleno;
  std::string leyenda;        // shown in the legend when not empty
  std::string nombre;         // what it is: "talud", "falla", "estrato 2", "freático", ...
  std::string marcador;       // a mark at every vertex: "", "círculo", "cuadrado", "triángulo", "cruz"
  bool sinLínea = false;      // the vertices alone (a scatter of points)
};

struct Marca {
  PuntoFigura punto;
  Color color;
  std::string forma = "círculo";  // "círculo", "cuadrado", "cruz"
  double tamaño = 6.0;            // pixels
  std::string nombre;
};

struct Rótulo {
  PuntoFigura punto;
  std::string texto;
  Color color;
  double tamaño = 9.0;  // points
  // Where the text stands against its point: "izquierda" (text to the right of the point),
  // "centro" (centred above it), "derecha" (text to the left of it).
  std::string alineación = "izquierda";
};

struct Flecha {
  PuntoFigura desde, hasta;  // the head is at `hasta`
  Color color;
  double grosor = 1.5;
  std::string nombre;
};

struct Figura {
  enum class Tipo { Dibujo, Gráfico };  // a drawing at equal scales, or an x-y chart
  Tipo tipo = Tipo::Dibujo;
  std::string nombre;  // the menu control name that shows it, or a short key
  std::string título;
  std::string ejeX, ejeY;
  std::vector<Trazo> trazos;
  std::vector<Marca> marcas;
  std::vector<Rótulo> rótulos;
  std::vector<Flecha> flechas;
  // Short lines shown under the title: method, factor of safety, scales.
  std::vector<std::string> notas;
};

}  // namespace lomaterra
