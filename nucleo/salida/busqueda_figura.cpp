#include "salida/busqueda_figura.h"

#include <algorithm>
#include <cmath>

#include "equilibrio/busqueda.h"
#include "equilibrio/referencia.h"
#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/seccion.h"

namespace lomaterra {

namespace {

constexpr int kTramosEscala = 8;

Trazo Arco(const CírculoEvaluado& c, Color color, double grosor, const std::string& leyenda,
           const std::string& nombre) {
  Trazo t;
  t.color = color;
  t.grosor = grosor;
  t.leyenda = leyenda;
  t.nombre = nombre;
  const double a = std::min(c.xPie, c.xCresta), b = std::max(c.xPie, c.xCresta);
  const int pasos = 60;
  for (int k = 0; k <= pasos; ++k) {
    const double x = a + (b - a) * k / pasos;
    const double d = std::max(0.0, c.radio * c.radio - (x - c.xc) * (x - c.xc));
    t.puntos.push_back({x, c.yc - std::sqrt(d)});
  }
  return t;
}

}  // namespace

std::string NombreMétodoBúsqueda(bool janbu) {
  return janbu ? "Janbu (iteración de fuerzas, alturas a un tercio)" : kRótuloBishopReferencia;
}

Color ColorDeFactor(double f, double mínimo, double máximo) {
  double s = máximo > mínimo ? (f - mínimo) / (máximo - mínimo) : 0;
  s = std::clamp(s, 0.0, 1.0);
  // Red, through yellow and green, to blue.
  const double r = s < 0.5 ? 1.0 : std::max(0.0, 1.0 - (s - 0.5) * 2);
  const double g = s < 0.5 ? s * 2 * 0.85 : 0.85 - (s - 0.5) * 2 * 0.45;
  const double b = s < 0.5 ? 0.0 : (s - 0.5) * 2;
  auto byte = [](double v) { return static_cast<std::uint8_t>(std::lround(std::clamp(v, 0.0, 1.0) * 255)); };
  return {byte(0.85 * r + 0.1), byte(g), byte(b * 0.9 + 0.05)};
}

Figura FiguraBúsqueda(const Proyecto& p, const ResultadoBúsqueda& r, bool janbu) {
  Figura f = FiguraSección(p);
  f.nombre = "BúsquedaCírculoCrítico";
  f.título = "Búsqueda del círculo crítico";
  f.notas.clear();
  // The project's own failure surface, its slices and its centre would be read as the search's.
  std::erase_if(f.trazos, [](const Trazo& t) {
    return t.nombre == "falla" || t.nombre.rfind("radio ", 0) == 0 || t.nombre.rfind("borde ", 0) == 0;
  });
  std::erase_if(f.marcas, [](const Marca& m) {
    return m.nombre == "centro" || m.nombre.rfind("punto de falla", 0) == 0;
  });
  std::erase_if(f.rótulos, [](const Rótulo& r) {
    return r.color == colores::Falla || r.color == colores::Centro;
  });
  if (!r.hay) {
    f.notas.push_back(r.mensaje);
    return f;
  }
  const CírculoEvaluado& crítico = r.menores.front();
  // The scale runs from the least factor to twice it, or to the greatest least factor of a centre
  // when that is lower; what lies above goes with the last step.
  double máximo = crítico.factor;
  for (double v : r.mínimoPorCentro)
    if (std::isfinite(v)) máximo = std::max(máximo, v);
  máximo = std::min(máximo, 2 * crítico.factor);
  if (!(máximo > crítico.factor)) máximo = crítico.factor * 1.1 + 0.01;
  const double paso = (máximo - crítico.factor) / kTramosEscala;

  std::vector<Trazo> tramos(kTramosEscala);
  for (int k = 0; k < kTramosEscala; ++k) {
    Trazo& t = tramos[static_cast<std::size_t>(k)];
    const double a = crítico.factor + k * paso, b = a + paso;
    t.color = ColorDeFactor(a + 0.5 * paso, crítico.factor, máximo);
    t.marcador = "cuadrado";
    t.sinLínea = true;
    t.nombre = "centros FS " + std::to_string(k + 1);
    t.leyenda = "FS " + Formato(a, "#0.000") + (k + 1 == kTramosEscala ? " o más" : " – " + Formato(b, "#0.000"));
  }
  Trazo sinCírculo;
  sinCírculo.color = {170, 170, 170};
  sinCírculo.marcador = "cruz";
  sinCírculo.sinLínea = true;
  sinCírculo.nombre = "centros sin círculo";
  sinCírculo.leyenda = "Centro sin círculo admisible";
  for (int j = 0; j < r.filas; ++j)
    for (int i = 0; i < r.columnas; ++i) {
      const double v = r.mínimoPorCentro[static_cast<std::size_t>(j * r.columnas + i)];
      const PuntoFigura punto{r.xCentro[static_cast<std::size_t>(i)], r.yCentro[static_cast<std::size_t>(j)]};
      if (!std::isfinite(v)) {
        sinCírculo.puntos.push_back(punto);
        continue;
      }
      const int k = static_cast<int>(std::clamp((v - crítico.factor) / paso, 0.0, kTramosEscala - 1.0));
      tramos[static_cast<std::size_t>(k)].puntos.push_back(punto);
    }
  for (auto& t : tramos)
    if (!t.puntos.empty()) f.trazos.push_back(std::move(t));
  if (!sinCírculo.puntos.empty()) f.trazos.push_back(std::move(sinCírculo));

  for (std::size_t k = r.menores.size(); k-- > 1;)
    f.trazos.push_back(Arco(r.menores[k], {245, 160, 160}, 1.0,
                            k == 1 ? "Siguientes círculos de menor factor" : "", "círculo siguiente"));
  f.trazos.push_back(Arco(crítico, {200, 0, 0}, 2.5,
                          "Círculo crítico, FS = " + Formato(crítico.factor, "#0.000"), "círculo crítico"));
  f.marcas.push_back({{crítico.xc, crítico.yc}, {200, 0, 0}, "cruz", 9, "centro crítico"});
  f.rótulos.push_back({{crítico.xc, crítico.yc}, " FS mín. " + Formato(crítico.factor, "#0.000"), {200, 0, 0}, 9, "izquierda"});

  f.notas.push_back("Método: " + NombreMétodoBúsqueda(janbu) + ".  Factor mínimo " +
                    Formato(crítico.factor, "#0.000") + " en el centro (" + Formato(crítico.xc, "#0.00") +
                    ", " + Formato(crítico.yc, "#0.00") + "), radio " + Formato(crítico.radio, "#0.00") + " m.");
  f.notas.push_back("Círculos evaluados: " + std::to_string(r.círculos) + "; admisibles: " +
                    std::to_string(r.admisibles) + ". Cada centro lleva el color del menor factor de sus círculos.");
  return f;
}

}  // namespace lomaterra
