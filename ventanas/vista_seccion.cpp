#include "vista_seccion.h"

#include <QPainter>

#include "interfaz_qt.h"
#include "pintor.h"
#include "proyecto/proyecto.h"
#include "salida/seccion.h"

namespace lomaterra {

VistaSección::VistaSección(const Proyecto& proyecto, QWidget* padre)
    : QWidget(padre), proyecto_(proyecto) {
  setObjectName("DibujoSección");
  setAttribute(Qt::WA_OpaquePaintEvent);
  Actualizar();
}

void VistaSección::Actualizar() {
  // A project half entered may not yet make a drawing; the window then shows an empty frame
  // rather than a fault of its own.
  // The panel's points are drawn as they are entered: a copy of the project takes the working
  // copy as the panel would store it when the user leaves it, and the copy is drawn.
  try {
    if (proyecto_.Ventana.EntradaCoordenadasAbierta) {
      Proyecto copia = proyecto_;
      GuardarPanelCoordenadas(copia, copia.Ventana.TipoPanel, copia.Ventana.EstratoPanel);
      figura_ = FiguraSección(copia);
      aviso_ = AvisoDelArco(copia);
    } else {
      figura_ = FiguraSección(proyecto_);
      aviso_ = AvisoDelArco(proyecto_);
    }
  } catch (const std::exception&) {
    figura_ = Figura{};
    aviso_.clear();
  }
  update();
}

bool VistaSección::TieneDibujo() const {
  for (const auto& t : figura_.trazos)
    if (t.puntos.size() >= 2) return true;
  return !figura_.marcas.empty();
}

void VistaSección::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.fillRect(rect(), Qt::white);
  pintor.setPen(QColor(0xb8, 0xb8, 0xb8));
  pintor.drawRect(rect().adjusted(0, 0, -1, -1));
  if (!TieneDibujo()) {
    pintor.setPen(QColor(0x80, 0x80, 0x80));
    pintor.drawText(
        rect(), Qt::AlignCenter,
        QStringLiteral("La sección se dibuja aquí a medida que se dan sus coordenadas."));
    return;
  }
  const QRectF marco = QRectF(rect()).adjusted(16, 16, -16, -16);
  pintor.setPen(QPen(Qt::black, 1.2));
  try {
    DibujarFigura(pintor, figura_, marco);
  } catch (const std::exception&) {
  }
}

}  // namespace lomaterra
