#include "interfaz_qt.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "ayuda_qt.h"
#include "salida_figura_qt.h"
#include "vista_pantalla.h"

namespace lomaterra {

namespace {

QStringList& Carpetas() {
  static QStringList carpetas;
  return carpetas;
}

// Where the help file stands when nobody has said otherwise: beside the program, in the shared
// folder of an installation, and in the source tree the program was built from.
QStringList CarpetasPorDefecto() {
  QStringList r;
  if (QCoreApplication::instance()) {
    const QString programa = QCoreApplication::applicationDirPath();
    r << QDir(programa).filePath("ayuda") << programa
      << QDir(programa).filePath("../share/lomaterra");
  }
#ifdef LOMATERRA_AYUDA_FUENTE
  r << QString::fromUtf8(LOMATERRA_AYUDA_FUENTE);
#endif
  return r;
}

// Message boxes carry their long single-line texts wrapped at a readable width.
void Preparar(QMessageBox& caja, const std::string& texto, const std::string& título) {
  caja.setWindowTitle(InterfazQt::TítuloDeCaja(título));
  caja.setText(Q(texto));
  caja.setTextFormat(Qt::PlainText);
  caja.setStyleSheet("QLabel#qt_msgbox_label { min-width: 400px; max-width: 560px; }");
}

}  // namespace

FiltroQt ConvertirFiltro(const std::string& filtro, int índice) {
  const QStringList partes = Q(filtro).split('|');
  QStringList filtros, extensiones;
  for (int i = 0; i + 1 < partes.size(); i += 2) {
    QString título = partes[i].trimmed();
    const QString patrón = partes[i + 1].trimmed().replace(';', ' ');
    // Qt reads the patterns from the parentheses of the caption; add them when missing.
    if (!título.contains('(')) título += " (" + patrón + ")";
    filtros << título;
    const QString primero = patrón.section(' ', 0, 0);
    extensiones << (primero.startsWith("*.") && !primero.mid(1).contains('*') ? primero.mid(2)
                                                                              : QString());
  }
  if (filtros.isEmpty() && !filtro.empty()) filtros << Q(filtro);
  FiltroQt r;
  r.filtros = filtros.join(";;");
  const int elegido = índice >= 1 && índice <= filtros.size() ? índice - 1 : 0;
  if (elegido < filtros.size()) r.seleccionado = filtros[elegido];
  if (elegido < extensiones.size()) r.extensión = extensiones[elegido];
  return r;
}

std::unique_ptr<QMessageBox> CrearCaja(const std::string& texto, const std::string& título,
                                       bool pregunta, QWidget* padre) {
  auto caja =
      std::make_unique<QMessageBox>(pregunta ? QMessageBox::Question : QMessageBox::Information,
                                    QString(), QString(), QMessageBox::NoButton, padre);
  Preparar(*caja, texto, título);
  if (pregunta) {
    QPushButton* sí = caja->addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
    QPushButton* no = caja->addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    sí->setObjectName("BotónSí");
    no->setObjectName("BotónNo");
    caja->setDefaultButton(sí);
    caja->setEscapeButton(no);
  } else {
    QPushButton* aceptar = caja->addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    aceptar->setObjectName("BotónAceptar");
    caja->setDefaultButton(aceptar);
  }
  return caja;
}

InterfazQt::InterfazQt(QWidget* ventana) : ventana_(ventana) {}

QString InterfazQt::TítuloDeCaja(const std::string& título) {
  return título.empty() ? QStringLiteral("Lomaterra") : Q(título);
}

QWidget* InterfazQt::Padre() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return ventana_;
}

void InterfazQt::HacerMensaje(const std::string& texto, const std::string& título) {
  if (sustituto_) {
    sustituto_->Mensaje(texto, título);
    return;
  }
  MostrarLaQueSeActiva();
  CrearCaja(texto, título, false, Padre())->exec();
}

void InterfazQt::HacerMensajeDetallado(const std::string& texto, const std::string& título,
                                       const std::string& detalle) {
  if (sustituto_) {
    sustituto_->MensajeDetallado(texto, título, detalle);
    return;
  }
  MostrarLaQueSeActiva();
  auto caja = CrearCaja(texto, título, false, Padre());
  caja->setDetailedText(Q(detalle));
  caja->exec();
}

bool InterfazQt::HacerPregunta(const std::string& texto, const std::string& título) {
  if (sustituto_) return sustituto_->Pregunta(texto, título);
  MostrarLaQueSeActiva();
  auto caja = CrearCaja(texto, título, true, Padre());
  caja->exec();
  return caja->clickedButton() == caja->defaultButton();
}

void InterfazQt::HacerEstado(const std::string& texto) {
  if (alEstado_) alEstado_(Q(texto));
  if (sustituto_) sustituto_->Estado(texto);
}

void InterfazQt::MostrarLaQueSeActiva() {
  if (!activando_) return;
  activando_->Refrescar();
  activando_->show();
  activando_->raise();
}

