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

class QAbstractButton;
class QCoreApplication;
class QTranslator;
class QDialogButtonBox;
class QFileDialog;
class QLabel;
class QScrollArea;
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

// A message box (Aceptar) or a question box (Sí / No) that shows its whole text: the text wraps at
// a readable width, the box grows in height to hold it, and a text taller than most of the screen
// scrolls inside the box.
class CajaDeMensaje : public QDialog {
  Q_OBJECT
 public:
  CajaDeMensaje(const QString& texto, const QString& título, bool pregunta, QWidget* padre);
  QString text() const { return texto_; }
  QList<QAbstractButton*> buttons() const;
  QAbstractButton* clickedButton() const { return pulsado_; }
  QAbstractButton* defaultButton() const { return porDefecto_; }
  void setIconPixmap(const QPixmap& imagen);
  // The width the text wraps at and the most height it takes before it scrolls.
  static constexpr int kAnchoTexto = 520;
  static constexpr int kAltoMáximo = 420;

 protected:
  void reject() override;

 private:
  QString texto_;
  QLabel* icono_ = nullptr;
  QLabel* etiqueta_ = nullptr;
  QScrollArea* desplazamiento_ = nullptr;
  QDialogButtonBox* botones_ = nullptr;
  QAbstractButton* pulsado_ = nullptr;
  QAbstractButton* porDefecto_ = nullptr;
  QAbstractButton* escape_ = nullptr;
};

// The box of a message (Aceptar) or of a question (Sí / No), before it is shown.
std::unique_ptr<CajaDeMensaje> CrearCaja(const std::string& texto, const std::string& título,
                                         bool pregunta, QWidget* padre);

class InterfazQt : public Interfaz {
 public:
  // `ventana` is the parent of boxes and dialogs when no modal screen is open (may be null).
  explicit InterfazQt(QWidget* ventana = nullptr);

  void HacerMensaje(const std::string& texto, const std::string& título) override;
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
  // A progress box with Cancelar while a long run goes (progreso_qt.cpp).
  bool HacerProgreso(double fracción, const std::string& texto) override;

  void FijarVentana(QWidget* ventana) { ventana_ = ventana; }
  // The project's current file, where the save dialog starts (empty: none yet).
  void AlNombreActual(std::function<QString()> f) { nombreActual_ = std::move(f); }
  // The save dialog as HacerElegirArchivoGuardar shows it (used also by the gallery and tests).
  void ConfigurarGuardar(QFileDialog& diálogo, const FiltroQt& f) const;
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
  std::function<QString()> nombreActual_;
  Interfaz* sustituto_ = nullptr;
  std::function<void(VistaPantalla&)> alMostrar_;
  QPointer<QDialog> ayuda_;
  QPointer<QDialog> progreso_;  // the progress box of the run under way
  VistaPantalla* activando_ = nullptr;  // the view of the screen whose Activar is running  // one
                                        // help window, raised again when asked for again
};

// Loads Qt's Spanish catalogue (qtbase_es) into the application: the file dialogs and Qt's standard
// buttons then speak Spanish. False when the catalogue is not installed.
// Returns the installed translator (owned by the application), or null.
QTranslator* CargarTraducciónDeQt(QCoreApplication& app);

// The text of an entry box as the core reads it: a number typed with a decimal comma, as a Spanish
// user types it ("12,5"), is handed over with a point ("12.5"); any other text goes as it is.
std::string TextoDeEntrada(const QString& texto);

// QString from and to the UTF-8 strings of the core.
inline QString Q(const std::string& s) {
  return QString::fromStdString(s);
}
inline std::string S(const QString& s) {
  return s.toStdString();
}

}  // namespace lomaterra
