// Placeholder until the figures land: the surface alone.
#include "salida/seccion.h"

#include "proyecto/proyecto.h"

namespace lomaterra {

Figura FiguraSección(const Proyecto& p) {
  Figura f;
  f.nombre = "GráficoGeometría";
  f.título = "Geometría del talud";
  Trazo t;
  t.nombre = "talud";
  for (long i = 1; i <= p.NúmeroPuntosTalud; ++i)
    t.puntos.push_back({p.CoordenadasTalud.X.Leer(i), p.CoordenadasTalud.Y.Leer(i)});
  f.trazos.push_back(t);
  return f;
}

}  // namespace lomaterra
