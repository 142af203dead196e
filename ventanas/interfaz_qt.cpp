#include "interfaz_qt.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "ayuda_qt.h"
#include "salida_figura_qt.h"
#include "vista_pantalla.h"
#include "vista_resultados_sismicos.h"

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

// A box asked while a screen is open stands beside that screen, not over it: the user reads the
// screen (a factor of safety, the sums of an iteration) while answering.
void ApartarDeLaPantalla(QDialog& caja, QWidget* padre) {
  auto* vista = dynamic_cast<VistaPantalla*>(padre);
  if (!vista || !vista->isVisible()) return;
  caja.adjustSize();
  const QRect marco = vista->frameGeometry();
  const QSize t = caja.frameGeometry().size().expandedTo(caja.size());
  const QRect área = vista->screen() ? vista->screen()->availableGeometry() : QRect();
  const QPoint opciones[] = {{marco.left(), marco.bottom() + 8},
                             {marco.right() + 8, marco.top()},
                             {marco.left() - t.width() - 8, marco.top()},
                             {marco.left(), marco.top() - t.height() - 8}};
  QPoint destino = opciones[0];
  for (const QPoint& o : opciones)
    if (!área.isValid() || área.contains(QRect(o, t))) {
      destino = o;
      break;
    }
  caja.move(destino);
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

CajaDeMensaje::CajaDeMensaje(const QString& texto, const QString& título, bool pregunta,
                             QWidget* padre)
    : QDialog(padre), texto_(texto) {
  setObjectName("CajaDeMensaje");
  setWindowTitle(título);
  icono_ = new QLabel(this);
  icono_->setObjectName("IconoCaja");
  icono_->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
  const QIcon estándar = style()->standardIcon(pregunta ? QStyle::SP_MessageBoxQuestion
                                                        : QStyle::SP_MessageBoxInformation);
  icono_->setPixmap(estándar.pixmap(32, 32));

  etiqueta_ = new QLabel(texto, this);
  etiqueta_->setObjectName("TextoCaja");
  etiqueta_->setTextFormat(Qt::PlainText);
  etiqueta_->setWordWrap(true);
  etiqueta_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  etiqueta_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // The text wraps at a readable width; a short text keeps the box narrow.
  const QFontMetrics métrica(etiqueta_->font());
  const int natural = métrica.horizontalAdvance(texto) + 8;
  const int ancho = std::clamp(natural, 240, kAnchoTexto);
  const int alto = std::max(etiqueta_->heightForWidth(ancho), métrica.height());
  etiqueta_->setFixedWidth(ancho);
  etiqueta_->setMinimumHeight(alto);

  desplazamiento_ = new QScrollArea(this);
  desplazamiento_->setObjectName("DesplazamientoCaja");
  desplazamiento_->setFrameShape(QFrame::NoFrame);
  desplazamiento_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  desplazamiento_->setWidget(etiqueta_);
  desplazamiento_->setWidgetResizable(false);
  etiqueta_->resize(ancho, alto);
  const bool desborda = alto > kAltoMáximo;
  const int barra = desborda ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 : 0;
  desplazamiento_->setFixedSize(ancho + barra, std::min(alto, kAltoMáximo));
  desplazamiento_->setBackgroundRole(QPalette::Window);

  botones_ = new QDialogButtonBox(this);
  if (pregunta) {
    QPushButton* sí = botones_->addButton(QStringLiteral("&Sí"), QDialogButtonBox::YesRole);
    QPushButton* no = botones_->addButton(QStringLiteral("&No"), QDialogButtonBox::NoRole);
    sí->setObjectName("BotónSí");
    no->setObjectName("BotónNo");
    porDefecto_ = sí;
    escape_ = no;
  } else {
    QPushButton* aceptar =
        botones_->addButton(QStringLiteral("Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName("BotónAceptar");
    porDefecto_ = escape_ = aceptar;
  }
  if (auto* b = qobject_cast<QPushButton*>(porDefecto_)) {
    b->setDefault(true);
    b->setFocus();
  }
  connect(botones_, &QDialogButtonBox::clicked, this, [this](QAbstractButton* b) {
    if (b == botónDetalles_) {
      detalle_->setVisible(!detalle_->isVisible());
      b->setText(detalle_->isVisible() ? QStringLiteral("Ocultar detalles") : QStringLiteral("Mostrar detalles"));
      return;
    }
    pulsado_ = b;
    accept();
  });

  auto* arriba = new QHBoxLayout;
  arriba->setSpacing(14);
  arriba->addWidget(icono_, 0, Qt::AlignTop);
  arriba->addWidget(desplazamiento_, 1);
  auto* todo = new QVBoxLayout(this);
  todo->setSizeConstraint(QLayout::SetFixedSize);
  todo->setContentsMargins(16, 16, 16, 12);
  todo->addLayout(arriba);
  todo->addSpacing(8);
  todo->addWidget(botones_);
}

QList<QAbstractButton*> CajaDeMensaje::buttons() const {
  return botones_->buttons();
}

void CajaDeMensaje::setIconPixmap(const QPixmap& imagen) {
  icono_->setPixmap(imagen);
}

void CajaDeMensaje::setDetailedText(const QString& detalle) {
  if (!detalle_) {
    detalle_ = new QPlainTextEdit(this);
    detalle_->setObjectName("DetalleCaja");
    detalle_->setReadOnly(true);
    detalle_->setFixedSize(kAnchoTexto, 120);
    detalle_->hide();
    auto* todo = static_cast<QVBoxLayout*>(layout());
    todo->insertWidget(todo->indexOf(botones_), detalle_);
    botónDetalles_ = botones_->addButton(QStringLiteral("Mostrar detalles"), QDialogButtonBox::ActionRole);
    botónDetalles_->setObjectName("BotónDetalles");
  }
  detalle_->setPlainText(detalle);
}

QString CajaDeMensaje::detailedText() const {
  return detalle_ ? detalle_->toPlainText() : QString();
}

void CajaDeMensaje::reject() {
  // Escape and the close box answer as the No of a question or the Aceptar of a message.
  pulsado_ = escape_;
  QDialog::reject();
}

std::unique_ptr<CajaDeMensaje> CrearCaja(const std::string& texto, const std::string& título,
                                         bool pregunta, QWidget* padre) {
  return std::make_unique<CajaDeMensaje>(Q(texto), InterfazQt::TítuloDeCaja(título), pregunta,
                                         padre);
}

std::string TextoDeEntrada(const QString& texto) {
  static const QRegularExpression kComaDecimal(
      QStringLiteral("^\\s*[+-]?(\\d+,\\d*|,\\d+)([eEdD][+-]?\\d+)?\\s*$"));
  if (!kComaDecimal.match(texto).hasMatch()) return S(texto);
  QString conPunto = texto;
  conPunto.replace(',', '.');
  return S(conPunto);
}

QTranslator* CargarTraducciónDeQt(QCoreApplication& app) {
  auto* traductor = new QTranslator(&app);
  if (traductor->load(QLocale(QLocale::Spanish, QLocale::Spain), QStringLiteral("qtbase"),
                      QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
      app.installTranslator(traductor))
    return traductor;
  delete traductor;
  return nullptr;
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
  auto caja = CrearCaja(texto, título, false, Padre());
  ApartarDeLaPantalla(*caja, activando_ ? activando_ : Padre());
  caja->exec();
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
  ApartarDeLaPantalla(*caja, activando_ ? activando_ : Padre());
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
    AjustarVistaSísmica(vista);
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
  ConfigurarGuardar(diálogo, f);
  if (diálogo.exec() != QDialog::Accepted || diálogo.selectedFiles().isEmpty()) return std::nullopt;
  return S(QDir::toNativeSeparators(diálogo.selectedFiles().front()));
}

void InterfazQt::ConfigurarGuardar(QFileDialog& diálogo, const FiltroQt& f) const {
  diálogo.setAcceptMode(QFileDialog::AcceptSave);
  diálogo.selectNameFilter(f.seleccionado);
  // A name typed without extension under "Archivos de coordenadas (*.cod)" is saved as .cod.
  diálogo.setDefaultSuffix(f.extensión);
  // The program asks itself whether to overwrite, once, in its own words.
  diálogo.setOption(QFileDialog::DontConfirmOverwrite, true);
  // It starts on the project's own file when it has one.
  const QString actual = nombreActual_ ? nombreActual_() : QString();
  if (!actual.isEmpty()) {
    const QFileInfo info(QDir::fromNativeSeparators(actual));
    if (info.dir().exists()) diálogo.setDirectory(info.absolutePath());
    diálogo.selectFile(info.fileName());
  }
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
