#include "icono.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace lomaterra {

namespace {

QPixmap Dibujo(int lado) {
  QPixmap imagen(lado, lado);
  imagen.fill(Qt::transparent);
  QPainter p(&imagen);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(lado / 64.0, lado / 64.0);
  // Sky and ground.
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xdc, 0xea, 0xf5));
  p.drawRoundedRect(QRectF(1, 1, 62, 62), 8, 8);
  QPainterPath terreno;
  terreno.moveTo(2, 48);
  terreno.lineTo(22, 48);
  terreno.lineTo(42, 22);
  terreno.lineTo(62, 22);
  terreno.lineTo(62, 55);
  terreno.quadTo(62, 62, 55, 62);
  terreno.lineTo(9, 62);
  terreno.quadTo(2, 62, 2, 55);
  terreno.closeSubpath();
  p.setBrush(QColor(0xb5, 0x8a, 0x55));
  p.drawPath(terreno);
  // Phreatic line and the failure arc.
  p.setPen(QPen(QColor(0x2f, 0x6f, 0xc0), 2));
  p.drawLine(QPointF(6, 52), QPointF(58, 30));
  QPen arco(QColor(0xc8, 0x1e, 0x1e), 3.2);
  arco.setCapStyle(Qt::RoundCap);
  p.setPen(arco);
  p.setBrush(Qt::NoBrush);
  QPainterPath falla;
  falla.moveTo(50, 22);
  falla.quadTo(42, 58, 14, 48);
  p.drawPath(falla);
  return imagen;
}

}  // namespace

QIcon IconoLomaterra() {
  QIcon icono;
  for (int lado : {16, 24, 32, 48, 64, 128}) icono.addPixmap(Dibujo(lado));
  return icono;
}

}  // namespace lomaterra
