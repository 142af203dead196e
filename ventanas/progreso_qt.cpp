// The progress box of a long run (the search of the critical circle): a bar, the text of the
// core and the button Cancelar. The run calls it between its lots of work; the events that came
// meanwhile are handled here, so the window repaints and Cancelar is heard.
#include <QApplication>
#include <QProgressDialog>
#include <algorithm>

#include "interfaz_qt.h"

namespace lomaterra {

bool InterfazQt::HacerProgreso(double fracción, const std::string& texto) {
  if (sustituto_) return sustituto_->Progreso(fracción, texto);
  auto* caja = qobject_cast<QProgressDialog*>(progreso_.data());
  if (!caja) {
    if (fracción >= 1) return true;
    caja = new QProgressDialog(Q(texto), QStringLiteral("Cancelar"), 0, 1000, Padre());
    caja->setObjectName("Progreso");
    caja->setWindowTitle(TítuloDeCaja(""));
    caja->setWindowModality(Qt::WindowModal);
    caja->setMinimumDuration(300);
    caja->setAutoClose(false);
    caja->setAutoReset(false);
    caja->setAttribute(Qt::WA_DeleteOnClose);
    progreso_ = caja;
  }
  caja->setLabelText(Q(texto));
  caja->setValue(static_cast<int>(std::clamp(fracción, 0.0, 1.0) * 1000));
  QApplication::processEvents();
  const bool seguir = !caja->wasCanceled();
  if (!seguir || fracción >= 1) caja->close();
  return seguir;
}

}  // namespace lomaterra
