// The main window (Form1): the menu tree of the command registry, the project description, the
// coordinate panel with the stratum selector, the status line and a live drawing of the section.
// It shows the window state of the project and forwards every click to the core.
#pragma once

#include <QMainWindow>
#include <functional>
#include <string>
#include <vector>

#include "interfaz_qt.h"
#include "proyecto/ventana_principal.h"
#include "proyecto/comandos.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace lomaterra {

struct Proyecto;
class VistaSección;

// What the panel's controls call in the core; a test may put stand-ins in their place.
struct AccionesPanel {
  std::function<void(Proyecto&, Interfaz&)> agregar = PanelAgregar;
  std::function<void(Proyecto&, Interfaz&)> borrar = PanelBorrar;
  std::function<void(Proyecto&, Interfaz&)> modificar = PanelModificar;
  std::function<void(Proyecto&, Interfaz&, int)> elegirEstrato = PanelElegirEstrato;
  std::function<void(Proyecto&, const std::string&)> cambiarTexto = CambiarTextoProyecto;
};

class VentanaPrincipalQt : public QMainWindow {
 public:
  explicit VentanaPrincipalQt(Proyecto& proyecto, std::vector<EntradaMenú> árbol = ÁrbolDeMenús(),
                              AccionesPanel panel = {}, QWidget* padre = nullptr);
  ~VentanaPrincipalQt() override;

  InterfazQt& interfaz() { return ui_; }
  Proyecto& proyecto() { return proyecto_; }
  VistaSección& dibujo() { return *dibujo_; }

  // Shows the whole window state again: title, description, panel, strata, status, drawing.
  void Refrescar();
  // What a click on the menu entry does: the command runs to its end, then the window is shown
  // again and closes when the command has ended the program. False when the entry has no command.
  bool EjecutarMenú(const std::string& nombre);

 protected:
  // The close box runs the exit command when it is bound, and closes only when it ends the program.
  void closeEvent(QCloseEvent* evento) override;

 private:
  void ConstruirMenús();
  QWidget* ConstruirPanel();
  // The panel's boxes and selection into the window state, before the core reads them.
  void Sincronizar();
  void Correr(const Acción& acción);
  void Panel(const std::function<void(Proyecto&, Interfaz&)>& f);

  Proyecto& proyecto_;
  std::vector<EntradaMenú> árbol_;
  AccionesPanel panel_;
  InterfazQt ui_;
  bool refrescando_ = false;
  bool cerrando_ = false;
  std::string últimoEstado_;
  std::string últimoAviso_;  // the drawing's last word on the arc, shown once

  QPlainTextEdit* textoProyecto_ = nullptr;
  QLabel* etiquetaCoordenadas_ = nullptr;
  QComboBox* listaEstrato_ = nullptr;
  QTableWidget* listaCoordenadas_ = nullptr;
  QLineEdit* textoX_ = nullptr;
  QLineEdit* textoY_ = nullptr;
  std::vector<QWidget*>
      entradaPanel_;  // boxes and buttons, open once the project information is given
  QLabel* líneaEstado_ = nullptr;
  QLabel* etiquetaFactores_ = nullptr;  // the factor of the last calculation and its references
  VistaSección* dibujo_ = nullptr;
};

}  // namespace lomaterra
