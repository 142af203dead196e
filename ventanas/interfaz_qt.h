// The user-interface port on Qt: message boxes, yes/no boxes, the status line, modal screens in
// the generic view, the file dialogs, the help viewer and the about box.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "proyecto/interfaz.h"

class QMessageBox;
class QWidget;

namespace lomaterra {

class VistaPantalla;

// The filters of a file dialog in Qt form, and the one to select.
struct FiltroQt {
  QString filtros;       // "Todos los archivos (*.*);;Archivos de coordenadas (*.cod)"
  QString seleccionado;  // the filter of the given 1-based index
  QString extensión;     // "cod": the extension of the selected filter, empty for "*.*"
};
// "Nombre (*.x)|*.x|Otro (*.y)|*.y" -> pairs of caption and pattern in Qt form.
FiltroQt ConvertirFiltro(const std::string& filtro, int índice);

// The box of a message (Aceptar) or of a question (Sí / No), before it is shown.
std::unique_ptr<QMessageBox> CrearCaja(const std::string& texto, const std::string& título,
                                       bool pregunta, QWidget* padre);

class InterfazQt : public Interfaz {
 public:
  // `ventana` is the parent of boxes and dialogs when no modal screen is open (may be null).
  explicit InterfazQt(QWidget* ventana = nullptr);

  void HacerMensaje(const std::string& texto, const std::string& título) override;
  void HacerMensajeDetallado(const std::string& texto, const std::string& título,
                             const std::string& detalle) override;
  bool HacerPregunta(const std::string& texto, const std::string& título) override;
  void HacerEstado(const std::string& texto) override;
  void HacerAbrir(Pantalla& pantalla) override;
  std::optional<std::string> HacerElegirArchivoAbrir(const std::string& filtro, int índice) override;
  std::optional<std::string> HacerElegirArchivoGuardar(const std::string& filtro, int índice) override;
  void HacerAyuda(const std::string& archivo) override;
  void HacerAcercaDe(const std::string& título, const std::string& texto) override;
  void HacerMostrarFigura(const Figura& figura) override;
  void HacerCopiarAlPortapapeles(const std::string& texto) override;
  void HacerImprimir(const Informe& informe) override;

  void FijarVentana(QWidget* ventana) { ventana_ = ventana; }
  // Where the status texts go (the main window's status line).
  void AlEstado(std::function<void(const QString&)> f) { alEstado_ = std::move(f); }

  // Folders searched for a help file given by its bare name, in order.
  static void CarpetasDeAyuda(const QStringList& carpetas);
  static QStringList CarpetasDeAyuda();
  // The help file found for `archivo`, or empty.
  static QString BuscarAyuda(const std::string& archivo);

  // Stand-ins for tests and for the screenshot gallery. With a substitute every box, file dialog,
  // help and about goes to it instead of a real box (and the status text too, besides the status
  // line). With `alMostrar`, a screen is shown without a modal loop: the function runs while the
  // view is on screen, and a screen still open afterwards is closed by its exit button.
  void Sustituto(Interfaz* sustituto) { sustituto_ = sustituto; }
  void AlMostrar(std::function<void(VistaPantalla&)> f) { alMostrar_ = std::move(f); }

  // The caption of a box: the given title, or the program's name when it is empty.
  static QString TítuloDeCaja(const std::string& título);

 private:
  QWidget* Padre() const;
  // Shows the screen being activated, as it stands, before a box of its opening code.
  void MostrarLaQueSeActiva();

  QWidget* ventana_ = nullptr;
  std::function<void(const QString&)> alEstado_;
  Interfaz* sustituto_ = nullptr;
  std::function<void(VistaPantalla&)> alMostrar_;
  QPointer<QDialog> ayuda_;
  VistaPantalla* activando_ = nullptr;  // the view of the screen whose Activar is running  // one
                                        // help window, raised again when asked for again
};

// QString from and to the UTF-8 strings of the core.
inline QString Q(const std::string& s) {
  return QString::fromStdString(s);
}
inline std::string S(const QString& s) {
  return s.toStdString();
}

}  // namespace lomaterra
