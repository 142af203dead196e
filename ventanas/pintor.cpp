// Placeholder painter: polylines only, fitted at equal scales.
#include "pintor.h"

#include <algorithm>
#include <limits>

namespace lomaterra {

void DibujarFigura(QPainter& pintor, const Figura& figura, const QRectF& marco) {
  double x0 = std::numeric_limits<double>::max(), x1 = -x0, y0 = x0, y1 = -x0;
  for (const auto& t : figura.trazos)
    for (const auto& q : t.puntos) {
      x0 = std::min(x0, q.x); x1 = std::max(x1, q.x);
      y0 = std::min(y0, q.y); y1 = std::max(y1, q.y);
    }
  if (x1 <= x0 || y1 < y0) return;
  const double escala = std::min(marco.width() / (x1 - x0), marco.height() / std::max(y1 - y0, 1e-9));
  auto punto = [&](const PuntoFigura& q) {
    return QPointF(marco.left() + (q.x - x0) * escala, marco.bottom() - (q.y - y0) * escala);
  };
  for (const auto& t : figura.trazos)
    for (std::size_t i = 1; i < t.puntos.size(); ++i) pintor.drawLine(punto(t.puntos[i - 1]), punto(t.puntos[i]));
}

}  // namespace lomaterra
