#include "vista_resultados_sismicos.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "interfaz_qt.h"
#include "pantallas/resultados_sismicos.h"
#include "vista_pantalla.h"

namespace lomaterra {

namespace {

// The chart screen's buttons by what they draw: a row for the node, one for the element, one for
// the step.
void BotonesEnFilas(VistaPantalla& vista) {
  auto* primero = vista.findChild<QPushButton*>("BotónDesplazamientos");
  if (!primero || vista.findChild<QGridLayout*>("FilasDeBotones")) return;
  auto* vertical = qobject_cast<QBoxLayout*>(primero->parentWidget()->layout());
  if (!vertical) return;
  QBoxLayout* fila = nullptr;
  int dónde = -1;
  for (int i = 0; i < vertical->count(); ++i)
    if (auto* l = qobject_cast<QBoxLayout*>(vertical->itemAt(i)->layout()); l && l->indexOf(primero) >= 0)
      fila = l, dónde = i;
  if (!fila) return;
  auto* rejilla = new QGridLayout;
  rejilla->setObjectName("FilasDeBotones");
  const char* const filas[3][5] = {
      {"Punto de coordenada:", "BotónDesplazamientos", "BotónVelocidades", "BotónAceleraciones", "BotónDesplazamientoMáximo"},
      {"Elemento:", "BotónEsfuerzos", "BotónDegradación", "BotónFactorSeguridad", nullptr},
      {"Registro:", "BotónMallaDeformada", "BotónContornos", nullptr, "BotónSalir"}};
  for (int r = 0; r < 3; ++r) {
    rejilla->addWidget(new QLabel(QString::fromUtf8(filas[r][0]), primero->parentWidget()), r, 0, Qt::AlignRight);
    for (int c = 1; c < 5; ++c) {
      if (!filas[r][c]) continue;
      auto* b = vista.findChild<QPushButton*>(QString::fromUtf8(filas[r][c]));
      if (!b) continue;
      fila->removeWidget(b);
      rejilla->addWidget(b, r, c);
    }
  }
  vertical->insertLayout(dónde, rejilla);
}

// The headings of the result screen over its two lists.
void Encabezados(VistaPantalla& vista, const PantallaResultadosSísmicos& r) {
  for (const ListaPantalla& l : r.listas) {
    auto* tabla = vista.findChild<QTableWidget*>(Q(l.nombre));
    if (!tabla || vista.findChild<QLabel*>(Q("Encabezado:" + l.nombre))) continue;
    auto* diseño = tabla->parentWidget() ? qobject_cast<QBoxLayout*>(tabla->parentWidget()->layout()) : nullptr;
    if (!diseño) continue;
    auto* encabezado = new QLabel(Q(r.Encabezado(l.nombre)), tabla->parentWidget());
    encabezado->setObjectName(Q("Encabezado:" + l.nombre));
    encabezado->setTextFormat(Qt::PlainText);
    encabezado->setStyleSheet("font-weight: bold; color: #2b4a6b;");
    diseño->insertWidget(diseño->indexOf(tabla), encabezado);
    // Two lists and their headings under the note and the boxes: each list a little shorter than
    // the generic view makes it, so that the screen fits a laptop's height.
    tabla->setMinimumHeight(170);
  }
}

}  // namespace

void AjustarVistaSísmica(VistaPantalla& vista) {
  if (vista.pantalla().nombre == "FormGráficasSísmicas") BotonesEnFilas(vista);
  if (const auto* r = dynamic_cast<const PantallaResultadosSísmicos*>(&vista.pantalla())) {
    Encabezados(vista, *r);
    // The window grows to what its controls now need.
    if (vista.layout()) vista.layout()->activate();
    vista.resize(vista.size().expandedTo(vista.sizeHint()));
  }
}

}  // namespace lomaterra
