#include "resumen_elementos.h"

#include <sstream>

#include "resumen.h"

namespace lomaterra::lote {

std::string ElementosComoJson(const Proyecto& p) {
  const MallaElementos& m = p.Malla;
  if (!p.CálculoHecho || m.NúmeroDeIteración < 1 || p.TipoDeAnálisis != "F") return "";
  std::ostringstream s;
  s << "{\n    \"NúmeroDeIteración\": " << m.NúmeroDeIteración << ",\n";
  s << "    \"CálculoViscoplásticoHecho\": " << (m.CálculoViscoplásticoHecho ? "true" : "false") << ",\n";
  s << "    \"FluenciaMáxima\": " << NúmeroJson(m.FluenciaMáxima) << ", \"ElementoFluenciaMáxima\": " << m.ElementoFluenciaMáxima
    << ", \"PuntoFluenciaMáxima\": " << m.PuntoFluenciaMáxima << ",\n";
  s << "    \"FluenciaMínima\": " << NúmeroJson(m.FluenciaMínima) << ", \"ElementoFluenciaMínima\": " << m.ElementoFluenciaMínima
    << ", \"PuntoFluenciaMínima\": " << m.PuntoFluenciaMínima << ",\n";
  const auto fs = [](double v) { return v != 0 ? NúmeroJson(v) : std::string("null"); };
  s << "    \"FSViscoplástico\": " << fs(m.FSViscoplástico) << ", \"FSElástico\": " << fs(m.FSElástico) << ",\n";
  s << "    \"Pasos\": [";
  for (long i = 1; i <= m.NúmeroDeIteración; ++i) {
    s << (i > 1 ? "," : "") << "\n      {\"Paso\": " << i << ", \"TiempoAcumulado\": " << NúmeroJson(m.TiempoAcumulado.Leer(i))
      << ",\n       \"Elementos\": [";
    for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
      s << (e > 1 ? "," : "") << "\n        {\"Elemento\": " << e << ", \"EsfuerzoX\": " << NúmeroJson(m.EsfuerzoX.Leer(e, i))
        << ", \"EsfuerzoY\": " << NúmeroJson(m.EsfuerzoY.Leer(e, i)) << ", \"EsfuerzoXY\": " << NúmeroJson(m.EsfuerzoXY.Leer(e, i))
        << ", \"EsfuerzoPrincipalMayor\": " << NúmeroJson(m.EsfuerzoPrincipalMayor.Leer(e, i))
        << ", \"EsfuerzoPrincipalMenor\": " << NúmeroJson(m.EsfuerzoPrincipalMenor.Leer(e, i)) << ", \"FunciónFluencia\": [";
      const int puntos = m.Elemento.NodosPorElemento.Leer(e) == 6 ? 3 : 1;
      for (int g = 1; g <= puntos; ++g) s << (g > 1 ? ", " : "") << NúmeroJson(m.FunciónFluencia.Leer((e - 1) * 3 + g, i));
      s << "]}";
    }
    s << "],\n       \"Nodos\": [";
    for (long n = 1; n <= m.NúmeroDeNodos; ++n)
      s << (n > 1 ? "," : "") << "\n        {\"Nodo\": " << n << ", \"DesplazamientoX\": "
        << NúmeroJson(m.Desplazamientos.Leer(2 * n - 1, i)) << ", \"DesplazamientoY\": " << NúmeroJson(m.Desplazamientos.Leer(2 * n, i)) << "}";
    s << "]}";
  }
  s << "\n    ]\n  }";
  return s.str();
}

}  // namespace lomaterra::lote
