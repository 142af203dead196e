#include "salida/registro_sismico.h"

#include <algorithm>
#include <cmath>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

Figura FiguraRegistroSísmico(const Proyecto& p) {
  const auto& s = p.Sísmico;
  Figura f;
  f.tipo = Figura::Tipo::Gráfico;
  f.nombre = "GráficaDeRegistroSísmico";
  f.título = "Registro sísmico";
  f.ejeX = "Tiempo (seg)";
  f.ejeY = "Aceleración (fracción de g)";
  Trazo h, v;
  h.leyenda = h.nombre = "Aceleración horizontal";
  h.color = {200, 40, 30};
  v.leyenda = v.nombre = "Aceleración vertical";
  v.color = {30, 80, 190};
  h.grosor = v.grosor = 1.4;
  double picoH = 0, picoV = 0, tPicoH = 0, tPicoV = 0;
  for (long i = 1; i <= s.NúmeroPuntosRegistro; ++i) {
    const double t = s.TiempoRegistro.Leer(i);
    const double ah = s.AceleraciónHorizontal.Leer(i), av = s.AceleraciónVertical.Leer(i);
    h.puntos.push_back({t, ah});
    v.puntos.push_back({t, av});
    if (std::abs(ah) > picoH) picoH = std::abs(ah), tPicoH = t;
    if (std::abs(av) > picoV) picoV = std::abs(av), tPicoV = t;
  }
  f.trazos = {h, v};
  f.notas.push_back(std::to_string(s.NúmeroPuntosRegistro) + " puntos");
  f.notas.push_back("Máxima aceleración horizontal: " + Formato(picoH, "#0.000") + " g a los " +
                    Formato(tPicoH, "#0.000") + " seg;  máxima vertical: " +
                    Formato(picoV, "#0.000") + " g a los " + Formato(tPicoV, "#0.000") + " seg");
  return f;
}

}  // namespace lomaterra