void InterfazQt::HacerAbrir(Pantalla& pantalla) {
  pantalla.cerrada = false;
  // The view exists before the screen is activated: a screen that asks or warns as it opens is
  // then seen, filled so far, behind its boxes, as a window whose opening code runs once shown.
  VistaPantalla vista(pantalla, *this, Padre());
  VistaPantalla* anterior = activando_;
  activando_ = &vista;
  try {
    pantalla.Activar(*this);
  } catch (...) {
    activando_ = anterior;
    throw;
  }
  activando_ = anterior;
  if (!pantalla.cerrada) {
    vista.Refrescar();
    if (alMostrar_) {
      vista.show();
      alMostrar_(vista);
      // A screen left open by the stand-in is closed with its exit button, as the close box
      // would; one that refuses is closed all the same so that nothing waits for a hand.
      for (int intento = 0; !pantalla.cerrada && intento < 3; ++intento)
        pantalla.CerrarSinCambios(*this);
      vista.hide();
    } else {
      vista.exec();
    }
    pantalla.cerrada = true;
    if (vista.Fallo()) std::rethrow_exception(vista.Fallo());
  }
  pantalla.cerrada = true;
}

std::optional<std::string> InterfazQt::HacerElegirArchivoAbrir(const std::string& filtro, int índice) {
  if (sustituto_) return sustituto_->ElegirArchivoAbrir(filtro, índice);
  FiltroQt f = ConvertirFiltro(filtro, índice);
  const QString ruta = QFileDialog::getOpenFileName(Padre(), QStringLiteral("Abrir"), QString(),
                                                    f.filtros, &f.seleccionado);
  if (ruta.isEmpty()) return std::nullopt;
  return S(QDir::toNativeSeparators(ruta));
}

std::optional<std::string> InterfazQt::HacerElegirArchivoGuardar(const std::string& filtro, int índice) {
  if (sustituto_) return sustituto_->ElegirArchivoGuardar(filtro, índice);
  const FiltroQt f = ConvertirFiltro(filtro, índice);
  QFileDialog diálogo(Padre(), QStringLiteral("Guardar como"), QString(), f.filtros);
  diálogo.setAcceptMode(QFileDialog::AcceptSave);
  diálogo.selectNameFilter(f.seleccionado);
  // A name typed without extension under "Archivos de coordenadas (*.cod)" is saved as .cod.
  diálogo.setDefaultSuffix(f.extensión);
  if (diálogo.exec() != QDialog::Accepted || diálogo.selectedFiles().isEmpty()) return std::nullopt;
  return S(QDir::toNativeSeparators(diálogo.selectedFiles().front()));
}

void InterfazQt::CarpetasDeAyuda(const QStringList& carpetas) {
  Carpetas() = carpetas;
}
QStringList InterfazQt::CarpetasDeAyuda() {
  return Carpetas().isEmpty() ? CarpetasPorDefecto() : Carpetas();
}

QString InterfazQt::BuscarAyuda(const std::string& archivo) {
  const QString dado = Q(archivo);
  if (!dado.isEmpty() && QFileInfo(dado).isFile()) return dado;
  const QString nombre =
      Q(TítuloDeArchivo(archivo.empty() ? std::string("AYUDALOMATERRA.HLP") : archivo));
  for (const QString& carpeta : CarpetasDeAyuda()) {
    const QString ruta = QDir(carpeta).filePath(nombre);
    if (QFileInfo(ruta).isFile()) return ruta;
  }
  return QString();
}

void InterfazQt::HacerAyuda(const std::string& archivo) {
  if (sustituto_) {
    sustituto_->Ayuda(archivo);
    return;
  }
  const QString ruta = BuscarAyuda(archivo);
  if (ruta.isEmpty()) {
    Mensaje("No se encontró el archivo de ayuda " + TítuloDeArchivo(archivo) + ".", "Ayuda");
    return;
  }
  if (!ayuda_) {
    ayuda_ = CrearVentanaAyuda(ruta, ventana_);
    ayuda_->setAttribute(Qt::WA_DeleteOnClose);
  }
  ayuda_->show();
  ayuda_->raise();
  ayuda_->activateWindow();
}

void InterfazQt::HacerAcercaDe(const std::string& título, const std::string& texto) {
  if (sustituto_) {
    sustituto_->AcercaDe(título, texto);
    return;
  }
  auto caja = CrearCaja(texto, título, false, Padre());
  if (!QApplication::windowIcon().isNull())
    caja->setIconPixmap(QApplication::windowIcon().pixmap(64, 64));
  caja->exec();
}

void InterfazQt::HacerMostrarFigura(const Figura& figura) {
  if (sustituto_) {
    sustituto_->MostrarFigura(figura);
    return;
  }
  MostrarFiguraQt(Padre(), figura);
}

void InterfazQt::HacerCopiarAlPortapapeles(const std::string& texto) {
  if (sustituto_) {
    sustituto_->CopiarAlPortapapeles(texto);
    return;
  }
  CopiarAlPortapapelesQt(texto);
}

void InterfazQt::HacerImprimir(const Informe& informe) {
  if (sustituto_) {
    sustituto_->Imprimir(informe);
    return;
  }
  ImprimirInformeQt(Padre(), informe);
}

}  // namespace lomaterra
