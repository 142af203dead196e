#include "resumen_modos.h"

#include <cmath>
#include <sstream>

#include "resumen.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra::lote {

std::string ModosComoJson(const Proyecto& p) {
  const DatosSísmicos& s = p.Sísmico;
  if (!s.FrecuenciasDadas || s.NúmeroFrecuencias < 1) return "";
  const long n = s.NúmeroFrecuencias;
  const bool vectores = s.FormasModalesDadas && s.MatrizFormasModales.Columnas() == n;
  const double dosPi = 8.0 * std::atan(1.0);
  std::ostringstream o;
  o << "{\n    \"FrecuenciasDefinitivas\": " << (s.FrecuenciasDefinitivas ? "true" : "false")
    << ", \"ModosCalculados\": " << s.ModosCalculados << ", \"NúmeroGradosLibertad\": " << s.NúmeroGradosLibertad << ",\n";
  o << "    \"GradosLibres\": [";
  const std::vector<long> libres = GradosLibres(p);
  for (std::size_t i = 0; i < libres.size(); ++i) o << (i ? ", " : "") << libres[i];
  o << "],\n    \"Modos\": [";
  for (long m = 1; m <= n; ++m) {
    const double w = s.Frecuencia.Leer(m);
    o << (m > 1 ? "," : "") << "\n      {\"Modo\": " << m << ", \"Frecuencia\": " << NúmeroJson(w)
      << ", \"Período\": " << (w > 0 ? NúmeroJson(dosPi / w) : "null");
    if (vectores) {
      o << ", \"Vector\": [";
      for (long i = 1; i <= s.MatrizFormasModales.Filas(); ++i) o << (i > 1 ? ", " : "") << NúmeroJson(s.MatrizFormasModales(i, m));
      o << "]";
    }
    o << "}";
  }
  o << "\n    ]\n  }";
  return o.str();
}

}  // namespace lomaterra::lote
