#include "salida_figura_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include "informe_qt.h"
#include "pintor.h"
#include "vista_grafico_qt.h"

namespace lomaterra {

VistaFigura::VistaFigura(const Figura& figura, QWidget* padre) : QWidget(padre), figura_(figura) {
  setObjectName(QStringLiteral("VistaFigura"));
  setMouseTracking(true);
  setMinimumSize(480, 330);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void VistaFigura::paintEvent(QPaintEvent*) {
  QPainter p(this);
  DibujarFigura(p, figura_, QRectF(rect()));
}

void VistaFigura::mouseMoveEvent(QMouseEvent* e) {
  if (!alMoverRatón) return;
  double x = 0, y = 0;
  if (CoordenadasEnFigura(figura_, QRectF(rect()), this, e->position(), x, y))
    alMoverRatón(QStringLiteral("%1 = %2    %3 = %4")
                     .arg(figura_.tipo == Figura::Tipo::Dibujo ? QStringLiteral("X (m)")
                                                               : QStringLiteral("x"))
                     .arg(x, 0, 'f', 2)
                     .arg(figura_.tipo == Figura::Tipo::Dibujo ? QStringLiteral("Y (m)")
                                                               : QStringLiteral("y"))
                     .arg(y, 0, 'f', 2));
  else
    alMoverRatón(QString());
}

namespace {

// Asks for a path with the given extension and writes the figure there.
void Exportar(QWidget* padre, const Figura& figura, const QString& extensión,
              const QString& filtro) {
  const QString sugerido =
      QString::fromStdString(figura.nombre.empty() ? std::string("figura") : figura.nombre) + "." +
      extensión;
  QString ruta =
      QFileDialog::getSaveFileName(padre, QStringLiteral("Exportar la figura"), sugerido, filtro);
  if (ruta.isEmpty()) return;
  if (!ruta.endsWith("." + extensión, Qt::CaseInsensitive)) ruta += "." + extensión;
  QString error;
  if (!ExportarFigura(figura, ruta, &error))
    QMessageBox::warning(padre, QStringLiteral("Exportar la figura"), error);
}

void ImprimirFigura(QWidget* padre, const Figura& figura) {
  QPrinter impresora(QPrinter::HighResolution);
  impresora.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog diálogo(&impresora, padre);
  diálogo.setWindowTitle(QStringLiteral("Imprimir la figura"));
  if (diálogo.exec() != QDialog::Accepted) return;
  QPainter p;
  if (!p.begin(&impresora)) {
    QMessageBox::warning(padre, QStringLiteral("Imprimir"),
                         QStringLiteral("No se pudo imprimir en la impresora elegida."));
    return;
  }
  DibujarFigura(p, figura, QRectF(0, 0, impresora.width(), impresora.height()));
  p.end();
}

}  // namespace

QDialog* CrearDiálogoFigura(QWidget* padre, const Figura& figura) {
  auto* d = new QDialog(padre);
  d->setObjectName(QStringLiteral("DiálogoFigura"));
  d->setWindowTitle(
      QString::fromStdString(figura.título.empty() ? std::string("Figura") : figura.título));
  d->setSizeGripEnabled(true);
  // On screen, an x-y chart is a Qt Charts view with the notes below it; a drawing is painted.
  // Exports and printing always go through the painter.
  QWidget* vista = nullptr;
  QLabel* notas = nullptr;
  auto* coordenadas = new QLabel(d);
  coordenadas->setObjectName(QStringLiteral("EtiquetaCoordenadasFigura"));
  coordenadas->setMinimumWidth(260);
  auto alMoverRatón = [coordenadas](const QString& t) { coordenadas->setText(t); };
  if (figura.tipo == Figura::Tipo::Gráfico) {
    auto* gráfico = static_cast<VistaGráfico*>(CrearVistaGráfico(figura, d));
    gráfico->alMoverRatón = alMoverRatón;
    vista = gráfico;
    if (!figura.notas.empty()) {
      QStringList líneas;
      for (const auto& n : figura.notas) líneas << QString::fromStdString(n);
      notas = new QLabel(líneas.join('\n'), d);
      notas->setObjectName(QStringLiteral("EtiquetaNotasFigura"));
      notas->setAlignment(Qt::AlignHCenter);
      notas->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
  } else {
    auto* dibujo = new VistaFigura(figura, d);
    dibujo->alMoverRatón = alMoverRatón;
    vista = dibujo;
  }
  auto botón = [d](const char* nombre, const QString& texto) {
    auto* b = new QPushButton(texto, d);
    b->setObjectName(QString::fromUtf8(nombre));
    b->setAutoDefault(false);
    return b;
  };
  auto* png = botón("BotónExportarPNG", QStringLiteral("Exportar PNG..."));
  auto* svg = botón("BotónExportarSVG", QStringLiteral("Exportar SVG..."));
  auto* pdf = botón("BotónExportarPDF", QStringLiteral("Exportar PDF..."));
  auto* imprimir = botón("BotónImprimir", QStringLiteral("Imprimir..."));
  auto* cerrar = botón("BotónCerrar", QStringLiteral("Cerrar"));
  QObject::connect(png, &QPushButton::clicked, d, [d, figura] {
    Exportar(d, figura, "png", QStringLiteral("Imágenes PNG (*.png)"));
  });
  QObject::connect(svg, &QPushButton::clicked, d, [d, figura] {
    Exportar(d, figura, "svg", QStringLiteral("Dibujos SVG (*.svg)"));
  });
  QObject::connect(pdf, &QPushButton::clicked, d, [d, figura] {
    Exportar(d, figura, "pdf", QStringLiteral("Documentos PDF (*.pdf)"));
  });
  QObject::connect(imprimir, &QPushButton::clicked, d,
                   [d, figura] { ImprimirFigura(d, figura); });
  QObject::connect(cerrar, &QPushButton::clicked, d, &QDialog::accept);
  auto* fila = new QHBoxLayout;
  fila->addWidget(coordenadas);
  fila->addStretch(1);
  for (auto* b : {png, svg, pdf, imprimir, cerrar}) fila->addWidget(b);
  auto* columna = new QVBoxLayout(d);
  columna->addWidget(vista, 1);
  if (notas) columna->addWidget(notas);
  columna->addLayout(fila);
  d->resize(1000, 760);
  return d;
}

void MostrarFiguraQt(QWidget* padre, const Figura& figura) {
  QDialog* d = CrearDiálogoFigura(padre, figura);
  d->exec();
  delete d;
}

void CopiarAlPortapapelesQt(const std::string& texto) {
  if (auto* portapapeles = QGuiApplication::clipboard())
    portapapeles->setText(QString::fromStdString(texto));
}

void ImprimirInformeQt(QWidget* padre, const Informe& informe) {
  QPrinter impresora(QPrinter::HighResolution);
  impresora.setPageSize(QPageSize(QPageSize::A4));
  impresora.setPageOrientation(QPageLayout::Portrait);
  impresora.setPageMargins(QMarginsF(18, 15, 15, 15), QPageLayout::Millimeter);
  impresora.setDocName(QString::fromStdString(informe.título));
  QPrintDialog diálogo(&impresora, padre);
  diálogo.setWindowTitle(QString::fromStdString("Imprimir: " + informe.título));
  if (diálogo.exec() != QDialog::Accepted) return;
  QPainter p;
  if (!p.begin(&impresora)) {
    QMessageBox::warning(padre, QStringLiteral("Imprimir"),
                         QStringLiteral("No se pudo imprimir en la impresora elegida."));
    return;
  }
  PintarInforme(informe, impresora, p);
  p.end();
}

}  // namespace lomaterra
